#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

namespace {

const QByteArray guard(40, 'A');
const QByteArray middle(40, 'B');
const QByteArray exitRelay(40, 'C');

QByteArray path()
{
    return '$' + guard + "~guard,$" + middle + "~middle,$" + exitRelay + "~exit";
}

QByteArray circuit(const QByteArray &id, const QByteArray &time = {},
                   const QByteArray &purpose = "GENERAL")
{
    return id + " BUILT " + path() + " PURPOSE=" + purpose
        + (time.isEmpty() ? "" : " TIME_CREATED=2026-03-01T" + time);
}

QStringList ids(const TorController &controller)
{
    QStringList list;
    for (const CircuitInfo &circuit : controller.circuits())
        list << circuit.id;
    return list;
}

} // namespace

class CircuitsTest : public QObject {
    Q_OBJECT
private:
    static void answer(Workbench &bench, const QByteArrayList &circuits,
                       const QByteArrayList &streams = {})
    {
        bench.tor.reply("GETINFO circuit-status", Workbench::block("circuit-status", circuits));
        bench.tor.reply("GETINFO stream-status", Workbench::block("stream-status", streams));
    }

    static bool refresh(Workbench &bench)
    {
        const auto refreshing = bench.controller().refreshCircuits();
        return Workbench::finished(refreshing);
    }

private Q_SLOTS:
    void otherPurposesGiveAnEmptyListAndNoError()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        answer(bench, {circuit("1", {}, "HS_VANGUARDS"), circuit("2", {}, "MEASURE_TIMEOUT")});
        QVERIFY(refresh(bench));
        QVERIFY(bench.controller().circuits().empty());
        QVERIFY(!bench.controller().circuitError());
        answer(bench, {circuit("3", {}, "CONFLUX"), circuit("4")});
        QVERIFY(refresh(bench));
        QCOMPARE(ids(bench.controller()), QStringList({u"3"_s, u"4"_s}));
    }

    void circuitsWithSitesComeFirstThenTheNewer()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        answer(bench,
               {circuit("1"), circuit("2", "09:00:00"), circuit("3", "10:00:00"),
                circuit("4", "08:00:00")},
               {"20 SUCCEEDED 4 example.org:443"});
        QVERIFY(refresh(bench));
        QCOMPARE(ids(bench.controller()), QStringList({u"4"_s, u"3"_s, u"2"_s, u"1"_s}));
    }

    void aCircuitKeepsItsSitesUntilItIsGone()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        answer(bench, {circuit("12")},
               {"20 SUCCEEDED 12 example.org:443", "21 SUCCEEDED 12 example.org:80"});
        QVERIFY(refresh(bench));
        QCOMPARE(c.circuits().front().sites, QStringList(u"example.org"_s));
        answer(bench, {circuit("12")});
        QVERIFY(refresh(bench));
        QCOMPARE(c.circuits().front().sites, QStringList(u"example.org"_s));
        answer(bench, {circuit("13")});
        QVERIFY(refresh(bench));
        answer(bench, {circuit("12")});
        QVERIFY(refresh(bench));
        QVERIFY(c.circuits().front().sites.isEmpty());
    }

    void aNewSessionKnowsNothingOfTheOldOnesCircuits_data()
    {
        QTest::addColumn<bool>("died");
        QTest::newRow("after a disconnect") << false;
        QTest::newRow("after Tor's death") << true;
    }

    void aNewSessionKnowsNothingOfTheOldOnesCircuits()
    {
        QFETCH(bool, died);
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        answer(bench, {circuit("12")}, {"20 SUCCEEDED 12 secret.example:443"});
        QVERIFY(refresh(bench));
        QCOMPARE(c.circuits().front().sites, QStringList(u"secret.example"_s));
        if (died) {
            bench.tor.stopListening();
            for (int tick = 0; tick < 3; ++tick)
                QVERIFY(bench.tick());
            QVERIFY(c.phase() == ConnectionPhase::stale);
            bench.tor.listen();
        } else {
            bench.disconnect();
            QVERIFY(c.circuits().empty());
        }
        QVERIFY(bench.connect());
        QVERIFY(c.circuits().empty());
        answer(bench, {circuit("12")}); // a new Tor starts its numbers again
        QVERIFY(refresh(bench));
        QVERIFY(c.circuits().front().sites.isEmpty());
    }

    void resolvesEachRelayOnce()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        const QByteArray ns = "GETINFO ns/id/";
        const auto status = [&ns, &bench](const QByteArray &fingerprint,
                                          const QByteArray &address) {
            bench.tor.reply(
                ns + fingerprint,
                Workbench::block("ns/id/" + fingerprint,
                                 {"r name AAAA BBBB 2026-03-01 10:00:00 " + address + " 9001 0"}));
        };
        status(middle, "192.0.2.2");
        status(exitRelay, "192.0.2.2"); // one address for two relays is asked for once
        bench.tor.reply(ns + guard, "552 Unrecognized key\r\n");
        bench.tor.reply("GETINFO ip-to-country/192.0.2.2",
                        "250-ip-to-country/192.0.2.2=de\r\n250 OK\r\n");
        answer(bench, {circuit("1"), circuit("2")});
        QVERIFY(refresh(bench));
        QVERIFY(!c.circuitError());
        for (const CircuitInfo &shown : c.circuits()) {
            QVERIFY(!shown.hops[0].ip && !shown.hops[0].country); // refused: the country is absent
            QCOMPARE(shown.hops[1].ip.value(), u"192.0.2.2"_s);
            QCOMPARE(shown.hops[2].country.value(), u"de"_s);
        }
        QVERIFY(refresh(bench));
        QCOMPARE(bench.commandCount("GETINFO ip-to-country/192.0.2.2"), 1);
        QCOMPARE(bench.tor.commands().count(QString::fromLatin1(ns + middle)), 1);
    }

    void takesABridgesAddressFromItsLine()
    {
        Workbench bench;
        TorController &c = bench.controller();
        c.bridgeChoice.set(BridgeChoice::custom);
        c.customBridges.set(u"198.51.100.4:9001 "_s + QString::fromLatin1(guard));
        QVERIFY(bench.connect());
        answer(bench, {circuit("1")});
        QVERIFY(refresh(bench));
        QCOMPARE(c.circuits().front().hops.front().ip.value(), u"198.51.100.4"_s);
    }

    void anErrorKeepsTheListAndIsOverWithTheNextSuccess()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        answer(bench, {circuit("1")});
        QVERIFY(refresh(bench));
        bench.tor.closeAfter("GETINFO stream-status");
        bench.tor.reply("GETINFO stream-status", "");
        QVERIFY(refresh(bench));
        QCOMPARE(c.circuitError().value(),
                 u"Couldn't read circuits: Tor closed the control connection."_s);
        QCOMPARE(ids(c), QStringList(u"1"_s));
        QVERIFY(!c.errorMessage()); // never the banner
    }

    void doesNothingWithoutASession()
    {
        Workbench bench;
        TorController &c = bench.controller();
        const auto refreshing = c.refreshCircuits();
        const auto renewing = c.newIdentity();
        const auto closing = c.newCircuit(u"5"_s);
        QVERIFY(refreshing.isReady() && renewing.isReady() && closing.isReady());
        QVERIFY(bench.tor.commands().isEmpty() && !c.errorMessage() && !c.circuitError());
    }

    void anAnswerForTheSessionBeforeIsDropped()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        answer(bench, {circuit("1")});
        bench.tor.ignore(("GETINFO ns/id/" + exitRelay).constData());
        const auto refreshing = c.refreshCircuits();
        QVERIFY(bench.hears(("GETINFO ns/id/" + exitRelay).constData()));
        bench.disconnect();
        bench.tor.hangUp();
        QVERIFY(Workbench::finished(refreshing));
        QVERIFY(c.circuits().empty() && !c.circuitError());
    }

    void asksNothingMoreForASessionThatIsOver()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        answer(bench, {circuit("1")});
        const QByteArray question = "GETINFO ns/id/" + exitRelay;
        bench.tor.reply(question,
                        Workbench::block("ns/id/" + exitRelay,
                                         {"r n A B 2026-03-01 10:00:00 192.0.2.2 9001 0"}));
        bench.tor.ignore(question);
        const auto refreshing = bench.controller().refreshCircuits();
        QVERIFY(bench.hears(question.constData()));
        bench.disconnect();
        QVERIFY(bench.controller().phase() == ConnectionPhase::disconnected);
        bench.tor.answerIgnored();
        QVERIFY(Workbench::finished(refreshing));
        QVERIFY(!bench.tor.commands().contains(u"GETINFO ip-to-country/192.0.2.2"_s));
    }

    void asksForANewIdentity()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        const auto renewing = bench.controller().newIdentity();
        QVERIFY(Workbench::finished(renewing));
        QCOMPARE(bench.commandCount("SIGNAL NEWNYM"), 1);
        QVERIFY(!bench.controller().errorMessage());
    }

    void saysWhyThereIsNoNewIdentity()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        bench.tor.replyOnce("SIGNAL NEWNYM", "552 Unrecognized signal\r\n");
        const auto refused = c.newIdentity();
        QVERIFY(Workbench::finished(refused));
        QCOMPARE(c.errorMessage().value(),
                 u"Couldn't request a new identity: Tor replied: 552 Unrecognized signal"_s);
        const auto granted = c.newIdentity();
        QVERIFY(Workbench::finished(granted));
        QVERIFY(!c.errorMessage());
    }

    void aFailureOfTheSessionBeforeIsNotShown()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        bench.tor.ignore("SIGNAL NEWNYM");
        const auto renewing = c.newIdentity();
        QVERIFY(bench.hears("SIGNAL NEWNYM"));
        bench.disconnect();
        bench.tor.hangUp();
        QVERIFY(Workbench::finished(renewing));
        QVERIFY(!c.errorMessage());
    }

    void closesACircuitAndLooksAgain()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        answer(bench, {circuit("1")});
        bench.tor.reply("CLOSECIRCUIT 12", "250 OK\r\n");
        const auto closing = bench.controller().newCircuit(u"12"_s);
        QVERIFY(Workbench::finished(closing));
        QCOMPARE(bench.commandCount("CLOSECIRCUIT 12"), 1);
        QCOMPARE(ids(bench.controller()), QStringList(u"1"_s));
    }

    void sendsNothingButACircuitNumber_data()
    {
        QTest::addColumn<QString>("id");
        QTest::newRow("another command") << u"12; SIGNAL HALT"_s;
        QTest::newRow("line break") << u"12\r\nSIGNAL HALT"_s;
        QTest::newRow("line end") << u"12\n"_s;
        QTest::newRow("empty") << QString();
        QTest::newRow("blank") << u" 12"_s;
        QTest::newRow("negative") << u"-1"_s;
        QTest::newRow("other digits") << u"١٢"_s;
    }

    void sendsNothingButACircuitNumber()
    {
        QFETCH(QString, id);
        Workbench bench;
        QVERIFY(bench.connect());
        const int connections = bench.tor.connectionCount();
        const auto closing = bench.controller().newCircuit(id);
        QVERIFY(closing.isReady());
        settle();
        QCOMPARE(bench.tor.connectionCount(), connections);
    }

    void aCountryThatCouldNotBeAskedForIsAskedForAgain()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        const QByteArray question = "GETINFO ip-to-country/192.0.2.2";
        for (const QByteArray &relay : {guard, middle, exitRelay})
            bench.tor.reply("GETINFO ns/id/" + relay,
                            Workbench::block("ns/id/" + relay,
                                             {"r n A B 2026-03-01 10:00:00 192.0.2.2 9001 0"}));
        bench.tor.reply(question, "250-ip-to-country/192.0.2.2=de\r\n250 OK\r\n");
        bench.tor.ignore(question);
        answer(bench, {circuit("1")});
        const auto refreshing = c.refreshCircuits();
        QVERIFY(bench.hears(question.constData()));
        bench.tor.hangUp();
        QVERIFY(Workbench::finished(refreshing));
        QCOMPARE(c.circuits().front().hops[2].ip.value(), u"192.0.2.2"_s); // the known part is
                                                                           // shown
        QVERIFY(!c.circuits().front().hops[2].country);
        const auto again = c.refreshCircuits();
        QVERIFY(bench.hears(question.constData(), 2));
        bench.tor.answerIgnored();
        QVERIFY(Workbench::finished(again));
        QCOMPARE(c.circuits().front().hops[2].country.value(), u"de"_s);
    }

    void anEarlierReadingNeverReplacesALaterOne()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        const QByteArray other(40, 'D');
        answer(bench, {"12 BUILT $" + other + "~other PURPOSE=GENERAL", circuit("13")});
        const QByteArray question = "GETINFO ns/id/" + other;
        bench.tor.ignore(question); // the first refresh waits for this answer
        const auto first = c.refreshCircuits();
        QVERIFY(bench.hears(question.constData()));
        answer(bench, {circuit("13")}); // 12 has been closed
        QVERIFY(refresh(bench));
        QCOMPARE(ids(c), QStringList(u"13"_s));
        bench.tor.answerIgnored();
        QVERIFY(Workbench::finished(first));
        QCOMPARE(ids(c), QStringList(u"13"_s));
    }

    void aReadingThatEndsLastButBeganFirstIsDropped()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        const QByteArray question = "GETINFO stream-status";
        answer(bench, {circuit("12"), circuit("13")});
        bench.tor.ignore(question);
        const auto first = c.refreshCircuits();
        QVERIFY(bench.hears(question.constData()));
        const QByteArray other = "GETINFO circuit-status";
        bench.tor.closeAfter(other); // the second one fails at once
        bench.tor.reply(other, "");
        const auto second = c.refreshCircuits();
        QVERIFY(Workbench::finished(second));
        QVERIFY(c.circuitError() && c.circuits().empty());
        bench.tor.answerIgnored();
        QVERIFY(Workbench::finished(first));
        QVERIFY(c.circuits().empty()); // the older answer is outdated
        QVERIFY(c.circuitError());
    }
};

VELDMARK_TEST(CircuitsTest)
#include "CircuitsTest.moc"
