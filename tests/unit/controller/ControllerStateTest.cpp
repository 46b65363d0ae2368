#include "base/ExitCountry.h"
#include "controller/PublishedState.h"
#include "support/SettingValues.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

Q_DECLARE_METATYPE(veldmark::ConnectionPhase)
Q_DECLARE_METATYPE(std::optional<veldmark::RoutingMode>)

namespace {
QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
} // namespace

class ControllerStateTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void startsWithTheDefaults()
    {
        Workbench bench;
        const TorController &c = bench.controller();
        QCOMPARE(c.strictMode(), true);
        QCOMPARE(c.allowLocalNetwork(), true);
        QVERIFY(c.bridgeChoice() == BridgeChoice::off);
        QCOMPARE(c.autoConnect(), false);
        QCOMPARE(c.optimizeSpeed(), false);
        QCOMPARE(c.separateApps(), true);
        QCOMPARE(c.terminalMode(), false);
        QCOMPARE(c.exitCountry(), QString());
        QCOMPARE(c.customTorPath(), QString());
        QCOMPARE(c.customBridges(), QString());
        QCOMPARE(c.bypassApps(), QStringList());
    }

    void startsWithoutASession()
    {
        Workbench bench;
        const TorController &c = bench.controller();
        QVERIFY(c.phase() == ConnectionPhase::disconnected);
        QVERIFY(!c.activeMode());
        QVERIFY(!c.activeBridge());
        QCOMPARE(c.bootstrapProgress(), 0.0);
        QCOMPARE(c.statusDetail(), u"Your traffic is not going through Tor"_s);
        QVERIFY(!c.exitIP() && !c.torVerified() && !c.latencyMs() && !c.optimizeStatus());
        QVERIFY(c.leakStatus() == LeakStatus::notTested());
        QVERIFY(c.dnsStatus() == DNSStatus::unknown());
        QVERIFY(c.bytesRead() == 0 && c.bytesWritten() == 0);
        QVERIFY(!c.isChecking() && !c.isOptimizing() && !c.canCancel());
        QVERIFY(!c.errorMessage() && !c.startupError() && !c.circuitError() && !c.terminalError());
        QVERIFY(!c.transportDownload() && !c.passwordlessInstalled());
        QVERIFY(c.circuits().empty());
    }

    void looksForTransportsWhenItIsMade()
    {
        Workbench bench;
        QCOMPARE(bench.searches, 1);
        bench.transports.lyrebird = u"/opt/lyrebird"_s;
        QVERIFY(!bench.controller().transports().lyrebird);
        bench.restart();
        QCOMPARE(bench.searches, 2);
        QCOMPARE(bench.controller().transports().lyrebird.value(), u"/opt/lyrebird"_s);
    }

    void readingTheSettingsWritesNothing()
    {
        Workbench bench;
        bench.writeFile(bench.profile.settingsFile,
                        "terminalMode=true\nbridgeChoice=carrierPigeon\n");
        bench.restart();
        QCOMPARE(bench.controller().terminalMode(), true);
        QVERIFY(!bench.terminal.isInstalled()); // a change of the setting would install it
        QCOMPARE(content(bench.profile.settingsFile),
                 "terminalMode=true\nbridgeChoice=carrierPigeon\n");
    }

    void aWordThatIsNoBridgeChoiceReadsAsOffUntilTheUserChooses()
    {
        Workbench bench;
        bench.writeFile(bench.profile.settingsFile, "bridgeChoice=carrierPigeon\n");
        bench.restart();
        QVERIFY(bench.controller().bridgeChoice() == BridgeChoice::off);
        bench.controller().exitCountry.set(u"de"_s);
        QVERIFY(content(bench.profile.settingsFile).contains("carrierPigeon"));
        bench.controller().bridgeChoice.set(BridgeChoice::off);
        QVERIFY(!content(bench.profile.settingsFile).contains("carrierPigeon"));
        QVERIFY(content(bench.profile.settingsFile).contains("bridgeChoice=off"));
    }

    void storesEverySettingAtOnce()
    {
        Workbench bench;
        QJsonObject stored;
        for (const QString &name : settingNames(bench.controller())) {
            const Field &field = *bench.controller().fieldNamed(name);
            const QJsonValue before = field.toJson();
            QVERIFY2(setSetting(bench.controller(), name, anotherValue(field)), qPrintable(name));
            QVERIFY2(field.toJson() != before, qPrintable(name)); // has it a line in
                                                                  // anotherValue()?
            QVERIFY2(content(bench.profile.settingsFile).contains(name.toUtf8() + '='),
                     qPrintable(name));
            stored[name] = field.toJson();
        }
        QVERIFY(!bench.controller().errorMessage());
        QVERIFY(stored.size() >= 12);

        bench.restart();
        for (const QString &name : settingNames(bench.controller()))
            QVERIFY2(bench.controller().fieldNamed(name)->toJson() == stored[name],
                     qPrintable(name));
    }

    void tellsOfAChangeOnlyWhenThereIsOne()
    {
        Workbench bench;
        QSignalSpy changes(&bench.controller().exitCountry, &Field::changed);
        bench.controller().exitCountry.set(u"de"_s);
        bench.controller().exitCountry.set(u"de"_s);
        QCOMPARE(changes.count(), 1);
    }

    void saysWhenASettingCannotBeSaved()
    {
        Workbench bench;
        bench.writeFile(bench.folder.filePath(u"blocked"_s)); // a file where the folder should be
        bench.profile.settingsFile = bench.folder.filePath(u"blocked/veldmark.conf"_s);
        bench.restart();
        const auto problem = bench.controller().exitCountry.set(u"de"_s);
        QVERIFY(problem);
        QVERIFY2(problem->english().contains(u"settings"_s), qPrintable(problem->english()));
        QCOMPARE(bench.controller().errorMessage(), problem);
        QCOMPARE(bench.controller().exitCountry(), u"de"_s); // the setting applies in memory
    }

    void titleAndSymbol_data()
    {
        QTest::addColumn<ConnectionPhase>("phase");
        QTest::addColumn<std::optional<RoutingMode>>("mode");
        QTest::addColumn<bool>("leak");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("symbol");
        const std::optional<RoutingMode> none, strict = RoutingMode::strict,
                                               proxy = RoutingMode::proxy;
        const QString lock = u"lock.shield.fill"_s, mark = u"exclamationmark.shield"_s;
        const QString half = u"shield.lefthalf.filled"_s, slash = u"shield.slash"_s;
        QTest::newRow("disconnected")
            << ConnectionPhase::disconnected << none << false << u"Not Protected"_s << slash;
        QTest::newRow("connecting")
            << ConnectionPhase::connecting << none << false << u"Connecting…"_s << half;
        QTest::newRow("connected, strict")
            << ConnectionPhase::connected << strict << false << u"Protected"_s << lock;
        QTest::newRow("connected, proxy")
            << ConnectionPhase::connected << proxy << false << u"Proxy Active"_s << lock;
        QTest::newRow("connected, no mode")
            << ConnectionPhase::connected << none << false << u"Proxy Active"_s << lock;
        QTest::newRow("leak, strict")
            << ConnectionPhase::connected << strict << true << u"DNS Leak"_s << mark;
        QTest::newRow("leak, proxy")
            << ConnectionPhase::connected << proxy << true << u"DNS Leak"_s << mark;
        QTest::newRow("disconnecting")
            << ConnectionPhase::disconnecting << strict << true << u"Disconnecting…"_s << half;
        QTest::newRow("stale") << ConnectionPhase::stale << strict << true << u"Needs Attention"_s
                               << mark;
        QTest::newRow("disconnected, old leak")
            << ConnectionPhase::disconnected << none << true << u"Not Protected"_s << slash;
    }

    void titleAndSymbol()
    {
        QFETCH(ConnectionPhase, phase);
        QFETCH(std::optional<RoutingMode>, mode);
        QFETCH(bool, leak);
        const Verdict verdict = Verdict::of({.phase = phase,
                                             .mode = mode,
                                             .killSwitch = KillSwitch::State::standing,
                                             .isDNSLeaking = leak,
                                             .torVerified = true});
        QTEST(verdict.title.english(), "title");
        QTEST(verdict.symbol, "symbol");
    }

    void theControllerShowsTheTitleOfItsState()
    {
        Workbench bench;
        QCOMPARE(bench.controller().title(), u"Not Protected"_s);
        QCOMPARE(bench.controller().menuBarSymbol(), u"shield.slash"_s);
        QVERIFY(bench.connect());
        QCOMPARE(bench.controller().title(), u"Protected"_s);
        QCOMPARE(bench.controller().menuBarSymbol(), u"lock.shield.fill"_s);
        bench.disconnect();
        bench.controller().strictMode.set(false);
        QVERIFY(bench.connect());
        QCOMPARE(bench.controller().title(), u"Proxy Active"_s);
        DNSResolver leaking;
        leaking.nameservers = {u"192.168.1.1"_s};
        bench.resolvers.answer = {leaking};
        const auto checking = bench.controller().checkDNS(false);
        QVERIFY(Workbench::finished(checking));
        QCOMPARE(bench.controller().title(), u"DNS Leak"_s);
        QCOMPARE(bench.controller().menuBarSymbol(), u"exclamationmark.shield"_s);
    }

    void locksTheOptionsWhileASessionRuns()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(!locksOptions(c.phase()) && c.canDownloadTransports() && !c.canLaunchBypassed());
        bench.hold(u"connect"_s);
        const auto connecting = c.connect();
        QVERIFY(c.phase() == ConnectionPhase::connecting);
        QVERIFY(locksOptions(c.phase()) && !c.canDownloadTransports() && !c.canLaunchBypassed());
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        bench.processes.hold = nullptr;
        bench.processes.release();
        QVERIFY(Workbench::finished(connecting));
        QVERIFY(locksOptions(c.phase()) && c.canDownloadTransports() && c.canLaunchBypassed());
        bench.hold(u"disconnect"_s);
        const auto disconnecting = c.disconnect();
        QVERIFY(c.phase() == ConnectionPhase::disconnecting);
        QVERIFY(locksOptions(c.phase()) && !c.canDownloadTransports() && !c.canLaunchBypassed());
        bench.failHelper(u"disconnect"_s, u"no"_s);
        bench.removeMarker();
        bench.writeMarker("strict");
        bench.processes.hold = nullptr;
        bench.processes.release();
        QVERIFY(Workbench::finished(disconnecting));
        QVERIFY(c.phase() == ConnectionPhase::connected);

        bench.restart();
        bench.controller().detectStaleState();
        QVERIFY(bench.controller().phase() == ConnectionPhase::stale);
        QVERIFY(!locksOptions(bench.controller().phase())
                && bench.controller().canDownloadTransports());
        QVERIFY(!bench.controller().canLaunchBypassed());
    }

    void noBypassInProxyMode()
    {
        Workbench bench;
        bench.controller().strictMode.set(false);
        QVERIFY(bench.connect());
        QVERIFY(!bench.controller().canLaunchBypassed());
    }

    void exitCountriesInTheirOrder()
    {
        QStringList codes, names;
        for (const ExitCountry &country : ExitCountry::all()) {
            codes << country.code;
            names << country.name.english();
        }
        QCOMPARE(codes.join(u' '), u" us ca gb de nl fr se ch fi ro jp sg"_s);
        QCOMPARE(names,
                 QStringList({u"Any (recommended)"_s, u"United States"_s, u"Canada"_s,
                              u"United Kingdom"_s, u"Germany"_s, u"Netherlands"_s, u"France"_s,
                              u"Sweden"_s, u"Switzerland"_s, u"Finland"_s, u"Romania"_s, u"Japan"_s,
                              u"Singapore"_s}));
    }

    void errorTexts()
    {
        QCOMPARE(TorError::bootstrapTimeout(std::nullopt).description(),
                 u"Tor didn't finish connecting within 5 minutes."_s);
        QCOMPARE(TorError::bootstrapTimeout(u"why"_s).description(),
                 u"Tor didn't finish connecting within 5 minutes. (why)"_s);
    }

    // The file is damaged while the program runs. Each damaged file is kept under another name.
    void aSettingTellsAllThatIsWrongWithItsFile()
    {
        Workbench bench;
        TorController &c = bench.controller();
        bench.writeFile(bench.profile.settingsFile, QByteArray("\0\xff=", 3));
        bench.settings->setString(u"windows/main"_s, u"400x600+0+0"_s); // no caller reads the error
        bench.writeFile(bench.profile.settingsFile, QByteArray("\1\xff=", 3));
        const auto told = c.autoConnect.set(true);
        QVERIFY(told);
        for (const QString &name : {u".broken,"_s, u".broken-1,"_s})
            QCOMPARE(told->english().count(bench.profile.settingsFile + name), 1);
        QCOMPARE(c.errorMessage().value(), *told);
        QVERIFY(!c.autoConnect.set(true)); // once
    }
};

VELDMARK_TEST(ControllerStateTest)
#include "ControllerStateTest.moc"
