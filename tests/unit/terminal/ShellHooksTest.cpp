#include "terminal/TerminalIntegration.h"

#include "Home.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace veldmark;

namespace {

// A home with terminal mode installed, and real shells in it. The lines of a script are typed at an
// interactive shell one by one. Before each line it shows a prompt and so runs its hooks. `on`
// and `off` in a script connect and disconnect.
struct Shell {
    explicit Shell(bool isMac = false) : home(isMac) { }

    void install() const
    {
        const TerminalIntegration terminal(home.profile, exitCheck);
        if (!terminal.install())
            qFatal("cannot install");
        terminal.setActive(true);
        QDir().mkpath(QFileInfo(home.profile.sessionMarker).path());
    }

    // What the script prints on lines that begin with "=".
    QStringList type(const QString &shell, const QByteArray &script,
                     QProcessEnvironment environment = {}, const QStringList &options = {})
    {
        environment.insert(QStringLiteral("HOME"), home.path(QString()));
        environment.insert(QStringLiteral("PATH"), QStringLiteral("/usr/bin:/bin"));
        environment.insert(QStringLiteral("TERM"), QStringLiteral("dumb"));
        environment.insert(QStringLiteral("MARKER"), home.profile.sessionMarker);
        if (shell == u"zsh")
            environment.insert(QStringLiteral("ZDOTDIR"), home.path(QString()));
        QByteArray typed;
        for (const QByteArray &line : script.split('\n')) {
            typed += line == "on" ? QByteArray(": > \"$MARKER\"")
                : line == "off"   ? QByteArray("rm -f \"$MARKER\"")
                                  : line;
            typed += '\n';
        }
        // zsh would read the computer's own start-up files first; they are left out.
        const QStringList noGlobals = shell == u"zsh" ? QStringList{QStringLiteral("-d")}
                                                      : QStringList();
        const Ended ended = run(QStringLiteral("/usr/bin/") + shell,
                                noGlobals + options + QStringList{QStringLiteral("-i")},
                                environment, typed);
        errors = ended.errors;
        QStringList said;
        for (const QByteArray &line : ended.output.split('\n')) {
            if (line.startsWith('='))
                said.append(QString::fromUtf8(line.sliced(1)));
        }
        return said;
    }

    Home home;
    QByteArray errors; // the last script's output, with prompts
};

const QString proxy = QStringLiteral("socks5h://127.0.0.1:9050");
const QString direct = QStringLiteral("localhost,127.0.0.1,::1");
const QByteArray all
    = "echo \"=$ALL_PROXY|$all_proxy|$HTTP_PROXY|$http_proxy|$HTTPS_PROXY|$https_proxy|$NO_PROXY|$no_proxy|$VELDMARK_ACTIVE\"";
const QString allOn
    = QStringList{proxy, proxy, proxy, proxy, proxy, proxy, direct, direct, QStringLiteral("1")}
          .join(u'|');
const QString allOff = QStringLiteral("||||||||");

QProcessEnvironment with(const QString &name, const QString &value)
{
    QProcessEnvironment environment;
    environment.insert(name, value);
    return environment;
}

} // namespace

class ShellHooksTest : public QObject {
    Q_OBJECT

    static void shells()
    {
        QTest::addColumn<QString>("shell");
        QTest::addColumn<bool>("isMac"); // whose files
        for (const bool isMac : {false, true}) {
            const char *name = isMac ? "macos" : "linux";
            QTest::addRow("bash, %s", name) << "bash" << isMac;
            QTest::addRow("zsh, %s", name) << "zsh" << isMac;
        }
    }

    // On the Mac a bash that is no login shell reads none of the files, so the test gives it the
    // block's line.
    static void prepare(Shell &shell, const QString &program, bool isMac,
                        const QByteArray &own = {})
    {
        shell.home.file(program == u"zsh" ? QStringLiteral(".zshrc") : QStringLiteral(".bashrc"),
                        own);
        shell.install();
        if (isMac && program == u"bash")
            shell.home.file(QStringLiteral(".bashrc"), own + "\n. \"$HOME/.veldmark/shell.sh\"\n");
    }

private Q_SLOTS:
    void initTestCase()
    {
        for (const char *program : {"bash", "zsh", "dash"})
            QVERIFY2(QFile::exists(QStringLiteral("/usr/bin/") + QLatin1String(program)), program);
    }

