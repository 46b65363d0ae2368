#pragma once

#include "cli/Arguments.h"

#include <qcorotask.h>

namespace veldmark {

struct PlatformProfile;

// `veldmarkctl report`: prints a report without secrets, and writes what it has printed into the
// file that the user names. The state is the running instance's, if it answers within five seconds,
// else this process reads it as `status` does.
QCoro::Task<ExitStatus> showReport(Invocation invocation, PlatformProfile profile);

} // namespace veldmark
