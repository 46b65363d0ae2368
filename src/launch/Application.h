#pragma once

#include <string>

// Starts an application from its desktop entry, or a program.
namespace veldmark {

// Starts `path` (absolute) and returns at once: a desktop entry when it ends in ".desktop",
// otherwise a program. The application is always a child of this process, because only children
// share this process's control group. An entry that the session bus would start is started
// directly. The application inherits the standard descriptors. Returns an empty text, or a sentence
// for the user.
std::string startApplication(const std::string &path);

} // namespace veldmark
