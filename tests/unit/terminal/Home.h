#pragma once

#include "platform/PlatformProfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

namespace veldmark {

inline const QString exitCheck = QStringLiteral("https://check.example/api/ip");

// A home and a system's files below a temporary folder.
class Home {
public:
    explicit Home(bool isMac = false) : m_places(Places::below(m_folder.path()))
    {
        QDir().mkpath(m_places.home);
        file(m_places.root + QStringLiteral("/usr/bin/zsh"), QByteArray());
        QFile::link(QStringLiteral("/bin/nc.openbsd"),
                    m_places.root + QStringLiteral("/usr/bin/nc"));
        profile = isMac ? PlatformProfile::macos(m_places) : PlatformProfile::linux(m_places);
    }

    // `name` is below the home unless it is absolute.
    QString path(const QString &name) const
    {
        return QFileInfo(name).isAbsolute() ? name : m_places.home + u'/' + name;
    }

    void file(const QString &name, const QByteArray &content, mode_t mode = 0644) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile target(path(name));
        if (!target.open(QIODevice::WriteOnly) || target.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(path(name)));
        target.close();
        ::chmod(QFile::encodeName(path(name)).constData(), mode);
    }

    QByteArray content(const QString &name) const
    {
        QFile source(path(name));
        return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray("(missing)");
    }

    mode_t mode(const QString &name) const
    {
        struct stat status = {};
        return ::stat(QFile::encodeName(path(name)).constData(), &status) == 0
            ? status.st_mode & 07777
            : 0;
    }

    bool has(const QString &name) const
    {
        return QFileInfo(path(name)).exists() || QFileInfo(path(name)).isSymLink();
    }
    QStringList names(const QString &folder) const
    {
        return QDir(path(folder))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                       QDir::Name);
    }

    PlatformProfile profile;

private:
    QTemporaryDir m_folder;
    Places m_places;
};

struct Ended {
    int status = -1;
    QByteArray output; // standard output
    QByteArray errors;
};

// Runs a program to its end, with only the given environment.
inline Ended run(const QString &program, const QStringList &arguments,
                 const QProcessEnvironment &environment = {}, const QByteArray &input = {})
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(60'000))
        qFatal("%s does not end", qPrintable(program));
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput(), process.readAllStandardError()};
}

} // namespace veldmark
