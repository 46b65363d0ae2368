#include "base/StopToken.h"

#include "support/TestProgram.h"

#include <QTest>

#include <atomic>
#include <optional>
#include <thread>

using namespace veldmark;

class StopTokenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aTokenOfNobodyIsNeverStopped()
    {
        const StopToken token;
        QVERIFY(!token.stop_possible() && !token.stop_requested());
        const StopCallback callback(token, [] { QFAIL("called"); });
    }

    void everyCopyHearsOfIt()
    {
        StopSource source;
        const StopSource copy = source;
        const StopToken token = copy.get_token();
        QVERIFY(token.stop_possible() && !token.stop_requested() && !copy.stop_requested());
        QVERIFY(source.request_stop());
        QVERIFY(token.stop_requested() && copy.stop_requested());
        QVERIFY(!source.request_stop());
    }

    void aCallbackIsCalledOnce()
    {
        StopSource source;
        int first = 0;
        int second = 0;
        const StopCallback one(source.get_token(), [&first] { ++first; });
        {
            const StopCallback gone(source.get_token(), [] { QFAIL("called"); });
        }
        const StopCallback two(source.get_token(), [&second] { ++second; });
        source.request_stop();
        source.request_stop();
        QCOMPARE(std::make_pair(first, second), std::make_pair(1, 1));
    }

    void aCallbackThatComesLateIsCalledAtOnce()
    {
        StopSource source;
        source.request_stop();
        bool called = false;
        const StopCallback callback(source.get_token(), [&called] { called = true; });
        QVERIFY(called);
    }

    void aCallbackMayEndItselfAndTheSource()
    {
        auto source = std::make_optional<StopSource>();
        std::optional<StopCallback> callback;
        int calls = 0;
        callback.emplace(source->get_token(), [&] {
            callback.reset();
            source.reset();
            ++calls;
        });
        source->request_stop();
        QCOMPARE(calls, 1);
        QVERIFY(!callback && !source);
    }

    void theEndOfACallbackWaitsForItsCall()
    {
        for (int round = 0; round < 200; ++round) {
            StopSource source;
            std::atomic<bool> inside = false;
            std::atomic<bool> over = false;
            std::optional<StopCallback> callback;
            callback.emplace(source.get_token(), [&inside, &over] {
                inside = true;
                std::this_thread::yield();
                over = true;
            });
            std::thread asking([&source] { source.request_stop(); });
            if (round % 2 == 0) {
                while (!inside)
                    std::this_thread::yield();
            }
            callback.reset();
            const bool whole = inside == over;
            asking.join();
            QVERIFY(whole);
        }
    }
};

VELDMARK_TEST(StopTokenTest)
#include "StopTokenTest.moc"
