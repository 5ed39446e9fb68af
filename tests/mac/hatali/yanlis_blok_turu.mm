// beklenen: cannot initialize a parameter of type 'void (^ _Nonnull)(NSModalResponse)'
#import <Cocoa/Cocoa.h>

void kaydet(NSSavePanel* pano) {
  [pano beginWithCompletionHandler:^(BOOL){
  }];
}
