#pragma once

#include "cli/Arguments.h"

#include <qcorotask.h>

namespace veldmark {

class InstanceClient;
struct PlatformProfile;

// Executes every command but `run`. The running instance executes it if there is one; otherwise
// this process does, as far as possible (status, settings, the log, and restoring the network).
// Prints the output and resumes with the exit status.
QCoro::Task<ExitStatus> execute(Invocation invocation, PlatformProfile profile);

} // namespace veldmark
