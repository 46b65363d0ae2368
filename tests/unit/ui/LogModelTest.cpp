#include "ui/LogModel.h"
#include "StandInSession.h"
#include "support/TestProgram.h"

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace veldmark;

namespace {

TorLogLine line(TorLogLine::Level level, const char *text)
{
    return {0, QStringLiteral("Nov 16 00:41:07.123"), level, QString::fromUtf8(text),
            QString::fromUtf8(text)};
}

QList<TorLogLine> numbered(int from, int to)
{
    QList<TorLogLine> lines;
    for (int i = from; i < to; ++i)
        lines.push_back(line(TorLogLine::Level::notice, QByteArray::number(i).constData()));
    return lines;
}

} // namespace

class LogModelTest : public QObject {
    Q_OBJECT

    PlatformProfile profile = PlatformProfile::linux(Places::below(QStringLiteral("/nowhere")));
    QStringList opened;

public Q_SLOTS:
    void openFolder(const QUrl &url) { opened << url.toLocalFile(); }

private Q_SLOTS:
    // no view is attached
    void initTestCase() { qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus"); }
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
        log.show(LogFeed::State::lines,
                 {line(TorLogLine::Level::notice, "Done"), line(TorLogLine::Level::info, "x")});
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
        log.show(LogFeed::State::lines,
                 {line(TorLogLine::Level::warning, "a"), line(TorLogLine::Level::error, "b")});
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
        // Rows that were removed since they were chosen are skipped.
        model.copy(-3, 0);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("10"));
        model.copy(1, 7);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("11"));
        model.copy(2, 7);
        QCOMPARE(QGuiApplication::clipboard()->text(), QString());
    }

    void growsAtTheEndAndIsCutAtTheBeginning()
    {
        StandInLog log;
        LogModel model(log, profile);
        QAbstractItemModelTester tester(&model,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
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

    void searchesAsTheUsersLanguageDoes()
    {
        const QLocale before;
        StandInLog log;
        log.show(LogFeed::State::lines,
                 {line(TorLogLine::Level::notice, "BAĞLANTI hazır"),
                  line(TorLogLine::Level::notice, "other")});
        QLocale::setDefault(QLocale(QLocale::Turkish));
        LogModel turkish(log, profile);
        turkish.setSearch(QStringLiteral("bağlantı"));
        const int found = turkish.rowCount();
        QLocale::setDefault(QLocale(QLocale::English));
        LogModel english(log, profile);
        english.setSearch(QStringLiteral("bağlantı"));
        const int otherwise = english.rowCount();
        QLocale::setDefault(before);
        QCOMPARE(otherwise, 0); // in this locale the capital of ı is another letter
        QCOMPARE(found, 1);
    }

    void aNewWindowBeginsWithoutAFilter()
    {
        StandInLog log;
        LogModel model(log, profile);
        log.show(LogFeed::State::lines, numbered(0, 5));
        model.setSearch(QStringLiteral("3"));
        model.setProblemsOnly(true);
        model.close();
        model.open();
        QCOMPARE(model.search(), QString());
        QVERIFY(!model.problemsOnly());
        QCOMPARE(model.rowCount(), 5);
    }

    void showsTheFilesOrSaysWhyNot()
    {
        QTemporaryDir folder;
        StandInLog log;
        profile.runDirectory = folder.filePath(QStringLiteral("run"));
        LogModel model(log, profile);
        QSignalSpy changed(&model, &LogModel::changed);
        model.reveal();
        QVERIFY2(model.revealProblem().contains(profile.runDirectory),
                 qPrintable(model.revealProblem()));
        QCOMPARE(changed.count(), 1);
        QVERIFY(QDir().mkpath(profile.runDirectory));
        model.reveal(); // there is no bus, and this platform opens nothing
        QVERIFY2(model.revealProblem().startsWith(QStringLiteral("No file manager")),
                 qPrintable(model.revealProblem()));

        // A desktop that opens folders opens this one.
        QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "openFolder");
        model.reveal();
        QTRY_COMPARE(opened, QStringList(profile.runDirectory));
        QVERIFY(model.revealProblem().isEmpty());
        QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
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
