#include "base/RootsOwn.h"

#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

namespace veldmark {

bool isRootsOwn(const QString &path)
{
    QString part = QFileInfo(path).canonicalFilePath();
    bool isAbove = false;
    while (!part.isEmpty()) {
        struct stat status = {};
        if (::lstat(QFile::encodeName(part).constData(), &status) != 0 || status.st_uid != 0)
            return false;
        const bool isOpen = (status.st_mode & (S_IWGRP | S_IWOTH)) != 0;
        if (isOpen && !(isAbove && (status.st_mode & S_ISVTX) != 0))
            return false;
        if (part == u"/")
            return true;
        part = part.left(qMax(qsizetype(1), part.lastIndexOf(u'/')));
        isAbove = true;
    }
    return false;
}

} // namespace veldmark
