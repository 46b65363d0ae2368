#include "StandInSession.h"
#include "ui/OptionsModel.h"
#include "support/TestProgram.h"

#include <QTemporaryDir>
#include <QTest>

using namespace veldmark;

class OptionsModelTest : public QObject {
    Q_OBJECT

    PlatformProfile profile = PlatformProfile::linux(Places::below(QStringLiteral("/nowhere")));

private Q_SLOTS:
    void locksWhileAConnectionLasts()
    {
        StandInSession session(profile);
        OptionsModel options(session);
        Snapshot s;
        for (const auto &[phase, locked] : {std::pair{Phase::disconnected, false}, {Phase::connecting, true},
                                            {Phase::connected, true}, {Phase::disconnecting, true},
                                            {Phase::stale, false}}) {
            s.phase = phase;
            session.show(s);
            QCOMPARE(options.locked(), locked);
        }
    }

    void storesWhatIsChosen()
    {
        StandInSession session(profile);
        OptionsModel options(session);
        options.setStrictMode(false);
        options.setAllowLocalNetwork(false);
        options.setOptimizeSpeed(true);
        options.setTerminalMode(true);
        options.setExitIndex(2);
        options.setBridgeIndex(4);
        options.saveCustomBridges(QStringLiteral("192.0.2.1:443"));
        const Choices &c = session.now().choices;
        QVERIFY(!c.strictMode && !c.allowLocalNetwork && c.optimizeSpeed && c.terminalMode);
        QCOMPARE(c.exitCountry, QStringLiteral("de"));
        QCOMPARE(c.bridgeChoice, BridgeChoice::custom);
        QCOMPARE(c.customBridges, QStringLiteral("192.0.2.1:443"));
        QCOMPARE(options.exitIndex(), 2);
        options.setExitIndex(99);
        options.setBridgeIndex(-1);
        QCOMPARE(session.now().choices, c);
    }

    void warnsOfACountry()
    {
        StandInSession session(profile);
        OptionsModel options(session);
        QCOMPARE(options.exitWarning(), QString());
        options.setExitIndex(1);
        QCOMPARE(options.exitWarning(),
                 QStringLiteral("Choosing a country means fewer exit relays, so it's slower and you're "
                                "easier to single out."));
    }

    void saysWhatBridgesNeed()
    {
        StandInSession session(profile);
        OptionsModel options(session);
        Snapshot s;
        session.show(s);
        QCOMPARE(options.bridgeNote(), QStringLiteral("For networks that block or watch Tor"));
        QVERIFY(!options.needsDownload());
        s.choices.bridgeChoice = BridgeChoice::obfs4;
        session.show(s);
        QCOMPARE(options.bridgeNote(), QStringLiteral("Needs bridge programs: click Download"));
        QVERIFY(options.needsDownload());
        s.transports.lyrebird = QStringLiteral("/usr/bin/lyrebird");
        s.transports.builtin = {{QStringLiteral("obfs4"), {QStringLiteral("obfs4 192.0.2.1:443 cert=a")}}};
        s.transports.source = QStringLiteral("Tor Browser");
        session.show(s);
        QVERIFY(!options.needsDownload());
        QCOMPARE(options.bridgeNote(), QStringLiteral("Built-in bridges from Tor Browser"));
        s.choices.bridgeChoice = BridgeChoice::custom;
        session.show(s);
        QCOMPARE(options.bridgeNote(), QStringLiteral("No bridges added yet"));
    }

    void countsLinesThatAreNoBridges()
    {
        StandInSession session(profile);
        const OptionsModel options(session);
        QCOMPARE(options.bridgeWarning(QStringLiteral("192.0.2.1:443\n# note\n")), QString());
        QCOMPARE(options.bridgeWarning(QStringLiteral("nonsense")), QStringLiteral("1 line not recognized"));
        QCOMPARE(options.bridgeWarning(QStringLiteral("nonsense\nmore\n192.0.2.1:443")),
                 QStringLiteral("2 lines not recognized"));
    }

    void showsTheApplicationsThatTheSessionHas()
    {
        StandInSession session(profile);
        OptionsModel options(session);
        QCOMPARE(options.applicationCount(), QStringLiteral("None"));
        const QString games = QStringLiteral("/usr/share/applications/games.desktop");
        session.addBypassApp(games);
        QCOMPARE(options.applications(), QStringList{games});
        QCOMPARE(options.applicationCount(), QStringLiteral("1"));
        QCOMPARE(options.applicationName(games), QStringLiteral("Games"));
        options.removeApplication(games);
        QVERIFY(options.applications().isEmpty());
    }

    void opensAroundTorOnlyInStrictMode()
    {
        StandInSession session(profile);
        OptionsModel options(session);
        Snapshot s;
        s.phase = Phase::connected;
        s.activeMode = RoutingMode::proxy;
        session.show(s);
        QVERIFY(!options.canLaunchBypassed());
        s.activeMode = RoutingMode::strict;
        session.show(s);
        QVERIFY(options.canLaunchBypassed());
    }
};

VELDMARK_WINDOWED_TEST(OptionsModelTest)
#include "OptionsModelTest.moc"
