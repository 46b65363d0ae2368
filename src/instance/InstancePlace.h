#pragma once

#include "base/Result.h"
#include "base/Text.h"

#include <QLockFile>

#include <memory>

namespace veldmark {

struct PlatformProfile;

// Takes the lock that makes this process the user's one instance, and creates the folder of the
// profile's control socket (0700) when it is missing. The error is one line: another instance runs,
// or the folder is not the user's own. The lock is released when the process ends in any way.
Result<std::shared_ptr<QLockFile>, Text> lockInstance(const PlatformProfile &profile);

} // namespace veldmark
