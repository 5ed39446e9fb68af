#pragma once
// Stand-in written from the documentation pages of the Apple Event symbols the macOS layer
// uses (Core Services' AE framework); not Apple's header. The event class, event ID and
// keyword are four-character codes stored as 32-bit integers.
#include <stdint.h>

typedef uint32_t FourCharCode;
typedef FourCharCode AEEventClass;
typedef FourCharCode AEEventID;
typedef FourCharCode AEKeyword;

enum : AEEventClass { kInternetEventClass = 'GURL' };
enum : AEEventID { kAEGetURL = 'GURL' };
enum : AEKeyword { keyDirectObject = '----' };
