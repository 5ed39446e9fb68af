#import "app/pencere/pencere_mac.hpp"

@implementation NevoSerit {
  nevo::PencereOlaylari* _olaylar;
}

- (instancetype)initWithOlaylar:(nevo::PencereOlaylari*)olaylar {
  if ((self = [super initWithFrame:NSZeroRect])) _olaylar = olaylar;
  return self;
}

- (BOOL)mouseDownCanMoveWindow {
  return NO;
}

- (NSView*)hitTest:(NSPoint)nokta {
  return NSPointInRect([self convertPoint:nokta fromView:self.superview], self.bounds) ? self : nil;
}

- (void)mouseDown:(NSEvent*)olay {
  if (self.window == nil) return;
  if (_olaylar->seritBasildi(static_cast<int>(olay.clickCount))) {
    [self.window performWindowDragWithEvent:olay];
  }
}

@end
