#include "bridges/BridgeText.h"
#include "support/TestProgram.h"

#include <QElapsedTimer>
#include <QTest>

using namespace veldmark;

namespace {
// FP stands for a fingerprint, CERT for obfs4's.
QString writtenOut(const char *utf8)
{
    return QString::fromUtf8(utf8)
        .replace(QStringLiteral("FP"), QStringLiteral("0123456789ABCDEF0123456789ABCDEF01234567"))
        .replace(QStringLiteral("CERT"),
                 QStringLiteral("ssH+9rP8dG2NLDN2XuFw63hIO/9MNNinLmxQDpVa+7kTOa9/m+tGWT1SmSYpQ9uTB"
                                "GaA4w"));
}
} // namespace

class BridgeTextTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void findsBridges_data()
    {
        QTest::addColumn<QString>("given");
        QTest::addColumn<QString>("lines");
        const auto row = [](const char *name, const char *given, const char *lines) {
            QTest::newRow(name) << writtenOut(given) << writtenOut(lines);
        };
        const auto one = "obfs4 192.0.2.1:443 FP cert=CERT iat-mode=0";
        row("a line", one, one);
        row("torrc's keyword", "Bridge obfs4 192.0.2.1:443 FP cert=CERT iat-mode=0", one);
        row("an e-mail's quotes",
            "Hello!\n> > Here are your bridges:\n> > obfs4 192.0.2.1:443 FP cert=CERT "
            "iat-mode=0\n>\n> Have a nice day at example.org:80.\n",
            one);
        row("lines that the e-mail wrapped",
            "> obfs4 192.0.2.1:443\r\n> FP\r\n> cert=CERT\r\n> iat-mode=0\r\n> obfs4 is what\r\n",
            one);
        row("an e-mail's transfer encoding", "obfs4 192.0.2.1:443 FP cert=3DCERT ia=\r\nt-mode=3D0",
            one);
        row("a web page's source",
            "<pre id=\"bridgelines\">obfs4 192.0.2.1:443 FP cert&#61;CERT iat-mode=0<br>\n"
            "webtunnel [2001:db8::1]:443 FP url=https://a.example/x?a=1&amp;b=2 ver=0.0.1</pre>",
            "obfs4 192.0.2.1:443 FP cert=CERT iat-mode=0|"
            "webtunnel [2001:db8::1]:443 FP url=https://a.example/x?a=1&b=2 ver=0.0.1");
        row("a list of a program",
            "['obfs4 192.0.2.1:443 FP cert=CERT iat-mode=0', 'obfs4 192.0.2.2:443 FP cert=CERT "
            "iat-mode=0']",
            "obfs4 192.0.2.1:443 FP cert=CERT iat-mode=0|"
            "obfs4 192.0.2.2:443 FP cert=CERT iat-mode=0");
        row("JSON",
            R"({"bridge_strings":["webtunnel [2001:db8::1]:443 FP url=https:\/\/a.example\/x"],)"
            R"("lines":"obfs4 192.0.2.1:443 FP cert=CERT iat-mode=0\n192.0.2.7:9001 FP\n"})",
            "webtunnel [2001:db8::1]:443 FP url=https://a.example/x|"
            "obfs4 192.0.2.1:443 FP cert=CERT iat-mode=0|192.0.2.7:9001 FP");
        row("blanks of other scripts and none that can be seen",
            "\ufeffobfs4\u3000192.0.2.1:443\u00a0FP\u2003cert=CERT\u200b iat-mode=0", one);
        row("a numbered list",
            "1. obfs4 192.0.2.1:443 FP cert=CERT iat-mode=0.\n2) 192.0.2.7:9001 FP,\n",
            "obfs4 192.0.2.1:443 FP cert=CERT iat-mode=0|192.0.2.7:9001 FP");
        row("quotation marks", "Take \u201cObfs4 192.0.2.1:443 FP cert=CERT iat-mode=0\u201d!",
            one);
        row("a repeated one",
            "obfs4 192.0.2.1:443 FP cert=CERT iat-mode=0\nBridge obfs4 192.0.2.1:443 FP cert=CERT "
            "iat-mode=0",
            one);
        row("an address in a line of its own", "* 192.0.2.7:9001\n[2001:db8::1]:9001\n",
            "192.0.2.7:9001|[2001:db8::1]:9001");
        row("an address after the keyword", "Use Bridge 192.0.2.7:9001 instead", "192.0.2.7:9001");
        row("another transport in a line of its own", "newone 192.0.2.7:9001 key=value\n",
            "newone 192.0.2.7:9001 key=value");
        row("snowflake",
            "snowflake 192.0.2.3:80 FP fingerprint=FP url=https://a.example/ "
            "fronts=b.example,c.example ice=stun:d.example:3478,stun:e.example:3478",
            "snowflake 192.0.2.3:80 FP fingerprint=FP url=https://a.example/ "
            "fronts=b.example,c.example ice=stun:d.example:3478,stun:e.example:3478");

        row("nothing", "", "");
        row("addresses in sentences",
            "Connect to 192.0.2.7:9001 or open 192.0.2.8:80 in a browser. It is at 10:30.", "");
        row("a name", "obfs4 bridge.example:443 FP cert=CERT", "");
        row("no address", "obfs4 999.0.2.1:443 FP cert=CERT iat-mode=0", "");
        row("port 0", "obfs4 192.0.2.1:0 FP cert=CERT iat-mode=0", "");
        row("a port that is none", "obfs4 192.0.2.1:65536 FP cert=CERT iat-mode=0", "");
        row("characters of Tor's configuration", "obfs4 192.0.2.1:443 FP cert=a#b", "");
    }

    void findsBridges()
    {
        QFETCH(QString, given);
        QFETCH(QString, lines);
        QCOMPARE(BridgeText::found(given), lines.split(u'|', Qt::SkipEmptyParts));
    }

    void whatItFindsIsFoundAgain()
    {
        const QStringList found = BridgeText::found(
            writtenOut("a obfs4 192.0.2.1:443 FP cert=CERT b [2001:db8::1]:443 FP c"));
        QCOMPARE(found.size(), 2);
        QCOMPARE(BridgeText::found(found.join(u'\n')), found);
    }

    void aTextThatIsTooLongIsReadInPart()
    {
        const QString line = writtenOut("obfs4 192.0.2.1:443 FP cert=CERT iat-mode=0\n");
        const QString filler(BridgeText::longestText - line.size(), u'x');
        QCOMPARE(BridgeText::found(line + filler + writtenOut("\n192.0.2.7:9001 FP")).size(), 1);
        QCOMPARE(BridgeText::found(QString(BridgeText::longestText, u'<')).size(), 0);
        QCOMPARE(BridgeText::found(QString(BridgeText::longestText / 2, u'\n')).size(), 0);
    }
};

VELDMARK_TEST(BridgeTextTest)
#include "BridgeTextTest.moc"
