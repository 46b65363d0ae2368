#pragma once

#include <QFileInfo>
#include <QString>

namespace veldmark {

// Whether it is a file, or a link to one, that this process may execute.
inline bool isProgram(const QString &path)
{
    const QFileInfo file(path);
    return file.isFile() && file.isExecutable();
}

} // namespace veldmark
