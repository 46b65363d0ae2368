#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QFile>
#include <QTest>

#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace veldmark;

namespace {

constexpr auto listening = "SETEVENTS STREAM";

// The identity program, as far as others see it: its list, and that a process listens.
class StandInIdentifier {
public:
    explicit StandInIdentifier(Workbench &bench)
        : m_bench(bench),
          m_socket(socket(AF_UNIX, SOCK_DGRAM, 0))
    {
        list({});
        sockaddr_un place{};
        place.sun_family = AF_UNIX;
        const QByteArray path = QFile::encodeName(bench.profile.identitiesSocket);
        std::memcpy(place.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
        if (bind(m_socket, reinterpret_cast<const sockaddr *>(&place), sizeof place) != 0)
            qFatal("The stand-in cannot listen");
    }
    StandInIdentifier(const StandInIdentifier &) = delete;
    StandInIdentifier &operator=(const StandInIdentifier &) = delete;
    ~StandInIdentifier() { close(m_socket); }

    // Each line "UID ADDRESS APPLICATION".
    void list(const QByteArrayList &lines, const QByteArray &state = "standing") const
    {
        QByteArray text = "identities 1\n" + state + '\n';
        for (const QByteArray &line : lines)
            text += line + '\n';
        write(text + "end 1\n");
    }
    void write(const QByteArray &text) const
    {
        m_bench.writeFile(m_bench.profile.identitiesNote, text);
    }

private:
    Workbench &m_bench;
    int m_socket;
};

QByteArray mine(const QByteArray &rest)
{
    return QByteArray::number(geteuid()) + ' ' + rest;
}

QByteArray begun(const QByteArray &id, const QByteArray &target, const QByteArray &source)
{
    return "650 STREAM " + id + " NEW 0 " + target + " SOURCE_ADDR=" + source
        + ":40000 PURPOSE=USER\r\n650 STREAM " + id + " SUCCEEDED 5 192.0.2.1:443\r\n";
}

} // namespace

class StreamsTest : public QObject {
    Q_OBJECT
private:
    // A session that listens to Tor's events, with one circuit.
    static bool listens(Workbench &bench)
    {
        bench.tor.replyOnce(listening, "250 OK\r\n"); // the checks do not get one
        bench.tor.reply(
            "GETINFO circuit-status",
            Workbench::block("circuit-status",
                             {"5 BUILT $" + QByteArray(40, 'A') + "~a PURPOSE=GENERAL"}));
        bench.tor.reply("GETINFO stream-status", Workbench::block("stream-status", {}));
        return bench.connect() && bench.hears(listening) && bench.tick();
    }

    // The events have been taken when the circuit has the site.
    static bool showsSite(Workbench &bench, const QString &site)
    {
        return until([&bench, &site] {
            const auto refreshing = bench.controller().refreshCircuits();
            return Workbench::finished(refreshing) && !bench.controller().circuits().empty()
                && bench.controller().circuits().front().sites.contains(site);
        });
    }

    static QStringList askers(Workbench &bench, const QString &site)
    {
        return bench.controller().circuits().front().askers.value(site);
    }

private Q_SLOTS:
    void eachSiteHasItsApplication()
    {
        Workbench bench;
        const StandInIdentifier identifier(bench);
        identifier.list({mine("127.65.0.1 mail"), mine("127.65.0.2 as:bank"),
                         QByteArray::number(geteuid() + 1) + " 127.65.0.3 another.users"});
        QVERIFY(listens(bench));
        bench.tor.sendEvent(begun("1", "a.example:443", "127.65.0.1")
                            + begun("2", "b.example:443", "127.65.0.2")
                            + begun("3", "c.example:443", "127.65.0.3")
                            + begun("4", "d.example:443", "127.64.3.232")
                            + begun("5", "e.example:443", "127.0.0.1"));
        QVERIFY(showsSite(bench, u"e.example"_s));
        QCOMPARE(askers(bench, u"a.example"_s), QStringList{u"mail"_s});
        QCOMPARE(askers(bench, u"b.example"_s), QStringList{u"as:bank"_s});
        QCOMPARE(askers(bench, u"c.example"_s),
                 geteuid() == 0 ? QStringList{u"another.users"_s} : QStringList());
        QVERIFY(askers(bench, u"d.example"_s).isEmpty() && askers(bench, u"e.example"_s).isEmpty());
        QCOMPARE(bench.commandCount(listening), 1 + 1); // and one by the checks
    }

