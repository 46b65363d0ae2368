#include "circuits/CircuitTable.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace veldmark;

namespace {
QStringList ids(const CircuitTable &table)
{
    QStringList list;
    for (const CircuitInfo &circuit : table.circuits)
        list.append(circuit.id);
    return list;
}

CircuitTable assemble(const QStringList &circuits, const QStringList &streams = {},
                      const RelayCache &cache = {})
{
    SiteHistory history;
    return CircuitTable::assemble(circuits, streams, history, cache);
}

QString built(const char *id, const char *time = nullptr, const char *fields = "PURPOSE=GENERAL")
{
    QString line = QStringLiteral("%1 BUILT $AA~a,$BB~b,$CC~c %2")
                       .arg(QString::fromLatin1(id), QString::fromLatin1(fields));
    if (time)
        line += QStringLiteral(" TIME_CREATED=2024-05-01T%1").arg(QString::fromLatin1(time));
    return line;
}

const QStringList site = {QStringLiteral("example.org")};
} // namespace

class CircuitTableTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void keepsOnlyCircuitsForTheUsersTraffic()
    {
        const CircuitTable table = assemble({
            built("1"),
            built("2", nullptr, "PURPOSE=CONFLUX_LINKED CONFLUX_ID=AB"),
            built("3", nullptr, "PURPOSE=CONFLUX_UNLINKED CONFLUX_ID=AB"),
            built("4", nullptr, "PURPOSE=HS_VANGUARDS"),
            built("5", nullptr, "PURPOSE=MEASURE_TIMEOUT"),
            QStringLiteral("6 BUILT $AA~a BUILD_FLAGS=ONEHOP_TUNNEL,IS_INTERNAL PURPOSE=GENERAL"),
            QStringLiteral("7 EXTENDED $AA~a PURPOSE=GENERAL"),
            QStringLiteral("8 LAUNCHED"),
            built("9", nullptr, "PURPOSE=CONFLUX"),
            QString(),
            QStringLiteral("junk"),
        });
        QCOMPARE(ids(table),
                 (QStringList{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("9")}));
    }

    void toOnionServicesOnlyTheVisitorsWayIsListed()
    {
        const char *joined
            = "BUILD_FLAGS=IS_INTERNAL PURPOSE=HS_CLIENT_REND HS_STATE=HSCR_JOINED REND_QUERY=abc";
        SiteHistory history;
        const CircuitTable table = CircuitTable::assemble(
            // made ahead, Tor's own
            {built("1", nullptr, "BUILD_FLAGS=IS_INTERNAL,NEED_CAPACITY PURPOSE=GENERAL"),
             built("2", nullptr, joined),
             built("3", nullptr,
                   "BUILD_FLAGS=IS_INTERNAL PURPOSE=HS_CLIENT_REND HS_STATE=HSCR_ESTABLISHED_IDLE"),
             built(
                 "4", nullptr,
                 "BUILD_FLAGS=IS_INTERNAL PURPOSE=HS_CLIENT_INTRO HS_STATE=HSCI_DONE REND_QUERY=abc"),
             built(
                 "5", nullptr,
                 "BUILD_FLAGS=IS_INTERNAL PURPOSE=HS_SERVICE_REND HS_STATE=HSSR_JOINED REND_QUERY=own"),
             built("6", nullptr, "BUILD_FLAGS=IS_INTERNAL PURPOSE=HS_CLIENT_HSDIR"), built("7")},
            {QStringLiteral("12 SUCCEEDED 2 abc.onion:80")}, history, {});
        QCOMPARE(ids(table).join(u' '), QStringLiteral("2 7"));
        QCOMPARE(table.circuits.front().sites, QStringList{QStringLiteral("abc.onion")});
        QVERIFY(table.circuits.back().onionService.isEmpty());
    }

    void otherPurposesGiveAnEmptyList()
    {
        const CircuitTable table = assemble({built("4", nullptr, "PURPOSE=HS_VANGUARDS"),
                                             built("5", nullptr, "PURPOSE=MEASURE_TIMEOUT")});
        QVERIFY(table.circuits.empty());
        QVERIFY(table.unresolved.empty());
    }

    void listsCircuitsWithSitesFirstThenTheNewer()
    {
        const CircuitTable table = assemble(
            {built("1"), built("2", "09:00:00"), built("3", "10:00:00"), built("4", "08:00:00"),
             built("5", "10:00:00"), built("6"), built("7", "10:00:00.5"), built("8")},
            {QStringLiteral("90 SUCCEEDED 4 example.org:443"),
             QStringLiteral("91 SUCCEEDED 8 b.example:80")});
        QCOMPARE(ids(table).join(u' '), QStringLiteral("4 8 7 3 5 2 1 6"));
    }

    void joinsStreamsToTheirCircuits()
    {
        const CircuitTable table = assemble({built("7")},
                                            {QStringLiteral("12 SUCCEEDED 0 unattached:443"),
                                             QStringLiteral("13 SUCCEEDED 7 [2001:db8::1]:443"),
                                             QStringLiteral("14 SUCCEEDED 7 a.example:80"),
                                             QStringLiteral("15 SUCCEEDED 7 a.example:443"),
                                             QStringLiteral("16 SUCCEEDED 99 elsewhere:1"),
                                             QStringLiteral("17 SUCCEEDED 7 :443"),
                                             QStringLiteral("x")});
        QCOMPARE(table.circuits.front().sites,
                 (QStringList{QStringLiteral("2001:db8::1"), QStringLiteral("a.example")}));
    }

    void aSiteStaysOnItsCircuitUntilTheCircuitIsGone()
    {
        SiteHistory history;
        const QStringList streams{QStringLiteral("1 SUCCEEDED 12 example.org:443")};
        CircuitTable::assemble({built("12"), built("13")}, streams, history, {});
        CircuitTable table = CircuitTable::assemble({built("13"), built("12")}, {}, history, {});
        QCOMPARE(table.circuits.front().id, QStringLiteral("12"));
        QCOMPARE(table.circuits.front().sites, site);
        CircuitTable::assemble({built("13")}, {}, history, {});
        QVERIFY(history.isEmpty());
        table = CircuitTable::assemble({built("12")}, {}, history, {});
        QVERIFY(table.circuits.front().sites.isEmpty());
    }

    void newSitesFollowTheEarlierOnes()
    {
        SiteHistory history;
        CircuitTable::assemble({built("12")},
                               {QStringLiteral("1 X 12 a:1"), QStringLiteral("2 X 12 b:1")},
                               history, {});
        const CircuitTable table = CircuitTable::assemble(
            {built("12")}, {QStringLiteral("3 X 12 c:1"), QStringLiteral("4 X 12 a:1")}, history,
            {});
        QCOMPARE(table.circuits.front().sites.join(u' '), QStringLiteral("a b c"));
        QCOMPARE(history.value(QStringLiteral("12")).names.join(u' '), QStringLiteral("a b c"));
    }

    void theLegsOfAConfluxSetShareTheirSites()
    {
        SiteHistory history;
        const char *set = "PURPOSE=CONFLUX_LINKED CONFLUX_ID=00112233445566778899AABBCCDDEEFF";
        const char *otherSet = "PURPOSE=CONFLUX_LINKED CONFLUX_ID=FF112233445566778899AABBCCDDEEFF";
        const QStringList circuits{built("1", nullptr, set), built("2", nullptr, otherSet),
                                   built("3", nullptr, set), built("4")};
        CircuitTable table = CircuitTable::assemble(
            circuits, {QStringLiteral("9 SUCCEEDED 3 example.org:443")}, history, {});
        QCOMPARE(ids(table).join(u' '), QStringLiteral("1 3 2 4"));
        QCOMPARE(table.circuits[0].sites, site);
        QCOMPARE(table.circuits[1].sites, site);
        QVERIFY(table.circuits[2].sites.isEmpty());
        QVERIFY(table.circuits[3].sites.isEmpty());

        // The leg that carried the stream is replaced by a new one.
        table = CircuitTable::assemble({built("1", nullptr, set), built("5", nullptr, set)}, {},
                                       history, {});
        QCOMPARE(table.circuits[0].sites, site);
        QCOMPARE(table.circuits[1].sites, site);
    }

    void takesAddressesFromTheCacheAndNamesTheMissing()
    {
        RelayCache cache;
        cache.insert(QStringLiteral("BB"),
                     {QStringLiteral("BB"), QStringLiteral("stale nickname"),
                      QStringLiteral("203.0.113.5"), QStringLiteral("de")});
        const CircuitTable table = assemble({built("1"), QStringLiteral("2 BUILT $AA~a,$BB~b,$DD"),
                                             QStringLiteral("3 BUILT $x-y~z")},
                                            {}, cache);
        const RelayInfo &known = table.circuits.front().hops[1];
        QCOMPARE(known.nickname, QStringLiteral("b"));
        QCOMPARE(known.ip, QStringLiteral("203.0.113.5"));
        QCOMPARE(known.country, QStringLiteral("de"));
        QVERIFY(!table.circuits.front().hops[0].ip);
        QStringList missing;
        for (const RelayInfo &relay : table.unresolved)
            missing.append(relay.fingerprint);
        QCOMPARE(missing.join(u' '), QStringLiteral("AA CC DD"));

        std::vector<CircuitInfo> circuits = table.circuits;
        cache.insert(QStringLiteral("AA"),
                     {QStringLiteral("AA"), {}, QStringLiteral("203.0.113.6"), {}});
        CircuitTable::fillRelays(circuits, cache);
        QCOMPARE(circuits[0].hops[0].ip, QStringLiteral("203.0.113.6"));
        QVERIFY(!circuits[0].hops[0].country);
    }

    void aRepeatedCircuitNumberIsListedOnce()
    {
        QCOMPARE(ids(assemble({built("1"), built("1")})), QStringList{QStringLiteral("1")});
    }

    void thousandsOfSitesOnOneCircuitAreJoinedInOrder()
    {
        QStringList streams;
        for (int i = 0; i < 20000; ++i)
            streams.append(QStringLiteral("%1 SUCCEEDED 1 host%2.example:443").arg(i).arg(i / 2));
        const CircuitTable table = assemble({built("1")}, streams);
        QCOMPARE(table.circuits.front().sites.size(), 10000);
        QCOMPARE(table.circuits.front().sites.constLast(), QStringLiteral("host9999.example"));
    }
};

VELDMARK_BARE_TEST(CircuitTableTest)
#include "CircuitTableTest.moc"
