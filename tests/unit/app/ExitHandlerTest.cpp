#include "app/ExitHandler.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QSignalSpy>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace veldmark;

namespace {

enum class Helper { works, waits };

// The system or the user ends the program. When the helper waits, its disconnect goes on once the
// bench's processes are released.
struct Leaving {
    Workbench bench;
    ExitHandler handler{bench.controller(), bench.clock};
    QSignalSpy mayEnd{&handler, &ExitHandler::mayEnd};

    bool connects(Helper helper = Helper::works)
    {
        if (helper == Helper::waits)
            bench.hold(u"disconnect"_s);
        return bench.connect();
    }
    bool isRestoring() const
    {
        return until([this] { return bench.processes.held() == 1; });
    }
    bool ends(bool restored) const
    {
        return until([this] { return mayEnd.count() == 1; })
            && mayEnd.at(0).at(0).toBool() == restored;
    }
};

} // namespace

class ExitHandlerTest : public QObject {
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
        Leaving leaving;
        QVERIFY(leaving.connects(Helper::waits));
        leaving.handler.onSignal(number);
        QVERIFY(leaving.isRestoring());
        settle();
        QCOMPARE(leaving.mayEnd.count(), 0);
        leaving.bench.processes.release();
        QVERIFY(leaving.ends(true));
        QVERIFY(!leaving.bench.hasMarker());
    }

    void theSecondSignalEndsAtOnce()
    {
        Leaving leaving;
        QVERIFY(leaving.connects(Helper::waits));
        leaving.handler.onSignal(SIGTERM);
        QVERIFY(leaving.isRestoring());
        leaving.handler.onSignal(SIGHUP); // a session's end sends this as well
        settle();
        QCOMPARE(leaving.mayEnd.count(), 0);
        leaving.handler.onSignal(SIGINT);
        QCOMPARE(leaving.mayEnd.count(), 1);
        QVERIFY(leaving.ends(false));
    }

    void aHangUpThatComesFirstIsNoFirstSignal()
    {
        Leaving leaving;
        QVERIFY(leaving.connects(Helper::waits));
        leaving.handler.onSignal(SIGHUP);
        leaving.handler.onSignal(SIGTERM);
        QVERIFY(leaving.isRestoring());
        settle();
        QCOMPARE(leaving.mayEnd.count(), 0);
    }

    void losesPatienceWithAHelperThatNeverEnds()
    {
        Leaving leaving;
        QVERIFY(leaving.connects(Helper::waits));
        leaving.handler.onSignal(SIGTERM);
        QVERIFY(leaving.isRestoring());
        leaving.bench.clock.advance(ExitHandler::patience - 1ms);
        settle();
        QCOMPARE(leaving.mayEnd.count(), 0);
        leaving.bench.clock.advance(1ms);
        QVERIFY(leaving.ends(false));
        QVERIFY(leaving.bench.hasMarker());
    }

    void aRefusalLetsItEndAndSaysSo()
    {
        Leaving leaving;
        QVERIFY(leaving.connects());
        leaving.bench.failHelper(u"disconnect"_s, u"Could not."_s);
        leaving.handler.onSignal(SIGTERM);
        QVERIFY(leaving.ends(false));
        QVERIFY(leaving.bench.hasMarker());
    }

    void theSessionsEndRestoresFirstToo()
    {
        Leaving leaving;
        QVERIFY(leaving.connects());
        leaving.handler.leave();
        leaving.handler.onSignal(SIGTERM); // the signal follows soon; it is the first one
        QCOMPARE(leaving.mayEnd.count(), 0);
        QVERIFY(leaving.ends(true));
        QVERIFY(!leaving.bench.hasMarker());
        QCOMPARE(leaving.bench.helperRunCount(u"disconnect"_s), 1);
    }

    void aRestoreAloneEndsNothing()
    {
        Leaving leaving;
        QVERIFY(leaving.connects());
        QSignalSpy settled(&leaving.handler, &ExitHandler::settled);
        leaving.handler.restore();
        QVERIFY(until([&] { return settled.count() == 1; }));
        QCOMPARE(settled.at(0).at(0).toBool(), true);
        QCOMPARE(leaving.mayEnd.count(), 0);
        QVERIFY(leaving.bench.controller().phase() == ConnectionPhase::disconnected);
    }

    void patienceIsLostAgainWithAHelperThatStillHangs()
    {
        Leaving leaving;
        QVERIFY(leaving.connects(Helper::waits));
        QSignalSpy settledSpy(&leaving.handler, &ExitHandler::settled);
        for (int time = 1; time <= 2; ++time) {
            leaving.handler.restore();
            QVERIFY(leaving.isRestoring());
            leaving.bench.clock.advance(ExitHandler::patience);
            QVERIFY(until([&] { return settledSpy.count() == time; }));
            QCOMPARE(settledSpy.last().at(0).toBool(), false);
        }
        leaving.bench.processes.release(); // the restore is late, but complete
        QVERIFY(until([&] { return settledSpy.count() == 3; }));
        QCOMPARE(settledSpy.last().at(0).toBool(), true);
    }

    void nothingToRestoreIsNoDelay()
    {
        Leaving leaving;
        leaving.handler.onSignal(SIGTERM);
        QVERIFY(leaving.ends(true));
        QCOMPARE(leaving.bench.helperRunCount(u"disconnect"_s), 0);
    }
};

VELDMARK_TEST(ExitHandlerTest)
#include "ExitHandlerTest.moc"
