#include "instance/InstancePlace.h"

#include "platform/PlatformProfile.h"

#include <QDir>
#include <QFileInfo>
#include <QSysInfo>

#include <optional>

#include <sys/stat.h>
#include <unistd.h>

namespace veldmark {

namespace {

// Whether the folder belongs to this user and only this user can enter it.
bool isPrivateFolder(const QString &folder)
{
    struct stat info { };
    return lstat(QFile::encodeName(folder).constData(), &info) == 0 && S_ISDIR(info.st_mode)
        && info.st_uid == geteuid() && (info.st_mode & 0077) == 0;
}

// The process of this user that holds the lock of another place. A home shared with other computers
// holds their locks, too; those are ignored.
std::optional<qint64> holderElsewhere(const PlatformProfile &profile)
{
    for (const QString &socket : profile.otherControlSockets) {
        const QString folder = QFileInfo(socket).path();
        if (!isPrivateFolder(folder))
            continue;
        QLockFile lock(folder + QStringLiteral("/lock"));
        lock.setStaleLockTime(0);
        qint64 pid = 0;
        QString host;
        QString program;
        if (!lock.tryLock(0) && lock.getLockInfo(&pid, &host, &program)
            && host == QSysInfo::machineHostName())
            return pid;
    }
    return std::nullopt;
}

Text alreadyRunning(qint64 pid)
{
    return Text::tr("Veldmark is already running (process %1).").arg(pid);
}

} // namespace

Result<std::shared_ptr<QLockFile>, Text> lockInstance(const PlatformProfile &profile)
{
    const QString folder = QFileInfo(profile.controlSocket).path();
    if (!QFileInfo::exists(folder)) {
        QDir().mkpath(QFileInfo(folder).path());
        ::mkdir(QFile::encodeName(folder).constData(), 0700);
    }
    if (!isPrivateFolder(folder))
        return Failure(Text::tr("%1 must be a folder of your own with mode 0700: the control "
                                "socket goes there.")
                           .arg(folder));
    if (const auto pid = holderElsewhere(profile))
        return Failure(alreadyRunning(*pid));
    auto lock = std::make_shared<QLockFile>(folder + QStringLiteral("/lock"));
    lock->setStaleLockTime(0); // valid for the life of the process, never stale by age
    if (lock->tryLock(0))
        return lock;
    qint64 pid = 0;
    QString host;
    QString program;
    if (lock->error() == QLockFile::LockFailedError && !lock->getLockInfo(&pid, &host, &program)) {
        // The lock file is empty: its writer crashed between creating and filling it. Removing it
        // by age is safe, since a living holder also holds a lock of the system's on the file.
        lock->setStaleLockTime(1);
        const bool locked = lock->tryLock(0);
        lock->setStaleLockTime(0);
        if (locked)
            return lock;
    }
    if (lock->error() != QLockFile::LockFailedError)
        return Failure(Text::tr("Couldn't write %1/lock.").arg(folder));
    lock->getLockInfo(&pid, &host, &program);
    return Failure(alreadyRunning(pid));
}

} // namespace veldmark
