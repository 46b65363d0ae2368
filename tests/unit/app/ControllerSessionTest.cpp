#include "app/ControllerSession.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QFileInfo>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

class ControllerSessionTest : public QObject {
    Q_OBJECT

    // The snapshot follows through the event loop.
    static void follow(ControllerSession &session)
    {
        QSignalSpy changed(&session, &Session::changed);
        QVERIFY(until([&] { return !changed.isEmpty(); }));
    }

private Q_SLOTS:
    void showsWhatTheControllerHasAtOnce()
    {
        Workbench bench;
        bench.controller().exitCountry.set(u"de"_s);
        const ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        QCOMPARE(session.now().choices.exitCountry, u"de"_s);
        QVERIFY(session.now().phase == Phase::disconnected);
        QVERIFY(session.now().torPath);
        QVERIFY(!session.now().markerPresent);
    }

    void tellsOnceOfAllThatChangedTogether()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        settle();
        QSignalSpy changed(&session, &Session::changed);
        bench.controller().exitCountry.set(u"se"_s);
        bench.controller().autoConnect.set(true);
        QCOMPARE(changed.count(), 0);
        QVERIFY(until([&] { return !changed.isEmpty(); }));
        settle();
        QCOMPARE(changed.count(), 1);
        QVERIFY(session.now().choices.autoConnect && session.now().choices.exitCountry == u"se"_s);
    }

    void storesOnlyWhatTheUserChanged()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        QSignalSpy strict(&bench.controller(), &TorController::strictModeChanged);
        Choices choices = session.now().choices;
        choices.bridgeChoice = BridgeChoice::obfs4;
        session.store(choices);
        QVERIFY(bench.controller().bridgeChoice() == BridgeChoice::obfs4);
        QCOMPARE(strict.count(), 0);
        QFile file(bench.profile.settingsFile);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
        QVERIFY(text.contains("bridgeChoice=obfs4"));
        QVERIFY(!text.contains("strictMode"));
    }

    void showsWhatWasFoundOutOnlyWhileItIsTrue()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        bench.tor.reply("GETINFO circuit-status", Workbench::block("circuit-status", {"5 BUILT $" + QByteArray(40, 'A') + "~one PURPOSE=GENERAL"}));
        bench.tor.reply("GETINFO stream-status", Workbench::block("stream-status", {}));
        bench.setCounters("1000", "500");
        QVERIFY(bench.connect());
        QVERIFY(bench.tick());
        const auto refreshing = bench.controller().refreshCircuits();
        QVERIFY(Workbench::finished(refreshing));
        settle();
        const Snapshot connected = session.now(); // there is something to hide
        QVERIFY(connected.phase == Phase::connected && connected.exitIP && connected.torVerified == true);
        QVERIFY(connected.leak.kind == Leak::Kind::blocked && connected.bytesRead == 1000);
        QCOMPARE(connected.circuits.size(), std::size_t(1));

        bench.tor.stopListening();
        bench.tor.disconnectAll();
        for (int read = 0; read < 3; ++read)
            QVERIFY(bench.tick());
        QVERIFY(until([&] { return session.now().phase == Phase::stale; }));
        QVERIFY(bench.controller().exitIP()); // the controller keeps it
        const Snapshot &stale = session.now();
        QVERIFY(!stale.exitIP && !stale.torVerified && !stale.latencyMs && !stale.isChecking);
        QVERIFY(stale.leak.kind == Leak::Kind::notTested && stale.lookups.kind == Lookups::Kind::unknown);
        QVERIFY(stale.circuits.empty() && stale.bytesRead == 0);
        QVERIFY(stale.errorMessage && stale.markerPresent && stale.activeMode == RoutingMode::strict);
    }

    void aBrokenSettingsFileIsTold()
    {
        Workbench bench;
        bench.writeFile(bench.profile.settingsFile, QByteArray("\0\xff=", 3));
        bench.restart();
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        QVERIFY(session.now().errorMessage);
        QVERIFY(session.now().errorMessage->contains(u".broken"_s));
        session.dismissError();
        follow(session);
        QVERIFY(!session.now().errorMessage);
    }

    void aSettingsFileOfANewerVersionIsReadAndKept()
    {
        Workbench bench;
        const QByteArray newer = "[General]\nbridgeChoice=quantum\nexitCountry=de\nformat=7\nstrictMode=sometimes\n\n[windows]\nmain=everywhere\n";
        bench.writeFile(bench.profile.settingsFile, newer);
        bench.restart();
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        QVERIFY(!session.now().errorMessage);
        QVERIFY(session.now().choices.strictMode); // the default, and the safe one
        QVERIFY(session.now().choices.bridgeChoice == BridgeChoice::off);
        QCOMPARE(session.now().choices.exitCountry, u"de"_s);
        Choices choices = session.now().choices;
        choices.autoConnect = true;
        session.store(choices);
        QFile file(bench.profile.settingsFile);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
        for (const char *kept : {"bridgeChoice=quantum", "format=7", "strictMode=sometimes", "autoConnect=true"})
            QVERIFY2(text.contains(kept), text.constData());
    }

    void restoresAMarkerThatAnotherProcessLeft()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        bench.writeMarker("strict\n");
        session.disconnectFromTor();
        QVERIFY(until([&] { return bench.controller().phase() == ConnectionPhase::disconnected && !bench.hasMarker(); }));
        QCOMPARE(bench.helperRunCount(u"disconnect"_s), 1);
    }

    void passesOnThatTheRulesWereRemoved()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        QVERIFY(bench.connect());
        QSignalSpy removed(&session, &Session::rulesRemoved);
        QVERIFY(bench.tick());
        QCOMPARE(removed.count(), 0);
        bench.writeFile(bench.profile.relockNotice, "restored 1\n");
        QVERIFY(bench.tick());
        QCOMPARE(removed.count(), 1);
        QCOMPARE(removed.at(0).at(0).toBool(), true);
        QVERIFY(bench.tick()); // the same notice
        QCOMPARE(removed.count(), 1);
        bench.writeFile(bench.profile.relockNotice, "open 2\n");
        QVERIFY(bench.tick());
        QCOMPARE(removed.count(), 2);
        QCOMPARE(removed.at(1).at(0).toBool(), false);
    }

    void looksAtTheComputerOnceAtATime()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        QVERIFY(session.now().findings.empty());
        session.examine();
        session.examine();
        follow(session);
        QVERIFY(session.now().isExamining);
        QVERIFY(until([&] { return !session.now().isExamining; }));
        QVERIFY(!session.now().findings.empty());
        QCOMPARE(session.now().findings.front().name, u"tor"_s);
    }

    void goesWhileItLooksAtTheComputer()
    {
        Workbench bench;
        auto session = std::make_unique<ControllerSession>(bench.controller(), *bench.settings, bench.applications);
        session->examine();
        session.reset();
        settle();
    }

    void aLoginItemThatCannotBeWrittenIsTold()
    {
        Workbench bench;
        const QString folder = QFileInfo(bench.profile.autostartFile).path();
        bench.writeFile(folder); // a file where the folder should be
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        session.setOpenAtLogin(true);
        follow(session);
        QVERIFY(session.now().errorMessage);
        QVERIFY(session.now().errorMessage->startsWith(QStringLiteral("Couldn't change the login-item setting: ")));
        QCOMPARE(session.now().openAtLogin, std::optional(false));
    }
};

VELDMARK_TEST(ControllerSessionTest)
#include "ControllerSessionTest.moc"
