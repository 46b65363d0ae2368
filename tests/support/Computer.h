#pragma once

#include "platform/PlatformProfile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace veldmark {

// A computer below a temporary folder whose helper, sudo, pkexec and tor are scripts, for tests of
// the real program with real processes. The helper records its verbs, writes and removes the
// session marker, and fails on request; it changes nothing else. Its tor has been approved.
struct Computer {
    QTemporaryDir folder;
    const PlatformProfile profile = PlatformProfile::linux(Places::below(folder.path()));

    Computer()
    {
        write(profile.helperCandidates.constFirst(), helperText(), true);
        const QByteArray tor
            = "#!/bin/sh\necho 16:0123456789ABCDEF0123456789ABCDEF0123456789ABCDEF0123456789\n";
        write(profile.torCandidates.constFirst(), tor, true);
        write(profile.approvedPrograms + u'/'
                  + QLatin1String(QCryptographicHash::hash(tor, QCryptographicHash::Sha256).toHex())
                  + QStringLiteral("/tor"),
              tor, true);
        write(profile.sudo, "#!/bin/sh\nshift\nexec /bin/bash \"$@\"\n", true);
        write(profile.promptProgram, "#!/bin/sh\nexec /bin/bash \"$@\"\n", true);
        QDir().mkpath(profile.places.home);
    }
    // The verbs of the helper's calls, in order.
    QStringList verbs() const
    {
        return QString::fromUtf8(read(at("/verbs"))).split(u'\n', Qt::SkipEmptyParts);
    }
    // The root-owned copy of a former version.
    void installOldHelper() const
    {
        write(profile.installedHelper, helperText() + "# of a former version\n", true);
        write(profile.sudoersRule, {});
    }
    bool hasMarker() const { return QFile::exists(profile.sessionMarker); }
    void writeMarker() const { write(profile.sessionMarker, "strict\n"); }
    // From now on the verb fails for this reason; an empty reason lets it work again.
    void fail(const char *verb, const QByteArray &reason) const
    {
        write(at("/fail-") + QLatin1String(verb), reason);
    }
    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static void write(const QString &path, const QByteArray &content, bool executable = false)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("Computer: %s", qPrintable(file.errorString()));
        if (executable)
            file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

private:
    QString at(const char *path) const { return folder.path() + QLatin1String(path); }
    QByteArray helperText() const
    {
        return QStringLiteral(
                   "#!/bin/bash\n"
                   "echo \"$1\" >>'%1/verbs'\n"
                   "if [ -s '%1/fail-'\"$1\" ]; then echo \"ERROR: $(cat '%1/fail-'\"$1\")\" >&2; exit 1; fi\n"
                   "case $1 in\n"
                   "connect) mkdir -p '%2'; echo strict >'%2/active' ;;\n"
                   "disconnect) rm -f '%2/active' ;;\n"
                   "install-privileged) cp \"$0\" '%3' ;;\n"
                   "esac\n")
            .arg(folder.path(), QFileInfo(profile.sessionMarker).path(), profile.installedHelper)
            .toUtf8();
    }
};

} // namespace veldmark
