#pragma once
// Stand-in written from the documentation pages of the Core Graphics symbols the macOS layer
// uses; not Apple's header.
#include <CoreFoundation/CoreFoundation.h>

typedef double CGFloat;
struct CGPoint {
  CGFloat x;
  CGFloat y;
};
struct CGSize {
  CGFloat width;
  CGFloat height;
};
struct CGRect {
  CGPoint origin;
  CGSize size;
};
typedef struct CGColor* CGColorRef;
