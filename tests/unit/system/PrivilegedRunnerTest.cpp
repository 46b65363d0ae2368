#include "system/PrivilegedRunner.h"

#include "base/ResumeOnce.h"
#include "unit/system/StandIns.h"

#include <QTest>

#include <memory>

using namespace veldmark;
using Outcome = PrivilegedRunner::Outcome;
using Kind = HelperError::Kind;

namespace {

// The words that a shell makes of the command within an AppleScript source, as osascript would.
QStringList wordsThatReachTheShell(const QString &source)
{
    const QString before = QStringLiteral("do shell script \"");
    QString command;
    qsizetype at = before.size();
    for (; source.at(at) != u'"'; ++at)
        command += source.at(source.at(at) == u'\\' ? ++at : at);
    ChildProcessRunner runner;
    const auto result = QCoro::waitFor(runner.run(
        QStringLiteral("/bin/sh"),
        {QStringLiteral("-c"), QStringLiteral("for a in %1; do printf '%s\\n.' \"$a\"; done")
                                   .replace(QLatin1String("%1"), command)}));
    QStringList words = result.value().stdout.split(QStringLiteral("\n."));
    words.removeLast();
    return words;
}

Outcome run(PrivilegedRunner &runner, QStringList arguments)
{
    return QCoro::waitFor(runner.runHelper(arguments));
}

// Answers when it is told to.
class SlowRunner final : public ProcessRunner {
public:
    QCoro::Task<Result<ProcessResult, StartError>> run(QString, QStringList) override
    {
        const auto wait = answer;
        const ProcessResult result = co_await wait;
        co_return result;
    }
    ResumeOnce<ProcessResult> answer;
};

const QStringList verb = {QStringLiteral("disconnect")};
const QStringList hostileArguments = {
    QStringLiteral("connect"), QStringLiteral("--tor"), QStringLiteral("/Users/o'neill/\"x\"\\tor"),
    QString::fromUtf8(""), QStringLiteral("a b\nc"), QStringLiteral("$HOME `id` \\\\ \\\" '' !"),
    QString::fromUtf8("Brücke")};

} // namespace

class PrivilegedRunnerTest : public QObject {
    Q_OBJECT
private:
    void bothSystems_data()
    {
        QTest::addColumn<bool>("linux");
        QTest::newRow("linux") << true;
        QTest::newRow("macos") << false;
    }

private Q_SLOTS:
    void passwordlessNeedsTheCopyAndTheRule_data() { bothSystems_data(); }
    void passwordlessNeedsTheCopyAndTheRule()
    {
        QFETCH(bool, linux);
        StandIns system(linux);
        const PrivilegedRunner runner = system.runner();
        QVERIFY(!runner.passwordlessInstalled());
        system.write(system.profile.installedHelper, "copy");
        QVERIFY(!runner.passwordlessInstalled());
        system.write(system.profile.sudoersRule, "rule");
        QVERIFY(runner.passwordlessInstalled());
        QVERIFY(QFile::remove(system.profile.installedHelper));
        QVERIFY(!runner.passwordlessInstalled());
    }

    void outdatedMeansInstalledAndDifferent_data() { bothSystems_data(); }
    void outdatedMeansInstalledAndDifferent()
    {
        QFETCH(bool, linux);
        StandIns system(linux);
        const PrivilegedRunner runner = system.runner();
        system.write(system.helperPath(), "new");
        QVERIFY(!runner.privilegedHelperOutdated()); // not installed
        system.installPasswordless("old");
        QVERIFY(runner.privilegedHelperOutdated());
        system.installPasswordless("new");
        QVERIFY(!runner.privilegedHelperOutdated());
        // One that exists but cannot be read differs from one that can; two such are equal.
        QVERIFY(QFile::remove(system.profile.installedHelper));
        QVERIFY(QDir().mkpath(system.profile.installedHelper));
        QVERIFY(runner.privilegedHelperOutdated());
        QVERIFY(QFile::remove(system.helperPath()));
        QVERIFY(QDir().mkpath(system.helperPath()));
        QVERIFY(!runner.privilegedHelperOutdated());
        QVERIFY(QDir().rmdir(system.helperPath()));
        QVERIFY(!runner.privilegedHelperOutdated()); // nothing to compare with
    }

    void aMissingHelperIsSaidAndNothingRuns_data() { bothSystems_data(); }
    void aMissingHelperIsSaidAndNothingRuns()
    {
        QFETCH(bool, linux);
        StandIns system(linux);
        system.dialog("exit 0");
        PrivilegedRunner runner = system.runner();
        const QString text = QStringLiteral(
            "The helper script is missing from the app bundle. Rebuild the app with build.sh.");
        QCOMPARE(runner.bundledHelper().error().description(), text);
        QCOMPARE(run(runner, verb).error().description(), text);
        QVERIFY(!system.argumentsOf(system.profile.promptProgram));
        system.helper("exit 0");
        QCOMPARE(runner.bundledHelper().value(), system.helperPath());
        QVERIFY(run(runner, verb));
        QVERIFY(system.argumentsOf(system.profile.promptProgram));
    }

