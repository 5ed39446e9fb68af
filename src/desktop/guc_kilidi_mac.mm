#import <Foundation/Foundation.h>
#import <IOKit/pwr_mgt/IOPMLib.h>

#include "desktop/uyku_engeli.hpp"
#include "temel/metin_mac.hpp"

namespace nevo {
namespace {

// An IOKit power assertion "PreventUserIdleSystemSleep".
class GucKilidiMac final : public GucKilidi {
 public:
  std::uint32_t al(const std::string& neden) override {
    IOPMAssertionID kimlik = kIOPMNullAssertionID;
    const IOReturn durum = IOPMAssertionCreateWithName(
        (__bridge CFStringRef)mac::nsMetin(UykuEngeli::TUR), UykuEngeli::SEVIYE,
        (__bridge CFStringRef)mac::nsMetin(neden), &kimlik);
    return durum == kIOReturnSuccess ? kimlik : 0;
  }
  void birak(std::uint32_t kimlik) override { IOPMAssertionRelease(kimlik); }
};

}  // namespace

std::unique_ptr<GucKilidi> gucKilidiOlustur() { return std::make_unique<GucKilidiMac>(); }

}  // namespace nevo