    void aNewApplicationIsFoundAndOneThatHasGoneIsRemembered()
    {
        Workbench bench;
        const StandInIdentifier identifier(bench);
        identifier.list({mine("127.65.0.1 mail")});
        QVERIFY(listens(bench));
        bench.tor.sendEvent(begun("1", "a.example:443", "127.65.0.1"));
        QVERIFY(showsSite(bench, u"a.example"_s));
        identifier.list({mine("127.65.0.2 web")});
        bench.clock.advance(100ms);
        bench.tor.sendEvent(begun("2", "b.example:443", "127.65.0.2"));
        QVERIFY(showsSite(bench, u"b.example"_s));
        QCOMPARE(askers(bench, u"a.example"_s), QStringList{u"mail"_s});
        QCOMPARE(askers(bench, u"b.example"_s), QStringList{u"web"_s});
        // The program is just writing, then it writes what it knows.
        identifier.write("identities 2\nstanding\n" + mine("127.65.0.3 late"));
        bench.clock.advance(100ms);
        bench.tor.sendEvent(begun("3", "c.example:443", "127.65.0.3"));
        QVERIFY(showsSite(bench, u"c.example"_s));
        QVERIFY(askers(bench, u"c.example"_s).isEmpty());
        identifier.list({mine("127.65.0.3 late")});
        QVERIFY(showsSite(bench, u"c.example"_s));
        QCOMPARE(askers(bench, u"c.example"_s), QStringList{u"late"_s});
        // Without the firewall's table no address is an application's.
        identifier.list({mine("127.65.0.4 other")}, "lost");
        bench.clock.advance(100ms);
        bench.tor.sendEvent(begun("4", "d.example:443", "127.65.0.4"));
        QVERIFY(showsSite(bench, u"d.example"_s));
        QVERIFY(askers(bench, u"d.example"_s).isEmpty());
    }

    void withoutIdentitiesThereIsNoSuchConnection()
    {
        Workbench bench;
        QVERIFY(bench.connect() && bench.tick());
        const int before = bench.commandCount(listening); // by the checks
        for (int tick = 0; tick < 3; ++tick)
            QVERIFY(bench.tick());
        QCOMPARE(bench.commandCount(listening), before);
        const StandInIdentifier identifier(bench); // the control: they come later
        QVERIFY(bench.tick());
        QVERIFY(bench.hears(listening, before + 1));
    }

    void aConnectionThatBreaksIsMadeAgain()
    {
        Workbench bench;
        const StandInIdentifier identifier(bench);
        identifier.list({mine("127.65.0.1 mail")});
        QVERIFY(listens(bench));
        bench.tor.sendEvent(begun("1", "a.example:443", "127.65.0.1"));
        QVERIFY(showsSite(bench, u"a.example"_s));
        const int before = bench.commandCount(listening);
        bench.tor.replyOnce(listening, "250 OK\r\n");
        bench.tor.disconnectAll();
        QVERIFY(until([&bench] { return bench.tor.openConnections() == 0; }));
        settle();
        QVERIFY(bench.tick());
        QVERIFY(bench.hears(listening, before + 1));
        QVERIFY(bench.tick()); // one is enough
        settle();
        QCOMPARE(bench.commandCount(listening), before + 1);
        QVERIFY(bench.controller().phase() == ConnectionPhase::connected
                && !bench.controller().errorMessage());
        bench.tor.sendEvent(begun("2", "b.example:443", "127.65.0.1"));
        QVERIFY(showsSite(bench, u"b.example"_s));
        QCOMPARE(askers(bench, u"a.example"_s), QStringList{u"mail"_s});
        QCOMPARE(askers(bench, u"b.example"_s), QStringList{u"mail"_s});
    }

    void aNewSessionKnowsNothingOfTheOldOnesStreams()
    {
        Workbench bench;
        const StandInIdentifier identifier(bench);
        identifier.list({mine("127.65.0.1 mail")});
        QVERIFY(listens(bench));
        bench.tor.sendEvent(begun("1", "secret.example:443", "127.65.0.1"));
        QVERIFY(showsSite(bench, u"secret.example"_s));
        const int before = bench.commandCount(listening);
        bench.disconnect();
        bench.tor.replyOnce(listening, "250 OK\r\n");
        // The old connection is still open when the next session begins.
        QVERIFY(bench.connect() && bench.hears(listening, before + 1));
        QVERIFY(bench.tick());
        identifier.list({mine("127.65.0.1 other")});
        bench.tor.reply("GETINFO stream-status",
                        Workbench::block("stream-status", {"1 SUCCEEDED 5 192.0.2.1:443"}));
        QVERIFY(showsSite(bench, u"192.0.2.1"_s));
        QVERIFY(!bench.controller().circuits().front().sites.contains(u"secret.example"_s));
        QVERIFY(bench.controller().circuits().front().askers.isEmpty());
        bench.tor.sendEvent(begun("2", "a.example:443", "127.65.0.1"));
        QVERIFY(showsSite(bench, u"a.example"_s));
        QCOMPARE(askers(bench, u"a.example"_s), QStringList{u"other"_s});
    }

    void theProgramEndsWhileItListens()
    {
        Workbench bench;
        const StandInIdentifier identifier(bench);
        QVERIFY(listens(bench));
        QVERIFY(until([&bench] { return bench.tor.openConnections() > 0; }));
        bench.end();
        bench.tor.sendEvent(begun("1", "a.example:443", "127.65.0.1"));
        QVERIFY(until([&bench] { return bench.tor.openConnections() == 0; }));
    }
};

VELDMARK_TEST(StreamsTest)
#include "StreamsTest.moc"
