#pragma once
// The core's rectangles as the macOS layer's.
#import <Foundation/Foundation.h>

#include "temel/geometri.hpp"

namespace nevo::mac {

inline NSRect dikdortgen(Cerceve c) { return NSMakeRect(c.x, c.y, c.en, c.boy); }

}  // namespace nevo::mac
