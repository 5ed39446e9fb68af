#pragma once
// Stand-in written from the documentation pages of the IOKit power management symbols the
// macOS layer uses; not Apple's header.
#include <CoreFoundation/CoreFoundation.h>
#include <stdint.h>

typedef int IOReturn;
typedef uint32_t IOPMAssertionID;
typedef uint32_t IOPMAssertionLevel;

#define kIOReturnSuccess 0
#define kIOPMNullAssertionID 0
enum : IOPMAssertionLevel { kIOPMAssertionLevelOff = 0, kIOPMAssertionLevelOn = 255 };

extern "C" {
IOReturn IOPMAssertionCreateWithName(CFStringRef _Nonnull AssertionType,
                                     IOPMAssertionLevel AssertionLevel,
                                     CFStringRef _Nonnull AssertionName,
                                     IOPMAssertionID* _Nonnull AssertionID);
IOReturn IOPMAssertionRelease(IOPMAssertionID AssertionID);
}
