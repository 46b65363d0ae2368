#include "checks/ResolverSource.h"

#include "ResolvedService.h"
#include "support/ManualClock.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/socket.h>

#include <memory>

using namespace veldmark;
using namespace std::chrono_literals;

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

QCoro::Task<void> keep(QCoro::Task<SystemResolvers> task,
                       std::shared_ptr<std::optional<SystemResolvers>> kept)
{
    const SystemResolvers result = co_await task;
    *kept = result;
}

// A reading that runs or has ended.
class Reading {
public:
    explicit Reading(ResolverSource &source) { keep(source.resolvers(), m_result); }
    bool isDone() const { return m_result->has_value(); }
    bool isComplete() const { return (*m_result)->isComplete; }
    QString summaries() const
    {
        QStringList list;
        for (const DNSResolver &resolver : (*m_result)->resolvers)
            list.append(resolver.summary());
        return list.join(text("; "));
    }

private:
    std::shared_ptr<std::optional<SystemResolvers>> m_result
        = std::make_shared<std::optional<SystemResolvers>>();
};

QString summaries(const std::vector<DNSResolver> &resolvers)
{
    QStringList list;
    for (const DNSResolver &resolver : resolvers)
        list.append(resolver.summary());
    return list.join(text("; "));
}

QCoro::Task<QString> printed(QString output)
{
    co_return output;
}

const QString ofTheDaemon = text("192.168.77.1; [2001:db8::53]:853 for *.corp.example on lo; "
                                 "[2001:db8::53]:853 for *.int.example on lo");

} // namespace

class ResolverSourceTest : public QObject {
    Q_OBJECT

    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<ManualClock> m_clock;
    std::unique_ptr<QTemporaryDir> m_folder;

    QString write(const QString &name, const QByteArray &content)
    {
        const QString path = m_folder->filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write");
        return path;
    }

private Q_SLOTS:
    void initTestCase() { m_bus = std::make_unique<PrivateBus>(); }

    void init()
    {
        m_bus->start();
        m_clock = std::make_unique<ManualClock>();
        m_folder = std::make_unique<QTemporaryDir>();
    }

    void cleanup() { m_clock.reset(); }

    void tellsWhetherTheDaemonServesTheFile()
    {
        const ResolverFile plain = ResolverFile::parse("nameserver 192.168.1.1\n");
        QVERIFY(!resolvedServes(text("/etc/resolv.conf"), plain));
        QVERIFY(resolvedServes(text("/run/systemd/resolve/stub-resolv.conf"), plain));
        QVERIFY(resolvedServes(text("/run/systemd/resolve/resolv.conf"), plain));
        QVERIFY(!resolvedServes(text("/run/NetworkManager/resolv.conf"), plain));
        QVERIFY(resolvedServes(text("/etc/resolv.conf"),
                               ResolverFile::parse("nameserver 127.0.0.53\n")));
        QVERIFY(resolvedServes(text("/etc/resolv.conf"),
                               ResolverFile::parse("nameserver 1.2.3.4\nnameserver 127.0.0.54\n")));
        QVERIFY(!resolvedServes(text("/etc/resolv.conf"),
                                ResolverFile::parse("nameserver 127.0.0.1\n")));
    }

    void joinsTheFileWithTheDaemonsServers()
    {
        ResolvedState state;
        state.servers = {{0, AF_INET, QByteArray::fromHex("c0a80101"), 0, {}}};
        const ResolverFile stub = ResolverFile::parse("nameserver 127.0.0.53\n");
        QCOMPARE(summaries(joinResolvers(stub, state)), text("192.168.1.1"));
        // The daemon's own address is no resolver by itself, whether it answers or not.
        QCOMPARE(summaries(joinResolvers(stub, std::nullopt)), QString());
        const ResolverFile mixed = ResolverFile::parse(
            "nameserver 127.0.0.53\nnameserver 192.168.1.1\nnameserver 8.8.8.8\n");
        QCOMPARE(summaries(joinResolvers(mixed, state)), text("192.168.1.1; 8.8.8.8"));
        QCOMPARE(summaries(joinResolvers(mixed, std::nullopt)), text("192.168.1.1, 8.8.8.8"));
    }

