#pragma once

#include "base/StopToken.h"

#include <QByteArrayList>
#include <QString>
#include <QStringList>

// Private to the room.
namespace veldmark {

// The absolute paths of all files below `root` that have one of the names, sorted by their path.
// Hidden folders count; links to folders are not followed, links to files are found. Whatever
// cannot be read is left out. Reads each folder once and looks at no other file than those named.
// Goes into no more folders once `ended` says so.
QStringList filesNamed(const QString &root, const QByteArrayList &names,
                       const StopToken &ended = {});

} // namespace veldmark