    void theNextPromptFollowsTheSession_data() { shells(); }
    void theNextPromptFollowsTheSession()
    {
        QFETCH(QString, shell);
        QFETCH(bool, isMac);
        Shell s(isMac);
        prepare(s, shell, isMac);
        const QByteArray script = all + "\non\n" + all + "\n" + all
            + "\nenv | sed -n 's/^ALL_PROXY=/=/p'\noff\n" + all
            + "\nenv | sed -n 's/^[A-Za-z]*_PROXY=/=left /p; s/^_*VELDMARK[A-Z_a-z]*=/=left /p'\non\n"
            + all + "\nrm \"$HOME/.veldmark/active\"\n" + all;
        QCOMPARE(s.type(shell, script),
                 QStringList({allOff, allOn, allOn, proxy, allOff, allOn, allOff}));
    }

    void aShellOpenedDuringTheSessionHasItAtOnce_data() { shells(); }
    void aShellOpenedDuringTheSessionHasItAtOnce()
    {
        QFETCH(QString, shell);
        QFETCH(bool, isMac);
        Shell s(isMac);
        prepare(s, shell, isMac);
        s.home.file(s.home.profile.sessionMarker, "strict");
        QCOMPARE(s.type(shell, all + "\noff\n" + all), QStringList({allOn, allOff}));
    }

    void theUsersVariablesComeBack_data()
    {
        QTest::addColumn<QString>("shell");
        QTest::newRow("bash") << "bash";
        QTest::newRow("zsh") << "zsh";
    }

    void theUsersVariablesComeBack()
    {
        QFETCH(QString, shell);
        Shell s;
        prepare(s, shell, false,
                "export no_proxy='a b' HTTP_PROXY='http://u:p$x\"'\\''*`@h:1/ ;é' https_proxy=\n");
        const QByteArray show
            = "echo \"=$ALL_PROXY|$HTTP_PROXY|$no_proxy|${https_proxy-unset}|${http_proxy-unset}\"";
        const QString mine = QStringLiteral("socks5://mine:1|http://u:p$x\"'*`@h:1/ ;é|a b||unset");
        const QString ours = QStringList{proxy, proxy, direct, proxy, proxy}.join(u'|');
        const QByteArray script = show + "\non\n" + show + "\noff\n" + show + "\non\n" + show
            + "\noff\n" + show + "\nenv | sed -n 's/^VELDMARK.*/=left &/p'";
        QCOMPARE(s.type(shell, script,
                        with(QStringLiteral("ALL_PROXY"), QStringLiteral("socks5://mine:1"))),
                 QStringList({mine, ours, mine, ours, mine}));
    }

    void whatTheUserChangesDuringTheSessionStays_data() { theUsersVariablesComeBack_data(); }
    void whatTheUserChangesDuringTheSessionStays()
    {
        QFETCH(QString, shell);
        Shell s;
        prepare(s, shell, false, "export http_proxy=before\n");
        const QByteArray show
            = "echo \"=${HTTP_PROXY-unset}|${http_proxy-unset}|${ALL_PROXY-unset}\"";
        const QByteArray script = "on\nexport HTTP_PROXY=new http_proxy=newer; unset ALL_PROXY\n"
            + show + "\noff\n" + show;
        QCOMPARE(
            s.type(shell, script),
            QStringList({QStringLiteral("new|newer|unset"), QStringLiteral("new|newer|unset")}));
    }

