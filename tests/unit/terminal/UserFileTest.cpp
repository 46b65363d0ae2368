#include "terminal/UserFile.h"

#include "Home.h"
#include "support/TestProgram.h"

#include <QTest>

#include <sys/wait.h>
#include <unistd.h>

using namespace veldmark;

namespace {
QString failure(const Result<void, TerminalError> &result)
{
    return result ? QString() : result.error().description().english();
}
} // namespace

class UserFileTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void createsAMissingFileWithTheModeAskedFor()
    {
        const Home home;
        const auto file = UserFile::read(home.path(QStringLiteral("new")));
        QVERIFY(file && !file->exists());
        const mode_t umask = ::umask(027);
        const auto replaced = file->replace("x", 0644);
        ::umask(umask);
        QVERIFY(replaced);
        QCOMPARE(home.content(QStringLiteral("new")), QByteArray("x"));
        QCOMPARE(home.mode(QStringLiteral("new")), mode_t(0640));
    }

    void keepsModeAndOwner()
    {
        const Home home;
        home.file(QStringLiteral("f"), "old", 0751);
        const QByteArray path = QFile::encodeName(home.path(QStringLiteral("f")));
        const bool isRoot = ::geteuid() == 0;
        if (isRoot) {
            QCOMPARE(::chown(path.constData(), 12345, 54321), 0);
        }
        QVERIFY(UserFile::read(home.path(QStringLiteral("f")))->replace("new", 0600));
        struct stat status = {};
        QCOMPARE(::stat(path.constData(), &status), 0);
        QCOMPARE(status.st_mode & 07777, mode_t(0751));
        QCOMPARE(status.st_uid, isRoot ? uid_t(12345) : ::geteuid());
        QCOMPARE(status.st_gid, isRoot ? gid_t(54321) : ::getegid());
        QCOMPARE(home.content(QStringLiteral("f")), QByteArray("new"));
        QCOMPARE(home.names(QString()), QStringList{QStringLiteral("f")});
    }

    // Only root can set this up: another user's file that this user may write.
    void leavesAnotherUsersFileAlone()
    {
        if (::geteuid() != 0) {
            const Home home;
            home.file(QStringLiteral("f"), "old", 0400);
            QVERIFY(!UserFile::read(home.path(QStringLiteral("f")))->replace("new", 0600));
            return;
        }
        const Home home;
        home.file(QStringLiteral("f"), "old", 0666);
        const QByteArray folder = QFile::encodeName(home.path(QString()));
        for (QByteArray above = folder; above.size() > 5;
             above = above.first(above.lastIndexOf('/')))
            QCOMPARE(::chmod(above.constData(), 0777), 0);
        const pid_t child = ::fork();
        if (child == 0) {
            if (::setgid(12345) != 0 || ::setuid(12345) != 0)
                ::_exit(2);
            const auto file = UserFile::read(home.path(QStringLiteral("f")));
            const QString said = file ? failure(file->replace("new", 0600)) : QString();
            ::_exit(said.endsWith(QStringLiteral("/f belongs to another user or group.")) ? 0 : 1);
        }
        int status = -1;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QCOMPARE(status, 0);
        QCOMPARE(home.content(QStringLiteral("f")), QByteArray("old"));
        QCOMPARE(home.names(QString()), QStringList{QStringLiteral("f")});
    }

    void aReadOnlyFileStaysAsItIs()
    {
        const Home home;
        home.file(QStringLiteral("f"), "old", 0444);
        const auto file = UserFile::read(home.path(QStringLiteral("f")));
        QCOMPARE(failure(file->replace("new", 0600)),
                 home.path(QStringLiteral("f")) + QStringLiteral(" is read-only."));
        QCOMPARE(home.content(QStringLiteral("f")), QByteArray("old"));
        QVERIFY(file->replace("old", 0600)); // nothing to write
    }

    void linksStayLinks_data()
    {
        QTest::addColumn<QString>("target"); // of .zshrc
        QTest::addColumn<QString>("file");
        QTest::newRow("relative") << "dotfiles/zshrc"
                                  << "dotfiles/zshrc";
        QTest::newRow("chain") << "dotfiles/link"
                               << "dotfiles/zshrc";
        QTest::newRow("through a linked folder and back") << "linked/../other"
                                                          << "deep/other";
        QTest::newRow("to nothing yet") << "dotfiles/new"
                                        << "dotfiles/new";
    }

    void linksStayLinks()
    {
        QFETCH(QString, target);
        QFETCH(QString, file);
        const Home home;
        const QString link = home.path(QStringLiteral(".zshrc"));
        home.file(QStringLiteral("dotfiles/zshrc"), "old");
        home.file(QStringLiteral("deep/down/x"), "old");
        home.file(QStringLiteral("deep/other"), "old");
        const auto makeLink = [](const QString &to, const QString &at) {
            return ::symlink(QFile::encodeName(to).constData(), QFile::encodeName(at).constData())
                == 0;
        };
        QVERIFY(makeLink(QStringLiteral("zshrc"), home.path(QStringLiteral("dotfiles/link"))));
        QVERIFY(makeLink(QStringLiteral("deep/down"), home.path(QStringLiteral("linked"))));
        QVERIFY(makeLink(target, link));
        const auto read = UserFile::read(link);
        QVERIFY(read);
        QCOMPARE(read->content(),
                 file.endsWith(QStringLiteral("new")) ? QByteArray() : QByteArray("old"));
        QVERIFY(read->replace("new", 0644));
        QVERIFY(QFileInfo(link).isSymLink());
        QVERIFY(!QFileInfo(home.path(file)).isSymLink());
        QCOMPARE(home.content(file), QByteArray("new"));
        QCOMPARE(home.content(QStringLiteral(".zshrc")), QByteArray("new"));
        QVERIFY(QFileInfo(home.path(QStringLiteral("dotfiles/link"))).isSymLink());
    }

    void aLongChainOfLinksIsFollowedToItsLimit()
    {
        const Home home;
        home.file(QStringLiteral("0"), "old");
        for (int number = 1; number <= 40; ++number)
            QVERIFY(QFile::link(home.path(QString::number(number - 1)),
                                home.path(QString::number(number))));
        const auto file = UserFile::read(home.path(QStringLiteral("39")));
        QVERIFY(file);
        QVERIFY(file->replace("new", 0600));
        QCOMPARE(home.content(QStringLiteral("0")), QByteArray("new"));
        QVERIFY(!UserFile::read(home.path(QStringLiteral("40"))));
    }

    void whatIsNoFileIsNotRead_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("message");
        QTest::newRow("folder") << "folder"
                                << "%1 is not a file.";
        QTest::newRow("pipe") << "pipe"
                              << "%1 is not a file.";
        QTest::newRow("circle") << "circle"
                                << "%1 can't be read: Too many levels of symbolic links.";
        QTest::newRow("file as a folder") << "file/x"
                                          << "%1 can't be read: Not a directory.";
    }

    void whatIsNoFileIsNotRead()
    {
        QFETCH(QString, kind);
        QFETCH(QString, message);
        const Home home;
        home.file(QStringLiteral("file"), "old");
        QDir().mkpath(home.path(QStringLiteral("folder")));
        QCOMPARE(::mkfifo(QFile::encodeName(home.path(QStringLiteral("pipe"))).constData(), 0600),
                 0);
        QFile::link(home.path(QStringLiteral("circle")), home.path(QStringLiteral("circle")));
        const auto file = UserFile::read(home.path(kind));
        QVERIFY(!file);
        QCOMPARE(file.error().description(), message.arg(home.path(kind)));
    }

    void aMissingFolderIsAClearError()
    {
        const Home home;
        const auto file = UserFile::read(home.path(QStringLiteral("none/f")));
        QVERIFY(file);
        QCOMPARE(failure(file->replace("x", 0600)),
                 home.path(QStringLiteral("none/f"))
                     + QStringLiteral(" can't be written: No such file or directory."));
    }

    void whatAnotherProgramWroteMeanwhileIsKept_data()
    {
        QTest::addColumn<bool>("existed");
        QTest::newRow("changed") << true;
        QTest::newRow("created") << false;
    }

    void whatAnotherProgramWroteMeanwhileIsKept()
    {
        QFETCH(bool, existed);
        const Home home;
        if (existed)
            home.file(QStringLiteral("f"), "old");
        const auto file = UserFile::read(home.path(QStringLiteral("f")));
        home.file(QStringLiteral("f"), "theirs");
        QCOMPARE(failure(file->replace("ours", 0600)),
                 home.path(QStringLiteral("f"))
                     + QStringLiteral(" was changed by another program just now."));
        QCOMPARE(home.content(QStringLiteral("f")), QByteArray("theirs"));
        QCOMPARE(home.names(QString()), QStringList{QStringLiteral("f")});
    }

    void aReaderSeesOneContentOrTheOther()
    {
        const Home home;
        const QByteArray one(200'000, '1');
        const QByteArray two(300'000, '2');
        home.file(QStringLiteral("f"), one);
        const QString path = home.path(QStringLiteral("f"));
        const pid_t writer = ::fork();
        if (writer == 0) {
            for (bool next = false;; next = !next) {
                const auto file = UserFile::read(path);
                if (!file || !file->replace(next ? one : two, 0600))
                    ::_exit(1);
            }
        }
        bool sawOne = false;
        bool sawTwo = false;
        int torn = 0;
        for (int reads = 0; reads < 2000 || !(sawOne && sawTwo); ++reads) {
            QVERIFY2(::waitpid(writer, nullptr, WNOHANG) == 0, "the writer has failed");
            const QByteArray seen = home.content(QStringLiteral("f"));
            sawOne = sawOne || seen == one;
            sawTwo = sawTwo || seen == two;
            torn += seen != one && seen != two;
        }
        // A kill at any point leaves either the old or the new file.
        ::kill(writer, SIGKILL);
        int status = 0;
        ::waitpid(writer, &status, 0);
        QVERIFY(WIFSIGNALED(status));
        QCOMPARE(torn, 0);
        const QByteArray last = home.content(QStringLiteral("f"));
        QVERIFY(last == one || last == two);
    }

    void ownFilesAreWrittenOnlyWhenTheyDiffer_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("isWritten");
        QTest::newRow("the same") << QByteArray("mine") << 0755 << false;
        QTest::newRow("other content") << QByteArray("mins") << 0755 << true;
        QTest::newRow("other mode") << QByteArray("mine") << 0700 << true;
    }

    void ownFilesAreWrittenOnlyWhenTheyDiffer()
    {
        QFETCH(QByteArray, before);
        QFETCH(int, mode);
        QFETCH(bool, isWritten);
        const Home home;
        home.file(QStringLiteral("own"), before, mode_t(mode));
        // A second name for the old file shows whether it is still the one in place.
        const QString own = home.path(QStringLiteral("own"));
        const QString second = home.path(QStringLiteral("second"));
        QCOMPARE(::link(QFile::encodeName(own).constData(), QFile::encodeName(second).constData()),
                 0);
        QVERIFY(writeOwnFile(own, "mine", 0755, NewFileMode::exact));
        QCOMPARE(home.content(QStringLiteral("own")), QByteArray("mine"));
        QCOMPARE(home.mode(QStringLiteral("own")), mode_t(0755));
        struct stat status = {};
        QCOMPARE(::stat(QFile::encodeName(second).constData(), &status), 0);
        QCOMPARE(status.st_nlink, nlink_t(isWritten ? 1 : 2));
    }

    void ownFilesTakeThePlaceOfLinks()
    {
        const Home home;
        home.file(QStringLiteral("theirs"), "keep");
        QFile::link(home.path(QStringLiteral("theirs")), home.path(QStringLiteral("own")));
        QVERIFY(writeOwnFile(home.path(QStringLiteral("own")), "mine", 0755, NewFileMode::exact));
        QVERIFY(!QFileInfo(home.path(QStringLiteral("own"))).isSymLink());
        QCOMPARE(home.mode(QStringLiteral("own")), mode_t(0755));
        QCOMPARE(home.content(QStringLiteral("theirs")), QByteArray("keep"));
    }
};

VELDMARK_TEST(UserFileTest)
#include "UserFileTest.moc"
