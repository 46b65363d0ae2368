#include "instance/InstancePlace.h"

#include "platform/PlatformProfile.h"

#include <QDir>
#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

namespace veldmark {

namespace {

// A folder that only its owner can enter, and whose owner is this user.
bool isPrivateFolder(const QString &folder)
{
    struct stat info {};
    return lstat(QFile::encodeName(folder).constData(), &info) == 0 && S_ISDIR(info.st_mode)
        && info.st_uid == geteuid() && (info.st_mode & 0077) == 0;
}

} // namespace

Result<std::shared_ptr<QLockFile>, QString> lockInstance(const PlatformProfile &profile)
{
    const QString folder = QFileInfo(profile.controlSocket).path();
    if (!QFileInfo::exists(folder)) {
        QDir().mkpath(QFileInfo(folder).path());
        ::mkdir(QFile::encodeName(folder).constData(), 0700);
    }
    if (!isPrivateFolder(folder))
        return Failure(QStringLiteral("%1 must be a folder of your own with mode 0700: the control "
                                      "socket goes there.").arg(folder));
    auto lock = std::make_shared<QLockFile>(folder + QStringLiteral("/lock"));
    lock->setStaleLockTime(0); // held for as long as the process lives, never stale by age
    if (lock->tryLock(0))
        return lock;
    qint64 pid = 0;
    QString host;
    QString program;
    if (lock->error() == QLockFile::LockFailedError && !lock->getLockInfo(&pid, &host, &program)) {
        // It says nothing: a crash came between its creation and its first byte. Removing it by age
        // is safe, since whoever holds it has a lock of the system's on it as well.
        lock->setStaleLockTime(1);
        const bool locked = lock->tryLock(0);
        lock->setStaleLockTime(0);
        if (locked)
            return lock;
    }
    if (lock->error() != QLockFile::LockFailedError)
        return Failure(QStringLiteral("Couldn't write %1/lock.").arg(folder));
    lock->getLockInfo(&pid, &host, &program);
    return Failure(QStringLiteral("Veldmark is already running (process %1).").arg(pid));
}

} // namespace veldmark
