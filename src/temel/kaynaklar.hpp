#pragma once
#include <optional>
#include <string>

namespace nevo {

// The resource directory: share/nevo beside the executable's bin/ (the build tree and an
// installed prefix look alike).
std::string kaynakDizini();

// The path of a resource file when it exists.
std::optional<std::string> kaynakYolu(const std::string& ad);

}  // namespace nevo
