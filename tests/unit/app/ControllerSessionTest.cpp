#include "app/ControllerSession.h"
#include "StandInDesktop.h"
#include "controller/PublishedState.h"
#include "support/OtherSession.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"
#include "ui/PanelModel.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
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
        QVERIFY(session.now().phase == ConnectionPhase::disconnected);
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
        QSignalSpy strict(&bench.controller().strictMode, &Field::changed);
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
        bench.tor.reply(
            "GETINFO circuit-status",
            Workbench::block("circuit-status",
                             {"5 BUILT $" + QByteArray(40, 'A') + "~one PURPOSE=GENERAL"}));
        bench.tor.reply("GETINFO stream-status", Workbench::block("stream-status", {}));
        bench.setCounters("1000", "500");
        QVERIFY(bench.connect());
        QVERIFY(bench.tick());
        const auto refreshing = bench.controller().refreshCircuits();
        QVERIFY(Workbench::finished(refreshing));
        settle();
        const Snapshot connected = session.now(); // there is something to hide
        QVERIFY(connected.phase == ConnectionPhase::connected && connected.exitIP
                && connected.torVerified == true);
        QVERIFY(connected.leak == LeakStatus::blocked() && connected.bytesRead == 1000);
        QCOMPARE(connected.circuits.size(), std::size_t(1));

        bench.tor.stopListening();
        bench.tor.disconnectAll();
        for (int read = 0; read < 3; ++read)
            QVERIFY(bench.tick());
        QVERIFY(until([&] { return session.now().phase == ConnectionPhase::stale; }));
        QVERIFY(bench.controller().exitIP()); // the controller keeps it
        const Snapshot &stale = session.now();
        QVERIFY(!stale.exitIP && !stale.torVerified && !stale.latencyMs && !stale.isChecking);
        QVERIFY(stale.leak == LeakStatus::notTested() && stale.dns == DNSStatus::unknown());
        QVERIFY(stale.circuits.empty() && stale.bytesRead == 0);
        QVERIFY(stale.errorMessage && stale.markerPresent
                && stale.activeMode == RoutingMode::strict);
    }

    // No window asks for circuits, but the panel shows the exit's country.
    void theCircuitsAreReadWhenTheExitIsKnown()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        bench.tor.reply(
            "GETINFO circuit-status",
            Workbench::block("circuit-status",
                             {"5 BUILT $" + QByteArray(40, 'A') + "~one PURPOSE=GENERAL"}));
        bench.tor.reply("GETINFO stream-status", Workbench::block("stream-status", {}));
        QVERIFY(bench.connect());
        QVERIFY(until([&] { return session.now().exitIP.has_value(); }));
        QVERIFY(until([&] { return session.now().circuits.size() == 1; }));
    }

    void afterANewIdentityTheCircuitsAreReadAgain()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        bench.tor.reply("GETINFO stream-status", Workbench::block("stream-status", {}));
        QVERIFY(bench.connect());
        settle();
        bench.tor.reply(
            "GETINFO circuit-status",
            Workbench::block("circuit-status",
                             {"6 BUILT $" + QByteArray(40, 'B') + "~two PURPOSE=GENERAL"}));
        bench.probe.torAnswer = ScriptedProbe::nothing(); // an exit that is known has them read as
                                                          // well
        session.newIdentity();
        QVERIFY(until([&] { return session.now().circuits.size() == 1; }));
        QCOMPARE(session.now().circuits.front().id, u"6"_s);
    }

    void circuitsAreReadOnceMoreHoweverOftenTheyAreAskedFor()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        bench.tor.reply(
            "GETINFO circuit-status",
            Workbench::block("circuit-status",
                             {"5 BUILT $" + QByteArray(40, 'A') + "~one PURPOSE=GENERAL"}));
        bench.tor.reply("GETINFO stream-status", Workbench::block("stream-status", {}));
        QVERIFY(bench.connect());
        QVERIFY(until([&] { return session.now().circuits.size() == 1; }));
        settle();
        const auto asked = [&bench] {
            return bench.tor.commands().count(u"GETINFO circuit-status"_s);
        };
        const auto before = asked();
        for (int i = 0; i < 20; ++i)
            session.refreshCircuits();
        QVERIFY(until([&] { return asked() >= before + 2; }));
        settle();
        QCOMPARE(asked(), before + 2);
        session.refreshCircuits(); // and again at a later request
        QVERIFY(until([&] { return asked() == before + 3; }));
    }

    void aBrokenSettingsFileIsTold()
    {
        Workbench bench;
        bench.writeFile(bench.profile.settingsFile, QByteArray("\0\xff=", 3));
        bench.restart();
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        QVERIFY(session.now().errorMessage);
        QVERIFY(session.now().errorMessage->english().contains(u".broken"_s));
        const QJsonValue published
            = publishedState(bench.controller()).value(u"settingsProblems"_s);
        // the command line sees it as well
        QCOMPARE(published, QJsonValue(QJsonArray{session.now().errorMessage->english()}));
        session.dismissError();
        follow(session);
        QVERIFY(!session.now().errorMessage);
        QVERIFY(bench.controller().settingsProblems().isEmpty());
    }

    void aSettingsFileOfANewerVersionIsReadAndKept()
    {
        Workbench bench;
        const QByteArray newer
            = "[General]\nbridgeChoice=quantum\nexitCountry=de\nformat=7\nstrictMode=sometimes\n\n[windows]\nmain=everywhere\n";
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
        for (const char *kept :
             {"bridgeChoice=quantum", "format=7", "strictMode=sometimes", "autoConnect=true"})
            QVERIFY2(text.contains(kept), text.constData());
    }

    void restoresAMarkerThatAnotherProcessLeft()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        bench.writeMarker("strict\n");
        session.disconnectFromTor();
        QVERIFY(until([&] {
            return bench.controller().phase() == ConnectionPhase::disconnected
                && !bench.hasMarker();
        }));
        QCOMPARE(bench.helperRunCount(u"disconnect"_s), 1);
    }

    void endsNoSessionThatHasReplacedItsOwn()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        QVERIFY(bench.connect());
        OtherSession other(bench.profile);
        session.disconnectFromTor();
        QVERIFY(until([&] { return session.now().isAnothers; }));
        QVERIFY(session.now().phase == ConnectionPhase::stale);
        QCOMPARE(bench.helperRunCount(u"disconnect"_s), 0);
        session.disconnectFromTor(); // the session is shown as another's, so this one is meant
        QVERIFY(until([&] { return session.now().phase == ConnectionPhase::disconnected; }));
        QVERIFY(!session.now().isAnothers);
    }

    void passesOnWhatTheWatcherHasSeen()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        // The event loop runs meanwhile, so the snapshot may be up to date already.
        const auto shows = [&session](KillSwitch::State state) {
            return until([&] {
                return session.now().killSwitch && session.now().killSwitch->state == state;
            });
        };
        QVERIFY(bench.connect());
        QVERIFY(shows(KillSwitch::State::standing));
        bench.noteRules("restored", 1);
        QVERIFY(bench.tick());
        QVERIFY(shows(KillSwitch::State::putBack));
        QVERIFY(session.now().killSwitch == bench.controller().killSwitch());
    }

    void showsWhetherShellsAndSshReadTheTerminalsFiles()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        // an existing folder says nothing about its content
        QVERIFY(QDir().mkpath(bench.profile.terminalDirectory));
        session.lookAgain();
        follow(session);
        QVERIFY(!session.now().terminalInstalled);
        Choices choices = session.now().choices;
        choices.terminalMode = true;
        session.store(choices);
        QVERIFY(until([&] { return session.now().terminalInstalled; }));
        QVERIFY(!session.now().terminalForSsh); // this computer has no netcat
        QVERIFY(session.now().terminalError
                && session.now().terminalError->english().contains(u"netcat"_s));
        bench.writeFile(bench.profile.netcatCandidates.constFirst(),
                        "#!/bin/sh\necho '[-X proxy_protocol] [-x proxy_address[:port]]'\n", true);
        choices.terminalMode = false;
        session.store(choices);
        QVERIFY(until([&] { return !session.now().terminalError; }));
        choices.terminalMode = true;
        session.store(choices);
        QVERIFY(until([&] { return session.now().terminalForSsh; }));
        QVERIFY(!session.now().terminalError);
        // Another program removes Veldmark's line from the shell's file.
        bench.writeFile(bench.profile.shellFilesAlways.constFirst(), "# nothing\n");
        session.lookAgain();
        follow(session);
        QVERIFY(!session.now().terminalInstalled && !session.now().terminalForSsh);
        session.removeTerminalIntegration();
        follow(session);
        QVERIFY(!session.now().terminalInstalled);
    }

    void showsTheDownloadedBundleAndHowTheNextIsVerified()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        QVERIFY(session.now().bundleVersion.isEmpty() && !session.now().isBundleSigned);
        QVERIFY(!session.now().canVerifyDownloads);
        bench.writeFile(bench.profile.bundleDirectory + u"/VERSION"_s, "14.0.4\n");
        bench.writeFile(bench.profile.bundleDirectory + u"/VERIFIED"_s, "https");
        bench.writeFile(bench.profile.gnupgCandidates.constFirst() + u"/gpg"_s, "#!/bin/sh\n",
                        true);
        session.lookAgain();
        follow(session);
        QCOMPARE(session.now().bundleVersion, u"14.0.4"_s);
        QVERIFY(!session.now().isBundleSigned);
        QVERIFY(session.now().canVerifyDownloads);
        bench.writeFile(bench.profile.bundleDirectory + u"/VERIFIED"_s, "signature\n");
        session.lookAgain();
        follow(session);
        QVERIFY(session.now().isBundleSigned);
    }

    void tellsWhyAnApplicationWasNotOpened()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        QVERIFY(bench.connect());
        bench.failHelper(u"launch"_s, u"it has no program"_s);
        QSignalSpy failed(&session, &Session::launchFailed);
        session.launchBypassed(u"/usr/share/applications/games.desktop"_s);
        QVERIFY(until([&] { return failed.count() == 1; }));
        QVERIFY2(failed.at(0).at(0).toString().contains(u"it has no program"_s),
                 qPrintable(failed.at(0).at(0).toString()));
        bench.cancelPrompt(u"launch"_s);
        const int runs = bench.helperRunCount(u"launch"_s);
        session.launchBypassed(u"/usr/share/applications/games.desktop"_s);
        QVERIFY(until([&] { return bench.helperRunCount(u"launch"_s) == runs + 1; }));
        settle();
        QCOMPARE(failed.count(), 1); // the user's own choice
        bench.hold(u"launch"_s);
        session.launchBypassed(u"/usr/share/applications/games.desktop"_s);
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        session.launchBypassed(u"/usr/share/applications/games.desktop"_s); // a second press
        settle();
        QCOMPARE(failed.count(), 1);
        bench.processes.hold = nullptr;
        bench.processes.release();
        settle();
    }

    void looksAgainAtTheMarker()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        QVERIFY(!session.now().markerPresent);
        bench.writeMarker("strict\n");
        settle();
        QVERIFY(!session.now().markerPresent); // there is no notice of the marker
        session.lookAgain();
        follow(session);
        QVERIFY(session.now().markerPresent);
    }

    void looksAtTheComputerOnceAtATime()
    {
        Workbench bench;
        const QString asked = bench.folder.filePath(u"asked"_s);
        bench.writeFile(bench.profile.torCandidates.constFirst(),
                        "#!/bin/sh\necho tor >>'" + asked.toUtf8() + "'\n", true);
        const auto runs = [&asked] {
            QFile file(asked);
            return file.open(QIODevice::ReadOnly) ? file.readAll().count('\n') : 0;
        };
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        QVERIFY(session.now().findings.empty());
        // it may end while the events of its start are handled
        QList<bool> shown{session.now().isExamining};
        QObject::connect(&session, &Session::changed, this, [&] {
            if (shown.constLast() != session.now().isExamining)
                shown << session.now().isExamining;
        });
        session.examine();
        session.examine();
        QVERIFY(until([&] { return shown.size() == 3; }));
        QCOMPARE(shown, QList({false, true, false}));
        QCOMPARE(runs(), 1);
        QVERIFY(!session.now().findings.empty());
        QCOMPARE(session.now().findings.front().name, u"tor"_s);
        session.examine(); // and again at a later request
        QVERIFY(until([&] { return shown.size() == 5; }));
        QCOMPARE(runs(), 2);
    }

    void makesAReportAndSavesIt()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        const QString file = bench.folder.filePath(u"report.txt"_s);
        session.saveReport(file); // there is none yet
        QVERIFY(!QFile::exists(file));
        bench.controller().showProblem(Text(u"Tor at 203.0.113.9 is gone"_s));
        session.makeReport();
        session.makeReport();
        QVERIFY(until([&] { return !session.now().report.isEmpty(); }));
        QVERIFY(!session.now().isReporting);
        QVERIFY2(session.now().report.contains(u"\nerrorMessage: Tor at address-1 is gone\n"_s),
                 qPrintable(session.now().report));
        QVERIFY(session.now().report.contains(u"\nbridgeChoice: off\n"_s));

        bench.writeFile(file, "old");
        session.saveReport(file);
        QVERIFY(until([&] { return session.now().reportSaved == file; }));
        QFile written(file);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QCOMPARE(QString::fromUtf8(written.readAll()), session.now().report);

        session.saveReport(bench.folder.path());
        QVERIFY(until([&] { return session.now().reportProblem.has_value(); }));
        QVERIFY(!session.now().reportSaved);
        session.makeReport(); // a new report is saved nowhere yet
        QVERIFY(until([&] { return !session.now().reportProblem; }));
        QVERIFY(until([&] { return !session.now().report.isEmpty(); }));
    }

    void goesWhileItMakesAReport()
    {
        Workbench bench;
        auto session = std::make_unique<ControllerSession>(bench.controller(), *bench.settings,
                                                           bench.applications);
        session->makeReport();
        session.reset();
        settle();
    }

    void goesWhileItLooksAtTheComputer()
    {
        Workbench bench;
        auto session = std::make_unique<ControllerSession>(bench.controller(), *bench.settings,
                                                           bench.applications);
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
        QVERIFY(session.now().errorMessage->english().startsWith(
            QStringLiteral("Couldn't change the login-item setting: ")));
        // the command line sees it as well
        QCOMPARE(bench.controller().errorMessage(), session.now().errorMessage);
        QCOMPARE(session.now().openAtLogin, std::optional(false));
    }

    void fromAMadeUpPlaceItIsNoLoginItem()
    {
        Workbench bench;
        StandInDesktop desktop;
        desktop.misplaced = Text(QStringLiteral("Move it."));
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        session.setOpenAtLogin(false);
        follow(session);
        QVERIFY(!session.now().errorMessage); // it may always give that up
        session.setOpenAtLogin(true);
        follow(session);
        QVERIFY(session.now().errorMessage);
        QCOMPARE(session.now().errorMessage->english(),
                 QStringLiteral("Couldn't change the login-item setting: Move it."));
        QCOMPARE(session.now().openAtLogin, std::optional(false));
    }

    void whatKeptTorFromConnectingIsNoPartOfALaterMessage()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        bench.setBootstrap("PROGRESS=1 WARNING=\"Connection refused\"");
        const auto connecting = bench.controller().connect();
        QVERIFY(until(
            [&] { return bench.controller().bootstrapProblem() && bench.clock.sleepers() == 2; }));
        bench.clock.advance(std::chrono::minutes(5));
        QVERIFY(Workbench::finished(connecting));
        settle();
        QVERIFY(session.now().phase == ConnectionPhase::stale && session.now().bootstrapProblem);
        bench.controller().showProblem(QStringLiteral("The settings can't be written."));
        settle();
        QVERIFY(!session.now().bootstrapProblem);
    }

    // A cancelled attempt shows no failure, so its reason must not be shown either.
    void whatWasInTorsWayIsNoPartOfWhatIsWrongWithTheSettings()
    {
        Workbench bench;
        bench.writeFile(bench.profile.settingsFile, QByteArray("\0\xff=", 3));
        bench.restart();
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        bench.setBootstrap("PROGRESS=1 WARNING=\"Connection refused\"");
        const auto connecting = bench.controller().connect();
        QVERIFY(until(
            [&] { return bench.controller().bootstrapProblem() && bench.clock.sleepers() == 2; }));
        bench.cancelPrompt(u"disconnect"_s);
        bench.disconnect();
        bench.clock.advance(std::chrono::seconds(1));
        QVERIFY(Workbench::finished(connecting));
        QVERIFY(until([&] { return session.now().phase == ConnectionPhase::stale; }));
        QVERIFY(session.now().errorMessage && !bench.controller().settingsProblems().isEmpty());
        QVERIFY(!session.now().bootstrapProblem);
    }

    void theWindowsNameTheFirewallThatLetsNothingThroughAsTheControllerDoes()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        QVERIFY(bench.connect());
        QVERIFY(bench.tick());
        bench.writeFile(bench.profile.othersNote, "ufw\n");
        bench.hasCircuit = false;
        bench.setCounters("1000", "200");
        for (int tick = 0; tick < 6; ++tick)
            QVERIFY(bench.tick());
        settle();
        QVERIFY(session.now().verdict().detail.english().endsWith(u": ufw."_s));
        QCOMPARE(session.now().verdict(), bench.controller().verdict());
    }

    void everyFieldThatChangesIsShown()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        settle();
        QVERIFY(bench.controller().fields().size() >= 35);
        for (Field *field : bench.controller().fields()) {
            QSignalSpy changed(&session, &Session::changed);
            Q_EMIT field->changed();
            settle();
            QVERIFY2(changed.count() == 1, qPrintable(field->name()));
        }
    }

    // There is a tor, and the command line says the same.
    void aLocationOfTorThatIsRefusedIsNotTakenForAMissingTor()
    {
        Workbench bench;
        bench.controller().customTorPath.set(u"bin/tor"_s); // as an older version may have kept it
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        PanelModel panel(session);
        QVERIFY(!panel.torMissing());
        QVERIFY(panel.powerEnabled());
        panel.pressPower();
        follow(session);
        QVERIFY2(panel.error().contains(u"\"bin/tor\" is not a location of Tor"_s),
                 qPrintable(panel.error()));
        bench.removeTor();
        bench.controller().customTorPath.set(QString());
        follow(session);
        QVERIFY(panel.torMissing());
        QVERIFY(!panel.powerEnabled());
    }

    void oneClickDismissesOneMessage()
    {
        Workbench bench;
        bench.writeFile(bench.profile.settingsFile, QByteArray("\0\xff=", 3));
        bench.restart();
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        const Text first = session.now().errorMessage.value();
        bench.removeTor();
        session.connectToTor();
        follow(session);
        // the new message covers the first
        QCOMPARE(session.now().errorMessage.value(), bench.profile.torMissingText);
        session.dismissError();
        follow(session);
        QCOMPARE(session.now().errorMessage.value(), first);
        session.dismissError();
        follow(session);
        QVERIFY(!session.now().errorMessage);
    }

    void aMessageThatNobodyHasSeenIsNotDismissed()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        bench.controller().showProblem(u"First."_s);
        follow(session);
        bench.controller().showProblem(u"Second."_s); // not yet shown when the user clicks
        session.dismissError();
        follow(session);
        QCOMPARE(session.now().errorMessage.value(), u"Second."_s);
    }

    void whatAConnectionHoldsIsNotStored()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        QVERIFY(bench.connect());
        settle();
        Choices choices = session.now().choices;
        QVERIFY(choices.strictMode);
        choices.strictMode = false;
        choices.autoConnect = true;
        session.store(choices);
        follow(session);
        QVERIFY(session.now().choices.strictMode && session.now().choices.autoConnect);
        QVERIFY(
            session.now().errorMessage.value().english().contains(u"Disconnect to change it."_s));
        bench.disconnect();
        settle();
        session.store(choices);
        follow(session);
        QVERIFY(!session.now().choices.strictMode);
    }

    void aDisconnectHasTheProgressOfItsSession()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        QVERIFY(bench.connect());
        bench.hold(u"disconnect"_s);
        const auto disconnecting = bench.controller().disconnect();
        QVERIFY(until([&] { return session.now().phase == ConnectionPhase::disconnecting; }));
        QCOMPARE(session.now().bootstrapProgress, 1.0); // must not appear as the disconnect's
                                                        // message
        QCOMPARE(session.now().statusDetail, u"Restoring your network settings…"_s);
        QVERIFY(!session.now().canCancel && !session.now().exitIP);
        bench.processes.hold = nullptr;
        bench.processes.release();
        QVERIFY(Workbench::finished(disconnecting));
        QVERIFY(until([&] { return session.now().phase == ConnectionPhase::disconnected; }));
        QCOMPARE(session.now().bootstrapProgress, 0.0);
    }
};

VELDMARK_TEST(ControllerSessionTest)
#include "ControllerSessionTest.moc"
