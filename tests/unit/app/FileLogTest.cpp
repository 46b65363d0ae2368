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

    static QString notices(const Workbench &bench)
    {
        return bench.profile.runDirectory + u"/notices.log"_s;
    }

private Q_SLOTS:
    void isEmptyWithoutAFile()
    {
        Workbench bench;
        FileLog log(bench.profile);
        log.start();
        QVERIFY(log.snapshot().kind() == LogFeed::State::empty);
        QVERIFY(log.snapshot().lines().empty());
    }

    void givesTheLinesWithTheirLevels()
    {
        Workbench bench;
        bench.writeFile(notices(bench),
                        "Nov 16 00:41:07.123 [notice] Bootstrapped 5%\n"
                        "Nov 16 00:41:08.000 [warn] Guard is down\n"
                        "Nov 16 00:41:09.000 [err] No more\n");
        FileLog log(bench.profile);
        QSignalSpy changed(&log, &LogFeed::changed);
        log.start();
        QVERIFY(until([&] { return !changed.isEmpty(); }));
        QVERIFY(log.snapshot().kind() == LogFeed::State::lines);
        QCOMPARE(log.snapshot().lines().size(), qsizetype(3));
        QCOMPARE(log.snapshot().lines().at(0).message, u"Bootstrapped 5%"_s);
        QVERIFY(log.snapshot().lines().at(0).level == TorLogLine::Level::notice);
        QVERIFY(log.snapshot().lines().at(1).level == TorLogLine::Level::warning);
        QVERIFY(log.snapshot().lines().at(2).level == TorLogLine::Level::error);
        QVERIFY(log.snapshot().lines().at(2).raw.endsWith(u"[err] No more"_s));
        QVERIFY(log.snapshot().lines().at(0).time->contains(u"00:41:07"_s));
    }

    void followsTheFileUntilItIsStopped()
    {
        Workbench bench;
        bench.writeFile(notices(bench), "Nov 16 00:41:07.123 [notice] One\n");
        FileLog log(bench.profile);
        QSignalSpy changed(&log, &LogFeed::changed);
        log.start();
        QVERIFY(until([&] { return log.snapshot().lines().size() == 1; }));
        bench.writeFile(notices(bench),
                        "Nov 16 00:41:07.123 [notice] One\nNov 16 00:41:08.000 [notice] Two\n");
        QVERIFY(until([&] { return log.snapshot().lines().size() == 2; }));
        log.stop();
        const qsizetype told = changed.count();
        bench.writeFile(notices(bench), "Nov 16 00:41:09.000 [notice] Three\n");
        settle();
        QCOMPARE(changed.count(), told);
        log.start(); // catches up at once
        QCOMPARE(log.snapshot().lines().size(), qsizetype(1));
        QCOMPARE(log.snapshot().lines().at(0).message, u"Three"_s);
    }

    void saysThatItCannotRead()
    {
        Workbench bench;
        QVERIFY(QDir().mkpath(notices(bench))); // a folder where the file should be
        FileLog log(bench.profile);
        log.start();
        QVERIFY(log.snapshot().kind() == LogFeed::State::unreadable);
        QVERIFY(log.snapshot().lines().empty());
    }
};

VELDMARK_TEST(FileLogTest)
#include "FileLogTest.moc"
