#include "bridges/TransportFiles.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace veldmark;
using Bridges = QMap<QString, QStringList>;

class TransportFilesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void readsTheBridgesOfAConfiguration()
    {
        const Bridges bridges = bridgesOfTransportConfiguration(
            "{\n"
            "\"recommendedDefault\": \"obfs4\",\n"
            "\"bridges\": {\n"
            "\"obfs4\": [\"  Bridge  obfs4\\t192.0.2.1:443  AA \", \"obfs4 example.org:443 AA\", \"obfs4 192.0.2.2:443\"],\n"
            "\"meek-azure\": [\"meek_lite 192.0.2.3:80 BB url=https://a.example/\"],\n"
            "\"empty\": []\n"
            "}}");
        QCOMPARE(bridges,
                 (Bridges{{QStringLiteral("obfs4"),
                           {QStringLiteral("obfs4 192.0.2.1:443 AA"),
                            QStringLiteral("obfs4 192.0.2.2:443")}},
                          {QStringLiteral("meek-azure"),
                           {QStringLiteral("meek_lite 192.0.2.3:80 BB url=https://a.example/")}},
                          {QStringLiteral("empty"), {}}}));
    }

    void anythingElseHasNoBridges_data()
    {
        QTest::addColumn<QByteArray>("json");
        const QByteArray deep = QByteArray("[").repeated(100'000);
        for (const QByteArray &json :
             {QByteArray(), QByteArray("{"), QByteArray("[]"), QByteArray("\"x\""),
              QByteArray("{}"), QByteArray(R"({"bridges": []})"),
              QByteArray(R"({"bridges": "obfs4 192.0.2.1:1"})"),
              QByteArray(R"({"bridges": {"obfs4": "obfs4 192.0.2.1:1"}})"),
              QByteArray(R"({"bridges": {"obfs4": ["obfs4 192.0.2.1:1", 7]}})"),
              QByteArray(R"({"bridges": {"obfs4": ["obfs4 192.0.2.1:1"], "meek": null}})"),
              QByteArray(R"({"bridges": {"obfs4": ["obfs4 192.0.2.1:1\nRunAsDaemon 1"]}})"),
              QByteArray(R"({"bridges": {"obfs4": ["obfs4 192.0.2.1:1\n"]}})"),
              QByteArray(R"({"bridges": {"obfs4": ["obfs4 example.org:1"]}})"),
              QByteArray("\xff\xfe\x00", 3), deep})
            QTest::newRow(json.left(60).toPercentEncoding(" {}[]\":").constData()) << json;
    }

    void anythingElseHasNoBridges()
    {
        QFETCH(QByteArray, json);
        QCOMPARE(bridgesOfTransportConfiguration(json), Bridges());
    }

    void readsWhatAPluginLineLetsAProgramServe_data()
    {
        QTest::addColumn<QByteArray>("lines");
        QTest::addColumn<QStringList>("transports");
        const QStringList both = {QStringLiteral("obfs4"), QStringLiteral("snowflake")};
        QTest::newRow("lyrebird") << QByteArray(
            R"({"a": "ClientTransportPlugin obfs4,snowflake exec ${pt_path}lyrebird"})")
                                  << both;
        QTest::newRow("with arguments") << QByteArray(
            R"({"a": "ClientTransportPlugin obfs4,snowflake exec /x/lyrebird -enableLogging"})")
                                        << both;
        QTest::newRow("two lines") << QByteArray(
            R"({"a": "ClientTransportPlugin obfs4 exec ${pt_path}lyrebird", "b": "ClientTransportPlugin snowflake exec ${pt_path}lyrebird"})")
                                   << both;
        QTest::newRow("another program") << QByteArray(
            R"({"a": "ClientTransportPlugin snowflake exec ${pt_path}snowflake-client"})")
                                         << QStringList();
        QTest::newRow("longer name")
            << QByteArray(R"({"a": "ClientTransportPlugin snowflake exec ${pt_path}notlyrebird"})")
            << QStringList();
        QTest::newRow("not exec") << QByteArray(
            R"({"a": "ClientTransportPlugin snowflake socks5 lyrebird"})")
                                  << QStringList();
        QTest::newRow("short") << QByteArray(R"({"a": "ClientTransportPlugin snowflake exec"})")
                               << QStringList();
        QTest::newRow("not a text")
            << QByteArray(R"({"a": 7, "b": ["snowflake"]})") << QStringList();
        QTest::newRow("not an object") << QByteArray("7") << QStringList();
    }

    void readsWhatAPluginLineLetsAProgramServe()
    {
        QFETCH(QByteArray, lines);
        QFETCH(QStringList, transports);
        QCOMPARE(transportsOfPluginLines("{\"pluggableTransports\": " + lines + "}",
                                         QStringLiteral("lyrebird")),
                 transports);
    }

    void readsTheBridgesOfPreferences()
    {
        const Bridges bridges = bridgesOfPreferences(QStringLiteral(
            "\n"
            "// pref(\"other\", \"obfs4 192.0.2.99:1\");\n"
            "pref(\"extensions.torlauncher.default_bridge_recommended_type\", \"obfs4\");\n"
            "pref(\"extensions.torlauncher.default_bridge.obfs4.1\", \"obfs4 192.0.2.1:443 AA cert=a\");\n"
            "pref(\"extensions.torlauncher.default_bridge.meek-azure.1\",\n"
            "\"meek_lite 192.0.2.2:80 BB url=https://a.example/\");\n"
            "pref(\"extensions.torlauncher.default_bridge.obfs4.2\",\t\"Bridge  obfs4  192.0.2.3:443 CC\");\n"
            "pref(\"extensions.torlauncher.default_bridge.plain.1\", \"192.0.2.4:443 DD\");\n"
            "pref(\"extensions.torlauncher.default_bridge.bad.1\", \"obfs4 example.org:443 EE\");\n"
            "pref(\"extensions.torlauncher.default_bridge.bad.2\", \"obfs4 192.0.2.5:443\n"
            "Log debug\");\n"
            "pref(\"extensions.torlauncher.default_bridge.\", \"obfs4 192.0.2.6:443\");\n"
            ""));
        QCOMPARE(bridges,
                 (Bridges{{QStringLiteral("obfs4"),
                           {QStringLiteral("obfs4 192.0.2.1:443 AA cert=a"),
                            QStringLiteral("obfs4 192.0.2.3:443 CC")}},
                          {QStringLiteral("meek_lite"),
                           {QStringLiteral("meek_lite 192.0.2.2:80 BB url=https://a.example/")}}}));
    }

    void otherTextHasNoPreferences()
    {
        QVERIFY(bridgesOfPreferences(QString()).isEmpty());
        QVERIFY(bridgesOfPreferences(QStringLiteral("pref(\"").repeated(200'000)).isEmpty());
    }
};

VELDMARK_TEST(TransportFilesTest)
#include "TransportFilesTest.moc"
