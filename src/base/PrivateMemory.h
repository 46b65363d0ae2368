#pragma once

namespace veldmark {

// From here on no other program of the same user can read this process's memory, where the control
// password is, by attaching to it or by a core dump. What the process starts is as it was. Does
// nothing under a sanitizer, whose search for leaks attaches to the process.
void keepMemoryPrivate();

} // namespace veldmark
