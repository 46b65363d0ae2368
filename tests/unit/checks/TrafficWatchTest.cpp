#include "checks/TrafficWatch.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace std::chrono_literals;
using namespace veldmark;
using Stall = TrafficWatch::Stall;
using Sample = TrafficWatch::Sample;

namespace {

constexpr Clock::TimePoint at(std::chrono::seconds time)
{
    return Clock::TimePoint(time);
}

// The stall when nothing is read from second 0 on and bytes are sent every `every` seconds, checked
// every 2 s until `last`.
std::optional<Stall> unanswered(int every, int last, bool isInVPN = false)
{
    TrafficWatch watch;
    std::optional<Stall> said;
    for (int second = 0; second <= last; second += 2)
        said = watch.take({.at = at(std::chrono::seconds(second)),
                           .read = 500,
                           .written = 600 * qint64(second / every),
                           .isInVPN = isInVPN});
    return said;
}

} // namespace

class TrafficWatchTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void nothingIsSaidWhileCellsComeOrNothingIsSent()
    {
        TrafficWatch watch;
        for (int second = 0; second < 60; second += 2) { // idle: neither
            QVERIFY(!watch.take({.at = at(std::chrono::seconds(second)),
                                 .read = 10,
                                 .written = 10,
                                 .hasCircuit = true}));
        }
        for (int second = 60; second < 120; second += 2) // an upload: little comes
            QVERIFY(!watch.take({.at = at(std::chrono::seconds(second)),
                                 .read = 10 + 600 * qint64(second / 10),
                                 .written = second * 1000}));
    }

    void whatIsSentWithoutAnAnswerIsSaidAfterTwelveSeconds()
    {
        QVERIFY(!unanswered(2, 12)); // the first byte was sent at 2
        QVERIFY(unanswered(2, 14) == Stall::noAnswer);
        QVERIFY(unanswered(2, 14, true) == Stall::vpn);
        QVERIFY(unanswered(4, 16) == Stall::noAnswer); // now and then
        QVERIFY(!unanswered(1000, 60));
    }

    void whatApplicationsAskOfTorIsNoAnswer()
    {
        TrafficWatch watch;
        std::optional<Stall> said;
        for (int second = 0; second <= 14; second += 2)
            said = watch.take({.at = at(std::chrono::seconds(second)),
                               .read = 30 * second,
                               .written = 600 * second});
        QVERIFY(said == Stall::noAnswer);
    }

    void oneCellTakesItBack()
    {
        TrafficWatch watch;
        watch.take({.at = at(0s), .read = 5000, .written = 1000});
        watch.take({.at = at(2s), .read = 5000, .written = 2000});
        QVERIFY(watch.take({.at = at(14s), .read = 5000, .written = 3000}) == Stall::noAnswer);
        QVERIFY(!watch.take({.at = at(16s), .read = 6000, .written = 4000}));
        QVERIFY(!watch.take({.at = at(18s), .read = 6000, .written = 5000}));
        QVERIFY(watch.take({.at = at(30s), .read = 6000, .written = 6000}) == Stall::noAnswer);
    }

    void torWithoutACircuitIsSaidAfterTenSecondsAlsoWhenCellsCome()
    {
        TrafficWatch watch;
        for (int second = 0; second < 10; second += 2)
            QVERIFY(!watch.take({.at = at(std::chrono::seconds(second)),
                                 .read = 1000 * qint64(second),
                                 .hasCircuit = false}));
        QVERIFY(watch.take({.at = at(10s), .read = 10000, .hasCircuit = false})
                == Stall::noCircuit);
        QVERIFY(watch.take({.at = at(12s), .read = 12000, .hasCircuit = false, .isInVPN = true})
                == Stall::vpn);
        QVERIFY(!watch.take({.at = at(14s), .read = 14000, .hasCircuit = true}));
        QVERIFY(!watch.take({.at = at(16s), .read = 16000, .hasCircuit = false})); // the count
                                                                                   // starts again
    }

    void aTorThatDoesNotSayIsNotTakenAtItsWord()
    {
        TrafficWatch watch;
        for (int second = 0; second < 60; second += 2)
            QVERIFY(!watch.take(
                {.at = at(std::chrono::seconds(second)), .read = 1000 * qint64(second)}));
    }

    void withoutARouteItIsSaidAtTheSecondLook()
    {
        TrafficWatch watch;
        watch.take({.at = at(0s), .read = 1, .written = 1});
        QVERIFY(!watch.take({.at = at(2s), .read = 1, .written = 1, .hasRoute = false}));
        QVERIFY(watch.take({.at = at(4s), .read = 1, .written = 2, .hasRoute = false})
                == Stall::noNetwork);
        QVERIFY(!watch.take({.at = at(6s), .read = 1, .written = 2, .hasRoute = true}));
    }

    void cellsThatComeAreAWay() // a bridge in the local network
    {
        TrafficWatch watch;
        for (int second = 0; second < 20; second += 2)
            QVERIFY(!watch.take({.at = at(std::chrono::seconds(second)),
                                 .read = 1000 * qint64(second),
                                 .written = 1,
                                 .hasRoute = false}));
    }
};

VELDMARK_TEST(TrafficWatchTest)
#include "TrafficWatchTest.moc"
