#pragma once

#include "system/ChildProcessRunner.h"
#include "system/PrivilegedRunner.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace veldmark {

constexpr uid_t userAccount = 1000;

// A system of stand-in programs in a temporary folder. Each writes its NUL-terminated arguments to
// "NAME.args", then prints and returns what the test has defined.
class StandIns {
public:
    explicit StandIns(bool linux)
        : profile(linux ? PlatformProfile::linux(Places::below(m_folder.path()))
                        : PlatformProfile::macos(Places::below(m_folder.path())))
    {
    }

    PrivilegedRunner runner(uid_t user = userAccount) { return {profile, m_processes, user}; }

    void write(const QString &path, const QByteArray &content) const
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(path));
    }

    // The program at `path` records its arguments and runs the shell commands `then`.
    void program(const QString &path, const QByteArray &then) const
    {
        const QByteArray record = recordOf(path).toUtf8();
        write(path, "#!/bin/bash\nprintf '%s\\0' \"$@\" > '" + record + "'\n" + then + "\n");
        QFile::setPermissions(path,
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
                                  | QFile::ReadOther | QFile::ExeOther);
    }

    void sudo(const QByteArray &then) const { program(profile.sudo, then); }
    void dialog(const QByteArray &then) const { program(profile.promptProgram, then); }
    void helper(const QByteArray &then) const { program(helperPath(), then); }
    void installPasswordless(const QByteArray &content = "copy") const
    {
        write(profile.installedHelper, content);
        write(profile.sudoersRule, "rule");
    }

    QString helperPath() const { return profile.helperCandidates.constFirst(); }

    // The arguments that the program at `path` was given; absent when it never ran.
    std::optional<QStringList> argumentsOf(const QString &path) const
    {
        QFile file(recordOf(path));
        if (!file.open(QIODevice::ReadOnly))
            return std::nullopt;
        const QString all = QString::fromUtf8(file.readAll());
        return all.isEmpty() ? QStringList() : all.chopped(1).split(QChar(u'\0'));
    }

private:
    QString recordOf(const QString &path) const
    {
        return m_folder.filePath(QFileInfo(path).fileName() + QStringLiteral(".args"));
    }

    QTemporaryDir m_folder;
    ChildProcessRunner m_processes;

public:
    const PlatformProfile profile;
};

} // namespace veldmark
