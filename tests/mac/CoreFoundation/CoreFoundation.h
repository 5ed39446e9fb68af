#pragma once
// Stand-in written from the documentation pages of the Core Foundation symbols the macOS layer
// uses; not Apple's header.
#include <os/availability.h>
#include <stdint.h>

typedef const void* CFTypeRef;
typedef unsigned long CFTypeID;
typedef const struct __CFString* CFStringRef;
typedef const struct __CFBoolean* CFBooleanRef;
typedef long CFIndex;
typedef unsigned char UInt8;
typedef unsigned char Boolean;
typedef uint32_t CFStringEncoding;
typedef const struct __CFAllocator* CFAllocatorRef;

enum : CFStringEncoding { kCFStringEncodingUTF8 = 0x08000100 };

extern "C" {
extern const CFAllocatorRef _Nullable kCFAllocatorDefault;
CFTypeID CFGetTypeID(CFTypeRef _Nonnull cf);
CFTypeID CFBooleanGetTypeID(void);
CFStringRef _Nullable CFStringCreateWithBytes(CFAllocatorRef _Nullable alloc,
                                              const UInt8* _Nullable bytes, CFIndex numBytes,
                                              CFStringEncoding encoding,
                                              Boolean isExternalRepresentation);
void CFRelease(CFTypeRef _Nonnull cf);
}
