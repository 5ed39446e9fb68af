#pragma once
// Stand-in written from the documentation pages of the Carbon Event Manager symbols the
// macOS layer uses (hot-key registration); not Apple's header.
#include <stdint.h>

typedef int32_t OSStatus;
typedef uint32_t UInt32;
typedef uint32_t FourCharCode;
typedef FourCharCode OSType;
typedef UInt32 OptionBits;
typedef unsigned long ItemCount;

typedef struct OpaqueEventTargetRef* EventTargetRef;
typedef struct OpaqueEventHandlerRef* EventHandlerRef;
typedef struct OpaqueEventHandlerCallRef* EventHandlerCallRef;
typedef struct OpaqueEventRef* EventRef;
typedef struct OpaqueEventHotKeyRef* EventHotKeyRef;

enum { noErr = 0 };
enum { kEventClassKeyboard = 0x6B657962 };  // 'keyb'
enum { kEventHotKeyPressed = 5, kEventHotKeyReleased = 6 };

struct EventTypeSpec {
  OSType eventClass;
  UInt32 eventKind;
};
typedef struct EventTypeSpec EventTypeSpec;

struct EventHotKeyID {
  OSType signature;
  UInt32 id;
};
typedef struct EventHotKeyID EventHotKeyID;

typedef OSStatus (*EventHandlerProcPtr)(EventHandlerCallRef inHandlerCallRef, EventRef inEvent,
                                        void* inUserData);
typedef EventHandlerProcPtr EventHandlerUPP;

#ifdef __cplusplus
extern "C" {
#endif

EventTargetRef GetApplicationEventTarget(void);
OSStatus InstallEventHandler(EventTargetRef inTarget, EventHandlerUPP inHandler,
                             ItemCount inNumTypes, const EventTypeSpec* inList, void* inUserData,
                             EventHandlerRef* outRef);
OSStatus RemoveEventHandler(EventHandlerRef inHandlerRef);
OSStatus RegisterEventHotKey(UInt32 inHotKeyCode, UInt32 inHotKeyModifiers,
                             EventHotKeyID inHotKeyID, EventTargetRef inTarget,
                             OptionBits inOptions, EventHotKeyRef* outRef);
OSStatus UnregisterEventHotKey(EventHotKeyRef inHotKey);

#ifdef __cplusplus
}
#endif
