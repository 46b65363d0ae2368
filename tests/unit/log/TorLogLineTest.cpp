#include "log/TorLogLine.h"
#include "support/TestProgram.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

using namespace veldmark;
using Level = TorLogLine::Level;

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

// Parses by the regular expression itself.
TorLogLine byPattern(const QString &line, int id)
{
    static const QRegularExpression pattern(
        text("^([A-Z][a-z]{2} +\\d{1,2} [0-9:.]+) \\[(\\w+)\\] (.*)$"));
    const QRegularExpressionMatch match = pattern.match(line);
    if (match.hasMatch()) {
        const QString word = match.captured(2).toLower();
        const Level level = word == u"err" ? Level::error
            : word == u"warn"              ? Level::warning
            : word == u"notice"            ? Level::notice
                                           : Level::info;
        return {id, match.captured(1), level, match.captured(3), line};
    }
    const QString lower = line.toLower();
    const bool isError = lower.contains(u"error") || lower.contains(u"failed")
        || lower.contains(u"could not") || lower.contains(u"last exit code = 1");
    const Level level = isError   ? Level::error
        : lower.contains(u"warn") ? Level::warning
                                  : Level::info;
    return {id, std::nullopt, level, line, line};
}

} // namespace

class TorLogLineTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void readsTorsFormat_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("time");
        QTest::addColumn<int>("level");
        QTest::addColumn<QString>("message");
        const auto row = [](const char *line, const char *time, Level level, const char *message) {
            QTest::newRow(line) << text(line) << text(time) << static_cast<int>(level)
                                << text(message);
        };
        row("Nov 16 00:41:07.123 [warn] Guard is down", "Nov 16 00:41:07.123", Level::warning,
            "Guard is down");
        row("Nov  6 09:01:02.000 [notice] Bootstrapped 100% (done): Done", "Nov  6 09:01:02.000",
            Level::notice, "Bootstrapped 100% (done): Done");
        row("Nov 16 00:41:07 [err] Reading config failed", "Nov 16 00:41:07", Level::error,
            "Reading config failed");
        row("Nov 16 00:41:07.123 [debug] error in a message", "Nov 16 00:41:07.123", Level::info,
            "error in a message");
        row("Nov 16 00:41:07.123 [info] x", "Nov 16 00:41:07.123", Level::info, "x");
        row("Nov 16 00:41:07.123 [WARN] x", "Nov 16 00:41:07.123", Level::warning, "x");
        row("Nov 16 00:41:07.123 [a_1] ", "Nov 16 00:41:07.123", Level::info, "");
        row("Jan 1 . [notice] [warn] x", "Jan 1 .", Level::notice, "[warn] x");
    }
    void readsTorsFormat()
    {
        QFETCH(QString, line);
        QFETCH(QString, time);
        QFETCH(int, level);
        QFETCH(QString, message);
        const TorLogLine parsed = TorLogLine::parse(line, 7);
        QCOMPARE(parsed.id, 7);
        QCOMPARE(parsed.time, time);
        QCOMPARE(static_cast<int>(parsed.level), level);
        QCOMPARE(parsed.message, message);
        QCOMPARE(parsed.raw, line);
    }

    void guessesTheLevelOfOtherLines_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<int>("level");
        const auto row = [](const char *line, Level level) {
            QTest::newRow(line) << text(line) << static_cast<int>(level);
        };
        row("launchd: exited with last exit code = 1", Level::error);
        row("last exit code = 127", Level::error);
        row("last exit code = 0", Level::info);
        row("An ERROR occurred", Level::error);
        row("Bind Failed", Level::error);
        row("Could Not open", Level::error);
        row("could  not open", Level::info);
        row("Warning: slow", Level::warning);
        row("a warning, then an error", Level::error);
        row("[notice] without a time", Level::info);
        row("", Level::info);
        row("e", Level::info);
        row("last exit code =", Level::info);
        row("Nov 123 00:41:07 [warn] three digits", Level::warning);
        row("nov 16 00:41:07 [err] lower case", Level::info);
        row("Nov 16 00:41:07 [] x", Level::info);
        row("Nov 16 00:41:07 [notice]", Level::info);
        row("Nov 16  00:41:07 [notice] x", Level::info);
    }
    void guessesTheLevelOfOtherLines()
    {
        QFETCH(QString, line);
        QFETCH(int, level);
        const TorLogLine parsed = TorLogLine::parse(line, 0);
        QVERIFY(!parsed.time);
        QCOMPARE(static_cast<int>(parsed.level), level);
        QCOMPARE(parsed.message, line);
        QCOMPARE(parsed.raw, line);
    }

    void readsExactlyWhatThePatternReads()
    {
        QRandomGenerator random(1607);
        const QStringList pieces{text("Nov"),    text("Jan"),
                                 text(" "),      text("  "),
                                 text("6"),      text("16"),
                                 text("123"),    text("00:41:07"),
                                 text("."),      text(" ["),
                                 text("["),      text("]"),
                                 text("] "),     text("warn"),
                                 text("notice"), text("ERR"),
                                 text("error"),  text("fail"),
                                 text("failed"), text("could"),
                                 text(" not"),   text("last exit code = "),
                                 text("1"),      text("x"),
                                 text("A"),      text("b"),
                                 text("_"),      text("é"),
                                 text("Ü"),      text("\t"),
                                 text("😀"),      text("W"),
                                 text("٣")};
        int matched = 0;
        for (int round = 0; round < 200000; ++round) {
            // Half of the lines begin validly, so that the end of the pattern is reached.
            QString line = random.bounded(2) ? text("Nov 16 00:41:07") : QString();
            if (random.bounded(2))
                line += text(" [warn] ");
            for (int i = random.bounded(9); i > 0; --i)
                line += pieces[random.bounded(static_cast<int>(pieces.size()))];
            if (random.bounded(4) == 0 && !line.isEmpty())
                line.remove(random.bounded(static_cast<int>(line.size())), 1);
            if (!line.isValidUtf16())
                continue; // decoded text never contains it; the pattern refuses it
            const TorLogLine parsed = TorLogLine::parse(line, round);
            matched += parsed.time.has_value();
            if (!(parsed == byPattern(line, round)))
                QFAIL(qPrintable(line));
        }
        QVERIFY2(matched > 20000, qPrintable(QString::number(matched)));
    }

    void errorsAndWarningsAreProblems()
    {
        QVERIFY(TorLogLine::parse(text("an error"), 0).isProblem());
        QVERIFY(TorLogLine::parse(text("a warning"), 0).isProblem());
        QVERIFY(!TorLogLine::parse(text("Nov 16 00:41:07 [notice] x"), 0).isProblem());
        QVERIFY(!TorLogLine::parse(text("x"), 0).isProblem());
    }
};

VELDMARK_BARE_TEST(TorLogLineTest)
#include "TorLogLineTest.moc"
