#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

namespace veldmark {

// The first `limit` bytes of a file. Empty when it cannot be read.
inline QByteArray contentOf(const QString &path, qint64 limit)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(limit) : QByteArray();
}

} // namespace veldmark
