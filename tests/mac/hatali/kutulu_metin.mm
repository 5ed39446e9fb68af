// beklenen: implicit conversion from nullable pointer 'NSString * _Nullable' to non-nullable
#import <Foundation/Foundation.h>

#include <string>

NSURL* _Nullable adres(const std::string& metin) { return [NSURL URLWithString:@(metin.c_str())]; }
