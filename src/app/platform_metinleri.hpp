#pragma once
#include <string>

#include "desktop/kisayol/kisayol_metinleri.hpp"

namespace nevo {

// The one table that says how the product's words and offers differ between platforms.
struct PlatformMetinleri {
  std::string menuKomutu;              // how the menu's Command key is written: "⌘" / "Ctrl+"
  std::string kullaniciAraciAdi;       // appended to the user agent
  std::string ciftTiklamaKucult;       // the title-bar double-click choice that minimises
  std::string ciftTiklamaHicbiri;      // the choice that does nothing
  bool digerleriniGizlemeVar = false;  // the desktop can hide the other applications
  const KisayolMetinleri* kisayol = nullptr;  // how shortcuts and the recorder speak
};

const PlatformMetinleri& macMetinleri();
const PlatformMetinleri& linuxMetinleri();

}  // namespace nevo
