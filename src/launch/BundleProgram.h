#pragma once

#include <string>

namespace veldmark {

// The file of an application bundle that runs: what its Info.plist names (macOS's PlistBuddy reads
// it), below Contents/MacOS. Empty when the bundle names none, or one that is not there.
std::string bundleProgram(const std::string &bundle);

} // namespace veldmark
