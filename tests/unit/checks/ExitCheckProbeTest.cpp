#include "checks/ExitCheckProbe.h"

#include "CheckService.h"
#include "SocksProxy.h"
#include "support/ManualClock.h"
#include "support/TestProgram.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QScopeGuard>
#include <QTest>

#include <memory>

using namespace veldmark;
using namespace std::chrono_literals;
using Kind = ProbeError::Kind;

namespace {

const QString everyHost = QStringLiteral(
    "DNS:check.torproject.org,DNS:localhost,IP:127.0.0.1,IP:0.0.0.0");

QCoro::Task<void> keep(QCoro::Task<ProbeResult> task,
                       std::shared_ptr<std::optional<ProbeResult>> kept)
{
    const ProbeResult result = co_await task;
    *kept = result;
}

// A probe that runs or has ended.
class Probe {
public:
    explicit Probe(QCoro::Task<ProbeResult> task) { keep(std::move(task), m_result); }
    bool isDone() const { return m_result->has_value(); }
    const ProbeResult &result() const { return **m_result; }
    Kind failure() const { return result().error().kind; }

private:
    std::shared_ptr<std::optional<ProbeResult>> m_result
        = std::make_shared<std::optional<ProbeResult>>();
};

// Counts reads of the time; a probe reads it whenever data arrive.
class ObservedClock final : public Clock {
public:
    explicit ObservedClock(ManualClock &inner) : m_inner(inner) { }
    TimePoint now() const override
    {
        ++readings;
        return m_inner.now();
    }
    QCoro::Task<void> sleep(std::chrono::milliseconds duration) override
    {
        return m_inner.sleep(duration);
    }
    mutable int readings = 0;

private:
    ManualClock &m_inner;
};

quint16 unusedPort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

} // namespace

class ExitCheckProbeTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TestCertificates> m_certificates;
    std::unique_ptr<CheckService> m_service;
    std::unique_ptr<ManualClock> m_clock;

    QUrl url(const QString &host = QStringLiteral("localhost")) const
    {
        return QUrl(QStringLiteral("https://%1:%2/api/ip").arg(host).arg(m_service->port()));
    }

    std::unique_ptr<ExitCheckProbe> probe(quint16 socksPort = 1)
    {
        return std::make_unique<ExitCheckProbe>(*m_clock, url(), socksPort,
                                                m_certificates->client());
    }

