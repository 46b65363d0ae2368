#include "cli/Arguments.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace veldmark;
using Id = Verb::Id;

class ArgumentsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void refusesInOneLine_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("part");
        const auto words = [](const char *text) {
            return QString::fromUtf8(text).split(u'|', Qt::SkipEmptyParts);
        };
        QTest::newRow("nothing") << QStringList() << "A command is missing";
        QTest::newRow("unknown verb") << words("frobnicate") << "Unknown command \"frobnicate\"";
        QTest::newRow("unknown option")
            << words("status|--xml") << "status has no option \"--xml\"";
        QTest::newRow("option of another verb") << words("status|--follow") << "no option";
        QTest::newRow("get without key") << words("get") << "get needs a key";
        QTest::newRow("set without value") << words("set|exitCountry") << "needs a key and a value";
        QTest::newRow("too much") << words("connect|now") << "connect doesn't take \"now\"";
        QTest::newRow("get with two keys") << words("get|phase|title") << "doesn't take";
        QTest::newRow("no circuit")
            << words("close-circuit") << "close-circuit needs a circuit's number";
        QTest::newRow("no application") << words("launch") << "launch needs an application";
        QTest::newRow("two applications") << words("launch|a|b") << "launch doesn't take \"b\"";
        QTest::newRow("apps with a name") << words("apps|a") << "apps doesn't take \"a\"";
        QTest::newRow("bridges with a word") << words("bridges|all") << "bridges doesn't take";
        QTest::newRow("bridges that follow")
            << words("bridges|--follow") << "bridges has no option \"--follow\"";
        QTest::newRow("an option of the download")
            << words("download-transports|--json") << "has no option";
        QTest::newRow("an option of launch")
            << words("launch|--json|a") << "launch has no option \"--json\"";
        QTest::newRow("a report without its file")
            << words("report|--json|--output") << "--output needs the name of a file";
        QTest::newRow("a report with a word") << words("report|all") << "report doesn't take";
        QTest::newRow("line break in a verb") << words("a\nb") << "Unknown command \"a b\"";
        QTest::newRow("escape in a verb") << words("\x1b[31m") << "Unknown command \"?[31m\"";
        QTest::newRow("endless verb") << QStringList(QString(100000, u'x')) << "Unknown command";
    }

    void refusesInOneLine()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, part);
        const auto parsed = parseArguments(arguments);
        QVERIFY(!parsed);
        QVERIFY2(parsed.error().english().contains(part), qPrintable(parsed.error().english()));
        QVERIFY(!parsed.error().english().contains(u'\n'));
        QVERIFY(parsed.error().english().size() < 200);
    }

    void readsOptionsInAnyOrder()
    {
        const auto parsed = parseArguments(
            {QStringLiteral("status"), QStringLiteral("--watch"), QStringLiteral("--json")});
        QVERIFY(parsed);
        QCOMPARE(parsed->verb, Id::status);
        QVERIFY(parsed->watch && parsed->json && !parsed->follow);
        QVERIFY(parseArguments({QStringLiteral("run"), QStringLiteral("--connect")})->connectNow);
    }

    void readsWhatIsAskedOfBridgesAndApplications()
    {
        const auto bridges = parseArguments({QStringLiteral("bridges"), QStringLiteral("--json")});
        QVERIFY(bridges && bridges->verb == Id::bridges && bridges->json);
        QVERIFY(!parseArguments({QStringLiteral("bridges")})->json);
        const auto adding = parseArguments({QStringLiteral("add-bridges"), QStringLiteral("-")});
        QVERIFY(adding && adding->verb == Id::addBridges);
        QCOMPARE(adding->key, QStringLiteral("-"));
        QCOMPARE(parseArguments({QStringLiteral("add-bridges")}).error().english(),
                 QStringLiteral("add-bridges needs a file; \"-\" is standard input."));
        const auto download = parseArguments({QStringLiteral("download-transports")});
        QVERIFY(download && download->verb == Id::downloadTransports);
        const auto apps = parseArguments({QStringLiteral("apps"), QStringLiteral("--json")});
        QVERIFY(apps && apps->verb == Id::apps && apps->json);
        const auto launch = parseArguments({QStringLiteral("launch"), QStringLiteral("Two Words")});
        QVERIFY(launch && launch->verb == Id::launch);
        QCOMPARE(launch->key, QStringLiteral("Two Words"));
        QCOMPARE(parseArguments(
                     {QStringLiteral("launch"), QStringLiteral("--"), QStringLiteral("--odd")})
                     ->key,
                 QStringLiteral("--odd"));
    }

    void readsTheFileOfAReport()
    {
        const auto parsed = parseArguments({QStringLiteral("report"), QStringLiteral("--output"),
                                            QStringLiteral("--odd"), QStringLiteral("--json")});
        QVERIFY(parsed && parsed->verb == Id::report && parsed->json);
        QCOMPARE(parsed->output, QStringLiteral("--odd"));
        QVERIFY(usageText().contains(QStringLiteral("\n  report [--json] [--output FILE]\n")));
    }

    void aValueMayLookLikeAnOption()
    {
        const auto parsed = parseArguments(
            {QStringLiteral("set"), QStringLiteral("customTorPath"), QStringLiteral("--odd")});
        QVERIFY(parsed);
        QCOMPARE(parsed->key, QStringLiteral("customTorPath"));
        QCOMPARE(parsed->value, QStringLiteral("--odd"));
        const auto empty = parseArguments(
            {QStringLiteral("set"), QStringLiteral("exitCountry"), QString()});
        QVERIFY(empty);
        QCOMPARE(empty->value, QString());
    }

    void theUsageNamesEveryCommand()
    {
        for (const char *verb :
             {"run",          "status", "connect", "climb",       "disconnect",
              "restore",      "check",  "fix-dns", "circuits",    "close-circuit",
              "new-identity", "log",    "bridges", "add-bridges", "download-transports",
              "apps",         "launch", "report",  "get",         "set"})
            QVERIFY2(usageText().contains(QStringLiteral("\n  ") + QLatin1String(verb)), verb);
    }
};

VELDMARK_TEST(ArgumentsTest)
#include "ArgumentsTest.moc"
