#import <Cocoa/Cocoa.h>

#include <map>

#include "app/mac.hpp"

namespace nevo::mac {
namespace {

SEL secici(const std::string& eylem) {
  static const std::map<std::string, SEL> SECICILER{
      {eylem::HAKKINDA, @selector(orderFrontStandardAboutPanel:)},
      {eylem::GIZLE, @selector(hide:)},
      {eylem::DIGERLERINI_GIZLE, @selector(hideOtherApplications:)},
      {eylem::CIK, @selector(terminate:)},
      {eylem::GERI_AL, NSSelectorFromString(@"undo:")},
      {eylem::YINELE, NSSelectorFromString(@"redo:")},
      {eylem::KES, @selector(cut:)},
      {eylem::KOPYALA, @selector(copy:)},
      {eylem::YAPISTIR, @selector(paste:)},
      {eylem::TUMUNU_SEC, @selector(selectAll:)},
      {eylem::YENIDEN_YUKLE, NSSelectorFromString(@"yenidenYukle")},
      {eylem::TAM_EKRAN, @selector(toggleFullScreen:)},
      {eylem::KUCULT, @selector(miniaturize:)},
      {eylem::KAPAT, @selector(performClose:)},
  };
  return SECICILER.at(eylem);
}

class MenuKurucuMac final : public MenuKurucu {
 public:
  void kur(const std::vector<AltMenu>& menu) override {
    NSMenu* cubuk = [[NSMenu alloc] init];
    NSMenu* pencereler = nil;
    for (const auto& alt : menu) {
      NSMenuItem* ust = [[NSMenuItem alloc] init];
      NSMenu* altMenu = [[NSMenu alloc] initWithTitle:@(alt.baslik.c_str())];
      for (const auto& oge : alt.ogeler) {
        if (ayracMi(oge)) {
          [altMenu addItem:[NSMenuItem separatorItem]];
          continue;
        }
        [altMenu addItemWithTitle:@(oge.baslik.c_str())
                           action:secici(oge.eylem)
                    keyEquivalent:@(oge.tus.c_str())];
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

std::unique_ptr<MenuKurucu> menuKurucu() { return std::make_unique<MenuKurucuMac>(); }

}  // namespace nevo::mac
