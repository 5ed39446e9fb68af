// beklenen: assignment to readonly property
#import <Cocoa/Cocoa.h>

void tasi(NSWindow* pencere) { pencere.frame = NSMakeRect(0, 0, 10, 10); }