    void passwordlessRunsTheInstalledCopyThroughSudo_data() { bothSystems_data(); }
    void passwordlessRunsTheInstalledCopyThroughSudo()
    {
        QFETCH(bool, linux);
        StandIns system(linux);
        system.installPasswordless();
        system.sudo("echo done; echo noise >&2");
        PrivilegedRunner runner = system.runner();
        QCOMPARE(run(runner, hostileArguments).value(), QStringLiteral("done\n"));
        QCOMPARE(system.argumentsOf(system.profile.sudo).value(),
                 QStringList({QStringLiteral("-n"), system.profile.installedHelper}) + hostileArguments);
    }

    void aSudoThatWantsAPasswordFallsBackToTheDialog_data()
    {
        QTest::addColumn<bool>("linux");
        QTest::addColumn<QByteArray>("complaint");
        for (const bool linux : {true, false}) {
            const QByteArray name = linux ? "linux " : "macos ";
            QTest::newRow(name + "password") << linux << QByteArray("sudo: a password is required");
            QTest::newRow(name + "password, in German")
                << linux << QByteArray("sudo: Ein Passwort ist notwendig");
            QTest::newRow(name + "capitals") << linux << QByteArray("PASSWORD needed");
            QTest::newRow(name + "terminal")
                << linux << QByteArray("sudo: a terminal is required to read it");
        }
    }
    void aSudoThatWantsAPasswordFallsBackToTheDialog()
    {
        QFETCH(bool, linux);
        QFETCH(QByteArray, complaint);
        StandIns system(linux);
        system.installPasswordless();
        system.helper("exit 0");
        system.sudo("echo '" + complaint + "' >&2; exit 1");
        system.dialog("echo prompted");
        PrivilegedRunner runner = system.runner();
        QCOMPARE(run(runner, verb).value(), QStringLiteral("prompted\n"));
        QVERIFY(system.argumentsOf(system.profile.sudo));
        QCOMPARE(system.argumentsOf(system.profile.promptProgram)->last().contains(verb.first()), true);
    }

