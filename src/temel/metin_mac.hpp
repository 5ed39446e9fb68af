#pragma once
// The one pair of conversions between std::string and NSString used by the macOS layer.
#import <Foundation/Foundation.h>

#include <string>
#include <string_view>

namespace nevo::mac {

// Never nil: the bytes are read with their length (a NUL does not end the text) and
// bytes that are not UTF-8 become U+FFFD.
NSString* _Nonnull nsMetin(std::string_view metin);

// "" for nil; characters UTF-8 cannot carry (lone surrogates) are replaced, never dropped
// with the rest of the text.
std::string stdMetin(NSString* _Nullable metin);

}  // namespace nevo::mac
