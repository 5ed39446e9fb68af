#pragma once
// Stand-in written from the documentation pages of the Foundation symbols the macOS layer uses;
// not Apple's header. Each declaration keeps the page's selector, argument types, nullability
// and availability.
#include <CoreGraphics/CoreGraphics.h>
#include <CoreServices/CoreServices.h>
#include <os/availability.h>

#include <stdint.h>

typedef long NSInteger;
typedef unsigned long NSUInteger;
typedef double NSTimeInterval;
// BOOL is `bool` on Apple silicon and `signed char` on Intel; the compiler says which.
#if __OBJC_BOOL_IS_BOOL
typedef bool BOOL;
#else
typedef signed char BOOL;
#endif
#define YES __objc_yes
#define NO __objc_no
#define nil nullptr
typedef struct objc_class* Class;
typedef struct objc_selector* SEL;
typedef CGPoint NSPoint;
typedef CGSize NSSize;
typedef CGRect NSRect;

NS_ASSUME_NONNULL_BEGIN

@class NSString, NSData;

@protocol NSCopying
@end

@protocol NSObject
- (BOOL)isKindOfClass:(Class)aClass;
- (BOOL)isEqual:(id)object;
@end

__attribute__((objc_root_class))
@interface NSObject<NSObject>
+ (instancetype)alloc;
+ (instancetype)new;
- (instancetype)init;
+ (Class)class;
@end

typedef NSUInteger NSStringEncoding;
enum : NSStringEncoding {
  NSUTF8StringEncoding = 4,
};

@interface NSString : NSObject <NSCopying>
@property(readonly) NSUInteger length;
@property(nullable, readonly) const char* UTF8String NS_RETURNS_INNER_POINTER;
@property(readonly) const char* fileSystemRepresentation NS_RETURNS_INNER_POINTER;
+ (nullable instancetype)stringWithUTF8String:(const char*)nullTerminatedCString;
- (nullable instancetype)initWithBytes:(const void*)bytes
                                length:(NSUInteger)len
                              encoding:(NSStringEncoding)encoding;
- (BOOL)isEqualToString:(NSString*)aString;
- (nullable NSData*)dataUsingEncoding:(NSStringEncoding)encoding allowLossyConversion:(BOOL)lossy;
@end

@interface NSNumber : NSObject
@property(readonly) const char* objCType NS_RETURNS_INNER_POINTER;
@property(readonly) long long longLongValue;
@property(readonly) unsigned long long unsignedLongLongValue;
@property(readonly) double doubleValue;
@property(readonly) BOOL boolValue;
+ (NSNumber*)numberWithBool:(BOOL)value;
+ (NSNumber*)numberWithInt:(int)value;
+ (NSNumber*)numberWithDouble:(double)value;
@end

@interface NSData : NSObject
@property(readonly) const void* bytes NS_RETURNS_INNER_POINTER;
@property(readonly) NSUInteger length;
@end

@interface NSArray<__covariant ObjectType> : NSObject
+ (instancetype)arrayWithObjects:(const ObjectType _Nonnull[_Nonnull])objects count:(NSUInteger)cnt;
@property(readonly) NSUInteger count;
- (ObjectType)objectAtIndexedSubscript:(NSUInteger)idx;
@property(nullable, readonly) ObjectType firstObject;
- (NSUInteger)indexOfObject:(ObjectType)anObject;
- (NSArray<ObjectType>*)arrayByAddingObject:(ObjectType)anObject;
@end

@interface NSSet<__covariant ObjectType> : NSObject
+ (instancetype)setWithArray:(NSArray<ObjectType>*)array;
@end

@interface NSDictionary<__covariant KeyType, __covariant ObjectType> : NSObject
- (nullable ObjectType)objectForKeyedSubscript:(KeyType)key;
- (nullable ObjectType)objectForKey:(KeyType)aKey;
@property(readonly, copy) NSArray<KeyType>* allKeys;
+ (instancetype)dictionaryWithObjects:(const ObjectType _Nonnull[_Nullable])objects
                              forKeys:(const KeyType<NSCopying> _Nonnull[_Nullable])keys
                                count:(NSUInteger)cnt;
@end

typedef NSString* NSErrorUserInfoKey;
typedef NSString* NSErrorDomain;
@interface NSError : NSObject
@property(readonly, copy) NSErrorDomain domain;
@property(readonly) NSInteger code;
@property(readonly, copy) NSDictionary<NSErrorUserInfoKey, id>* userInfo;
@property(readonly, copy) NSString* localizedDescription;
@end
extern NSErrorUserInfoKey const NSURLErrorFailingURLStringErrorKey;

@interface NSException : NSObject
@end

typedef NSString* NSNotificationName;
@interface NSNotification : NSObject
@property(readonly, copy) NSNotificationName name;
@end

@interface NSURL : NSObject
+ (nullable instancetype)URLWithString:(NSString*)URLString;
+ (instancetype)fileURLWithPath:(NSString*)path;
@property(nullable, readonly, copy) NSString* absoluteString;
@property(nullable, readonly, copy) NSString* path;
@property(readonly, getter=isFileURL) BOOL fileURL;
@end

