#pragma once

#include "cli/Arguments.h"

#include <qcorotask.h>

namespace veldmark {

struct PlatformProfile;

// `veldmarkctl log`: prints Tor's log, straight from its files. With `follow` it goes on printing
// new lines until the process is ended.
QCoro::Task<ExitStatus> showLog(Invocation invocation, PlatformProfile profile);

} // namespace veldmark
