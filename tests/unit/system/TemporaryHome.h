#pragma once

#include "system/SettingsStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace veldmark {

inline const QString key = QStringLiteral("aKey");
inline const QString strict = QStringLiteral("strictMode");

// A home of its own. Permissions do not limit root, so a test that runs as root drops its rights
// until the end of the test.
class TemporaryHome {
public:
    TemporaryHome() : profile(PlatformProfile::linux(Places::below(m_folder.path())))
    {
        if (::geteuid() == 0) {
            if (::chown(qPrintable(m_folder.path()), 65534, 65534) != 0 || ::seteuid(65534) != 0)
                qFatal("cannot give up root");
            m_wasRoot = true;
        }
    }
    ~TemporaryHome()
    {
        if (m_wasRoot && ::seteuid(0) != 0)
            qFatal("cannot become root again");
    }

    QString path() const { return profile.settingsFile; }
    QString folder() const { return QFileInfo(path()).path(); }
    QString broken() const { return path() + QStringLiteral(".broken"); }

    void write(const QByteArray &content) const
    {
        QDir().mkpath(folder());
        QFile file(path());
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write");
    }
    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
    }
    QByteArray content() const { return read(path()); }
    QStringList files() const
    {
        return QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    int mode(const QString &at) const
    {
        struct stat info { };
        return ::stat(qPrintable(at), &info) == 0 ? static_cast<int>(info.st_mode & 07777) : -1;
    }

private:
    QTemporaryDir m_folder;
    bool m_wasRoot = false;

public:
    const PlatformProfile profile;
};

// During its lifetime this process can write no file beyond this many bytes, as on a full disk.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes)
    {
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_limit);
        rlimit none = m_limit;
        none.rlim_cur = bytes;
        ::setrlimit(RLIMIT_FSIZE, &none);
    }
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_limit{};
    void (*m_handler)(int) = nullptr;
};

} // namespace veldmark
