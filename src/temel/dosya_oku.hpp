#pragma once
#include <optional>
#include <string>

namespace nevo {

// The whole file as bytes; nothing when it cannot be opened or read.
std::optional<std::string> dosyaOku(const std::string& yol);

}  // namespace nevo
