#import <Cocoa/Cocoa.h>

#include <memory>
#include <string>

#include "app/giris.hpp"
#include "app/mac.hpp"
#include "app/uygulama.hpp"
#include "bridge/mac.hpp"
#include "desktop/mac.hpp"
#include "yapilandirma.hpp"

// The application delegate of AppKit: forwards each callback to the portable `Uygulama`.
@interface NevoTemsilci : NSObject <NSApplicationDelegate>
- (instancetype)initWithAdres:(std::string)adres;
@end

@implementation NevoTemsilci {
  std::string _adres;
  std::unique_ptr<nevo::AnaKuyruk> _kuyruk;
  std::unique_ptr<nevo::Sistem> _sistem;
  std::unique_ptr<nevo::PencereKurucu> _kurucu;
  std::unique_ptr<nevo::MenuKurucu> _menu;
  std::unique_ptr<nevo::TercihDeposu> _tercihDeposu;
  std::unique_ptr<nevo::Tercih> _tercih;
  std::unique_ptr<nevo::GirisOgesi> _girisOgesi;
  std::unique_ptr<nevo::Baslangic> _baslangic;
  std::unique_ptr<nevo::GucKilidi> _gucKilidi;
  std::shared_ptr<nevo::Masaustu> _masaustu;  // Masaustu.ortak
  std::unique_ptr<nevo::BildirimMerkezi> _bildirim;
  std::unique_ptr<nevo::KayitPaneli> _kayitPaneli;
  std::shared_ptr<nevo::Uygulama> _uygulama;
}

- (instancetype)initWithAdres:(std::string)adres {
  if ((self = [super init])) _adres = std::move(adres);
  return self;
}

- (void)applicationDidFinishLaunching:(NSNotification*)bildirim {
  _kuyruk = nevo::mac::anaKuyruk();
  _sistem = nevo::mac::sistem();
  _kurucu = nevo::mac::pencereKurucu();
  _menu = nevo::mac::menuKurucu();
  [self masaustuHazirla];
  _uygulama = nevo::Uygulama::olustur(
      {*_kuyruk, *_sistem, *_kurucu, *_menu, *_masaustu, *_bildirim, *_kayitPaneli},
      {_adres, nevo::yapilandirma::KIMLIK_SONEKI, nevo::macMetinleri()});
  _uygulama->applicationDidFinishLaunching();
}

// The bridge and the integrations that have landed (hot key, panel, menu bar item and
// recorder join with Parts 4.2–4.6).
- (void)masaustuHazirla {
  _tercihDeposu = nevo::mac::tercihDeposu();
  _tercih = std::make_unique<nevo::Tercih>(*_tercihDeposu);
  _girisOgesi = nevo::mac::girisOgesi();
  _baslangic = std::make_unique<nevo::Baslangic>(*_girisOgesi, *_sistem);
  _gucKilidi = nevo::mac::gucKilidi();
  _masaustu = nevo::Masaustu::olustur({*_tercih, *_baslangic, *_gucKilidi});
  _bildirim = nevo::mac::bildirimMerkezi(*_kuyruk);
  _kayitPaneli = nevo::mac::kayitPaneli();
}

- (void)applicationWillTerminate:(NSNotification*)bildirim {
  _uygulama->applicationWillTerminate();
}

- (BOOL)applicationShouldTerminateAfterLastWindowClosed:(NSApplication*)uygulama {
  return NO;
}

- (BOOL)applicationShouldHandleReopen:(NSApplication*)uygulama hasVisibleWindows:(BOOL)gorunur {
  _uygulama->applicationShouldHandleReopen(gorunur);
  return YES;
}

// The menu's reload command reaches the delegate through the responder chain (Part 1.6).
- (void)yenidenYukle {
  _uygulama->yenidenYukle();
}

@end

static NevoTemsilci* temsilci;  // NSApplication holds its delegate weakly

int main(int, char**) {
  @autoreleasepool {
    NSString* ortam = NSProcessInfo.processInfo.environment[@"NEVO_ADRES"];
    const std::string adres =
        nevo::adresSec(ortam ? ortam.UTF8String : nullptr, nevo::yapilandirma::VARSAYILAN_ADRES);
    NSApplication* uygulama = NSApplication.sharedApplication;
    temsilci = [[NevoTemsilci alloc] initWithAdres:adres];
    uygulama.delegate = temsilci;
    [uygulama setActivationPolicy:NSApplicationActivationPolicyRegular];
    [uygulama run];
  }
  return 0;
}
