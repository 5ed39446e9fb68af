#pragma once
#include <optional>
#include <string>

namespace nevo {

// The application icon in the resource directory.
inline constexpr const char* SIMGE_DOSYASI = "AppIcon.svg";
// The icon drawn at build time: at the curtain's size, and at its own size for the window.
inline constexpr const char* PERDE_SIMGESI = "AppIcon-84.png";
inline constexpr const char* PENCERE_SIMGESI = "AppIcon-256.png";

// The resource directory, share/nevo beside the executable's bin/ (the build tree and an
// installed prefix look alike), when the executable's place is known.
std::optional<std::string> kaynakDizini();

// The path of a file in the resource directory, share/nevo beside the executable's bin/
// (the build tree and an installed prefix look alike), when it exists.
std::optional<std::string> kaynakYolu(const std::string& ad);

}  // namespace nevo