    void readsTheFileWhereTheDaemonDoesNotServeIt()
    {
        ResolvedService service(m_bus->address());
        LinuxResolverSource source(*m_clock, write(text("resolv.conf"), "nameserver 10.0.0.1\n"));
        const Reading reading(source);
        QTRY_VERIFY(reading.isDone());
        QCOMPARE(reading.summaries(), text("10.0.0.1"));
        QVERIFY(reading.isComplete());
        QCOMPARE(service.calls, 0);
    }

    void aMissingFileIsEmpty()
    {
        LinuxResolverSource source(*m_clock, m_folder->filePath(text("none")));
        const Reading reading(source);
        QTRY_VERIFY(reading.isDone());
        QCOMPARE(reading.summaries(), QString());
    }

    void asksTheDaemonBehindItsStubAddress()
    {
        ResolvedService service(m_bus->address());
        LinuxResolverSource source(*m_clock, write(text("resolv.conf"), "nameserver 127.0.0.53\n"));
        for (int round = 0; round < 3; ++round) {
            const Reading reading(source);
            QTRY_VERIFY(reading.isDone());
            QCOMPARE(reading.summaries(), ofTheDaemon);
            QVERIFY(reading.isComplete());
        }
    }

    void asksTheDaemonBehindALinkIntoItsFolder()
    {
        ResolvedService service(m_bus->address());
        const QString target = write(text("run/systemd/resolve/resolv.conf"),
                                     "nameserver 192.168.77.1\nnameserver 9.9.9.9\n");
        const QString link = m_folder->filePath(text("resolv.conf"));
        QVERIFY(QFile::link(target, link));
        LinuxResolverSource source(*m_clock, link);
        const Reading reading(source);
        QTRY_VERIFY(reading.isDone());
        QCOMPARE(reading.summaries(), ofTheDaemon + text("; 9.9.9.9"));

        // A link to a link, as some distributions have it.
        const QString outer = m_folder->filePath(text("outer.conf"));
        QVERIFY(QFile::link(link, outer));
        LinuxResolverSource throughBoth(*m_clock, outer);
        const Reading chained(throughBoth);
        QTRY_VERIFY(chained.isDone());
        QCOMPARE(chained.summaries(), ofTheDaemon + text("; 9.9.9.9"));

        QVERIFY(QFile::remove(target)); // the dangling link is enough
        const Reading dangling(source);
        QTRY_VERIFY(dangling.isDone());
        QCOMPARE(dangling.summaries(), ofTheDaemon);
    }

    void readsAnOlderDaemonWithoutPorts()
    {
        ResolvedService service(m_bus->address());
        service.withPorts = false;
        LinuxResolverSource source(*m_clock, write(text("resolv.conf"), "nameserver 127.0.0.53\n"));
        const Reading reading(source);
        QTRY_VERIFY(reading.isDone());
        QCOMPARE(reading.summaries(),
                 text("192.168.77.1; 2001:db8::53 for *.corp.example on lo; "
                      "2001:db8::53 for *.int.example on lo"));
    }

    void aLinkWithoutDNSHasNoServers()
    {
        ResolvedService service(m_bus->address());
        LinuxResolverSource source(*m_clock, write(text("resolv.conf"), "nameserver 127.0.0.53\n"));
        for (const auto &[scopes, expected] :
             {std::pair(1U, ofTheDaemon), std::pair(2U, text("192.168.77.1"))}) {
            service.scopes = scopes; // DNS; names of the local network
            const Reading reading(source);
            QTRY_VERIFY(reading.isDone());
            QCOMPARE(reading.summaries(), expected);
        }
    }

