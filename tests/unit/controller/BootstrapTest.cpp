#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace veldmark;

class BootstrapTest : public QObject {
    Q_OBJECT
private:
    // Waits until Tor has been asked for the `count`th time and its answer was handled.
    static bool waitsAfterPoll(Workbench &bench, int count)
    {
        return bench.hears(Workbench::bootstrapCommand, count)
            && until([&] { return bench.clock.sleepers() == 2; }); // and the watch over the rules
    }

    static void useObfs4(Workbench &bench)
    {
        bench.transports.lyrebird = u"/opt/lyrebird"_s;
        bench.controller().bridgeChoice.set(BridgeChoice::custom);
        bench.controller().customBridges.set(u"obfs4 192.0.2.1:443 cert=a iat-mode=0"_s);
    }

private Q_SLOTS:
    void readsTorsReport_data()
    {
        QTest::addColumn<QString>("reply");
        QTest::addColumn<int>("progress");
        QTest::addColumn<QString>("summary");
        QTest::newRow("documented form")
            << u"NOTICE BOOTSTRAP PROGRESS=85 TAG=ap_conn_done SUMMARY=\"Connected to a relay\""_s
            << 85 << u"Connected to a relay"_s;
        QTest::newRow("empty") << QString() << 0 << QString();
        QTest::newRow("no progress")
            << u"NOTICE BOOTSTRAP TAG=x SUMMARY=\"Hello\""_s << 0 << u"Hello"_s;
        QTest::newRow("no summary") << u"PROGRESS=10 TAG=x"_s << 10 << QString();
        QTest::newRow("empty summary") << u"PROGRESS=10 SUMMARY=\"\""_s << 10 << QString();
        QTest::newRow("unclosed summary") << u"PROGRESS=10 SUMMARY=\"abc"_s << 10 << QString();
        QTest::newRow("too large")
            << u"PROGRESS=99999999999999999999 SUMMARY=\"a\""_s << 0 << u"a"_s;
        QTest::newRow("negative") << u"PROGRESS=-5"_s << 0 << QString();
        QTest::newRow("the first counts")
            << u"PROGRESS=1 PROGRESS=2 SUMMARY=\"a\" SUMMARY=\"b\""_s << 1 << u"a"_s;
        QTest::newRow("warning fields")
            << u"WARN BOOTSTRAP PROGRESS=50 TAG=x SUMMARY=\"a\" WARNING=\"b\" COUNT=3"_s << 50
            << u"a"_s;
        QTest::newRow("words within a string")
            << u"NOTICE BOOTSTRAP SUMMARY=\"say \\\"PROGRESS=100 TAG=done\\\" twice\" PROGRESS=10"_s
            << 10 << u"say \"PROGRESS=100 TAG=done\" twice"_s;
        QTest::newRow("other digits") << u"PROGRESS=١٢"_s << 0 << QString();
    }

    void readsTorsReport()
    {
        QFETCH(QString, reply);
        const BootstrapStatus status = TorController::parseBootstrap(reply);
        QTEST(status.progress, "progress");
        QTEST(status.summary, "summary");
    }

    void readsWhatIsInTorsWay_data()
    {
        QTest::addColumn<QString>("reply");
        QTest::addColumn<QString>("warning");
        const QString start
            = u"WARN BOOTSTRAP PROGRESS=5 TAG=conn SUMMARY=\"Connecting to a relay\" "_s;
        QTest::newRow("nothing") << u"NOTICE BOOTSTRAP PROGRESS=85 TAG=x SUMMARY=\"Hello\""_s
                                 << QString();
        QTest::newRow("everything")
            << start
                + u"WARNING=\"Connection refused\" REASON=CONNECTREFUSED COUNT=2 RECOMMENDATION=warn "
                  "HOSTID=\"2FCF\" HOSTADDR=\"203.0.113.31:5000\""_s
            << u"Tor reports: Connection refused (CONNECTREFUSED, 203.0.113.31:5000)."_s;
        QTest::newRow("no address")
            << start + u"WARNING=\"No route to host\" REASON=NOROUTE COUNT=1 RECOMMENDATION=warn"_s
            << u"Tor reports: No route to host (NOROUTE)."_s;
        QTest::newRow("words alone") << start + u"WARNING=\"b\""_s << u"Tor reports: b."_s;
        QTest::newRow("of no weight")
            << start + u"WARNING=\"DONE\" REASON=DONE COUNT=1 RECOMMENDATION=ignore"_s << QString();
        QTest::newRow("the way to the program")
            << u"WARN BOOTSTRAP PROGRESS=1 TAG=conn_pt SUMMARY=\"Connecting to pluggable transport\" "
               "WARNING=\"Connection refused\" REASON=CONNECTREFUSED COUNT=1 RECOMMENDATION=warn "
               "HOSTADDR=\"203.0.113.30:9030\""_s
            << u"Tor can't reach the bridge program: Connection refused."_s;
        QTest::newRow("unclosed") << start + u"WARNING=\"abc"_s << QString();
    }

