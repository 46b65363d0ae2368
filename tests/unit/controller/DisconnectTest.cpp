#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;
using System = Workbench::System;

class DisconnectTest : public QObject {
    Q_OBJECT
private:
    static void refusals()
    {
        QTest::addColumn<System>("system");
        QTest::addColumn<bool>("strict");
        QTest::addColumn<bool>("dismissed");
        for (const bool strict : {true, false}) {
            for (const bool dismissed : {true, false}) {
                const auto name = u"%1, %2, "_s.arg(strict ? u"strict"_s : u"proxy"_s,
                                                    dismissed ? u"dismissed"_s : u"failed"_s);
                QTest::newRow(qPrintable(name + u"linux"_s))
                    << System::linux << strict << dismissed;
                QTest::newRow(qPrintable(name + u"macos"_s))
                    << System::macos << strict << dismissed;
            }
        }
    }

    static void refuse(Workbench &bench, bool dismissed)
    {
        if (dismissed)
            bench.cancelPrompt(u"disconnect"_s);
        else
            bench.failHelper(u"disconnect"_s, u"Could not."_s);
    }

    static QString activeFile(const Workbench &bench)
    {
        return bench.profile.terminalDirectory + u"/active"_s;
    }

private Q_SLOTS:
    void restoresEverything_data() { Workbench::bothSystems(); }
    void restoresEverything()
    {
        QFETCH(System, system);
        Workbench bench(system);
        TorController &c = bench.controller();
        c.setTerminalMode(true);
        bench.tor.reply(
            "GETINFO circuit-status",
            Workbench::block("circuit-status",
                             {"5 BUILT $" + QByteArray(40, 'A') + "~one PURPOSE=GENERAL"}));
        bench.tor.reply("GETINFO stream-status", Workbench::block("stream-status", {}));
        QVERIFY(bench.connect());
        QVERIFY(bench.tick());
        const auto refreshing = c.refreshCircuits();
        QVERIFY(Workbench::finished(refreshing));
        QVERIFY(c.circuits().size() == 1 && c.bytesRead() == 1000
                && QFile::exists(activeFile(bench)));

        std::vector<ConnectionPhase> phases;
        QStringList details;
        QObject::connect(&c.phase, &Field::changed, [&] { phases.push_back(c.phase()); });
        QObject::connect(&c.statusDetail, &Field::changed,
                         [&] { details << c.statusDetail().english(); });
        bench.disconnect();
        QVERIFY(
            (phases == std::vector{ConnectionPhase::disconnecting, ConnectionPhase::disconnected}));
        QCOMPARE(details,
                 QStringList({u"Restoring your network settings…"_s,
                              u"Your traffic is not going through Tor"_s}));
        const QStringList told = bench.profile.sessionOwner.isEmpty()
            ? QStringList()
            : QStringList{u"--process"_s, QString::number(QCoreApplication::applicationPid())};
        QCOMPARE(bench.lastHelperRun(u"disconnect"_s), QStringList(u"disconnect"_s) + told);
        QVERIFY(!c.activeMode() && !c.activeBridge() && !c.errorMessage() && c.circuits().empty());
        QVERIFY(!c.exitIP() && !c.torVerified() && !c.latencyMs());
        QVERIFY(c.leakStatus() == LeakStatus::notTested() && c.dnsStatus() == DNSStatus::unknown());
        QVERIFY(c.bytesRead() == 0 && c.bytesWritten() == 0);
        QVERIFY(!QFile::exists(activeFile(bench)));
        QVERIFY(!bench.hasMarker());
    }

