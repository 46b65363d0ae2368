#include "InstanceBench.h"
#include "support/TestProgram.h"

#include "support/OtherSession.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace veldmark;

// InstanceServer: the effect of each command, and the client's answer.
class InstanceCommandsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void tellsTheState()
    {
        Instance instance;
        Conversation status(instance.bench, "status");
        QVERIFY(status.succeeds());
        QCOMPARE(status.states.size(), std::size_t(1));
        QCOMPARE(status.lastPhase(), u"disconnected"_s);
    }

    void asksToBeShown()
    {
        Instance instance;
        QSignalSpy raised(instance.server.get(), &InstanceServer::raiseRequested);
        Conversation raise(instance.bench, "raise");
        QVERIFY(raise.succeeds());
        QCOMPARE(raised.count(), 1);
    }

    void connectsAndDisconnects()
    {
        Instance instance;
        Conversation connecting(instance.bench, "connect");
        QVERIFY(connecting.succeeds());
        QCOMPARE(connecting.lastPhase(), u"connected"_s);
        QVERIFY(connecting.states.size() > 2); // it could be followed
        QCOMPARE(connecting.states.back().value(u"exitIP"_s), QJsonValue(u"203.0.113.10"_s));
        Conversation disconnecting(instance.bench, "disconnect");
        QVERIFY(disconnecting.succeeds());
        QCOMPARE(disconnecting.lastPhase(), u"disconnected"_s);
        Conversation again(instance.bench, "disconnect"); // nothing to do is no error
        QVERIFY(again.succeeds());
        QCOMPARE(instance.bench.helperRunCount(u"disconnect"_s), 1);
    }

    void aSecondConnectIsRefused()
    {
        Instance instance;
        instance.bench.hold(u"connect"_s);
        Conversation first(instance.bench, "connect");
        QVERIFY(until([&] { return instance.bench.processes.held() == 1; }));
        Conversation second(instance.bench, "connect");
        QVERIFY(second.error().startsWith(u"Already connected or connecting"_s));
        Conversation early(instance.bench, "disconnect");
        QCOMPARE(early.error(), u"Not now: Waiting for administrator approval…"_s);
        instance.bench.processes.hold = nullptr;
        instance.bench.processes.release();
        QVERIFY(first.succeeds());
        Conversation third(instance.bench, "connect");
        QVERIFY(third.error().startsWith(u"Already connected"_s));
        QCOMPARE(instance.bench.helperRunCount(u"connect"_s), 1);
    }

    void whatComesDuringADisconnectIsToldOfThat()
    {
        Instance instance;
        Workbench &bench = instance.bench;
        bench.installTransports =
            [](bool,
               const TransportDownloader::Progress &) -> QCoro::Task<TransportDownloader::Outcome> {
            co_return Failure(DownloadError::other(Text(u"No."_s)));
        };
        Conversation failing(bench, "download-transports");
        QCOMPARE(failing.error(), u"Couldn't download bridge programs: No."_s);
        QVERIFY(bench.connect());
        bench.hold(u"disconnect"_s);
        Conversation disconnecting(bench, "disconnect");
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        const QString restoring = u"Not now: Restoring your network settings…"_s;
        QCOMPARE(Conversation(bench, "connect").error(), restoring);
        QCOMPARE(Conversation(bench, "download-transports").error(), restoring);
        bench.processes.hold = nullptr;
        bench.processes.release();
        QVERIFY(disconnecting.succeeds());
    }

    void saysWhyThereIsNoConnection()
    {
        Instance instance;
        instance.bench.failHelper(u"connect"_s, u"Tor could not be started."_s);
        Conversation failing(instance.bench, "connect");
        QCOMPARE(failing.error(), u"Tor could not be started."_s);
        // the last state is sent as well, even a short one
        QCOMPARE(failing.lastPhase(), u"disconnected"_s);
        QCOMPARE(failing.states.back().value(u"errorMessage"_s).toString(), failing.error());
        instance.bench.cancelPrompt(u"connect"_s);
        Conversation dismissed(instance.bench, "connect");
        QCOMPARE(dismissed.error(), u"Cancelled."_s);
        // the client translates it into its user's language
        QVERIFY(!dismissed.answer->error().description().isWords());
    }

    void saysWhatKeptTorFromConnecting()
    {
        Instance instance;
        instance.bench.setBootstrap("PROGRESS=1 WARNING=\"Connection refused\"");
        Conversation failing(instance.bench, "connect");
        QVERIFY(until([&] {
            return instance.bench.controller().bootstrapProblem()
                && instance.bench.clock.sleepers() == 2;
        }));
        instance.bench.clock.advance(std::chrono::minutes(5));
        QCOMPARE(
            failing.error(),
            u"Tor didn't finish connecting within 5 minutes. Your network is still pointed at Tor. "
            "Click Restore Network to undo. Tor reports: Connection refused."_s);
    }

    void acceptsTheOfferOfBridges()
    {
        Instance instance;
        TorController &c = instance.bench.controller();
        c.customBridges.set(u"192.0.2.1:443"_s);
        c.climb.set(Climb::ask);
        instance.bench.tor.reply("SETCONF UseBridges=1 Bridge=\"192.0.2.1:443\"", "250 OK\r\n");
        instance.bench.setBootstrap("PROGRESS=5 TAG=conn REASON=NOROUTE COUNT=3");
        Conversation early(instance.bench, "climb");
        QCOMPARE(early.error(), u"No bridges are offered now."_s);
        const auto connecting = c.connect();
        QVERIFY(until([&] { return instance.bench.clock.sleepers() == 2; }));
        for (int second = 1; second <= 5; ++second) {
            instance.bench.clock.advance(1s);
            QVERIFY(instance.bench.hears(Workbench::bootstrapCommand, second + 1));
            QVERIFY(until([&] { return instance.bench.clock.sleepers() == 2; }));
        }
        QVERIFY(c.climbOffer());
        Conversation accepting(instance.bench, "climb");
        QVERIFY2(accepting.succeeds(), qPrintable(accepting.error()));
        instance.bench.clock.advance(1s);
        QVERIFY(until([&] { return c.activeBridge() == BridgeChoice::custom; }));
    }

    void saysWhyTheNetworkWasNotRestored()
    {
        Instance instance;
        QVERIFY(instance.bench.connect());
        instance.bench.cancelPrompt(u"disconnect"_s);
        Conversation dismissed(instance.bench, "disconnect");
        QCOMPARE(dismissed.error(), u"Cancelled."_s);
        instance.bench.failHelper(u"disconnect"_s, u"Could not."_s);
        Conversation failing(instance.bench, "disconnect");
        QCOMPARE(failing.error(), u"Could not."_s);
        instance.bench.removeMarker(); // this time it restored the network before it failed
        Conversation half(instance.bench, "disconnect");
        QCOMPARE(half.error(), u"Could not."_s);
        QVERIFY(instance.bench.controller().phase() == ConnectionPhase::disconnected);
    }

    void aDismissedRestoreIsNotTakenForTorsDeath()
    {
        Instance instance;
        QVERIFY(instance.bench.connect());
        instance.bench.tor.stopListening();
        for (int tick = 0; tick < 3; ++tick)
            QVERIFY(instance.bench.tick());
        QVERIFY(instance.bench.controller().errorMessage());
        instance.bench.cancelPrompt(u"disconnect"_s);
        Conversation dismissed(instance.bench, "disconnect");
        QCOMPARE(dismissed.error(), u"Cancelled."_s);
    }

    void aRestoreThatFailsAgainForTheSameReasonSaysItAgain()
    {
        Instance instance;
        instance.bench.writeMarker("strict\n");
        instance.bench.controller().detectStaleState();
        instance.bench.failHelper(u"disconnect"_s, u"Could not."_s);
        for (int time = 0; time < 3; ++time) {
            Conversation restoring(instance.bench, "disconnect");
            QCOMPARE(restoring.error(), u"Could not."_s);
        }
        instance.bench.cancelPrompt(u"disconnect"_s);
        Conversation dismissed(instance.bench, "disconnect");
        QCOMPARE(dismissed.error(), u"Cancelled."_s);
    }

    void restoresWhatAnotherProcessHasSetUpSince()
    {
        Instance instance;
        instance.bench.writeMarker("strict\n"); // this instance was idle the whole time
        Conversation restoring(instance.bench, "disconnect");
        QVERIFY2(restoring.succeeds(), qPrintable(restoring.error()));
        QCOMPARE(instance.bench.helperRunCount(u"disconnect"_s), 1);
        QVERIFY(!instance.bench.hasMarker());
        QCOMPARE(restoring.lastPhase(), u"disconnected"_s);
        instance.bench.writeMarker("strict\n");
        instance.bench.failHelper(u"disconnect"_s, u"Could not."_s);
        Conversation failing(instance.bench, "disconnect");
        QCOMPARE(failing.error(), u"Could not."_s);
        QVERIFY(instance.bench.hasMarker());
    }

    void endsNoSessionThatHasReplacedItsOwn()
    {
        Instance instance;
        QVERIFY(instance.bench.connect());
        OtherSession other(instance.bench.profile);
        Conversation disconnecting(instance.bench, "disconnect");
        QCOMPARE(
            disconnecting.error(),
            u"Another Veldmark of yours has started a session meanwhile, so no session was ended. Disconnect again to end that session."_s);
        QCOMPARE(instance.bench.helperRunCount(u"disconnect"_s), 0);
        QVERIFY(instance.bench.hasMarker());
        Conversation again(instance.bench, "disconnect");
        QVERIFY2(again.succeeds(), qPrintable(again.error()));
        QCOMPARE(instance.bench.helperRunCount(u"disconnect"_s), 1);
    }

    void aSessionThatAnotherProcessHasEndedIsEnded()
    {
        Instance instance;
        instance.bench.writeMarker("strict\n");
        instance.bench.controller().detectStaleState();
        instance.bench.removeMarker();
        Conversation disconnecting(instance.bench, "disconnect");
        QVERIFY2(disconnecting.succeeds(), qPrintable(disconnecting.error()));
        QCOMPARE(instance.bench.helperRunCount(u"disconnect"_s), 0);
        QCOMPARE(disconnecting.lastPhase(), u"disconnected"_s);
    }

    void whatIsToldOfTheKillSwitchIsNoFailureOfACommand()
    {
        Instance instance;
        QVERIFY(instance.bench.connect());
        instance.bench.noteRules("restored", 1);
        Conversation fixing(instance.bench, "fix-dns"); // it is sent while the command runs
        QVERIFY2(fixing.succeeds(), qPrintable(fixing.error()));
        QVERIFY(instance.bench.controller().errorMessage().value().english().contains(
            u"back in place"_s));
    }

    void saysThatAConnectionWasReplaced()
    {
        Instance instance;
        instance.bench.setBootstrap("PROGRESS=5");
        Conversation connecting(instance.bench, "connect");
        QVERIFY(until([&] { return instance.bench.controller().canCancel(); }));
        OtherSession other(instance.bench.profile);
        Conversation looking(instance.bench, "status");
        QVERIFY(looking.succeeds());
        instance.bench.clock.advance(1s);
        QVERIFY2(connecting.error().contains(
                     u"another Veldmark of yours, process %1"_s.arg(other.process())),
                 qPrintable(connecting.error()));
    }

    void tellsOfASessionThatAnotherProcessHasMadeSince()
    {
        Instance instance;
        OtherSession other(instance.bench.profile);
        Conversation status(instance.bench, "status");
        QVERIFY(status.succeeds());
        QCOMPARE(status.lastPhase(), u"stale"_s);
        QCOMPARE(status.states.back()
                     .value(u"otherSession"_s)
                     .toObject()
                     .value(u"process"_s)
                     .toInteger(),
                 other.process());
        Conversation connecting(instance.bench, "connect");
        QVERIFY2(connecting.error().contains(QString::number(other.process())),
                 qPrintable(connecting.error()));
        QVERIFY(instance.bench.processes.calls.empty());
        other.end();
        instance.bench.removeMarker();
        Conversation afterwards(instance.bench, "status");
        QVERIFY(afterwards.succeeds());
        QCOMPARE(afterwards.lastPhase(), u"disconnected"_s);
        QVERIFY(afterwards.states.back().value(u"otherSession"_s).isNull());
    }

    void aConnectionThatIsDisconnectedMeanwhileHasFailed()
    {
        Instance instance;
        instance.bench.setBootstrap("PROGRESS=5");
        Conversation connecting(instance.bench, "connect");
        QVERIFY(until([&] { return instance.bench.controller().canCancel(); }));
        Conversation disconnecting(instance.bench, "disconnect");
        QVERIFY(disconnecting.succeeds());
        instance.bench.clock.advance(1s);
        QCOMPARE(connecting.error(), u"Cancelled."_s);
    }

    void sessionCommands_data()
    {
        QTest::addColumn<QByteArray>("command");
        QTest::addColumn<bool>("needsSession");
        QTest::newRow("check") << QByteArray("check") << true;
        QTest::newRow("circuits") << QByteArray("circuits") << true;
        QTest::newRow("new-identity") << QByteArray("new-identity") << true;
    }

    void sessionCommands()
    {
        QFETCH(QByteArray, command);
        Instance instance;
        instance.bench.tor.reply("GETINFO circuit-status", Workbench::block("circuit-status", {}));
        instance.bench.tor.reply("GETINFO stream-status", Workbench::block("stream-status", {}));
        Conversation without(instance.bench, command.constData());
        QCOMPARE(without.error(), u"Not connected."_s);
        QVERIFY(instance.bench.connect());
        Conversation with(instance.bench, command.constData());
        QVERIFY2(with.succeeds(), qPrintable(with.error()));
        QCOMPARE(with.lastPhase(), u"connected"_s);
    }

    void saysWhyThereAreNoCircuitsOrIdentities()
    {
        Instance instance;
        QVERIFY(instance.bench.connect());
        instance.bench.tor.stopListening();
        Conversation circuits(instance.bench, "circuits");
        QVERIFY(circuits.error().startsWith(u"Couldn't read circuits: "_s));
        Conversation identity(instance.bench, "new-identity");
        QVERIFY(identity.error().startsWith(u"Couldn't request a new identity: "_s));
    }

    void aSecondCheckIsRefused()
    {
        Instance instance;
        QVERIFY(instance.bench.connect());
        instance.bench.probe.beforeTorAnswer = [&] { return instance.bench.clock.sleep(1s); };
        Conversation first(instance.bench, "check");
        QVERIFY(until([&] { return instance.bench.controller().isChecking(); }));
        Conversation second(instance.bench, "check");
        QCOMPARE(second.error(), u"A check is already running."_s);
        instance.bench.clock.advance(1s);
        QVERIFY(first.succeeds());
        QCOMPARE(instance.bench.probe.torProbes, 2);
    }

    void setsASetting()
    {
        Instance instance;
        Conversation setting(instance.bench,
                             QJsonObject{{u"command"_s, u"set"_s},
                                         {u"key"_s, u"exitCountry"_s},
                                         {u"value"_s, u"de"_s}});
        QVERIFY(setting.succeeds());
        QCOMPARE(instance.bench.controller().exitCountry(), u"de"_s);
    }

    void tellsARefusedSettingFromOneThatWasNotSaved()
    {
        Instance instance;
        Conversation refused(instance.bench,
                             QJsonObject{{u"command"_s, u"set"_s},
                                         {u"key"_s, u"exitCountry"_s},
                                         {u"value"_s, u"DE"_s}});
        QVERIFY(refused.error().contains(u"not an exit country"_s));
        QVERIFY(refused.answer->error().isUsage());
        // a folder where the file should be
        QVERIFY(QDir().mkpath(instance.bench.profile.settingsFile));
        Conversation unsaved(instance.bench,
                             QJsonObject{{u"command"_s, u"set"_s},
                                         {u"key"_s, u"exitCountry"_s},
                                         {u"value"_s, u"de"_s}});
        QVERIFY(!unsaved.error().isEmpty());
        QVERIFY(!unsaved.answer->error().isUsage());
        QCOMPARE(instance.bench.controller().exitCountry(), u"de"_s);
    }

    void opensAnApplicationWithoutTor()
    {
        Instance instance;
        const QJsonObject launch{{u"command"_s, u"launch"_s},
                                 {u"app"_s, u"/usr/share/applications/a.desktop"_s}};
        QCOMPARE(Conversation(instance.bench, launch).error(), u"Not connected."_s);
        QVERIFY(instance.bench.connect());
        QVERIFY(Conversation(instance.bench, launch).succeeds());
        QCOMPARE(instance.bench.lastHelperRun(u"launch"_s).last(),
                 u"/usr/share/applications/a.desktop"_s);
        for (const QJsonValue &app : {QJsonValue(u"a.desktop"_s), QJsonValue(), QJsonValue(7)}) {
            const QJsonObject relative{{u"command"_s, u"launch"_s}, {u"app"_s, app}};
            QCOMPARE(Conversation(instance.bench, relative).error(),
                     u"\"launch\" needs an \"app\", an absolute path."_s);
        }
        instance.bench.applications.names = {{u"/usr/share/applications/a.desktop"_s, u"Ay"_s}};
        instance.bench.failHelper(u"launch"_s, u"No."_s);
        QCOMPARE(Conversation(instance.bench, launch).error(),
                 u"Couldn't open Ay without Tor: No."_s);
        instance.bench.cancelPrompt(u"launch"_s);
        QCOMPARE(Conversation(instance.bench, launch).error(), u"Cancelled."_s);
        QCOMPARE(instance.bench.helperRunCount(u"launch"_s), 3);
    }

    void opensNoApplicationInProxyMode()
    {
        Instance instance;
        instance.bench.controller().strictMode.set(false);
        QVERIFY(instance.bench.connect());
        const QJsonObject launch{{u"command"_s, u"launch"_s},
                                 {u"app"_s, u"/usr/share/applications/a.desktop"_s}};
        QCOMPARE(Conversation(instance.bench, launch).error(),
                 u"Connect in strict mode to open apps without Tor"_s);
        QCOMPARE(instance.bench.helperRunCount(u"launch"_s), 0);
    }
};

VELDMARK_TEST(InstanceCommandsTest)
#include "InstanceCommandsTest.moc"
