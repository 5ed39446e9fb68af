#import <Cocoa/Cocoa.h>

#include "app/pencere/menu_modeli.hpp"
#include "temel/metin_mac.hpp"

namespace nevo::mac {
namespace {

// Every item goes without a target, so its selector travels the responder chain and
// AppKit enables the item while some responder can carry it out. An item the core turns
// off gets no action at all, which leaves it disabled.
NSMenuItem* oge(const MenuOgesi& o) {
  SEL secici = o.etkin ? NSSelectorFromString(nsMetin(o.secici)) : nil;
  return [[NSMenuItem alloc] initWithTitle:nsMetin(o.baslik)
                                    action:secici
                             keyEquivalent:nsMetin(o.tus)];
}

class MenuKurucuMac final : public MenuKurucu {
 public:
  void kur(const std::vector<AltMenu>& menu) override {
    NSMenu* cubuk = [[NSMenu alloc] init];
    NSMenu* pencereler = nil;
    for (const auto& alt : menu) {
      NSMenuItem* ust = [[NSMenuItem alloc] init];
      NSMenu* altMenu = [[NSMenu alloc] initWithTitle:nsMetin(alt.baslik)];
      for (const auto& o : alt.ogeler) {
        [altMenu addItem:ayracMi(o) ? [NSMenuItem separatorItem] : oge(o)];
      }
      ust.submenu = altMenu;
      [cubuk addItem:ust];
      if (alt.pencereMenusu) pencereler = altMenu;
    }
    NSApp.mainMenu = cubuk;
    if (pencereler != nil) NSApp.windowsMenu = pencereler;
  }
};

}  // namespace

}  // namespace nevo::mac

namespace nevo {

// Items travel the responder chain, so the chosen entry is not handed back here.
std::unique_ptr<MenuKurucu> menuKurucuOlustur(std::function<void(const std::string&)>) {
  return std::make_unique<mac::MenuKurucuMac>();
}

}  // namespace nevo
