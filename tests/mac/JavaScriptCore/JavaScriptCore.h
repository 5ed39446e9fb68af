#pragma once
// Stand-in written from the documentation pages of the JavaScriptCore C functions the core
// tests' script engine uses; not Apple's header.
#include <CoreFoundation/CoreFoundation.h>
#include <stddef.h>

typedef const struct OpaqueJSContext* JSContextRef;
typedef struct OpaqueJSContext* JSGlobalContextRef;
typedef struct OpaqueJSString* JSStringRef;
typedef struct OpaqueJSClass* JSClassRef;
typedef const struct OpaqueJSValue* JSValueRef;
typedef struct OpaqueJSValue* JSObjectRef;

extern "C" {
JSGlobalContextRef JSGlobalContextCreate(JSClassRef globalObjectClass);
void JSGlobalContextRelease(JSGlobalContextRef ctx);
JSValueRef JSEvaluateScript(JSContextRef ctx, JSStringRef script, JSObjectRef thisObject,
                            JSStringRef sourceURL, int startingLineNumber, JSValueRef* exception);
JSStringRef JSStringCreateWithCFString(CFStringRef string);
void JSStringRelease(JSStringRef string);
size_t JSStringGetMaximumUTF8CStringSize(JSStringRef string);
size_t JSStringGetUTF8CString(JSStringRef string, char* buffer, size_t bufferSize);
bool JSValueIsUndefined(JSContextRef ctx, JSValueRef value);
JSStringRef JSValueToStringCopy(JSContextRef ctx, JSValueRef value, JSValueRef* exception);
JSStringRef JSValueCreateJSONString(JSContextRef ctx, JSValueRef value, unsigned indent,
                                    JSValueRef* exception);
}
