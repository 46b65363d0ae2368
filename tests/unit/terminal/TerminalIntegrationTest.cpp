#include "terminal/TerminalIntegration.h"

#include "Home.h"
#include "support/TestProgram.h"

#include <QTest>

#include <unistd.h>

using namespace veldmark;

namespace {

const QByteArray shellBlock
    = "# >>> veldmark >>>\n"
      "[ -f \"$HOME/.veldmark/shell.sh\" ] && . \"$HOME/.veldmark/shell.sh\"\n"
      "# <<< veldmark <<<\n";
const QByteArray sshBlock
    = "# >>> veldmark >>>\nInclude ~/.veldmark/ssh_config\n# <<< veldmark <<<\n";

const QString zshrc = QStringLiteral(".zshrc");
const QString bashrc = QStringLiteral(".bashrc");
const QString bashProfile = QStringLiteral(".bash_profile");
const QString sshConfig = QStringLiteral(".ssh/config");
const QString active = QStringLiteral(".veldmark/active");

TerminalIntegration terminal(const Home &home)
{
    return TerminalIntegration(home.profile, exitCheck);
}

QString failure(const Result<void, TerminalError> &result)
{
    return result ? QString() : result.error().description().english();
}

} // namespace

class TerminalIntegrationTest : public QObject {
    Q_OBJECT

    static void bothSystems()
    {
        QTest::addColumn<bool>("isMac");
        QTest::newRow("linux") << false;
        QTest::newRow("macos") << true;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(QFile::exists(QStringLiteral("/bin/nc.openbsd")),
                 "needs the package netcat-openbsd");
        ::umask(022);
    }

    void installsIntoAnEmptyHome_data() { bothSystems(); }
    void installsIntoAnEmptyHome()
    {
        QFETCH(bool, isMac);
        const Home home(isMac);
        QVERIFY(!terminal(home).isInstalled());
        QCOMPARE(failure(terminal(home).install()), QString());
        QVERIFY(terminal(home).isInstalled());
        QCOMPARE(home.content(zshrc), shellBlock);
        QCOMPARE(home.content(sshConfig), sshBlock);
        QCOMPARE(home.mode(sshConfig), mode_t(0600));
        QCOMPARE(home.mode(QStringLiteral(".ssh")), mode_t(0700));
        QCOMPARE(home.mode(QStringLiteral(".veldmark/bin/veldmark-active")), mode_t(0755));
        QCOMPARE(home.mode(QStringLiteral(".veldmark/ssh_config")), mode_t(0644));
        QVERIFY(!home.has(bashProfile));
        QCOMPARE(home.has(bashrc), !isMac);
        QVERIFY(!home.has(active));
        QVERIFY(home.content(QStringLiteral(".veldmark/shell.sh"))
                    .contains(home.profile.sessionMarker.toUtf8()));
        QVERIFY(home.content(QStringLiteral(".veldmark/ssh_config"))
                    .contains("ProxyCommand " + home.profile.places.root.toUtf8()
                              + "/usr/bin/nc -X 5"));
        QCOMPARE(home.content(QStringLiteral(".veldmark/shell.sh")).contains("Veldmark.app"),
                 isMac);
        QCOMPARE(terminal(home).sshHint(), QString());
        QVERIFY(terminal(home).isUsedBySsh());
    }

    void theConfigurationOfSshIsNeverWritableForOthers()
    {
        const Home home;
        ::umask(0);
        const auto installed = terminal(home).install();
        ::umask(022);
        QVERIFY(installed);
        QCOMPARE(home.mode(QStringLiteral(".veldmark/ssh_config")), mode_t(0644));
        QCOMPARE(home.mode(sshConfig), mode_t(0600));
    }

    void usesTheFilesOfTheSystem_data() { bothSystems(); }
    void usesTheFilesOfTheSystem()
    {
        QFETCH(bool, isMac);
        const Home home(isMac);
        for (const QString &name : {zshrc, bashrc, bashProfile})
            home.file(name, "mine\n", 0640);
        QVERIFY(terminal(home).install());
        const QByteArray with = "mine\n\n" + shellBlock;
        QCOMPARE(home.content(zshrc), with);
        QCOMPARE(home.content(bashProfile), isMac ? with : QByteArray("mine\n"));
        QCOMPARE(home.content(bashrc), isMac ? QByteArray("mine\n") : with);
        QCOMPARE(home.mode(zshrc), mode_t(0640));
    }

