#include "ui/SettingsModel.h"
#include "StandInSession.h"
#include "support/TestProgram.h"

#include <QTemporaryDir>
#include <QTest>

using namespace veldmark;

class SettingsModelTest : public QObject {
    Q_OBJECT

    QTemporaryDir folder;
    PlatformProfile profile = PlatformProfile::linux(Places::below(folder.path()));

private Q_SLOTS:
    void saysWhetherTorIsThere()
    {
        StandInSession session(profile);
        const SettingsModel settings(session);
        Snapshot s;
        session.show(s);
        QCOMPARE(settings.torStatus(), QStringLiteral("Not found"));
        s.choices.customTorPath = QStringLiteral("/opt/tor");
        session.show(s);
        QCOMPARE(settings.torStatus(), QStringLiteral("Missing"));
        QCOMPARE(settings.torPlace(), QStringLiteral("/opt/tor"));
        s.torPath = QStringLiteral("/opt/tor");
        session.show(s);
        QCOMPARE(settings.torStatus(), QStringLiteral("Found"));
    }

    void choosesTor()
    {
        StandInSession session(profile);
        SettingsModel settings(session);
        settings.chooseTor(QUrl::fromLocalFile(QStringLiteral("/opt/a b/tor")));
        QCOMPARE(session.now().choices.customTorPath, QStringLiteral("/opt/a b/tor"));
        QVERIFY(settings.torCustom());
        settings.chooseTor({});
        QVERIFY(!settings.torCustom());
    }

    void tellsOfTheBundle()
    {
        StandInSession session(profile);
        const SettingsModel settings(session);
        QVERIFY(!settings.bundleLoaded());
        QCOMPARE(settings.bundleStatus(), QStringLiteral("Not downloaded"));
        Snapshot s;
        s.bundleVersion = QStringLiteral("14.0.4");
        session.show(s);
        QVERIFY(settings.bundleLoaded());
        QCOMPARE(settings.bundleStatus(), QStringLiteral("Version 14.0.4 loaded"));
        s.isBundleSigned = true;
        session.show(s);
        QCOMPARE(settings.bundleStatus(),
                 QStringLiteral("Version 14.0.4 loaded · signature verified"));
    }

    void claimsACheckOfTheSignatureOnlyWhereGnuPGIs()
    {
        StandInSession session(profile);
        const SettingsModel settings(session);
        QVERIFY2(settings.bundleTrust().contains(QStringLiteral("isn't checked")),
                 qPrintable(settings.bundleTrust()));
        Snapshot s;
        s.canVerifyDownloads = true;
        session.show(s);
        QCOMPARE(
            settings.bundleTrust(),
            QStringLiteral("Fetched over HTTPS and checked against the Tor Project's signature."));
    }

    void tellsShellsAndSshApart()
    {
        StandInSession session(profile);
        const SettingsModel settings(session);
        Snapshot s;
        session.show(s);
        QCOMPARE(settings.terminalStatus(), QStringLiteral("Not installed"));
        s.terminalInstalled = true;
        session.show(s);
        QCOMPARE(settings.terminalStatus(),
                 QStringLiteral("Installed in your shell; SSH doesn't use it"));
        s.terminalForSsh = true;
        session.show(s);
        QCOMPARE(settings.terminalStatus(),
                 QStringLiteral("Installed in your shell and SSH config"));
    }

    void namesWhatEachSystemHas()
    {
        StandInSession session(profile);
        const SettingsModel settings(session);
        const PlatformProfile mac = PlatformProfile::macos(Places());
        StandInSession onMac(mac);
        const SettingsModel macSettings(onMac);
        QVERIFY(!settings.terminalTools().contains(QStringLiteral("brew")));
        QVERIFY(macSettings.terminalTools().contains(QStringLiteral("brew")));
        QVERIFY(settings.credits().contains(QStringLiteral("nftables")));
        QVERIFY(!macSettings.credits().contains(QStringLiteral("nftables")));
    }

    void restoresOnlyWhatIsChanged()
    {
        StandInSession session(profile);
        SettingsModel settings(session);
        Snapshot s;
        session.show(s);
        QVERIFY(!settings.changesActive());
        QVERIFY(!settings.canRestore());
        s.markerPresent = true;
        session.show(s);
        QVERIFY(settings.canRestore());
        s.phase = ConnectionPhase::disconnecting;
        session.show(s);
        QVERIFY(settings.changesActive());
        QVERIFY(!settings.canRestore());
    }

    void storesSwitches()
    {
        StandInSession session(profile);
        SettingsModel settings(session);
        QVERIFY(!settings.canOpenAtLogin()); // unknown in the snapshot
        settings.setAutoConnect(true);
        settings.setTerminalMode(true);
        QVERIFY(allClimbs.at(static_cast<std::size_t>(settings.climbIndex())) == Climb::ask);
        for (int index = 2; index >= 0; --index) {
            settings.setClimbIndex(index);
            QCOMPARE(settings.climbIndex(), index);
            QVERIFY(session.now().choices.climb == allClimbs.at(static_cast<std::size_t>(index)));
        }
        QCOMPARE(settings.climbNames().size(), 3);
        QVERIFY(settings.separateApps());
        settings.setSeparateApps(false);
        QVERIFY(!settings.separateApps() && !session.now().choices.separateApps);
        settings.setOpenAtLogin(true);
        QVERIFY(session.now().choices.autoConnect);
        QVERIFY(session.now().choices.terminalMode);
        QVERIFY(settings.openAtLogin());
    }

    void saysWhereApplicationsShareCircuitsNevertheless()
    {
        StandInSession session(profile);
        SettingsModel settings(session);
        Snapshot s;
        s.phase = ConnectionPhase::connected;
        for (const std::optional<bool> separated : {std::optional<bool>(), std::optional(true)}) {
            s.separated = separated;
            session.show(s);
            QCOMPARE(settings.separationProblem(), QString());
        }
        s.separated = false;
        session.show(s);
        QCOMPARE(settings.separationProblem(),
                 QStringLiteral("Applications are not separated now: they share circuits."));
    }

    void theTorOfAConnectionIsLocked()
    {
        StandInSession session(profile);
        SettingsModel settings(session);
        Snapshot s;
        for (const auto &[phase, locked] : {std::pair{ConnectionPhase::disconnected, false},
                                            {ConnectionPhase::connecting, true},
                                            {ConnectionPhase::connected, true},
                                            {ConnectionPhase::disconnecting, true},
                                            {ConnectionPhase::stale, false}}) {
            s.phase = phase;
            session.show(s);
            QCOMPARE(settings.torLocked(), locked);
        }
    }
};

VELDMARK_WINDOWED_TEST(SettingsModelTest)
#include "SettingsModelTest.moc"
