#include "bridges/TCPProbe.h"

#include "support/ManualClock.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QElapsedTimer>
#include <QNetworkProxy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace std::chrono_literals;
using namespace veldmark;

namespace {

// Has the real time, but its sleeps never end.
class SleeplessClock final : public Clock {
public:
    TimePoint now() const override { return std::chrono::steady_clock::now(); }
    QCoro::Task<void> sleep(std::chrono::milliseconds duration) override
    {
        return m_still.sleep(duration);
    }

private:
    ManualClock m_still;
};

struct Outcome {
    bool isOver = false;
    std::optional<ConnectTime> time;
};

QCoro::Task<void> probe(QString host, quint16 port, std::chrono::milliseconds limit, Clock *clock,
                        Outcome *outcome)
{
    const std::optional<ConnectTime> time = co_await TCPProbe::connectTime(host, port, limit,
                                                                           clock);
    outcome->time = time;
    outcome->isOver = true;
}

qsizetype openDescriptors()
{
    return QDir(QStringLiteral("/dev/fd"))
        .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
        .size();
}

class Descriptor {
public:
    explicit Descriptor(int number) : m_number(number) { }
    ~Descriptor()
    {
        if (m_number >= 0)
            ::close(m_number);
    }
    Descriptor(Descriptor &&other) noexcept : m_number(std::exchange(other.m_number, -1)) { }
    Descriptor &operator=(Descriptor &&) = delete;
    int number() const { return m_number; }

private:
    int m_number;
};

Descriptor streamSocket()
{
    Descriptor made(::socket(AF_INET, SOCK_STREAM, 0));
    ::fcntl(made.number(), F_SETFD, FD_CLOEXEC);
    return made;
}

// A port of the loopback interface that is bound; it refuses until listen() is called.
class Port {
public:
    Port() : m_socket(streamSocket())
    {
        m_address.sin_family = AF_INET;
        m_address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof m_address;
        if (::bind(m_socket.number(), generic(), size) != 0
            || ::getsockname(m_socket.number(), generic(), &size) != 0)
            qFatal("no port");
    }

    quint16 number() const { return ntohs(m_address.sin_port); }

#ifdef __linux__ // other systems do not show the queue
    // Listens, accepts nothing and fills the queue. The kernel then drops further connections, so
    // they neither succeed nor fail.
    void hang()
    {
        if (::listen(m_socket.number(), 0) != 0)
            qFatal("cannot listen");
        for (;;) {
            tcp_info queue = {};
            socklen_t size = sizeof queue;
            if (::getsockopt(m_socket.number(), IPPROTO_TCP, TCP_INFO, &queue, &size) != 0)
                qFatal("cannot look at the queue");
            if (queue.tcpi_unacked > queue.tcpi_sacked) // the queue's length and its limit
                return;
            m_waiting.push_back(streamSocket());
            if (::connect(m_waiting.back().number(), generic(), sizeof m_address) != 0)
                qFatal("cannot fill the queue");
        }
    }
#endif

private:
    sockaddr *generic()
    {
        return reinterpret_cast<sockaddr *>(&m_address);
    }
    Descriptor m_socket;
    sockaddr_in m_address = {};
    std::vector<Descriptor> m_waiting;
};

const QString loopback = QStringLiteral("127.0.0.1");

} // namespace

class TCPProbeTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        // The event loop and the network classes open descriptors of their own on first use.
        ManualClock clock;
        Outcome outcome;
        const auto task = probe(loopback, 1, 1s, &clock, &outcome);
        QTRY_VERIFY(outcome.isOver);
    }

    void timesAConnection_data()
    {
        QTest::addColumn<QString>("host");
        QTest::newRow("IPv4") << loopback;
        QTest::newRow("IPv6") << "::1";
    }

    void timesAConnection()
    {
        QFETCH(QString, host);
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress(host)));
        SleeplessClock clock;
        Outcome outcome;
        QElapsedTimer timer;
        timer.start();
        const auto task = probe(host, server.serverPort(), 3s, &clock, &outcome);
        QTRY_VERIFY(outcome.isOver);
        QVERIFY(outcome.time);
        QVERIFY(*outcome.time > 0ms);
        QVERIFY(*outcome.time <= std::chrono::milliseconds(timer.elapsed() + 1));
        QTRY_VERIFY(server.hasPendingConnections());
        // Nothing was sent, and the connection is closed.
        QTcpSocket *connection = server.nextPendingConnection();
        QTRY_COMPARE(connection->state(), QAbstractSocket::UnconnectedState);
        QCOMPARE(connection->bytesAvailable(), 0);
    }

    void failsAtOnceWhereNobodyCanAnswer_data()
    {
        QTest::addColumn<QString>("host");
        QTest::newRow("refused") << loopback;
        QTest::newRow("no way there") << "255.255.255.255";
        QTest::newRow("a name") << "localhost";
        QTest::newRow("a name of hexadecimal digits") << "dead.beef";
        QTest::newRow("no address") << "1:2";
        QTest::newRow("nothing") << "";
    }

    void failsAtOnceWhereNobodyCanAnswer()
    {
        QFETCH(QString, host);
        const Port refusing;
        ManualClock clock; // does not advance: the limit is never reached
        Outcome outcome;
        const auto task = probe(host, refusing.number(), 3s, &clock, &outcome);
        QTRY_VERIFY(outcome.isOver);
        QVERIFY(!outcome.time);
    }

    void givesUpAtTheLimit()
    {
#ifndef __linux__
        QSKIP("no port can be made to hang");
#else
        Port hanging;
        hanging.hang();
        ManualClock clock;
        Outcome outcome;
        const qsizetype before = openDescriptors();
        const auto task = probe(loopback, hanging.number(), 3s, &clock, &outcome);
        QCOMPARE(openDescriptors(), before + 1);
        clock.advance(2999ms);
        QVERIFY(!outcome.isOver);
        clock.advance(1ms);
        QVERIFY(outcome.isOver);
        QVERIFY(!outcome.time);
        QCOMPARE(openDescriptors(), before);
#endif
    }

    void twoHundredThatHangTakeAsLongAsOne()
    {
#ifndef __linux__
        QSKIP("no port can be made to hang");
#else
        Port hanging;
        hanging.hang();
        SystemClock clock;
        std::vector<Outcome> outcomes(200);
        std::vector<QCoro::Task<void>> tasks;
        const qsizetype before = openDescriptors();
        QElapsedTimer timer;
        timer.start();
        for (Outcome &outcome : outcomes)
            tasks.push_back(probe(loopback, hanging.number(), bridgeProbeLimit, &clock, &outcome));
        QCOMPARE(openDescriptors(), before + 200);
        const auto areOver = [&outcomes] {
            return std::all_of(outcomes.begin(), outcomes.end(),
                               [](const Outcome &o) { return o.isOver && !o.time; });
        };
        QTRY_VERIFY_WITH_TIMEOUT(areOver(), 10'000);
        QVERIFY2(timer.elapsed() >= 3000, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(openDescriptors(), before);
#endif
    }

    void theApplicationsProxyIsNotUsed()
    {
        QTcpServer proxy;
        QVERIFY(proxy.listen(QHostAddress::LocalHost));
        QNetworkProxy::setApplicationProxy(
            QNetworkProxy(QNetworkProxy::Socks5Proxy, loopback, proxy.serverPort()));
        const auto reset = qScopeGuard(
            [] { QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy); });
        // An address that no packet leaves for; Qt never uses a proxy for loopback addresses.
        const QString nowhere = QStringLiteral("255.255.255.255");
        {
            QTcpSocket ordinary;
            ordinary.connectToHost(nowhere, 9);
            QTRY_VERIFY(proxy.hasPendingConnections());
            delete proxy.nextPendingConnection();
        }
        ManualClock clock;
        Outcome outcome;
        const auto task = probe(nowhere, 9, 3s, &clock, &outcome);
        QTRY_VERIFY(outcome.isOver);
        QVERIFY(!proxy.hasPendingConnections());
    }
};

VELDMARK_TEST(TCPProbeTest)
#include "TCPProbeTest.moc"
