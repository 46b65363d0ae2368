#pragma once

namespace veldmark {

// After this call no other program of the same user can read this process's memory, which holds the
// control password, through a debugger or a core dump. Child processes are not affected. Does
// nothing in a sanitizer build, because the leak sanitizer attaches to the process.
void keepMemoryPrivate();

} // namespace veldmark
