#include "app/Departure.h"
#include "support/Workbench.h"

#include <QSignalSpy>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace veldmark;
using Phase = ConnectionPhase;

class DepartureTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aSignalRestoresTheNetworkFirst_data()
    {
        QTest::addColumn<int>("number");
        QTest::newRow("SIGTERM") << SIGTERM;
        QTest::newRow("SIGINT") << SIGINT;
        QTest::newRow("SIGHUP") << SIGHUP;
    }
    void aSignalRestoresTheNetworkFirst()
    {
        QFETCH(int, number);
        Workbench bench;
        QVERIFY(bench.connect());
        bench.hold(u"disconnect"_s);
        Departure departure(bench.controller(), bench.clock);
        QSignalSpy mayEnd(&departure, &Departure::mayEnd);
        departure.onSignal(number);
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        settle();
        QCOMPARE(mayEnd.count(), 0);
        bench.processes.release();
        QVERIFY(until([&] { return mayEnd.count() == 1; }));
        QCOMPARE(mayEnd.at(0).at(0).toBool(), true);
        QVERIFY(!bench.hasMarker());
    }

    void theSecondSignalEndsAtOnce()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        bench.hold(u"disconnect"_s);
        Departure departure(bench.controller(), bench.clock);
        QSignalSpy mayEnd(&departure, &Departure::mayEnd);
        departure.onSignal(SIGTERM);
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        departure.onSignal(SIGHUP); // what a session's end sends with it
        settle();
        QCOMPARE(mayEnd.count(), 0);
        departure.onSignal(SIGINT);
        QCOMPARE(mayEnd.count(), 1);
        QCOMPARE(mayEnd.at(0).at(0).toBool(), false);
    }

    void aHangUpThatComesFirstIsNoFirstSignal()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        bench.hold(u"disconnect"_s);
        Departure departure(bench.controller(), bench.clock);
        QSignalSpy mayEnd(&departure, &Departure::mayEnd);
        departure.onSignal(SIGHUP);
        departure.onSignal(SIGTERM);
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        settle();
        QCOMPARE(mayEnd.count(), 0);
    }

    void losesPatienceWithAHelperThatNeverEnds()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        bench.hold(u"disconnect"_s);
        Departure departure(bench.controller(), bench.clock);
        QSignalSpy mayEnd(&departure, &Departure::mayEnd);
        departure.onSignal(SIGTERM);
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        bench.clock.advance(Departure::patience - 1ms);
        settle();
        QCOMPARE(mayEnd.count(), 0);
        bench.clock.advance(1ms);
        QVERIFY(until([&] { return mayEnd.count() == 1; }));
        QCOMPARE(mayEnd.at(0).at(0).toBool(), false);
        QVERIFY(bench.hasMarker());
    }

    void aRefusalLetsItEndAndSaysSo()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        bench.failHelper(u"disconnect"_s, u"Could not."_s);
        Departure departure(bench.controller(), bench.clock);
        QSignalSpy mayEnd(&departure, &Departure::mayEnd);
        departure.onSignal(SIGTERM);
        QVERIFY(until([&] { return mayEnd.count() == 1; }));
        QCOMPARE(mayEnd.at(0).at(0).toBool(), false);
        QVERIFY(bench.hasMarker());
    }

    void theSessionsEndRestoresFirstToo()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        Departure departure(bench.controller(), bench.clock);
        QSignalSpy mayEnd(&departure, &Departure::mayEnd);
        departure.leave();
        departure.onSignal(SIGTERM); // what follows it, soon; still the first of its kind
        QCOMPARE(mayEnd.count(), 0);
        QVERIFY(until([&] { return mayEnd.count() == 1; }));
        QCOMPARE(mayEnd.at(0).at(0).toBool(), true);
        QVERIFY(!bench.hasMarker());
        QCOMPARE(bench.helperRunCount(u"disconnect"_s), 1);
    }

    void aRestoreAloneEndsNothing()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        Departure departure(bench.controller(), bench.clock);
        QSignalSpy mayEnd(&departure, &Departure::mayEnd);
        QSignalSpy settled(&departure, &Departure::settled);
        departure.restore();
        QVERIFY(until([&] { return settled.count() == 1; }));
        QCOMPARE(settled.at(0).at(0).toBool(), true);
        QCOMPARE(mayEnd.count(), 0);
        QVERIFY(bench.controller().phase() == Phase::disconnected);
    }

    void patienceIsLostAgainWithAHelperThatStillHangs()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        bench.hold(u"disconnect"_s);
        Departure departure(bench.controller(), bench.clock);
        QSignalSpy settledSpy(&departure, &Departure::settled);
        for (int time = 1; time <= 2; ++time) {
            departure.restore();
            QVERIFY(until([&] { return bench.processes.held() == 1; }));
            bench.clock.advance(Departure::patience);
            QVERIFY(until([&] { return settledSpy.count() == time; }));
            QCOMPARE(settledSpy.last().at(0).toBool(), false);
        }
        bench.processes.release(); // late, but it is done
        QVERIFY(until([&] { return settledSpy.count() == 3; }));
        QCOMPARE(settledSpy.last().at(0).toBool(), true);
    }

    void nothingToRestoreIsNoDelay()
    {
        Workbench bench;
        Departure departure(bench.controller(), bench.clock);
        QSignalSpy mayEnd(&departure, &Departure::mayEnd);
        departure.onSignal(SIGTERM);
        QVERIFY(until([&] { return mayEnd.count() == 1; }));
        QCOMPARE(mayEnd.at(0).at(0).toBool(), true);
        QCOMPARE(bench.helperRunCount(u"disconnect"_s), 0);
    }
};

QTEST_GUILESS_MAIN(DepartureTest)
#include "DepartureTest.moc"
