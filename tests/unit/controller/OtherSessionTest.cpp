#include "support/OtherSession.h"
#include "controller/NetworkRestorer.h"
#include "controller/PublishedState.h"
#include "controller/SessionWatch.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

namespace {
constexpr uid_t daemonUser = 1; // exists on every system
const QString leftOver = u"Your network is still set up for Tor from an earlier session"_s;
} // namespace

// The session of another process, of the same or another user. It is shown as such, and neither
// replaced nor ended without a request.
class OtherSessionTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() // also where sudo runs it
    {
        qunsetenv("SUDO_UID");
        qunsetenv("PKEXEC_UID");
    }

    void isShownAsWhose_data()
    {
        QTest::addColumn<uint>("user");
        QTest::addColumn<QString>("detail");
        QTest::newRow("own user")
            << geteuid()
            << u"Your network is set up for Tor by another Veldmark of yours, process %1"_s;
        QTest::newRow("another user")
            << daemonUser
            << u"Your network is set up for Tor by daemon, whose Veldmark is process %1"_s;
    }

    void isShownAsWhose()
    {
        QFETCH(uint, user);
        QFETCH(QString, detail);
        Workbench bench;
        OtherSession other(bench.profile, user, "proxy\n");
        TorController &c = bench.controller();
        c.detectStaleState();
        QVERIFY(c.phase() == ConnectionPhase::stale);
        QVERIFY(c.activeMode() == RoutingMode::proxy);
        QCOMPARE(c.statusDetail(), detail.arg(other.process()));
        const QJsonObject published = publishedState(c).value(u"otherSession"_s).toObject();
        QCOMPARE(published.value(u"user"_s).toString(), (SessionOwner{user, 0}).userName());
        QCOMPARE(published.value(u"process"_s).toInteger(), other.process());
    }

    // A disconnect and a connect by hand while this program was stopped, after Tor's death.
    void nothingIsSaidOfTheRulesOfASessionThatWasBegunAnew()
    {
        for (const bool isAnew : {false, true}) {
            Workbench bench;
            TorController &c = bench.controller();
            QVERIFY(bench.connect());
            QVERIFY(until([&] { return !c.isChecking(); }));
            bench.tor.stopListening();
            for (int tick = 0; tick < 3; ++tick)
                QVERIFY(bench.tick());
            QVERIFY(c.phase() == ConnectionPhase::stale);
            QVERIFY(c.errorMessage()->english().contains(u"nothing leaked"_s));
            if (isAnew)
                bench.renewMarker();
            bench.clock.advance(std::chrono::seconds(2));
            QVERIFY(c.phase() == ConnectionPhase::stale);
            QCOMPARE(c.errorMessage().value_or(Text()).english().contains(u"nothing leaked"_s),
                     !isAnew);
            QVERIFY(!isAnew
                    || c.errorMessage().value_or(Text()).english().startsWith(
                        u"Another program has ended this session"_s));
        }
    }

    // By the passwordless rule any program of the user can do that; the session then has no owner.
    void oneBegunByHandInPlaceOfOursIsNotTakenForOurs()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        QVERIFY(until([&] { return !c.isChecking(); }));
        QCOMPARE(c.title(), u"Protected"_s);
        bench.renewMarker();
        bench.clock.advance(std::chrono::seconds(1));
        QVERIFY(until([&] { return c.phase() == ConnectionPhase::stale; }));
        QVERIFY(!c.otherSession());
        QCOMPARE(
            c.errorMessage().value_or(QString()),
            u"Another program has ended this session and started its own. Restore Network ends that session."_s);
        QVERIFY(c.title() != u"Protected"_s);
    }

    void isLeftOverOnceItsProcessHasEnded()
    {
        Workbench bench;
        OtherSession other(bench.profile);
        TorController &c = bench.controller();
        c.detectStaleState();
        QVERIFY(c.otherSession());
        other.end();
        c.lookAtSession();
        QVERIFY(c.phase() == ConnectionPhase::stale);
        QVERIFY(!c.otherSession());
        QCOMPARE(c.statusDetail(), leftOver);
        QVERIFY(bench.connect());
    }

    void isNotReplaced_data()
    {
        QTest::addColumn<uint>("user");
        QTest::addColumn<bool>("seen");
        QTest::newRow("own user") << geteuid() << true;
        QTest::newRow("another user") << daemonUser << true;
        QTest::newRow("begun since the start") << geteuid() << false;
    }

    void isNotReplaced()
    {
        QFETCH(uint, user);
        QFETCH(bool, seen);
        Workbench bench;
        OtherSession other(bench.profile, user);
        TorController &c = bench.controller();
        if (seen)
            c.detectStaleState();
        QVERIFY(!bench.connect());
        QVERIFY(c.phase() == ConnectionPhase::stale);
        QVERIFY(bench.processes.calls.empty());
        QVERIFY2(c.errorMessage().value_or(QString()).english().contains(
                     u"process %1"_s.arg(other.process())),
                 qPrintable(c.errorMessage()->english()));
        other.end();
        QVERIFY(bench.connect());
        QVERIFY(!c.errorMessage());
    }

    void isEndedWhenTheUserRestoresTheNetwork()
    {
        Workbench bench;
        OtherSession other(bench.profile, daemonUser);
        TorController &c = bench.controller();
        c.detectStaleState();
        bench.failHelper(u"disconnect"_s, u"An administrator said no."_s);
        bench.disconnect();
        QVERIFY(c.phase() == ConnectionPhase::stale);
        QVERIFY(c.otherSession()); // and it is shown as before
        QVERIFY(c.statusDetail().english().contains(u"daemon"_s));
        bench.letHelperWork();
        bench.disconnect();
        QVERIFY(c.phase() == ConnectionPhase::disconnected);
        QVERIFY(!c.otherSession());
        QVERIFY(!bench.hasMarker());
    }

    void isNotEndedWithTheProgramThatOnlySeesIt()
    {
        Workbench bench;
        OtherSession other(bench.profile);
        TorController &c = bench.controller();
        c.detectStaleState();
        NetworkRestorer restorer(c);
        QSignalSpy finished(&restorer, &NetworkRestorer::finished);
        restorer.begin();
        QVERIFY(until([&] { return finished.count() == 1; }));
        QCOMPARE(finished.at(0).at(0).toBool(), true);
        QCOMPARE(bench.helperRunCount(u"disconnect"_s), 0);
        QVERIFY(bench.hasMarker());
        other.end(); // then it is a leftover, and the next disconnect restores it
        restorer.begin();
        QVERIFY(until([&] { return finished.count() == 2; }));
        QCOMPARE(bench.helperRunCount(u"disconnect"_s), 1);
        QVERIFY(!bench.hasMarker());
    }

    void isNotEndedWithTheProgramWhoseSessionItHasReplaced()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        // by an administrator's approval; this instance has not seen it yet
        OtherSession other(bench.profile, daemonUser);
        NetworkRestorer restorer(bench.controller());
        QSignalSpy finished(&restorer, &NetworkRestorer::finished);
        restorer.begin();
        QVERIFY(until([&] { return finished.count() == 1; }));
        QCOMPARE(finished.at(0).at(0).toBool(), true);
        QCOMPARE(bench.helperRunCount(u"disconnect"_s), 0);
        QVERIFY(bench.hasMarker());
    }

    void isNotEndedByADisconnectThatWasMeantForThisOnes_data() { isShownAsWhose_data(); }

    void isNotEndedByADisconnectThatWasMeantForThisOnes()
    {
        QFETCH(uint, user);
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        OtherSession other(bench.profile, user); // this instance has not seen it yet
        bench.disconnect();
        QCOMPARE(bench.helperRunCount(u"disconnect"_s), 0);
        QVERIFY(bench.hasMarker());
        QVERIFY(c.phase() == ConnectionPhase::stale && c.otherSession());
        QVERIFY2(c.errorMessage().value_or(QString()).english().contains(u"Disconnect again"_s),
                 qPrintable(c.errorMessage().value_or(QString()).english()));
        bench.disconnect(); // now the request is meant
        QCOMPARE(bench.helperRunCount(u"disconnect"_s), 1);
        QVERIFY(c.phase() == ConnectionPhase::disconnected);
    }

    void theWatchSeesThatItHasReplacedThisOnes()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        SessionWatch watch(c);
        OtherSession other(bench.profile, daemonUser);
        // before any tick of the monitor
        QVERIFY(until([&] { return c.phase() == ConnectionPhase::stale; }));
        QVERIFY(c.otherSession() && !c.exitIP() && !c.torVerified());
    }

    void terminalModeOfThisOneLeavesItsShellsAlone()
    {
        Workbench bench;
        const QString active = bench.profile.terminalDirectory + u"/active"_s;
        OtherSession other(bench.profile);
        TorController &c = bench.controller();
        c.detectStaleState();
        QVERIFY(c.setTerminalMode(false) == std::nullopt);
        bench.terminal.setActive(true); // by the process whose session it is
        c.setTerminalMode(true);
        QVERIFY(QFile::exists(active));
        c.setTerminalMode(false);
        QVERIFY(QFile::exists(active));
        bench.disconnect(); // the user ends that session
        QVERIFY(!QFile::exists(active));
    }

    void terminalModeOfOneThatHasNotLookedLeavesItsShellsAlone()
    {
        Workbench bench;
        OtherSession other(bench.profile);
        bench.terminal.setActive(true);
        // like "veldmarkctl set", which reads no session
        bench.controller().setTerminalMode(true);
        bench.controller().setTerminalMode(false);
        QVERIFY(QFile::exists(bench.profile.terminalDirectory + u"/active"_s));
    }

    void theHelperIsToldWhoseSessionIsMeant()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        bench.disconnect();
        const QString own = QString::number(QCoreApplication::applicationPid());
        QCOMPARE(bench.lastHelperRun(u"disconnect"_s),
                 (QStringList{u"disconnect"_s, u"--process"_s, own}));
        OtherSession other(bench.profile);
        c.lookAtSession();
        bench.disconnect();
        QCOMPARE(bench.lastHelperRun(u"disconnect"_s),
                 (QStringList{u"disconnect"_s, u"--process"_s, QString::number(other.process())}));
    }

    void aHelperOfAFormerVersionIsNotGivenTheOption()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        bench.writeFile(bench.profile.installedHelper, "of a former version\n", true);
        bench.writeFile(bench.profile.sudoersRule);
        bench.disconnect();
        QCOMPARE(bench.lastHelperRun(u"disconnect"_s), QStringList(u"disconnect"_s));
    }

    void isShownWhenItBeginsWhileTheUserIsAskedForTheDisconnect()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        bench.hold(u"disconnect"_s);
        const auto ending = c.disconnect();
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        bench.failHelper(
            u"disconnect"_s,
            u"Another program (process 7) has started a session meanwhile. That session was left alone."_s);
        OtherSession other(bench.profile, daemonUser);
        bench.processes.release();
        QVERIFY(Workbench::finished(ending));
        QVERIFY(c.phase() == ConnectionPhase::stale);
        QVERIFY(c.otherSession());
        QVERIFY(c.errorMessage().value().english().startsWith(
            u"Another user's Veldmark has started a session meanwhile"_s));
        QVERIFY(!c.exitIP() && !c.torVerified());
        bench.clock.advance(std::chrono::seconds(2)); // former loops wake once more
        settle();
        QCOMPARE(bench.clock.sleepers(), std::size_t(1)); // only its rules are watched
    }

    void isNotTheOneThatAnIdleProgramWasToldToEnd()
    {
        Workbench bench;
        OtherSession other(bench.profile); // this instance has not seen it yet
        bench.disconnect();
        QCOMPARE(bench.helperRunCount(u"disconnect"_s), 0);
        QVERIFY(bench.controller().otherSession());
        bench.disconnect();
        QCOMPARE(bench.helperRunCount(u"disconnect"_s), 1);
    }

    void isSeenWhileThisOneStillConnects()
    {
        Workbench bench;
        TorController &c = bench.controller();
        bench.setBootstrap("PROGRESS=5");
        const auto connecting = c.connect();
        QVERIFY(until([&] { return c.canCancel(); }));
        OtherSession other(bench.profile, daemonUser);
        c.lookAtSession();
        QVERIFY(c.phase() == ConnectionPhase::stale);
        QVERIFY(c.otherSession() && !c.canCancel());
        bench.clock.advance(std::chrono::seconds(1));
        QVERIFY(Workbench::finished(connecting));
        QVERIFY(c.phase() == ConnectionPhase::stale && c.otherSession());
    }

    void isShownWhenItHasReplacedThisOnes()
    {
        Workbench bench;
        TorController &c = bench.controller();
        SessionWatch watch(c);
        QVERIFY(bench.connect());
        OtherSession other(bench.profile, daemonUser);
        bench.tor.stopListening(); // it has a Tor of its own
        for (int tick = 0; tick < 3; ++tick)
            QVERIFY(bench.tick());
        QVERIFY(until([&] { return c.otherSession().has_value(); }));
        QVERIFY(c.phase() == ConnectionPhase::stale);
        QVERIFY(c.statusDetail().english().contains(u"daemon"_s));
        QVERIFY(!c.errorMessage()); // the message was about a kill switch that belongs to another
                                    // session now
    }

    void nothingOfTheReplacedSessionIsSaidOfIt_data()
    {
        QTest::addColumn<bool>("strict");
        QTest::newRow("strict") << true;
        QTest::newRow("proxy") << false;
    }

    void nothingOfTheReplacedSessionIsSaidOfIt()
    {
        QFETCH(bool, strict);
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        QVERIFY(bench.tick());
        QVERIFY(c.exitIP() && c.torVerified() && c.bytesRead() > 0 && c.killSwitch());
        const QByteArray circuit = "1 BUILT $" + QByteArray(40, 'A') + "~guard,$"
            + QByteArray(40, 'B') + "~exit PURPOSE=GENERAL";
        bench.tor.reply("GETINFO circuit-status", Workbench::block("circuit-status", {circuit}));
        bench.tor.reply("GETINFO stream-status", Workbench::block("stream-status", {}));
        const auto reading = c.refreshCircuits();
        QVERIFY(Workbench::finished(reading));
        QVERIFY(!c.circuits().empty());
        QVERIFY(c.leakStatus() == LeakStatus::blocked());
        OtherSession other(bench.profile, daemonUser, strict ? "strict\n" : "proxy\n");
        bench.tor.stopListening(); // it has a Tor of its own
        for (int tick = 0; tick < 3; ++tick)
            QVERIFY(bench.tick());
        QVERIFY(c.phase() == ConnectionPhase::stale && c.otherSession()); // at once, without a
                                                                          // watch
        QVERIFY(!c.errorMessage());
        QVERIFY(c.killSwitch().has_value() == strict);
        QVERIFY(!c.exitIP() && !c.torVerified() && c.bytesRead() == 0 && c.circuits().empty());
        QVERIFY(c.leakStatus() == LeakStatus::notTested());
        if (!strict)
            return;
        bench.noteRules("open", 1);
        bench.clock.advance(std::chrono::seconds(2));
        QVERIFY(c.errorMessage().value().english().contains(u"firewall rules"_s));
        // this session's own Tor runs
        QVERIFY(!c.errorMessage().value().english().contains(u"Tor stopped running"_s));
    }

    void takesThePlaceOfALeftOverOne()
    {
        Workbench bench;
        bench.writeMarker("proxy\n");
        TorController &c = bench.controller();
        c.detectStaleState();
        bench.failHelper(u"disconnect"_s, u"Could not."_s);
        bench.disconnect();
        QVERIFY(c.errorMessage());
        OtherSession other(bench.profile);
        c.lookAtSession();
        QVERIFY(c.otherSession());
        QVERIFY(!c.errorMessage()); // the message was about a session that has gone
        QVERIFY(c.activeMode() == RoutingMode::strict);
    }

    void aSessionOfThisProcessIsNotLookedAt()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        bench.removeMarker();
        bench.controller().lookAtSession(); // the monitor, not this call, reports Tor's end
        QVERIFY(bench.controller().phase() == ConnectionPhase::connected);
    }

    void theWatchSeesItComeAndGo()
    {
        Workbench bench; // the marker's folder doesn't exist before the first session
        TorController &c = bench.controller();
        SessionWatch watch(c);
        {
            OtherSession other(bench.profile);
            QVERIFY(until([&] { return c.otherSession().has_value(); }));
            QVERIFY(c.phase() == ConnectionPhase::stale);
            bench.removeMarker(); // it has disconnected
            QVERIFY(until([&] { return c.phase() == ConnectionPhase::disconnected; }));
        }
        OtherSession next(bench.profile, daemonUser);
        QVERIFY(until([&] { return c.otherSession().has_value(); }));
        next.end(); // without a message
        QVERIFY(until([&] { return !c.otherSession(); }));
        QCOMPARE(c.statusDetail(), leftOver);
    }
};

VELDMARK_TEST(OtherSessionTest)
#include "OtherSessionTest.moc"
