#include "circuits/CircuitTable.h"
#include "support/TestProgram.h"

#include <QJsonArray>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

namespace {

// What is known of the addresses at that moment.
QString applicationAt(const QString &address)
{
    if (address == u"127.65.0.1"_s)
        return u"mail"_s;
    return address == u"127.65.0.2"_s ? u"web"_s : QString();
}

QString begun(int id, const char *target, const char *source, const char *more = "")
{
    return u"650 STREAM %1 NEW 0 %2 SOURCE_ADDR=%3:40000 PURPOSE=USER%4"_s.arg(id).arg(
        QLatin1String(target), QLatin1String(source), QLatin1String(more));
}

QString then(int id, const char *status, const char *circuit, const char *target)
{
    return u"650 STREAM %1 %2 %3 %4 PURPOSE=USER"_s.arg(id).arg(
        QLatin1String(status), QLatin1String(circuit), QLatin1String(target));
}

SeenStreams seenOf(const QStringList &lines)
{
    SeenStreams seen;
    for (const QString &line : lines)
        seen.take(line, applicationAt);
    return seen;
}

CircuitInfo circuit(const SeenStreams &seen, const QStringList &streams = {},
                    const QString &line = u"5 BUILT $AA~a,$BB~b,$CC~c PURPOSE=GENERAL"_s)
{
    SiteHistory history;
    return CircuitTable::assemble({line}, streams, history, {}, seen).circuits.front();
}

} // namespace

class SeenStreamsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void aStreamKeepsItsSiteAndItsApplication()
    {
        const SeenStreams seen = seenOf({begun(7, "www.example.org:443", "127.65.0.1"),
                                         then(7, "SENTCONNECT", "5", "www.example.org:443"),
                                         then(7, "REMAP", "5", "192.0.2.1:443"),
                                         then(7, "SUCCEEDED", "5", "192.0.2.1:443")});
        QVERIFY(seen.find(u"7") && !seen.find(u"8") && !seen.find(u"") && !seen.find(u"x"));
        QCOMPARE(seen.find(u"7")->site, u"www.example.org"_s);
        QCOMPARE(seen.find(u"7")->application, u"mail"_s);
        QCOMPARE(seen.find(u"7")->circuitID, u"5"_s);
        const CircuitInfo c = circuit(seen, {u"7 SUCCEEDED 5 192.0.2.1:443"_s});
        QCOMPARE(c.sites, QStringList{u"www.example.org"_s}); // and not its address as well
        QCOMPARE(c.askers.value(u"www.example.org"_s), QStringList{u"mail"_s});
        QCOMPARE(c.toJson().value("askedBy"_L1).toObject(),
                 (QJsonObject{{u"www.example.org"_s, QJsonArray{u"mail"_s}}}));
    }

    void whatBeganBeforeHasNoApplication()
    {
        const SeenStreams seen = seenOf({then(7, "SUCCEEDED", "5", "192.0.2.1:443")});
        QCOMPARE(seen.size(), 0U);
        const CircuitInfo c = circuit(seen, {u"7 SUCCEEDED 5 192.0.2.1:443"_s});
        QCOMPARE(c.sites, QStringList{u"192.0.2.1"_s});
        QVERIFY(c.askers.isEmpty() && !c.toJson().contains("askedBy"_L1));
    }

    void oneSiteOfTwoApplicationsHasBoth()
    {
        const SeenStreams seen = seenOf(
            {begun(1, "a.example:443", "127.65.0.1"), then(1, "SUCCEEDED", "5", "a.example:443"),
             begun(2, "a.example:443", "127.65.0.2"), then(2, "SUCCEEDED", "5", "a.example:443"),
             begun(3, "a.example:80", "127.65.0.2"), then(3, "SUCCEEDED", "5", "a.example:80"),
             begun(4, "b.example:80", "127.0.0.1"), then(4, "SUCCEEDED", "5", "b.example:80")});
        const CircuitInfo c = circuit(seen);
        QCOMPARE(c.sites, QStringList({u"a.example"_s, u"b.example"_s}));
        QCOMPARE(c.askers.value(u"a.example"_s), QStringList({u"mail"_s, u"web"_s}));
        QVERIFY(!c.askers.contains(u"b.example"_s)); // it came from nobody's address
    }

    void aShortStreamIsShownAfterItsEnd()
    {
        SeenStreams seen = seenOf({begun(7, "a.example:443", "127.65.0.1"),
                                   then(7, "SUCCEEDED", "5", "192.0.2.1:443"),
                                   then(7, "CLOSED", "5", "192.0.2.1:443")});
        QCOMPARE(circuit(seen).askers.value(u"a.example"_s), QStringList{u"mail"_s});
        // One that never had a circuit is not kept.
        seen.take(begun(8, "b.example:443", "127.65.0.1"), applicationAt);
        QCOMPARE(seen.size(), 2U);
        seen.take(then(8, "CLOSED", "0", "b.example:443"), applicationAt);
        QCOMPARE(seen.size(), 1U);
    }

    void aConfluxSetHasItOnBothLegsAndKeepsIt()
    {
        SiteHistory history;
        const QStringList legs{u"5 BUILT $AA~a PURPOSE=CONFLUX_LINKED CONFLUX_ID=AB"_s,
                               u"6 BUILT $BB~b PURPOSE=CONFLUX_LINKED CONFLUX_ID=AB"_s,
                               u"7 BUILT $CC~c PURPOSE=GENERAL"_s};
        const SeenStreams seen = seenOf(
            {begun(1, "a.example:443", "127.65.0.1"), then(1, "SUCCEEDED", "6", "a.example:443")});
        CircuitTable table = CircuitTable::assemble(legs, {}, history, {}, seen);
        for (int later = 0; later < 2; ++later) {
            QCOMPARE(table.circuits[0].askers.value(u"a.example"_s), QStringList{u"mail"_s});
            QCOMPARE(table.circuits[1].askers, table.circuits[0].askers);
            QVERIFY(table.circuits[2].askers.isEmpty());
            table = CircuitTable::assemble(legs, {}, history, {}); // its stream is long forgotten
        }
        CircuitTable::assemble(legs.mid(2), {}, history, {});
        table = CircuitTable::assemble(legs, {}, history, {});
        QVERIFY(table.circuits[0].askers.isEmpty());
    }

    // The list of identities may come after the first packet.
    void anApplicationThatIsNotKnownYetIsNamedLater()
    {
        SeenStreams seen = seenOf({begun(7, "a.example:443", "127.65.0.9")});
        QVERIFY(seen.find(u"7")->application.isEmpty());
        const auto later = [](const QString &address) {
            return address == u"127.65.0.9"_s ? u"new"_s : QString();
        };
        SeenStreams named = seen;
        named.name(later);
        QCOMPARE(named.find(u"7")->application, u"new"_s);
        seen.take(then(7, "SUCCEEDED", "5", "192.0.2.1:443"), later);
        QCOMPARE(seen.find(u"7")->application, u"new"_s);
        // Its identity is gone: what was known stays.
        seen.name(applicationAt);
        seen.take(then(7, "CLOSED", "5", "192.0.2.1:443"), applicationAt);
        QCOMPARE(seen.find(u"7")->application, u"new"_s);
    }

    // Only after Tor's end, which the controller notices. Should it come otherwise, the later
    // stream counts.
    void aNumberThatIsUsedAgainIsTheLaterStream()
    {
        SeenStreams seen = seenOf({begun(7, "a.example:443", "127.65.0.1"),
                                   then(7, "CLOSED", "5", "a.example:443"),
                                   begun(7, "b.example:443", "127.65.0.2")});
        QCOMPARE(seen.size(), 1U);
        QCOMPARE(seen.find(u"7")->site, u"b.example"_s);
        QCOMPARE(seen.find(u"7")->application, u"web"_s);
        QVERIFY(seen.find(u"7")->circuitID.isEmpty());
        seen.take(begun(7, "c.example:443", "127.65.0.1"), applicationAt); // while it is open
        QCOMPARE(seen.find(u"7")->application, u"mail"_s);
    }

    void aStreamThatMovesBelongsToItsLastCircuit()
    {
        const SeenStreams seen = seenOf({begun(7, "a.example:443", "127.65.0.1"),
                                         then(7, "SENTCONNECT", "4", "a.example:443"),
                                         then(7, "DETACHED", "4", "a.example:443"),
                                         then(7, "SENTCONNECT", "5", "a.example:443"),
                                         then(7, "CLOSED", "0", "a.example:443")});
        QCOMPARE(seen.find(u"7")->circuitID, u"5"_s);
    }

    void noProgramWritesItselfAnotherSource()
    {
        // A SOCKS user name stands after Tor's own words, in marks.
        SeenStreams seen = seenOf({begun(
            7, "a.example:443", "127.0.0.1",
            " SOCKS_USERNAME=\"x SOURCE_ADDR=127.65.0.1:1 \\\" SOURCE_ADDR=127.65.0.1:2\"")});
        QVERIFY(seen.find(u"7") && seen.find(u"7")->application.isEmpty());
        QCOMPARE(seen.find(u"7")->source, u"127.0.0.1"_s);
        // So does a name of a site that holds the words.
        seen.take(
            u"650 STREAM 8 NEW 0 SOURCE_ADDR=127.65.0.1:1 SOURCE_ADDR=127.0.0.1:1 PURPOSE=USER",
            applicationAt);
        QCOMPARE(seen.find(u"8")->source, u"127.0.0.1"_s);
    }

    void ignoresEveryOtherLine_data()
    {
        QTest::addColumn<QString>("line");
        for (const char *line :
             {"", "650 STREAM", "650 STREAM ", "650 STREAM x NEW 0 a:1 PURPOSE=USER",
              "650 STREAM -7 NEW 0 a:1 PURPOSE=USER", "650 STREAM +7 NEW 0 a:1 PURPOSE=USER",
              "650 STREAM 99999999999999999999 NEW 0 a:1 PURPOSE=USER", "650 STREAM 7 NEW 0",
              "650 STREAM 7 NEW 0 a:1", "650 STREAM 7 NEW 0 a:1 PURPOSE=DIR_FETCH",
              "650 STREAM 7 NEWRESOLVE 0 a:0 SOURCE_ADDR=127.65.0.1:1 PURPOSE=DNS_REQUEST",
              "650 CIRC 7 NEW 0 a:1 PURPOSE=USER", "650 streams 7 NEW 0 a:1 PURPOSE=USER",
              "250 OK"})
            QTest::newRow(line) << QString::fromLatin1(line);
    }
    void ignoresEveryOtherLine()
    {
        QFETCH(QString, line);
        QCOMPARE(seenOf({begun(7, "a:1", "127.65.0.1")}).size(), 1U); // the control
        QCOMPARE(seenOf({line}).size(), 0U);
    }

    void tenThousandStreamsTakeABoundedPlace()
    {
        SeenStreams seen;
        for (int id = 1; id <= 10'001; ++id) {
            seen.take(begun(id, "a.example:443", "127.65.0.1"), applicationAt);
            seen.take(then(id, "SUCCEEDED", "5", "192.0.2.1:443"), applicationAt);
        }
        QCOMPARE(seen.size(), SeenStreams::mostOpen);
        QVERIFY(!seen.find(u"1") && seen.find(u"2"));
        const QStringList streams{u"1 SUCCEEDED 5 192.0.2.1:443"_s,
                                  u"2 SUCCEEDED 5 192.0.2.1:443"_s};
        const CircuitInfo c = circuit(seen, streams);
        QCOMPARE(c.sites.size(), 2); // by its name, and by the address of what was forgotten
        QCOMPARE(c.askers, (QHash<QString, QStringList>{{u"a.example"_s, {u"mail"_s}}}));
        for (int id = 2; id <= 3'001; ++id)
            seen.take(then(id, "CLOSED", "5", "192.0.2.1:443"), applicationAt);
        QCOMPARE(seen.size(), SeenStreams::mostOpen - 3'000 + SeenStreams::mostClosed);
        QVERIFY(!seen.find(u"1001") && seen.find(u"1002") && seen.find(u"3002"));
    }
};

VELDMARK_BARE_TEST(SeenStreamsTest)
#include "SeenStreamsTest.moc"
