#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace veldmark;

Q_DECLARE_METATYPE(veldmark::ProbeResult)
Q_DECLARE_METATYPE(veldmark::LeakStatus)

namespace {
ProbeResult answer(bool isTor, const QString &ip)
{
    return IPCheck{isTor, ip};
}
} // namespace

class ChecksTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void showsWhatTheProbesSay_data()
    {
        QTest::addColumn<bool>("strict");
        QTest::addColumn<ProbeResult>("viaTor");
        QTest::addColumn<ProbeResult>("direct");
        QTest::addColumn<bool>("verified");
        QTest::addColumn<LeakStatus>("leak");
        const ProbeResult none = ScriptedProbe::nothing();
        const ProbeResult exit = answer(true, u"203.0.113.10"_s),
                          home = answer(false, u"198.51.100.7"_s);
        QTest::newRow("blocked") << true << exit << none << true << LeakStatus::blocked();
        QTest::newRow("no answer at all")
            << true << none << none << false << LeakStatus::inconclusive();
        QTest::newRow("exposed, strict")
            << true << exit << home << true << LeakStatus::exposed(u"198.51.100.7"_s);
        QTest::newRow("exposed, proxy")
            << false << exit << home << true << LeakStatus::exposed(u"198.51.100.7"_s);
        QTest::newRow("exposed, Tor silent")
            << true << none << home << false << LeakStatus::exposed(u"198.51.100.7"_s);
        QTest::newRow("direct through Tor, strict")
            << true << exit << exit << true << LeakStatus::blocked();
        QTest::newRow("direct through Tor, proxy")
            << false << exit << exit << true << LeakStatus::inconclusive();
        QTest::newRow("not a Tor exit") << true << home << none << false << LeakStatus::blocked();
    }

    void showsWhatTheProbesSay()
    {
        QFETCH(bool, strict);
        QFETCH(ProbeResult, viaTor);
        QFETCH(ProbeResult, direct);
        QFETCH(bool, verified);
        QFETCH(LeakStatus, leak);
        Workbench bench;
        TorController &c = bench.controller();
        c.strictMode.set(strict);
        bench.probe.torAnswer = viaTor;
        bench.probe.directAnswer = direct;
        QVERIFY(bench.connect());
        QCOMPARE(c.exitIP(), viaTor ? std::optional(viaTor->ip) : std::nullopt);
        QCOMPARE(c.torVerified().value(), verified);
        QCOMPARE(c.latencyMs(), viaTor ? std::optional<qint64>(0) : std::nullopt);
        QVERIFY(c.leakStatus() == leak);
        QVERIFY(!c.isChecking() && !c.errorMessage());
    }

    void bothProbesRunAtOnceAndTheDNSCheckAfterThem()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        bench.probe.beforeTorAnswer = [&bench] { return bench.clock.sleep(700ms); };
        bench.probe.beforeDirectAnswer = [&bench] { return bench.clock.sleep(900ms); };
        const int tests = bench.commandCount("SETEVENTS STREAM");
        const auto checking = c.runChecks();
        QCOMPARE(bench.probe.torProbes, 2);
        QCOMPARE(bench.probe.directProbes, 2);
        QVERIFY(c.isChecking() && c.leakStatus() == LeakStatus::checking());
        bench.clock.advance(700ms);
        QVERIFY(c.isChecking() && c.leakStatus() == LeakStatus::checking());
        QCOMPARE(bench.commandCount("SETEVENTS STREAM"), tests);
        bench.clock.advance(200ms);
        QVERIFY(Workbench::finished(checking));
        QCOMPARE(c.latencyMs().value(), qint64(700)); // only the probe through Tor counts
        QVERIFY(c.leakStatus() == LeakStatus::blocked());
        QCOMPARE(bench.commandCount("SETEVENTS STREAM"), tests + 1);
        QVERIFY(c.dnsStatus() == DNSStatus::unverified());
        QVERIFY(!c.isChecking());
    }

    void inProxyModeTheDirectProbeWaitsForTors()
    {
        Workbench bench;
        TorController &c = bench.controller();
        c.strictMode.set(false);
        QVERIFY(bench.connect());
        const int direct = bench.probe.directProbes;
        const int viaTor = bench.probe.torProbes;
        bench.probe.beforeTorAnswer = [&bench] { return bench.clock.sleep(700ms); };
        const auto checking = c.runChecks();
        QCOMPARE(bench.probe.torProbes, viaTor + 1);
        bench.clock.advance(600ms);
        // the service must not see both addresses at the same moment
        QCOMPARE(bench.probe.directProbes, direct);
        bench.clock.advance(100ms);
        QVERIFY(Workbench::finished(checking));
        QCOMPARE(bench.probe.directProbes, direct + 1);
    }

    void oneCheckAtATime()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        bench.probe.beforeTorAnswer = [&bench] { return bench.clock.sleep(1s); };
        const auto first = bench.controller().runChecks();
        const auto second = bench.controller().runChecks();
        QVERIFY(second.isReady() && !first.isReady());
        QCOMPARE(bench.probe.torProbes, 2);
        bench.clock.advance(1s);
        QVERIFY(Workbench::finished(first));
        const auto third = bench.controller().runChecks();
        bench.clock.advance(1s);
        QVERIFY(Workbench::finished(third));
        QCOMPARE(bench.probe.torProbes, 3);
    }

    void doesNothingWithoutASession()
    {
        Workbench bench;
        const auto checking = bench.controller().runChecks();
        QVERIFY(checking.isReady());
        bench.writeMarker("strict");
        bench.controller().detectStaleState();
        const auto stale = bench.controller().runChecks();
        QVERIFY(stale.isReady());
        QCOMPARE(bench.probe.torProbes, 0);
        QVERIFY(bench.controller().leakStatus() == LeakStatus::notTested());
    }

    void laterFailuresReplaceEarlierAnswers()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        QVERIFY(c.exitIP() && c.torVerified() == true);
        bench.probe.torAnswer = ScriptedProbe::nothing();
        const auto checking = c.runChecks();
        QVERIFY(Workbench::finished(checking));
        QVERIFY(!c.exitIP() && !c.latencyMs() && c.torVerified() == false);
    }
};

VELDMARK_TEST(ChecksTest)
#include "ChecksTest.moc"
