#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

// restore(): disconnect() for a caller that does not know what there is to disconnect.
class RestoreTest : public QObject {
    Q_OBJECT
private:
    // Of a task that has ended.
    static Result<void, Text> answer(QCoro::Task<Result<void, Text>> &task)
    {
        return QCoro::waitFor(task);
    }

private Q_SLOTS:
    void succeedsWhenNothingIsToRestore()
    {
        Workbench bench;
        auto restoring = bench.controller().restore();
        QVERIFY(restoring.isReady() && answer(restoring));
        QCOMPARE(bench.helperRunCount(u"disconnect"_s), 0);
    }

    void findsASessionThatWasNotSeenYet()
    {
        Workbench bench;
        bench.writeMarker("strict\n");
        QVERIFY(bench.controller().phase() == ConnectionPhase::disconnected);
        auto restoring = bench.controller().restore();
        QVERIFY(Workbench::finished(restoring));
        QVERIFY(answer(restoring));
        QCOMPARE(bench.helperRunCount(u"disconnect"_s), 1);
        QVERIFY(!bench.hasMarker());
    }

    void succeedsWhenAnotherProcessHasRestoredTheNetwork()
    {
        Workbench bench;
        bench.writeMarker("strict\n");
        bench.controller().detectStaleState();
        QVERIFY(bench.controller().phase() == ConnectionPhase::stale);
        bench.removeMarker();
        auto restoring = bench.controller().restore();
        QVERIFY(restoring.isReady() && answer(restoring));
        QCOMPARE(bench.helperRunCount(u"disconnect"_s), 0);
        QVERIFY(bench.controller().phase() == ConnectionPhase::disconnected);
    }

    void endsTheSession()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        auto restoring = bench.controller().restore();
        QVERIFY(Workbench::finished(restoring));
        QVERIFY(answer(restoring));
        QVERIFY(bench.controller().phase() == ConnectionPhase::disconnected);
    }

    void sharesARunningDisconnect_data()
    {
        QTest::addColumn<QString>("refusal");
        QTest::newRow("restored") << QString();
        QTest::newRow("the helper fails") << u"Could not."_s;
    }
    void sharesARunningDisconnect()
    {
        QFETCH(QString, refusal);
        Workbench bench;
        QVERIFY(bench.connect());
        bench.hold(u"disconnect"_s);
        if (!refusal.isEmpty())
            bench.failHelper(u"disconnect"_s, refusal);
        auto disconnecting = bench.controller().disconnect();
        auto restoring = bench.controller().restore();
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        QVERIFY(!restoring.isReady());
        bench.processes.hold = nullptr;
        bench.processes.release();
        QVERIFY(Workbench::finished(restoring));
        QVERIFY(Workbench::finished(disconnecting));
        const auto ended = answer(restoring);
        QCOMPARE(ended.has_value(), refusal.isEmpty());
        if (!refusal.isEmpty())
            QCOMPARE(ended.error(), answer(disconnecting).error());
        QCOMPARE(bench.helperRunCount(u"disconnect"_s), 1);
    }

    void theControllerMayEndMeanwhile()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        bench.hold(u"disconnect"_s);
        auto disconnecting = bench.controller().disconnect();
        auto restoring = bench.controller().restore();
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        bench.end();
        QVERIFY(Workbench::finished(restoring));
        QVERIFY(!answer(restoring));
        bench.processes.hold = nullptr;
        bench.processes.release();
        QVERIFY(Workbench::finished(disconnecting));
    }
};

VELDMARK_TEST(RestoreTest)
#include "RestoreTest.moc"