    void addsToExistingFilesAndGivesThemBack_data()
    {
        QTest::addColumn<bool>("isMac");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("cycles");
        for (const bool isMac : {false, true}) {
            const char *name = isMac ? "macos" : "linux";
            QTest::addRow("%s: lines", name)
                << isMac << QByteArray("export A=1\n\n\nexport B=2\n") << 100;
            QTest::addRow("%s: no line break at the end", name)
                << isMac << QByteArray("export A=1") << 100;
            QTest::addRow("%s: empty", name) << isMac << QByteArray() << 2;
            QTest::addRow("%s: empty lines at the end", name)
                << isMac << QByteArray("a\n\n\n") << 2;
            QTest::addRow("%s: CR LF", name) << isMac << QByteArray("a\r\nb\r\n") << 2;
            QTest::addRow("%s: no UTF-8", name)
                << isMac << QByteArray("\xff\xfe caf\xe9\n\0\n", 10) << 2;
            QTest::addRow("%s: a marker in a comment", name)
                << isMac << QByteArray("# about # >>> veldmark >>>\n") << 2;
            QTest::addRow("%s: 10 MB", name)
                << isMac << QByteArray("x=1 # line\n").repeated(1'000'000) << 2;
        }
    }

    void addsToExistingFilesAndGivesThemBack()
    {
        QFETCH(bool, isMac);
        QFETCH(QByteArray, text);
        QFETCH(int, cycles);
        const Home home(isMac);
        home.file(zshrc, text, 0644);
        home.file(sshConfig, text, 0640);
        for (int i = 0; i < cycles; ++i) {
            QVERIFY(terminal(home).install());
            if (i == 0)
                QVERIFY(terminal(home).install()); // once more adds no second block
            QCOMPARE(home.content(zshrc).count("\n# <<< veldmark <<<\n"), 1);
            QCOMPARE(home.content(sshConfig).count("\n# <<< veldmark <<<\n"), 1);
            QVERIFY(home.content(zshrc).endsWith(shellBlock));
            QVERIFY(
                home.content(sshConfig).startsWith(text.isEmpty() ? sshBlock : sshBlock + '\n'));
            QCOMPARE(failure(terminal(home).uninstall()), QString());
            QVERIFY(!home.has(QStringLiteral(".veldmark")));
        }
        QVERIFY(home.content(zshrc) == text);
        QVERIFY(home.content(sshConfig) == text);
        QCOMPARE(home.mode(zshrc), mode_t(0644));
        QCOMPARE(home.mode(sshConfig), mode_t(0640));
        // no leftovers
        QCOMPARE(home.names(QStringLiteral(".ssh")), QStringList{QStringLiteral("config")});
    }

    void whatTheUserAddsMeanwhileIsKept()
    {
        const Home home;
        home.file(bashrc, "first");
        home.file(sshConfig, "Host a\n");
        QVERIFY(terminal(home).install());
        home.file(bashrc, home.content(bashrc) + "added\n");
        home.file(sshConfig, "# above\n" + home.content(sshConfig));
        QVERIFY(terminal(home).uninstall());
        QCOMPARE(home.content(bashrc), QByteArray("first\nadded\n"));
        QCOMPARE(home.content(sshConfig), QByteArray("# above\nHost a\n"));
    }

    void withoutItsNotesOnlyTheBlockGoes()
    {
        const Home home;
        home.file(bashrc, "a\n");
        QVERIFY(terminal(home).install());
        QVERIFY(QDir(home.path(QStringLiteral(".veldmark"))).removeRecursively());
        QVERIFY(terminal(home).uninstall());
        QCOMPARE(home.content(bashrc), QByteArray("a\n\n"));
    }

