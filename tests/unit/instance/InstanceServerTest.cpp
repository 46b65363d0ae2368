#include "InstanceBench.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QJsonDocument>
#include <QLocalSocket>
#include <QTest>

#include <cerrno>
#include <cstring>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace veldmark;
using System = Workbench::System;

namespace {

// The answer to these bytes, up to the connection's end.
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
        struct stat folder {
        }, socket{};
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
        QVERIFY2(second.error().english().startsWith(u"Veldmark is already running"_s),
                 qPrintable(second.error().english()));
        Conversation status(instance.bench, "status"); // the first is not disturbed
        QVERIFY(status.succeeds());
        instance.server.reset();
        QVERIFY(InstanceServer::start(instance.bench.controller()));
    }

    // The folder's mode was changed.
    void aProcessOfAnotherUserIsNotHeard_data()
    {
        QTest::addColumn<uint>("user");
        QTest::addColumn<bool>("heard");
        QTest::newRow("own user") << geteuid() << true;
        QTest::newRow("another user") << 65534U << false;
    }

    void aProcessOfAnotherUserIsNotHeard()
    {
        QFETCH(uint, user);
        QFETCH(bool, heard);
        if (geteuid() != 0)
            QSKIP("Only root can become another user: run this test with sudo.");
        Instance instance;
        const QByteArray path = QFile::encodeName(instance.bench.profile.controlSocket);
        QByteArray folder = path;
        for (int level = 0; level < 5; ++level) { // down from the temporary folder
            folder = folder.left(folder.lastIndexOf('/'));
            QVERIFY(::chmod(folder.constData(), 0755) == 0);
        }
        QVERIFY(::chmod(path.constData(), 0777) == 0);
        const pid_t child = ::fork();
        if (child == 0) { // plain system calls; its status is the number of received bytes
            sockaddr_un address{};
            address.sun_family = AF_UNIX;
            std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
            const int end = ::socket(AF_UNIX, SOCK_STREAM, 0);
            const char request[] = "{\"command\":\"status\"}\n";
            char answer[64];
            ::signal(SIGPIPE, SIG_IGN);
            if (::setreuid(user, user) != 0
                || ::connect(end, reinterpret_cast<const sockaddr *>(&address), sizeof address)
                    != 0)
                ::_exit(100);
            // A refused client may find the other end closed before it sends the request.
            if (::send(end, request, sizeof request - 1, 0) < 0)
                ::_exit(errno == EPIPE ? 0 : 101);
            const ssize_t count = ::read(end, answer, sizeof answer);
            ::_exit(count < 0 ? 0 : static_cast<int>(count));
        }
        int status = -1;
        QVERIFY(until([&] { return ::waitpid(child, &status, WNOHANG) == child; }));
        QVERIFY(WIFEXITED(status));
        QCOMPARE(WEXITSTATUS(status), heard ? 64 : 0);
    }

    void isFoundFromAProcessWithoutTheRuntimeFolder()
    {
        Instance instance;
        Workbench &bench = instance.bench;
        Places places = bench.profile.places;
        places.runtimeDirectory.clear(); // as under su, in cron, over SSH
        const PlatformProfile elsewhere = PlatformProfile::linux(places);
        QVERIFY(elsewhere.controlSocket != bench.profile.controlSocket);
        QVERIFY(!InstanceClient::connectTo(elsewhere)); // it cannot know of that folder
        instance.server.reset();
        bench.profile = elsewhere;
        bench.restart();
        auto started = InstanceServer::start(bench.controller()); // the reverse works
        QVERIFY(started);
        places.runtimeDirectory = bench.folder.path() + u"/run/user/1000"_s;
        QVERIFY(InstanceClient::connectTo(PlatformProfile::linux(places)));
        started->reset();
        settle();
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
        QTest::newRow("HTTP") << QByteArray(
            "POST / HTTP/1.1\r\nHost: x\r\n\r\n{\"command\":\"connect\"}\n")
                              << noObject;
        QTest::newRow("no command") << QByteArray("{}\n") << u"Unknown command \"\"."_s;
        QTest::newRow("no text as command")
            << QByteArray("{\"command\":[\"connect\"]}\n") << u"Unknown command \"\"."_s;
        QTest::newRow("other command")
            << QByteArray("{\"command\":\"fly\"}\n") << u"Unknown command \"fly\"."_s;
        QTest::newRow("capitals") << QByteArray("{\"command\":\"Connect\"}\n")
                                  << u"Unknown command \"Connect\"."_s;
        QTest::newRow("lines") << QByteArray("{\"command\":\"a\\nb\\r\\u0000c\"}\n") << QString();
        QTest::newRow("long") << "{\"command\":\"" + QByteArray(10000, 'x') + "\"}\n"
                              << u"Unknown command \"%1\"."_s.arg(QString(40, u'x'));
        QTest::newRow("set nothing") << QByteArray("{\"command\":\"set\"}\n") << notSet;
        QTest::newRow("set without value")
            << QByteArray("{\"command\":\"set\",\"key\":\"customTorPath\"}\n") << notSet;
        QTest::newRow("set a number")
            << QByteArray("{\"command\":\"set\",\"key\":\"customTorPath\",\"value\":5}\n")
            << notSet;
        QTest::newRow("set null") << QByteArray(
            "{\"command\":\"set\",\"key\":\"customTorPath\",\"value\":null}\n")
                                  << notSet;
        QTest::newRow("set the phase")
            << QByteArray("{\"command\":\"set\",\"key\":\"phase\",\"value\":\"connected\"}\n")
            << QString();
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
            while (socket.state() == QLocalSocket::ConnectedState
                   && socket.bytesToWrite() < chunk.size())
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

    void aClientAboveTheLimitEndsTheOldest()
    {
        Instance instance;
        std::vector<std::unique_ptr<QLocalSocket>> silent;
        for (int i = 0; i < 65; ++i) {
            silent.push_back(std::make_unique<QLocalSocket>());
            silent.back()->connectToServer(instance.bench.profile.controlSocket);
            QVERIFY(silent.back()->waitForConnected(2000));
            settle();
            if (i < 64)
                QVERIFY(silent.front()->state() == QLocalSocket::ConnectedState);
        }
        QTRY_VERIFY(silent.front()->state() != QLocalSocket::ConnectedState);
        QVERIFY(silent.at(1)->state() == QLocalSocket::ConnectedState);
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
        socket.setReadBufferSize(1024); // the server reads no more until the client reads
        socket.connectToServer(instance.bench.profile.controlSocket);
        QVERIFY(socket.waitForConnected(2000));
        socket.write("{\"command\":\"watch\"}\n");
        QVERIFY(until([&] { return socket.bytesAvailable() > 0; }));
        constexpr int changes = 60;
        for (int i = 1; i <= changes; ++i) {
            instance.bench.controller().customBridges.set(QString(100'000, u'x')
                                                          + QString::number(i));
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
        // Afterwards it receives everything again.
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
        QVERIFY(until(
            [&] { return instance.bench.controller().phase() == ConnectionPhase::connected; }));
        QVERIFY(until([&] { return !instance.bench.controller().isChecking(); }));
    }

    void clientsAreCutOffWhenTheInstanceEnds()
    {
        Instance instance;
        Conversation watching(instance.bench, "watch");
        instance.bench.hold(u"connect"_s);
        Conversation connecting(instance.bench, "connect");
        QVERIFY(until(
            [&] { return instance.bench.processes.held() == 1 && !watching.states.empty(); }));
        instance.server.reset();
        const QString gone = u"Veldmark stopped before it had answered."_s;
        QCOMPARE(watching.error(), gone);
        QCOMPARE(connecting.error(), gone);
        instance.bench.end();
        instance.bench.processes.hold = nullptr;
        instance.bench.processes.release();
        settle();
    }

    void aCircuitMayBeWaitedForWhenTheInstanceEnds()
    {
        Instance instance;
        QVERIFY(instance.bench.connect());
        const auto questions = [&] {
            return instance.bench.tor.commands().count(u"GETINFO circuit-status"_s);
        };
        instance.bench.tor.ignore("GETINFO circuit-status");
        const auto before = questions();
        Conversation closing(instance.bench, "close-circuit");
        QVERIFY(until([&] { return questions() > before; }));
        instance.server.reset();
        instance.bench.end();
        instance.bench.socketClock.advance(std::chrono::minutes(1)); // the request is abandoned
        settle();
        QCOMPARE(closing.error(), u"Veldmark stopped before it had answered."_s);
    }
};

VELDMARK_TEST(InstanceServerTest)
#include "InstanceServerTest.moc"
