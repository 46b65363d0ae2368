#include "control/ControlPort.h"

#include "base/TorPassword.h"
#include "support/ManualClock.h"
#include "support/TestProgram.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#ifdef __linux__
#include <net/if.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>
#endif

using namespace std::chrono_literals;
using namespace veldmark;

namespace {

// Puts this process and its children into a network namespace that has only a loopback interface.
// Returns the reason why that fails, or an empty text. Call it before any thread exists.
QByteArray enterPrivateNetwork()
{
#ifdef __linux__
    if (::unshare(CLONE_NEWNET) != 0 && ::unshare(CLONE_NEWUSER | CLONE_NEWNET) != 0)
        return "a private network namespace is not permitted here";
    const int any = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    ifreq request{};
    qstrncpy(request.ifr_name, "lo", IFNAMSIZ);
    bool up = any >= 0 && ::ioctl(any, SIOCGIFFLAGS, &request) == 0;
    request.ifr_flags = static_cast<short>(request.ifr_flags | IFF_UP);
    up = up && ::ioctl(any, SIOCSIFFLAGS, &request) == 0;
    ::close(any);
    return up ? "" : "the loopback interface of the private network cannot be brought up";
#else
    return "needs Linux network namespaces";
#endif
}

QByteArray noPrivateNetwork;

QString torProgram()
{
    for (const char *path : {"/usr/bin/tor", "/usr/sbin/tor", "/usr/local/bin/tor"}) {
        if (QFile::exists(QString::fromUtf8(path)))
            return QString::fromUtf8(path);
    }
    return {};
}

} // namespace

