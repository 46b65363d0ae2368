#include "base/ResumeOnce.h"

#include "support/ManualClock.h"
#include "support/TestProgram.h"

#include <QSignalSpy>
#include <QTest>

#include <thread>

using namespace std::chrono_literals;
using veldmark::ManualClock;
using veldmark::ResumeOnce;

namespace {
QCoro::Task<void> store(ResumeOnce<int> source, std::vector<int> *seen)
{
    const int value = co_await source;
    seen->push_back(value);
}

QCoro::Task<void> ticks(veldmark::Clock *clock, int *count)
{
    for (int i = 0; i < 300; ++i) {
        co_await clock->sleep(1s);
        ++*count;
    }
}
} // namespace

class ResumeOnceTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void resumesTheWaiterWithTheFirstValueOnly()
    {
        const ResumeOnce<int> once;
        std::vector<int> seen;
        const auto task = store(once, &seen);
        QVERIFY(once.complete(1));
        QVERIFY(!once.complete(2));
        QTRY_COMPARE(seen.size(), 1u);
        QCOMPARE(seen.front(), 1);
    }

    void neverResumesInsideComplete()
    {
        const ResumeOnce<int> once;
        std::vector<int> seen;
        const auto task = store(once, &seen);
        once.complete(1);
        QVERIFY(seen.empty());
        QTRY_VERIFY(!seen.empty());
    }

    void aValueThatCameBeforeTheWaitIsTakenAtOnce()
    {
        const ResumeOnce<int> once;
        once.complete(7);
        std::vector<int> seen;
        const auto task = store(once, &seen);
        QCOMPARE(seen, std::vector<int>{7});
    }

    void racingThreadsCompleteItOnceAndItResumesOnTheWaitersThread()
    {
        for (int round = 0; round < 200; ++round) {
            const ResumeOnce<int> once;
            std::vector<int> seen;
            const auto task = store(once, &seen);
            std::atomic<int> winners = 0;
            std::thread first([&] { winners += once.complete(1); });
            std::thread second([&] { winners += once.complete(2); });
            first.join();
            second.join();
            QCOMPARE(winners.load(), 1);
            QTRY_COMPARE(seen.size(), 1u);
        }
    }

    void deliversAtOnceWhatTheEventLoopHasNotGotTo()
    {
        const ResumeOnce<int> once;
        std::vector<int> seen;
        const auto task = store(once, &seen);
        once.deliver();
        QVERIFY2(seen.empty(), "delivered before the wait had ended");
        std::thread([once] { once.complete(5); }).join();
        QVERIFY2(seen.empty(), "nothing was left to deliver");
        once.deliver();
        QCOMPARE(seen, std::vector<int>{5});
        once.deliver();
        QCoreApplication::processEvents();
        QCOMPARE(seen.size(), 1u);
    }

    void deliversWhateverAnotherThreadHasCompleted()
    {
        for (int round = 0; round < 200; ++round) {
            const ResumeOnce<int> once;
            std::vector<int> seen;
            const auto task = store(once, &seen);
            std::thread other([once] { once.complete(1); });
            while (!once.isDone())
                std::this_thread::yield();
            once.deliver();
            QCOMPARE(seen.size(), 1u);
            other.join();
        }
    }

    void aManualClockRunsFiveMinutesAtOnce()
    {
        ManualClock clock;
        int count = 0;
        const auto task = ticks(&clock, &count);
        clock.advance(299s);
        QCOMPARE(count, 299);
        clock.advance(1s);
        QCOMPARE(count, 300);
        QVERIFY(task.isReady());
    }
};

VELDMARK_TEST(ResumeOnceTest)
#include "ResumeOnceTest.moc"
