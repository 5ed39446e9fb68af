#pragma once
// Stand-in written from the documentation pages of the Core Foundation symbols the macOS layer
// uses; not Apple's header.
#include <os/availability.h>

typedef const void* CFTypeRef;
typedef unsigned long CFTypeID;
typedef const struct __CFString* CFStringRef;
typedef const struct __CFBoolean* CFBooleanRef;
typedef long CFIndex;

extern "C" {
CFTypeID CFGetTypeID(CFTypeRef _Nonnull cf);
CFTypeID CFBooleanGetTypeID(void);
}
