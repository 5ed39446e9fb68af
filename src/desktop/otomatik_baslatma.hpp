#pragma once
#include <string>
#include <string_view>

namespace nevo {

// The XDG autostart entry that launches `calistirilabilir` at login on Linux:
// the path quoted for the Exec key (desktop entry specification) and escaped for the key
// file, so any path launches exactly that file.
std::string otomatikBaslatmaGirdisi(std::string_view calistirilabilir);

}  // namespace nevo
