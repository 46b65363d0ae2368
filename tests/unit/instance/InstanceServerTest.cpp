#include "instance/InstanceServer.h"

#include "instance/InstanceClient.h"
#include "support/Workbench.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QDir>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace veldmark;
using System = Workbench::System;
using Phase = ConnectionPhase;

namespace {

using Answer = Result<void, InstanceError>;

// One command given by a client, and what came of it.
struct Conversation {
    std::shared_ptr<InstanceClient> client;
    std::vector<QJsonObject> states;
    std::optional<Answer> answer;

    Conversation(const Workbench &bench, const QJsonObject &request) : client(InstanceClient::connectTo(bench.profile))
    {
        if (client)
            talk(client, request, [this](const QJsonObject &state) { states.push_back(state); }, &answer);
    }
    Conversation(const Workbench &bench, const char *command)
        : Conversation(bench, QJsonObject{{u"command"_s, QLatin1String(command)}})
    {
    }
    bool ends() const
    {
        return until([this] { return answer.has_value(); });
    }
    bool succeeds() const { return ends() && answer->has_value(); }
    QString error() const { return ends() && !*answer ? answer->error().description() : QString(); }
    QString lastPhase() const
    {
        return states.empty() ? QString() : states.back().value(u"phase"_s).toString();
    }

private:
    static QCoro::Task<void> talk(std::shared_ptr<InstanceClient> client, QJsonObject request,
                                  std::function<void(const QJsonObject &)> onState, std::optional<Answer> *answer)
    {
        auto running = client->run(request, onState);
        const Answer result = co_await running;
        *answer = result;
    }
};

// A workbench whose program takes commands.
struct Instance {
    Workbench bench;
    std::unique_ptr<InstanceServer> server;

    explicit Instance(System system = System::linux) : bench(system)
    {
        auto started = InstanceServer::start(bench.controller());
        if (started)
            server = std::move(*started);
    }
    ~Instance()
    {
        server.reset();
        settle();
    }
};

// What comes back for these bytes until the connection ends.
QByteArray sendBytes(const Instance &instance, const QByteArray &bytes)
{
    QLocalSocket socket;
    socket.connectToServer(instance.bench.profile.controlSocket);
    if (!socket.waitForConnected(2000))
        return "not connected";
    socket.write(bytes);
    if (!until([&socket] { return socket.state() == QLocalSocket::UnconnectedState; }))
        return "no end";
    return socket.readAll();
}

QJsonObject lastLine(const QByteArray &bytes)
{
    return QJsonDocument::fromJson(bytes.trimmed().split('\n').constLast()).object();
}

} // namespace

class InstanceServerTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void listensWhereOnlyTheUserCanEnter_data() { Workbench::bothSystems(); }

    void listensWhereOnlyTheUserCanEnter()
    {
        QFETCH(System, system);
        Instance instance(system);
        QVERIFY(instance.server);
        struct stat folder {}, socket {};
        const QString path = instance.bench.profile.controlSocket;
        QCOMPARE(::stat(QFile::encodeName(QFileInfo(path).path()).constData(), &folder), 0);
        QCOMPARE(folder.st_mode & 07777, mode_t(0700));
        QCOMPARE(::lstat(QFile::encodeName(path).constData(), &socket), 0);
        QVERIFY(S_ISSOCK(socket.st_mode));
        QCOMPARE(socket.st_mode & 0077, mode_t(0));
        Conversation status(instance.bench, "status");
        QVERIFY(status.succeeds());
    }

    void thereIsOneInstance()
    {
        Instance instance;
        const auto second = InstanceServer::start(instance.bench.controller());
        QVERIFY(!second);
        QVERIFY2(second.error().startsWith(u"Veldmark is already running"_s), qPrintable(second.error()));
        Conversation status(instance.bench, "status"); // the first is not disturbed
        QVERIFY(status.succeeds());
        instance.server.reset();
        QVERIFY(InstanceServer::start(instance.bench.controller()));
    }

    void aSocketThatACrashLeftIsNoHindrance()
    {
        Workbench bench;
        const QString path = bench.profile.controlSocket;
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QVERIFY(::chmod(QFile::encodeName(QFileInfo(path).path()).constData(), 0700) == 0);
        bench.writeFile(path, "left over");
        const auto server = InstanceServer::start(bench.controller());
        QVERIFY(server);
        Conversation status(bench, "status");
        QVERIFY(status.succeeds());
    }

    void withoutAnInstanceThereIsNoClient()
    {
        Workbench bench;
        QVERIFY(!InstanceClient::connectTo(bench.profile));
    }

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
        QVERIFY(second.error().startsWith(u"Already connected, or on the way"_s));
        Conversation early(instance.bench, "disconnect");
        QCOMPARE(early.error(), u"Not now: Waiting for administrator approval…"_s);
        instance.bench.processes.hold = nullptr;
        instance.bench.processes.release();
        QVERIFY(first.succeeds());
        Conversation third(instance.bench, "connect");
        QVERIFY(third.error().startsWith(u"Already connected"_s));
        QCOMPARE(instance.bench.helperRunCount(u"connect"_s), 1);
    }

    void saysWhyThereIsNoConnection()
    {
        Instance instance;
        instance.bench.failHelper(u"connect"_s, u"Tor could not be started."_s);
        Conversation failing(instance.bench, "connect");
        QCOMPARE(failing.error(), u"Tor could not be started."_s);
        instance.bench.cancelPrompt(u"connect"_s);
        Conversation dismissed(instance.bench, "connect");
        QCOMPARE(dismissed.error(), u"Cancelled."_s);
    }

    void saysWhatKeptTorFromConnecting()
    {
        Instance instance;
        instance.bench.setBootstrap("PROGRESS=1 WARNING=\"Connection refused\"");
        Conversation failing(instance.bench, "connect");
        QVERIFY(until([&] { return instance.bench.controller().bootstrapProblem() && instance.bench.clock.sleepers() == 1; }));
        instance.bench.clock.advance(std::chrono::minutes(5));
        QCOMPARE(failing.error(), u"Tor didn't finish connecting within 5 minutes. Your network is still pointed at Tor. "
                                  "Click Restore Network to undo. Tor reports: Connection refused."_s);
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
        instance.bench.removeMarker(); // this time it opened the network before it failed
        Conversation half(instance.bench, "disconnect");
        QCOMPARE(half.error(), u"Could not."_s);
        QVERIFY(instance.bench.controller().phase() == Phase::disconnected);
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
        Conversation setting(instance.bench, QJsonObject{{u"command"_s, u"set"_s}, {u"key"_s, u"exitCountry"_s},
                                                         {u"value"_s, u"de"_s}});
        QVERIFY(setting.succeeds());
        QCOMPARE(instance.bench.controller().exitCountry(), u"de"_s);
    }

    void tellsARefusedSettingFromOneThatWasNotSaved()
    {
        Instance instance;
        Conversation refused(instance.bench, QJsonObject{{u"command"_s, u"set"_s}, {u"key"_s, u"exitCountry"_s},
                                                         {u"value"_s, u"DE"_s}});
        QVERIFY(refused.error().contains(u"no exit country"_s));
        QVERIFY(refused.answer->error().isUsage());
        QVERIFY(QDir().mkpath(instance.bench.profile.settingsFile)); // a folder where the file should be
        Conversation unsaved(instance.bench, QJsonObject{{u"command"_s, u"set"_s}, {u"key"_s, u"exitCountry"_s},
                                                         {u"value"_s, u"de"_s}});
        QVERIFY(!unsaved.error().isEmpty());
        QVERIFY(!unsaved.answer->error().isUsage());
        QCOMPARE(instance.bench.controller().exitCountry(), u"de"_s);
    }

    void opensAnApplicationWithoutTor()
    {
        Instance instance;
        const QJsonObject launch{{u"command"_s, u"launch"_s}, {u"app"_s, u"/usr/share/applications/a.desktop"_s}};
        QCOMPARE(Conversation(instance.bench, launch).error(), u"Not connected."_s);
        QVERIFY(instance.bench.connect());
        QVERIFY(Conversation(instance.bench, launch).succeeds());
        QCOMPARE(instance.bench.lastHelperRun(u"launch"_s).last(), u"/usr/share/applications/a.desktop"_s);
        for (const QJsonValue &app : {QJsonValue(u"a.desktop"_s), QJsonValue(), QJsonValue(7)}) {
            const QJsonObject relative{{u"command"_s, u"launch"_s}, {u"app"_s, app}};
            QCOMPARE(Conversation(instance.bench, relative).error(), u"\"launch\" needs an \"app\", an absolute path."_s);
        }
        instance.bench.applications.names = {{u"/usr/share/applications/a.desktop"_s, u"Ay"_s}};
        instance.bench.failHelper(u"launch"_s, u"No."_s);
        QCOMPARE(Conversation(instance.bench, launch).error(), u"Couldn't open Ay without Tor: No."_s);
        instance.bench.cancelPrompt(u"launch"_s);
        QCOMPARE(Conversation(instance.bench, launch).error(), u"Cancelled."_s);
        QCOMPARE(instance.bench.helperRunCount(u"launch"_s), 3);
    }

    void opensNoApplicationInProxyMode()
    {
        Instance instance;
        instance.bench.controller().strictMode.set(false);
        QVERIFY(instance.bench.connect());
        const QJsonObject launch{{u"command"_s, u"launch"_s}, {u"app"_s, u"/usr/share/applications/a.desktop"_s}};
        QCOMPARE(Conversation(instance.bench, launch).error(), u"Connect in strict mode to open apps without Tor"_s);
        QCOMPARE(instance.bench.helperRunCount(u"launch"_s), 0);
    }

    void badRequests_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("error");
        const QString noObject = u"A command is a JSON object on one line."_s;
        const QString notSet = u"\"set\" needs a \"key\" and a \"value\", both strings."_s;
        QTest::newRow("no JSON") << QByteArray("connect\n") << noObject;
        QTest::newRow("array") << QByteArray("[\"connect\"]\n") << noObject;
        QTest::newRow("empty line") << QByteArray("\n") << noObject;
        QTest::newRow("no text") << QByteArray("\xff\x00\xfe\n", 4) << noObject;
        QTest::newRow("HTTP") << QByteArray("POST / HTTP/1.1\r\nHost: x\r\n\r\n{\"command\":\"connect\"}\n") << noObject;
        QTest::newRow("no command") << QByteArray("{}\n") << u"Unknown command \"\"."_s;
        QTest::newRow("no text as command") << QByteArray("{\"command\":[\"connect\"]}\n") << u"Unknown command \"\"."_s;
        QTest::newRow("other command") << QByteArray("{\"command\":\"fly\"}\n") << u"Unknown command \"fly\"."_s;
        QTest::newRow("capitals") << QByteArray("{\"command\":\"Connect\"}\n") << u"Unknown command \"Connect\"."_s;
        QTest::newRow("lines") << QByteArray("{\"command\":\"a\\nb\\r\\u0000c\"}\n") << QString();
        QTest::newRow("long") << "{\"command\":\"" + QByteArray(10000, 'x') + "\"}\n"
                              << u"Unknown command \"%1\"."_s.arg(QString(40, u'x'));
        QTest::newRow("set nothing") << QByteArray("{\"command\":\"set\"}\n") << notSet;
        QTest::newRow("set without value") << QByteArray("{\"command\":\"set\",\"key\":\"customTorPath\"}\n") << notSet;
        QTest::newRow("set a number") << QByteArray("{\"command\":\"set\",\"key\":\"customTorPath\",\"value\":5}\n") << notSet;
        QTest::newRow("set null") << QByteArray("{\"command\":\"set\",\"key\":\"customTorPath\",\"value\":null}\n") << notSet;
        QTest::newRow("set the phase") << QByteArray("{\"command\":\"set\",\"key\":\"phase\",\"value\":\"connected\"}\n") << QString();
    }

    void badRequests()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, error);
        Instance instance;
        instance.bench.controller().customTorPath.set(u"/opt/tor"_s);
        const QByteArray received = sendBytes(instance, bytes);
        const QJsonObject answer = lastLine(received);
        QCOMPARE(answer.value(u"ok"_s), QJsonValue(false));
        const QString text = answer.value(u"error"_s).toString();
        QVERIFY(!text.isEmpty() && !text.contains(u'\n') && !text.contains(u'\r'));
        if (!error.isEmpty())
            QCOMPARE(text, error);
        QVERIFY(!received.contains("\"state\"")); // a bad request learns nothing
        QCOMPARE(instance.bench.controller().customTorPath(), u"/opt/tor"_s);
        QVERIFY(instance.bench.processes.calls.empty());
        Conversation status(instance.bench, "status");
        QVERIFY(status.succeeds());
    }

    void anEndlessLineIsCutOff()
    {
        Instance instance;
        QLocalSocket socket;
        socket.connectToServer(instance.bench.profile.controlSocket);
        QVERIFY(socket.waitForConnected(2000));
        const QByteArray chunk(256 * 1024, 'x');
        qint64 written = 0;
        QVERIFY(until([&] {
            while (socket.state() == QLocalSocket::ConnectedState && socket.bytesToWrite() < chunk.size())
                written += socket.write(chunk);
            return socket.state() == QLocalSocket::UnconnectedState;
        }));
        QVERIFY(written > 4 * 1024 * 1024);
        Conversation status(instance.bench, "status");
        QVERIFY(status.succeeds());
    }

    void aConnectionCarriesOneCommand()
    {
        Instance instance;
        QByteArray flood = "{\"command\":\"status\"}\n";
        for (int i = 0; i < 1000; ++i)
            flood += "{\"command\":\"connect\"}\n";
        const QByteArray received = sendBytes(instance, flood);
        QCOMPARE(received.count("\"ok\""), 1);
        settle();
        QVERIFY(instance.bench.processes.calls.empty());
    }

    void aClientThatSaysNothingKeepsNobodyFromBeingHeard()
    {
        Instance instance;
        std::vector<std::unique_ptr<QLocalSocket>> silent;
        for (int i = 0; i < 20; ++i) {
            silent.push_back(std::make_unique<QLocalSocket>());
            silent.back()->connectToServer(instance.bench.profile.controlSocket);
            QVERIFY(silent.back()->waitForConnected(2000));
            settle();
        }
        Conversation status(instance.bench, "status");
        QVERIFY(status.succeeds());
    }

    void watchingHearsOfEveryChangeInOneState()
    {
        Instance instance;
        Conversation watching(instance.bench, "watch");
        QVERIFY(until([&] { return watching.states.size() == 1; }));
        instance.bench.controller().exitCountry.set(u"de"_s);
        instance.bench.controller().strictMode.set(false); // in the same turn
        QVERIFY(until([&] { return watching.states.size() >= 2; }));
        QCOMPARE(watching.states[1].value(u"exitCountry"_s), QJsonValue(u"de"_s));
        QCOMPARE(watching.states[1].value(u"strictMode"_s), QJsonValue(false));
        settle();
        QCOMPARE(watching.states.size(), std::size_t(2));
        QVERIFY(instance.bench.connect());
        QVERIFY(until([&] { return watching.lastPhase() == u"connected"_s; }));
        QVERIFY(!watching.answer);
    }

    void aWatcherThatReadsSlowlyGetsTheLatestState()
    {
        Instance instance;
        QLocalSocket socket;
        socket.setReadBufferSize(1024); // no more is taken from the system until we read
        socket.connectToServer(instance.bench.profile.controlSocket);
        QVERIFY(socket.waitForConnected(2000));
        socket.write("{\"command\":\"watch\"}\n");
        QVERIFY(until([&] { return socket.bytesAvailable() > 0; }));
        constexpr int changes = 60;
        for (int i = 1; i <= changes; ++i) {
            instance.bench.controller().customBridges.set(QString(100'000, u'x') + QString::number(i));
            settle();
        }
        QByteArray received;
        QByteArray wanted = "x" + QByteArray::number(changes) + "\"";
        QVERIFY(until([&] {
            received += socket.readAll();
            return received.contains(wanted) && received.endsWith('\n');
        }));
        const auto states = received.count('\n');
        QVERIFY2(states < changes / 2, qPrintable(QString::number(states)));
        // And from then on it hears everything again.
        instance.bench.controller().customBridges.set(QString());
        QVERIFY(until([&] {
            received += socket.readAll();
            return received.contains("\"customBridges\":\"\"");
        }));
    }

    void aWatcherThatGoesAwayIsForgotten()
    {
        Instance instance;
        {
            QLocalSocket socket;
            socket.connectToServer(instance.bench.profile.controlSocket);
            QVERIFY(socket.waitForConnected(2000));
            socket.write("{\"command\":\"watch\"}\n");
            QVERIFY(until([&] { return socket.bytesAvailable() > 0; }));
        }
        settle();
        instance.bench.controller().exitCountry.set(u"de"_s);
        settle();
        QVERIFY(instance.bench.connect());
        Conversation status(instance.bench, "status");
        QVERIFY(status.succeeds());
    }

    void aCommandGoesOnWithoutItsClient()
    {
        Instance instance;
        instance.bench.hold(u"connect"_s);
        {
            QLocalSocket socket;
            socket.connectToServer(instance.bench.profile.controlSocket);
            QVERIFY(socket.waitForConnected(2000));
            socket.write("{\"command\":\"connect\"}\n");
            QVERIFY(until([&] { return instance.bench.processes.held() == 1; }));
        }
        settle();
        instance.bench.processes.hold = nullptr;
        instance.bench.processes.release();
        QVERIFY(until([&] { return instance.bench.controller().phase() == Phase::connected; }));
        QVERIFY(until([&] { return !instance.bench.controller().isChecking(); }));
    }

    void clientsAreCutOffWhenTheInstanceEnds()
    {
        Instance instance;
        Conversation watching(instance.bench, "watch");
        instance.bench.hold(u"connect"_s);
        Conversation connecting(instance.bench, "connect");
        QVERIFY(until([&] { return instance.bench.processes.held() == 1 && !watching.states.empty(); }));
        instance.server.reset();
        const QString gone = u"Veldmark stopped before it had answered."_s;
        QCOMPARE(watching.error(), gone);
        QCOMPARE(connecting.error(), gone);
        instance.bench.end();
        instance.bench.processes.hold = nullptr;
        instance.bench.processes.release();
        settle();
    }
};

QTEST_GUILESS_MAIN(InstanceServerTest)
#include "InstanceServerTest.moc"
