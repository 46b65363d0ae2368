#include "HelperRuns.h"
#include "base/ResumeOnce.h"
#include "support/TestProgram.h"

#include <QTest>

#include <memory>

using namespace veldmark;
using Outcome = PrivilegedRunner::Outcome;
using Kind = HelperError::Kind;

namespace {

// Answers when the test says so.
class SlowRunner final : public ProcessRunner {
public:
    QCoro::Task<Result<ProcessResult, StartError>> run(QString, QStringList) override
    {
        const auto wait = answer;
        const ProcessResult result = co_await wait;
        co_return result;
    }
    QCoro::Task<Result<ProcessResult, StartError>> runWithInput(QString executable,
                                                                QStringList arguments,
                                                                QByteArray) override
    {
        return run(executable, arguments);
    }
    ResumeOnce<ProcessResult> answer;
};

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
        // An unreadable file differs from a readable one; two unreadable files are equal.
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
        const QString text = QStringLiteral("The helper is missing. Reinstall Veldmark.");
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
                 QStringList({QStringLiteral("-n"), system.profile.installedHelper})
                     + hostileArguments);
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
        QCOMPARE(system.argumentsOf(system.profile.promptProgram)->last().contains(verb.first()),
                 true);
    }

    void anyOtherFailureOfSudoIsTheHelpersMessage_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QString>("description");
        QTest::newRow("on standard error")
            << QByteArray("echo out; echo 'ERROR: nftables is missing' >&2; exit 1")
            << QStringLiteral("nftables is missing");
        QTest::newRow("on standard output")
            << QByteArray("echo 'ERROR: only here'; exit 2") << QStringLiteral("only here");
        QTest::newRow("silent") << QByteArray("exit 1")
                                << QStringLiteral("The helper failed without an error message.");
        QTest::newRow("after warnings of sudo") << QByteArray(
            "echo 'sudo: unable to resolve host here: Name or service not known' >&2; "
            "echo 'sudo: a plug-in is broken' >&2; echo 'ERROR: nftables is missing' >&2; exit 1")
                                                << QStringLiteral("nftables is missing");
        QTest::newRow("after a warning of the shell") << QByteArray(
            "echo 'bash: warning: setlocale: cannot change locale' >&2; echo 'ERROR: no tor' >&2; exit 1")
                                                      << QStringLiteral("no tor");
        QTest::newRow("the shell's own, after a warning of sudo") << QByteArray(
            "echo 'sudo: unable to resolve host here' >&2; echo 'helper: line 7: nope' >&2; exit 1")
                                                                  << QStringLiteral(
                                                                         "helper: line 7: nope");
        QTest::newRow("speaks of a password") << QByteArray(
            "echo 'sudo: unable to resolve host here' >&2; echo 'ERROR: No password hash.' >&2; exit 1")
                                              << QStringLiteral("No password hash.");
        QTest::newRow("capitals of the terminal")
            << QByteArray("echo 'no A TERMINAL' >&2; exit 1") << QStringLiteral("no A TERMINAL");
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

    // Other users must not read bridges, exit and hash. The words that the dialog shows stay on the
    // command line.
    void optionsOfAConnectStandOnNoCommandLine()
    {
        const QStringList words = {QStringLiteral("connect"), QStringLiteral("--hash"),
                                   QStringLiteral("16:AB"), QStringLiteral("--exit"),
                                   QString::fromUtf8("é")};
        const QString input = QString::fromUtf8("--hash\n16:AB\n--exit\né\nend\n");
        StandIns system(true);
        system.dialog("cat");
        system.helper("cat");
        PrivilegedRunner runner = system.runner();
        QCOMPARE(run(runner, words).value(), input);
        QCOMPARE(
            system.argumentsOf(system.profile.promptProgram).value(),
            QStringList({system.helperPath(), QStringLiteral("connect"), QStringLiteral("-")}));
        PrivilegedRunner root = system.runner(0);
        QCOMPARE(run(root, words).value(), input);
        QCOMPARE(system.argumentsOf(system.helperPath()).value(),
                 QStringList({QStringLiteral("connect"), QStringLiteral("-")}));

        QFile helper(system.helperPath());
        QVERIFY(helper.open(QIODevice::ReadOnly));
        system.installPasswordless(helper.readAll());
        system.sudo("cat");
        QCOMPARE(run(runner, words).value(), input);
        QCOMPARE(system.argumentsOf(system.profile.sudo)->mid(2),
                 QStringList({QStringLiteral("connect"), QStringLiteral("-")}));
        system.installPasswordless("a copy of another version");
        QVERIFY(run(runner, words));
        QCOMPARE(system.argumentsOf(system.profile.sudo)->mid(2), words);

        const QStringList launch = {QStringLiteral("launch"), QStringLiteral("--app"),
                                    QStringLiteral("/x")};
        QVERIFY(QCoro::waitFor(runner.runWithPrompt(launch)));
        QCOMPARE(system.argumentsOf(system.profile.promptProgram).value(),
                 QStringList(system.helperPath()) + launch);
    }

    void whatTheRuleDoesNotCoverIsAskedFor_data()
    {
        QTest::addColumn<QString>("asked");
        QTest::addColumn<QString>("verb");
        QTest::newRow("connect") << QStringLiteral("connect") << QStringLiteral("replace");
        QTest::newRow("launch") << QStringLiteral("launch") << QStringLiteral("launch");
        QTest::newRow("disconnect, of another user's session")
            << QStringLiteral("disconnect") << QStringLiteral("disconnect");
    }

    void whatTheRuleDoesNotCoverIsAskedFor()
    {
        QFETCH(QString, asked);
        QFETCH(QString, verb);
        StandIns system(true);
        system.installPasswordless();
        system.helper("exit 0");
        system.sudo("echo 'ERROR: An administrator password is needed.' >&2; exit 3");
        system.dialog("echo prompted");
        PrivilegedRunner runner = system.runner();
        QCOMPARE(run(runner, {asked}).value(), QStringLiteral("prompted\n"));
        QCOMPARE(system.argumentsOf(system.profile.promptProgram).value(),
                 QStringList({system.helperPath(), verb}));
    }

    // The dialog of connect has not said that a session would be weakened.
    void aDialogThatSaidTooLittleIsFollowedByOneThatSaysIt()
    {
        StandIns system(true);
        system.helper("exit 0");
        system.dialog(
            "[ \"$2\" = replace ] && echo done && exit 0; echo 'ERROR: An administrator password is needed.' >&2; exit 3");
        PrivilegedRunner runner = system.runner();
        QCOMPARE(run(runner, {QStringLiteral("connect")}).value(), QStringLiteral("done\n"));
        const Outcome refused = run(runner, {QStringLiteral("fix-dns")});
        QCOMPARE(refused.error().kind(), Kind::Unapproved);
        QCOMPARE(refused.error().description(),
                 QStringLiteral("An administrator password is needed."));
    }

    // It says of which program an approval is missing, and the next dialog is to name that. The
    // dialog of "replace" would not help.
    void aProgramThatIsNotApprovedIsTheCallersToAskFor_data()
    {
        QTest::addColumn<bool>("byRule");
        QTest::addColumn<QStringList>("more");
        const QStringList bundle = {QStringLiteral("--bundle"), QStringLiteral("/b")};
        QTest::newRow("by the rule") << true << QStringList();
        QTest::newRow("by the rule, with a bundle") << true << bundle;
        QTest::newRow("prompted") << false << QStringList();
        QTest::newRow("prompted, with a bundle") << false << bundle;
    }

    void aProgramThatIsNotApprovedIsTheCallersToAskFor()
    {
        QFETCH(bool, byRule);
        QFETCH(QStringList, more);
        StandIns system(true);
        const char *refusing
            = "echo 'ERROR: An administrator password is needed to approve /b.' >&2; exit 4";
        system.helper("exit 0");
        if (byRule) {
            system.installPasswordless();
            system.sudo(refusing);
            system.dialog("echo prompted");
        } else {
            system.dialog(QByteArray("echo \"$2\" >>\"$0.verbs\"; ") + refusing);
        }
        PrivilegedRunner runner = system.runner();
        const Outcome refused = run(runner, QStringList(QStringLiteral("connect")) + more);
        QVERIFY(!refused);
        QCOMPARE(refused.error().kind(), Kind::UnapprovedProgram);
        QCOMPARE(refused.error().description(),
                 QStringLiteral("An administrator password is needed to approve /b."));
        if (byRule) {
            QVERIFY(!system.argumentsOf(system.profile.promptProgram));
            return;
        }
        QFile verbs(system.profile.promptProgram + QStringLiteral(".verbs"));
        QVERIFY(verbs.open(QIODevice::ReadOnly));
        QCOMPARE(verbs.readAll(), "connect\n");
    }

    // Also when it brings a bundle: that is not what is refused.
    void aSessionThatWouldBeLessenedIsAskedForWithItsBundle()
    {
        StandIns system(true);
        system.installPasswordless();
        system.helper("exit 0");
        system.sudo("echo 'ERROR: An administrator password is needed.' >&2; exit 3");
        system.dialog("echo prompted");
        PrivilegedRunner runner = system.runner();
        const QStringList words = {QStringLiteral("connect"), QStringLiteral("--bundle"),
                                   QStringLiteral("/b")};
        QCOMPARE(run(runner, words).value(), QStringLiteral("prompted\n"));
        QCOMPARE(system.argumentsOf(system.profile.promptProgram)->value(1),
                 QStringLiteral("replace"));
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

    // Nobody else says what sudo's password is given for.
    void rootIsAskedBeforeAProgramIsApproved()
    {
        using Answer = PrivilegedRunner::Answer;
        const QString path = QStringLiteral("/home/alice/a\x1b[2Kto\u202er");
        const QString shown = QStringLiteral("/home/alice/a\\u{1b}[2Kto\\u{202e}r");
        const QStringList words = {
            QStringLiteral("approve"), QStringLiteral("--program"), path,
            QStringLiteral("--as"),    QStringLiteral("tor"),       QStringLiteral("--sha256"),
            QStringLiteral("abcd")};
        StandIns system(true);
        system.helper("exit 0");
        system.dialog("exit 0");
        QStringList questions;
        Answer answer = Answer::no;
        const auto question = [&](const Text &text) -> QCoro::Task<Answer> {
            questions += text.english();
            co_return answer;
        };

        PrivilegedRunner root = system.runner(0);
        const auto unasked = QCoro::waitFor(root.runWithPrompt(words));
        QCOMPARE(unasked.error().kind(), Kind::Failed);
        QVERIFY(unasked.error().description().english().startsWith(
            shown + QStringLiteral(" is not a program of the system")));
        root.askWith(question);
        QCOMPARE(QCoro::waitFor(root.runWithPrompt(words)).error().description().english(),
                 shown + QStringLiteral(" was not approved."));
        answer = Answer::nobodyThere;
        QCOMPARE(QCoro::waitFor(root.runWithPrompt(words)).error().description(),
                 unasked.error().description());
        QVERIFY(!system.argumentsOf(system.helperPath())); // it never ran
        QCOMPARE(questions.size(), 2);
        QCOMPARE(
            questions.constFirst(),
            QStringLiteral(
                "Veldmark wants to run %1 as a part of Tor. No package of the system installed it. Its SHA-256 is abcd.")
                .arg(shown));

        answer = Answer::yes;
        QVERIFY(QCoro::waitFor(root.runWithPrompt(words)));
        QCOMPARE(system.argumentsOf(system.helperPath()).value(), words);
        QCOMPARE(questions.size(), 3);
        answer = Answer::no;
        QVERIFY(run(root, verb)); // nothing to ask
        PrivilegedRunner user = system.runner();
        user.askWith(question);
        QVERIFY(QCoro::waitFor(user.runWithPrompt(words))); // the dialog asks
        QCOMPARE(questions.size(), 3);
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

    void aRunThatOutlivesItsRunnerIsCancelledBeforeItPrompts()
    {
        StandIns system(true);
        system.installPasswordless();
        system.helper("exit 0");
        SlowRunner processes;
        auto runner = std::make_unique<PrivilegedRunner>(system.profile, processes, userAccount);
        auto task = runner->runHelper(verb);
        runner.reset();
        processes.answer.complete({1, {}, QStringLiteral("a password is required")});
        QTRY_VERIFY(task.isReady());
        QCOMPARE(QCoro::waitFor(std::move(task)).error().kind(), Kind::Cancelled);
    }
};

VELDMARK_TEST(PrivilegedRunnerTest)
#include "PrivilegedRunnerTest.moc"
