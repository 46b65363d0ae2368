#include "bridges/BridgePlan.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace veldmark;

namespace {

const QString lyrebird = QStringLiteral("/pt/lyrebird");
const QString snowflakeClient = QStringLiteral("/pt/snowflake-client");
const QString webtunnelClient = QStringLiteral("/pt/webtunnel-client");

const QString plain = QStringLiteral("192.0.2.1:9001 AA");
const QString obfs4 = QStringLiteral("obfs4 192.0.2.2:443 AA cert=b");
const QString anotherObfs4 = QStringLiteral("obfs4 192.0.2.3:443 AA cert=c");
const QString meek = QStringLiteral("meek_lite 192.0.2.4:80 url=https://a.example/");
const QString snowflake = QStringLiteral("snowflake 192.0.2.5:80 url=https://a.example/");
const QString webtunnel = QStringLiteral("webtunnel [2001:db8::1]:443 url=https://a.example/");

PluggableTransports found(const QString &programs)
{
    PluggableTransports transports;
    if (programs.contains(u'l'))
        transports.lyrebird = lyrebird;
    if (programs.contains(u's'))
        transports.snowflake = snowflakeClient;
    if (programs.contains(u'w'))
        transports.webtunnel = webtunnelClient;
    return transports;
}

QCoro::Task<PluggableTransports> answer(PluggableTransports transports)
{
    co_return transports;
}

// The last number of a bridge's address is its response time.
QCoro::Task<std::optional<ConnectTime>> lastNumber(QString host)
{
    co_return ConnectTime(host.section(u'.', -1).toDouble());
}

struct Stage {
    PluggableTransports transports;
    int searches = 0;
    int probes = 0;
    QStringList said = {};

    BridgeTools tools()
    {
        return {[this] {
                    ++searches;
                    return answer(transports);
                },
                [this](QString host, quint16, std::chrono::milliseconds) {
                    ++probes;
                    return lastNumber(host);
                },
                [this](const Text &text) { said.append(text.english()); }};
    }
};

QCoro::Task<void> run(BridgeRequest request, BridgeTools tools, std::optional<BridgePlan> *result)
{
    auto planning = planBridges(request, tools);
    const BridgePlan plan = co_await planning;
    result->emplace(plan);
}

BridgePlan planned(const BridgeRequest &request, Stage &stage)
{
    std::optional<BridgePlan> plan;
    const auto task = run(request, stage.tools(), &plan);
    [&plan] { QTRY_VERIFY(plan); }();
    return plan.value();
}

} // namespace

class BridgePlanTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void tellsWhetherADownloadIsNeeded()
    {
        PluggableTransports withLines = found(QStringLiteral("l"));
        QVERIFY(!lacksTransport(BridgeChoice::off, obfs4, found({})));
        QVERIFY(lacksTransport(BridgeChoice::obfs4, {}, withLines)); // no built-in lines
        withLines.builtin = {{QStringLiteral("obfs4"), {obfs4}},
                             {QStringLiteral("snowflake"), {snowflake}}};
        QVERIFY(!lacksTransport(BridgeChoice::obfs4, {}, withLines));
        QVERIFY(lacksTransport(BridgeChoice::snowflake, {}, withLines)); // no program
        withLines.snowflake = snowflakeClient;
        QVERIFY(!lacksTransport(BridgeChoice::snowflake, {}, withLines));
        QVERIFY(!lacksTransport(BridgeChoice::custom, plain, found({})));
        QVERIFY(lacksTransport(BridgeChoice::custom, snowflake, found(QStringLiteral("lw"))));
        QVERIFY(!lacksTransport(BridgeChoice::custom, webtunnel, found(QStringLiteral("l"))));
        QVERIFY(!lacksTransport(BridgeChoice::custom, webtunnel, found(QStringLiteral("w"))));
        QVERIFY(lacksTransport(BridgeChoice::custom, plain + u'\n' + obfs4,
                               found(QStringLiteral("sw"))));
    }

    void namesTheProgramsThatTheLinesNeed_data()
    {
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QString>("programs");
        QTest::addColumn<QStringList>("options");
        const QString w = QStringLiteral("--pt-webtunnel");
        const QString l = QStringLiteral("--pt-lyrebird");
        const QString s = QStringLiteral("--pt-snowflake");
        QTest::newRow("plain") << QStringList{plain, plain} << "" << QStringList();
        QTest::newRow("obfs4") << QStringList{obfs4, anotherObfs4} << "lsw"
                               << QStringList{l, lyrebird};
        QTest::newRow("meek") << QStringList{meek} << "l" << QStringList{l, lyrebird};
        QTest::newRow("old ones") << QStringList{QStringLiteral("obfs3 192.0.2.1:1"),
                                                 QStringLiteral("scramblesuit 192.0.2.1:1")}
                                  << "l" << QStringList{l, lyrebird};
        QTest::newRow("snowflake before obfs4") << QStringList{snowflake, obfs4} << "lsw"
                                                << QStringList{l, lyrebird, s, snowflakeClient};
        QTest::newRow("webtunnel with its client")
            << QStringList{webtunnel} << "lw" << QStringList{w, webtunnelClient};
        QTest::newRow("webtunnel without it")
            << QStringList{webtunnel} << "l" << QStringList{l, lyrebird};
        QTest::newRow("webtunnel and no lyrebird")
            << QStringList{webtunnel} << "w" << QStringList{w, webtunnelClient};
        QTest::newRow("all") << QStringList{snowflake, plain, obfs4, webtunnel} << "lsw"
                             << QStringList{w, webtunnelClient, l, lyrebird, s, snowflakeClient};
        QTest::newRow("none") << QStringList() << "lsw" << QStringList();
    }

    void namesTheProgramsThatTheLinesNeed()
    {
        QFETCH(QStringList, lines);
        QFETCH(QString, programs);
        QFETCH(QStringList, options);
        QStringList expected;
        for (const QString &line : lines)
            expected << QStringLiteral("--bridge") << line;
        const auto arguments = bridgeArguments(lines, found(programs));
        QVERIFY(arguments);
        QCOMPARE(*arguments, expected + options);
    }

    void saysWhatIsMissing_data()
    {
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QString>("programs");
        QTest::addColumn<QString>("error");
        const QString noLyrebird = QStringLiteral(
            "These bridges need lyrebird, which comes with Tor Browser. Click Download next to Bridges to get it.");
        const QString noSnowflake = QStringLiteral(
            "Snowflake needs snowflake-client, which comes with Tor Browser. Click Download next to Bridges to get it.");
        const QString conjure = QStringLiteral("conjure 192.0.2.1:1");
        const QString unsupported = QStringLiteral("The conjure bridge type isn't supported yet.");
        QTest::newRow("lyrebird") << QStringList{obfs4} << "sw" << noLyrebird;
        QTest::newRow("either for webtunnel") << QStringList{webtunnel} << "s" << noLyrebird;
        QTest::newRow("lyrebird beside webtunnel")
            << QStringList{webtunnel, obfs4} << "w" << noLyrebird;
        QTest::newRow("snowflake") << QStringList{snowflake} << "lw" << noSnowflake;
        QTest::newRow("both") << QStringList{snowflake, obfs4} << "" << noLyrebird;
        QTest::newRow("unsupported") << QStringList{conjure} << "lsw" << unsupported;
        QTest::newRow("unsupported comes first")
            << QStringList{obfs4, conjure} << "" << unsupported;
        QTest::newRow("the first of the alphabet")
            << QStringList{QStringLiteral("dust 192.0.2.1:1"), conjure,
                           QStringLiteral("fte 192.0.2.1:1")}
            << "" << unsupported;
    }

    void saysWhatIsMissing()
    {
        QFETCH(QStringList, lines);
        QFETCH(QString, programs);
        QFETCH(QString, error);
        const auto arguments = bridgeArguments(lines, found(programs));
        QVERIFY(!arguments);
        QCOMPARE(arguments.error().description(), error);
    }

    void offSearchesNothing()
    {
        Stage stage;
        const BridgePlan plan = planned({BridgeChoice::off, QStringLiteral("bad"), true}, stage);
        QCOMPARE(stage.searches, 0);
        QVERIFY(!plan.transports && !plan.lines);
        QCOMPARE(plan.arguments.value(), QStringList());
        QVERIFY(stage.said.isEmpty());
    }

    void takesBuiltInBridges()
    {
        Stage stage{found(QStringLiteral("l"))};
        stage.transports.builtin = {{QStringLiteral("meek_lite"), {meek}},
                                    {QStringLiteral("obfs4"), {obfs4}}};
        const BridgePlan plan = planned({BridgeChoice::meek, QString(), true}, stage);
        QCOMPARE(stage.searches, 1);
        QCOMPARE(*plan.transports, stage.transports);
        QCOMPARE(*plan.lines, QStringList{meek});
        QCOMPARE(plan.arguments.value(),
                 QStringList({QStringLiteral("--bridge"), meek, QStringLiteral("--pt-lyrebird"),
                              lyrebird}));
        QVERIFY(stage.said.isEmpty());
    }

    void takesTheUsersOwnLines()
    {
        Stage stage;
        const BridgePlan plan = planned(
            {BridgeChoice::custom, QStringLiteral("# mine\n Bridge  192.0.2.1:9001\tAA\n"), false},
            stage);
        QCOMPARE(*plan.lines, QStringList{plain});
        QCOMPARE(plan.arguments.value(), QStringList({QStringLiteral("--bridge"), plain}));
    }

    void testsTheSpeedOnlyWhenAsked_data()
    {
        QTest::addColumn<bool>("optimizeSpeed");
        QTest::newRow("asked") << true;
        QTest::newRow("not asked") << false;
    }

    void testsTheSpeedOnlyWhenAsked()
    {
        QFETCH(bool, optimizeSpeed);
        Stage stage{found(QStringLiteral("ls"))};
        QStringList lines = {snowflake};
        for (int i = 9; i > 0; --i)
            lines.append(QStringLiteral("obfs4 192.0.2.%1:443").arg(i));
        const BridgePlan plan = planned({BridgeChoice::custom, lines.join(u'\n'), optimizeSpeed},
                                        stage);
        QStringList expected = lines;
        if (optimizeSpeed)
            expected = {lines[9], lines[8], lines[7], snowflake};
        QCOMPARE(*plan.lines, expected);
        QCOMPARE(plan.arguments->count(QStringLiteral("--bridge")), expected.size());
        QCOMPARE(plan.arguments->at(1), expected.first());
        QCOMPARE(stage.probes, optimizeSpeed ? 9 : 0);
        QCOMPARE(stage.said,
                 optimizeSpeed ? QStringList({QStringLiteral("Testing 9 bridges…"),
                                              QStringLiteral("Using the 3 fastest of 9 bridges")})
                               : QStringList());
    }

    // A kill switch refuses the probes: every bridge would look dead.
    void behindAKillSwitchNoneIsTested_data()
    {
        QTest::addColumn<QStringList>("last"); // of the previous session
        QTest::addColumn<QStringList>("used");
        const QStringList all = {obfs4, plain, anotherObfs4};
        QTest::newRow("nothing is known") << QStringList() << all;
        QTest::newRow("what was fastest before")
            << QStringList{anotherObfs4, obfs4} << QStringList{anotherObfs4, obfs4};
        QTest::newRow("one of them has gone")
            << QStringList{anotherObfs4, QStringLiteral("obfs4 192.0.2.99:1")} << all;
    }

    void behindAKillSwitchNoneIsTested()
    {
        QFETCH(QStringList, last);
        Stage stage{found(QStringLiteral("l"))};
        const QString own = QStringList{obfs4, plain, anotherObfs4}.join(u'\n');
        const BridgePlan plan = planned({BridgeChoice::custom, own, true, true, last}, stage);
        QTEST(*plan.lines, "used");
        QCOMPARE(stage.probes, 0);
        QVERIFY(stage.said.isEmpty());
        // A test counts more than the bridges that were used before.
        const BridgePlan tested = planned({BridgeChoice::custom, own, true, false, last}, stage);
        QCOMPARE(stage.probes, 3);
        QCOMPARE(*tested.lines, QStringList({plain, obfs4, anotherObfs4}));
    }

    void programsAreAskedOnlyWhereTheAnswerIsNeeded_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("known"); // without asking
        QTest::addColumn<int>("asked");
        QTest::newRow("obfs4") << obfs4 << "l" << 0;
        QTest::newRow("plain") << plain << "" << 0;
        QTest::newRow("snowflake, whose client is known") << snowflake << "ls" << 0;
        QTest::newRow("snowflake and nobody to ask") << snowflake << "" << 0;
        QTest::newRow("snowflake") << snowflake << "l" << 1;
    }

    void programsAreAskedOnlyWhereTheAnswerIsNeeded()
    {
        QFETCH(QString, line);
        QFETCH(QString, known);
        Stage stage{found(QStringLiteral("ls"))};
        BridgeTools tools = stage.tools();
        tools.locateWithoutAsking = [&known] { return answer(found(known)); };
        std::optional<BridgePlan> plan;
        const auto task = run({BridgeChoice::custom, line, false}, tools, &plan);
        QTRY_VERIFY(plan);
        QTEST(stage.searches, "asked");
        QCOMPARE(*plan->transports, stage.searches > 0 ? stage.transports : found(known));
        QCOMPARE(plan->arguments.has_value(), line != snowflake || !known.isEmpty());
    }

    void builtInBridgesAreNoMoreThanCanBeUsed()
    {
        Stage stage{found(QStringLiteral("l"))};
        QStringList many;
        for (int i = 1; i <= 500; ++i)
            many << QStringLiteral("obfs4 192.0.2.1:%1 AA cert=b").arg(i);
        stage.transports.builtin = {{QStringLiteral("obfs4"), many}};
        const BridgePlan plan = planned({BridgeChoice::obfs4, QString(), true}, stage);
        QCOMPARE(stage.probes, 100); // and as many descriptors at once
        stage.said.clear();
        const BridgePlan all = planned({BridgeChoice::obfs4, QString(), false}, stage);
        QCOMPARE(all.arguments->count(QStringLiteral("--bridge")), 100);
    }

    void oneBridgeIsNotTested()
    {
        Stage stage{found(QStringLiteral("l"))};
        const BridgePlan plan = planned({BridgeChoice::custom, obfs4, true}, stage);
        QCOMPARE(*plan.lines, QStringList{obfs4});
        QCOMPARE(stage.probes, 0);
        QVERIFY(stage.said.isEmpty());
    }

    void aBadSelectionHasNoLines_data()
    {
        QTest::addColumn<QString>("raw");
        QTest::addColumn<QString>("custom");
        QTest::addColumn<QString>("error");
        QTest::newRow("invalid")
            << "custom"
            << "192.0.2.1:1\nexample.org:1"
            << "Some custom bridge lines aren't valid. Fix them under Bridges → Custom….";
        QTest::newRow("empty") << "custom"
                               << ""
                               << "Add at least one bridge under Bridges → Custom….";
        QTest::newRow("no built-in ones")
            << "snowflake"
            << ""
            << "Built-in Snowflake bridges come from Tor Browser. Click Download next to Bridges, install Tor Browser, or paste your own under Bridges → Custom….";
    }

    void aBadSelectionHasNoLines()
    {
        QFETCH(QString, raw);
        QFETCH(QString, custom);
        QFETCH(QString, error);
        Stage stage{found(QStringLiteral("lsw"))};
        const BridgePlan plan = planned({*bridgeChoiceFromRawValue(raw), custom, true}, stage);
        QCOMPARE(plan.arguments.error().description(), error);
        QVERIFY(!plan.lines);
        QCOMPARE(*plan.transports, stage.transports);
        QVERIFY(stage.said.isEmpty());
    }

    void aMissingProgramLeavesTheLines()
    {
        Stage stage{found(QStringLiteral("l"))};
        stage.transports.builtin = {{QStringLiteral("snowflake"), {snowflake}}};
        const BridgePlan plan = planned({BridgeChoice::snowflake, QString(), false}, stage);
        QVERIFY(plan.arguments.error().description().english().startsWith(
            QStringLiteral("Snowflake needs snowflake-client")));
        QCOMPARE(*plan.lines, QStringList{snowflake});
        QCOMPARE(*plan.transports, stage.transports);
    }
};

VELDMARK_TEST(BridgePlanTest)
#include "BridgePlanTest.moc"
