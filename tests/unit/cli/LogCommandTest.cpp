#include "cli/LogCommand.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

namespace {

QList<TorLogLine> lines(const QStringList &texts)
{
    QList<TorLogLine> parsed;
    for (const QString &text : texts)
        parsed << TorLogLine::parse(text, static_cast<int>(parsed.size()));
    return parsed;
}

} // namespace

class LogCommandTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void coloursByLevelOnlyWhenAsked_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("coloured");
        QTest::newRow("warning")
            << "Nov 16 00:41:07.123 [warn] Guard is down"
            << "\x1b[2mNov 16 00:41:07.123\x1b[0m\x1b[33m [warn] Guard is down\x1b[0m";
        QTest::newRow("notice") << "Nov 16 00:41:07.123 [notice] Done"
                                << "\x1b[2mNov 16 00:41:07.123\x1b[0m [notice] Done";
        QTest::newRow("error of another format") << "start failed"
                                                 << "\x1b[31mstart failed\x1b[0m";
    }

    void coloursByLevelOnlyWhenAsked()
    {
        QFETCH(QString, line);
        QFETCH(QString, coloured);
        const TorLogLine parsed = TorLogLine::parse(line, 0);
        QCOMPARE(logLineText(parsed, false), line);
        QCOMPARE(logLineText(parsed, true), coloured);
    }

    void aTerminalIsNotGivenOrders()
    {
        const QString text = QStringLiteral("bad \x1b]0;title\x07 end é 😀");
        QCOMPARE(logLineText(TorLogLine::parse(text, 0), false),
                 QStringLiteral("bad ?]0;title? end é 😀"));
    }

    void newLinesAreThoseThatWereNotThere_data()
    {
        QTest::addColumn<QStringList>("before");
        QTest::addColumn<QStringList>("now");
        QTest::addColumn<QStringList>("added");
        const auto list = [](const char *text) {
            return QString::fromUtf8(text).split(u' ', Qt::SkipEmptyParts);
        };
        QTest::newRow("appended") << list("a b") << list("a b c d") << list("c d");
        QTest::newRow("nothing") << list("a b") << list("a b") << list("");
        QTest::newRow("the beginning was cut") << list("a b c") << list("b c d") << list("d");
        QTest::newRow("rotated") << list("a b") << list("c") << list("c");
        QTest::newRow("in the middle") << list("a z") << list("a b z") << list("b");
        QTest::newRow("the same once more") << list("a a") << list("a a a") << list("a");
        QTest::newRow("gone") << list("a b") << list("") << list("");
    }

    void newLinesAreThoseThatWereNotThere()
    {
        QFETCH(QStringList, before);
        QFETCH(QStringList, now);
        QFETCH(QStringList, added);
        QStringList found;
        for (const TorLogLine &line : newLogLines(lines(before), lines(now)))
            found << line.raw;
        QCOMPARE(found, added);
    }

    void whoFollowsSeesEachLineOnce()
    {
        LogFollower follower(lines({u"a"_s, u"b"_s}));
        const auto seen = [&follower](const QStringList &now) {
            QStringList found;
            for (const TorLogLine &line : follower.take(lines(now)))
                found << line.raw;
            return found;
        };
        QCOMPARE(seen({u"a"_s, u"b"_s, u"c"_s}), QStringList{u"c"_s});
        QCOMPARE(seen({u"a"_s, u"b"_s, u"c"_s, u"d"_s}), QStringList{u"d"_s});
        QCOMPARE(seen({u"a"_s, u"b"_s, u"c"_s, u"d"_s}), QStringList());
        QCOMPARE(seen({u"d"_s, u"d"_s}), QStringList{u"d"_s}); // rotated, and once more
    }
};

VELDMARK_TEST(LogCommandTest)
#include "LogCommandTest.moc"
