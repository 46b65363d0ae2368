#include "DNSSettings.h"
#include "support/NameLookups.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace veldmark;

class DNSTest : public QObject {
    Q_OBJECT
private:
    // Tor can be listened to.
    static void allowLiveTests(Workbench &bench)
    {
        bench.tor.reply("SETEVENTS STREAM", "250 OK\r\n");
    }

    // The name in the running live test's lookup.
    static QString lookedUp(int count)
    {
        return until([count] { return NameLookups::hosts().size() >= count; })
            ? NameLookups::hosts().constLast()
            : QString();
    }

    static void torSees(Workbench &bench, const QString &host)
    {
        bench.tor.sendEvent("650 STREAM 12 NEW 0 " + host.toUtf8() + ":0 PURPOSE=DNS_REQUEST\r\n");
        settle();
    }

    // A live test in which Tor is asked for the name.
    static bool passLiveTest(Workbench &bench)
    {
        NameLookups::clear();
        const auto checking = bench.controller().checkDNS(true);
        const QString host = lookedUp(1);
        torSees(bench, host);
        bench.socketClock.advance(6s);
        return Workbench::finished(checking);
    }

private Q_SLOTS:
    void aLookUpThatTorSeesIsThroughTor()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        QVERIFY(c.dnsStatus() == DNSStatus::unverified()); // Tor could not be listened to
        allowLiveTests(bench);
        bench.resolvers.answer = throughTor;
        const auto checking = c.checkDNS(true);
        QVERIFY(c.dnsStatus() == DNSStatus::checking());
        const QString host = lookedUp(1);
        QVERIFY2(QRegularExpression(u"^veldmark-check-[0-9a-f-]{16}\\.torproject\\.org$"_s)
                     .match(host)
                     .hasMatch(),
                 qPrintable(host));
        torSees(bench, host);
        QVERIFY(c.dnsStatus() == DNSStatus::checking()); // Tor is listened to until the end
        bench.socketClock.advance(6s);
        QVERIFY(Workbench::finished(checking));
        QVERIFY(c.dnsStatus() == DNSStatus::throughTor());
        QCOMPARE(c.title(), u"Protected"_s);
    }

    void aLookUpThatTorDoesNotSeeIsUnverified_data()
    {
        QTest::addColumn<QString>("seen");
        QTest::newRow("nothing") << QString();
        QTest::newRow("another name") << u"example.org"_s;
        QTest::newRow("part of the name") << u"veldmark-check-.torproject.org"_s;
    }

    void aLookUpThatTorDoesNotSeeIsUnverified()
    {
        QFETCH(QString, seen);
        Workbench bench;
        QVERIFY(bench.connect());
        allowLiveTests(bench);
        const auto checking = bench.controller().checkDNS(true);
        QVERIFY(!lookedUp(1).isEmpty());
        if (!seen.isEmpty())
            torSees(bench, seen);
        bench.socketClock.advance(6s);
        QVERIFY(Workbench::finished(checking));
        QVERIFY(bench.controller().dnsStatus() == DNSStatus::unverified());
    }

    void aTorThatCannotBeListenedToIsUnverified()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        bench.tor.stopListening();
        const auto checking = bench.controller().checkDNS(true);
        QVERIFY(Workbench::finished(checking));
        QVERIFY(bench.controller().dnsStatus() == DNSStatus::unverified());
        QVERIFY(!bench.controller().errorMessage());
        QVERIFY(NameLookups::hosts().isEmpty()); // no listener would have seen the lookup
    }

    void everyTestHasANewName()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        allowLiveTests(bench);
        QVERIFY(passLiveTest(bench));
        const QString first = NameLookups::hosts().constLast();
        QVERIFY(passLiveTest(bench));
        QVERIFY(NameLookups::hosts().constLast() != first);
    }

    void leaksInTheSettingsComeFirst()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        allowLiveTests(bench);
        bench.resolvers.answer = leaking;
        QVERIFY(passLiveTest(bench));
        QVERIFY(c.dnsStatus() == leak);
        QCOMPARE(c.title(), u"DNS Leak"_s);
        // A leak stays on the screen during the next test.
        NameLookups::clear();
        const auto again = c.checkDNS(true);
        QVERIFY(!lookedUp(1).isEmpty());
        QVERIFY(c.dnsStatus() == leak);
        bench.resolvers.answer = throughTor;
        torSees(bench, NameLookups::hosts().constLast());
        bench.socketClock.advance(6s);
        QVERIFY(Workbench::finished(again));
        QVERIFY(c.dnsStatus() == DNSStatus::throughTor());
        // Nor does it go because the system gives no answer.
        bench.resolvers.answer = leaking;
        QVERIFY(passLiveTest(bench));
        QVERIFY(c.dnsStatus() == leak);
        bench.resolvers.answer = throughTor;
        bench.resolvers.isComplete = false;
        QVERIFY(passLiveTest(bench));
        QVERIFY(c.dnsStatus() == leak);
        bench.resolvers.isComplete = true;
        QVERIFY(passLiveTest(bench));
        QVERIFY(c.dnsStatus() == DNSStatus::throughTor());
    }

    void withoutALiveTestOnlyALeakChangesTheStatus_data()
    {
        QTest::addColumn<bool>("passed"); // a live test, earlier in the session
        QTest::addColumn<bool>("leaked");
        QTest::addColumn<QString>("status");
        QTest::newRow("nothing known") << false << false << u"unverified"_s;
        QTest::newRow("a leak is over") << false << true << u"unknown"_s;
        QTest::newRow("passed") << true << false << u"throughTor"_s;
        QTest::newRow("passed, a leak is over") << true << true << u"throughTor"_s;
    }

    void withoutALiveTestOnlyALeakChangesTheStatus()
    {
        QFETCH(bool, passed);
        QFETCH(bool, leaked);
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        if (passed) {
            allowLiveTests(bench);
            QVERIFY(passLiveTest(bench));
        }
        if (leaked) {
            bench.resolvers.answer = leaking;
            const auto leakCheck = c.checkDNS(false);
            QVERIFY(Workbench::finished(leakCheck));
            QVERIFY(c.dnsStatus() == leak);
        }
        bench.resolvers.answer = throughTor;
        NameLookups::clear();
        const auto checking = c.checkDNS(false);
        QVERIFY(Workbench::finished(checking));
        QTEST(c.dnsStatus().name(), "status");
        QVERIFY(NameLookups::hosts().isEmpty());
    }

    void whatALiveTestProvedEndsWithTheSession()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        allowLiveTests(bench);
        QVERIFY(passLiveTest(bench));
        bench.disconnect();
        QVERIFY(c.dnsStatus() == DNSStatus::unknown());
        bench.tor.reply("SETEVENTS STREAM", "552 no\r\n");
        QVERIFY(bench.connect());
        const auto checking = c.checkDNS(false);
        QVERIFY(Workbench::finished(checking));
        QVERIFY(c.dnsStatus() == DNSStatus::unverified());
    }

    void doesNothingWithoutASession()
    {
        Workbench bench;
        const auto checking = bench.controller().checkDNS(true);
        const auto fixing = bench.controller().fixDNS();
        QVERIFY(checking.isReady() && fixing.isReady());
        QCOMPARE(bench.resolvers.readings, 0);
        QVERIFY(bench.processes.calls.empty());
        QVERIFY(bench.controller().dnsStatus() == DNSStatus::unknown());
    }

    void theResultOfAnEndedSessionIsDropped_data()
    {
        QTest::addColumn<bool>("reconnects");
        QTest::addColumn<bool>("inLiveTest");
        QTest::newRow("disconnected, live test") << false << true;
        QTest::newRow("disconnected, settings") << false << false;
        QTest::newRow("connected again, live test") << true << true;
        QTest::newRow("connected again, settings") << true << false;
    }

    void theResultOfAnEndedSessionIsDropped()
    {
        QFETCH(bool, reconnects);
        QFETCH(bool, inLiveTest);
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        bench.resolvers.answer = leaking;
        allowLiveTests(bench);
        if (!inLiveTest)
            bench.resolvers.beforeAnswer = [&bench] { return bench.clock.sleep(1s); };
        NameLookups::clear();
        const auto checking = c.checkDNS(inLiveTest);
        if (inLiveTest)
            torSees(bench, lookedUp(1));
        bench.disconnect();
        QVERIFY(c.dnsStatus() == DNSStatus::unknown());
        bench.resolvers.answer = throughTor;
        bench.resolvers.beforeAnswer = nullptr;
        bench.tor.reply("SETEVENTS STREAM", "552 no\r\n");
        if (reconnects)
            QVERIFY(bench.connect());
        bench.socketClock.advance(6s);
        bench.clock.advance(1s);
        QVERIFY(Workbench::finished(checking));
        QCOMPARE(c.dnsStatus().name(), reconnects ? u"unverified"_s : u"unknown"_s);
        // the old test proves nothing about this session either
        const auto later = c.checkDNS(false);
        QVERIFY(Workbench::finished(later));
        QCOMPARE(c.dnsStatus().name(), reconnects ? u"unverified"_s : u"unknown"_s);
    }
};

VELDMARK_TEST(DNSTest)
#include "DNSTest.moc"