    void readsWhatIsInTorsWay()
    {
        QFETCH(QString, reply);
        QTEST(TorController::parseBootstrap(reply).warning.english(), "warning");
    }

    void showsWhatTorWarnsOfUntilItGetsOn()
    {
        Workbench bench;
        TorController &c = bench.controller();
        bench.setBootstrap(
            "PROGRESS=5 TAG=conn SUMMARY=\"Connecting to a relay\" WARNING=\"Connection refused\" "
            "REASON=CONNECTREFUSED COUNT=1 RECOMMENDATION=warn");
        const auto connecting = c.connect();
        QVERIFY(waitsAfterPoll(bench, 1));
        QCOMPARE(c.statusDetail(), u"Connecting to a relay"_s); // always Tor's own summary
        QCOMPARE(c.bootstrapProblem().value(),
                 u"Tor reports: Connection refused (CONNECTREFUSED)."_s);
        QVERIFY(!c.errorMessage());
        bench.setBootstrap("PROGRESS=10 TAG=conn_done SUMMARY=\"Connected to a relay\"");
        bench.clock.advance(1s);
        QVERIFY(waitsAfterPoll(bench, 2));
        QVERIFY(!c.bootstrapProblem());
    }

    void showsWhatTheLogSaysOfABridgeProgram()
    {
        Workbench bench;
        TorController &c = bench.controller();
        useObfs4(bench);
        const QString log = bench.profile.runDirectory + u"/notices.log"_s;
        const QByteArray ended
            = "Nov 21 00:55:29.000 [warn] Managed proxy \"/x/lyrebird\" having PID 12 terminated "
              "with status code 1\n";
        bench.writeFile(log, ended);
        bench.setBootstrap("PROGRESS=1 TAG=conn_pt SUMMARY=\"Connecting to pluggable transport\" "
                           "WARNING=\"Connection refused\" RECOMMENDATION=warn");
        const auto connecting = c.connect();
        QVERIFY(waitsAfterPoll(bench, 1));
        QCOMPARE(c.bootstrapProblem().value(),
                 u"The bridge program lyrebird ended unexpectedly (exit status 1)."_s);
        bench.writeFile(log, ended + ended);
        bench.clock.advance(1s);
        QVERIFY(waitsAfterPoll(bench, 2));
        QCOMPARE(c.bootstrapProblem().value(),
                 u"The bridge program lyrebird keeps ending (exit status 1)."_s);
        bench.writeFile(log, {});
        bench.clock.advance(1s);
        QVERIFY(waitsAfterPoll(bench, 3));
        QCOMPARE(c.bootstrapProblem().value(),
                 u"Tor can't reach the bridge program: Connection refused."_s);
        bench.setBootstrap("PROGRESS=100 TAG=done SUMMARY=\"Done\"");
        bench.clock.advance(1s);
        QVERIFY(Workbench::finished(connecting));
        QVERIFY(c.phase() == ConnectionPhase::connected && !c.bootstrapProblem());
    }

    void aSilentBridgeProgramIsNamedAfterTenSeconds_data()
    {
        QTest::addColumn<bool>("programs");
        QTest::newRow("a bridge with a program") << true;
        QTest::newRow("a plain bridge") << false;
    }

    void aSilentBridgeProgramIsNamedAfterTenSeconds()
    {
        QFETCH(bool, programs);
        Workbench bench;
        TorController &c = bench.controller();
        useObfs4(bench);
        if (!programs)
            c.customBridges.set(u"192.0.2.1:443"_s);
        bench.setBootstrap("PROGRESS=0 TAG=starting SUMMARY=\"Starting\"");
        const auto connecting = c.connect();
        QVERIFY(waitsAfterPoll(bench, 1));
        for (int second = 1; second < 10; ++second) {
            bench.clock.advance(1s);
            QVERIFY(waitsAfterPoll(bench, second + 1));
            QVERIFY(!c.bootstrapProblem());
        }
        bench.clock.advance(1s);
        QVERIFY(waitsAfterPoll(bench, 11));
        QCOMPARE(
            c.bootstrapProblem().value_or(QString()),
            programs
                ? u"Tor is waiting for the bridge program, which hasn't said that it is ready."_s
                : QString());
        QCOMPARE(c.statusDetail(), u"Starting"_s);
    }