    void aShellWithinGivesBackTheVariablesToo_data() { theUsersVariablesComeBack_data(); }
    void aShellWithinGivesBackTheVariablesToo()
    {
        QFETCH(QString, shell);
        Shell s;
        prepare(s, shell, false, "[ -n \"${INNER:-}\" ] || export HTTP_PROXY=mine\n");
        const QByteArray inner = shell == u"zsh" ? QByteArray("zsh -d -i") : QByteArray("bash -i");
        const QByteArray script = "on\nINNER=1 " + inner
            + " <<'END'\necho \"=$HTTP_PROXY\"\nrm -f \"$MARKER\"\necho \"=$HTTP_PROXY $ALL_PROXY\"\nEND\n"
              "echo \"=$HTTP_PROXY $ALL_PROXY\"";
        QCOMPARE(s.type(shell, script),
                 QStringList({proxy, QStringLiteral("mine "), QStringLiteral("mine ")}));
    }

    void theUsersPromptCommandsSurvive_data()
    {
        QTest::addColumn<bool>("isMac");
        QTest::addColumn<QByteArray>("own");
        QTest::addColumn<QStringList>("said"); // at the first prompt
        for (const bool isMac : {false, true}) {
            const char *name = isMac ? "macos" : "linux";
            QTest::addRow("text, %s", name)
                << isMac << QByteArray("PROMPT_COMMAND='echo =one; echo =two'\n")
                << QStringList{QStringLiteral("one"), QStringLiteral("two")};
            QTest::addRow("list, %s", name)
                << isMac << QByteArray("PROMPT_COMMAND=('echo =one' 'echo =two')\n")
                << QStringList{QStringLiteral("one"), QStringLiteral("two")};
            QTest::addRow("list without a first, %s", name)
                << isMac << QByteArray("PROMPT_COMMAND=([3]='echo =one')\n")
                << QStringList{QStringLiteral("one")};
            QTest::addRow("none, %s", name) << isMac << QByteArray() << QStringList();
        }
    }

    void theUsersPromptCommandsSurvive()
    {
        QFETCH(bool, isMac);
        QFETCH(QByteArray, own);
        QFETCH(QStringList, said);
        Shell s(isMac);
        prepare(s, QStringLiteral("bash"), isMac, own);
        // A file that is read twice adds its hook once.
        const QByteArray script
            = ". \"$HOME/.veldmark/shell.sh\"\necho \"=hooks $(declare -p PROMPT_COMMAND | grep -o _veldmark_sync | wc -l)\"\non\necho \"=$ALL_PROXY\"";
        const QStringList seen = s.type(QStringLiteral("bash"), script);
        QStringList expected = said + said;
        expected += QStringLiteral("hooks 1");
        expected += said + said;
        expected += proxy;
        expected += said;
        QCOMPARE(seen, expected);
    }

    void zshsOwnHooksSurvive()
    {
        Shell s;
        prepare(s, QStringLiteral("zsh"), false, "precmd() { echo \"=own\" }\n");
        QCOMPARE(s.type(QStringLiteral("zsh"), "on\necho \"=$ALL_PROXY\""),
                 QStringList(
                     {QStringLiteral("own"), QStringLiteral("own"), proxy, QStringLiteral("own")}));
    }

    void thePromptStillKnowsTheLastStatus()
    {
        Shell s;
        prepare(s, QStringLiteral("bash"), false, "PROMPT_COMMAND='echo \"=$?\"'\n");
        QCOMPARE(s.type(QStringLiteral("bash"), "(exit 7)\n(exit 3); on\n(exit 9)").last(),
                 QStringLiteral("9"));
        Shell z;
        prepare(z, QStringLiteral("zsh"), false, "precmd() { echo \"=$?\" }\n");
        QVERIFY(z.type(QStringLiteral("zsh"), "(exit 7)").contains(QStringLiteral("7")));
    }

    void strictShellsDoNotMind_data()
    {
        QTest::addColumn<QString>("shell");
        QTest::addColumn<QByteArray>("own");
        QTest::newRow("bash, unset variables") << "bash" << QByteArray("set -u\n");
        QTest::newRow("zsh, unset variables") << "zsh" << QByteArray("setopt no_unset\n");
        QTest::newRow("zsh, new globals") << "zsh" << QByteArray("setopt warn_create_global\n");
        QTest::newRow("zsh, arrays as in ksh")
            << "zsh" << QByteArray("setopt ksh_arrays sh_word_split\n");
        QTest::newRow("bash, as POSIX has it") << "bash" << QByteArray("set -o posix\n");
    }

