#include "app/LoginItem.h"

#import <ServiceManagement/ServiceManagement.h>

// The system keeps the list of login items; nothing is stored here. Needs macOS 13 and the program
// in its bundle.
namespace veldmark {

bool LoginItem::isSet() const
{
    @autoreleasepool {
        return [[SMAppService mainAppService] status] == SMAppServiceStatusEnabled;
    }
}

Result<void, Text> LoginItem::set(bool on) const
{
    @autoreleasepool {
        SMAppService *const service = [SMAppService mainAppService];
        if (on == isSet())
            return {};
        NSError *error = nil;
        const BOOL done = on ? [service registerAndReturnError:&error]
                             : [service unregisterAndReturnError:&error];
        if (done)
            return {};
        NSString *const reason = [error localizedDescription];
        return Failure(reason ? Text(QString::fromUtf8([reason UTF8String]))
                              : Text::tr("Login items can't be changed here."));
    }
}

} // namespace veldmark