    void aFirewallThatDeniesWhatGoesOutIsNamedAfterTenSeconds()
    {
        for (const int progress : {5, 10}) { // without a relay, and with one
            Workbench bench;
            TorController &c = bench.controller();
            bench.setBootstrap("PROGRESS=" + QByteArray::number(progress)
                               + " TAG=conn SUMMARY=\"Connecting to a relay\"");
            const auto connecting = c.connect();
            QVERIFY(waitsAfterPoll(bench, 1));
            bench.writeFile(bench.profile.othersNote, "ufw\ntable ip filter\n");
            for (int second = 1; second < 10; ++second) {
                bench.clock.advance(1s);
                QVERIFY(waitsAfterPoll(bench, second + 1));
                QVERIFY(!c.bootstrapProblem());
            }
            bench.clock.advance(1s);
            QVERIFY(waitsAfterPoll(bench, 11));
            QCOMPARE(
                c.bootstrapProblem().value_or(QString()),
                progress < 10
                    ? u"Another firewall on this computer blocks outgoing traffic, so Tor can't connect: ufw, table ip filter."_s
                    : QString());
        }
    }

    void aMissingNetworkAndAVPNAreNamedAfterTenSeconds()
    {
        const auto told = [](std::optional<NetworkRoute> route, bool strict, int progress) {
            Workbench bench;
            TorController &c = bench.controller();
            c.strictMode.set(strict);
            bench.route = std::move(route);
            bench.setBootstrap("PROGRESS=" + QByteArray::number(progress)
                               + " TAG=conn SUMMARY=\"Connecting to a relay\"");
            const auto connecting = c.connect();
            waitsAfterPoll(bench, 1);
            bench.clock.advance(9s);
            const bool isTooEarly = waitsAfterPoll(bench, 2) && c.bootstrapProblem();
            bench.clock.advance(1s);
            const bool isThere = waitsAfterPoll(bench, 3);
            return isTooEarly || !isThere ? u"?"_s : c.bootstrapProblem().value_or(QString());
        };
        const NetworkRoute vpn{u"wg0"_s, true};
        const QString inTheWay
            = u"A VPN takes Tor's traffic, and strict mode does not let the VPN out. Switch the VPN off, or use proxy mode."_s;
        QCOMPARE(told(std::nullopt, true, 5),
                 u"This computer has no network, so Tor can't connect."_s);
        QCOMPARE(told(std::nullopt, false, 5),
                 u"This computer has no network, so Tor can't connect."_s);
        QCOMPARE(told(std::nullopt, true, 10), QString()); // a relay answers, so there is some
                                                           // route
        QCOMPARE(told(vpn, true, 5), inTheWay);
        QCOMPARE(told(vpn, false, 5), QString());
        QCOMPARE(told(vpn, true, 10), QString());
        QCOMPARE(told(NetworkRoute{u"eth0"_s, false}, true, 5), QString());
    }

    void theProblemOutlivesAFailureUntilTheRestore()
    {
        Workbench bench;
        TorController &c = bench.controller();
        useObfs4(bench);
        bench.setBootstrap("PROGRESS=1 WARNING=\"Connection refused\"");
        const auto connecting = c.connect();
        QVERIFY(waitsAfterPoll(bench, 1));
        bench.clock.advance(300s);
        QVERIFY(Workbench::finished(connecting));
        QVERIFY(c.phase() == ConnectionPhase::stale);
        QCOMPARE(c.errorMessage().value(),
                 u"Tor didn't finish connecting within 5 minutes. Your network is still pointed "
                 "at Tor. Click Restore Network to undo."_s);
        QCOMPARE(c.bootstrapProblem().value(), u"Tor reports: Connection refused."_s);
        bench.disconnect();
        QVERIFY(c.phase() == ConnectionPhase::disconnected && !c.bootstrapProblem());
    }