    void strictShellsDoNotMind()
    {
        QFETCH(QString, shell);
        QFETCH(QByteArray, own);
        Shell s;
        prepare(s, shell, false, own);
        const QByteArray show = "echo \"=${ALL_PROXY-unset}\"";
        QCOMPARE(s.type(shell, "on\n" + show + "\noff\n" + show),
                 QStringList({proxy, QStringLiteral("unset")}));
        QVERIFY2(!s.errors.contains("_veldmark"), s.errors.constData());
    }

    void otherShellsReadItWithoutHarm_data()
    {
        QTest::addColumn<bool>("isMac");
        QTest::newRow("linux") << false;
        QTest::newRow("macos") << true;
    }

    void otherShellsReadItWithoutHarm()
    {
        QFETCH(bool, isMac);
        Shell s(isMac);
        s.install();
        const QByteArray script
            = "set -eu\n. \"$HOME/.veldmark/shell.sh\"\necho \"=${ALL_PROXY-unset} ${PROMPT_COMMAND-unset}\"\n: > \"$MARKER\"\n"
              "_veldmark_sync\necho \"=$ALL_PROXY\"\nrm \"$MARKER\"\n_veldmark_sync\necho \"=${ALL_PROXY-unset}\"\n";
        s.home.file(QStringLiteral("script"), script);
        QProcessEnvironment environment = with(QStringLiteral("HOME"), s.home.path(QString()));
        environment.insert(QStringLiteral("MARKER"), s.home.profile.sessionMarker);
        environment.insert(QStringLiteral("PATH"), QStringLiteral("/usr/bin:/bin"));
        for (const char *shell : {"dash", "bash"}) {
            const Ended ended = run(QStringLiteral("/usr/bin/") + QLatin1String(shell),
                                    {s.home.path(QStringLiteral("script"))}, environment);
            QCOMPARE(ended.errors, QByteArray());
            QCOMPARE(ended.status, 0);
            const QByteArray prompt = QByteArray(shell) == "bash" ? "_veldmark_sync" : "unset";
            QCOMPARE(ended.output, "=unset " + prompt + "\n=" + proxy.toUtf8() + "\n=unset\n");
        }
    }

    void sshAsksTheTestProgram_data()
    {
        QTest::addColumn<QString>("host");
        QTest::addColumn<bool>("throughTor");
        QTest::newRow("public name") << "example.org" << true;
        QTest::newRow("public address") << "192.0.2.1" << true;
        QTest::newRow("private address") << "192.168.77.9" << false;
        QTest::newRow("neighbour") << "printer.local" << false;
    }

    void sshAsksTheTestProgram()
    {
        QFETCH(QString, host);
        QFETCH(bool, throughTor);
        Shell s;
        s.install();
        const QString ssh = QStringLiteral("/usr/bin/ssh");
        QVERIFY2(QFile::exists(ssh), "needs the package openssh-client");
        QProcessEnvironment environment = with(QStringLiteral("HOME"), s.home.path(QString()));
        environment.insert(QStringLiteral("SHELL"), QStringLiteral("/bin/sh"));
        // ssh takes "~" from the account, not from the environment, so the test names the file
        // itself.
        const auto command = [&] {
            const Ended ended = run(ssh,
                                    {QStringLiteral("-G"), QStringLiteral("-F"),
                                     s.home.path(QStringLiteral(".veldmark/ssh_config")), host},
                                    environment);
            return ended.status == 0 ? ended.output : "failed: " + ended.errors;
        };
        QVERIFY2(!command().contains("proxycommand"), command().constData());
        s.home.file(s.home.profile.sessionMarker, "strict");
        const QByteArray now = command();
        QVERIFY2(now.contains("hostname "), now.constData());
        QCOMPARE(now.contains("proxycommand " + s.home.profile.places.root.toUtf8()
                              + "/usr/bin/nc -X 5 -x 127.0.0.1:9050"),
                 throughTor);
    }
};

VELDMARK_TEST(ShellHooksTest)
#include "ShellHooksTest.moc"
