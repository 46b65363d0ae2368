#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace veldmark;

class OptimizationTest : public QObject {
    Q_OBJECT
private:
    // The duration of every probe through Tor.
    static void answerAfter(Workbench &bench, std::chrono::milliseconds duration)
    {
        bench.probe.beforeTorAnswer = [&bench, duration] { return bench.clock.sleep(duration); };
    }

    // Lets time pass until the operation has ended; returns its duration.
    static std::chrono::milliseconds run(Workbench &bench, const QCoro::Task<void> &task)
    {
        const auto start = bench.clock.now();
        while (!task.isReady() && bench.clock.now() - start < 300s) {
            bench.clock.advance(100ms);
            settle();
        }
        return std::chrono::duration_cast<std::chrono::milliseconds>(bench.clock.now() - start);
    }

private Q_SLOTS:
    void runsAfterConnectingOnlyOnASlowPath_data()
    {
        QTest::addColumn<bool>("wanted");
        QTest::addColumn<int>("milliseconds");
        QTest::addColumn<bool>("answers");
        QTest::addColumn<bool>("runs");
        QTest::newRow("1500 ms is fast") << true << 1500 << true << false;
        QTest::newRow("1501 ms is slow") << true << 1501 << true << true;
        QTest::newRow("no answer is slow") << true << 10 << false << true;
        QTest::newRow("slow, but not wanted") << false << 5000 << true << false;
    }

    void runsAfterConnectingOnlyOnASlowPath()
    {
        QFETCH(bool, wanted);
        QFETCH(int, milliseconds);
        QFETCH(bool, answers);
        QFETCH(bool, runs);
        Workbench bench;
        TorController &c = bench.controller();
        c.optimizeSpeed.set(wanted);
        answerAfter(bench, std::chrono::milliseconds(milliseconds));
        if (!answers)
            bench.probe.torAnswer = ScriptedProbe::nothing();
        const auto connecting = c.connect();
        QVERIFY(until([&] { return bench.clock.sleepers() == 3; })); // monitor, watch and probe
        bench.probe.beforeTorAnswer = nullptr;                       // the next one is fast
        bench.clock.advance(std::chrono::milliseconds(milliseconds));
        run(bench, connecting);
        QVERIFY(connecting.isReady());
        QVERIFY(!c.isOptimizing());
        QCOMPARE(bench.probe.torProbes > 1, runs);
    }

