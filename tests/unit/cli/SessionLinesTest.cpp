#include "cli/SessionLines.h"

#include "support/Output.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

// What `veldmarkctl run` prints while its session changes.
class SessionLinesTest : public QObject {
    Q_OBJECT

    static QCoro::Task<void> waitFor(ResumeOnce<bool> gate) { co_await gate; }

private Q_SLOTS:
    // The checks' results end with the session, which changes the lines a second time.
    void aRestoreThatBeginsDuringTheChecksIsSaidOnce()
    {
        Workbench bench;
        const ResumeOnce<bool> answers;
        bench.probe.beforeTorAnswer = [answers] { return waitFor(answers); };
        const SessionLines lines(bench.controller());
        const auto connecting = bench.controller().connect();
        QVERIFY(until([&] {
            return bench.controller().phase() == ConnectionPhase::connected
                && bench.controller().isChecking();
        }));
        settle();
        bench.hold(u"disconnect"_s);
        QString said;
        {
            const Output output;
            const auto disconnecting = bench.controller().disconnect();
            static_cast<void>(until([&] { return bench.processes.held() == 1; }));
            settle();
            said = output.text();
        }
        QVERIFY(!bench.controller().isChecking());
        QCOMPARE(said, u"Restoring your network settings…\n"_s);
        bench.processes.hold = nullptr;
        bench.processes.release();
        answers.complete(true);
        QVERIFY(until([&] { return bench.controller().phase() == ConnectionPhase::disconnected; }));
    }

    void whatKeepsTrafficFromGettingThroughIsSaidAlsoWhenItChanges()
    {
        Workbench bench;
        const SessionLines lines(bench.controller());
        QVERIFY(bench.connect());
        QVERIFY(until([&] { return !bench.controller().isChecking(); }));
        settle();
        bench.hasCircuit = false;
        bench.setCounters("1000", "200");
        bench.route = std::nullopt;
        QString said;
        {
            const Output output;
            for (int tick = 0; tick < 7; ++tick)
                QVERIFY(bench.tick());
            settle();
            // the network is back, and Tor has not noticed yet
            bench.route = NetworkRoute{u"eth0"_s, false};
            QVERIFY(bench.tick());
            settle();
            said = output.text();
        }
        QVERIFY2(said.contains(u"No Network"_s), qPrintable(said));
        QVERIFY2(said.contains(u"Nothing Gets Through"_s), qPrintable(said));
    }

    void eachStepToBridgesIsSaidOnce()
    {
        Workbench bench;
        TorController &c = bench.controller();
        c.customBridges.set(u"192.0.2.1:443"_s);
        c.climb.set(Climb::ask);
        bench.tor.reply("SETCONF UseBridges=1 Bridge=\"192.0.2.1:443\"", "250 OK\r\n");
        bench.setBootstrap("PROGRESS=5 TAG=conn REASON=NOROUTE COUNT=3 SUMMARY=\"Connecting\"");
        const SessionLines lines(c);
        const auto pass = [&bench](int seconds) {
            for (int second = 0; second < seconds; ++second) {
                const int before = bench.commandCount(Workbench::bootstrapCommand);
                bench.clock.advance(std::chrono::seconds(1));
                static_cast<void>(until([&] {
                    return bench.commandCount(Workbench::bootstrapCommand) > before
                        && bench.clock.sleepers() == 2;
                }));
            }
            settle();
        };
        QString offered;
        QString climbed;
        const auto connecting = c.connect();
        QVERIFY(until([&] { return bench.clock.sleepers() == 2; }));
        {
            const Output output;
            pass(8);
            offered = output.text();
        }
        {
            const Output output;
            QVERIFY(c.takeOffer());
            pass(4);
            climbed = output.text();
        }
        QCOMPARE(
            offered.count(
                u"Veldmark can try bridges: Your bridges. Try them with: veldmarkctl climb\n"_s),
            1);
        QCOMPARE(climbed.count(u"Direct: Refused, or out of reach. (9 s)\n"_s), 1);
        QCOMPARE(climbed.count(u"Your bridges: Being tried…\n"_s), 1);
    }

    // And again in the next session of the same program.
    void eachRestoreIsSaid()
    {
        Workbench bench;
        const SessionLines lines(bench.controller());
        for (int session = 1; session <= 2; ++session) {
            QVERIFY(bench.connect());
            settle();
            bench.hold(u"disconnect"_s);
            QString said;
            {
                const Output output;
                const auto disconnecting = bench.controller().disconnect();
                static_cast<void>(until([&] { return bench.processes.held() == 1; }));
                settle();
                bench.processes.hold = nullptr;
                bench.processes.release();
                static_cast<void>(Workbench::finished(disconnecting));
                settle();
                said = output.text();
            }
            QCOMPARE(
                said,
                u"Restoring your network settings…\nNot Protected: Your traffic is not going through Tor\n"_s);
        }
    }

