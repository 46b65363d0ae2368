#include "terminal/TerminalFiles.h"

#include "Home.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace veldmark;

namespace {

const TerminalNames mac{QStringLiteral("Veldmark.app"),
                        QStringLiteral("/Library/Application Support/Veldmark/state/active"),
                        exitCheck, false};
const TerminalNames linux_{QStringLiteral("Veldmark"),
                           QStringLiteral("/var/lib/veldmark/state/active"), exitCheck, true};
const QString netcat = QStringLiteral("/usr/bin/nc -X 5 -x 127.0.0.1:9050 %h %p");

const char *const macShellFile[] = {
    "# Veldmark terminal mode. Managed by Veldmark.app; safe to leave in place.",
    "# While Veldmark is connected with Terminal mode on, command-line tools use Tor.",
    "",
    "_veldmark_is_on() {",
    "  [ -f \"$HOME/.veldmark/active\" ] && [ -f \"/Library/Application Support/Veldmark/state/active\" ]",
    "}",
    "",
    "_veldmark_sync() {",
    "  if _veldmark_is_on; then",
    "    if [ -z \"${VELDMARK_ACTIVE:-}\" ]; then",
    "      _veldmark_p=\"socks5h://127.0.0.1:9050\"",
    "      export ALL_PROXY=\"$_veldmark_p\" all_proxy=\"$_veldmark_p\"",
    "      export HTTP_PROXY=\"$_veldmark_p\" http_proxy=\"$_veldmark_p\"",
    "      export HTTPS_PROXY=\"$_veldmark_p\" https_proxy=\"$_veldmark_p\"",
    "      export NO_PROXY=\"localhost,127.0.0.1,::1\" no_proxy=\"localhost,127.0.0.1,::1\"",
    "      export VELDMARK_ACTIVE=1",
    "      unset _veldmark_p",
    "    fi",
    "  elif [ -n \"${VELDMARK_ACTIVE:-}\" ]; then",
    "    unset ALL_PROXY all_proxy HTTP_PROXY http_proxy HTTPS_PROXY https_proxy \\",
    "          NO_PROXY no_proxy VELDMARK_ACTIVE",
    "  fi",
    "}",
    "",
    "# Show your current exit IP (goes through Tor when terminal mode is on).",
    "torip() {",
    "  _veldmark_sync",
    "  curl -s --max-time 30 https://check.example/api/ip; echo",
    "}",
    "",
    "_veldmark_sync",
    "",
    "if [ -n \"${ZSH_VERSION:-}\" ]; then",
    "  autoload -Uz add-zsh-hook 2>/dev/null && add-zsh-hook precmd _veldmark_sync",
    "elif [ -n \"${BASH_VERSION:-}\" ]; then",
    "  case \";${PROMPT_COMMAND:-};\" in",
    "    *\";_veldmark_sync;\"*) ;;",
    "    *) PROMPT_COMMAND=\"_veldmark_sync${PROMPT_COMMAND:+;$PROMPT_COMMAND}\" ;;",
    "  esac",
    "fi",
};

} // namespace

class TerminalFilesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void theMacsShellFileIsWordForWord()
    {
        const QList<QByteArray> lines = shellFile(mac).split('\n');
        QCOMPARE(lines.size(), 40);
        for (qsizetype i = 0; i < lines.size(); ++i)
            QCOMPARE(lines[i], QByteArray(macShellFile[i]));
    }

    void theOtherSystemsShellFileSharesAllButTheVariables()
    {
        const QList<QByteArray> lines = shellFile(linux_).split('\n');
        QCOMPARE(
            lines.first(),
            QByteArray("# Veldmark terminal mode. Managed by Veldmark; safe to leave in place."));
        QVERIFY(lines.contains(
            "  [ -f \"$HOME/.veldmark/active\" ] && [ -f \"/var/lib/veldmark/state/active\" ]"));
        for (qsizetype i = 23; i < 40; ++i) // from torip on
            QCOMPARE(lines[lines.size() - 40 + i], QByteArray(macShellFile[i]));
        for (const QByteArray &line : lines)
            QVERIFY(!line.contains(".app"));
    }

    void theSshFileSendsThroughTheProgram()
    {
        QCOMPARE(sshFile(mac, netcat),
                 QByteArray(
                     "# Veldmark terminal mode. Managed by Veldmark.app; safe to leave in place.\n"
                     "# While Veldmark is connected with Terminal mode on, ssh goes through Tor.\n"
                     "Match exec \"$HOME/.veldmark/bin/veldmark-active %h\"\n"
                     "    ProxyCommand /usr/bin/nc -X 5 -x 127.0.0.1:9050 %h %p"));
    }

    void theTestProgramIsWordForWord()
    {
        QCOMPARE(
            activeProgram(mac),
            QByteArray("#!/bin/sh\n"
                       "# Exit 0 when ssh to host $1 should go through Tor.\n"
                       "[ -f \"$HOME/.veldmark/active\" ] || exit 1\n"
                       "[ -f \"/Library/Application Support/Veldmark/state/active\" ] || exit 1\n"
                       "case \"$1\" in\n"
                       "  localhost|::1|*.local) exit 1 ;;\n"
                       "  [0-9]*[!0-9.]*) exit 0 ;;\n"
                       "  127.*|10.*|192.168.*|169.254.*) exit 1 ;;\n"
                       "  172.1[6-9].*|172.2[0-9].*|172.3[01].*) exit 1 ;;\n"
                       "esac\n"
                       "exit 0"));
    }

    void shellcheckFindsNothing_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("shell");
        for (const char *shell : {"sh", "dash", "bash", "ksh"}) {
            QTest::addRow("macos shell.sh as %s", shell)
                << shellFile(mac) << QString::fromLatin1(shell);
            QTest::addRow("linux shell.sh as %s", shell)
                << shellFile(linux_) << QString::fromLatin1(shell);
            QTest::addRow("veldmark-active as %s", shell)
                << activeProgram(linux_) << QString::fromLatin1(shell);
        }
    }

    void shellcheckFindsNothing()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, shell);
        const QString shellcheck = QStringLiteral("/usr/bin/shellcheck");
        QVERIFY2(QFile::exists(shellcheck), "needs the package shellcheck");
        const QStringList arguments = {QStringLiteral("--norc"), QStringLiteral("-s"), shell,
                                       QStringLiteral("-")};
        const QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        QVERIFY(run(shellcheck, arguments, environment, content + "\nx=$(echo $y)\n").status != 0);
        const Ended clean = run(shellcheck, arguments, environment, content + '\n');
        QVERIFY2(clean.status == 0, (clean.output + clean.errors).constData());
    }

    void decidesWhichHostsGoThroughTor_data()
    {
        QTest::addColumn<QByteArray>("host");
        QTest::addColumn<int>("status");
        for (const char *host :
             {"example.org", "192.0.2.1", "172.15.0.1", "172.32.0.1", "11.0.0.1", "2001:db8::1",
              "local", "localhost.example.org", "192.169.0.1", "a.locale", "-h", "$(exit 1)", "",
              "*", "10.example.org", "127.a.b", "192.168.example.net", "169.254.x",
              "172.16.example.org"})
            QTest::newRow(host) << QByteArray(host) << 0;
        for (const char *host : {"localhost", "127.0.0.1", "127.1.2.3", "::1", "10.0.0.1",
                                 "192.168.77.9", "169.254.1.1", "printer.local", "172.16.0.1",
                                 "172.20.1.5", "172.29.0.1", "172.31.255.255", "1printer.local"})
            QTest::newRow(host) << QByteArray(host) << 1;
    }

    void decidesWhichHostsGoThroughTor()
    {
        QFETCH(QByteArray, host);
        QFETCH(int, status);
        const Home home;
        const QString session = home.path(QStringLiteral("state of it/active"));
        const QString program = home.path(QStringLiteral("bin/veldmark-active"));
        home.file(program, activeProgram({QString(), session, QString()}), 0755);
        QProcessEnvironment environment;
        environment.insert(QStringLiteral("HOME"), home.path(QString()));
        const auto decide = [&] {
            return run(program, {QString::fromLatin1(host)}, environment).status;
        };
        QCOMPARE(decide(), 1);
        home.file(session, QByteArray("strict"));
        QCOMPARE(decide(), 1);
        home.file(QStringLiteral(".veldmark/active"), QByteArray());
        QCOMPARE(decide(), status);
        QFile::remove(session);
        QCOMPARE(decide(), 1);
    }
};

VELDMARK_TEST(TerminalFilesTest)
#include "TerminalFilesTest.moc"
