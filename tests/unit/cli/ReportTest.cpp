#include "cli/Report.h"
#include "support/TestProgram.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

using namespace veldmark;

namespace {
QJsonObject object(const char *json)
{
    return QJsonDocument::fromJson(json).object();
}
} // namespace

class ReportTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void countsBytesForAPerson_data()
    {
        QTest::addColumn<double>("count");
        QTest::addColumn<QString>("text");
        QTest::newRow("zero") << 0.0 << "0 B";
        QTest::newRow("bytes") << 999.0 << "999 B";
        QTest::newRow("kB") << 1000.0 << "1.0 kB";
        QTest::newRow("MB") << 12345678.0 << "12.3 MB";
        QTest::newRow("huge") << 1.5e18 << "1500000.0 TB";
    }

    void countsBytesForAPerson()
    {
        QFETCH(double, count);
        QFETCH(QString, text);
        QCOMPARE(Report::bytes(count), text);
    }

    void neverCallsAnUnverifiedExitATorExit()
    {
        const QString failed = Report::status(object(
            R"({"title":"Protected","phase":"connected","activeMode":"strict","exitIP":null,"torVerified":false})"));
        QVERIFY2(failed.contains(QStringLiteral("didn't answer")), qPrintable(failed));
        const QString other = Report::status(object(
            R"({"title":"Protected","phase":"connected","exitIP":"203.0.113.9","torVerified":false})"));
        QVERIFY(other.contains(QStringLiteral("203.0.113.9, NOT a Tor exit")));
        const QString none = Report::status(object(R"({"phase":"connected","torVerified":null})"));
        QVERIFY(none.contains(QStringLiteral("not checked yet")));
        QVERIFY(!none.contains(QStringLiteral("a Tor exit")));
    }

    // The last result no longer counts, as in the windows.
    void saysThatTheExitIsBeingChecked()
    {
        QJsonObject state = object(
            R"({"phase":"connected","exitIP":"203.0.113.9","torVerified":true,"isChecking":false})");
        QVERIFY(Report::status(state).contains(
            QStringLiteral("\n  Exit        203.0.113.9, a Tor exit\n")));
        state.insert(QStringLiteral("isChecking"), true);
        QVERIFY(Report::status(state).contains(QStringLiteral("\n  Exit        checking…\n")));
    }

    void saysThatApplicationsShareCircuits()
    {
        const QString row = QStringLiteral(
            "\n  Circuits    Applications are not separated now: they share circuits.");
        QVERIFY(Report::status(object(R"({"phase":"connected","separated":false})")).contains(row));
        for (const char *state :
             {R"({"phase":"connected","separated":true})",
              R"({"phase":"connected","separated":null})", R"({"phase":"connected"})"})
            QVERIFY2(!Report::status(object(state)).contains(row), state);
    }

    void showsTheLatency()
    {
        QVERIFY(Report::status(object(R"({"phase":"connected","latencyMs":182})"))
                    .contains(QStringLiteral("\n  Latency     182 ms through Tor\n")));
        QVERIFY(!Report::status(object(R"({"phase":"connected","latencyMs":null})"))
                     .contains(QStringLiteral("Latency")));
    }

    void showsWhatLeaks()
    {
        const QString report = Report::status(object(
            R"({"phase":"connected","leakStatus":{"exposed":"192.0.2.7"},"dnsStatus":{"leak":["192.0.2.1 on eth0"]}})"));
        QVERIFY(report.contains(QStringLiteral("open; it shows the address 192.0.2.7")));
        QVERIFY(report.contains(QStringLiteral("can go around Tor via: 192.0.2.1 on eth0")));
    }

    void saysBlockedOnlyWhereTheRulesWereSeen_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QString>("rules");
        QTest::addColumn<QString>("text");
        const QString unknown = QStringLiteral(
            "no answer, but it isn't known whether the kill switch blocks it");
        const QString proxy = QStringLiteral("no answer, but proxy mode doesn't block it");
        QTest::newRow("standing") << "strict"
                                  << "standing"
                                  << "blocked";
        QTest::newRow("put back") << "strict"
                                  << "putBack"
                                  << "blocked";
        QTest::newRow("open") << "strict"
                              << "open" << unknown;
        QTest::newRow("unknown") << "strict"
                                 << "unknown" << unknown;
        QTest::newRow("nothing") << "strict"
                                 << "" << unknown;
        QTest::newRow("proxy") << "proxy"
                               << "" << proxy;
        QTest::newRow("proxy with rules") << "proxy"
                                          << "standing" << proxy;
    }

    void saysBlockedOnlyWhereTheRulesWereSeen()
    {
        QFETCH(QString, mode);
        QFETCH(QString, rules);
        QFETCH(QString, text);
        QJsonObject state = object(R"({"phase":"connected","leakStatus":"blocked"})");
        state.insert(QStringLiteral("activeMode"), mode);
        state.insert(QStringLiteral("killSwitch"), rules);
        const QString report = Report::status(state);
        QVERIFY2(report.contains(QStringLiteral("\n  Direct path ") + text + QLatin1Char('\n')),
                 qPrintable(report));
    }

    void claimsThatOnlyTorsTrafficLeavesWhereNothingElseWasSeen()
    {
        const QString claim = QStringLiteral("only Tor's traffic leaves");
        QJsonObject state = object(
            R"({"phase":"connected","activeMode":"strict","killSwitch":"standing"})");
        for (const auto &[level, isClaimed] :
             {std::pair{"good", true}, {"working", true}, {"warning", true}, {"danger", false}}) {
            // a leak or an exposure is a danger
            state.insert(QStringLiteral("level"), QLatin1String(level));
            QVERIFY2(Report::status(state).contains(claim) == isClaimed, level);
        }
        state.insert(QStringLiteral("level"), QStringLiteral("good"));
        state.insert(QStringLiteral("killSwitch"), QStringLiteral("unknown"));
        QVERIFY(!Report::status(state).contains(claim));
    }

    void doesNotAdviseToEndAnothersSession()
    {
        QVERIFY(
            Report::status(object(R"({"phase":"stale","otherSession":{"user":"bob","process":7}})"))
                .contains(QStringLiteral("nothing; veldmarkctl restore would end that session")));
        QVERIFY(!Report::status(object(R"({"phase":"stale","otherSession":null})"))
                     .contains(QStringLiteral("nothing;")));
    }

    void saysWhatIsWrong()
    {
        const QString report = Report::status(object(
            R"({"phase":"disconnected","errorMessage":"No tor.","terminalError":"No ~/.bashrc."})"));
        QVERIFY(report.contains(QStringLiteral("\n  Problem     No tor.")));
        QVERIFY(report.contains(QStringLiteral("\n  Terminal    No ~/.bashrc.")));
        QVERIFY(!Report::status(object(R"({"phase":"disconnected"})"))
                     .contains(QStringLiteral("Terminal")));
        QVERIFY(
            Report::status(object(R"({"phase":"connected","terminalHint":"Install a netcat."})"))
                .contains(QStringLiteral("\n  Terminal    Install a netcat.")));
        const QString both = Report::status(object(
            R"({"phase":"connected","terminalError":"No file.","terminalHint":"Install a netcat."})"));
        QVERIFY(both.contains(QStringLiteral("\n  Terminal    No file."))
                && !both.contains(QStringLiteral("netcat")));
        const QString two = Report::status(object(
            R"({"phase":"connected","settingsProblems":["It was damaged.","It is full."]})"));
        QVERIFY(two.endsWith(
            QStringLiteral("\n  Settings    It was damaged.\n  Settings    It is full.")));
        QVERIFY(Report::status(
                    object(R"({"phase":"disconnected","startupError":"Setup did not work."})"))
                    .endsWith(QStringLiteral("\n  Settings    Setup did not work.")));
    }

    void saysHowToRestoreAStaleNetwork()
    {
        QVERIFY(Report::status(object(R"({"phase":"stale"})"))
                    .contains(QStringLiteral("veldmarkctl restore")));
    }

    void saysWhatKeepsTorFromConnecting()
    {
        const QString cause = QStringLiteral("\n  Cause       It keeps ending.");
        for (const char *phase : {"connecting", "stale"}) {
            QJsonObject state = object(R"({"bootstrapProblem":"It keeps ending."})");
            state.insert(QStringLiteral("phase"), QLatin1String(phase));
            QVERIFY2(Report::status(state).contains(cause), phase);
        }
        QVERIFY(!Report::status(object(R"({"phase":"connecting","bootstrapProblem":null})"))
                     .contains(QStringLiteral("Cause")));
        QVERIFY(!Report::status(object(R"({"phase":"connected","bootstrapProblem":"Old."})"))
                     .contains(QStringLiteral("Cause")));
    }

    void saysWhatWasTriedAndWhatIsOffered()
    {
        const QString report = Report::status(object(
            R"({"phase":"connecting","climbOffer":"Bridges can be tried.","ladder":[
                {"rung":"direct","result":"No answer.","seconds":15},
                {"rung":"snowflake","result":"Being tried…","seconds":null}]})"));
        QVERIFY2(
            report.contains(QStringLiteral(
                "\n  Tried       Direct: No answer. (15 s)\n  Tried       Snowflake: Being tried…\n"
                "  Offer       Bridges can be tried. Try them with: veldmarkctl climb")),
            qPrintable(report));
        const QString without = Report::status(
            object(R"({"phase":"connecting","climbOffer":null,"ladder":[]})"));
        QVERIFY(!without.contains(QStringLiteral("Tried"))
                && !without.contains(QStringLiteral("Offer")));
    }

    // As long as the windows.
    void whatWasTriedIsShownUntilTorHasConnected()
    {
        QJsonObject state = object(
            R"({"climbOffer":"Bridges.","ladder":[{"rung":"direct","result":"No answer.","seconds":15}]})");
        for (const auto &[phase, isShown] : {std::pair{"connecting", true},
                                             {"stale", true},
                                             {"connected", false},
                                             {"disconnecting", false},
                                             {"disconnected", false},
                                             {"of a later version", false}}) {
            state.insert(QStringLiteral("phase"), QLatin1String(phase));
            QVERIFY2(Report::status(state).contains(
                         QStringLiteral("\n  Tried       Direct: No answer. (15 s)"))
                         == isShown,
                     phase);
            QVERIFY2(Report::status(state).contains(QStringLiteral("\n  Offer ")) == isShown,
                     phase);
            QCOMPARE(Report::steps(state).size(), isShown ? 1 : 0);
            QCOMPARE(Report::offer(state).isEmpty(), !isShown);
        }
    }

    void drawsACircuitAsAPath()
    {
        const QString report = Report::circuits(object(
            R"({"circuits":[{"id":"7","purpose":"GENERAL","sites":["example.org"],"hops":[
                {"nickname":"alpha","country":"de","ip":"192.0.2.1"},{"nickname":"beta","country":null,"ip":null}]}]})"));
        QCOMPARE(report,
                 QStringLiteral(
                     "   7  GENERAL   alpha (DE 192.0.2.1) → beta\n                → example.org"));
        QVERIFY(
            Report::circuits(
                object(
                    R"({"circuits":[{"id":"8","purpose":"HS_CLIENT_REND","sites":["a.onion"],"hops":[]}]})"))
                .startsWith(QStringLiteral("   8  ONION ")));
        QCOMPARE(Report::circuits({}), QStringLiteral("No circuits yet."));
    }

    void namesTheApplicationsThatAskedForTheSites()
    {
        const QJsonObject state = object(
            R"({"circuits":[{"id":"7","purpose":"GENERAL","sites":["a.example","192.0.2.1","b.example","c.example"],
                "hops":[{"nickname":"alpha","country":null,"ip":null}],
                "askedBy":{"a.example":["mail"],"b.example":["mail","as:bank"],"c.example":["mail"]}}]})");
        const auto nameOf = [](const QString &id) {
            return id == QLatin1String("mail") ? QStringLiteral("Letters") : id;
        };
        QCOMPARE(Report::circuits(state, nameOf),
                 QStringLiteral("   7  GENERAL   alpha\n"
                                "                → Letters: a.example, c.example\n"
                                "                → 192.0.2.1\n"
                                "                → Letters, as:bank: b.example"));
        QVERIFY(Report::circuits(state).contains(QStringLiteral("→ mail: a.example, c.example\n")));
    }

    void printsValuesPlainly()
    {
        QCOMPARE(Report::value(QJsonValue(true)), QStringLiteral("true"));
        QCOMPARE(Report::value(QJsonValue(QJsonValue::Null)), QString());
        QCOMPARE(Report::value(QJsonValue(0.85)), QStringLiteral("0.85"));
        QCOMPARE(Report::value(QJsonValue(1234567890123.0)), QStringLiteral("1234567890123"));
        QCOMPARE(Report::value(QJsonArray{QStringLiteral("a")}), QStringLiteral("[\"a\"]"));
    }
};

VELDMARK_TEST(ReportTest)
#include "ReportTest.moc"
