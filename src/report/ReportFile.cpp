#include "report/ReportFile.h"

#include <QFile>

#include <cerrno>
#include <cstdio>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace veldmark {

namespace {

Text systemsWords(int error)
{
    return Text(qt_error_string(error));
}

// The system's error number; 0 when all is written.
int writeNew(const QByteArray &path, const QByteArray &content)
{
    const int file = ::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                            S_IRUSR | S_IWUSR);
    if (file < 0)
        return errno;
    int error = 0;
    qsizetype written = 0;
    while (error == 0 && written < content.size()) {
        const ssize_t count = ::write(file, content.constData() + written,
                                      static_cast<size_t>(content.size() - written));
        if (count >= 0)
            written += count;
        else if (errno != EINTR)
            error = errno;
    }
    if (::close(file) != 0 && error == 0)
        error = errno;
    if (error != 0)
        ::unlink(path.constData());
    return error;
}

} // namespace

Result<void, Text> saveReport(const QString &path, const QByteArray &content, ExistingFile existing)
{
    const QByteArray name = QFile::encodeName(path);
    const auto failed = [&path](int error) {
        return Failure(
            Text::tr("The report can't be written to %1: %2").arg(path, systemsWords(error)));
    };
    struct stat info { };
    const bool isThere = ::lstat(name.constData(), &info) == 0;
    if (isThere && !S_ISREG(info.st_mode))
        return Failure(
            Text::tr("%1 isn't a regular file. Choose another name for the report.").arg(path));
    if (isThere && existing == ExistingFile::refuse)
        return Failure(
            Text::tr("%1 exists already. Choose another name for the report.").arg(path));
    if (!isThere) {
        if (const int error = writeNew(name, content); error != 0)
            return failed(error);
        return {};
    }
    const QByteArray beside = name + ".veldmark-" + QByteArray::number(::getpid());
    if (const int error = writeNew(beside, content); error != 0)
        return failed(error);
    if (::rename(beside.constData(), name.constData()) != 0) {
        const int error = errno;
        ::unlink(beside.constData());
        return failed(error);
    }
    return {};
}

} // namespace veldmark
