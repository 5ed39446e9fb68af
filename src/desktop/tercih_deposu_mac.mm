#import <Foundation/Foundation.h>

#include "desktop/tercih.hpp"
#include "temel/metin_mac.hpp"

namespace nevo {
namespace {

// NSUserDefaults.standardUserDefaults, read afresh each time. The user defaults already
// answer from memory, so a copy of the store reads them the same way and only drops writes.
class TercihDeposuMac final : public TercihDeposu {
 public:
  explicit TercihDeposuMac(bool salt = false) : salt_(salt) {}
  std::optional<std::int64_t> tamsayi(const std::string& anahtar) const override {
    id deger = [varsayilan() objectForKey:mac::nsMetin(anahtar)];
    if (![deger isKindOfClass:NSNumber.class] || mantiksalMi(deger)) return std::nullopt;
    const char tur = *[deger objCType];
    if (tur == 'f' || tur == 'd') return std::nullopt;
    return [deger longLongValue];
  }
  std::int64_t duzTamsayi(const std::string& anahtar) const override {
    return [varsayilan() integerForKey:mac::nsMetin(anahtar)];
  }
  std::optional<std::string> metin(const std::string& anahtar) const override {
    NSString* deger = [varsayilan() stringForKey:mac::nsMetin(anahtar)];
    if (deger == nil) return std::nullopt;
    return mac::stdMetin(deger);
  }
  std::optional<bool> mantiksal(const std::string& anahtar) const override {
    if ([varsayilan() objectForKey:mac::nsMetin(anahtar)] == nil) return std::nullopt;
    return [varsayilan() boolForKey:mac::nsMetin(anahtar)] == YES;
  }
  void tamsayiYaz(const std::string& anahtar, std::int64_t deger) override {
    if (salt_) return;
    [varsayilan() setInteger:static_cast<NSInteger>(deger) forKey:mac::nsMetin(anahtar)];
  }
  void metinYaz(const std::string& anahtar, const std::string& deger) override {
    if (salt_) return;
    [varsayilan() setObject:mac::nsMetin(deger) forKey:mac::nsMetin(anahtar)];
  }
  void mantiksalYaz(const std::string& anahtar, bool deger) override {
    if (salt_) return;
    [varsayilan() setBool:deger forKey:mac::nsMetin(anahtar)];
  }

  std::unique_ptr<TercihDeposu> anlik() const override {
    return std::make_unique<TercihDeposuMac>(true);
  }

 private:
  static NSUserDefaults* varsayilan() { return NSUserDefaults.standardUserDefaults; }
  static bool mantiksalMi(id deger) {
    return CFGetTypeID((__bridge CFTypeRef)deger) == CFBooleanGetTypeID();
  }

  bool salt_;
};

}  // namespace

std::unique_ptr<TercihDeposu> tercihDeposuOlustur() { return std::make_unique<TercihDeposuMac>(); }

}  // namespace nevo
