#import <Foundation/Foundation.h>
#import <IOKit/pwr_mgt/IOPMLib.h>

#include "desktop/uyku_engeli.hpp"

namespace nevo {
namespace {

// An IOKit power assertion "PreventUserIdleSystemSleep".
class GucKilidiMac final : public GucKilidi {
 public:
  std::uint32_t al(const std::string& neden) override {
    IOPMAssertionID kimlik = kIOPMNullAssertionID;
    const IOReturn durum =
        IOPMAssertionCreateWithName((__bridge CFStringRef) @(UykuEngeli::TUR), UykuEngeli::SEVIYE,
                                    (__bridge CFStringRef) @(neden.c_str()), &kimlik);
    return durum == kIOReturnSuccess ? kimlik : 0;
  }
  void birak(std::uint32_t kimlik) override { IOPMAssertionRelease(kimlik); }
};

}  // namespace

std::unique_ptr<GucKilidi> gucKilidiOlustur() { return std::make_unique<GucKilidiMac>(); }

}  // namespace nevo
