// What the free headers of AppKit lack of what is used, declared from Apple's public documentation, for the syntax check.
#import <AppKit/AppKit.h>
#import <AppKit/NSRunningApplication.h>

@interface NSApplication (Missing)
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)policy;
@end
