#import "temel/metin_mac.hpp"

#include "temel/utf8.hpp"

namespace nevo::mac {

NSString* _Nonnull nsMetin(std::string_view metin) {
  const std::string gecerli = gecerliUtf8(metin);
  NSString* sonuc = [[NSString alloc] initWithBytes:gecerli.data()
                                             length:gecerli.size()
                                           encoding:NSUTF8StringEncoding];
  return sonuc != nil ? sonuc : @"";
}

std::string stdMetin(NSString* _Nullable metin) {
  if (metin == nil) return std::string();
  NSData* veri = [metin dataUsingEncoding:NSUTF8StringEncoding allowLossyConversion:YES];
  if (veri == nil) return std::string();
  return std::string(static_cast<const char*>(veri.bytes), veri.length);
}

}  // namespace nevo::mac
