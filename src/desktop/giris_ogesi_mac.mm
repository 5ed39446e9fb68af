#import <Foundation/Foundation.h>
#import <ServiceManagement/ServiceManagement.h>

#include "desktop/baslangic.hpp"
#include "temel/metin_mac.hpp"

namespace nevo {
namespace {

// SMAppService.mainApp, from macOS 13.
class GirisOgesiMac final : public GirisOgesi {
 public:
  bool sistemDestekler() const override {
    if (@available(macOS 13.0, *)) return true;
    return false;
  }
  GirisOgesiDurumu durum() const override {
    if (@available(macOS 13.0, *)) {
      return static_cast<GirisOgesiDurumu>(SMAppService.mainAppService.status);
    }
    return GirisOgesiDurumu::kayitsiz;
  }
  std::optional<std::string> kaydet() override {
    if (@available(macOS 13.0, *)) {
      NSError* hata = nil;
      if (![SMAppService.mainAppService registerAndReturnError:&hata]) return aciklama(hata);
    }
    return std::nullopt;
  }
  std::optional<std::string> kaydiSil() override {
    if (@available(macOS 13.0, *)) {
      NSError* hata = nil;
      if (![SMAppService.mainAppService unregisterAndReturnError:&hata]) return aciklama(hata);
    }
    return std::nullopt;
  }

 private:
  static std::string aciklama(NSError* hata) {
    return hata ? mac::stdMetin(hata.localizedDescription) : std::string();
  }
};

}  // namespace

std::unique_ptr<GirisOgesi> girisOgesiOlustur() { return std::make_unique<GirisOgesiMac>(); }

}  // namespace nevo
