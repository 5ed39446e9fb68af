#pragma once
// Stand-in written from Apple's documentation of the target conditionals: the platform a
// header is compiled for, here a Mac. ICU's headers read it.
#define TARGET_OS_MAC 1
#define TARGET_OS_OSX 1
#define TARGET_OS_IPHONE 0
#define TARGET_OS_IOS 0
#define TARGET_OS_SIMULATOR 0
