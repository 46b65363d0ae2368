#pragma once

#include <string>

namespace veldmark {

// The executable of an application bundle: the name in its Info.plist (read by macOS's PlistBuddy),
// below Contents/MacOS. Empty when the bundle names none, or a missing file.
std::string bundleProgram(const std::string &bundle);

} // namespace veldmark
