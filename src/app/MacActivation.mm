#include "app/Activation.h"

#import <AppKit/AppKit.h>
#import <UserNotifications/UserNotifications.h>
#import <objc/runtime.h>

#include <QCoreApplication>

#include <utility>

// Compiled without automatic reference counting. The objects made here live as long as the program.

@interface VeldmarkEvents : NSObject {
@public
    std::function<void(bool)> launched;
    std::function<void()> reopened;
}
- (void)didLaunch:(NSNotification *)notification;
- (void)reopen:(NSAppleEventDescriptor *)event withReply:(NSAppleEventDescriptor *)reply;
@end

@implementation VeldmarkEvents

// The event that started the program is the current one only during this call.
- (void)didLaunch:(NSNotification *)notification
{
    (void)notification;
    NSAppleEventManager *const manager = [NSAppleEventManager sharedAppleEventManager];
    NSAppleEventDescriptor *const event = [manager currentAppleEvent];
    const bool atLogin = [event eventID] == kAEOpenApplication &&
        [[event paramDescriptorForKeyword:keyAEPropData] enumCodeValue] == keyAELaunchedAsLogInItem;
    // AppKit has installed its own handler by now, so this one replaces it.
    [manager setEventHandler:self
                 andSelector:@selector(reopen:withReply:)
               forEventClass:kCoreEventClass
                  andEventID:kAEReopenApplication];
    if (const auto then = std::exchange(launched, nullptr))
        then(atLogin);
}

- (void)reopen:(NSAppleEventDescriptor *)event withReply:(NSAppleEventDescriptor *)reply
{
    (void)event;
    (void)reply;
    if (reopened)
        reopened();
}

@end

@interface VeldmarkNotices : NSObject <UNUserNotificationCenterDelegate>
@end

@implementation VeldmarkNotices

// Without this the system shows no notification while a window of the program is in front.
- (void)userNotificationCenter:(UNUserNotificationCenter *)center
       willPresentNotification:(UNNotification *)notification
         withCompletionHandler:(void (^)(UNNotificationPresentationOptions))handler
{
    (void)center;
    (void)notification;
    handler(UNNotificationPresentationOptionBanner);
}

@end

namespace veldmark {

namespace {

std::function<void()> askedToEnd;
bool isAsked = false; // the system waits for an answer

// Takes the place of the method of Qt's delegate. Its types are `types`.
NSApplicationTerminateReply shouldTerminate(id, SEL, NSApplication *)
{
    // Later, since the answer must not come within this call.
    if (!std::exchange(isAsked, true))
        QMetaObject::invokeMethod(qApp, askedToEnd, Qt::QueuedConnection);
    return NSTerminateLater;
}
constexpr const char *types = "Q@:@";

VeldmarkEvents *events()
{
    static VeldmarkEvents *const own = [[VeldmarkEvents alloc] init];
    return own;
}

} // namespace

// The bundle's Info.plist says the same (LSUIElement). This call serves the program in a build
// tree.
void becomeMenuBarProgram()
{
    @autoreleasepool {
        [[NSApplication sharedApplication]
            setActivationPolicy:NSApplicationActivationPolicyAccessory];
    }
}

void comeToFront()
{
    @autoreleasepool {
        [[NSApplication sharedApplication] activateIgnoringOtherApps:YES];
    }
}

void whenLaunched(std::function<void(bool atLogin)> then)
{
    @autoreleasepool {
        events()->launched = std::move(then);
        [[NSNotificationCenter defaultCenter]
            addObserver:events()
               selector:@selector(didLaunch:)
                   name:NSApplicationDidFinishLaunchingNotification
                 object:nil];
    }
}

void whenReopened(std::function<void()> then)
{
    events()->reopened = std::move(then);
}

// Qt's delegate calls every termination off and lets the program end by itself afterwards, which
// the system takes for a refusal. While the system waits, it runs the event loop in a mode in which
// Qt's timers, sockets and windows work.
void whenAskedToEnd(std::function<void()> then)
{
    askedToEnd = std::move(then);
    @autoreleasepool {
        NSObject *const delegate = (NSObject *)[[NSApplication sharedApplication] delegate];
        if (delegate)
            class_replaceMethod([delegate class], @selector(applicationShouldTerminate:),
                                reinterpret_cast<IMP>(&shouldTerminate), types);
    }
}

bool answerToEnd(bool ends)
{
    if (!std::exchange(isAsked, false))
        return false;
    @autoreleasepool {
        [[NSApplication sharedApplication] replyToApplicationShouldTerminate:ends];
    }
    return true;
}

void keepAwake(bool on)
{
    static id activity = nil;
    @autoreleasepool {
        if (on && !activity) {
            activity = [[[NSProcessInfo processInfo]
                beginActivityWithOptions:NSActivityUserInitiatedAllowingIdleSystemSleep
                                  reason:@"Watches the connection to Tor"] retain];
        } else if (!on && activity) {
            [[NSProcessInfo processInfo] endActivity:activity];
            [activity release];
            activity = nil;
        }
    }
}

std::optional<Text> misplaced()
{
    @autoreleasepool {
        const QString path = QString::fromUtf8([[[NSBundle mainBundle] bundlePath] UTF8String]);
        if (!path.contains(QLatin1String("/AppTranslocation/")))
            return std::nullopt;
        return Text::tr("Move Veldmark to the Applications folder and open it from there first.");
    }
}

// The system asks the user once whether the program may show notifications, and drops them if the
// user refuses.
void showNotice(const QString &title, const QString &text)
{
    @autoreleasepool {
        UNUserNotificationCenter *const center =
            [UNUserNotificationCenter currentNotificationCenter];
        static VeldmarkNotices *const notices = [[VeldmarkNotices alloc] init];
        [center setDelegate:notices];
        UNMutableNotificationContent *const content = [[[UNMutableNotificationContent alloc] init]
            autorelease];
        [content setTitle:[NSString stringWithUTF8String:title.toUtf8().constData()]];
        [content setBody:[NSString stringWithUTF8String:text.toUtf8().constData()]];
        UNNotificationRequest *const request = [UNNotificationRequest
            requestWithIdentifier:[[NSUUID UUID] UUIDString]
                          content:content
                          trigger:nil];
        [center requestAuthorizationWithOptions:UNAuthorizationOptionAlert
                              completionHandler:^(BOOL granted, NSError *) {
                                  if (granted)
                                      [center addNotificationRequest:request
                                               withCompletionHandler:nil];
                              }];
    }
}

} // namespace veldmark
