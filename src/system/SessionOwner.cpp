#include "system/SessionOwner.h"

#include "base/FileContent.h"
#include "platform/PlatformProfile.h"

#include <QFile>

#include <cerrno>

#include <pwd.h>
#include <signal.h>
#include <unistd.h>

namespace veldmark {

namespace {

constexpr qint64 noteLimitBytes = 1024;
constexpr qint64 statLimitBytes = 4096;

// The value of the line "KEY VALUE". Empty without such a line.
QByteArray valueOf(const QByteArray &note, const QByteArray &key)
{
    for (const QByteArray &line : note.split('\n')) {
        if (line.startsWith(key + ' '))
            return line.mid(key.size() + 1);
    }
    return {};
}

// Whether the same process still runs, identified by its start in clock ticks since boot.
bool isRunning(qint64 process, const QByteArray &start)
{
    const QByteArray stat = contentOf(QStringLiteral("/proc/%1/stat").arg(process), statLimitBytes);
    if (stat.isEmpty()) // /proc may hide other users' processes; then only the existence is known
        return ::kill(static_cast<pid_t>(process), 0) == 0 || errno == EPERM;
    // The name, in round brackets, may contain any character; the state follows it, and the start
    // is 19 fields after that.
    const QList<QByteArray> fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
    return fields.value(19) == start && fields.constFirst() != "Z" && fields.constFirst() != "X";
}

} // namespace

QString SessionOwner::userName() const
{
    const passwd *entry = getpwuid(user);
    return entry ? QString::fromLocal8Bit(entry->pw_name) : QString::number(user);
}

uid_t SessionOwner::callerOfHelper()
{
    if (geteuid() != 0)
        return geteuid();
    for (const char *variable : {"SUDO_UID", "PKEXEC_UID"}) {
        bool isNumber = false;
        if (const uint id = qEnvironmentVariable(variable).toUInt(&isNumber); isNumber)
            return id;
    }
    return 0;
}

std::optional<SessionOwner> SessionOwner::ofAnotherProcess(const PlatformProfile &profile)
{
    if (profile.sessionOwner.isEmpty() || !QFile::exists(profile.sessionMarker))
        return std::nullopt;
    const QByteArray note = contentOf(profile.sessionOwner, noteLimitBytes);
    bool hasUser = false;
    bool hasProcess = false;
    const SessionOwner owner{valueOf(note, "uid").toUInt(&hasUser),
                             valueOf(note, "pid").toInt(&hasProcess)};
    if (!hasUser || !hasProcess || owner.process <= 0 || owner.process == ::getpid())
        return std::nullopt;
    if (valueOf(note, "boot")
        != contentOf(QStringLiteral("/proc/sys/kernel/random/boot_id"), noteLimitBytes).trimmed())
        return std::nullopt;
    if (!isRunning(owner.process, valueOf(note, "start")))
        return std::nullopt;
    return owner;
}

} // namespace veldmark
