// The used part of Apple's UserNotifications, declared from its public documentation for the syntax
// check.
#import <Foundation/Foundation.h>

typedef NS_ENUM(NSUInteger, UNAuthorizationOptions) { UNAuthorizationOptionAlert = 1 << 2 };

@interface UNNotificationContent : NSObject
@end
@interface UNMutableNotificationContent : UNNotificationContent
- (void)setTitle:(NSString *)title;
- (void)setBody:(NSString *)body;
@end
@interface UNNotificationTrigger : NSObject
@end
@interface UNNotificationRequest : NSObject
+ (instancetype)requestWithIdentifier:(NSString *)identifier
                              content:(UNNotificationContent *)content
                              trigger:(UNNotificationTrigger *)trigger;
@end
@interface UNNotification : NSObject
@end

typedef NS_ENUM(NSUInteger, UNNotificationPresentationOptions) {
    UNNotificationPresentationOptionBanner = 1 << 4
};

@class UNUserNotificationCenter;
@protocol UNUserNotificationCenterDelegate <NSObject>
@optional
- (void)userNotificationCenter:(UNUserNotificationCenter *)center
       willPresentNotification:(UNNotification *)notification
         withCompletionHandler:(void (^)(UNNotificationPresentationOptions options))handler;
@end

@interface UNUserNotificationCenter : NSObject
+ (UNUserNotificationCenter *)currentNotificationCenter;
- (void)setDelegate:(id<UNUserNotificationCenterDelegate>)delegate;
- (void)requestAuthorizationWithOptions:(UNAuthorizationOptions)options
                      completionHandler:(void (^)(BOOL granted, NSError *error))handler;
- (void)addNotificationRequest:(UNNotificationRequest *)request
         withCompletionHandler:(void (^)(NSError *error))handler;
@end
