// beklenen: requires a bridged cast
#import <Foundation/Foundation.h>

CFTypeRef cf(NSString* metin) { return (CFTypeRef)metin; }
