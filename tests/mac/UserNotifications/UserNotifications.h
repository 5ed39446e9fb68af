#pragma once
// Stand-in written from the documentation pages of the User Notifications symbols the macOS
// layer uses; not Apple's header.
#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSInteger, UNAuthorizationStatus) {
  UNAuthorizationStatusNotDetermined = 0,
  UNAuthorizationStatusDenied = 1,
  UNAuthorizationStatusAuthorized = 2,
  UNAuthorizationStatusProvisional API_AVAILABLE(macos(10.14)) = 3,
  UNAuthorizationStatusEphemeral API_AVAILABLE(ios(14.0)) API_UNAVAILABLE(macos) = 4,
} API_AVAILABLE(macos(10.14));

typedef NS_OPTIONS(NSUInteger, UNAuthorizationOptions) {
  UNAuthorizationOptionBadge = (1 << 0),
  UNAuthorizationOptionSound = (1 << 1),
  UNAuthorizationOptionAlert = (1 << 2),
};

typedef NS_OPTIONS(NSUInteger, UNNotificationPresentationOptions) {
  UNNotificationPresentationOptionBadge = (1 << 0),
  UNNotificationPresentationOptionSound = (1 << 1),
  UNNotificationPresentationOptionList API_AVAILABLE(macos(11.0)) = (1 << 3),
  UNNotificationPresentationOptionBanner API_AVAILABLE(macos(11.0)) = (1 << 4),
};

API_AVAILABLE(macos(10.14))
@interface UNNotificationSettings : NSObject
@property(readonly) UNAuthorizationStatus authorizationStatus;
@end

API_AVAILABLE(macos(10.14))
@interface UNNotificationSound : NSObject
@property(class, readonly, copy) UNNotificationSound* defaultSound;
@end

API_AVAILABLE(macos(10.14))
@interface UNNotificationContent : NSObject
@property(readonly, copy) NSString* title;
@property(readonly, copy) NSString* body;
@property(nullable, readonly, copy) UNNotificationSound* sound;
@property(readonly, copy) NSString* categoryIdentifier;
@end

typedef NS_OPTIONS(NSUInteger, UNNotificationActionOptions) {
  UNNotificationActionOptionAuthenticationRequired = (1 << 0),
  UNNotificationActionOptionDestructive = (1 << 1),
  UNNotificationActionOptionForeground = (1 << 2),
};

API_AVAILABLE(macos(10.14))
@interface UNNotificationAction : NSObject
+ (instancetype)actionWithIdentifier:(NSString*)identifier
                               title:(NSString*)title
                             options:(UNNotificationActionOptions)options;
@end

typedef NS_OPTIONS(NSUInteger, UNNotificationCategoryOptions) {
  UNNotificationCategoryOptionCustomDismissAction = (1 << 0),
};

API_AVAILABLE(macos(10.14))
@interface UNNotificationCategory : NSObject
+ (instancetype)categoryWithIdentifier:(NSString*)identifier
                               actions:(NSArray<UNNotificationAction*>*)actions
                     intentIdentifiers:(NSArray<NSString*>*)intentIdentifiers
                               options:(UNNotificationCategoryOptions)options;
@property(readonly, copy) NSString* identifier;
@end

API_AVAILABLE(macos(10.14))
@interface UNMutableNotificationContent : UNNotificationContent
@property(copy) NSString* title;
@property(copy) NSString* body;
@property(copy) NSString* categoryIdentifier;
@property(nullable, copy) UNNotificationSound* sound;
@end

API_AVAILABLE(macos(10.14))
@interface UNNotificationTrigger : NSObject
@end

API_AVAILABLE(macos(10.14))
@interface UNNotificationRequest : NSObject
+ (instancetype)requestWithIdentifier:(NSString*)identifier
                              content:(UNNotificationContent*)content
                              trigger:(nullable UNNotificationTrigger*)trigger;
@property(readonly, copy) NSString* identifier;
@end

API_AVAILABLE(macos(10.14))
@interface UNNotification : NSObject
@property(readonly, copy) UNNotificationRequest* request;
@end

API_AVAILABLE(macos(10.14))
@interface UNNotificationResponse : NSObject
@property(readonly, copy) UNNotification* notification;
@property(readonly, copy) NSString* actionIdentifier;
@end

@class UNUserNotificationCenter;

API_AVAILABLE(macos(10.14))
@protocol UNUserNotificationCenterDelegate <NSObject>
@optional
- (void)userNotificationCenter:(UNUserNotificationCenter*)center
       willPresentNotification:(UNNotification*)notification
         withCompletionHandler:
             (void (^)(UNNotificationPresentationOptions options))completionHandler;
- (void)userNotificationCenter:(UNUserNotificationCenter*)center
    didReceiveNotificationResponse:(UNNotificationResponse*)response
             withCompletionHandler:(void (^)(void))completionHandler;
@end

API_AVAILABLE(macos(10.14))
@interface UNUserNotificationCenter : NSObject
+ (UNUserNotificationCenter*)currentNotificationCenter;
@property(nullable, weak) id<UNUserNotificationCenterDelegate> delegate;
- (void)getNotificationSettingsWithCompletionHandler:
    (void (^)(UNNotificationSettings* settings))completionHandler;
- (void)requestAuthorizationWithOptions:(UNAuthorizationOptions)options
                      completionHandler:
                          (void (^)(BOOL granted, NSError* _Nullable error))completionHandler;
- (void)addNotificationRequest:(UNNotificationRequest*)request
         withCompletionHandler:(nullable void (^)(NSError* _Nullable error))completionHandler;
- (void)removeDeliveredNotificationsWithIdentifiers:(NSArray<NSString*>*)identifiers;
- (void)setNotificationCategories:(NSSet<UNNotificationCategory*>*)categories;
@end

NS_ASSUME_NONNULL_END
