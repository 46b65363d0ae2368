#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;
using System = Workbench::System;

namespace {
QCoro::Task<std::optional<ConnectTime>> silence()
{
    co_return std::nullopt;
}
} // namespace

// The leftovers of an earlier run, and the automatic connect at start-up.
class StaleSessionTest : public QObject {
    Q_OBJECT
private:
    static QString activeFile(const Workbench &bench)
    {
        return bench.profile.terminalDirectory + u"/active"_s;
    }

private Q_SLOTS:
    void readsTheMode_data()
    {
        QTest::addColumn<System>("system");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("mode");
        const auto add = [](const char *name, const QByteArray &content, const QString &mode) {
            QTest::newRow(name) << System::linux << content << mode;
            QTest::newRow(qPrintable(QLatin1String(name) + u" (macos)"_s))
                << System::macos << content << mode;
        };
        add("strict with a line end", "strict\n", u"strict"_s);
        add("proxy", "proxy", u"proxy"_s);
        add("blanks", " \tstrict \r\n\n", u"strict"_s);
        add("empty", "", QString());
        add("other word", "stricter\n", QString());
        add("capitals", "Strict\n", QString());
        add("two words", "strict proxy\n", QString());
        add("no text", QByteArray("\xff\xfe\0strict", 9), QString());
        add("endless", QByteArray(1024 * 1024, 's'), QString());
    }

    void readsTheMode()
    {
        QFETCH(System, system);
        QFETCH(QByteArray, content);
        QFETCH(QString, mode);
        Workbench bench(system);
        bench.writeMarker(content);
        bench.controller().detectStaleState();
        const TorController &c = bench.controller();
        QVERIFY(c.phase() == ConnectionPhase::stale);
        QVERIFY(c.activeMode() == routingModeFromRawValue(mode));
        QCOMPARE(c.statusDetail(),
                 u"Your network is still set up for Tor from an earlier session"_s);
        QVERIFY(c.isSessionMarkerPresent());
        QVERIFY(bench.processes.calls.empty() && bench.tor.commands().isEmpty());
    }

    void aMarkerThatCannotBeReadCountsAsEmpty()
    {
        Workbench bench;
        // a folder: no user can read it as text
        QVERIFY(QDir().mkpath(bench.profile.sessionMarker));
        bench.controller().detectStaleState();
        QVERIFY(bench.controller().phase() == ConnectionPhase::stale);
        QVERIFY(!bench.controller().activeMode());
    }

    void withoutAMarkerTerminalsAreTakenOffTor()
    {
        Workbench bench;
        bench.writeFile(activeFile(bench));
        bench.controller().detectStaleState();
        QVERIFY(bench.controller().phase() == ConnectionPhase::disconnected);
        QVERIFY(!bench.controller().isSessionMarkerPresent());
        QVERIFY(!QFile::exists(activeFile(bench)));
    }

    void withAMarkerTerminalsStayAsTheyAre()
    {
        Workbench bench;
        bench.writeFile(activeFile(bench));
        bench.writeMarker("strict");
        bench.controller().detectStaleState();
        QVERIFY(QFile::exists(activeFile(bench)));
    }

