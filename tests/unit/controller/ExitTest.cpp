#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

// The shown exit never belongs to circuits that Tor was told to leave.
class ExitTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void aNewIdentityForgetsTheExitAndAsksForTheNewOne()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        QCOMPARE(c.exitIP().value(), u"203.0.113.10"_s);
        QVERIFY(c.torVerified().value());
        QCOMPARE(c.latencyMs().value(), qint64(0));
        bench.probe.torAnswer = IPCheck{true, u"203.0.113.20"_s};
        bench.probe.beforeTorAnswer = [&bench] {
            return bench.clock.sleep(std::chrono::seconds(1));
        };
        const int direct = bench.probe.directProbes;
        const auto renewing = c.newIdentity();
        QVERIFY(!c.exitIP() && !c.torVerified() && !c.latencyMs());
        QVERIFY(Workbench::finished(renewing));
        QVERIFY(c.isChecking() && !c.exitIP() && !c.latencyMs());
        QVERIFY(c.leakStatus() == LeakStatus::blocked()); // nothing has changed there
        bench.clock.advance(std::chrono::seconds(1));
        QVERIFY(until([&] { return !c.isChecking(); }));
        QCOMPARE(c.exitIP().value(), u"203.0.113.20"_s);
        QVERIFY(c.torVerified().value());
        QCOMPARE(c.latencyMs().value(), qint64(1000)); // through the new exit
        // the check service must not see the new exit and the real address together
        QCOMPARE(bench.probe.directProbes, direct);
    }

    void checksUnderWayAskAgainAfterANewIdentity_data()
    {
        QTest::addColumn<bool>("whole");
        QTest::newRow("all checks") << true;
        QTest::newRow("the exit's only") << false;
    }

    void checksUnderWayAskAgainAfterANewIdentity()
    {
        QFETCH(bool, whole);
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        bench.probe.beforeTorAnswer = [&bench] {
            return bench.clock.sleep(std::chrono::seconds(5));
        };
        if (whole)
            c.runChecks();
        else
            c.newIdentity();
        QVERIFY(until([&] { return c.isChecking(); }));
        const int probes = bench.probe.torProbes;
        bench.probe.torAnswer = IPCheck{true, u"203.0.113.20"_s}; // the next probe's answer
        QVERIFY(Workbench::finished(c.newIdentity()));
        bench.clock.advance(std::chrono::seconds(5)); // the old circuits' answer comes
        QVERIFY(until([&] { return bench.probe.torProbes == probes + 1; }));
        QVERIFY(c.isChecking() && !c.exitIP());
        bench.clock.advance(std::chrono::seconds(5));
        QVERIFY(until([&] { return !c.isChecking(); }));
        QCOMPARE(c.exitIP().value(), u"203.0.113.20"_s);
    }

    // The answer through Tor has arrived, and the DNS test still runs.
    void aNewIdentityDuringTheLookUpsIsAskedForToo()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        bench.tor.reply("SETEVENTS STREAM", "250 OK\r\n"); // so that the live test takes its time
        const auto checking = c.runChecks();
        QVERIFY(until([&] { return c.dnsStatus() == DNSStatus::checking(); }));
        bench.probe.torAnswer = IPCheck{true, u"203.0.113.20"_s};
        QVERIFY(Workbench::finished(c.newIdentity()));
        QVERIFY(!c.exitIP());
        settle();
        bench.socketClock.advance(std::chrono::seconds(6));
        QVERIFY(Workbench::finished(checking));
        QVERIFY(until([&] { return !c.isChecking(); }));
        QVERIFY(c.torVerified().value_or(false));
        QCOMPARE(c.exitIP().value(), u"203.0.113.20"_s);
    }
};

VELDMARK_TEST(ExitTest)
#include "ExitTest.moc"
