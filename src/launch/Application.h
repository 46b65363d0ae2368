#pragma once

#include <string>

// Starting an application from its desktop entry, or a program.
namespace veldmark {

// Starts what `path` (absolute) names and returns at once: a desktop entry when it ends in
// ".desktop", else a program. The application is this process's child, never somebody else's: an
// entry that would be started by the session bus is started directly, since only children share
// this process's control group. Its standard descriptors are this process's own. Returns an empty
// text, or a sentence for the user.
std::string startApplication(const std::string &path);

} // namespace veldmark
