#pragma once
// Foundation's values (a page message's body, a property list) as JSON, value by value.
#import <Foundation/Foundation.h>

#include <nlohmann/json.hpp>

namespace nevo::mac {

// Strings, booleans, numbers, arrays and dictionaries with string keys keep their values;
// whatever JSON cannot hold (a date, data, NaN, ±Infinity, nil, NSNull) is null, and a
// dictionary entry whose key is not a string is left out. Floating-point numbers are
// written as a page's script writes them (betikSayisi).
nlohmann::json jsonDegeri(id _Nullable deger);

}  // namespace nevo::mac
