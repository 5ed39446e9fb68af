#include "app/platform_metinleri.hpp"

namespace nevo {

const PlatformMetinleri& macMetinleri() {
  static const PlatformMetinleri metinler{"⌘",    "NevoMac", "Minimize",
                                          "None", true,      &macKisayolMetinleri()};
  return metinler;
}

// GTK's gtk-titlebar-double-click words, which the desktop fills from its own setting. A
// Linux desktop gives no way to hide the other applications.
const PlatformMetinleri& linuxMetinleri() {
  static const PlatformMetinleri metinler{"Ctrl+", "NevoLinux", "minimize",
                                          "none",  false,       &linuxKisayolMetinleri()};
  return metinler;
}

}  // namespace nevo