    void endsTheMonitoring()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        bench.disconnect();
        const int asked = bench.commandCount(Workbench::countersCommand);
        bench.clock.advance(std::chrono::seconds(60));
        settle();
        QCOMPARE(bench.commandCount(Workbench::countersCommand), asked);
        QCOMPARE(bench.clock.sleepers(), std::size_t(0));
        QVERIFY(bench.controller().phase() == ConnectionPhase::disconnected);
    }

    void doesNothingWithoutASession()
    {
        Workbench bench;
        bench.disconnect();
        QVERIFY(bench.processes.calls.empty());
        QVERIFY(bench.controller().phase() == ConnectionPhase::disconnected);
    }

    void waitsUntilTheHelperIsThrough_data()
    {
        QTest::addColumn<QString>("step");
        QTest::newRow("prompt") << u"connect"_s;
    }

    void waitsUntilTheHelperIsThrough()
    {
        QFETCH(QString, step);
        Workbench bench;
        TorController &c = bench.controller();
        bench.hold(step);
        const auto connecting = c.connect();
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        QVERIFY(!c.canCancel());
        bench.disconnect();
        QVERIFY(c.phase() == ConnectionPhase::connecting);
        QCOMPARE(bench.helperRunCount(u"disconnect"_s), 0);
        bench.processes.hold = nullptr;
        bench.processes.release();
        QVERIFY(Workbench::finished(connecting));
        QVERIFY(c.phase() == ConnectionPhase::connected); // the attempt was not disturbed
    }

    void aSecondDisconnectIsIgnored()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        bench.hold(u"disconnect"_s);
        const auto first = bench.controller().disconnect();
        const auto second = bench.controller().disconnect();
        QVERIFY(second.isReady() && !first.isReady());
        bench.processes.hold = nullptr;
        bench.processes.release();
        QVERIFY(Workbench::finished(first));
        QCOMPARE(bench.helperRunCount(u"disconnect"_s), 1);
    }

    void aRefusalLeavesTheSessionUp_data() { refusals(); }
    void aRefusalLeavesTheSessionUp()
    {
        QFETCH(System, system);
        QFETCH(bool, strict);
        QFETCH(bool, dismissed);
        Workbench bench(system);
        TorController &c = bench.controller();
        c.strictMode.set(strict);
        c.setTerminalMode(true);
        QVERIFY(bench.connect());
        refuse(bench, dismissed);
        QVERIFY(QFile::exists(activeFile(bench)));
        bench.hold(u"disconnect"_s);
        const auto disconnecting = c.disconnect();
        QVERIFY(!QFile::exists(activeFile(bench)));
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        bench.processes.hold = nullptr;
        bench.processes.release();
        QVERIFY(Workbench::finished(disconnecting));
        QVERIFY(c.phase() == ConnectionPhase::connected);
        QVERIFY(c.activeMode() == (strict ? RoutingMode::strict : RoutingMode::proxy));
        QCOMPARE(c.statusDetail(),
                 strict ? u"All traffic is locked to Tor"_s
                        : u"Apps that use system proxy settings go through Tor"_s);
        QCOMPARE(c.errorMessage(), dismissed ? std::nullopt : std::optional(u"Could not."_s));
        QVERIFY(QFile::exists(activeFile(bench)));
        QVERIFY(c.exitIP()); // the session's results are still valid

        bench.setCounters("77", "88");
        bench.clock.advance(std::chrono::seconds(2)); // the old loop ends; the new one reads
        QVERIFY(until([&] { return c.bytesRead() == 77; }));
        QCOMPARE(bench.commandCount(Workbench::countersCommand), 1);
        QVERIFY(!c.isChecking() && !c.isOptimizing());
        const auto checking = c.runChecks();
        QVERIFY(Workbench::finished(checking));
        QCOMPARE(bench.probe.torProbes, 2);
    }

    void aDismissedPromptShowsNoOlderErrorEither()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        bench.failHelper(u"disconnect"_s, u"Could not."_s);
        bench.disconnect();
        QVERIFY(bench.controller().errorMessage());
        bench.cancelPrompt(u"disconnect"_s);
        bench.disconnect();
        QVERIFY(bench.controller().phase() == ConnectionPhase::connected);
        QVERIFY(!bench.controller().errorMessage());
    }

    // The helper restores what it can, removes the marker, and then names what it could not
    // restore.
    void withoutTheMarkerNothingIsCalledConnected()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        bench.failHelper(u"disconnect"_s, u"The proxy settings could not be restored."_s);
        bench.removeMarker();
        bench.disconnect();
        QVERIFY(c.phase() == ConnectionPhase::disconnected);
        QCOMPARE(c.statusDetail(), u"Your traffic is not going through Tor"_s);
        QCOMPARE(c.errorMessage().value(), u"The proxy settings could not be restored."_s);
        QVERIFY(!c.activeMode() && !c.exitIP() && c.leakStatus() == LeakStatus::notTested());
        bench.clock.advance(std::chrono::seconds(60));
        settle();
        QVERIFY(c.phase() == ConnectionPhase::disconnected);
        QCOMPARE(bench.clock.sleepers(), std::size_t(0));
    }

    void abortingAConnectionIsJudgedByTheMarker_data()
    {
        QTest::addColumn<bool>("dismissed");
        QTest::addColumn<bool>("marker");
        QTest::newRow("dismissed, marker") << true << true;
        QTest::newRow("failed, marker") << false << true;
        QTest::newRow("dismissed, no marker") << true << false;
        QTest::newRow("failed, no marker") << false << false;
    }

    void abortingAConnectionIsJudgedByTheMarker()
    {
        QFETCH(bool, dismissed);
        QFETCH(bool, marker);
        Workbench bench;
        TorController &c = bench.controller();
        bench.setBootstrap("PROGRESS=5");
        const auto connecting = c.connect();
        QVERIFY(bench.hears(Workbench::bootstrapCommand));
        QVERIFY(until([&] { return bench.clock.sleepers() == 2; })); // and the watch over the rules
        refuse(bench, dismissed);
        if (!marker)
            bench.removeMarker();
        bench.disconnect();
        QVERIFY(c.phase() == (marker ? ConnectionPhase::stale : ConnectionPhase::disconnected));
        QCOMPARE(c.statusDetail(),
                 marker ? u"Your network is still set up for Tor"_s
                        : u"Your traffic is not going through Tor"_s);
        QCOMPARE(c.errorMessage(), dismissed ? std::nullopt : std::optional(u"Could not."_s));
        bench.setBootstrap("PROGRESS=100");
        bench.clock.advance(std::chrono::seconds(2));
        QVERIFY(Workbench::finished(connecting));
        QVERIFY(c.phase() != ConnectionPhase::connected); // the aborted attempt stays aborted
    }

    void endsChecksThatAreUnderWay()
    {
        Workbench bench;
        TorController &c = bench.controller();
        bench.probe.beforeTorAnswer = [&bench] {
            return bench.clock.sleep(std::chrono::seconds(1));
        };
        const auto connecting = c.connect();
        QVERIFY(until([&] { return c.isChecking(); }));
        QVERIFY(c.leakStatus() == LeakStatus::checking());
        bench.disconnect();
        QVERIFY(c.phase() == ConnectionPhase::disconnected && !c.isChecking());
        QVERIFY(c.leakStatus() == LeakStatus::notTested());
        bench.clock.advance(std::chrono::seconds(1)); // the old session's answer comes
        QVERIFY(Workbench::finished(connecting));
        QVERIFY(!c.exitIP() && !c.torVerified() && !c.latencyMs() && !c.isChecking());
        QVERIFY(c.leakStatus() == LeakStatus::notTested());
        QVERIFY(c.dnsStatus() == DNSStatus::unknown());
    }

    void answersToAnOldCheckDoNotReachANewSession()
    {
        Workbench bench;
        TorController &c = bench.controller();
        bench.probe.torAnswer = IPCheck{true, u"198.51.100.1"_s};
        bench.probe.beforeTorAnswer = [&bench] {
            return bench.clock.sleep(std::chrono::seconds(1));
        };
        const auto old = c.connect();
        QVERIFY(until([&] { return c.isChecking(); }));
        bench.disconnect();
        bench.probe.torAnswer = IPCheck{true, u"198.51.100.2"_s};
        bench.probe.beforeTorAnswer = [&bench] {
            return bench.clock.sleep(std::chrono::seconds(5));
        };
        const auto fresh = c.connect();
        QVERIFY(until([&] { return c.isChecking(); }));
        bench.clock.advance(std::chrono::seconds(1));
        QVERIFY(Workbench::finished(old));
        QVERIFY(c.isChecking() && !c.exitIP());
        QVERIFY(c.leakStatus() == LeakStatus::checking());
        bench.clock.advance(std::chrono::seconds(5));
        QVERIFY(Workbench::finished(fresh));
        QCOMPARE(c.exitIP().value(), u"198.51.100.2"_s);
        QVERIFY(!c.isChecking());
    }

    void aRefusalDuringTheChecksBeginsThemAgain_data()
    {
        QTest::addColumn<bool>("first"); // the checks after connecting, before the optimisation
        QTest::newRow("after connecting") << true;
        QTest::newRow("later") << false;
    }

    void aRefusalDuringTheChecksBeginsThemAgain()
    {
        QFETCH(bool, first);
        Workbench bench;
        TorController &c = bench.controller();
        c.optimizeSpeed.set(true);
        if (!first)
            QVERIFY(bench.connect());
        // slow probes: of the interrupted checks, and of the checks that follow
        int slow = first ? 2 : 1;
        bench.probe.beforeTorAnswer = [&bench, &slow] {
            return bench.clock.sleep(std::chrono::milliseconds(slow-- > 0 ? 1600 : 0));
        };
        const auto checking = first ? c.connect() : c.runChecks();
        // monitor, watch and probe
        QVERIFY(until([&] { return c.isChecking() && bench.clock.sleepers() == 3; }));
        bench.cancelPrompt(u"disconnect"_s);
        bench.disconnect();
        QVERIFY(c.phase() == ConnectionPhase::connected);
        QVERIFY(c.isChecking() && c.leakStatus() == LeakStatus::checking());
        const int probes = bench.probe.torProbes;
        for (int step = 0; step < 30 && (c.isChecking() || c.isOptimizing()); ++step) {
            bench.clock.advance(std::chrono::milliseconds(200));
            settle();
        }
        // the interrupted checks have their answers now and change nothing
        bench.clock.advance(std::chrono::milliseconds(1600));
        QVERIFY(Workbench::finished(checking));
        QVERIFY(!c.isChecking() && !c.isOptimizing());
        QVERIFY(c.leakStatus() == LeakStatus::blocked());
        QCOMPARE(c.exitIP().value(), u"203.0.113.10"_s);
        // the optimisation of the slow path
        QCOMPARE(bench.probe.torProbes, probes + (first ? 1 : 0));
    }

    void aRefusalDuringTheOptimisationBeginsItAgain()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        bench.probe.beforeTorAnswer = [&bench] {
            return bench.clock.sleep(std::chrono::seconds(1));
        };
        const auto optimizing = c.optimizeCircuits();
        QVERIFY(c.isOptimizing());
        bench.cancelPrompt(u"disconnect"_s);
        bench.disconnect();
        QVERIFY(c.phase() == ConnectionPhase::connected && c.isOptimizing() && !c.isChecking());
        bench.clock.advance(std::chrono::seconds(1));
        QVERIFY(until([&] { return !c.isOptimizing(); }));
        QCOMPARE(c.latencyMs().value(), qint64(1000));
        QVERIFY(Workbench::finished(optimizing));
    }
};

VELDMARK_TEST(DisconnectTest)
#include "DisconnectTest.moc"
