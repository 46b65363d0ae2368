#include "HelperRuns.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace veldmark;
using Outcome = PrivilegedRunner::Outcome;
using Kind = HelperError::Kind;

namespace {

// The arguments that a shell makes of the command in an AppleScript source, as under osascript.
QStringList wordsThatReachTheShell(const QString &source)
{
    const QString before = QStringLiteral("do shell script \"");
    QString command;
    qsizetype at = before.size();
    for (; source.at(at) != u'"'; ++at)
        command += source.at(source.at(at) == u'\\' ? ++at : at);
    ChildProcessRunner runner;
    const auto result = QCoro::waitFor(
        runner.run(QStringLiteral("/bin/sh"),
                   {QStringLiteral("-c"),
                    QStringLiteral("for a in %1; do printf '%s\\n.' \"$a\"; done")
                        .replace(QLatin1String("%1"), command)}));
    QStringList words = result.value().stdout.split(QStringLiteral("\n."));
    words.removeLast();
    return words;
}

} // namespace

// PrivilegedRunner: the arguments of each system's administrator prompt, and the meaning of its
// answers.
class PrivilegedRunnerPromptTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void osascriptGetsTheExactSource()
    {
        StandIns system(false);
        system.helper("exit 0");
        system.dialog("exit 0");
        PrivilegedRunner runner = system.runner();
        QVERIFY(run(runner, {QStringLiteral("launch"), QStringLiteral("it's")}));
        QCOMPARE(
            system.argumentsOf(system.profile.promptProgram).value(),
            QStringList({QStringLiteral("-e"),
                         QStringLiteral("do shell script \"'/bin/bash' '%1' 'launch' 'it'\\\\''s'\""
                                        " with prompt \"Veldmark needs administrator access to"
                                        " manage Tor routing on this Mac.\""
                                        " with administrator privileges")
                             .arg(system.helperPath())}));
    }

    void everyWordSurvivesTheQuoting()
    {
        const QString source = appleScriptSource(hostileArguments, QStringLiteral("Why."));
        QVERIFY(source.endsWith(
            QStringLiteral("\" with prompt \"Why.\" with administrator privileges")));
        QCOMPARE(wordsThatReachTheShell(source), hostileArguments);
    }

    void aDismissedOsascriptDialogIsCancelled()
    {
        StandIns system(false);
        system.helper("exit 0");
        PrivilegedRunner runner = system.runner();
        system.dialog("echo '0:99: execution error: ERROR: anything. (-128)' >&2; exit 1");
        QCOMPARE(run(runner, verb).error().kind(), Kind::Cancelled);
        QCOMPARE(run(runner, verb).error().description(), QStringLiteral("Cancelled."));
        system.dialog("echo '0:99: execution error: ERROR: pf is off (1)' >&2; exit 1");
        QCOMPARE(run(runner, verb).error().description(), QStringLiteral("pf is off"));
    }

    void osascriptsDialogNamesTheProgramToApprove()
    {
        StandIns system(false);
        system.helper("exit 0");
        system.dialog("exit 0");
        PrivilegedRunner runner = system.runner();
        const QStringList words = {QStringLiteral("approve"),
                                   QStringLiteral("--program"),
                                   QStringLiteral("/Users/a/\"tor\""),
                                   QStringLiteral("--as"),
                                   QStringLiteral("tor"),
                                   QStringLiteral("--sha256"),
                                   QStringLiteral("abcd")};
        QVERIFY(QCoro::waitFor(runner.runWithPrompt(words)));
        const QString source = system.argumentsOf(system.profile.promptProgram)->last();
        QVERIFY2(source.contains(QStringLiteral(
                     "with prompt \"Veldmark wants to run /Users/a/\\\"tor\\\" as a part of Tor.")),
                 qPrintable(source));
        QVERIFY(source.contains(
            QStringLiteral("Its SHA-256 is abcd.\" with administrator privileges")));
    }

    void pkexecRunsTheHelperItself()
    {
        StandIns system(true);
        system.helper("echo \"helper ran\"");
        system.dialog("exec \"$@\"");
        PrivilegedRunner runner = system.runner();
        QCOMPARE(run(runner, hostileArguments).value(), QStringLiteral("helper ran\n"));
        QCOMPARE(system.argumentsOf(system.profile.promptProgram).value(),
                 QStringList(system.helperPath()) + hostileArguments);
        QCOMPARE(system.argumentsOf(system.helperPath()).value(), hostileArguments);
    }

    void pkexecsOwnStatusesAreToldFromTheHelpers_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<QString>("description");
        const QString noAgent = QStringLiteral(
            "Administrator access can't be asked for: no PolicyKit "
            "authentication agent is running in this session.");
        const QString refused = QStringLiteral(
            "Administrator access was refused, or the agent that asks for the password gave no answer.");
        QTest::newRow("dismissed") << QByteArray(
            "echo 'Error executing command as another user: Request dismissed' >&2; exit 126")
                                   << Kind::Cancelled << QStringLiteral("Cancelled.");
        QTest::newRow("dismissed in silence")
            << QByteArray("exit 126") << Kind::Cancelled << QStringLiteral("Cancelled.");
        QTest::newRow("no agent") << QByteArray(
            "echo 'Error executing command as another user: No authentication agent found.' >&2; exit 127")
                                  << Kind::Failed << noAgent;
        QTest::newRow("no terminal for the agent") << QByteArray(
            "echo 'Error creating textual authentication agent: No such device' >&2; exit 127")
                                                   << Kind::Failed << noAgent;
        QTest::newRow("not authorised") << QByteArray(
            "printf '%s\\n\\n%s\\n' 'Error executing command as another user: Not authorized'"
            " 'This incident has been reported.' >&2; exit 127")
                                        << Kind::Failed << refused;
        QTest::newRow("asked on a terminal in vain")
            << QByteArray(
                   "printf '%s\\n' 'polkit-agent-helper-1: error response to PolicyKit daemon: GDBus.Error:"
                   "org.freedesktop.PolicyKit1.Error.Failed: No session for cookie'"
                   " 'Error executing command as another user: Not authorized' >&2; exit 127")
            << Kind::Failed
            << QStringLiteral(
                   "The password could not be checked: polkit accepts no password from this terminal. Run the command with sudo.");
        QTest::newRow("the helper's own 127")
            << QByteArray("echo 'ERROR: tor was not found' >&2; exit 127") << Kind::Failed
            << QStringLiteral("tor was not found");
        QTest::newRow("the helper's own 126")
            << QByteArray("echo 'ERROR: tor may not be run' >&2; exit 126") << Kind::Failed
            << QStringLiteral("tor may not be run");
        QTest::newRow("the helper quotes pkexec")
            << QByteArray(
                   "echo 'ERROR: Error executing command as another user: Not authorized' >&2; exit 127")
            << Kind::Failed
            << QStringLiteral("Error executing command as another user: Not authorized");
        QTest::newRow("the shell's own 126")
            << QByteArray("echo \"$1: line 3: /x: Permission denied\" >&2; exit 126")
            << Kind::Failed << QStringLiteral("%1: line 3: /x: Permission denied");
        QTest::newRow("silent 127")
            << QByteArray("exit 127") << Kind::Failed
            << QStringLiteral("The helper failed without an error message.");
        QTest::newRow("an ordinary failure")
            << QByteArray("echo 'ERROR: no' >&2; exit 1") << Kind::Failed << QStringLiteral("no");
    }

    void pkexecsOwnStatusesAreToldFromTheHelpers()
    {
        QFETCH(QByteArray, script);
        QFETCH(Kind, kind);
        QFETCH(QString, description);
        StandIns system(true);
        system.helper("exit 0");
        system.dialog(script);
        PrivilegedRunner runner = system.runner();
        const Outcome outcome = run(runner, verb);
        QVERIFY(!outcome);
        QCOMPARE(outcome.error().kind(), kind);
        QCOMPARE(outcome.error().description(),
                 description.replace(QLatin1String("%1"), system.helperPath()));
    }

    void aPromptedRunTakesAnotherScriptAndNeverSudo()
    {
        StandIns system(true);
        system.installPasswordless();
        system.sudo("exit 0");
        system.dialog("exit 0");
        PrivilegedRunner runner = system.runner();
        const QString other = QStringLiteral("/somewhere/other.sh");
        QVERIFY(QCoro::waitFor(runner.runWithPrompt(verb, other)));
        QCOMPARE(system.argumentsOf(system.profile.promptProgram).value(),
                 QStringList(other) + verb);
        QVERIFY(!system.argumentsOf(system.profile.sudo));
        QCOMPARE(QCoro::waitFor(runner.runWithPrompt(verb)).error().kind(), Kind::MissingHelper);
    }

    void errorsAreCleaned_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("cleaned");
        const QString silent = QStringLiteral("The helper failed without an error message.");
        const auto row = [](const char *name, const char *text, const QString &cleaned) {
            QTest::newRow(name) << QString::fromUtf8(text) << cleaned;
        };
        row("plain", "  pf failed \n", QStringLiteral("pf failed"));
        row("marked", "ERROR: pf failed\n", QStringLiteral("pf failed"));
        row("osascript", "0:140: execution error: ERROR: pf failed (1)\n",
            QStringLiteral("pf failed"));
        row("negative number", "execution error: x (-2700)", QStringLiteral("x"));
        row("first heading only", "execution error: a execution error: b",
            QStringLiteral("a execution error: b"));
        row("number not at the end", "a (1) b", QStringLiteral("a (1) b"));
        row("number without blank", "a(1)", QStringLiteral("a(1)"));
        row("last number only", "a (1) (2)", QStringLiteral("a (1)"));
        row("mark not at the start", "a ERROR: b", QStringLiteral("a ERROR: b"));
        row("marked twice", "ERROR: ERROR: b", QStringLiteral("ERROR: b"));
        row("two lines", "one\ntwo (3)", QStringLiteral("one\ntwo"));
        row("number on an inner line", "one (3)\ntwo", QStringLiteral("one (3)\ntwo"));
        row("empty", "", silent);
        row("white space", " \n\t", silent);
        row("only a number", "execution error:  (1)", silent);
        row("only headings", "0:1: execution error: ERROR:  (1)", silent);
    }

    void errorsAreCleaned()
    {
        QFETCH(QString, text);
        QTEST(PrivilegedRunner::cleanError(text).english(), "cleaned");
    }
};

VELDMARK_TEST(PrivilegedRunnerPromptTest)
#include "PrivilegedRunnerPromptTest.moc"
