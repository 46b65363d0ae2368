#include "support/TestProgram.h"
#include "unit/system/TemporaryHome.h"

#include <QTest>

using namespace veldmark;
using Home = TemporaryHome;

// The settings when the file is damaged or cannot be written.
class SettingsStoreDamageTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void aBrokenFileIsKeptAndTheDefaultsHold_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("garbage") << QByteArray("\x80\x81\xfe\xff garbage\n\x01\x02");
        QTest::newRow("nuls") << QByteArray(512, '\0');
        QTest::newRow("cut short") << QByteArray("[General]\nstrictMode=true\naKe");
        QTest::newRow("open quote") << QByteArray("[General]\naKey=\"x\nstrictMode=true\n");
    }
    void aBrokenFileIsKeptAndTheDefaultsHold()
    {
        QFETCH(QByteArray, content);
        Home home;
        home.write(content);
        SettingsStore store(home.profile);
        QCOMPARE(store.boolean(strict), false);
        QCOMPARE(
            store.problem().value(),
            QStringLiteral(
                "The settings file couldn't be read. It was kept as %1, and a new one is used.")
                .arg(home.broken()));
        QVERIFY(!store.problem()); // once
        QCOMPARE(Home::read(home.broken()), content);
        store.setBoolean(strict, true);
        QCOMPARE(home.content(), QByteArray("[General]\nstrictMode=true\n"));
        QCOMPARE(Home::read(home.broken()), content);
        QVERIFY(!store.problem());
    }

    void aSecondBrokenFileGetsAnotherName()
    {
        Home home;
        home.write("one");
        SettingsStore(home.profile).setBoolean(strict, true);
        home.write("two");
        SettingsStore store(home.profile);
        QVERIFY(store.problem()->english().contains(home.broken() + QStringLiteral("-1")));
        QCOMPARE(Home::read(home.broken()), QByteArray("one"));
        QCOMPARE(Home::read(home.broken() + QStringLiteral("-1")), QByteArray("two"));
    }

    void anEmptyFileIsFine()
    {
        Home home;
        home.write("");
        SettingsStore store(home.profile);
        QVERIFY(!store.problem());
        QVERIFY(!QFile::exists(home.broken()));
    }

    void whatCannotBeReadIsPutAside_data()
    {
        QTest::addColumn<QString>("what");
        for (const char *what : {"no permission", "directory", "fifo", "too large"})
            QTest::newRow(what) << QString::fromUtf8(what);
    }
    void whatCannotBeReadIsPutAside()
    {
        QFETCH(QString, what);
        Home home;
        home.write("[General]\nstrictMode=true\n");
        if (what == QLatin1String("no permission")) {
            QCOMPARE(::chmod(qPrintable(home.path()), 0), 0);
        } else if (what == QLatin1String("too large")) {
            QVERIFY(QFile::resize(home.path(), 8'000'000));
        } else {
            QVERIFY(QFile::remove(home.path()));
            if (what == QLatin1String("directory"))
                QVERIFY(QDir().mkpath(home.path() + QStringLiteral("/inside")));
            else
                QCOMPARE(::mkfifo(qPrintable(home.path()), 0600), 0);
        }
        SettingsStore store(home.profile);
        QVERIFY(store.problem());
        QVERIFY(QFileInfo::exists(home.broken()));
        QVERIFY(!QFileInfo::exists(home.path()));
        store.setString(key, QStringLiteral("new"));
        QCOMPARE(SettingsStore(home.profile).string(key), QStringLiteral("new"));
    }

    void aBrokenFileThatCannotBeMovedIsNeverWritten()
    {
        Home home;
        home.write("garbage");
        QCOMPARE(::chmod(qPrintable(home.folder()), 0500), 0);
        {
            SettingsStore store(home.profile);
            QVERIFY(store.problem());
            store.setBoolean(strict, true);
            QCOMPARE(store.boolean(strict), true); // in memory
            QVERIFY(!store.problem());             // told already
            QCOMPARE(::chmod(qPrintable(home.folder()), 0700), 0);
            store.setString(key, QStringLiteral("x"));
        }
        QCOMPARE(home.content(), QByteArray("garbage"));
        QCOMPARE(home.files(), QStringList(QStringLiteral("veldmark.conf")));
    }

    void aFolderThatCannotBeEnteredIsLeftAlone()
    {
        Home home;
        home.write("[General]\nstrictMode=true\n");
        QCOMPARE(::chmod(qPrintable(home.folder()), 0), 0);
        SettingsStore store(home.profile);
        QVERIFY(store.problem());
        store.setBoolean(strict, false);
        QCOMPARE(::chmod(qPrintable(home.folder()), 0700), 0);
        QCOMPARE(home.content(), QByteArray("[General]\nstrictMode=true\n"));
    }

    void aReadOnlyHomeIsReportedOnceAndTriedAgain()
    {
        Home home;
        const QString root = home.profile.places.root;
        QCOMPARE(::chmod(qPrintable(root), 0500), 0);
        SettingsStore store(home.profile);
        QVERIFY(!store.problem()); // nothing was lost yet
        store.setBoolean(strict, true);
        QCOMPARE(
            store.problem().value(),
            QStringLiteral(
                "The settings couldn't be saved. Changes to them may last only until you quit."));
        store.setString(key, QStringLiteral("x"));
        QVERIFY(!store.problem());
        QCOMPARE(store.boolean(strict), true);
        QCOMPARE(::chmod(qPrintable(root), 0700), 0);
        store.setString(QStringLiteral("third"), QStringLiteral("y"));
        QCOMPARE(home.content(), QByteArray("[General]\naKey=x\nstrictMode=true\nthird=y\n"));
        QVERIFY(!store.problem());
        QCOMPARE(::chmod(qPrintable(home.folder()), 0500), 0); // the failure begins again, which is
                                                               // news
        store.setString(key, QStringLiteral("z"));
        QVERIFY(store.problem());
        QCOMPARE(::chmod(qPrintable(home.folder()), 0700), 0);
    }

    void aFullDiskLeavesTheOldFile_data()
    {
        QTest::addColumn<int>("bytes");
        QTest::newRow("no room for a copy") << 4;
        QTest::newRow("no room for the change") << 30;
    }
    void aFullDiskLeavesTheOldFile()
    {
        QFETCH(int, bytes);
        const QString after(100, u'x');
        Home home;
        SettingsStore store(home.profile);
        store.setString(key, QStringLiteral("before"));
        const QByteArray before = home.content();
        QVERIFY(before.size() <= 30);
        {
            const FullDisk full(static_cast<rlim_t>(bytes));
            store.setString(key, after);
        }
        QVERIFY(store.problem());
        QCOMPARE(home.content(), before);
        QCOMPARE(home.files(), QStringList(QStringLiteral("veldmark.conf")));
        QCOMPARE(store.string(key), after);
        store.setBoolean(strict, true);
        QCOMPARE(home.content(), "[General]\naKey=" + after.toUtf8() + "\nstrictMode=true\n");
    }

    void aFileItsOwnerMadeReadOnlyIsLeftAlone()
    {
        Home home;
        home.write("[General]\nstrictMode=true\n");
        QCOMPARE(::chmod(qPrintable(home.path()), 0400), 0);
        SettingsStore store(home.profile);
        store.setBoolean(strict, false);
        QVERIFY(store.problem());
        QCOMPARE(home.content(), QByteArray("[General]\nstrictMode=true\n"));
    }

    void aFileDamagedWhileItRunsIsKeptAndRewrittenWhole()
    {
        Home home;
        SettingsStore store(home.profile);
        store.setString(key, QStringLiteral("x"));
        home.write("garbage");
        store.setBoolean(strict, true);
        QVERIFY(store.problem());
        QCOMPARE(Home::read(home.broken()), QByteArray("garbage"));
        QCOMPARE(home.content(), QByteArray("[General]\naKey=x\nstrictMode=true\n"));
    }
};

VELDMARK_TEST(SettingsStoreDamageTest)
#include "SettingsStoreDamageTest.moc"