    void anotherAttemptForgetsTheProblem()
    {
        Workbench bench;
        TorController &c = bench.controller();
        bench.setBootstrap("PROGRESS=1 WARNING=\"Connection refused\"");
        const auto connecting = c.connect();
        QVERIFY(waitsAfterPoll(bench, 1));
        bench.clock.advance(300s);
        QVERIFY(Workbench::finished(connecting));
        QVERIFY(c.bootstrapProblem());
        bench.failHelper(u"connect"_s, u"No."_s);
        QVERIFY(!bench.connect());
        QVERIFY(!c.bootstrapProblem());
    }

    void showsProgressAndSummary()
    {
        Workbench bench;
        TorController &c = bench.controller();
        bench.setBootstrap("PROGRESS=85 TAG=x SUMMARY=\"Connected to a relay\"");
        const auto connecting = c.connect();
        QVERIFY(waitsAfterPoll(bench, 1));
        QVERIFY(c.phase() == ConnectionPhase::connecting && c.canCancel());
        QCOMPARE(c.bootstrapProgress(), 0.85);
        QCOMPARE(c.statusDetail(), u"Connected to a relay"_s);

        bench.setBootstrap("PROGRESS=90 TAG=y"); // no summary: the last one stays
        bench.clock.advance(1s);
        QVERIFY(waitsAfterPoll(bench, 2));
        QCOMPARE(c.bootstrapProgress(), 0.9);
        QCOMPARE(c.statusDetail(), u"Connected to a relay"_s);

        bench.setBootstrap("PROGRESS=100 TAG=done SUMMARY=\"Done\"");
        bench.clock.advance(1s);
        QVERIFY(Workbench::finished(connecting));
        QVERIFY(c.phase() == ConnectionPhase::connected && !c.canCancel());
    }

    void asksOnceASecond()
    {
        Workbench bench;
        bench.setBootstrap("PROGRESS=5");
        const auto connecting = bench.controller().connect();
        QVERIFY(waitsAfterPoll(bench, 1));
        bench.clock.advance(999ms);
        settle();
        QCOMPARE(bench.commandCount(Workbench::bootstrapCommand), 1);
        bench.clock.advance(1ms);
        QVERIFY(waitsAfterPoll(bench, 2));
    }

