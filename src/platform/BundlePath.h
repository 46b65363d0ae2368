#pragma once

#include <QString>

namespace veldmark {

// A path of an application's bundle in the one form in which macOS' spellings of it are equal: its
// links to /private are left out, and a letter with a mark is one character.
QString comparableBundle(const QString &path);

} // namespace veldmark