typedef NS_ENUM(NSUInteger, NSURLRequestCachePolicy) {
  NSURLRequestUseProtocolCachePolicy = 0,
};
@interface NSURLResponse : NSObject
@property(nullable, readonly, copy) NSString* suggestedFilename;
@end

@interface NSHTTPURLResponse : NSURLResponse
- (nullable NSString*)valueForHTTPHeaderField:(NSString*)field API_AVAILABLE(macos(10.15));
@end

@interface NSURLRequest : NSObject
+ (instancetype)requestWithURL:(NSURL*)URL
                   cachePolicy:(NSURLRequestCachePolicy)cachePolicy
               timeoutInterval:(NSTimeInterval)timeoutInterval;
@property(nullable, readonly, copy) NSURL* URL;
@end

typedef NS_OPTIONS(NSUInteger, NSJSONWritingOptions) {
  NSJSONWritingPrettyPrinted = (1UL << 0),
  NSJSONWritingSortedKeys API_AVAILABLE(macos(10.13)) = (1UL << 1),
  NSJSONWritingFragmentsAllowed = (1UL << 2),
};
@interface NSJSONSerialization : NSObject
+ (nullable NSData*)dataWithJSONObject:(id)obj
                               options:(NSJSONWritingOptions)opt
                                 error:(NSError**)error;
+ (BOOL)isValidJSONObject:(id)obj;
@end

@interface NSProcessInfo : NSObject
@property(class, readonly, strong) NSProcessInfo* processInfo;
@property(readonly, copy) NSDictionary<NSString*, NSString*>* environment;
@end

@interface NSBundle : NSObject
@property(class, readonly, strong) NSBundle* mainBundle;
@property(nullable, readonly, copy) NSString* bundleIdentifier;
@property(nullable, readonly, copy) NSString* resourcePath;
- (nullable NSString*)pathForResource:(nullable NSString*)name ofType:(nullable NSString*)ext;
@end

@interface NSUserDefaults : NSObject
@property(class, readonly, strong) NSUserDefaults* standardUserDefaults;
- (nullable instancetype)initWithSuiteName:(nullable NSString*)suitename API_AVAILABLE(macos(10.9));
- (nullable NSDictionary<NSString*, id>*)dictionaryForKey:(NSString*)defaultName;
- (nullable id)objectForKey:(NSString*)defaultName;
- (nullable NSString*)stringForKey:(NSString*)defaultName;
- (NSInteger)integerForKey:(NSString*)defaultName;
- (BOOL)boolForKey:(NSString*)defaultName;
- (void)setObject:(nullable id)value forKey:(NSString*)defaultName;
- (void)setInteger:(NSInteger)value forKey:(NSString*)defaultName;
- (void)setBool:(BOOL)value forKey:(NSString*)defaultName;
- (void)registerDefaults:(NSDictionary<NSString*, id>*)registrationDictionary;
@end

// Key-value coding and observing.
typedef NSString* NSKeyValueChangeKey;
typedef NS_OPTIONS(NSUInteger, NSKeyValueObservingOptions) {
  NSKeyValueObservingOptionNew = 0x01,
  NSKeyValueObservingOptionOld = 0x02,
};
@interface NSObject (NSKeyValueCoding)
- (void)setValue:(nullable id)value forKey:(NSString*)key;
@end
@interface NSObject (NSKeyValueObserving)
- (void)observeValueForKeyPath:(nullable NSString*)keyPath
                      ofObject:(nullable id)object
                        change:(nullable NSDictionary<NSKeyValueChangeKey, id>*)change
                       context:(nullable void*)context;
@end
@interface NSObject (NSKeyValueObserverRegistration)
- (void)addObserver:(NSObject*)observer
         forKeyPath:(NSString*)keyPath
            options:(NSKeyValueObservingOptions)options
            context:(nullable void*)context;
- (void)removeObserver:(NSObject*)observer forKeyPath:(NSString*)keyPath;
@end

API_AVAILABLE(macos(10.9))
@interface NSProgress : NSObject
@property int64_t totalUnitCount;
@property int64_t completedUnitCount;
@end

@protocol NSProgressReporting <NSObject>
@property(readonly) NSProgress* progress;
@end

@interface NSAppleEventDescriptor : NSObject
- (nullable NSAppleEventDescriptor*)paramDescriptorForKeyword:(AEKeyword)keyword;
@property(nullable, readonly, copy) NSString* stringValue;
@end

@interface NSAppleEventManager : NSObject
+ (NSAppleEventManager*)sharedAppleEventManager;
- (void)setEventHandler:(id)handler
            andSelector:(SEL)handleEventSelector
          forEventClass:(AEEventClass)eventClass
             andEventID:(AEEventID)eventID;
@end

extern "C" {
SEL NSSelectorFromString(NSString* aSelectorName);
NSString* NSHomeDirectory(void);
}

NS_ASSUME_NONNULL_END

inline NSRect NSMakeRect(CGFloat x, CGFloat y, CGFloat w, CGFloat h) {
  return NSRect{{x, y}, {w, h}};
}
inline NSSize NSMakeSize(CGFloat w, CGFloat h) { return NSSize{w, h}; }
extern const NSRect NSZeroRect;
extern "C" BOOL NSPointInRect(NSPoint aPoint, NSRect aRect);
