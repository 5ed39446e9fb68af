#import <Foundation/Foundation.h>

#include "desktop/kisayol/kisayol_denetimi.hpp"
#include "temel/json_mac.hpp"

namespace nevo {

// The system's symbolic hot keys, read value by value: one entry JSON cannot hold is null
// and leaves the others; nothing when the system has none.
SistemKisayollari sistemKisayollariOku() {
  @autoreleasepool {
    NSUserDefaults* alan = [[NSUserDefaults alloc] initWithSuiteName:@"com.apple.symbolichotkeys"];
    NSDictionary* kisayollar = [alan dictionaryForKey:@"AppleSymbolicHotKeys"];
    if (kisayollar == nil) return std::nullopt;
    return mac::jsonDegeri(kisayollar);
  }
}

}  // namespace nevo
