#include "app/Alerts.h"
#include "StandInSession.h"
#include "app/ControllerSession.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <cstdio>

using namespace veldmark;

class AlertsTest : public QObject {
    Q_OBJECT

    PlatformProfile profile = PlatformProfile::linux(Places::below(QStringLiteral("/nowhere")));

    static KillSwitch rules(KillSwitch::State state, int missed = 0, qint64 seconds = 1'800'000'000)
    {
        return {state, missed, QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC)};
    }

    static Snapshot inPhase(ConnectionPhase phase)
    {
        Snapshot s;
        s.phase = phase;
        s.activeMode = RoutingMode::strict;
        if (phase != ConnectionPhase::disconnected)
            s.killSwitch = rules(KillSwitch::State::standing);
        s.hasTorStopped = phase == ConnectionPhase::stale;
        return s;
    }

private Q_SLOTS:
    void tellsWhenTorDies()
    {
        StandInSession session(profile);
        Alerts alerts(session);
        QSignalSpy told(&alerts, &Alerts::told);
        session.show(inPhase(ConnectionPhase::connected));
        session.show(inPhase(ConnectionPhase::stale));
        QCOMPARE(told.count(), 1);
        QCOMPARE(told.at(0).at(0).toString(), QStringLiteral("Tor stopped running"));
        session.show(inPhase(ConnectionPhase::stale));
        QCOMPARE(told.count(), 1);
    }

    void tellsThatAnotherSessionHasReplacedThisOne()
    {
        StandInSession session(profile);
        Alerts alerts(session);
        QSignalSpy told(&alerts, &Alerts::told);
        session.show(inPhase(ConnectionPhase::connected));
        Snapshot replaced = inPhase(ConnectionPhase::stale);
        replaced.isAnothers = true;
        replaced.hasTorStopped = false;
        // the message is about something else
        replaced.errorMessage = QStringLiteral("The settings file couldn't be read.");
        replaced.statusDetail = QStringLiteral(
            "Your network is set up for Tor by bob, whose Veldmark is process 7");
        session.show(replaced);
        QCOMPARE(told.count(), 1);
        QCOMPARE(told.at(0).at(0).toString(),
                 QStringLiteral("Another session has replaced this one"));
        QCOMPARE(told.at(0).at(1).toString(), replaced.statusDetail);
    }

