#include "ui/TrafficHistory.h"
#include "support/TestProgram.h"

#include <QSignalSpy>
#include <QTest>

using namespace veldmark;
using namespace std::chrono_literals;

class TrafficHistoryTest : public QObject {
    Q_OBJECT

    const TrafficHistory::TimePoint start = TrafficHistory::TimePoint() + 1h;

private Q_SLOTS:
    void turnsCountersIntoRates()
    {
        TrafficHistory history;
        history.add(1000, 100, start);
        QVERIFY(history.samples().empty()); // one reading gives no rate
        history.add(5000, 300, start + 2s);
        QCOMPARE(history.samples().size(), size_t(1));
        QCOMPARE(history.samples().front().down, 2000.0);
        QCOMPARE(history.samples().front().up, 100.0);
    }

    void keepsTwoMinutes()
    {
        TrafficHistory history;
        for (int i = 0; i <= 200; ++i)
            history.add(static_cast<quint64>(i) * 10, 0, start + i * 2s);
        QVERIFY(history.samples().front().at >= history.samples().back().at - TrafficHistory::span);
        QCOMPARE(history.samples().size(), size_t(61));
    }

    void startsAfreshWhenACounterShrinks()
    {
        TrafficHistory history;
        history.add(1000, 0, start);
        history.add(9000, 0, start + 2s);
        history.add(10, 0, start + 4s); // another Tor
        QVERIFY(history.samples().empty());
        history.add(2010, 0, start + 6s);
        QCOMPARE(history.samples().front().down, 1000.0);
    }

    void tellsNothingWhenNothingIsNew()
    {
        TrafficHistory history;
        history.add(1000, 0, start);
        QSignalSpy spy(&history, &TrafficHistory::changed);
        history.add(1000, 0, start + 500ms);
        QCOMPARE(spy.count(), 0);
        history.add(1000, 0, start + 2s);
        QCOMPARE(spy.count(), 1);
    }
};

VELDMARK_WINDOWED_TEST(TrafficHistoryTest)
#include "TrafficHistoryTest.moc"