    void aFastPathEndsItAtOnce()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        QStringList texts;
        QObject::connect(&c.optimizeStatus, &Field::changed,
                         [&] { texts << c.optimizeStatus().value_or(u"-"_s).english(); });
        answerAfter(bench, 1500ms);
        const auto optimizing = c.optimizeCircuits();
        QVERIFY(c.isOptimizing());
        bench.clock.advance(1500ms);
        QVERIFY(Workbench::finished(optimizing));
        QCOMPARE(c.latencyMs().value(), qint64(1500));
        QCOMPARE(texts, QStringList({u"Testing speed (1 of 4)…"_s, u"-"_s}));
        QCOMPARE(bench.commandCount("SIGNAL NEWNYM"), 0);
        QVERIFY(!c.isOptimizing());
    }

    void asksForOtherPathsThreeTimes_data()
    {
        QTest::addColumn<bool>("answers");
        QTest::addColumn<QString>("text");
        QTest::newRow("no answer") << false << u"Path not responding, finding another…"_s;
        QTest::newRow("slow") << true << u"Slow path (1600 ms), finding a faster one…"_s;
    }

    void asksForOtherPathsThreeTimes()
    {
        QFETCH(bool, answers);
        QFETCH(QString, text);
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        if (!answers)
            bench.probe.torAnswer = ScriptedProbe::nothing();
        answerAfter(bench, answers ? 1600ms : 100ms);
        QStringList texts;
        QObject::connect(&c.optimizeStatus, &Field::changed,
                         [&] { texts << c.optimizeStatus().value_or(u"-"_s).english(); });
        const int probes = bench.probe.torProbes;
        const auto optimizing = c.optimizeCircuits();
        for (int round = 1; round <= 4; ++round) {
            QVERIFY(until([&] { return bench.probe.torProbes == probes + round; }));
            bench.clock.advance(answers ? 1600ms : 100ms);
            if (round == 4)
                break;
            QVERIFY(bench.hears("SIGNAL NEWNYM", round));
            // monitor, watch, the pause
            QVERIFY(until([&] { return bench.clock.sleepers() == 3; }));
            bench.clock.advance(9999ms);
            settle();
            QVERIFY(c.isOptimizing());
            QCOMPARE(bench.probe.torProbes, probes + round);
            bench.clock.advance(1ms);
        }
        QVERIFY(Workbench::finished(optimizing));
        QStringList expected;
        for (int round = 1; round <= 4; ++round)
            expected << u"Testing speed (%1 of 4)…"_s.arg(round) << text;
        QCOMPARE(texts, expected << u"-"_s);
        QCOMPARE(bench.commandCount("SIGNAL NEWNYM"), 3);
        // the last path's, not that of the checks before
        QCOMPARE(c.latencyMs(), answers ? std::optional<qint64>(1600) : std::nullopt);
        QVERIFY(!c.isOptimizing() && !c.errorMessage());
    }

    void aTorThatRefusesNewPathsEndsNothing()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        bench.tor.reply("SIGNAL NEWNYM", "552 Unrecognized signal\r\n");
        bench.probe.torAnswer = ScriptedProbe::nothing();
        const auto optimizing = c.optimizeCircuits();
        run(bench, optimizing);
        QVERIFY(optimizing.isReady() && !c.isOptimizing() && !c.errorMessage());
        QCOMPARE(bench.commandCount("SIGNAL NEWNYM"), 3);
    }

    void oneAtATimeAndOnlyWithASession()
    {
        Workbench bench;
        TorController &c = bench.controller();
        const auto nothing = c.optimizeCircuits();
        QVERIFY(nothing.isReady() && !c.isOptimizing());
        QVERIFY(bench.connect());
        answerAfter(bench, 1s);
        const auto first = c.optimizeCircuits();
        const auto second = c.optimizeCircuits();
        QVERIFY(!first.isReady() && second.isReady());
        bench.clock.advance(1s);
        QVERIFY(Workbench::finished(first));
    }

    void endsWithTheSession_data()
    {
        QTest::addColumn<bool>("inPause");
        QTest::newRow("during a probe") << false;
        QTest::newRow("in a pause") << true;
    }

    void endsWithTheSession()
    {
        QFETCH(bool, inPause);
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        bench.probe.torAnswer = ScriptedProbe::nothing();
        answerAfter(bench, 1s);
        const auto optimizing = c.optimizeCircuits();
        if (inPause) {
            bench.clock.advance(1s);
            QVERIFY(bench.hears("SIGNAL NEWNYM"));
            QVERIFY(until([&] { return bench.clock.sleepers() == 3; }));
        }
        bench.disconnect();
        QVERIFY(!c.isOptimizing() && !c.optimizeStatus());
        bench.probe.beforeTorAnswer = nullptr;
        QVERIFY(bench.connect()); // a new session while the old one's run still sleeps
        bench.clock.advance(10s);
        QVERIFY(Workbench::finished(optimizing));
        QVERIFY(!c.isOptimizing() && !c.optimizeStatus());
        QCOMPARE(bench.commandCount("SIGNAL NEWNYM"), inPause ? 1 : 0);
    }

    void theExitShownIsThatOfTheNewPath()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        QCOMPARE(c.exitIP().value(), u"203.0.113.10"_s);
        answerAfter(bench, 2s); // slow
        const auto optimizing = c.optimizeCircuits();
        bench.clock.advance(2s);
        QVERIFY(bench.hears("SIGNAL NEWNYM"));
        QVERIFY(until([&] { return bench.clock.sleepers() == 3; })); // monitor, watch, the pause
        QVERIFY(!c.exitIP() && !c.torVerified());
        bench.probe.torAnswer = IPCheck{false, u"203.0.113.30"_s};
        bench.probe.beforeTorAnswer = nullptr; // fast
        bench.clock.advance(10s);
        QVERIFY(Workbench::finished(optimizing));
        QCOMPARE(c.exitIP().value(), u"203.0.113.30"_s);
        QVERIFY(!c.torVerified().value());
    }

    void withoutAnAnswerNoExitIsShown()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        QVERIFY(c.exitIP());
        bench.probe.torAnswer = ScriptedProbe::nothing();
        const auto optimizing = c.optimizeCircuits();
        run(bench, optimizing);
        QVERIFY(optimizing.isReady() && !c.exitIP());
        QVERIFY(c.torVerified() == false); // asked without an answer
        QCOMPARE(c.title(), u"Needs Attention"_s);
    }
};

VELDMARK_TEST(OptimizationTest)
#include "OptimizationTest.moc"
