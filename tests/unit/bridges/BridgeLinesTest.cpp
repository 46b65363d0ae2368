#include "bridges/BridgeLines.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace veldmark;

namespace {
const QString fingerprint = QStringLiteral("0123456789ABCDEF0123456789ABCDEF01234567");

// FP stands for a fingerprint.
QString text(const char *utf8)
{
    return QString::fromUtf8(utf8).replace(QStringLiteral("FP"), fingerprint);
}
} // namespace

class BridgeLinesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void normalisesValidLines_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("normalised");
        const auto row = [](const char *name, const char *line, const char *result) {
            QTest::newRow(name) << text(line) << text(result);
        };
        row("obfs4", "bridge obfs4 192.0.2.1:443 FP cert=abc iat-mode=0",
            "obfs4 192.0.2.1:443 FP cert=abc iat-mode=0");
        row("loose plain", "  BRIDGE   192.0.2.1:9001   FP  ", "192.0.2.1:9001 FP");
        row("mixed case keyword", "bRiDgE 192.0.2.1:1", "192.0.2.1:1");
        row("only the first keyword", "bridge bridge 192.0.2.1:1", "bridge 192.0.2.1:1");
        row("keyword and tab", "bridge\t192.0.2.1:1", "bridge 192.0.2.1:1");
        row("tabs", "\tobfs4\t \t192.0.2.1:443\tFP\t", "obfs4 192.0.2.1:443 FP");
        row("other spaces around", "\u00a0\u3000192.0.2.1:443\u2003", "192.0.2.1:443");
        row("address alone", "192.0.2.1:443", "192.0.2.1:443");
        row("bracketed IPv6", "webtunnel [2001:db8::1]:443 FP url=https://example.org/x ver=0.0.1",
            "webtunnel [2001:db8::1]:443 FP url=https://example.org/x ver=0.0.1");
        row("bare IPv6", "2001:db8::1:443", "2001:db8::1:443");
        row("snowflake",
            "snowflake 192.0.2.3:80 FP fingerprint=FP url=https://a.example/ front=b.example",
            "snowflake 192.0.2.3:80 FP fingerprint=FP url=https://a.example/ front=b.example");
        row("port too large", "192.0.2.1:99999", "192.0.2.1:99999");
        row("case of the rest is kept", "bridge 192.0.2.1:1 AbC", "192.0.2.1:1 AbC");
        row("digits in a transport", "obfs3_x2 192.0.2.1:1", "obfs3_x2 192.0.2.1:1");
        row("all other printable ASCII", "192.0.2.1:1 !$%&'()*+,-./:;<=>?@[]^_`{|}~09AZaz",
            "192.0.2.1:1 !$%&'()*+,-./:;<=>?@[]^_`{|}~09AZaz");
    }

    void normalisesValidLines()
    {
        QFETCH(QString, line);
        QFETCH(QString, normalised);
        const ParsedBridgeLines parsed = BridgeLines::parse(line);
        QCOMPARE(parsed.lines, QStringList{normalised});
        QVERIFY(parsed.invalid.isEmpty());
    }

    void rejectsOtherLines_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("normalised");
        const auto row = [](const char *name, const QString &line, const QString &result) {
            QTest::newRow(name) << line << result;
        };
        const auto same = [&row](const char *name, const char *line) {
            row(name, text(line), text(line));
        };
        same("host name", "obfs4 example.org:443 FP");
        same("capital transport", "OBFS4 192.0.2.1:443 FP");
        same("no port", "192.0.2.1");
        same("empty port", "obfs4 192.0.2.1: FP");
        same("transport alone", "obfs4");
        same("transport beginning with a digit", "4obfs 192.0.2.1:443");
        same("hyphen in a transport", "meek-azure 192.0.2.1:443");
        same("two transports", "obfs4 obfs4 192.0.2.1:443");
        same("port with letters", "192.0.2.1:44x");
        same("letters beyond ASCII", "192.0.2.1:443 cért=1");
        same("space beyond ASCII inside", "192.0.2.1:443\u00a0FP");
        same("digits beyond ASCII", "192.0.2.1:٤٤٣");
        same("zero-width space in front", "\u200b192.0.2.1:443");
        // Text that has another meaning in Tor's configuration.
        same("a comment behind it", "192.0.2.1:443 FP # mine");
        same("a mark within", "obfs4 192.0.2.1:443 cert=a#b");
        same("a quotation mark", "obfs4 192.0.2.1:443 cert=\"a\"");
        same("a backslash at the end", "192.0.2.1:443 FP\\");
        same("a backslash within", "obfs4 192.0.2.1:443 cert=a\\b");
        row("NUL", QStringLiteral("192.0.2.1:443 a") + QChar(0),
            QStringLiteral("192.0.2.1:443 a") + QChar(0));
        row("lone surrogate", QStringLiteral("192.0.2.1:443 ") + QChar(0xd800),
            QStringLiteral("192.0.2.1:443 ") + QChar(0xd800));
        row("broken UTF-8", QString::fromUtf8("192.0.2.1:443 \xff\xfe"),
            QStringLiteral("192.0.2.1:443 ��"));
        row("keyword is cut also here", text("Bridge obfs4 example.org:443"),
            text("obfs4 example.org:443"));
        row("keyword alone", QStringLiteral("bridge"), QStringLiteral("bridge"));
        row("option of another program", QStringLiteral("--bridge 192.0.2.1:443"),
            QStringLiteral("--bridge 192.0.2.1:443"));
    }

    void rejectsOtherLines()
    {
        QFETCH(QString, line);
        QFETCH(QString, normalised);
        const ParsedBridgeLines parsed = BridgeLines::parse(line);
        QCOMPARE(parsed.invalid, QStringList{normalised});
        QVERIFY(parsed.lines.isEmpty());
    }

    void skipsCommentsAndBlankLines_data()
    {
        QTest::addColumn<QString>("line");
        for (const char *line : {"", "   ", "# obfs4 192.0.2.1:443", "   #x", "\t#", "bridge # x",
                                 "\u00a0", "bridge  "})
            QTest::newRow(qPrintable(QStringLiteral("<%1>").arg(QString::fromUtf8(line))))
                << QString::fromUtf8(line);
    }

    void skipsCommentsAndBlankLines()
    {
        QFETCH(QString, line);
        if (line == QStringLiteral("bridge  ")) {
            // Trimming removes the blank that makes it the keyword, so this is an ordinary word.
            QCOMPARE(BridgeLines::parse(line).invalid, QStringList{QStringLiteral("bridge")});
            return;
        }
        const ParsedBridgeLines parsed = BridgeLines::parse(line);
        QVERIFY(parsed.lines.isEmpty());
        QVERIFY(parsed.invalid.isEmpty());
    }

    void everyUnicodeLineBreakEndsALine_data()
    {
        QTest::addColumn<QString>("lineBreak");
        for (const char16_t c : {u'\n', u'\v', u'\f', u'\r', u'\u0085', u'\u2028', u'\u2029'})
            QTest::addRow("U+%04X", unsigned(c)) << QString(QChar(c));
        QTest::newRow("CR LF") << QStringLiteral("\r\n");
    }

    void everyUnicodeLineBreakEndsALine()
    {
        QFETCH(QString, lineBreak);
        const QString joined = QStringLiteral("192.0.2.1:1") + lineBreak + QStringLiteral("x")
            + lineBreak + lineBreak + QStringLiteral("192.0.2.2:2") + lineBreak
            + QStringLiteral("y") + lineBreak;
        const ParsedBridgeLines parsed = BridgeLines::parse(joined);
        QCOMPARE(parsed.lines,
                 QStringList({QStringLiteral("192.0.2.1:1"), QStringLiteral("192.0.2.2:2")}));
        QCOMPARE(parsed.invalid, QStringList({QStringLiteral("x"), QStringLiteral("y")}));
        QCOMPARE(parsed.invalidLineNumbers, std::vector<int>({2, 5}));
    }

    void keepsOrderAndRepetitions()
    {
        const ParsedBridgeLines parsed = BridgeLines::parse(
            QStringLiteral("192.0.2.2:2\nbad one\n192.0.2.1:1\n192.0.2.2:2\nbad one\n"));
        QCOMPARE(parsed.lines,
                 QStringList({QStringLiteral("192.0.2.2:2"), QStringLiteral("192.0.2.1:1"),
                              QStringLiteral("192.0.2.2:2")}));
        QCOMPARE(parsed.invalid,
                 QStringList({QStringLiteral("bad one"), QStringLiteral("bad one")}));
        QCOMPARE(parsed.invalidLineNumbers, std::vector<int>({2, 5}));
    }

    void emptyTextYieldsNothing()
    {
        QVERIFY(BridgeLines::parse(QString()).lines.isEmpty());
        QVERIFY(BridgeLines::parse(QStringLiteral("\r\n\r\n")).invalid.isEmpty());
    }

    void aLineThatIsNotSplitIsNoExcuseForALineBreak()
    {
        QVERIFY(BridgeLines::isValid(u"192.0.2.1:443"));
        QVERIFY(!BridgeLines::isValid(u"192.0.2.1:443\n"));
        QVERIFY(!BridgeLines::isValid(u"192.0.2.1:443 a\nb"));
        QVERIFY(!BridgeLines::isValid(u"x\n192.0.2.1:443"));
    }

    void manyLinesAndLongLinesAreRead()
    {
        QString many;
        for (int i = 0; i < 100'000; ++i)
            many += QStringLiteral("Bridge obfs4 192.0.2.%1:%2 %3 cert=abc iat-mode=0\r\n")
                        .arg(i % 256)
                        .arg(i % 65536)
                        .arg(fingerprint);
        QElapsedTimer timer;
        timer.start();
        const ParsedBridgeLines parsed = BridgeLines::parse(many);
        QCOMPARE(parsed.lines.size(), BridgeLines::mostLines);
        QCOMPARE(parsed.surplusLineNumbers.size(), std::size_t(100'000 - BridgeLines::mostLines));
        qInfo("100,000 lines: %lld ms", timer.elapsed());

        QString longLine = QStringLiteral("192.0.2.1:11");
        while (longLine.size() < BridgeLines::longestLine)
            longLine += QStringLiteral(" a");
        QVERIFY(BridgeLines::isValid(longLine));
        QVERIFY(!BridgeLines::isValid(longLine + u'a'));
        QVERIFY(!BridgeLines::isValid(longLine.chopped(1) + u'\n'));
        const qsizetype half = BridgeLines::longestLine / 2 - 1;
        QVERIFY(!BridgeLines::isValid(QStringLiteral("1:").repeated(half) + u'x'));
        QVERIFY(!BridgeLines::isValid(QStringLiteral("a").repeated(2 * half)));
        QVERIFY(BridgeLines::isValid(QStringLiteral("1:").repeated(half) + u'1'));
        QVERIFY(!BridgeLines::isValid(QStringLiteral("1:").repeated(1'000'000) + u'1'));
    }

    // As many as the helper takes.
    void whatIsMoreThanCanBeUsedIsNamed()
    {
        QString text = QStringLiteral("# mine\n");
        for (int i = 0; i < 100; ++i)
            text += QStringLiteral("192.0.2.1:%1\n").arg(i + 1);
        ParsedBridgeLines parsed = BridgeLines::parse(text);
        QCOMPARE(parsed.lines.size(), 100);
        QVERIFY(parsed.surplusLineNumbers.empty());
        QVERIFY(BridgeLines::custom(text));
        text += QStringLiteral("nonsense\n192.0.2.1:101\n\n192.0.2.1:102\n");
        parsed = BridgeLines::parse(text);
        QCOMPARE(parsed.lines.size(), 100);
        QCOMPARE(parsed.lines.constLast(), QStringLiteral("192.0.2.1:100"));
        QCOMPARE(parsed.surplusLineNumbers, std::vector<int>({103, 105}));
        QCOMPARE(parsed.invalidLineNumbers, std::vector<int>({102}));
        text.remove(QStringLiteral("nonsense\n"));
        QCOMPARE(
            BridgeLines::custom(text).error().description(),
            QStringLiteral(
                "At most 100 custom bridges can be used. Remove some under Bridges → Custom…."));
    }

    void findsTheTransport_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("transport");
        QTest::newRow("obfs4") << "obfs4 192.0.2.1:443"
                               << "obfs4";
        QTest::newRow("webtunnel") << "webtunnel [2001:db8::1]:443"
                                   << "webtunnel";
        QTest::newRow("alone") << "snowflake"
                               << "snowflake";
        QTest::newRow("blanks in front") << "   meek_lite 192.0.2.1:1"
                                         << "meek_lite";
        QTest::newRow("plain") << "192.0.2.1:443 0123"
                               << "";
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("blanks") << "   "
                                << "";
        QTest::newRow("capitals") << "Obfs4 192.0.2.1:443"
                                  << "";
        QTest::newRow("hyphen") << "meek-azure 192.0.2.1:443"
                                << "";
        QTest::newRow("line break") << "obfs4\n 192.0.2.1:443"
                                    << "";
    }

    void findsTheTransport()
    {
        QFETCH(QString, line);
        QFETCH(QString, transport);
        QCOMPARE(BridgeLines::transport(line).value_or(QString()), transport);
    }

    void findsTheAddress_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("host");
        QTest::addColumn<int>("port"); // -1: none
        QTest::newRow("plain") << "192.0.2.1:443 0123"
                               << "192.0.2.1" << 443;
        QTest::newRow("second word")
            << "snowflake 192.0.2.3:80 0123 fingerprint=0123 url=https://a/ front=b"
            << "192.0.2.3" << 80;
        QTest::newRow("brackets") << "webtunnel [2001:db8::1]:443 url=https://a/"
                                  << "2001:db8::1" << 443;
        QTest::newRow("bare IPv6 gives up its last group") << "2001:db8::1:443"
                                                           << "2001:db8::1" << 443;
        QTest::newRow("arguments in front") << "x url=https://a:1/ 192.0.2.1:2"
                                            << "192.0.2.1" << 2;
        QTest::newRow("largest port") << "192.0.2.1:65535"
                                      << "192.0.2.1" << 65535;
        QTest::newRow("leading zeros") << "192.0.2.1:000443"
                                       << "192.0.2.1" << 443;
        QTest::newRow("port zero") << "192.0.2.1:0"
                                   << "192.0.2.1" << 0;
        QTest::newRow("no closing bracket") << "[2001:db8::1:443"
                                            << "[2001:db8::1" << 443;
        QTest::newRow("port too large") << "192.0.2.1:99999"
                                        << "" << -1;
        QTest::newRow("port of 65536") << "192.0.2.1:65536"
                                       << "" << -1;
        QTest::newRow("port of many digits") << "192.0.2.1:4294967297"
                                             << "" << -1;
        QTest::newRow("empty port") << "192.0.2.1:"
                                    << "" << -1;
        QTest::newRow("signed port") << "192.0.2.1:+443"
                                     << "" << -1;
        QTest::newRow("brackets, no port") << "[2001:db8::1]"
                                           << "" << -1;
        QTest::newRow("brackets, empty port") << "[2001:db8::1]:"
                                              << "" << -1;
        QTest::newRow("brackets, other text") << "[2001:db8::1]x443"
                                              << "" << -1;
        QTest::newRow("no address") << "obfs4 cert=a:b"
                                    << "" << -1;
        QTest::newRow("empty") << ""
                               << "" << -1;
        // The first such word decides, also when a later one would be valid.
        QTest::newRow("first word with a colon") << "a:b 192.0.2.1:443"
                                                 << "" << -1;
    }

    void findsTheAddress()
    {
        QFETCH(QString, line);
        QFETCH(QString, host);
        QFETCH(int, port);
        const std::optional<BridgeAddress> address = BridgeLines::address(line);
        QCOMPARE(address.has_value(), port >= 0);
        if (address) {
            QCOMPARE(address->host, host);
            QCOMPARE(int(address->port), port);
        }
    }

    void checksTheUsersList_data()
    {
        QTest::addColumn<QString>("list");
        QTest::addColumn<QString>("error");
        const QString invalid = QStringLiteral(
            "Some custom bridge lines aren't valid. Fix them under Bridges → Custom….");
        const QString none = QStringLiteral("Add at least one bridge under Bridges → Custom….");
        QTest::newRow("good") << "192.0.2.1:443\n# note\n"
                              << "";
        QTest::newRow("one good, one bad") << "192.0.2.1:443\nexample.org:443" << invalid;
        QTest::newRow("only bad") << "example.org:443" << invalid;
        QTest::newRow("a mark of comments") << "192.0.2.1:443 #mine" << invalid;
        QTest::newRow("empty") << "" << none;
        QTest::newRow("comments") << "# a\n\n" << none;
    }

    void checksTheUsersList()
    {
        QFETCH(QString, list);
        QFETCH(QString, error);
        const Result<QStringList, BridgeError> lines = BridgeLines::custom(list);
        QCOMPARE(lines.has_value(), error.isEmpty());
        if (lines)
            QCOMPARE(*lines, QStringList{QStringLiteral("192.0.2.1:443")});
        else
            QCOMPARE(lines.error().description(), error);
    }
};

VELDMARK_TEST(BridgeLinesTest)
#include "BridgeLinesTest.moc"
