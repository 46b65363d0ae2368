#include "HelperRuns.h"
#include "base/ResumeOnce.h"
#include "support/TestProgram.h"

#include <QTest>

#include <memory>

using namespace veldmark;
using Outcome = PrivilegedRunner::Outcome;
using Kind = HelperError::Kind;

namespace {

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
        auto runner = std::make_unique<PrivilegedRunner>(system.profile, processes, somebody);
        auto task = runner->runHelper(verb);
        runner.reset();
        processes.answer.complete({1, {}, QStringLiteral("a password is required")});
        QTRY_VERIFY(task.isReady());
        QCOMPARE(QCoro::waitFor(std::move(task)).error().kind(), Kind::Cancelled);
    }
};

VELDMARK_TEST(PrivilegedRunnerTest)
#include "PrivilegedRunnerTest.moc"
