#include "bridges/SpeedTest.h"

#include "base/ResumeOnce.h"
#include "support/TestProgram.h"

#include <QMap>
#include <QTest>

using namespace veldmark;

namespace {

using Times = std::vector<std::optional<ConnectTime>>;
const QString none = QStringLiteral("No bridge answered a quick test, trying them all");

QString obfs4(int number)
{
    return QStringLiteral("obfs4 192.0.2.%1:443 AA cert=b").arg(number);
}

QString snowflake(int number)
{
    return QStringLiteral("snowflake 192.0.2.%1:80 url=https://a.example/").arg(number);
}

// A probe that the test answers by hand, by host. It shows that all bridges are probed at once.
struct Probes {
    QMap<QString, ResumeOnce<std::optional<ConnectTime>>> asked;
    QStringList addresses;
    QStringList said;
};

QCoro::Task<std::optional<ConnectTime>> ask(Probes *probes, QString host, quint16 port,
                                            std::chrono::milliseconds limit)
{
    probes->addresses.append(QStringLiteral("%1 %2 %3").arg(host).arg(port).arg(limit.count()));
    const auto answer = probes->asked[host];
    const std::optional<ConnectTime> time = co_await answer;
    co_return time;
}

QCoro::Task<void> run(QStringList lines, Probes *probes, std::optional<QStringList> *result)
{
    const BridgeProbe probe = [probes](QString host, quint16 port,
                                       std::chrono::milliseconds limit) {
        return ask(probes, std::move(host), port, limit);
    };
    auto test = fastestBridges(lines, probe,
                               [probes](const Text &text) { probes->said.append(text.english()); });
    const QStringList fastest = co_await test;
    *result = fastest;
}

} // namespace

class SpeedTestTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void choosesWhatCanBeTested()
    {
        const QStringList lines = {obfs4(1),
                                   QStringLiteral("192.0.2.2:443 AA"),
                                   snowflake(3),
                                   QStringLiteral("meek_lite 192.0.2.4:80"),
                                   QStringLiteral("webtunnel [2001:db8::1]:443"),
                                   QString(),
                                   QStringLiteral("   "),
                                   QStringLiteral("[2001:db8::2]:443 AA"),
                                   QStringLiteral("OBFS4 x"),
                                   QStringLiteral("obfs4x 192.0.2.9:1"),
                                   obfs4(1)};
        QCOMPARE(speedTestCandidates(lines), std::vector<qsizetype>({0, 1, 7, 8, 10}));
        QVERIFY(speedTestCandidates({}).empty());
    }

    void keepsTheFastest_data()
    {
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QList<double>>("milliseconds"); // of the candidates; negative: no answer
        QTest::addColumn<QStringList>("kept");
        QTest::addColumn<QString>("status");
        QTest::newRow("five of ten answer, two cannot be tested")
            << QStringList{snowflake(1), obfs4(1), obfs4(2), obfs4(3), obfs4(4), obfs4(5),
                           snowflake(2), obfs4(6), obfs4(7), obfs4(8), obfs4(9), obfs4(10)}
            << QList<double>{90, -1, 20, -1, 30, -1, 10, -1, 40, -1}
            << QStringList{obfs4(7), obfs4(3), obfs4(5), snowflake(1), snowflake(2)}
            << "Using the 3 fastest of 10 bridges";
        QTest::newRow("two answer")
            << QStringList{obfs4(1), obfs4(2), obfs4(3)} << QList<double>{5, -1, 4.5}
            << QStringList{obfs4(3), obfs4(1)} << "Using the 2 fastest of 3 bridges";
        QTest::newRow("one answers")
            << QStringList{obfs4(1), snowflake(1), obfs4(2)} << QList<double>{-1, 3000}
            << QStringList{obfs4(2), snowflake(1)} << "Using the 1 fastest of 2 bridges";
        QTest::newRow("equal times keep their order")
            << QStringList{obfs4(1), obfs4(2), obfs4(3), obfs4(4)} << QList<double>{7, 7, 7, 7}
            << QStringList{obfs4(1), obfs4(2), obfs4(3)} << "Using the 3 fastest of 4 bridges";
        QTest::newRow("the same line twice")
            << QStringList{obfs4(1), obfs4(1)} << QList<double>{2, 1}
            << QStringList{obfs4(1), obfs4(1)} << "Using the 2 fastest of 2 bridges";
        QTest::newRow("none answers")
            << QStringList{obfs4(2), snowflake(1), obfs4(1)} << QList<double>{-1, -1}
            << QStringList{obfs4(2), snowflake(1), obfs4(1)} << none;
    }

    void keepsTheFastest()
    {
        QFETCH(QStringList, lines);
        QFETCH(QList<double>, milliseconds);
        QFETCH(QStringList, kept);
        QFETCH(QString, status);
        Times times;
        for (const double time : milliseconds)
            times.push_back(time < 0 ? std::nullopt : std::optional(ConnectTime(time)));
        const FastestSelection selection = fastestSelection(lines, speedTestCandidates(lines),
                                                            times);
        QCOMPARE(selection.lines, kept);
        QCOMPARE(selection.status, status);
    }

    void oneBridgeIsNotTested_data()
    {
        QTest::addColumn<QStringList>("lines");
        QTest::newRow("one") << QStringList{obfs4(1)};
        QTest::newRow("one that can be tested")
            << QStringList{snowflake(1), obfs4(1), snowflake(2)};
        QTest::newRow("none") << QStringList{snowflake(1), snowflake(2)};
        QTest::newRow("empty") << QStringList();
    }

    void oneBridgeIsNotTested()
    {
        QFETCH(QStringList, lines);
        Probes probes;
        std::optional<QStringList> result;
        const auto task = run(lines, &probes, &result);
        QCOMPARE(result.value(), lines);
        QVERIFY(probes.addresses.isEmpty());
        QVERIFY(probes.said.isEmpty());
    }

    void asksAllAtOnceAndSaysWhatItDoes()
    {
        Probes probes;
        std::optional<QStringList> result;
        const auto task = run({obfs4(1), QStringLiteral("192.0.2.2:99999"), snowflake(1),
                               QStringLiteral("[2001:db8::1]:9 AA")},
                              &probes, &result);
        QCOMPARE(probes.said, QStringList{QStringLiteral("Testing 3 bridges…")});
        // A bridge with an invalid port is not probed, but counted.
        QCOMPARE(probes.addresses,
                 QStringList(
                     {QStringLiteral("192.0.2.1 443 3000"), QStringLiteral("2001:db8::1 9 3000")}));
        probes.asked[QStringLiteral("2001:db8::1")].complete(ConnectTime(4));
        probes.asked[QStringLiteral("192.0.2.1")].complete(ConnectTime(5));
        QTRY_VERIFY(result);
        QCOMPARE(*result,
                 QStringList({QStringLiteral("[2001:db8::1]:9 AA"), obfs4(1), snowflake(1)}));
        QCOMPARE(probes.said.last(), QStringLiteral("Using the 2 fastest of 3 bridges"));
        QCOMPARE(probes.said.size(), 2);
    }

    void usesAllWhenNobodyAnswers()
    {
        Probes probes;
        std::optional<QStringList> result;
        const QStringList lines = {snowflake(1), obfs4(2), obfs4(1)};
        const auto task = run(lines, &probes, &result);
        probes.asked[QStringLiteral("192.0.2.1")].complete(std::nullopt);
        probes.asked[QStringLiteral("192.0.2.2")].complete(std::nullopt);
        QTRY_VERIFY(result);
        QCOMPARE(*result, lines);
        QCOMPARE(probes.said.last(), none);
    }

    void mayBeForgottenWhileItRuns()
    {
        Probes probes;
        std::optional<QStringList> result;
        {
            const auto task = run({obfs4(1), obfs4(2)}, &probes, &result);
        }
        probes.asked[QStringLiteral("192.0.2.1")].complete(std::nullopt);
        probes.asked[QStringLiteral("192.0.2.2")].complete(ConnectTime(1));
        QTRY_VERIFY(result);
        QCOMPARE(*result, QStringList{obfs4(2)});
    }
};

VELDMARK_TEST(SpeedTestTest)
#include "SpeedTestTest.moc"