    // A session that was begun by hand has no owner.
    void aSessionBegunByHandInPlaceOfThisOneIsNotCalledTorsEnd()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        Alerts alerts(session);
        QSignalSpy told(&alerts, &Alerts::told);
        QVERIFY(bench.connect());
        QVERIFY(until([&] {
            return session.now().phase == ConnectionPhase::connected && !session.now().isChecking;
        }));
        const QString marker = bench.profile.sessionMarker;
        bench.writeFile(marker + QStringLiteral(".new"), "strict\n");
        QVERIFY(std::rename(QFile::encodeName(marker + QStringLiteral(".new")).constData(),
                            QFile::encodeName(marker).constData())
                == 0);
        bench.clock.advance(std::chrono::seconds(1));
        QVERIFY(until([&] { return session.now().phase == ConnectionPhase::stale; }));
        QCOMPARE(told.count(), 1);
        QCOMPARE(told.at(0).at(0).toString(),
                 QStringLiteral("Another session has replaced this one"));
    }

    void tellsThatTorDiedNotThatAnotherSessionBegan()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        Alerts alerts(session);
        QSignalSpy told(&alerts, &Alerts::told);
        QVERIFY(bench.connect());
        QVERIFY(bench.tick());
        bench.tor.stopListening();
        for (int tick = 0; tick < 3; ++tick)
            QVERIFY(bench.tick());
        QVERIFY(until([&] { return session.now().phase == ConnectionPhase::stale; }));
        QCOMPARE(told.count(), 1);
        QCOMPARE(told.at(0).at(0).toString(), QStringLiteral("Tor stopped running"));
    }

    void tellsWhenTorDiesAndAnotherProcessHasRestored()
    {
        StandInSession session(profile);
        Alerts alerts(session);
        QSignalSpy told(&alerts, &Alerts::told);
        session.show(inPhase(ConnectionPhase::connected));
        Snapshot ended = inPhase(ConnectionPhase::disconnected);
        ended.errorMessage = QStringLiteral(
            "Tor stopped running, and your network is no longer set up for it.");
        session.show(ended);
        QCOMPARE(told.count(), 1);
        QCOMPARE(told.at(0).at(1).toString(), *ended.errorMessage);
    }

    void tellsWhatBecomesOfTheRules()
    {
        using State = KillSwitch::State;
        StandInSession session(profile);
        Alerts alerts(session);
        QSignalSpy told(&alerts, &Alerts::told);
        Snapshot s = inPhase(ConnectionPhase::connected);
        session.show(s);
        QCOMPARE(told.count(), 0);
        s.killSwitch = rules(State::putBack, 1);
        session.show(s);
        QCOMPARE(told.count(), 1);
        QVERIFY(told.at(0).at(1).toString().contains(QStringLiteral("back in place")));
        for (int attempt = 1; attempt < 5; ++attempt) { // tries repeatedly
            s.killSwitch = rules(State::open, 2);
            session.show(s);
            s.bytesRead += 1;
            session.show(s);
        }
        QCOMPARE(told.count(), 2);
        QCOMPARE(told.at(1).at(0).toString(), QStringLiteral("Traffic can leave around Tor"));
        s.killSwitch = rules(State::putBack, 2);
        session.show(s);
        QCOMPARE(told.count(), 3); // its end is news as well
        s.killSwitch = rules(State::standing);
        session.show(s);
        QCOMPARE(told.count(), 3);
        s.killSwitch = rules(State::unknown);
        session.show(s);
        session.show(s);
        QCOMPARE(told.count(), 4);
        QCOMPARE(told.at(3).at(0).toString(), QStringLiteral("The kill switch is not watched"));
    }

    void tellsThatNobodyWatchesOnceAWorseDangerIsOver()
    {
        using State = KillSwitch::State;
        StandInSession session(profile);
        Alerts alerts(session);
        QSignalSpy told(&alerts, &Alerts::told);
        Snapshot s = inPhase(ConnectionPhase::connected);
        s.activeMode = RoutingMode::strict;
        s.killSwitch = rules(State::standing);
        session.show(s);
        s.leak = LeakStatus::exposed(QStringLiteral("198.51.100.7"));
        session.show(s);
        s.killSwitch = rules(State::unknown);
        session.show(s);
        QCOMPARE(told.count(), 1);
        s.leak = LeakStatus::notTested();
        session.show(s);
        QCOMPARE(told.count(), 2);
        QCOMPARE(told.at(1).at(0).toString(), QStringLiteral("The kill switch is not watched"));
    }

    void tellsOnceAMinuteOfAProgramThatKeepsRemovingThem()
    {
        using State = KillSwitch::State;
        StandInSession session(profile);
        Alerts alerts(session);
        QSignalSpy told(&alerts, &Alerts::told);
        Snapshot s = inPhase(ConnectionPhase::connected);
        session.show(s);
        for (int second = 0; second < 60; ++second) {
            s.killSwitch = rules(State::putBack, second + 1, 1'800'000'000 + second);
            session.show(s);
        }
        QCOMPARE(told.count(), 1);
        s.killSwitch = rules(State::putBack, 61, 1'800'000'060);
        session.show(s);
        QCOMPARE(told.count(), 2);
        // The first notification comes again in another session.
        s.killSwitch.reset();
        s.phase = ConnectionPhase::disconnecting;
        session.show(s);
        s.killSwitch = rules(State::putBack, 1, 1'800'000'070);
        s.phase = ConnectionPhase::connected;
        session.show(s);
        QCOMPARE(told.count(), 3);
    }

    void isQuietAboutWhatHappenedToAnEarlierSession()
    {
        using State = KillSwitch::State;
        for (const State state : {State::standing, State::putBack, State::unknown, State::open}) {
            StandInSession session(profile);
            Alerts alerts(session);
            QSignalSpy told(&alerts, &Alerts::told);
            Snapshot s = inPhase(ConnectionPhase::stale);
            s.killSwitch = rules(state, 3);
            session.show(s);
            QCOMPARE(told.count(), state == State::open ? 1 : 0); // this session's rules failed now
        }
    }

    // Its rules were removed and put back before it took the other's place.
    void isQuietAboutWhatHappenedToASessionThatReplacesAnother()
    {
        using State = KillSwitch::State;
        for (const ConnectionPhase before : {ConnectionPhase::connected, ConnectionPhase::stale}) {
            StandInSession session(profile);
            Alerts alerts(session);
            QSignalSpy told(&alerts, &Alerts::told);
            const auto isToldOfRules = [&told] {
                return std::any_of(told.begin(), told.end(), [](const auto &notification) {
                    return notification.at(0).toString()
                        == QStringLiteral("Firewall rules were removed");
                });
            };
            session.show(inPhase(before));
            Snapshot s = inPhase(ConnectionPhase::stale);
            s.hasTorStopped = false;
            s.session = 1;
            s.killSwitch = rules(State::putBack, 1);
            session.show(s);
            QVERIFY(!isToldOfRules());
            s.killSwitch = rules(State::putBack, 2, 1'800'000'030); // and now it happens again
            session.show(s);
            QVERIFY(isToldOfRules());
        }
    }

    void countsTheSessionsOfTheComputer()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        Alerts alerts(session);
        QSignalSpy told(&alerts, &Alerts::told);
        QVERIFY(bench.connect());
        QVERIFY(until([&] {
            return session.now().phase == ConnectionPhase::connected && !session.now().isChecking;
        }));
        const int own = session.now().session;
        bench.noteRules("restored", 1);
        QVERIFY(bench.tick());
        QVERIFY(until([&] { return told.count() == 1; })); // this one's are told
        QCOMPARE(told.at(0).at(0).toString(), QStringLiteral("Firewall rules were removed"));
        QCOMPARE(session.now().session, own);
        // Each is begun by hand, and something has happened to its rules.
        for (int time = 2; time <= 3; ++time) {
            bench.renewMarker();
            bench.noteRules("restored", time, 1'800'000'000 + time * 120);
            bench.clock.advance(std::chrono::seconds(1));
            QVERIFY(until([&] { return session.now().session == own + time - 1; }));
            settle();
            QVERIFY(session.now().phase == ConnectionPhase::stale && session.now().killSwitch);
            QCOMPARE(session.now().killSwitch->missed, time);
            QCOMPARE(told.count(), 2);
            QCOMPARE(told.at(1).at(0).toString(),
                     QStringLiteral("Another session has replaced this one"));
        }
    }

    void isQuietAboutWhatTheUserDoes()
    {
        StandInSession session(profile);
        Alerts alerts(session);
        QSignalSpy told(&alerts, &Alerts::told);
        for (const ConnectionPhase phase :
             {ConnectionPhase::connecting, ConnectionPhase::connected,
              ConnectionPhase::disconnecting, ConnectionPhase::connected,
              ConnectionPhase::disconnecting, ConnectionPhase::disconnected,
              ConnectionPhase::stale})
            session.show(inPhase(phase));
        QCOMPARE(told.count(), 0);
    }

    void tellsEachLeakOnce()
    {
        StandInSession session(profile);
        Alerts alerts(session);
        QSignalSpy told(&alerts, &Alerts::told);
        Snapshot s = inPhase(ConnectionPhase::connected);
        session.show(s);
        s.dns = DNSStatus::leak({QStringLiteral("192.168.1.1")});
        session.show(s);
        session.show(s);
        QCOMPARE(told.count(), 1);
        s.dns = {};
        session.show(s);
        s.leak = LeakStatus::exposed(QStringLiteral("198.51.100.1"));
        session.show(s);
        QCOMPARE(told.count(), 2);
        s.leak = LeakStatus();
        session.show(s);
        // A danger that begins during another one is told as well, once.
        s.dns = DNSStatus::leak({QStringLiteral("192.168.1.1")});
        session.show(s);
        QCOMPARE(told.count(), 3);
        s.leak = LeakStatus::exposed(QStringLiteral("198.51.100.1"));
        session.show(s);
        session.show(s);
        QCOMPARE(told.count(), 4);
        QCOMPARE(told.at(3).at(0).toString(), QStringLiteral("Traffic can leave around Tor"));
        s.dns = {};
        s.leak = LeakStatus();
        session.show(s);
        QCOMPARE(told.count(), 4);
        s.activeMode = RoutingMode::proxy; // the mode shows already that apps can connect directly
        s.leak = LeakStatus::exposed(QStringLiteral("198.51.100.1"));
        session.show(s);
        QCOMPARE(told.count(), 4);
    }
};

VELDMARK_WINDOWED_TEST(AlertsTest)
#include "AlertsTest.moc"
