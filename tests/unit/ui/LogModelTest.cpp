#include "StandInSession.h"
#include "ui/LogModel.h"
#include "support/TestProgram.h"

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

using namespace veldmark;

namespace {

LogLine line(LogLine::Level level, const char *text)
{
    return {QStringLiteral("Nov 16 00:41:07.123"), level, QString::fromUtf8(text), QString::fromUtf8(text)};
}

std::vector<LogLine> numbered(int from, int to)
{
    std::vector<LogLine> lines;
    for (int i = from; i < to; ++i)
        lines.push_back(line(LogLine::Level::notice, QByteArray::number(i).constData()));
    return lines;
}

} // namespace

class LogModelTest : public QObject {
    Q_OBJECT

    PlatformProfile profile = PlatformProfile::linux(Places::below(QStringLiteral("/nowhere")));

private Q_SLOTS:
    void init() { profile.runDirectory = QStringLiteral("/run/tor"); }

    void saysHowManyLinesThereAre()
    {
        StandInLog log;
        const LogModel model(log, profile);
        QCOMPARE(model.subtitle(), QStringLiteral("Tor writes here while it connects and runs"));
        log.show(LogFeed::State::unreadable);
        QCOMPARE(model.subtitle(), QStringLiteral("Can't read the log files"));
        log.show(LogFeed::State::lines, numbered(0, 1));
        QCOMPARE(model.subtitle(), QStringLiteral("1 line · /run/tor/notices.log"));
        log.show(LogFeed::State::lines, numbered(0, 2));
        QCOMPARE(model.subtitle(), QStringLiteral("2 lines · /run/tor/notices.log"));
    }

    void filtersAndSaysWhenNothingIsLeft()
    {
        StandInLog log;
        LogModel model(log, profile);
        QCOMPARE(model.emptyTitle(), QStringLiteral("No log yet"));
        log.show(LogFeed::State::lines, {line(LogLine::Level::notice, "Done"), line(LogLine::Level::info, "x")});
        QCOMPARE(model.problemsLabel(), QStringLiteral("Problems"));
        model.setProblemsOnly(true);
        QVERIFY(!model.hasRows());
        QCOMPARE(model.emptyTitle(), QStringLiteral("No warnings or errors. Tor is happy."));
        model.setSearch(QStringLiteral(" nowhere "));
        QCOMPARE(model.emptyTitle(), QStringLiteral("Nothing matches"));
        QCOMPARE(model.emptyText(), QStringLiteral("No lines contain “nowhere”"));
        model.setProblemsOnly(false);
        model.setSearch(QStringLiteral("dONE"));
        QCOMPARE(model.rowCount(), 1);
        log.show(LogFeed::State::lines, {line(LogLine::Level::warning, "a"), line(LogLine::Level::error, "b")});
        QCOMPARE(model.problemsLabel(), QStringLiteral("Problems (2)"));
    }

    void copiesWhatIsShown()
    {
        StandInLog log;
        LogModel model(log, profile);
        log.show(LogFeed::State::lines, numbered(8, 12));
        model.copy();
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("8\n9\n10\n11"));
        model.setSearch(QStringLiteral("1"));
        model.copy();
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("10\n11"));
        model.copy(1, 1);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("11"));
    }

    void growsAtTheEndAndIsCutAtTheBeginning()
    {
        StandInLog log;
        LogModel model(log, profile);
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        log.show(LogFeed::State::lines, numbered(0, 100));
        QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
        QSignalSpy inserts(&model, &QAbstractItemModel::rowsInserted);
        QSignalSpy removals(&model, &QAbstractItemModel::rowsRemoved);
        log.show(LogFeed::State::lines, numbered(0, 103));
        QCOMPARE(inserts.count(), 1);
        log.show(LogFeed::State::lines, numbered(5, 110));
        QCOMPARE(removals.count(), 1);
        QCOMPARE(inserts.count(), 2);
        QCOMPARE(resets.count(), 0);
        QCOMPARE(model.rowCount(), 105);
        QCOMPARE(model.data(model.index(0), LogModel::MessageRole).toString(), QStringLiteral("5"));
        log.show(LogFeed::State::lines, numbered(500, 510));
        QCOMPARE(resets.count(), 1);
        log.show(LogFeed::State::empty);
        QCOMPARE(model.rowCount(), 0);
    }

    void followsTheFilesOnlyWhileItIsOpen()
    {
        StandInLog log;
        LogModel model(log, profile);
        QVERIFY(!log.running);
        model.open();
        QVERIFY(log.running);
        model.close();
        QVERIFY(!log.running);
    }
};

VELDMARK_WINDOWED_TEST(LogModelTest)
#include "LogModelTest.moc"