// The client with the real tor. Two things keep Tor from the network: DisableNetwork, and a network
// namespace without a route.
class RealTorTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        if (!noPrivateNetwork.isEmpty())
            QSKIP(noPrivateNetwork.constData());
        if (torProgram().isEmpty())
            QSKIP("tor is not installed");
        m_tor.setProcessChannelMode(QProcess::MergedChannels);
        m_tor.start(
            torProgram(),
            QStringList{
                QStringLiteral("-f"), file("torrc", {}), QStringLiteral("--defaults-torrc"),
                file("defaults", {}), QStringLiteral("--DisableNetwork"), QStringLiteral("1"),
                QStringLiteral("--SocksPort"), QStringLiteral("0"), QStringLiteral("--ControlPort"),
                QStringLiteral("9051"), QStringLiteral("--HashedControlPassword"),
                TorPassword::hashOf(m_password.toUtf8(), "saltsalt"),
                QStringLiteral("--DataDirectory"), m_folder.filePath(QStringLiteral("data")),
                QStringLiteral("--__OwningControllerProcess"),
                QString::number(QCoreApplication::applicationPid()), QStringLiteral("--Log"),
                QStringLiteral("notice stdout")});
        QByteArray log;
        QVERIFY(waitForText("Opened Control listener", &log));
    }

    void cleanupTestCase()
    {
        if (m_tor.state() == QProcess::NotRunning)
            return;
        m_tor.terminate();
        QVERIFY(m_tor.waitForFinished());
    }

    void theRightPasswordOpensIt()
    {
        const auto values = QCoro::waitFor(m_port.getInfo(
            {QStringLiteral("version"), QStringLiteral("traffic/read"),
             QStringLiteral("traffic/written"), QStringLiteral("status/bootstrap-phase")},
            m_password));
        QVERIFY2(values, values ? "" : qPrintable(values.error().description().english()));
        QCOMPARE(values->size(), 4);
        QVERIFY(values->value(QStringLiteral("version")).startsWith(u'0'));
        QCOMPARE(values->value(QStringLiteral("traffic/read")), QStringLiteral("0"));
        QCOMPARE(values->value(QStringLiteral("traffic/written")), QStringLiteral("0"));
        QVERIFY(values->value(QStringLiteral("status/bootstrap-phase"))
                    .startsWith(QStringLiteral(
                        "NOTICE BOOTSTRAP PROGRESS=0 TAG=starting SUMMARY=\"Starting\"")));
    }

    void aWrongPasswordIsRefused()
    {
        const auto values = QCoro::waitFor(
            m_port.getInfo({QStringLiteral("version")}, QStringLiteral("wrong")));
        QVERIFY(!values);
        QVERIFY2(values.error().line().startsWith(QStringLiteral("515 Authentication failed")),
                 qPrintable(values.error().description().english()));
    }

    void anUnknownKeyIsRefused()
    {
        const auto values = QCoro::waitFor(
            m_port.getInfo({QStringLiteral("no/such/key")}, m_password));
        QVERIFY(!values);
        QVERIFY2(
            values.error().description().english().startsWith(QStringLiteral("Tor replied: 552 ")),
            qPrintable(values.error().description().english()));
    }

    void aBatchReadsBlocksAndSurvivesARefusal()
    {
        const auto replies = QCoro::waitFor(m_port.batch(
            {QStringLiteral("GETINFO circuit-status"), QStringLiteral("GETINFO no/such/key"),
             QStringLiteral("GETINFO config/names"), QStringLiteral("CLOSECIRCUIT 999")},
            m_password));
        QVERIFY(replies);
        QCOMPARE(replies->size(), 4u);
        QVERIFY(replies->at(0));
        QCOMPARE(ControlPort::dataBlock(QStringLiteral("circuit-status"), *replies->at(0)),
                 QStringList());
        QVERIFY(!replies->at(1));
        QVERIFY(replies->at(2));
        const QStringList names = ControlPort::dataBlock(QStringLiteral("config/names"),
                                                         *replies->at(2));
        QVERIFY(names.size() > 100);
        QVERIFY(names.contains(QStringLiteral("DisableNetwork Boolean")));
        QVERIFY(!replies->at(3));
    }

    void asManyAnswersAsThereAreKeysComeInOneReply()
    {
        const QString key = QStringLiteral("config-text"); // a block with a line per setting
        const auto replies = QCoro::waitFor(
            m_port.batch(QStringList(50, QStringLiteral("GETINFO ") + key), m_password));
        QVERIFY(replies);
        QCOMPARE(replies->size(), 50u);
        for (const auto &reply : *replies)
            QVERIFY(
                ControlPort::dataBlock(key, *reply).contains(QStringLiteral("DisableNetwork 1")));
    }

    void aCaptureSubscribesAndEnds()
    {
        auto task = m_port.captureResolves(m_password, 5s, &RealTorTest::doNothing);
        // The call's time limit runs already; the capture follows Tor's answer.
        const std::size_t before = m_clock.sleepers();
        QTRY_COMPARE(m_clock.sleepers(), before + 1);
        m_clock.advance(5s);
        QTRY_VERIFY(task.isReady());
        QCOMPARE(QCoro::waitFor(std::move(task)).value(), QStringList());
    }

private:
    static QCoro::Task<void> doNothing(StopToken) { co_return; }

    QString file(const char *name, const QByteArray &content)
    {
        const QString path = m_folder.filePath(QString::fromUtf8(name));
        QFile made(path);
        if (!made.open(QIODevice::WriteOnly) || made.write(content) != content.size())
            qFatal("cannot write");
        return path;
    }

    bool waitForText(const QByteArray &wanted, QByteArray *log)
    {
        while (!log->contains(wanted)) {
            if (!m_tor.waitForReadyRead()) {
                qWarning("%s", log->constData());
                return false;
            }
            *log += m_tor.readAll();
        }
        return true;
    }

    const QString m_password = QStringLiteral("correct-horse");
    QTemporaryDir m_folder;
    QProcess m_tor;
    ManualClock m_clock;
    ControlPort m_port{m_clock, ControlPort::defaultPort,
                       [] { return std::optional(::geteuid()); }};
};

static int runRealTorTest(int argc, char **argv)
{
    noPrivateNetwork = enterPrivateNetwork();
    QCoreApplication app(argc, argv);
    RealTorTest test;
    return QTest::qExec(&test, argc, argv);
}
static const veldmark::test::Registration registeredRealTorTest("RealTorTest", runRealTorTest);

#include "RealTorTest.moc"
