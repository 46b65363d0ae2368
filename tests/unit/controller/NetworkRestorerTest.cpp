#include "controller/NetworkRestorer.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

class NetworkRestorerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void restoresWhatIsConnected()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        NetworkRestorer restorer(bench.controller());
        QSignalSpy finished(&restorer, &NetworkRestorer::finished);
        restorer.begin();
        QVERIFY(restorer.isUnderWay());
        QVERIFY(until([&] { return finished.count() == 1; }));
        QCOMPARE(finished.at(0).at(0).toBool(), true);
        QVERIFY(!bench.hasMarker());
        QVERIFY(!restorer.isUnderWay());
    }

    void restoresWhatAnEarlierRunLeft()
    {
        Workbench bench;
        bench.writeMarker("strict\n");
        bench.controller().detectStaleState();
        NetworkRestorer restorer(bench.controller());
        QSignalSpy finished(&restorer, &NetworkRestorer::finished);
        restorer.begin();
        QVERIFY(until([&] { return finished.count() == 1; }));
        QVERIFY(!bench.hasMarker());
    }

    void leavesAloneWhatIsNotItsOwn()
    {
        Workbench bench;
        NetworkRestorer restorer(bench.controller());
        bench.writeMarker("strict\n"); // another program's session, started meanwhile
        QSignalSpy finished(&restorer, &NetworkRestorer::finished);
        restorer.begin();
        QCOMPARE(finished.count(), 0); // never from within the call
        QVERIFY(until([&] { return finished.count() == 1; }));
        QCOMPARE(finished.at(0).at(0).toBool(), true);
        QCOMPARE(bench.helperRunCount(u"disconnect"_s), 0);
    }

    void waitsForAHelperThatConnects()
    {
        Workbench bench;
        bench.setBootstrap("PROGRESS=10 TAG=conn SUMMARY=\"Connecting\"");
        bench.hold(u"connect"_s);
        const auto connecting = bench.controller().connect();
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        NetworkRestorer restorer(bench.controller());
        QSignalSpy finished(&restorer, &NetworkRestorer::finished);
        restorer.begin();
        settle();
        QCOMPARE(finished.count(), 0);
        QCOMPARE(bench.helperRunCount(u"disconnect"_s), 0);
        bench.processes.release();
        QVERIFY(until([&] { return finished.count() == 1; }));
        QCOMPARE(finished.at(0).at(0).toBool(), true);
        QCOMPARE(bench.helperRunCount(u"disconnect"_s), 1);
        QVERIFY(!bench.hasMarker());
    }

    void saysWhenTheHelperIsRefusedAndCanBeginAgain()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        bench.failHelper(u"disconnect"_s, u"Could not."_s);
        NetworkRestorer restorer(bench.controller());
        QSignalSpy finished(&restorer, &NetworkRestorer::finished);
        restorer.begin();
        restorer.begin(); // one is enough
        QVERIFY(until([&] { return finished.count() == 1; }));
        QCOMPARE(finished.at(0).at(0).toBool(), false);
        QCOMPARE(bench.controller().errorMessage(), u"Could not."_s);
        QCOMPARE(bench.helperRunCount(u"disconnect"_s), 1);
        QVERIFY(bench.controller().phase() == ConnectionPhase::connected);
        bench.letHelperWork();
        restorer.begin();
        QVERIFY(until([&] { return finished.count() == 2; }));
        QCOMPARE(finished.at(1).at(0).toBool(), true);
    }

    void goesBeforeItHasFinished()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        bench.hold(u"disconnect"_s);
        {
            NetworkRestorer restorer(bench.controller());
            restorer.begin();
            QVERIFY(until([&] { return bench.processes.held() == 1; }));
        }
        bench.processes.release();
        QVERIFY(until([&] { return bench.controller().phase() == ConnectionPhase::disconnected; }));
    }
};

VELDMARK_TEST(NetworkRestorerTest)
#include "NetworkRestorerTest.moc"
