#include "circuits/CircuitParser.h"
#include "support/TestProgram.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <QSet>
#include <QTest>
#include <QTimeZone>

using namespace veldmark;
using namespace std::chrono_literals;

namespace {
const QString threeHops = QStringLiteral(
    "7 BUILT $AAAA~alpha,$BBBB~beta,$CCCC~gamma BUILD_FLAGS=NEED_CAPACITY PURPOSE=GENERAL "
    "TIME_CREATED=2024-05-01T10:20:30");

QDateTime utc(int year, int month, int day, int hour, int minute, int second, int ms = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute, second, ms), Qt::UTC);
}
} // namespace

class CircuitParserTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void readsABuiltCircuit()
    {
        const auto circuit = CircuitParser::circuit(threeHops);
        QVERIFY(circuit);
        QCOMPARE(circuit->id, QStringLiteral("7"));
        QCOMPARE(circuit->hops.size(), 3u);
        QCOMPARE(circuit->hops[0],
                 (RelayInfo{QStringLiteral("AAAA"), QStringLiteral("alpha"), {}, {}}));
        QCOMPARE(circuit->hops[1],
                 (RelayInfo{QStringLiteral("BBBB"), QStringLiteral("beta"), {}, {}}));
        QCOMPARE(circuit->hops[2],
                 (RelayInfo{QStringLiteral("CCCC"), QStringLiteral("gamma"), {}, {}}));
        QCOMPARE(circuit->purpose, QStringLiteral("GENERAL"));
        QCOMPARE(circuit->created, utc(2024, 5, 1, 10, 20, 30));
        QVERIFY(circuit->sites.isEmpty());
        QVERIFY(!circuit->isOneHopTunnel && !circuit->isInternal);
        QVERIFY(!circuit->roundTrip);
    }

    void skipsLinesThatAreNoBuiltCircuitWithAPath_data()
    {
        QTest::addColumn<QString>("line");
        QTest::newRow("empty") << QString();
        QTest::newRow("blanks") << QStringLiteral("    ");
        QTest::newRow("number only") << QStringLiteral("9");
        QTest::newRow("no path") << QStringLiteral("9 BUILT");
        QTest::newRow("keyword in place of the path")
            << QStringLiteral("9 BUILT BUILD_FLAGS=ONEHOP_TUNNEL PURPOSE=GENERAL");
        QTest::newRow("extended") << QStringLiteral("8 EXTENDED $AAAA~alpha");
        QTest::newRow("launched") << QStringLiteral("8 LAUNCHED PURPOSE=GENERAL");
        QTest::newRow("failed") << QStringLiteral("8 FAILED $AAAA~alpha REASON=TIMEOUT");
        QTest::newRow("closed") << QStringLiteral("8 CLOSED $AAAA~alpha");
        QTest::newRow("guard wait") << QStringLiteral("8 GUARD_WAIT $AAAA~alpha");
        QTest::newRow("lower case") << QStringLiteral("8 built $AAAA~alpha");
        QTest::newRow("word that begins like built") << QStringLiteral("8 BUILTIN $AAAA~alpha");
        QTest::newRow("no hops") << QStringLiteral("8 BUILT ,,,");
    }
    void skipsLinesThatAreNoBuiltCircuitWithAPath()
    {
        QFETCH(QString, line);
        QVERIFY(!CircuitParser::circuit(line));
    }

    void readsHops_data()
    {
        QTest::addColumn<QString>("element");
        QTest::addColumn<QString>("fingerprint");
        QTest::addColumn<QString>("nickname");
        const auto row = [](const char *name, const char *element, const char *fp,
                            const char *nick) {
            QTest::newRow(name) << QString::fromLatin1(element) << QString::fromLatin1(fp)
                                << QString::fromLatin1(nick);
        };
        row("tilde", "$abcd~Nick", "ABCD", "Nick");
        row("equals sign", "$ABCD=Nick", "ABCD", "Nick");
        row("no nickname", "$abcdef0123456789", "ABCDEF0123456789", "ABCDEF01");
        row("empty nickname", "$abcdef0123456789~", "ABCDEF0123456789", "ABCDEF01");
        row("doubled separators", "$ABCD~~==Nick", "ABCD", "Nick");
        row("third piece ignored", "$ABCD~Nick=x", "ABCD", "Nick");
        row("dollar sign only", "$", "", "");
        row("separators only", "$~=", "~=", "~=");
        row("short", "$ab", "AB", "AB");
        row("letter beyond ASCII", "$AB\xe9~Nick", "AB\xc9", "Nick");
    }
    void readsHops()
    {
        QFETCH(QString, element);
        QFETCH(QString, fingerprint);
        QFETCH(QString, nickname);
        const auto circuit = CircuitParser::circuit(QStringLiteral("1 BUILT ") + element);
        QVERIFY(circuit);
        QCOMPARE(circuit->hops, (std::vector<RelayInfo>{{fingerprint, nickname, {}, {}}}));
    }

    void skipsEmptyPiecesOfThePathAndTheLine()
    {
        const auto circuit = CircuitParser::circuit(
            u"  12   BUILT  $AA~a,,$BB~b,   PURPOSE=GENERAL  ");
        QVERIFY(circuit);
        QCOMPARE(circuit->id, QStringLiteral("12"));
        QCOMPARE(circuit->hops.size(), 2u);
    }

    void aCircuitWithoutPurposeIsGeneral()
    {
        const auto circuit = CircuitParser::circuit(u"12 BUILT $AA~a");
        QVERIFY(circuit);
        QCOMPARE(circuit->purpose, QStringLiteral("GENERAL"));
        QVERIFY(!circuit->created);
        for (const char *other : {"=PURPOSE=HS", "XPURPOSE=HS", "PURPOSEX=HS", "PURPOSE", "="})
            QCOMPARE(CircuitParser::circuit(QStringLiteral("12 BUILT $AA~a ")
                                            + QString::fromLatin1(other)),
                     circuit);
    }

    // As Tor 0.4.9 writes them.
    void readsConfluxLegs()
    {
        const auto leg = CircuitParser::circuit(
            u"41 BUILT $0123456789ABCDEF0123456789ABCDEF01234567~exit1 "
            u"BUILD_FLAGS=NEED_CAPACITY,NEED_UPTIME PURPOSE=CONFLUX_LINKED "
            u"TIME_CREATED=2026-01-02T03:04:05.678901 "
            u"CONFLUX_ID=00112233445566778899AABBCCDDEEFF CONFLUX_RTT=48211");
        QVERIFY(leg);
        QCOMPARE(leg->purpose, QStringLiteral("CONFLUX"));
        QCOMPARE(leg->confluxID, QStringLiteral("00112233445566778899AABBCCDDEEFF"));
        QCOMPARE(leg->roundTrip, std::optional(48211us));
        QCOMPARE(leg->created, utc(2026, 1, 2, 3, 4, 5, 678));

        const auto unlinked = CircuitParser::circuit(u"42 BUILT $AA~a PURPOSE=CONFLUX_UNLINKED");
        QVERIFY(unlinked);
        QCOMPARE(unlinked->purpose, QStringLiteral("CONFLUX_UNLINKED"));
    }

    void tellsDirectoryFetchesAndInternalCircuits()
    {
        const auto fetch = CircuitParser::circuit(
            u"3 BUILT $AA~a BUILD_FLAGS=ONEHOP_TUNNEL,IS_INTERNAL,NEED_CAPACITY PURPOSE=GENERAL");
        QVERIFY(fetch && fetch->isOneHopTunnel && fetch->isInternal);
        const auto internal = CircuitParser::circuit(
            u"3 BUILT $AA~a,$BB~b BUILD_FLAGS=IS_INTERNAL,NEED_UPTIME PURPOSE=GENERAL");
        QVERIFY(internal && !internal->isOneHopTunnel && internal->isInternal);
        const auto similar = CircuitParser::circuit(u"3 BUILT $AA~a BUILD_FLAGS=NOT_ONEHOP_TUNNEL");
        QVERIFY(similar && !similar->isOneHopTunnel);
    }

    // Tor quotes text that a program has chosen, and writes it after its own words.
    void whatAProgramChoosesIsNoWordOfTors()
    {
        const QString start = QStringLiteral(
            "4 BUILT $AA~a,$BB~b,$CC~c BUILD_FLAGS=NEED_CAPACITY PURPOSE=GENERAL "
            "TIME_CREATED=2024-05-01T10:20:30.000000 ");
        const auto plain = CircuitParser::circuit(start);
        for (const char *chosen :
             {"SOCKS_USERNAME=\"x PURPOSE=HS y\"",
              "SOCKS_USERNAME=\"x\" SOCKS_PASSWORD=\"\\\" PURPOSE=HS \"",
              "SOCKS_USERNAME=\" CONFLUX_ID=1 BUILD_FLAGS=ONEHOP_TUNNEL \"", "PURPOSE=HS_VANGUARDS",
              "TIME_CREATED=2030-05-01T10:20:30", "SOCKS_USERNAME=\"x CONFLUX_RTT=1"})
            QCOMPARE(CircuitParser::circuit(start + QString::fromLatin1(chosen)), plain);
        // The words after a string are Tor's again.
        const auto leg = CircuitParser::circuit(
            start + QStringLiteral("SOCKS_USERNAME=\"a b\" CONFLUX_ID=AB CONFLUX_RTT=1000"));
        QCOMPARE(leg->confluxID, QStringLiteral("AB"));
        QCOMPARE(leg->roundTrip, std::optional(1000us));
    }

    // As Tor 0.4.9 writes them.
    void namesTheOnionServiceThatTheUserVisits()
    {
        const QString service(56, u'b');
        const QString line = QStringLiteral(
            "9 BUILT $AA~a,$BB~b,$CC~c BUILD_FLAGS=IS_INTERNAL,NEED_CAPACITY "
            "PURPOSE=%1 HS_STATE=%2 REND_QUERY=%3 TIME_CREATED=2026-01-02T03:04:05.678901");
        const auto named = [&](const char *purpose, const char *state, const QString &query) {
            return CircuitParser::circuit(
                       line.arg(QString::fromLatin1(purpose), QString::fromLatin1(state), query))
                ->onionService;
        };
        QCOMPARE(named("HS_CLIENT_REND", "HSCR_JOINED", service),
                 service + QStringLiteral(".onion"));
        // no client has arrived yet
        QCOMPARE(named("HS_CLIENT_REND", "HSCR_ESTABLISHED_WAITING", service), QString());
        QCOMPARE(named("HS_CLIENT_REND", "HSCR_JOINED", QString()), QString());
        QCOMPARE(named("HS_CLIENT_INTRO", "HSCI_DONE", service), QString());
        // an onion service of this computer
        QCOMPARE(named("HS_SERVICE_REND", "HSSR_JOINED", service), QString());
    }

    void ignoresARoundTripThatIsNoNumber()
    {
        for (const QString &value : {QString(), QStringLiteral("-1"), QStringLiteral("x"),
                                     QStringLiteral("99999999999999999999999")})
            QVERIFY(!CircuitParser::circuit(QStringLiteral("1 BUILT $AA~a CONFLUX_RTT=") + value)
                         ->roundTrip);
    }

    void readsTimes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QDateTime>("expected"); // invalid: absent
        QTest::newRow("whole") << QStringLiteral("2024-05-01T10:20:30")
                               << utc(2024, 5, 1, 10, 20, 30);
        QTest::newRow("microseconds")
            << QStringLiteral("2024-05-01T10:20:30.123456") << utc(2024, 5, 1, 10, 20, 30, 123);
        QTest::newRow("one digit")
            << QStringLiteral("2024-05-01T10:20:30.5") << utc(2024, 5, 1, 10, 20, 30, 500);
        QTest::newRow("leap day") << QStringLiteral("2024-02-29T00:00:00")
                                  << utc(2024, 2, 29, 0, 0, 0);
        for (const char *bad :
             {"", "2024-05-01", "2024-05-01 10:20:30", "2023-02-29T00:00:00", "2024-13-01T10:20:30",
              "2024-05-01T24:00:00", "2024-05-01T10:20:61", "2024-05-01T10:20:30.",
              "2024-05-01T10:20:30Z", "2024-05-01T10:20:30.1x", "xxxx-05-01T10:20:30",
              "2024-05-01T1a:20:30", "-024-05-01T10:20:30"})
            QTest::newRow(bad) << QString::fromLatin1(bad) << QDateTime();
    }
    void readsTimes()
    {
        QFETCH(QString, text);
        QFETCH(QDateTime, expected);
        const auto time = CircuitParser::timeFormatter(text);
        QCOMPARE(time.has_value(), expected.isValid());
        if (time)
            QCOMPARE(*time, expected);
        QCOMPARE(
            CircuitParser::circuit(QStringLiteral("1 BUILT $AA~a TIME_CREATED=") + text)->created,
            time);
    }

    void readsStreams_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("circuitID"); // null: nothing
        QTest::addColumn<QString>("host");
        const auto row = [](const char *name, const char *line, const char *id, const char *host) {
            QTest::newRow(name) << QString::fromLatin1(line) << QString::fromLatin1(id)
                                << QString::fromLatin1(host);
        };
        row("attached", "12 SUCCEEDED 7 example.org:443 PURPOSE=USER", "7", "example.org");
        row("unattached", "12 SUCCEEDED 0 host:443", nullptr, nullptr);
        row("address", "13 SUCCEEDED 7 [2001:db8::1]:443", "7", "2001:db8::1");
        row("three pieces", "13 SUCCEEDED 7", nullptr, nullptr);
        row("extra blanks", " 13   SENTCONNECT  7  a.b:1 ", "7", "a.b");
        row("empty", "", nullptr, nullptr);
        row("resolve", "14 SENTRESOLVE 9 example.org:0", "9", "example.org");
        row("no port", "14 SUCCEEDED 9 example.org", "9", "example.org");
    }
    void readsStreams()
    {
        QFETCH(QString, line);
        QFETCH(QString, circuitID);
        QFETCH(QString, host);
        const auto stream = CircuitParser::stream(line);
        QCOMPARE(stream.has_value(), !circuitID.isNull());
        if (stream)
            QCOMPARE(
                *stream,
                (CircuitParser::StreamInfo{line.trimmed().section(u' ', 0, 0), circuitID, host}));
    }

    void takesTheHostFromATarget_data()
    {
        QTest::addColumn<QString>("target");
        QTest::addColumn<QString>("host");
        const auto row = [](const char *target, const char *host) {
            QTest::newRow(target) << QString::fromLatin1(target) << QString::fromLatin1(host);
        };
        row("example.org:443", "example.org");
        row("example.org", "example.org");
        row("[2001:db8::1]:443", "2001:db8::1");
        row("[2001:db8::1]", "2001:db8::1");
        row("2001:db8::1:443", "2001:db8::1");
        row("[broken:443", "[broken");
        row("[]:1", "");
        row(":443", "");
        row("", "");
        row("a]:1", "a]");
    }
    void takesTheHostFromATarget()
    {
        QFETCH(QString, target);
        QFETCH(QString, host);
        QCOMPARE(CircuitParser::host(target), host);
    }

    void readsARelaysAddressFromItsRouterLine_data()
    {
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QString>("ip"); // null: absent
        const QString router = QStringLiteral(
            "r test000a AaBb CcDd 2026-01-01 10:00:00 203.0.113.11 5000 0");
        QTest::newRow("router line")
            << QStringList{router, QStringLiteral("s Exit Fast")} << QStringLiteral("203.0.113.11");
        QTest::newRow("first of two") << QStringList{QStringLiteral("a [2001:db8::1]:1"), router,
                                                     QStringLiteral("r x a b c d 203.0.113.99 1")}
                                      << QStringLiteral("203.0.113.11");
        QTest::newRow("six pieces")
            << QStringList{QStringLiteral("r nick id digest 2026-01-01 10:00:00")} << QString();
        QTest::newRow("no router line")
            << QStringList{QStringLiteral("s Exit"), QStringLiteral("rx a b c d e f g")}
            << QString();
        QTest::newRow("empty") << QStringList() << QString();
        for (const char *bad :
             {"300.1.1.1", "1.2.3.256", "1.2.3", "1.2.3.4.5", "1.2.3.", ".1.2.3", "1..2.3",
              "a.b.c.d", "0001.2.3.4", "096.0.2.2", "1.2.3.00", "1.2.3.4\r\nQUIT"})
            QTest::newRow(bad)
                << QStringList{QStringLiteral("r n i d x y %1 1").arg(QString::fromLatin1(bad))}
                << QString();
    }
    void readsARelaysAddressFromItsRouterLine()
    {
        QFETCH(QStringList, lines);
        QFETCH(QString, ip);
        const auto found = CircuitParser::ipFromNetworkStatus(lines);
        QCOMPARE(found.has_value(), !ip.isNull());
        QCOMPARE(found.value_or(QString()), ip);
    }

    void findsABridgesAddressByItsFingerprint_data()
    {
        QTest::addColumn<QString>("fingerprint");
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QString>("ip"); // null: absent
        const QString fp = QStringLiteral("0123456789ABCDEF0123456789ABCDEF01234567");
        const QString other = QStringLiteral("AAAAAAAAAABBBBBBBBBBCCCCCCCCCCDDDDDDDDDD");
        const QString obfs4
            = QStringLiteral("obfs4 203.0.113.30:4443 %1 cert=x iat-mode=0").arg(fp);
        QTest::newRow("obfs4") << fp << QStringList{obfs4} << QStringLiteral("203.0.113.30");
        QTest::newRow("lower case in the line")
            << fp << QStringList{obfs4.toLower()} << QStringLiteral("203.0.113.30");
        QTest::newRow("lower case asked")
            << fp.toLower() << QStringList{obfs4} << QStringLiteral("203.0.113.30");
        QTest::newRow("plain bridge") << fp << QStringList{QStringLiteral("203.0.113.9:9001 ") + fp}
                                      << QStringLiteral("203.0.113.9");
        QTest::newRow("with the word Bridge and a dollar sign")
            << fp << QStringList{QStringLiteral("Bridge 203.0.113.9:9001 $") + fp}
            << QStringLiteral("203.0.113.9");
        QTest::newRow("IPv6")
            << fp
            << QStringList{QStringLiteral(
                               "webtunnel [2001:db8::7]:443 %1 url=https://a.example:8443/x")
                               .arg(fp)}
            << QStringLiteral("2001:db8::7");
        QTest::newRow("second line")
            << fp << QStringList{QStringLiteral("obfs4 203.0.113.1:1 ") + other, obfs4}
            << QStringLiteral("203.0.113.30");
        QTest::newRow("inside the certificate only")
            << fp
            << QStringList{QStringLiteral("obfs4 203.0.113.1:1 %1 cert=%2").arg(other, fp),
                           QStringLiteral("obfs4 203.0.113.1:1 %1 cert=xx%2xx").arg(other, fp)}
            << QString();
        QTest::newRow("part of a longer word")
            << fp << QStringList{QStringLiteral("obfs4 203.0.113.1:1 ") + fp + u'0'} << QString();
        QTest::newRow("part of the fingerprint asked")
            << fp.left(8) << QStringList{obfs4} << QString();
        QTest::newRow("no address")
            << fp << QStringList{QStringLiteral("obfs4 ") + fp} << QString();
        QTest::newRow("words with a colon that are no address")
            << fp
            << QStringList{QStringLiteral("url:https :1 203.0.113.1: a=b:1 203.0.113.30:4443 ")
                           + fp}
            << QStringLiteral("203.0.113.30");
        QTest::newRow("no lines") << fp << QStringList() << QString();
        QTest::newRow("no fingerprint asked")
            << QString() << QStringList{QStringLiteral("1.2.3.4:1"), QString()} << QString();
    }
    void findsABridgesAddressByItsFingerprint()
    {
        QFETCH(QString, fingerprint);
        QFETCH(QStringList, lines);
        QFETCH(QString, ip);
        const auto found = CircuitParser::ipOfBridge(fingerprint, lines);
        QCOMPARE(found.has_value(), !ip.isNull());
        QCOMPARE(found.value_or(QString()), ip);
    }

    void readsACountry()
    {
        QCOMPARE(CircuitParser::country({QStringLiteral("de")}), QStringLiteral("de"));
        QCOMPARE(CircuitParser::country({QStringLiteral("AZ")}), QStringLiteral("AZ"));
        QCOMPARE(CircuitParser::country({QStringLiteral("za")}), QStringLiteral("za"));
        QVERIFY(!CircuitParser::country({QStringLiteral("??")}));
        QVERIFY(!CircuitParser::country({QStringLiteral("deu")}));
        QVERIFY(!CircuitParser::country({QString()}));
        QVERIFY(!CircuitParser::country({}));
    }

    void makesFlagsFromTwoLetters()
    {
        QCOMPARE(CircuitParser::flag(u"de"), QString::fromUtf8("\xF0\x9F\x87\xA9\xF0\x9F\x87\xAA"));
        QCOMPARE(CircuitParser::flag(u"DE"), CircuitParser::flag(u"de"));
        for (const QString &bad :
             {QString(), QStringLiteral("??"), QStringLiteral("d"), QStringLiteral("deu"),
              QStringLiteral("d1"), QStringLiteral("é!")})
            QCOMPARE(CircuitParser::flag(bad), QString());
    }

    void recordsCompareAndHashOverAllFields()
    {
        const CircuitInfo original = *CircuitParser::circuit(
            u"7 BUILT $AAAA~alpha PURPOSE=CONFLUX_LINKED TIME_CREATED=2024-05-01T10:20:30 "
            u"CONFLUX_ID=AB CONFLUX_RTT=5");
        std::vector<CircuitInfo> variants(12, original);
        variants[1].id = QStringLiteral("8");
        variants[2].hops.front().ip = QString();
        variants[3].hops.front().country = QStringLiteral("de");
        variants[4].hops.front().nickname = QStringLiteral("other");
        variants[5].created.reset();
        variants[6].sites = QStringList{QStringLiteral("a")};
        variants[7].confluxID.clear();
        variants[8].roundTrip = 6us;
        variants[9].isInternal = true;
        variants[10].isOneHopTunnel = true;
        variants[11].askers = {{QStringLiteral("a"), {QStringLiteral("app")}}};
        QSet<CircuitInfo> distinct;
        for (const CircuitInfo &variant : variants)
            distinct.insert(variant);
        QCOMPARE(distinct.size(), 12);
        QVERIFY(distinct.contains(original));
    }

    void writesRecordsAsJson()
    {
        CircuitInfo circuit = *CircuitParser::circuit(
            u"7 BUILT $AAAA~alpha,$BBBB~beta PURPOSE=GENERAL TIME_CREATED=2024-05-01T10:20:30.25");
        circuit.hops[0].ip = QStringLiteral("203.0.113.1");
        circuit.hops[0].country = QStringLiteral("de");
        circuit.sites = QStringList{QStringLiteral("example.org")};
        QCOMPARE(
            QJsonDocument(circuit.toJson()).toJson(QJsonDocument::Compact),
            QByteArray(
                R"({"created":"2024-05-01T10:20:30.250Z","hops":[)"
                R"({"country":"de","fingerprint":"AAAA","ip":"203.0.113.1","nickname":"alpha"},)"
                R"({"country":null,"fingerprint":"BBBB","ip":null,"nickname":"beta"}],)"
                R"("id":"7","purpose":"GENERAL","sites":["example.org"]})"));
        const CircuitInfo leg = *CircuitParser::circuit(u"8 BUILT $AA CONFLUX_RTT=48211");
        QVERIFY(leg.toJson().value(QStringLiteral("created")).isNull());
        QCOMPARE(leg.toJson().value(QStringLiteral("rtt")).toInt(), 48211);
    }

    void randomTextGivesNothingWorseThanARecord()
    {
        QRandomGenerator random(20240501);
        const QString alphabet = QStringLiteral(
                                     "0 19$~=,:[]AbBUILT.PURPOSE=TIME_CREATED-T\t\r\u00e9")
            + QChar(0) + QChar(0xD83D);
        for (int round = 0; round < 20000; ++round) {
            QString text = random.bounded(2) ? QStringLiteral("5 BUILT $") : QString();
            const int length = random.bounded(60);
            for (int i = 0; i < length; ++i)
                text += alphabet[random.bounded(static_cast<int>(alphabet.size()))];
            const auto circuit = CircuitParser::circuit(text);
            QVERIFY(!circuit || !circuit->hops.empty());
            CircuitParser::stream(text);
            CircuitParser::host(text);
            CircuitParser::timeFormatter(text);
            CircuitParser::flag(text);
            CircuitParser::country({text});
            CircuitParser::ipFromNetworkStatus({QStringLiteral("r ") + text});
            CircuitParser::ipOfBridge(u"A", {text});
        }
    }
};

VELDMARK_BARE_TEST(CircuitParserTest)
#include "CircuitParserTest.moc"
