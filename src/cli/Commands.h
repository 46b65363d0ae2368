#pragma once

#include "cli/Arguments.h"

#include <qcorotask.h>

namespace veldmark {

class InstanceClient;
struct PlatformProfile;

// Every command but `run`: given to the running instance where there is one, else done here as far
// as that makes sense (status, settings, the log, and restoring the network). Prints what there is
// to print and resumes with what the process is to end with.
QCoro::Task<ExitStatus> execute(Invocation invocation, PlatformProfile profile);

} // namespace veldmark
