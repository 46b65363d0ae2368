#pragma once

#include "base/Result.h"
#include "base/Text.h"

#include <QString>

namespace veldmark {

// What saveReport() does with a file that is there.
enum class ExistingFile {
    refuse,
    replace, // the user has agreed; a new file takes its place in one step
};

// Writes a report into a new file that only the user can read. Refuses a symbolic link, a folder
// and every other thing that is no regular file. The error is one line.
Result<void, Text> saveReport(const QString &path, const QByteArray &content,
                              ExistingFile existing);

} // namespace veldmark
