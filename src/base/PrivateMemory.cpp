#include "base/PrivateMemory.h"

#ifdef __linux__
#include <sys/prctl.h>
#else
#include <sys/ptrace.h>
#include <sys/types.h>
#endif
#include <sys/resource.h>

namespace veldmark {

void keepMemoryPrivate()
{
#ifndef VELDMARK_SANITIZED
    rlimit limit{};
    if (::getrlimit(RLIMIT_CORE, &limit) == 0) {
        limit.rlim_cur = 0; // only the soft limit; a child process may raise it again
        ::setrlimit(RLIMIT_CORE, &limit);
    }
#ifdef __linux__
    ::prctl(PR_SET_DUMPABLE, 0L, 0L, 0L, 0L);
#else
    ::ptrace(PT_DENY_ATTACH, 0, nullptr, 0);
#endif
#endif
}

} // namespace veldmark
