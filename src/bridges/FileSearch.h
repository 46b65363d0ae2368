#pragma once

#include "base/StopToken.h"

#include <QByteArrayList>
#include <QString>
#include <QStringList>

// Private to the room.
namespace veldmark {

// The absolute paths of all files below `root` with one of the names, sorted by path. Hidden
// folders are searched. Links to folders are not followed; links to files are found. Unreadable
// folders are left out. Reads each folder once and examines only the named files. Enters no further
// folder once `ended` is requested.
QStringList filesNamed(const QString &root, const QByteArrayList &names,
                       const StopToken &ended = {});

} // namespace veldmark
