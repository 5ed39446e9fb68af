// beklenen: no visible @interface for 'NSWindow' declares the selector 'centre'
#import <Cocoa/Cocoa.h>

void ortala(NSWindow* pencere) { [pencere centre]; }
