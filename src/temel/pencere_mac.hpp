#pragma once
// For the macOS layer's .mm files only.
#import <Cocoa/Cocoa.h>

#include "temel/pencere.hpp"

namespace nevo {

// A window port that has an AppKit window behind it, on which sheets are shown.
class MacPenceresi {
 public:
  virtual ~MacPenceresi() = default;
  virtual NSWindow* _Nullable nsPenceresi() const = 0;
};

// The AppKit window behind `pencere`; nil for a port that has none.
inline NSWindow* _Nullable nsPenceresi(Pencere& pencere) {
  const auto* mac = dynamic_cast<const MacPenceresi*>(&pencere);
  return mac != nullptr ? mac->nsPenceresi() : nil;
}

}  // namespace nevo