    void aRunningSessionIsNotStale()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        bench.controller().detectStaleState();
        QVERIFY(bench.controller().phase() == ConnectionPhase::connected);
        QCOMPARE(bench.controller().statusDetail(), u"All traffic is locked to Tor"_s);
    }

    void canBeRestored()
    {
        Workbench bench;
        bench.writeMarker("strict");
        bench.controller().detectStaleState();
        bench.disconnect();
        QVERIFY(bench.controller().phase() == ConnectionPhase::disconnected);
        QVERIFY(!bench.controller().activeMode());
        QVERIFY(!bench.hasMarker());
    }

    void canBeConnectedAfresh()
    {
        Workbench bench;
        bench.writeMarker("strict");
        bench.controller().detectStaleState();
        bench.controller().strictMode.set(false);
        QVERIFY(bench.connect());
        QVERIFY(bench.controller().activeMode() == RoutingMode::proxy);
    }

    void bridgesAreTestedOnlyWhereNoKillSwitchStands_data()
    {
        QTest::addColumn<QByteArray>("marker");
        QTest::addColumn<int>("probes");
        QTest::newRow("strict") << QByteArray("strict") << 0;
        QTest::newRow("proxy") << QByteArray("proxy") << 2;
        QTest::newRow("nothing left over") << QByteArray() << 2;
    }

    void bridgesAreTestedOnlyWhereNoKillSwitchStands()
    {
        QFETCH(QByteArray, marker);
        Workbench bench;
        int probes = 0;
        bench.bridgeProbe = [&probes](QString, quint16, std::chrono::milliseconds) {
            ++probes;
            return silence();
        };
        if (!marker.isEmpty())
            bench.writeMarker(marker);
        bench.controller().detectStaleState();
        bench.controller().bridgeChoice.set(BridgeChoice::custom);
        bench.controller().customBridges.set(u"192.0.2.1:443\n192.0.2.2:443"_s);
        bench.controller().optimizeSpeed.set(true);
        QVERIFY(bench.connect());
        QTEST(probes, "probes");
    }

    void aRestoreThatFailsIsJudgedByTheMarker_data()
    {
        QTest::addColumn<QByteArray>("word");
        QTest::addColumn<bool>("dismissed");
        QTest::addColumn<bool>("markerStays");
        for (const char *word : {"strict", "proxy", "?"}) {
            for (const bool dismissed : {true, false}) {
                for (const bool stays : {true, false}) {
                    QTest::addRow("%s, %s, marker %s", word, dismissed ? "dismissed" : "failed",
                                  stays ? "stays" : "goes")
                        << QByteArray(word) << dismissed << stays;
                }
            }
        }
    }

    void aRestoreThatFailsIsJudgedByTheMarker()
    {
        QFETCH(QByteArray, word);
        QFETCH(bool, dismissed);
        QFETCH(bool, markerStays);
        Workbench bench;
        TorController &c = bench.controller();
        bench.writeMarker(word);
        c.detectStaleState();
        if (dismissed)
            bench.cancelPrompt(u"disconnect"_s);
        else
            bench.failHelper(u"disconnect"_s, u"Could not."_s);
        if (!markerStays)
            bench.removeMarker();
        bench.disconnect();
        QVERIFY(c.phase()
                == (markerStays ? ConnectionPhase::stale : ConnectionPhase::disconnected));
        QCOMPARE(c.statusDetail(),
                 markerStays ? u"Your network is still set up for Tor"_s
                             : u"Your traffic is not going through Tor"_s);
        QVERIFY(
            c.activeMode()
            == (markerStays ? routingModeFromRawValue(QString::fromLatin1(word)) : std::nullopt));
        QCOMPARE(c.errorMessage(), dismissed ? std::nullopt : std::optional(u"Could not."_s));
        // only the rules are watched; an earlier watch wakes once more
        QCOMPARE(bench.clock.sleepers(), std::size_t(markerStays ? 2 : 1));
    }

    void connectsByItselfOnlyWhen_data()
    {
        QTest::addColumn<bool>("wanted");
        QTest::addColumn<bool>("marker");
        QTest::addColumn<bool>("tor");
        QTest::addColumn<bool>("connects");
        QTest::newRow("all holds") << true << false << true << true;
        QTest::newRow("not wanted") << false << false << true << false;
        QTest::newRow("something is left over") << true << true << true << false;
        QTest::newRow("no tor") << true << false << false << false;
    }

    void connectsByItselfOnlyWhen()
    {
        QFETCH(bool, wanted);
        QFETCH(bool, marker);
        QFETCH(bool, tor);
        QFETCH(bool, connects);
        Workbench bench;
        TorController &c = bench.controller();
        c.autoConnect.set(wanted);
        if (!tor)
            bench.removeTor();
        if (marker)
            bench.writeMarker("strict");
        c.detectStaleState();
        const auto starting = c.autoConnectIfEnabled();
        QVERIFY(Workbench::finished(starting));
        QVERIFY(c.phase()
                == (connects     ? ConnectionPhase::connected
                        : marker ? ConnectionPhase::stale
                                 : ConnectionPhase::disconnected));
        QVERIFY(!c.errorMessage());
        QCOMPARE(bench.helperRunCount(u"connect"_s), connects ? 1 : 0);
    }

    void aMarkerAloneKeepsItFromConnectingByItself()
    {
        Workbench bench;
        bench.controller().autoConnect.set(true);
        bench.writeMarker("strict"); // appeared after the check at start-up
        const auto starting = bench.controller().autoConnectIfEnabled();
        QVERIFY(Workbench::finished(starting));
        QVERIFY(bench.processes.calls.empty());
    }

    void aModeThatWasChangedByHandIsShown()
    {
        Workbench bench;
        TorController &c = bench.controller();
        bench.writeMarker("strict\n");
        c.detectStaleState();
        QVERIFY(c.activeMode() == RoutingMode::strict);
        bench.writeMarker("proxy\n"); // with the helper, which notes no owner then
        c.lookAtSession();
        QVERIFY(c.phase() == ConnectionPhase::stale);
        QVERIFY(c.activeMode() == RoutingMode::proxy);
    }
};

VELDMARK_TEST(StaleSessionTest)
#include "StaleSessionTest.moc"
