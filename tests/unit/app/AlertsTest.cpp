#include "StandInSession.h"
#include "app/Alerts.h"
#include "support/TestProgram.h"

#include <QSignalSpy>
#include <QTest>

using namespace veldmark;

class AlertsTest : public QObject {
    Q_OBJECT

    PlatformProfile profile = PlatformProfile::linux(Places::below(QStringLiteral("/nowhere")));

    static Snapshot inPhase(Phase phase)
    {
        Snapshot s;
        s.phase = phase;
        s.activeMode = RoutingMode::strict;
        return s;
    }

private Q_SLOTS:
    void tellsWhenTorDies()
    {
        StandInSession session(profile);
        Alerts alerts(session);
        QSignalSpy told(&alerts, &Alerts::told);
        session.show(inPhase(Phase::connected));
        session.show(inPhase(Phase::stale));
        QCOMPARE(told.count(), 1);
        session.show(inPhase(Phase::stale));
        QCOMPARE(told.count(), 1);
    }

    void tellsWhenTorDiesAndSomebodyElseHasRestored()
    {
        StandInSession session(profile);
        Alerts alerts(session);
        QSignalSpy told(&alerts, &Alerts::told);
        session.show(inPhase(Phase::connected));
        Snapshot ended = inPhase(Phase::disconnected);
        ended.errorMessage = QStringLiteral("Tor stopped running, and your network is no longer set up for it.");
        session.show(ended);
        QCOMPARE(told.count(), 1);
        QCOMPARE(told.at(0).at(1).toString(), *ended.errorMessage);
    }

    void tellsEachRemovalOfTheRules()
    {
        StandInSession session(profile);
        Alerts alerts(session);
        QSignalSpy told(&alerts, &Alerts::told);
        session.show(inPhase(Phase::connected));
        Q_EMIT session.rulesRemoved(true);
        QCOMPARE(told.count(), 1);
        QVERIFY(told.at(0).at(1).toString().contains(QStringLiteral("back in place")));
        Q_EMIT session.rulesRemoved(false);
        QCOMPARE(told.count(), 2);
        QVERIFY(told.at(1).at(1).toString().contains(QStringLiteral("could not be put back")));
    }

    void isQuietAboutWhatTheUserDoes()
    {
        StandInSession session(profile);
        Alerts alerts(session);
        QSignalSpy told(&alerts, &Alerts::told);
        for (const Phase phase : {Phase::connecting, Phase::connected, Phase::disconnecting, Phase::connected,
                                  Phase::disconnecting, Phase::disconnected, Phase::stale})
            session.show(inPhase(phase));
        QCOMPARE(told.count(), 0);
    }

    void tellsEachLeakOnce()
    {
        StandInSession session(profile);
        Alerts alerts(session);
        QSignalSpy told(&alerts, &Alerts::told);
        Snapshot s = inPhase(Phase::connected);
        session.show(s);
        s.lookups = {Lookups::Kind::leak, {QStringLiteral("192.168.1.1")}};
        session.show(s);
        session.show(s);
        QCOMPARE(told.count(), 1);
        s.lookups = {};
        session.show(s);
        s.leak = {Leak::Kind::exposed, QStringLiteral("198.51.100.1")};
        session.show(s);
        QCOMPARE(told.count(), 2);
        s.leak = {};
        session.show(s);
        s.activeMode = RoutingMode::proxy; // where it is known, and told, that apps can go direct
        s.leak = {Leak::Kind::exposed, QStringLiteral("198.51.100.1")};
        session.show(s);
        QCOMPARE(told.count(), 2);
    }
};

VELDMARK_WINDOWED_TEST(AlertsTest)
#include "AlertsTest.moc"
