#pragma once
#import <Foundation/Foundation.h>

#include <optional>
#include <string>

namespace nevo {

// The one pair of conversions between UTF-8 text and NSString, carrying the length (a NUL
// inside the text is kept).
inline NSString* nsMetin(const std::string& metin) {
  return [[NSString alloc] initWithBytes:metin.data()
                                  length:metin.size()
                                encoding:NSUTF8StringEncoding]
             ?: @"";
}

inline std::string metin(NSString* s) {
  if (s == nil) return {};
  NSData* veri = [s dataUsingEncoding:NSUTF8StringEncoding];
  return std::string(static_cast<const char*>(veri.bytes), veri.length);
}

}  // namespace nevo
