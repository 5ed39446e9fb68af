#include "app/platform_metinleri.hpp"

namespace nevo {

const PlatformMetinleri& macMetinleri() {
  static const PlatformMetinleri metinler{"⌘", "NevoMac", "Minimize", "None"};
  return metinler;
}

// GTK's gtk-titlebar-double-click words, which the desktop fills from its own setting.
const PlatformMetinleri& linuxMetinleri() {
  static const PlatformMetinleri metinler{"Ctrl+", "NevoLinux", "minimize", "none"};
  return metinler;
}

}  // namespace nevo