    void anyOtherFailureOfSudoIsTheHelpersMessage_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QString>("description");
        QTest::newRow("on standard error")
            << QByteArray("echo out; echo 'ERROR: nftables is missing' >&2; exit 1")
            << QStringLiteral("nftables is missing");
        QTest::newRow("on standard output") << QByteArray("echo 'ERROR: only here'; exit 2")
                                            << QStringLiteral("only here");
        QTest::newRow("silent") << QByteArray("exit 1")
                                << QStringLiteral("The helper failed without an error message.");
        QTest::newRow("capitals of the terminal") << QByteArray("echo 'no A TERMINAL' >&2; exit 1")
                                                  << QStringLiteral("no A TERMINAL");
    }
    void anyOtherFailureOfSudoIsTheHelpersMessage()
    {
        QFETCH(QByteArray, script);
        QFETCH(QString, description);
        StandIns system(true);
        system.installPasswordless();
        system.helper("exit 0");
        system.sudo(script);
        system.dialog("exit 0");
        PrivilegedRunner runner = system.runner();
        const Outcome outcome = run(runner, verb);
        QCOMPARE(outcome.error().kind(), Kind::Failed);
        QCOMPARE(outcome.error().description(), description);
        QVERIFY(!system.argumentsOf(system.profile.promptProgram));
    }

    void withoutTheRuleEveryRunPrompts()
    {
        StandIns system(false);
        system.write(system.profile.installedHelper, "copy");
        system.helper("exit 0");
        system.sudo("exit 0");
        system.dialog("echo prompted");
        PrivilegedRunner runner = system.runner();
        QCOMPARE(run(runner, verb).value(), QStringLiteral("prompted\n"));
        QVERIFY(!system.argumentsOf(system.profile.sudo));
    }

    void osascriptGetsTheExactSource()
    {
        StandIns system(false);
        system.helper("exit 0");
        system.dialog("exit 0");
        PrivilegedRunner runner = system.runner();
        QVERIFY(run(runner, {QStringLiteral("launch"), QStringLiteral("it's")}));
        QCOMPARE(system.argumentsOf(system.profile.promptProgram).value(),
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
        QVERIFY(source.endsWith(QStringLiteral("\" with prompt \"Why.\" with administrator privileges")));
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
        const QString noAgent = QStringLiteral("Administrator access can't be asked for: no PolicyKit "
                                               "authentication agent is running in this session.");
        const QString refused = QStringLiteral("Administrator access was refused.");
        QTest::newRow("dismissed")
            << QByteArray("echo 'Error executing command as another user: Request dismissed' >&2; exit 126")
            << Kind::Cancelled << QStringLiteral("Cancelled.");
        QTest::newRow("dismissed in silence")
            << QByteArray("exit 126") << Kind::Cancelled << QStringLiteral("Cancelled.");
        QTest::newRow("no agent")
            << QByteArray("echo 'Error executing command as another user: No authentication agent found.' >&2; exit 127")
            << Kind::Failed << noAgent;
        QTest::newRow("no terminal for the agent")
            << QByteArray("echo 'Error creating textual authentication agent: No such device' >&2; exit 127")
            << Kind::Failed << noAgent;
        QTest::newRow("not authorised")
            << QByteArray("printf '%s\\n\\n%s\\n' 'Error executing command as another user: Not authorized'"
                          " 'This incident has been reported.' >&2; exit 127")
            << Kind::Failed << refused;
        QTest::newRow("asked on a terminal in vain")
            << QByteArray("printf '%s\\n' 'polkit-agent-helper-1: error response to PolicyKit daemon: GDBus.Error:"
                          "org.freedesktop.PolicyKit1.Error.Failed: No session for cookie'"
                          " 'Error executing command as another user: Not authorized' >&2; exit 127")
            << Kind::Failed
            << QStringLiteral("The password could not be checked: polkit takes none from this terminal. Run it with sudo.");
        QTest::newRow("the helper's own 127")
            << QByteArray("echo 'ERROR: tor was not found' >&2; exit 127")
            << Kind::Failed << QStringLiteral("tor was not found");
        QTest::newRow("the helper's own 126")
            << QByteArray("echo 'ERROR: tor may not be run' >&2; exit 126")
            << Kind::Failed << QStringLiteral("tor may not be run");
        QTest::newRow("the helper quotes pkexec")
            << QByteArray("echo 'ERROR: Error executing command as another user: Not authorized' >&2; exit 127")
            << Kind::Failed << QStringLiteral("Error executing command as another user: Not authorized");
        QTest::newRow("the shell's own 126")
            << QByteArray("echo \"$1: line 3: /x: Permission denied\" >&2; exit 126")
            << Kind::Failed << QStringLiteral("%1: line 3: /x: Permission denied");
        QTest::newRow("silent 127") << QByteArray("exit 127") << Kind::Failed
                                    << QStringLiteral("The helper failed without an error message.");
        QTest::newRow("an ordinary failure") << QByteArray("echo 'ERROR: no' >&2; exit 1")
                                             << Kind::Failed << QStringLiteral("no");
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

    void rootRunsTheShippedHelperItself()
    {
        StandIns system(true);
        system.installPasswordless();
        system.helper("echo as root; exit ${VELDMARK_STATUS:-0}");
        system.sudo("exit 0");
        system.dialog("exit 0");
        PrivilegedRunner runner = system.runner(0);
        QCOMPARE(run(runner, hostileArguments).value(), QStringLiteral("as root\n"));
        QCOMPARE(system.argumentsOf(system.helperPath()).value(), hostileArguments);
        QVERIFY(!system.argumentsOf(system.profile.sudo));
        QVERIFY(!system.argumentsOf(system.profile.promptProgram));
        // 126 and 127 have no special meaning without pkexec.
        system.helper("echo 'ERROR: broken' >&2; exit 126");
        QCOMPARE(run(runner, verb).error().description(), QStringLiteral("broken"));
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

    void aProgramThatCannotStartIsTheSystemsError_data() { bothSystems_data(); }
    void aProgramThatCannotStartIsTheSystemsError()
    {
        QFETCH(bool, linux);
        StandIns system(linux);
        system.helper("exit 0");
        PrivilegedRunner runner = system.runner();
        Outcome outcome = run(runner, verb);
        QCOMPARE(outcome.error().kind(), Kind::NotStarted);
        QCOMPARE(outcome.error().description(), QStringLiteral("No such file or directory"));
        system.installPasswordless();
        system.dialog("exit 0");
        outcome = run(runner, verb);
        QCOMPARE(outcome.error().kind(), Kind::NotStarted); // sudo is missing
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
        row("osascript", "0:140: execution error: ERROR: pf failed (1)\n", QStringLiteral("pf failed"));
        row("negative number", "execution error: x (-2700)", QStringLiteral("x"));
        row("first heading only", "execution error: a execution error: b", QStringLiteral("a execution error: b"));
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
        QTEST(PrivilegedRunner::cleanError(text), "cleaned");
    }

    void aRunThatOutlivesItsRunnerIsCancelledBeforeItPrompts()
    {
        StandIns system(true);
        system.installPasswordless();
        system.helper("exit 0");
        SlowRunner processes;
        auto runner = std::make_unique<PrivilegedRunner>(system.profile, processes, somebody);
        auto task = runner->runHelper(verb);
        runner.reset();
        processes.answer.complete({1, {}, QStringLiteral("a password is required")});
        QTRY_VERIFY(task.isReady());
        QCOMPARE(QCoro::waitFor(std::move(task)).error().kind(), Kind::Cancelled);
    }
};

QTEST_GUILESS_MAIN(PrivilegedRunnerTest)
#include "PrivilegedRunnerTest.moc"