    void theReportOfASessionIsSaidOnceItsChecksHaveEnded()
    {
        Workbench bench;
        QString said;
        {
            const Output output;
            const SessionLines lines(bench.controller());
            static_cast<void>(bench.connect());
            settle();
            said = output.text();
        }
        QVERIFY(bench.controller().phase() == ConnectionPhase::connected);
        QCOMPARE(said.count(u"\nProtected\n"_s), 1);
        QCOMPARE(said.count(u"Press Ctrl-C to disconnect."_s), 1);
        QVERIFY(said.contains(u"  Direct path blocked\n"_s)); // the checks' results
    }

    void whatBecomesOfTheKillSwitchIsSaidWhenItsStateChanges()
    {
        Workbench bench;
        const SessionLines lines(bench.controller());
        QVERIFY(bench.connect());
        settle();
        QString said, saidAgain;
        {
            const Output output;
            bench.noteRules("open", 1);
            static_cast<void>(bench.tick());
            settle();
            said = output.text();
            bench.noteRules("open", 2);
            static_cast<void>(bench.tick());
            settle();
            saidAgain = output.text().sliced(said.size());
        }
        QCOMPARE(bench.controller().killSwitch()->missed, 2);
        QVERIFY2(said.startsWith(u"Kill Switch Failed\n"_s), qPrintable(said));
        QCOMPARE(saidAgain, QString());
    }

    // The window has it in its banner, and "status" as its problem.
    void whatGoesWrongDuringASessionIsSaid()
    {
        Workbench bench;
        const SessionLines lines(bench.controller());
        QVERIFY(bench.connect());
        settle();
        QString said, saidAgain;
        {
            const Output output;
            bench.controller().showProblem(u"Couldn't fix DNS: No."_s);
            settle();
            said = output.text();
            bench.controller().dismissError();
            settle();
            saidAgain = output.text().sliced(said.size());
        }
        QVERIFY2(said.contains(u"\n  Problem     Couldn't fix DNS: No.\n"_s), qPrintable(said));
        QCOMPARE(said.count(u"Couldn't fix DNS"_s), 1);
        QCOMPARE(saidAgain, QString());
    }

    void whyThereIsNoSessionIsSaidOnce()
    {
        Workbench bench;
        bench.failHelper(u"connect"_s, u"Tor could not be started."_s);
        QString warned, warnedAgain;
        {
            const Output errors(stderr);
            const Output output;
            SessionLines lines(bench.controller());
            static_cast<void>(bench.connect());
            settle();
            warned = errors.text();
            lines.complain(u"Another."_s);
            lines.complain(u"Tor could not be started."_s); // as `run --connect` says it as well
            bench.controller().dismissError();
            settle();
            static_cast<void>(bench.connect());
            settle();
            warnedAgain = errors.text().sliced(warned.size());
        }
        QCOMPARE(warned, u"veldmarkctl: Tor could not be started.\n"_s);
        QCOMPARE(warnedAgain.count(u"veldmarkctl: Tor could not be started.\n"_s), 2);
    }

    // The progress line goes on below the warning.
    void anOpenKillSwitchDuringAConnectIsAWarning()
    {
        Workbench bench;
        bench.setBootstrap("PROGRESS=5 SUMMARY=\"Connecting\"");
        QString warned, said;
        {
            const Output errors(stderr);
            const Output output;
            const SessionLines lines(bench.controller());
            const auto connecting = bench.controller().connect();
            static_cast<void>(until([&] { return bench.clock.sleepers() == 2; }));
            bench.noteRules("open", 1);
            bench.clock.advance(std::chrono::seconds(2));
            settle();
            bench.setBootstrap("PROGRESS=10 SUMMARY=\"Handshaking\"");
            bench.clock.advance(std::chrono::seconds(1));
            static_cast<void>(until([&] { return bench.controller().bootstrapProgress() > 0.09; }));
            settle();
            warned = errors.text();
            said = output.text();
        }
        QCOMPARE(warned,
                 u"veldmarkctl: Kill Switch Failed: Traffic may leave this computer directly\n"_s);
        QVERIFY(said.contains(u"  5%  Connecting\n"_s));
        QVERIFY(!said.contains(u"Kill switch"_s));
        // as `veldmarkctl connect` and the windows say it
        QVERIFY2(said.endsWith(u" 10%  Traffic may leave this computer directly\n"_s),
                 qPrintable(said));
        QVERIFY(!said.contains(u"Handshaking"_s));
    }
};

VELDMARK_TEST(SessionLinesTest)
#include "SessionLinesTest.moc"
