#pragma once
#include <optional>
#include <string>

namespace nevo {

// The application icon in the resource directory.
inline constexpr const char* SIMGE_DOSYASI = "AppIcon.svg";

// The resource directory, share/nevo beside the executable's bin/ (the build tree and an
// installed prefix look alike), when the executable's place is known.
std::optional<std::string> kaynakDizini();

// The path of a file in the resource directory, share/nevo beside the executable's bin/
// (the build tree and an installed prefix look alike), when it exists.
std::optional<std::string> kaynakYolu(const std::string& ad);

}  // namespace nevo
