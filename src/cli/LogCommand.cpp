#include "cli/LogCommand.h"
#include "platform/PlatformProfile.h"
namespace veldmark { QCoro::Task<ExitStatus> showLog(Invocation, PlatformProfile) { co_return ExitStatus::failed; } }
