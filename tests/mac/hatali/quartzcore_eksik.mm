// beklenen: receiver 'CAMediaTimingFunction' for class message is a forward declaration
#import <Cocoa/Cocoa.h>

void egri(NSAnimationContext* baglam) {
  baglam.timingFunction = [CAMediaTimingFunction functionWithControlPoints:0:0:1:1];
}
