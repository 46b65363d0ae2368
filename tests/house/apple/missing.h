// Declarations that the free headers of AppKit lack, from Apple's public documentation, for the
// syntax check.
#import <AppKit/AppKit.h>
#import <AppKit/NSRunningApplication.h>
#import <Foundation/NSAppleEventDescriptor.h>
#import <Foundation/NSAppleEventManager.h>

@interface NSApplication (Missing)
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)policy;
@end

typedef unsigned int AEEventClass, AEEventID, AEKeyword;

@interface NSAppleEventDescriptor (Missing)
- (AEEventID)eventID;
- (unsigned int)enumCodeValue;
- (NSAppleEventDescriptor *)paramDescriptorForKeyword:(AEKeyword)keyword;
@end

@interface NSAppleEventManager (Missing)
+ (NSAppleEventManager *)sharedAppleEventManager;
- (NSAppleEventDescriptor *)currentAppleEvent;
- (void)setEventHandler:(id)handler
            andSelector:(SEL)selector
          forEventClass:(AEEventClass)eventClass
             andEventID:(AEEventID)eventID;
@end

enum : AEEventClass { kCoreEventClass = 'aevt' };
enum : AEEventID { kAEOpenApplication = 'oapp', kAEReopenApplication = 'rapp' };
enum : AEKeyword { keyAEPropData = 'prdt' };
enum : unsigned int { keyAELaunchedAsLogInItem = 'lgit' };