private Q_SLOTS:
    void initTestCase() { m_certificates = std::make_unique<TestCertificates>(); }

    void init()
    {
        m_clock = std::make_unique<ManualClock>();
        m_service = std::make_unique<CheckService>(m_certificates->server(everyHost));
        m_service->respond = CheckService::goodAnswer(false, "192.0.2.8");
    }

    void cleanup()
    {
        m_clock.reset();
        m_service.reset();
    }

    void asksTheTorProjectsService()
    {
        QCOMPARE(NetworkProbe::checkURL(),
                 QUrl(QStringLiteral("https://check.torproject.org/api/ip")));
        QCOMPARE(ExitCheckProbe::torSocksPort, quint16(9050));
    }

    void readsAGoodAnswerOnTheDirectPath()
    {
        const auto network = probe();
        const Probe direct(network->direct());
        QTRY_VERIFY(direct.isDone());
        QVERIFY2(direct.result(),
                 qPrintable(direct.result() ? QString() : direct.result().error().detail));
        QCOMPARE(*direct.result(), (IPCheck{false, QStringLiteral("192.0.2.8")}));
        QCOMPARE(m_service->requests.size(), 1);
        QVERIFY(m_service->requests[0].startsWith("GET /api/ip HTTP/1.1\r\n"));
        QTRY_COMPARE(m_service->closed, 1);
    }

    void tellsTheServiceNothingAboutTheUser()
    {
        m_service->respond = [](QSslSocket *socket) {
            socket->write("HTTP/1.1 200 OK\r\nSet-Cookie: id=1\r\nCache-Control: max-age=1000\r\n"
                          "Content-Length: 34\r\n\r\n{\"IsTor\":true,\"IP\":\"203.0.113.70\"}");
        };
        const auto network = probe();
        for (int i = 0; i < 2; ++i) {
            const Probe direct(network->direct());
            QTRY_VERIFY(direct.isDone());
            QVERIFY(direct.result());
        }
        QCOMPARE(m_service->requests.size(), 2); // no cache
        QCOMPARE(m_service->connections, 2);     // no connection kept
        const QByteArray second = m_service->requests[1].toLower();
        QVERIFY(!second.contains("\r\ncookie:"));
        QVERIFY(!second.contains("\r\nauthorization:"));
        QVERIFY(second.contains("\r\naccept-language: en\r\n"));
    }

    // This computer can't resolve the name, so an answer proves that the proxy resolved it.
    void torsProbeLeavesTheNameToTheProxy()
    {
        m_service = std::make_unique<CheckService>(
            m_certificates->server(QStringLiteral("DNS:exit-check.invalid")));
        m_service->respond = CheckService::goodAnswer(true, "203.0.113.10");
        SocksProxy proxy(m_service->port());
        ExitCheckProbe network(*m_clock, QUrl(QStringLiteral("https://exit-check.invalid/api/ip")),
                               proxy.port(), m_certificates->client());
        const Probe tor(network.viaTor());
        QTRY_VERIFY(tor.isDone());
        QVERIFY2(tor.result(), qPrintable(tor.result() ? QString() : tor.result().error().detail));
        QCOMPARE(*tor.result(), (IPCheck{true, QStringLiteral("203.0.113.10")}));
        QCOMPARE(proxy.connections, 1);
        QCOMPARE(proxy.addressTypes, QList<int>{3});
        QCOMPARE(proxy.hosts, QList<QByteArray>{"exit-check.invalid"});
        QCOMPARE(proxy.ports, QList<quint16>{443});
        QVERIFY2(!proxy.methods[0].contains('\2'), "offers a user name");
    }

    void torsProbeNeverGoesAroundTheProxy()
    {
        const auto network = probe(unusedPort());
        const Probe tor(network->viaTor());
        QTRY_VERIFY(tor.isDone());
        QCOMPARE(tor.failure(), Kind::transport);
        QVERIFY(!tor.result().error().reachedNetwork);
        QCOMPARE(m_service->connections, 0);

        const Probe direct(network->direct()); // the way is open
        QTRY_VERIFY(direct.isDone());
        QCOMPARE(m_service->connections, 1);
    }

    void aConnectionThatTheProxyRefusesFailsTheProbe()
    {
        SocksProxy proxy(m_service->port());
        proxy.reply = 5; // connection refused
        const auto network = probe(proxy.port());
        const Probe tor(network->viaTor());
        QTRY_VERIFY(tor.isDone());
        QCOMPARE(tor.failure(), Kind::transport);
        QCOMPARE(m_service->connections, 0);
    }

    void theDirectPathIgnoresTheEnvironmentsAndTheProgramsProxies()
    {
        SocksProxy trap(m_service->port());
        const auto restore = qScopeGuard([] {
            QNetworkProxyFactory::setUseSystemConfiguration(false);
            QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
            for (const char *name : {"http_proxy", "https_proxy", "all_proxy", "ALL_PROXY"})
                qunsetenv(name);
        });
        const QByteArray address = "socks5://127.0.0.1:" + QByteArray::number(trap.port());
        for (const char *name : {"http_proxy", "https_proxy", "all_proxy", "ALL_PROXY"})
            qputenv(name, address);

        // Qt never uses a proxy for "localhost" and its addresses; 0.0.0.0 leads there as well.
        const QUrl target = url(QStringLiteral("0.0.0.0"));
        ExitCheckProbe network(*m_clock, target, 1, m_certificates->client());
        for (const bool fromSystem : {true, false}) {
            QNetworkProxyFactory::setUseSystemConfiguration(fromSystem);
            if (!fromSystem)
                QNetworkProxy::setApplicationProxy(QNetworkProxy(
                    QNetworkProxy::Socks5Proxy, QStringLiteral("127.0.0.1"), trap.port()));

            // The trap works: an ordinary request falls into it.
            const int before = trap.connections;
            QNetworkAccessManager ordinary;
            QNetworkRequest request(target);
            request.setSslConfiguration(m_certificates->client());
            const std::unique_ptr<QNetworkReply> reply(ordinary.get(request));
            QTRY_VERIFY(reply->isFinished());
            QCOMPARE(reply->error(), QNetworkReply::NoError);
            QCOMPARE(trap.connections, before + 1);

            const Probe direct(network.direct());
            QTRY_VERIFY(direct.isDone());
            QVERIFY(direct.result());
            QCOMPARE(trap.connections, before + 1);
        }
    }

    void refusesBadAnswers_data()
    {
        QTest::addColumn<QByteArray>("response");
        const auto row = [](const char *name, const QByteArray &response) {
            QTest::newRow(name) << response;
        };
        const QByteArray good = R"({"IsTor":true,"IP":"203.0.113.7"})";
        const QByteArray length = "Content-Length: " + QByteArray::number(good.size()) + "\r\n";
        row("503 with valid JSON", "HTTP/1.1 503 Unavailable\r\n" + length + "\r\n" + good);
        row("201 with valid JSON", "HTTP/1.1 201 Created\r\n" + length + "\r\n" + good);
        row("204", "HTTP/1.1 204 No Content\r\n\r\n");
        row("redirect", "HTTP/1.1 302 Found\r\nLocation: /other\r\n" + length + "\r\n" + good);
        row("asks for a password",
            "HTTP/1.1 401 No\r\nWWW-Authenticate: Basic realm=\"x\"\r\n" + length + "\r\n" + good);
        row("garbage in place of JSON", "HTTP/1.1 200 OK\r\nContent-Length: 7\r\n\r\ngarbage");
        row("wrong case of the key",
            "HTTP/1.1 200 OK\r\nContent-Length: 33\r\n\r\n{\"isTor\":true,\"IP\":\"203.0.113.7\"}");
        row("half a body", "HTTP/1.1 200 OK\r\n" + length + "\r\n" + good.left(20));
        row("a whole object that was announced longer",
            "HTTP/1.1 200 OK\r\nContent-Length: 500\r\n\r\n" + good);
        row("empty body", "HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n");
        row("not HTTP", "SSH-2.0-OpenSSH_9.2\r\n\r\n");
        row("nothing, then closed", "");
        row("broken chunks", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nzzz\r\n{}\r\n");
        row("too long",
            "HTTP/1.1 200 OK\r\nContent-Length: 70000\r\n\r\n" + good.leftJustified(70000));
    }
    void refusesBadAnswers()
    {
        QFETCH(QByteArray, response);
        m_service->respond = [response](QSslSocket *socket) {
            socket->write(response);
            socket->disconnectFromHost();
        };
        const auto network = probe();
        const Probe direct(network->direct());
        QTRY_VERIFY(direct.isDone());
        QVERIFY(!direct.result());
        QVERIFY(direct.failure() == Kind::badResponse || direct.failure() == Kind::transport);
        QVERIFY(direct.result().error().reachedNetwork);
        for (const QByteArray &request : m_service->requests)
            QVERIFY(request.startsWith("GET /api/ip "));
    }

    void anEndlessBodyIsCutOff()
    {
        m_service->respond = [](QSslSocket *socket) {
            socket->write("HTTP/1.1 200 OK\r\n\r\n");
            const auto more = [socket] {
                if (socket->bytesToWrite() + socket->encryptedBytesToWrite() < 65536)
                    socket->write(QByteArray(65536, ' '));
            };
            connect(socket, &QSslSocket::encryptedBytesWritten, socket, more);
            more();
        };
        const auto network = probe();
        const Probe direct(network->direct());
        QTRY_VERIFY(direct.isDone());
        QCOMPARE(direct.failure(), Kind::badResponse);
        QTRY_COMPARE(m_service->closed, 1);
    }

    void checksTheCertificate_data()
    {
        QTest::addColumn<QString>("fault");
        QTest::newRow("no fault") << QString();
        QTest::newRow("expired") << QStringLiteral("expired");
        QTest::newRow("for another host") << QStringLiteral("host");
        QTest::newRow("signed by itself") << QStringLiteral("self");
        QTest::newRow("signed by an unknown authority") << QStringLiteral("authority");
    }
    void checksTheCertificate()
    {
        QFETCH(QString, fault);
        TestCertificates strangers;
        const QSslConfiguration tls = fault == u"expired" ? m_certificates->server(everyHost, -1)
            : fault == u"host" ? m_certificates->server(QStringLiteral("DNS:elsewhere.example"))
            : fault == u"self" ? m_certificates->selfSigned(everyHost)
            : fault == u"authority" ? strangers.server(everyHost)
                                    : m_certificates->server(everyHost);
        m_service = std::make_unique<CheckService>(tls);
        m_service->respond = CheckService::goodAnswer(true, "203.0.113.7");
        SocksProxy proxy(m_service->port());
        const auto network = probe(proxy.port());
        const Probe direct(network->direct());
        const Probe tor(network->viaTor());
        QTRY_VERIFY(direct.isDone() && tor.isDone());
        for (const Probe *each : {&direct, &tor}) {
            QCOMPARE(each->result().has_value(), fault.isEmpty());
            if (!fault.isEmpty()) {
                QCOMPARE(each->failure(), Kind::certificate);
                QVERIFY(each->result().error().reachedNetwork);
            }
        }
        QCOMPARE(m_service->requests.size(), fault.isEmpty() ? 2 : 0);
    }

    void aSilentServiceEndsTheDirectProbeAfterEightSeconds()
    {
        m_service->respond = nullptr;
        const auto network = probe();
        const Probe direct(network->direct());
        QTRY_COMPARE(m_service->requests.size(), 1);
        m_clock->advance(7999ms);
        QVERIFY(!direct.isDone());
        m_clock->advance(1ms);
        QTRY_VERIFY(direct.isDone());
        QCOMPARE(direct.failure(), Kind::timedOut);
        QTRY_COMPARE(m_service->closed, 1);
    }

    void aSilentProxyEndsTorsProbeAfterThirtySeconds()
    {
        SocksProxy proxy(m_service->port());
        proxy.isSilent = true;
        const auto network = probe(proxy.port());
        const Probe tor(network->viaTor());
        QTRY_COMPARE(proxy.connections, 1);
        m_clock->advance(29999ms);
        QVERIFY(!tor.isDone());
        m_clock->advance(1ms);
        QTRY_VERIFY(tor.isDone());
        QCOMPARE(tor.failure(), Kind::timedOut);
        QVERIFY(!tor.result().error().reachedNetwork);
    }

    void aDribblingServiceIsStoppedByTheTotalLimit()
    {
        QSslSocket *connection = nullptr;
        m_service->respond = [&connection](QSslSocket *socket) {
            socket->write("HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n");
            connection = socket;
        };
        SocksProxy proxy(m_service->port());
        ObservedClock clock(*m_clock);
        ExitCheckProbe network(clock, url(), proxy.port(), m_certificates->client());
        const Probe tor(network.viaTor());
        QTRY_VERIFY(connection);
        // A byte after 20 seconds keeps the idle limit away.
        m_clock->advance(20s);
        const int atByte = clock.readings;
        connection->write(" ");
        QTRY_VERIFY(clock.readings > atByte);
        m_clock->advance(20s);
        QVERIFY(!tor.isDone());
        m_clock->advance(4999ms);
        QVERIFY(!tor.isDone());
        m_clock->advance(1ms);
        QTRY_VERIFY(tor.isDone());
        QCOMPARE(tor.failure(), Kind::timedOut);
    }

    void aProbeUnderWayEndsWithItsObject()
    {
        m_service->respond = nullptr;
        auto network = probe();
        const Probe direct(network->direct());
        QTRY_COMPARE(m_service->requests.size(), 1);
        network.reset();
        QTRY_VERIFY(direct.isDone());
        QCOMPARE(direct.failure(), Kind::cancelled);
    }

    void bothProbesRunSideBySide()
    {
        SocksProxy proxy(m_service->port());
        const auto network = probe(proxy.port());
        QList<QSslSocket *> waiting;
        m_service->respond = [&waiting](QSslSocket *socket) { waiting.append(socket); };
        const Probe tor(network->viaTor());
        const Probe direct(network->direct());
        QTRY_COMPARE(waiting.size(), 2);
        for (QSslSocket *socket : waiting)
            CheckService::goodAnswer(true, "203.0.113.7")(socket);
        QTRY_VERIFY(tor.isDone() && direct.isDone());
        QVERIFY(tor.result() && direct.result());
    }

    // A server that closes the connection at once has answered: the path is open.
    void aConnectionThatIsClosedAtOnceWasOne_data()
    {
        QTest::addColumn<bool>("accepts");
        QTest::newRow("accepted and closed") << true;
        QTest::newRow("refused") << false;
    }
    void aConnectionThatIsClosedAtOnceWasOne()
    {
        QFETCH(bool, accepts);
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        connect(&server, &QTcpServer::newConnection, &server, [&server] {
            QTcpSocket *const socket = server.nextPendingConnection();
            // reads all of it, since unread data would cause a reset
            connect(socket, &QTcpSocket::readyRead, socket, [socket] {
                socket->readAll();
                socket->disconnectFromHost();
            });
        });
        const QUrl target(QStringLiteral("https://127.0.0.1:%1/api/ip").arg(server.serverPort()));
        if (!accepts)
            server.close();
        ExitCheckProbe network(*m_clock, target, 1, m_certificates->client());
        const Probe direct(network.direct());
        QTRY_VERIFY(direct.isDone());
        QCOMPARE(direct.failure(), Kind::transport);
        QCOMPARE(direct.result().error().reachedNetwork, accepts);
    }

    void followsNoRedirect()
    {
        m_service->respond = [this](QSslSocket *socket) {
            if (m_service->requests.last().startsWith("GET /other "))
                // following the redirect would look like an answer
                CheckService::goodAnswer(true, "192.0.2.9")(socket);
            else
                socket->write(
                    "HTTP/1.1 302 Found\r\nLocation: /other\r\nContent-Length: 0\r\n\r\n");
        };
        const auto network = probe();
        const Probe direct(network->direct());
        QTRY_VERIFY(direct.isDone());
        QVERIFY(!direct.result());
        QCOMPARE(direct.failure(), Kind::badResponse);
        QCOMPARE(m_service->requests.size(), 1);
    }
};

VELDMARK_TEST(ExitCheckProbeTest)
#include "ExitCheckProbeTest.moc"