    void aHundredEndsTheWaitBeforeTheNextSleep()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        QCOMPARE(bench.clock.now(), Clock::TimePoint{});
        // the monitor's sleeper, and the rule watch's
        QCOMPARE(bench.clock.totalSlept(), 3000ms);
    }

    void progressNeverExceedsTheWhole()
    {
        Workbench bench;
        bench.setBootstrap("PROGRESS=250");
        QVERIFY(bench.connect());
        QCOMPARE(bench.controller().bootstrapProgress(), 1.0);
    }

    void aTorThatDoesNotListenYetIsAskedAgain()
    {
        Workbench bench;
        bench.tor.stopListening();
        const auto connecting = bench.controller().connect();
        QVERIFY(until([&] { return bench.clock.sleepers() == 2; }));
        QVERIFY(bench.controller().phase() == ConnectionPhase::connecting);
        QCOMPARE(bench.controller().statusDetail(), u"Starting Tor…"_s);
        bench.tor.listen();
        bench.clock.advance(1s);
        QVERIFY(Workbench::finished(connecting));
        QVERIFY(bench.controller().phase() == ConnectionPhase::connected);
        QVERIFY(!bench.controller().errorMessage());
    }

    void givesUpAfterFiveMinutes_data()
    {
        QTest::addColumn<bool>("answers"); // until the end
        QTest::addColumn<QString>("reason");
        QTest::newRow("slow") << true << QString();
        QTest::newRow("refusing") << false << u" (Tor replied: 551 Internal error)"_s;
    }

    void givesUpAfterFiveMinutes()
    {
        QFETCH(bool, answers);
        QFETCH(QString, reason);
        Workbench bench;
        TorController &c = bench.controller();
        const QByteArray refusal = "551 Internal error\r\n";
        const QByteArray slow
            = "250-status/bootstrap-phase=NOTICE BOOTSTRAP PROGRESS=50\r\n250 OK\r\n";
        // forgotten by the end
        bench.tor.reply(Workbench::bootstrapCommand, answers ? refusal : slow);
        const auto connecting = c.connect();
        QVERIFY(waitsAfterPoll(bench, 1));
        bench.tor.reply(Workbench::bootstrapCommand, answers ? slow : refusal);
        for (int second = 1; second < 300; ++second) {
            bench.clock.advance(1s);
            QVERIFY(waitsAfterPoll(bench, second + 1));
        }
        QVERIFY(c.phase() == ConnectionPhase::connecting && c.canCancel());
        bench.clock.advance(1s);
        QVERIFY(Workbench::finished(connecting));
        QCOMPARE(bench.commandCount(Workbench::bootstrapCommand), 300);
        QVERIFY(c.phase() == ConnectionPhase::stale && !c.canCancel());
        QCOMPARE(c.statusDetail(), u"Tor didn't finish connecting"_s);
        QCOMPARE(
            c.errorMessage().value(),
            u"Tor didn't finish connecting within 5 minutes.%1 Your network is still pointed at Tor. "
            "Click Restore Network to undo."_s.arg(reason));
        QVERIFY(c.activeMode() == RoutingMode::strict); // the helper has switched it on
        QVERIFY(bench.hasMarker());
        QCOMPARE(bench.probe.torProbes, 0);
        QCOMPARE(bench.clock.sleepers(), std::size_t(1)); // only the rules are watched

        bench.disconnect(); // Restore Network
        QVERIFY(c.phase() == ConnectionPhase::disconnected);
        QVERIFY(!c.errorMessage() && !c.activeMode());
    }

    void aTorThatNeverAnswersIsGivenUpToo()
    {
        Workbench bench;
        bench.tor.ignore(Workbench::bootstrapCommand);
        const auto connecting = bench.controller().connect();
        QVERIFY(bench.hears(Workbench::bootstrapCommand));
        bench.clock.advance(301s);
        bench.socketClock.advance(ControlPort::defaultLimit);
        QVERIFY(until([&] { return bench.clock.sleepers() == 2; }));
        bench.clock.advance(1s);
        QVERIFY(Workbench::finished(connecting));
        QVERIFY(bench.controller().phase() == ConnectionPhase::stale);
        QVERIFY(bench.controller().errorMessage()->english().contains(
            u" (Tor didn't answer on its control port in time.) "_s));
    }

    void aDisconnectEndsTheWaitSilently_data()
    {
        QTest::addColumn<bool>("asleep");
        QTest::newRow("between two questions") << true;
        QTest::newRow("while Tor is asked") << false;
    }

    void aDisconnectEndsTheWaitSilently()
    {
        QFETCH(bool, asleep);
        Workbench bench;
        TorController &c = bench.controller();
        if (asleep)
            bench.setBootstrap("PROGRESS=5 SUMMARY=\"Later\"");
        else
            bench.tor.ignore(Workbench::bootstrapCommand);
        const auto connecting = c.connect();
        QVERIFY(asleep ? waitsAfterPoll(bench, 1) : bench.hears(Workbench::bootstrapCommand));
        QVERIFY(c.canCancel());
        bench.disconnect();
        QVERIFY(c.phase() == ConnectionPhase::disconnected && !c.canCancel());
        QCOMPARE(c.statusDetail(), u"Your traffic is not going through Tor"_s);
        QVERIFY(!bench.hasMarker());
        bench.tor.hangUp();
        bench.clock.advance(1s);
        QVERIFY(Workbench::finished(connecting));
        QVERIFY(c.phase() == ConnectionPhase::disconnected && !c.errorMessage() && !c.activeMode());
        QCOMPARE(c.bootstrapProgress(), 0.0);
        QCOMPARE(bench.commandCount(Workbench::bootstrapCommand), 1);
    }

    void anOldWaitLeavesANewConnectionAlone()
    {
        Workbench bench;
        TorController &c = bench.controller();
        bench.tor.ignore(Workbench::bootstrapCommand);
        const auto first = c.connect();
        QVERIFY(bench.hears(Workbench::bootstrapCommand));
        bench.disconnect();
        const auto second = c.connect();
        QVERIFY(bench.hears(Workbench::bootstrapCommand, 2));
        bench.socketClock.advance(ControlPort::defaultLimit); // both requests time out
        QVERIFY(Workbench::finished(first));
        // two rule watches; the first one ends
        QVERIFY(until([&] { return bench.clock.sleepers() == 3; }));
        QVERIFY(c.phase() == ConnectionPhase::connecting && c.canCancel());
        bench.clock.advance(1s);
        QVERIFY(bench.hears(Workbench::bootstrapCommand, 3));
        QVERIFY(!second.isReady());
    }
};

VELDMARK_TEST(BootstrapTest)
#include "BootstrapTest.moc"