    void withoutTheServiceTheFileIsAllThereIs()
    {
        const QString path = write(text("resolv.conf"),
                                   "nameserver 127.0.0.53\nnameserver 10.0.0.1\n");
        LinuxResolverSource source(*m_clock, path);
        const Reading reading(source);
        QTRY_VERIFY(reading.isDone());
        QCOMPARE(reading.summaries(), text("10.0.0.1"));

        m_bus->stop();
        const Reading second(source);
        QTRY_VERIFY(second.isDone());
        QCOMPARE(second.summaries(), text("10.0.0.1"));
        QVERIFY(!second.isComplete());
    }

    void aSilentDaemonIsGivenUp()
    {
        ResolvedService service(m_bus->address());
        service.isSilent = true;
        LinuxResolverSource source(
            *m_clock, write(text("resolv.conf"), "nameserver 127.0.0.53\nnameserver 10.0.0.1\n"));
        const Reading reading(source);
        QTRY_COMPARE(service.calls, 1);
        m_clock->advance(ResolvedBus::limit - 1ms);
        QVERIFY(!reading.isDone());
        m_clock->advance(1ms);
        QTRY_VERIFY(reading.isDone());
        QCOMPARE(reading.summaries(), text("10.0.0.1"));
        QVERIFY(!reading.isComplete());
    }

    // The reader's thread ends with its pending call, and makes no further call.
    void aDaemonThatWasGivenUpIsAskedNothingMore()
    {
        ResolvedService service(m_bus->address());
        LinuxResolverSource source(*m_clock, write(text("resolv.conf"), "nameserver 127.0.0.53\n"));
        const Reading whole(source);
        QTRY_VERIFY(whole.isDone());
        QVERIFY(service.calls > 1);

        service.calls = 0;
        service.isSilent = true;
        const Reading reading(source);
        QTRY_COMPARE(service.calls, 1);
        QVERIFY(service.hasListener());
        m_clock->advance(ResolvedBus::limit);
        QTRY_VERIFY(reading.isDone());
        service.isSilent = false;
        service.answerLate();
        QTRY_VERIFY(!service.hasListener());
        QCOMPARE(service.calls, 1);
    }

    // Connecting to a bus waits for its greeting; the wait must not block the event loop.
    void aFrozenBusStopsNobody()
    {
        m_bus->freeze();
        LinuxResolverSource source(*m_clock, write(text("resolv.conf"), "nameserver 127.0.0.53\n"));
        QElapsedTimer timer;
        timer.start();
        const Reading reading(source);
        m_clock->advance(ResolvedBus::limit);
        QTRY_VERIFY(reading.isDone());
        QVERIFY2(timer.elapsed() < 5000, "the call waited for the bus");
        QCOMPARE(reading.summaries(), QString());
        m_bus->stop(); // releases the waiting thread
    }

    void aReadingOutlivesItsSource()
    {
        ResolvedService service(m_bus->address());
        auto source = std::make_unique<LinuxResolverSource>(
            *m_clock, write(text("resolv.conf"), "nameserver 127.0.0.53\n"));
        const Reading reading(*source);
        source.reset();
        QTRY_VERIFY(reading.isDone());
        QCOMPARE(reading.summaries(), ofTheDaemon);
    }

    void readsWhatScutilPrints()
    {
        ScutilResolverSource source([] {
            return printed(text(
                "DNS configuration\nresolver #1\nnameserver[0] : 192.168.1.1\nif_index : 15 (en0)\n"));
        });
        const Reading reading(source);
        QTRY_VERIFY(reading.isDone());
        QCOMPARE(reading.summaries(), text("192.168.1.1 on en0"));

        ScutilResolverSource failing([] { return printed(QString()); });
        const Reading nothing(failing);
        QTRY_VERIFY(nothing.isDone());
        QCOMPARE(nothing.summaries(), QString());
        QVERIFY(!nothing.isComplete());
    }
};

VELDMARK_TEST(ResolverSourceTest)
#include "ResolverSourceTest.moc"
