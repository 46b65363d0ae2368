#include "base/Clock.h"

#include "base/ResumeOnce.h"
#include "base/Resumption.h"
#include "support/TestProgram.h"

#include <QElapsedTimer>
#include <QTest>
#include <QThreadPool>

#include <memory>

using namespace std::chrono_literals;
using namespace veldmark;

namespace {

QCoro::Task<void> sleepOn(Clock *clock, std::chrono::milliseconds duration, int *woken)
{
    co_await clock->sleep(duration);
    ++*woken;
}

QCoro::Task<void> await(ResumeOnce<bool> wait, int *resumed)
{
    co_await wait;
    ++*resumed;
}

} // namespace

class ClockTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void sleepsAsLongAsItIsTold()
    {
        SystemClock clock;
        int woken = 0;
        QElapsedTimer timer;
        timer.start();
        sleepOn(&clock, 50ms, &woken);
        QCOMPARE(woken, 0);
        QTRY_COMPARE(woken, 1);
        QVERIFY(timer.elapsed() >= 50);
    }

    void itsEndWakesEverybody()
    {
        auto clock = std::make_unique<SystemClock>();
        int woken = 0;
        sleepOn(clock.get(), 24h, &woken);
        sleepOn(clock.get(), 48h, &woken);
        QCOMPARE(Resumption::waiting(), 2);
        clock.reset(); // and no event loop turns any more
        QCOMPARE(woken, 2);
        QCOMPARE(Resumption::waiting(), 0);
    }

    void aSleeperMayWakeAfterTheClockIsGone()
    {
        auto clock = std::make_unique<SystemClock>();
        int woken = 0;
        sleepOn(clock.get(), 0ms, &woken);
        clock.reset();
        QCOMPARE(woken, 1);
        QTest::qWait(20); // the timer fires all the same
        QCOMPARE(woken, 1);
    }

    void noCoroutineOutlivesAProgram()
    {
        const int waiting = Resumption::waiting();
        int resumed = 0;
        const int status = runToCoroutineEnds([&resumed] {
            const ResumeOnce<bool> told;
            await(told, &resumed);
            told.complete(true); // no event loop delivers it
            return 7;
        });
        QCOMPARE(status, 7);
        QCOMPARE(resumed, 1);
        QCOMPARE(Resumption::waiting(), waiting);
    }

    void theLastTurnResumesWhatWasToldOfItsEnd()
    {
        int resumed = 0;
        {
            const CoroutineEnds coroutineEnds;
            const ResumeOnce<bool> told;
            const ResumeOnce<bool> elsewhere;
            await(told, &resumed);
            await(elsewhere, &resumed);
            told.complete(true);
            QThreadPool::globalInstance()->start([elsewhere] {
                QTest::qSleep(50);
                elsewhere.complete(true);
            });
            QCOMPARE(resumed, 0);
        }
        QCOMPARE(resumed, 2);
        QCOMPARE(Resumption::waiting(), 0);
    }
};

VELDMARK_TEST(ClockTest)
#include "ClockTest.moc"
