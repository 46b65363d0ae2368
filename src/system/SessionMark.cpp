#include "system/SessionMark.h"

#include "platform/PlatformProfile.h"

#include <QFile>

#include <sys/stat.h>

namespace veldmark {

std::optional<SessionMark> SessionMark::present(const PlatformProfile &profile)
{
    struct stat found = {};
    if (::stat(QFile::encodeName(profile.sessionMarker).constData(), &found) != 0)
        return std::nullopt;
#ifdef Q_OS_DARWIN
    const timespec &changed = found.st_ctimespec;
#else
    const timespec &changed = found.st_ctim;
#endif
    return SessionMark{quint64(found.st_ino), qint64(changed.tv_sec), qint64(changed.tv_nsec)};
}

} // namespace veldmark
