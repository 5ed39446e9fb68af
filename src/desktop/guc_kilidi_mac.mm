#import <Foundation/Foundation.h>
#import <IOKit/pwr_mgt/IOPMLib.h>

#include "desktop/uyku_engeli.hpp"
#include "temel/metin_mac.hpp"

namespace nevo {
namespace {

// An IOKit power assertion "PreventUserIdleSystemSleep".
class GucKilidiMac final : public GucKilidi {
 public:
  void al(const std::string& neden, Cevap cevap) override {
    IOPMAssertionID kimlik = kIOPMNullAssertionID;
    const IOReturn durum = IOPMAssertionCreateWithName(
        (__bridge CFStringRef)mac::nsMetin(UykuEngeli::TUR), UykuEngeli::SEVIYE,
        (__bridge CFStringRef)mac::nsMetin(neden), &kimlik);
    const bool tutuluyor = durum == kIOReturnSuccess && kimlik != kIOPMNullAssertionID;
    cevap(tutuluyor ? kimlik : 0, tutuluyor);
  }
  void birak(std::uint32_t kimlik) override { IOPMAssertionRelease(kimlik); }
};

}  // namespace

std::unique_ptr<GucKilidi> gucKilidiOlustur() { return std::make_unique<GucKilidiMac>(); }

}  // namespace nevo
