#include "DNSSettings.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;
using System = Workbench::System;

class FixDNSTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void fixing_data()
    {
        QTest::addColumn<System>("system");
        QTest::addColumn<bool>("helps");
        QTest::addColumn<QString>("message");
        QTest::addColumn<bool>("strict");
        const QString text
            = u"Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still point "
              "around Tor: 192.168.1.1 on en0; 10.8.0.1 for *.corp on utun2. Strict mode's firewall "
              "blocks them."_s;
        QTest::newRow("helps") << System::linux << true << QString() << true;
        QTest::newRow("does not help") << System::linux << false << text << true;
        QTest::newRow("does not help in proxy mode")
            << System::linux << false << text.section(u'.', 0, -3) + u'.' << false;
        QTest::newRow("helps (macos)") << System::macos << true << QString() << true;
        QTest::newRow("does not help (macos)") << System::macos << false << text << true;
    }

    void fixing()
    {
        QFETCH(System, system);
        QFETCH(bool, helps);
        QFETCH(QString, message);
        QFETCH(bool, strict);
        Workbench bench(system);
        TorController &c = bench.controller();
        c.strictMode.set(strict);
        bench.resolvers.answer = leaking;
        QVERIFY(bench.connect());
        QVERIFY(c.dnsStatus() == leak);
        if (helps)
            bench.resolvers.answer = throughTor;
        const int tests = bench.commandCount("SETEVENTS STREAM");
        const auto fixed = c.fixDNS();
        QVERIFY(Workbench::finished(fixed));
        QCOMPARE(bench.lastHelperRun(u"fix-dns"_s), QStringList(u"fix-dns"_s));
        QCOMPARE(bench.commandCount("SETEVENTS STREAM"), tests + 1); // a live check follows
        QVERIFY(c.dnsStatus() == (helps ? DNSStatus::unverified() : leak));
        QCOMPARE(c.errorMessage().value_or(QString()), message);
    }

    void anOpenKillSwitchIsNotSaidToBlockThem()
    {
        Workbench bench;
        TorController &c = bench.controller();
        bench.resolvers.answer = leaking;
        QVERIFY(bench.connect());
        bench.noteRules("open", 1);
        const auto fixed = c.fixDNS();
        QVERIFY(Workbench::finished(fixed));
        QVERIFY(c.killSwitch()->state == KillSwitch::State::open && c.dnsStatus() == leak);
        QVERIFY2(c.errorMessage().value().english().endsWith(u"10.8.0.1 for *.corp on utun2."_s),
                 qPrintable(c.errorMessage()->english()));
    }

    void fixingThatIsRefused_data()
    {
        QTest::addColumn<System>("system");
        QTest::addColumn<bool>("dismissed");
        QTest::newRow("failed") << System::linux << false;
        QTest::newRow("dismissed") << System::linux << true;
        QTest::newRow("failed (macos)") << System::macos << false;
        QTest::newRow("dismissed (macos)") << System::macos << true;
    }

    void fixingThatIsRefused()
    {
        QFETCH(System, system);
        QFETCH(bool, dismissed);
        Workbench bench(system);
        TorController &c = bench.controller();
        bench.resolvers.answer = leaking;
        QVERIFY(bench.connect());
        const int readings = bench.resolvers.readings;
        if (dismissed)
            bench.cancelPrompt(u"fix-dns"_s);
        else
            bench.failHelper(u"fix-dns"_s, u"No resolver."_s);
        const auto fixing = c.fixDNS();
        QVERIFY(Workbench::finished(fixing));
        QCOMPARE(c.errorMessage().value_or(QString()),
                 dismissed ? QString() : u"Couldn't fix DNS: No resolver."_s);
        QVERIFY(c.dnsStatus() == leak);
        QCOMPARE(bench.resolvers.readings, readings);
        bench.letHelperWork();
        bench.resolvers.answer = throughTor;
        const auto again = c.fixDNS();
        QVERIFY(Workbench::finished(again));
        QVERIFY(!c.errorMessage()); // the earlier error has gone
    }

    void fixesThatRunAtOnceShareOnePrompt()
    {
        Workbench bench;
        TorController &c = bench.controller();
        bench.resolvers.answer = leaking;
        QVERIFY(bench.connect());
        bench.hold(u"fix-dns"_s);
        const auto first = c.fixDNS();
        const auto second = c.fixDNS();
        const auto third = c.fixDNS();
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        settle();
        QCOMPARE(bench.helperRunCount(u"fix-dns"_s), 1);
        QVERIFY(!second.isReady() && !third.isReady());
        bench.resolvers.answer = throughTor;
        bench.processes.hold = nullptr;
        bench.processes.release();
        QVERIFY(Workbench::finished(first) && Workbench::finished(second)
                && Workbench::finished(third));
        QVERIFY(!c.dnsStatus().isLeak()); // all calls waited for the check that follows
        QCOMPARE(bench.helperRunCount(u"fix-dns"_s), 1);
        QVERIFY(Workbench::finished(c.fixDNS())); // and a later one runs again
        QCOMPARE(bench.helperRunCount(u"fix-dns"_s), 2);
    }

    void aFixOfANewSessionDoesNotWaitForAnOldOne()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        bench.hold(u"fix-dns"_s);
        const auto old = c.fixDNS();
        const auto shared = c.fixDNS();
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        bench.disconnect();
        bench.processes.hold = nullptr;
        QVERIFY(bench.connect());
        QVERIFY(Workbench::finished(c.fixDNS()));
        QCOMPARE(bench.helperRunCount(u"fix-dns"_s), 2);
        bench.processes.release();
        QVERIFY(Workbench::finished(old) && Workbench::finished(shared));
    }

    void aSharedFixEndsWithTheController()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        bench.hold(u"fix-dns"_s);
        const auto first = bench.controller().fixDNS();
        const auto second = bench.controller().fixDNS();
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        bench.end();
        QVERIFY(Workbench::finished(second));
        bench.processes.hold = nullptr;
        bench.processes.release();
        QVERIFY(Workbench::finished(first));
    }

    void aFixThatEndsAfterTheSessionSaysNothing()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        bench.failHelper(u"fix-dns"_s, u"No resolver."_s);
        bench.hold(u"fix-dns"_s);
        const auto fixing = c.fixDNS();
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        bench.disconnect();
        QVERIFY(c.phase() == ConnectionPhase::disconnected);
        bench.processes.hold = nullptr;
        bench.processes.release();
        QVERIFY(Workbench::finished(fixing));
        QVERIFY(!c.errorMessage());
    }
};

VELDMARK_TEST(FixDNSTest)
#include "FixDNSTest.moc"
