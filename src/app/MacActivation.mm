#include "app/Activation.h"

#import <AppKit/AppKit.h>

namespace veldmark {

// The bundle says the same in its Info.plist (LSUIElement); this is for the program in a build tree.
void becomeMenuBarProgram()
{
    @autoreleasepool {
        [[NSApplication sharedApplication] setActivationPolicy:NSApplicationActivationPolicyAccessory];
    }
}

void comeToFront()
{
    @autoreleasepool {
        [[NSApplication sharedApplication] activateIgnoringOtherApps:YES];
    }
}

} // namespace veldmark
