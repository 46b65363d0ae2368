#include "controller/PublishedState.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace veldmark;

class MonitoringTest : public QObject {
    Q_OBJECT

    static void acceptNetworkCommands(Workbench &bench)
    {
        for (const char *command : {"SETCONF DisableNetwork=1", "SETCONF DisableNetwork=0"})
            bench.tor.reply(command, "250 OK\r\n");
    }

    static QCoro::Task<void> waitFor(ResumeOnce<bool> gate) { co_await gate; }

private Q_SLOTS:
    void readsTheCountersEveryTwoSeconds()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        QCOMPARE(bench.controller().bytesRead(), quint64(0));
        bench.clock.advance(1999ms);
        settle();
        QCOMPARE(bench.commandCount(Workbench::countersCommand), 0);
        bench.clock.advance(1ms);
        QVERIFY(until([&] { return bench.controller().bytesRead() == 1000; }));
        QCOMPARE(bench.controller().bytesWritten(), quint64(200));
        bench.setCounters("18446744073709551615", "201");
        QVERIFY(bench.tick());
        QCOMPARE(bench.controller().bytesRead(), quint64(18446744073709551615u));
        QCOMPARE(bench.controller().bytesWritten(), quint64(201));
        QCOMPARE(bench.commandCount(Workbench::countersCommand), 2);
    }

    void aValueThatIsNoNumberChangesNothing()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        QVERIFY(bench.tick());
        for (const char *odd : {"", "-1", "12x", "18446744073709551616", "0x10"}) {
            bench.setCounters(odd, "300");
            QVERIFY(bench.tick());
            QCOMPARE(bench.controller().bytesRead(), quint64(1000));
            QCOMPARE(bench.controller().bytesWritten(), quint64(300));
        }
        QVERIFY(bench.controller().phase() == ConnectionPhase::connected); // these were answers,
                                                                           // too
    }

    void aMissingNetworkIsSaidAndTakenBackWithAnExitThatIsAskedForAgain()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        QVERIFY(until([&] { return !bench.controller().isChecking(); }));
        QVERIFY(bench.tick());
        TorController &c = bench.controller();
        QCOMPARE(c.title(), u"Protected"_s);
        bench.route = std::nullopt;
        QVERIFY(bench.tick());
        QVERIFY(!c.stall()); // between two networks there is no address for a moment
        QVERIFY(bench.tick());
        QVERIFY(c.stall() == TrafficWatch::Stall::noNetwork);
        QCOMPARE(c.title(), u"No Network"_s);
        QVERIFY(!c.exitIP() && !c.torVerified()); // the values from before have gone
        // The check gets no answer meanwhile.
        bench.probe.torAnswer = ScriptedProbe::nothing();
        const auto checking = c.runChecks();
        QVERIFY(Workbench::finished(checking));
        QVERIFY(c.torVerified() == false);
        bench.probe.torAnswer = IPCheck{true, u"203.0.113.9"_s};
        bench.route = NetworkRoute{u"eth0"_s, false};
        QVERIFY(bench.tick());
        QVERIFY(!c.stall());
        QVERIFY(until([&] { return c.torVerified() == true && !c.isChecking(); }));
        QCOMPARE(c.title(), u"Protected"_s);
    }

    void torWithoutACircuitIsSaid_data()
    {
        QTest::addColumn<bool>("vpn");
        QTest::addColumn<bool>("strict");
        QTest::addColumn<TrafficWatch::Stall>("stall");
        QTest::newRow("strict") << false << true << TrafficWatch::Stall::noCircuit;
        QTest::newRow("strict, with a VPN") << true << true << TrafficWatch::Stall::vpn;
        QTest::newRow("proxy, with a VPN") << true << false << TrafficWatch::Stall::noCircuit;
    }

    void torWithoutACircuitIsSaid()
    {
        QFETCH(bool, vpn);
        QFETCH(bool, strict);
        QFETCH(TrafficWatch::Stall, stall);
        Workbench bench;
        bench.controller().strictMode.set(strict);
        bench.route = NetworkRoute{u"dev0"_s, vpn};
        QVERIFY(bench.connect());
        QVERIFY(bench.tick());
        bench.hasCircuit = false;
        bench.setCounters("1000", "200");
        for (int tick = 0; tick < 5; ++tick) {
            QVERIFY(!bench.controller().stall());
            QVERIFY(bench.tick());
        }
        QVERIFY(bench.tick());
        QVERIFY(bench.controller().stall() == stall);
        bench.disconnect();
        QVERIFY(!bench.controller().stall());
        QVERIFY(bench.connect());
        QVERIFY(bench.tick());
        QVERIFY(!bench.controller().stall()); // another session begins without this knowledge
    }

    void aFirewallThatBeginsToDenyIsNamedAsLongAsNothingGetsThrough()
    {
        Workbench bench;
        TorController &c = bench.controller();
        bench.route = NetworkRoute{u"dev0"_s, true}; // and a VPN, which is the weaker explanation
        QVERIFY(bench.connect());
        QVERIFY(bench.tick());
        bench.writeFile(bench.profile.othersNote, "ufw\ntable ip filter\n");
        QVERIFY(bench.tick());
        QVERIFY(!c.stall() && c.denyingFirewalls().isEmpty()); // Tor's connections may last
        bench.hasCircuit = false;
        bench.setCounters("1000", "200");
        for (int tick = 0; tick < 6; ++tick)
            QVERIFY(bench.tick());
        QVERIFY(c.stall() == TrafficWatch::Stall::firewall);
        const QString told
            = u"Another firewall on this computer blocks outgoing traffic, so Tor can't connect: ufw, table ip filter."_s;
        QCOMPARE(c.verdict().detail, told);
        QCOMPARE(publishedState(c)[u"statusDetail"_s].toString(), told);
        QCOMPARE(publishedState(c)[u"stall"_s].toString(), u"firewall"_s);
        // one of the firewalls is removed
        bench.writeFile(bench.profile.othersNote, "ufw\n");
        QVERIFY(bench.tick());
        QCOMPARE(c.denyingFirewalls(), QStringList{u"ufw"_s});
        // the knowledge survives a refused disconnect
        bench.cancelPrompt(u"disconnect"_s);
        bench.disconnect();
        QVERIFY(c.phase() == ConnectionPhase::connected);
        QVERIFY(c.verdict().detail.english().endsWith(u": ufw."_s));
        bench.hasCircuit = true;
        bench.setCounters("9000", "200");
        QVERIFY(bench.tick());
        QVERIFY(!c.stall() && c.denyingFirewalls().isEmpty());
    }

    void aFirewallThatBeginsToDenyIsNamedWhenNoAnswerComesThroughTor()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        QVERIFY(until([&] { return c.torVerified() == true && !c.isChecking(); }));
        QVERIFY(bench.tick());
        bench.probe.torAnswer = ScriptedProbe::nothing(); // Tor reports a circuit all the same
        QVERIFY(bench.tick());
        QVERIFY(c.exitIP() && !c.stall()); // nobody has asked
        bench.writeFile(bench.profile.othersNote, "table ip filter\n");
        QVERIFY(bench.tick());
        QVERIFY(!c.exitIP()); // of before
        QVERIFY(until([&] { return !c.isChecking(); }));
        QVERIFY(bench.tick());
        QVERIFY(c.stall() == TrafficWatch::Stall::firewall);
        QCOMPARE(c.denyingFirewalls(), QStringList{u"table ip filter"_s});
        QVERIFY(bench.tick());
        QVERIFY(c.stall() == TrafficWatch::Stall::firewall); // also while the exit is unknown
        // It lets something through: that is asked each half minute.
        bench.probe.torAnswer = IPCheck{true, u"203.0.113.9"_s};
        for (int tick = 0; tick < 16; ++tick)
            QVERIFY(bench.tick());
        QVERIFY(until([&] { return !c.isChecking(); }));
        QVERIFY(bench.tick());
        QVERIFY(!c.stall() && c.denyingFirewalls().isEmpty());
        QVERIFY(until([&] { return c.torVerified() == true && !c.isChecking(); }));
        QCOMPARE(c.title(), u"Protected"_s);
        // It goes while nothing got through.
        bench.probe.torAnswer = ScriptedProbe::nothing();
        bench.writeFile(bench.profile.othersNote, "ufw\n");
        QVERIFY(bench.tick());
        QVERIFY(until([&] { return !c.isChecking(); }));
        QVERIFY(bench.tick());
        QVERIFY(c.stall() == TrafficWatch::Stall::firewall);
        bench.writeFile(bench.profile.othersNote, "");
        QVERIFY(bench.tick());
        QVERIFY(!c.stall());
    }

    void aFirewallThatHasLetTorConnectIsNotBlamed()
    {
        Workbench bench;
        bench.writeFile(bench.profile.othersNote, "ufw\n");
        QVERIFY(bench.connect());
        QVERIFY(bench.tick());
        bench.hasCircuit = false;
        bench.setCounters("1000", "200");
        for (int tick = 0; tick < 6; ++tick)
            QVERIFY(bench.tick());
        QVERIFY(bench.controller().stall() == TrafficWatch::Stall::noCircuit);
        QVERIFY(bench.controller().denyingFirewalls().isEmpty());
    }

    // Tor counts the control port's bytes only with an option of test networks.
    void whatTorCountsIsFoundOut_data()
    {
        QTest::addColumn<bool>("own"); // the control port's bytes are counted
        QTest::newRow("without the control port") << false;
        QTest::newRow("with it") << true;
    }

    void whatTorCountsIsFoundOut()
    {
        QFETCH(bool, own);
        Workbench bench;
        const TorController &c = bench.controller();
        int read = 100000;
        int written = 100000;
        const auto tick = [&](int more, int moreWritten) {
            read += more;
            written += moreWritten;
            const auto asked = static_cast<int>(QLatin1String(Workbench::countersCommand).size())
                + 2;
            bench.tor.reply("GETINFO traffic/read",
                            "250-traffic/read=" + QByteArray::number(own ? read - asked : read)
                                + "\r\n250 OK\r\n");
            bench.setCounters(QByteArray::number(read), QByteArray::number(written));
            return bench.tick();
        };
        QVERIFY(bench.connect());
        QVERIFY(tick(0, 0));
        QCOMPARE(bench.commandCount("GETINFO traffic/read"), 1);
        if (own) {
            // These are the questions themselves.
            for (int look = 0; look < 8; ++look)
                QVERIFY(tick(200, 5000));
            QVERIFY(c.stall() == TrafficWatch::Stall::noAnswer);
            return;
        }
        // An idle connection: one cell of padding in both directions each 9.5 s.
        for (int look = 1; look <= 600; ++look) {
            QVERIFY(tick(look % 5 == 0 ? 536 : 0, look % 5 == 0 ? 536 : 0));
            QVERIFY2(!c.stall(), qPrintable(QString::number(look)));
        }
        QCOMPARE(bench.commandCount("GETINFO traffic/read"), 1); // it is known
        for (int look = 0; look < 12; ++look)
            QVERIFY(tick(0, 536));
        QVERIFY(c.stall() == TrafficWatch::Stall::noAnswer);
        bench.disconnect();
        QVERIFY(bench.connect());
        QVERIFY(tick(0, 0));
        QCOMPARE(bench.commandCount("GETINFO traffic/read"), 2); // another Tor may count otherwise
    }

    void trafficBetweenTheTwoQuestionsDecidesNothing()
    {
        Workbench bench;
        bench.tor.reply("GETINFO traffic/read", "250-traffic/read=400\r\n250 OK\r\n");
        bench.setCounters("1000", "200");
        QVERIFY(bench.connect());
        for (int look = 1; look <= 3; ++look) {
            QVERIFY(bench.tick());
            QCOMPARE(bench.commandCount("GETINFO traffic/read"), look);
        }
    }

    void torBeginsAnewWhenTheAddressHasChanged()
    {
        Workbench bench;
        acceptNetworkCommands(bench);
        QVERIFY(bench.connect());
        QVERIFY(bench.tick());
        QCOMPARE(bench.commandCount("SETCONF DisableNetwork=1"), 0);
        bench.ownAddresses = {QHostAddress(u"198.51.100.7"_s)};
        QVERIFY(bench.tick());
        QCOMPARE(bench.commandCount("SETCONF DisableNetwork=1"), 1);
        QCOMPARE(bench.commandCount("SETCONF DisableNetwork=0"), 1);
        QVERIFY(until([&] { return bench.controller().torVerified() == true; })); // checked again
        QVERIFY(bench.tick());
        QCOMPARE(bench.commandCount("SETCONF DisableNetwork=0"), 1);
    }

    // The monitor has not looked yet, in this session or in the next one.
    void aMoveRightAfterTheConnectIsSeen()
    {
        Workbench bench;
        acceptNetworkCommands(bench);
        for (int session = 1; session <= 2; ++session) {
            bench.ownAddresses = {QHostAddress(u"192.0.2.7"_s)};
            QVERIFY(bench.connect());
            bench.ownAddresses = {QHostAddress(u"198.51.100.7"_s)};
            QVERIFY(bench.tick());
            QCOMPARE(bench.commandCount("SETCONF DisableNetwork=1"), session);
            bench.disconnect();
        }
    }

    // Tor has accepted the first command, and would stay without a network.
    void torIsGivenItsNetworkUntilItTakesIt()
    {
        Workbench bench;
        acceptNetworkCommands(bench);
        bench.tor.reply("SETCONF DisableNetwork=0", "553 Busy\r\n");
        QVERIFY(bench.connect());
        QVERIFY(bench.tick());
        QVERIFY(bench.controller().torVerified() == true);
        bench.ownAddresses = {QHostAddress(u"198.51.100.7"_s)};
        for (int times = 1; times <= 4; ++times) {
            QVERIFY(bench.tick());
            QCOMPARE(bench.commandCount("SETCONF DisableNetwork=0"), times);
            QVERIFY(!bench.controller().torVerified()); // nothing is claimed meanwhile
            QVERIFY(bench.controller().errorMessage().value_or(QString()).english().contains(
                u"hasn't confirmed that it uses the network"_s));
        }
        QCOMPARE(bench.commandCount("SETCONF DisableNetwork=1"), 1);
        bench.tor.reply("SETCONF DisableNetwork=0", "250 OK\r\n");
        QVERIFY(bench.tick());
        QVERIFY(until([&] { return bench.controller().torVerified() == true; }));
        QVERIFY(!bench.controller().errorMessage());
        QVERIFY(bench.tick());
        QCOMPARE(bench.commandCount("SETCONF DisableNetwork=0"), 5);
    }

    // The notice replaces no error message, and counts as no operation's failure.
    void thatTorHasNoNetworkIsNoFailureOfAnOperation()
    {
        Workbench bench;
        TorController &c = bench.controller();
        acceptNetworkCommands(bench);
        bench.tor.reply("SETCONF DisableNetwork=0", "553 Busy\r\n");
        QVERIFY(bench.connect());
        QVERIFY(bench.tick());
        bench.ownAddresses = {QHostAddress(u"198.51.100.7"_s)};
        QVERIFY(bench.tick());
        QVERIFY(c.errorMessage().value_or(Text()).english().contains(
            u"hasn't confirmed that it uses the network"_s));
        QVERIFY(!c.failure());
        c.showProblem(u"Something else."_s);
        QCOMPARE(c.failure().value_or(QString()), u"Something else."_s);
        QVERIFY(bench.tick());
        QCOMPARE(bench.commandCount("SETCONF DisableNetwork=0"), 2);
        QCOMPARE(c.errorMessage().value_or(QString()), u"Something else."_s);
    }

    void threeFailuresInARowMeanThatTorIsDead_data()
    {
        QTest::addColumn<bool>("strict");
        QTest::addColumn<QString>("message");
        QTest::newRow("strict")
            << true
            << u"Tor stopped running. The kill switch is still blocking traffic, so nothing leaked. Reconnect, "
               "or Restore Network to go back online."_s;
        QTest::newRow("proxy")
            << false
            << u"Tor stopped running. Apps using the proxy can't connect until you reconnect or Restore Network."_s;
    }

    void threeFailuresInARowMeanThatTorIsDead()
    {
        QFETCH(bool, strict);
        QFETCH(QString, message);
        Workbench bench;
        TorController &c = bench.controller();
        c.strictMode.set(strict);
        QVERIFY(bench.connect());
        QVERIFY(bench.tick());
        bench.tor.stopListening();
        QVERIFY(bench.tick());
        QVERIFY(bench.tick());
        QVERIFY(c.phase() == ConnectionPhase::connected && !c.errorMessage());
        QVERIFY(bench.tick());
        QVERIFY(c.phase() == ConnectionPhase::stale);
        QCOMPARE(c.statusDetail(), u"Tor stopped running"_s);
        QCOMPARE(c.errorMessage().value(), message);
        QCOMPARE(c.title(), u"Needs Attention"_s);
        QVERIFY(c.activeMode() == (strict ? RoutingMode::strict : RoutingMode::proxy));
        QVERIFY(bench.hasMarker()); // the session continues
        QCOMPARE(bench.helperRunCount(u"disconnect"_s), 0);
        // the loop has ended; the rule watch goes on
        QCOMPARE(bench.clock.sleepers(), std::size_t(1));
    }

    void oneSuccessStartsTheCountAgain()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        const QByteArray refusal = "551 Internal error\r\n";
        for (int round = 0; round < 3; ++round) {
            bench.tor.replyOnce(Workbench::countersCommand, refusal);
            bench.tor.replyOnce(Workbench::countersCommand, refusal);
            for (int tick = 0; tick < 3; ++tick)
                QVERIFY(bench.tick());
        }
        QVERIFY(bench.controller().phase() == ConnectionPhase::connected);
        QVERIFY(!bench.controller().errorMessage());
        bench.tor.reply(Workbench::countersCommand, refusal);
        for (int tick = 0; tick < 3; ++tick)
            QVERIFY(bench.tick());
        QVERIFY(bench.controller().phase() == ConnectionPhase::stale);
    }

    void aTorThatIsSilentIsDeadToo()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        bench.tor.setSilent(true);
        for (int failure = 1; failure <= 3; ++failure) {
            const int connections = bench.tor.connectionCount();
            bench.clock.advance(2s);
            QVERIFY(until([&] { return bench.tor.connectionCount() > connections; }));
            bench.socketClock.advance(3s);
            QVERIFY(until([&] {
                return bench.clock.sleepers() == 2
                    || bench.controller().phase() == ConnectionPhase::stale;
            }));
            QVERIFY((bench.controller().phase() == ConnectionPhase::stale) == (failure == 3));
        }
    }

    void aNetworkThatWasRestoredByHandIsNotCalledBlocked()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        bench.removeMarker();
        bench.tor.stopListening();
        for (int tick = 0; tick < 3; ++tick)
            QVERIFY(bench.tick());
        QVERIFY(c.phase() == ConnectionPhase::disconnected);
        QCOMPARE(c.statusDetail(), u"Your traffic is not going through Tor"_s);
        QCOMPARE(c.errorMessage().value(),
                 u"Tor stopped running, and your network is no longer set up for it."_s);
        QVERIFY(!c.activeMode() && !c.exitIP());
    }

    void afterASleepTorBeginsAnewAndNothingOldIsClaimed()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        QVERIFY(bench.tick());
        const char *const off = "SETCONF DisableNetwork=1";
        const char *const on = "SETCONF DisableNetwork=0";
        bench.tor.reply(off, "250 OK\r\n");
        bench.tor.reply(on, "250 OK\r\n");
        QCOMPARE(bench.commandCount(off), 0);
        QVERIFY(c.torVerified().value_or(false) && c.exitIP());
        c.wake();
        QVERIFY(!c.torVerified() && !c.exitIP());
        QVERIFY(bench.tick());
        QCOMPARE(bench.commandCount(off), 1);
        QCOMPARE(bench.commandCount(on), 1);
        // asked again
        QVERIFY(until([&] { return c.torVerified().value_or(false) && c.exitIP(); }));
        QVERIFY(bench.tick());
        QCOMPARE(bench.commandCount(off), 1);
        bench.disconnect();
        c.wake(); // nothing to wake
        QVERIFY(bench.connect());
        QVERIFY(bench.tick());
        QCOMPARE(bench.commandCount(off), 1);
    }

    void afterASleepWithoutANetworkTheExitIsNotConfirmed()
    {
        Workbench bench;
        acceptNetworkCommands(bench);
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        QVERIFY(bench.tick());
        QCOMPARE(c.title(), u"Protected"_s);
        bench.probe.torAnswer = ScriptedProbe::nothing();
        c.wake();
        QVERIFY(bench.tick());
        QVERIFY(until([&] { return c.torVerified() == false; }));
        QCOMPARE(c.title(), u"Needs Attention"_s);
    }

    void restoringAfterTorsDeathTakesTheBannerBack()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        bench.tor.stopListening();
        for (int tick = 0; tick < 3; ++tick)
            QVERIFY(bench.tick());
        const auto reason = c.errorMessage();
        bench.cancelPrompt(u"disconnect"_s);
        bench.disconnect();
        QVERIFY(c.phase() == ConnectionPhase::stale);
        QCOMPARE(c.errorMessage(), reason); // still true
        QVERIFY(c.activeMode() == RoutingMode::strict);
        bench.letHelperWork();
        bench.disconnect();
        QVERIFY(c.phase() == ConnectionPhase::disconnected);
        QVERIFY(!c.errorMessage());
    }

    void checksTheResolversAtEveryFifteenthTurn()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        const int before = bench.resolvers.readings;
        for (int tick = 1; tick < 15; ++tick)
            QVERIFY(bench.tick());
        QCOMPARE(bench.resolvers.readings, before);
        DNSResolver leaking;
        leaking.nameservers = {u"192.168.1.1"_s};
        leaking.interface = u"en0"_s;
        bench.resolvers.answer = {leaking};
        const int live = bench.commandCount("SETEVENTS STREAM");
        QVERIFY(bench.tick());
        QCOMPARE(bench.resolvers.readings, before + 1);
        QVERIFY(bench.controller().dnsStatus() == DNSStatus::leak({u"192.168.1.1 on en0"_s}));
        QCOMPARE(bench.commandCount("SETEVENTS STREAM"), live); // no live test
        // the counters are read as well
        QCOMPARE(bench.commandCount(Workbench::countersCommand), 15);
        for (int tick = 1; tick < 15; ++tick)
            QVERIFY(bench.tick());
        QCOMPARE(bench.resolvers.readings, before + 1);
        QVERIFY(bench.tick());
        QCOMPARE(bench.resolvers.readings, before + 2);
    }

    void readsTheCountersOnlyAfterTheResolvers()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        for (int tick = 1; tick < 15; ++tick)
            QVERIFY(bench.tick());
        bench.resolvers.beforeAnswer = [&bench] { return bench.clock.sleep(1s); };
        bench.clock.advance(2s);
        settle();
        QCOMPARE(bench.commandCount(Workbench::countersCommand), 14);
        bench.clock.advance(1s);
        QVERIFY(bench.hears(Workbench::countersCommand, 15));
    }

    void countsNoTurnsWithoutASession()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        for (int tick = 1; tick < 14; ++tick)
            QVERIFY(bench.tick());
        bench.disconnect();
        bench.clock.advance(600s);
        settle();
        QCOMPARE(bench.commandCount(Workbench::countersCommand), 13);
        QVERIFY(bench.connect());
        const int readings = bench.resolvers.readings;
        for (int tick = 1; tick < 15; ++tick)
            QVERIFY(bench.tick());
        QCOMPARE(bench.resolvers.readings, readings); // a new session counts from the beginning
        QVERIFY(bench.tick());
        QCOMPARE(bench.resolvers.readings, readings + 1);
    }

    void anAnswerThatComesAfterTheSessionIsNotShown()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        bench.tor.ignore(Workbench::countersCommand);
        bench.clock.advance(2s);
        QVERIFY(bench.hears(Workbench::countersCommand));
        bench.disconnect();
        QVERIFY(bench.controller().phase() == ConnectionPhase::disconnected);
        bench.tor.hangUp();
        settle();
        bench.clock.advance(60s);
        QVERIFY(bench.controller().phase() == ConnectionPhase::disconnected);
        QVERIFY(!bench.controller().errorMessage());
        QCOMPARE(bench.controller().bytesRead(), quint64(0));
    }

    void torDyingDuringTheChecksLeavesNothingRunning()
    {
        Workbench bench;
        TorController &c = bench.controller();
        c.optimizeSpeed.set(true);
        bench.probe.beforeTorAnswer = [&bench] { return bench.clock.sleep(45s); };
        const auto connecting = c.connect();
        QVERIFY(until([&] { return c.isChecking(); }));
        bench.tor.stopListening();
        for (int failure = 0; failure < 3; ++failure) {
            bench.clock.advance(2s);
            QVERIFY(until([&] {
                return bench.clock.sleepers() == 3 || c.phase() == ConnectionPhase::stale;
            }));
        }
        QVERIFY(c.phase() == ConnectionPhase::stale);
        QVERIFY(!c.isChecking());
        QVERIFY(c.leakStatus() == LeakStatus::notTested());
        bench.clock.advance(45s);
        QVERIFY(Workbench::finished(connecting));
        QVERIFY(c.phase() == ConnectionPhase::stale && !c.isChecking() && !c.isOptimizing()
                && !c.exitIP());
        QCOMPARE(c.statusDetail(), u"Tor stopped running"_s);
        QCOMPARE(bench.probe.torProbes, 1); // no optimisation
    }

    // Tor has accepted the first command, and the monitor that knows this starts again with the
    // session.
    void aRefusedDisconnectDoesNotForgetThatTorHasNoNetwork()
    {
        Workbench bench;
        acceptNetworkCommands(bench);
        bench.tor.reply("SETCONF DisableNetwork=0", "553 Busy\r\n");
        QVERIFY(bench.connect());
        QVERIFY(bench.tick());
        bench.ownAddresses = {QHostAddress(u"198.51.100.7"_s)};
        QVERIFY(bench.tick());
        QVERIFY(bench.controller().errorMessage().value_or(QString()).english().contains(
            u"hasn't confirmed that it uses the network"_s));
        bench.cancelPrompt(u"disconnect"_s);
        bench.disconnect();
        QVERIFY(bench.controller().phase() == ConnectionPhase::connected);
        QVERIFY(bench.tick());
        QCOMPARE(bench.commandCount("SETCONF DisableNetwork=0"), 2);
        QVERIFY(bench.controller().errorMessage().value_or(QString()).english().contains(
            u"hasn't confirmed that it uses the network"_s));
    }

    // Tor carries no traffic before the prompt, nor after it.
    void aRefusedDisconnectDoesNotForgetThatNothingGetsThrough()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        QVERIFY(bench.tick());
        bench.hasCircuit = false;
        bench.setCounters("1000", "200");
        for (int tick = 0; tick < 6; ++tick)
            QVERIFY(bench.tick());
        QVERIFY(c.stall() == TrafficWatch::Stall::noCircuit);
        bench.cancelPrompt(u"disconnect"_s);
        bench.disconnect();
        QVERIFY(c.phase() == ConnectionPhase::connected);
        QVERIFY(c.stall() == TrafficWatch::Stall::noCircuit);
        QVERIFY(bench.tick());
        QVERIFY(c.stall() == TrafficWatch::Stall::noCircuit);
        bench.hasCircuit = true;
        bench.setCounters("9000", "200");
        QVERIFY(bench.tick());
        QVERIFY(!c.stall());
    }

    // The checks ran while Tor carried no traffic, and got no answer.
    void checksUnderWayWhenTrafficFlowsAgainAskOnceMore()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        QVERIFY(until([&] { return !c.isChecking(); }));
        QVERIFY(bench.tick());
        bench.route = std::nullopt;
        QVERIFY(bench.tick());
        QVERIFY(bench.tick());
        QVERIFY(c.stall().has_value());
        const ResumeOnce<bool> answer;
        bench.probe.torAnswer = ScriptedProbe::nothing();
        bench.probe.beforeDirectAnswer = [answer]() -> QCoro::Task<void> {
            return waitFor(answer);
        };
        const auto checking = c.runChecks();
        QVERIFY(c.isChecking());
        bench.probe.torAnswer = IPCheck{true, u"203.0.113.9"_s};
        bench.route = NetworkRoute{u"eth0"_s, false};
        QVERIFY(bench.tick());
        QVERIFY(!c.stall() && c.isChecking());
        answer.complete(true);
        QVERIFY(Workbench::finished(checking));
        QVERIFY(until([&] { return !c.isChecking(); }));
        QVERIFY(c.torVerified() == true);
        QCOMPARE(c.exitIP().value_or(QString()), u"203.0.113.9"_s);
    }

    void whatHappensAtARefusedPromptIsNotMissed_data()
    {
        QTest::addColumn<bool>("sleeps");
        QTest::newRow("a sleep") << true;
        QTest::newRow("another network") << false;
    }

    void whatHappensAtARefusedPromptIsNotMissed()
    {
        QFETCH(bool, sleeps);
        Workbench bench;
        acceptNetworkCommands(bench);
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        QVERIFY(bench.tick());
        bench.cancelPrompt(u"disconnect"_s);
        bench.hold(u"disconnect"_s);
        const auto disconnecting = c.disconnect();
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        if (sleeps)
            c.wake();
        else
            bench.ownAddresses = {QHostAddress(u"198.51.100.7"_s)};
        bench.processes.hold = nullptr;
        bench.processes.release();
        QVERIFY(Workbench::finished(disconnecting));
        QVERIFY(c.phase() == ConnectionPhase::connected);
        QVERIFY(bench.tick());
        QCOMPARE(bench.commandCount("SETCONF DisableNetwork=1"), 1);
    }
};

VELDMARK_TEST(MonitoringTest)
#include "MonitoringTest.moc"