    void itsNotesAreReadToTheirLimit()
    {
        const QString notes = QStringLiteral(".veldmark/separators.json");
        for (const qsizetype size : {65'536, 65'537}) {
            const Home home;
            home.file(bashrc, "a\n");
            QVERIFY(terminal(home).install());
            home.file(notes, home.content(notes).trimmed().rightJustified(size));
            QVERIFY(terminal(home).uninstall());
            QCOMPARE(home.content(bashrc), size == 65'536 ? QByteArray("a\n") : "a\n\n");
        }
    }

    void removesNothingWhereNothingIs_data() { bothSystems(); }
    void removesNothingWhereNothingIs()
    {
        QFETCH(bool, isMac);
        const Home home(isMac);
        QVERIFY(terminal(home).uninstall());
        QVERIFY(home.names(QString()).isEmpty());
        const QByteArray text("a\n\n# >>> veldmark >>>\nno end\n\xff");
        home.file(zshrc, text, 0400);
        QVERIFY(terminal(home).uninstall());
        QCOMPARE(home.content(zshrc), text);
    }

    void aHalfBlockIsLeftToTheUser()
    {
        const Home home;
        const QByteArray text = "a\n# >>> veldmark >>>\nb\n";
        home.file(bashrc, text);
        QVERIFY(terminal(home).install());
        QCOMPARE(home.content(bashrc), text);
        QVERIFY(terminal(home).uninstall());
        QCOMPARE(home.content(bashrc), text);
    }

    void linkedDotfilesStayLinked()
    {
        const Home home;
        home.file(QStringLiteral("dotfiles/bashrc"), "a\n");
        home.file(QStringLiteral("dotfiles/ssh/config"), "Host a\n", 0600);
        QFile::link(home.path(QStringLiteral("dotfiles/bashrc")), home.path(bashrc));
        QFile::link(home.path(QStringLiteral("dotfiles/ssh")), home.path(QStringLiteral(".ssh")));
        QVERIFY(terminal(home).install());
        QVERIFY(QFileInfo(home.path(bashrc)).isSymLink());
        QVERIFY(QFileInfo(home.path(QStringLiteral(".ssh"))).isSymLink());
        QCOMPARE(home.content(QStringLiteral("dotfiles/bashrc")), "a\n\n" + shellBlock);
        QCOMPARE(home.content(QStringLiteral("dotfiles/ssh/config")), sshBlock + "\nHost a\n");
        QVERIFY(terminal(home).uninstall());
        QVERIFY(QFileInfo(home.path(bashrc)).isSymLink());
        QCOMPARE(home.content(QStringLiteral("dotfiles/bashrc")), QByteArray("a\n"));
        QCOMPARE(home.content(QStringLiteral("dotfiles/ssh/config")), QByteArray("Host a\n"));
    }

    void aReadOnlyFileIsNamed()
    {
        const Home home;
        home.file(zshrc, "a\n", 0444);
        home.file(bashrc, "b\n");
        QCOMPARE(failure(terminal(home).install()),
                 home.path(zshrc) + QStringLiteral(" is read-only."));
        QCOMPARE(home.content(zshrc), QByteArray("a\n"));
        QCOMPARE(home.content(bashrc), QByteArray("b\n"));
        // Files that were written before stay, and the others follow once the obstacle has gone.
        QVERIFY(home.has(QStringLiteral(".veldmark/ssh_config")));
        ::chmod(QFile::encodeName(home.path(zshrc)).constData(), 0644);
        QVERIFY(terminal(home).install());
        QVERIFY(terminal(home).isInstalled());
        ::chmod(QFile::encodeName(home.path(zshrc)).constData(), 0444);
        QCOMPARE(failure(terminal(home).uninstall()),
                 home.path(zshrc) + QStringLiteral(" is read-only."));
        QVERIFY(home.has(QStringLiteral(".veldmark/shell.sh")));
    }

    void anObstacleIsNamed()
    {
        const Home home;
        home.file(QStringLiteral(".veldmark"), "a file");
        QVERIFY(failure(terminal(home).install())
                    .startsWith(home.path(QStringLiteral(".veldmark/bin"))
                                + QStringLiteral(" can't be created: ")));
        QCOMPARE(home.names(QString()), QStringList{QStringLiteral(".veldmark")});
        terminal(home).setActive(true); // does nothing, quietly
        QVERIFY(QFile::remove(home.path(QStringLiteral(".veldmark"))));
        QDir().mkpath(home.path(bashrc));
        QCOMPARE(failure(terminal(home).install()),
                 home.path(bashrc) + QStringLiteral(" is not a file."));
        QVERIFY(terminal(home).uninstall());
    }

    void anObstacleForSshIsNamed()
    {
        const Home home;
        QFile::link(home.path(QStringLiteral("gone/ssh")), home.path(QStringLiteral(".ssh")));
        QVERIFY2(failure(terminal(home).install())
                     .startsWith(home.path(QStringLiteral(".ssh"))
                                 + QStringLiteral(" can't be created: ")),
                 qPrintable(failure(terminal(home).install())));
        QVERIFY(QFile::remove(home.path(QStringLiteral(".ssh"))));
        QVERIFY(terminal(home).install());
        ::chmod(QFile::encodeName(home.path(sshConfig)).constData(), 0400);
        const QString readOnly = home.path(sshConfig) + QStringLiteral(" is read-only.");
        QCOMPARE(failure(terminal(home).uninstall()), readOnly);
        QVERIFY(home.has(QStringLiteral(".veldmark/ssh_config")));
        // Nor does it lose what its block names where the program for SOCKS has gone.
        QFile::remove(home.profile.places.root + QStringLiteral("/usr/bin/nc"));
        QCOMPARE(failure(terminal(home).install()), readOnly);
        QVERIFY(home.has(QStringLiteral(".veldmark/ssh_config")));
        QVERIFY(home.has(QStringLiteral(".veldmark/bin/veldmark-active")));
    }

    void theMarkerComesAndGoes_data() { bothSystems(); }
    void theMarkerComesAndGoes()
    {
        QFETCH(bool, isMac);
        const Home home(isMac);
        terminal(home).setActive(false);
        QVERIFY(home.names(QString()).isEmpty());
        terminal(home).setActive(true);
        QCOMPARE(home.content(active), QByteArray());
        QVERIFY(!terminal(home).isInstalled());
        home.file(active, "something else");
        terminal(home).setActive(true);
        QCOMPARE(home.content(active), QByteArray());
        QVERIFY(terminal(home).install());
        terminal(home).setActive(false);
        QVERIFY(!home.has(active));
        QVERIFY(home.has(QStringLiteral(".veldmark/shell.sh")));
        terminal(home).setActive(true);
        QVERIFY(terminal(home).uninstall());
        QVERIFY(!home.has(QStringLiteral(".veldmark")));
    }

    void isInstalledNeedsBothTheFileAndABlock()
    {
        const Home home;
        QVERIFY(terminal(home).install());
        home.file(zshrc, "# >>> veldmark >>> in a longer line\n");
        home.file(bashrc, "none\n");
        QVERIFY(!terminal(home).isInstalled());
        home.file(bashrc, shellBlock);
        QVERIFY(terminal(home).isInstalled());
        QFile::remove(home.path(QStringLiteral(".veldmark/shell.sh")));
        QVERIFY(!terminal(home).isInstalled());
    }

    void withoutASocksProgramSshIsLeftOut()
    {
        const Home home;
        home.file(sshConfig, "Host a\n", 0600);
        QVERIFY(terminal(home).install());
        QCOMPARE(home.content(sshConfig), sshBlock + "\nHost a\n");
        QFile::remove(home.profile.places.root + QStringLiteral("/usr/bin/nc"));
        QVERIFY(terminal(home).install());
        QCOMPARE(home.content(sshConfig), QByteArray("Host a\n"));
        QVERIFY(!home.has(QStringLiteral(".veldmark/ssh_config")));
        QVERIFY(!home.has(QStringLiteral(".veldmark/bin/veldmark-active")));
        QVERIFY(terminal(home).isInstalled());
        QVERIFY(!terminal(home).sshHint().isEmpty());
        QVERIFY(!terminal(home).isUsedBySsh());
    }

    void aLinkedFolderOfItsOwnIsOnlyUnlinked()
    {
        const Home home;
        home.file(QStringLiteral("elsewhere/keep"), "x");
        QFile::link(home.path(QStringLiteral("elsewhere")), home.path(QStringLiteral(".veldmark")));
        QVERIFY(terminal(home).install());
        QVERIFY(home.has(QStringLiteral("elsewhere/shell.sh")));
        QVERIFY(terminal(home).uninstall());
        QVERIFY(!home.has(QStringLiteral(".veldmark")));
        QCOMPARE(home.content(QStringLiteral("elsewhere/keep")), QByteArray("x"));
    }
};

VELDMARK_TEST(TerminalIntegrationTest)
#include "TerminalIntegrationTest.moc"
