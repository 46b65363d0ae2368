#pragma once

#include "platform/PlatformProfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <unistd.h>

namespace veldmark {

// A session of another process: a real process, and the helper's files about it.
class OtherSession {
public:
    explicit OtherSession(const PlatformProfile &profile, uid_t user = geteuid(),
                          const QByteArray &mode = "strict\n")
        : m_profile(profile)
    {
        m_sleeper.start(QStringLiteral("/bin/sleep"), {QStringLiteral("1000")});
        m_sleeper.waitForStarted();
        note(process(), startOf(process()), bootID(), user);
        write(profile.sessionMarker, mode);
    }
    ~OtherSession() { end(); }

    qint64 process() const { return m_sleeper.processId(); }
    // The process ends; its files stay.
    void end()
    {
        m_sleeper.kill();
        m_sleeper.waitForFinished();
    }
    void note(qint64 process, const QByteArray &start, const QByteArray &boot,
              uid_t user = geteuid()) const
    {
        write(m_profile.sessionOwner,
              "uid " + QByteArray::number(user) + "\npid " + QByteArray::number(process)
                  + "\nstart " + start + "\nboot " + boot + "\nend\n");
    }
    static QByteArray startOf(qint64 process)
    {
        const QByteArray stat = read(QStringLiteral("/proc/%1/stat").arg(process));
        return stat.mid(stat.lastIndexOf(')') + 2).split(' ').value(19);
    }
    static QByteArray bootID()
    {
        return read(QStringLiteral("/proc/sys/kernel/random/boot_id")).trimmed();
    }

private:
    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static void write(const QString &path, const QByteArray &content)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("OtherSession: %s", qPrintable(file.errorString()));
    }

    const PlatformProfile m_profile;
    QProcess m_sleeper;
};

} // namespace veldmark
