#import <Foundation/Foundation.h>

#include "desktop/kisayol/kisayol_denetimi.hpp"

namespace nevo {

// The system's symbolic hot keys, as JSON; nothing when they cannot be had.
SistemKisayollari sistemKisayollariOku() {
  @autoreleasepool {
    NSUserDefaults* alan = [[NSUserDefaults alloc] initWithSuiteName:@"com.apple.symbolichotkeys"];
    NSDictionary* kisayollar = [alan dictionaryForKey:@"AppleSymbolicHotKeys"];
    if (kisayollar == nil || ![NSJSONSerialization isValidJSONObject:kisayollar]) {
      return std::nullopt;
    }
    NSData* veri = [NSJSONSerialization dataWithJSONObject:kisayollar options:0 error:nil];
    if (veri == nil) return std::nullopt;
    const auto* bas = static_cast<const char*>(veri.bytes);
    auto sonuc = nlohmann::json::parse(bas, bas + veri.length, nullptr, false);
    if (sonuc.is_discarded()) return std::nullopt;
    return sonuc;
  }
}

}  // namespace nevo
