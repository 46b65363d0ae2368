#include "app/FileLog.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

class FileLogTest : public QObject {
    Q_OBJECT

    static QString notices(const Workbench &bench) { return bench.profile.runDirectory + u"/notices.log"_s; }

private Q_SLOTS:
    void isEmptyWithoutAFile()
    {
        Workbench bench;
        FileLog log(bench.profile);
        log.start();
        QVERIFY(log.state() == LogFeed::State::empty);
        QVERIFY(log.lines().empty());
    }

    void givesTheLinesWithTheirLevels()
    {
        Workbench bench;
        bench.writeFile(notices(bench), "Nov 16 00:41:07.123 [notice] Bootstrapped 5%\n"
                                        "Nov 16 00:41:08.000 [warn] Guard is down\n"
                                        "Nov 16 00:41:09.000 [err] No more\n");
        FileLog log(bench.profile);
        QSignalSpy changed(&log, &LogFeed::changed);
        log.start();
        QVERIFY(until([&] { return !changed.isEmpty(); }));
        QVERIFY(log.state() == LogFeed::State::lines);
        QCOMPARE(log.lines().size(), std::size_t(3));
        QCOMPARE(log.lines().at(0).message, u"Bootstrapped 5%"_s);
        QVERIFY(log.lines().at(0).level == LogLine::Level::notice);
        QVERIFY(log.lines().at(1).level == LogLine::Level::warning);
        QVERIFY(log.lines().at(2).level == LogLine::Level::error);
        QVERIFY(log.lines().at(2).raw.endsWith(u"[err] No more"_s));
        QVERIFY(log.lines().at(0).time.contains(u"00:41:07"_s));
    }

    void followsTheFileUntilItIsStopped()
    {
        Workbench bench;
        bench.writeFile(notices(bench), "Nov 16 00:41:07.123 [notice] One\n");
        FileLog log(bench.profile);
        QSignalSpy changed(&log, &LogFeed::changed);
        log.start();
        QVERIFY(until([&] { return log.lines().size() == 1; }));
        bench.writeFile(notices(bench), "Nov 16 00:41:07.123 [notice] One\nNov 16 00:41:08.000 [notice] Two\n");
        QVERIFY(until([&] { return log.lines().size() == 2; }));
        log.stop();
        const qsizetype told = changed.count();
        bench.writeFile(notices(bench), "Nov 16 00:41:09.000 [notice] Three\n");
        settle();
        QCOMPARE(changed.count(), told);
        log.start(); // catches up at once
        QCOMPARE(log.lines().size(), std::size_t(1));
        QCOMPARE(log.lines().at(0).message, u"Three"_s);
    }

    void saysThatItCannotRead()
    {
        Workbench bench;
        QVERIFY(QDir().mkpath(notices(bench))); // a folder where the file should be
        FileLog log(bench.profile);
        log.start();
        QVERIFY(log.state() == LogFeed::State::unreadable);
        QVERIFY(log.lines().empty());
    }
};

VELDMARK_TEST(FileLogTest)
#include "FileLogTest.moc"
