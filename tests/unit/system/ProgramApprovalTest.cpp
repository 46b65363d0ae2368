#include "system/ProgramApproval.h"

#include "platform/PlatformProfile.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#ifdef __linux__
#include <sched.h>
#include <sys/mount.h>
#endif

using namespace Qt::StringLiterals;
using namespace veldmark;

class ProgramApprovalTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void namesAProgramOfTheUsersUntilItsCopyIsThere()
    {
        const QTemporaryDir folder;
        const PlatformProfile profile = PlatformProfile::linux(Places::below(folder.path()));
        const QString path = folder.filePath(u"home/user/obfs"_s);
        write(path, "abc");
        QVERIFY(QFile::link(path, folder.filePath(u"link"_s)));
        const QStringList words = {u"connect"_s, u"--tor"_s, u"/nonexistent"_s, u"--pt-lyrebird"_s,
                                   folder.filePath(u"link"_s)};
        const auto missing = ProgramApproval::missing(profile, words);
        QCOMPARE(missing.size(), std::size_t(1));
        const QString digest
            = u"ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"_s;
        QCOMPARE(missing.front().words(),
                 QStringList({u"approve"_s, u"--program"_s, QFileInfo(path).canonicalFilePath(),
                              u"--as"_s, u"lyrebird"_s, u"--sha256"_s, digest}));
        write(profile.approvedPrograms + u'/' + digest + u"/tor"_s, "abc"); // in another role
        QCOMPARE(ProgramApproval::missing(profile, words).size(), std::size_t(1));
        write(profile.approvedPrograms + u'/' + digest + u"/lyrebird"_s, "abc");
        QVERIFY(ProgramApproval::missing(profile, words).empty());
        const auto named = ProgramApproval::named(profile, words); // also with its copy
        QCOMPARE(named.size(), std::size_t(1));
        QCOMPARE(named.front().words(), missing.front().words());
    }

    void asksForNoProgramOfTheSystems()
    {
        const PlatformProfile profile = PlatformProfile::linux(Places{});
        if (!QFile::exists(u"/usr/bin/tor"_s) || !QFile::exists(u"/usr/bin/perl"_s))
            QSKIP("needs tor and perl of the system");
        const auto asked = [&profile](const QString &option, const QString &path) {
            return !ProgramApproval::missing(profile, {u"connect"_s, option, path}).empty();
        };
        QVERIFY(!asked(u"--tor"_s, u"/usr/bin/tor"_s));
        QVERIFY(asked(u"--tor"_s, u"/usr/bin/perl"_s));
        QVERIFY(asked(u"--pt-lyrebird"_s, u"/usr/bin/perl"_s));
        QVERIFY(asked(u"--pt-lyrebird"_s, u"/usr/bin/tor"_s));
    }

    // Below /tmp, where every user may make files.
    void asksForAProgramInAPlaceOfTheSystemsThatOthersCanChange()
    {
        const QTemporaryDir folder;
        const QString root = QFileInfo(folder.path()).canonicalFilePath();
        const PlatformProfile profile = PlatformProfile::linux(Places::below(root));
        const QString path = root + u"/usr/bin/tor"_s;
        write(path, "abc");
        const auto missing = ProgramApproval::missing(profile, {u"connect"_s, u"--tor"_s, path});
        QCOMPARE(missing.size(), std::size_t(1));
        QCOMPARE(missing.front().path, path);
    }

    // In a child process with an /opt of its own.
    void asksForNoProgramThatRootAloneCanChangeInOpt()
    {
#ifndef __linux__
        QSKIP("needs an /opt of its own");
#else
        if (::geteuid() != 0)
            QSKIP("needs root, for an /opt of its own");
        const pid_t child = ::fork();
        if (child == 0) {
            ::umask(022);
            if (::unshare(CLONE_NEWNS) != 0
                || ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0
                || ::mount("private", "/opt", "tmpfs", 0, "mode=755") != 0)
                ::_exit(3);
            const PlatformProfile profile = PlatformProfile::linux(Places{});
            const QString path = u"/opt/tor/bin/tor"_s;
            write(path, "abc");
            const auto isAskedWith = [&](mode_t mode) {
                ::chmod(QFile::encodeName(path).constData(), mode);
                return !ProgramApproval::missing(profile, {u"connect"_s, u"--tor"_s, path}).empty();
            };
            if (!isAskedWith(0777))
                ::_exit(2);
            ::_exit(isAskedWith(0755) ? 1 : 0);
        }
        int status = -1;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QCOMPARE(status, 0);
#endif
    }

    void namesNoProgramThatTheWordsDoNotName()
    {
        const QTemporaryDir folder;
        const PlatformProfile profile = PlatformProfile::linux(Places::below(folder.path()));
        const QString former = QDir::currentPath();
        const auto back = qScopeGuard([&former] { QDir::setCurrent(former); });
        QVERIFY(QDir::setCurrent(folder.path()));
        write(u"connect"_s, "abc"); // a file in the current folder, named like the verb
        const auto namedIn = [&profile](const QStringList &words) {
            return ProgramApproval::named(profile, words).size();
        };
        QCOMPARE(namedIn({u"connect"_s, u"--tor"_s, u"connect"_s}), std::size_t(1));
        QCOMPARE(namedIn({u"connect"_s, u"--strict"_s, u"1"_s}), std::size_t(0));
        QCOMPARE(namedIn({u"connect"_s, u"--tor"_s}), std::size_t(0));
    }

private:
    static void write(const QString &path, const QByteArray &content)
    {
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
};

VELDMARK_TEST(ProgramApprovalTest)
#include "ProgramApprovalTest.moc"
