#include "cli/BridgesCommand.h"
#include "support/TestProgram.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

namespace {
QJsonObject object(const char *text)
{
    return QJsonDocument::fromJson(text).object();
}
} // namespace

class BridgesCommandTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void showsWhatWasFound()
    {
        const QString report = Report::bridges(object(R"({
            "programs": {"lyrebird": {"path": "/b/lyrebird", "serves": ["obfs4", "meek_lite"]},
                         "snowflake": {"path": "/usr/bin/snowflake-client", "serves": []}, "webtunnel": null},
            "builtin": {"obfs4": 10, "snowflake": 2}, "source": "Tor Expert Bundle 14.0.4",
            "bundle": {"version": "14.0.4", "verification": "signature"},
            "custom": {"valid": 2, "invalid": []}})"));
        QCOMPARE(report,
                 u"Programs\n"
                 "  lyrebird          /b/lyrebird\n"
                 "                    serves obfs4, meek_lite\n"
                 "  snowflake-client  /usr/bin/snowflake-client\n"
                 "                    doesn't say which transports it serves\n"
                 "  webtunnel-client  not found\n"
                 "Built-in bridges, from Tor Expert Bundle 14.0.4\n"
                 "  obfs4             10\n"
                 "  snowflake         2\n"
                 "Tor Expert Bundle\n"
                 "  14.0.4, signature verified\n"
                 "Your own bridges\n"
                 "  2 valid"_s);
    }

    void saysWhatIsMissingAndHowToGetIt()
    {
        QCOMPARE(Report::bridges(object(
                     R"({"programs": {"lyrebird": null, "snowflake": null, "webtunnel": null},
                     "builtin": {}, "source": "", "bundle": null, "custom": {"valid": 0, "invalid": []}})")),
                 u"Programs\n"
                 "  lyrebird          not found\n"
                 "  snowflake-client  not found\n"
                 "  webtunnel-client  not found\n"
                 "Built-in bridges\n"
                 "  none; get some with: veldmarkctl download-transports\n"
                 "Tor Expert Bundle\n"
                 "  not downloaded\n"
                 "Your own bridges\n"
                 "  0 valid"_s);
    }

    void anUnverifiedBundleIsCalledSo_data()
    {
        QTest::addColumn<QString>("verification");
        QTest::newRow("https") << u"https"_s;
        QTest::newRow("nothing") << QString();
        QTest::newRow("look-alike") << u"Signature"_s;
    }

    void anUnverifiedBundleIsCalledSo()
    {
        QFETCH(QString, verification);
        const QJsonObject bundle{{u"version"_s, u"14.0.4"_s}, {u"verification"_s, verification}};
        QVERIFY(Report::bridges({{u"bundle"_s, bundle}})
                    .contains(u"\n  14.0.4, signature not verified\n"_s));
    }

    void namesEachBadLineByItsNumber()
    {
        const QString report = Report::bridges(object(R"({"custom": {"valid": 1, "invalid": [
            {"line": 3, "text": "obfs4 example.org:443"}, {"line": 70000, "text": "x"}]}})"));
        QVERIFY(report.endsWith(u"\n  1 valid\n  line 3 is not a bridge line: obfs4 example.org:443"
                                "\n  line 70000 is not a bridge line: x"_s));
    }

    void aBadLineCannotSteerTheTerminal()
    {
        const QJsonObject invalid{{u"line"_s, 1},
                                  {u"text"_s, u"\x1b]0;x\x07"_s + QString(5000, u'y')}};
        const QString report = Report::bridges(
            {{u"custom"_s, QJsonObject{{u"valid"_s, 0}, {u"invalid"_s, QJsonArray{invalid}}}}});
        QVERIFY(report.endsWith(u'…'));
        QVERIFY(report.contains(u"line 1 is not a bridge line: ?]0;x?yyy"_s));
        QVERIFY(report.size() < 400);
    }
};

VELDMARK_TEST(BridgesCommandTest)
#include "BridgesCommandTest.moc"
