#include "instance/InstancePlace.h"

#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QTest>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace veldmark;

class InstancePlaceTest : public QObject {
    Q_OBJECT
private:
    struct Place {
        QTemporaryDir folder;
        PlatformProfile profile = PlatformProfile::linux(Places::below(folder.path()));
        QString home() const { return QFileInfo(profile.controlSocket).path(); }
        bool make(mode_t mode) const
        {
            return QDir().mkpath(home())
                && ::chmod(QFile::encodeName(home()).constData(), mode) == 0;
        }
    };

private Q_SLOTS:
    void makesAFolderThatOnlyTheUserCanEnter_data()
    {
        QTest::addColumn<int>("mask");
        QTest::newRow("usual mask") << 022;
        QTest::newRow("no mask") << 0;
    }

    void makesAFolderThatOnlyTheUserCanEnter()
    {
        QFETCH(int, mask);
        Place place;
        const mode_t before = ::umask(static_cast<mode_t>(mask));
        const auto lock = lockInstance(place.profile);
        ::umask(before);
        QVERIFY(lock);
        struct stat info { };
        QCOMPARE(::stat(QFile::encodeName(place.home()).constData(), &info), 0);
        QCOMPARE(info.st_mode & 07777, mode_t(0700));
    }

    void thereIsOneInstance()
    {
        Place place;
        auto first = lockInstance(place.profile);
        QVERIFY(first);
        const auto second = lockInstance(place.profile);
        QVERIFY(!second);
        QCOMPARE(
            second.error(),
            u"Veldmark is already running (process %1)."_s.arg(QCoreApplication::applicationPid()));
        first->reset();
        QVERIFY(lockInstance(place.profile));
    }

    void thereIsOneInstanceInWhicheverPlaceItWasStarted()
    {
        Place place;
        Places places = place.profile.places;
        places.runtimeDirectory.clear();
        const PlatformProfile elsewhere = PlatformProfile::linux(places);
        auto first = lockInstance(elsewhere);
        QVERIFY(first);
        const auto second = lockInstance(place.profile);
        QVERIFY(!second);
        QCOMPARE(
            second.error(),
            u"Veldmark is already running (process %1)."_s.arg(QCoreApplication::applicationPid()));
        first->reset();
        QVERIFY(lockInstance(place.profile));
        QVERIFY(lockInstance(elsewhere)); // the check has left no lock
    }

    void refusesAFolder_data()
    {
        QTest::addColumn<int>("mode");
        QTest::newRow("others may enter") << 0701;
        QTest::newRow("the group may read") << 0740;
        QTest::newRow("everybody may write") << 0777;
    }

    void refusesAFolder()
    {
        QFETCH(int, mode);
        Place place;
        QVERIFY(place.make(static_cast<mode_t>(mode)));
        const auto lock = lockInstance(place.profile);
        QVERIFY(!lock);
        QCOMPARE(
            lock.error(),
            u"%1 must be a folder of your own with mode 0700: the control socket goes there."_s.arg(
                place.home()));
        QVERIFY(place.make(0700));
        QVERIFY(lockInstance(place.profile));
    }

    void refusesALinkToAFolder()
    {
        Place place;
        const QString elsewhere = place.folder.filePath(u"elsewhere"_s);
        QVERIFY(::mkdir(QFile::encodeName(elsewhere).constData(), 0700) == 0);
        QVERIFY(QDir().mkpath(QFileInfo(place.home()).path()));
        QVERIFY(QFile::link(elsewhere, place.home()));
        QVERIFY(!lockInstance(place.profile));
        QVERIFY(QFile::remove(place.home()));
        QVERIFY(QFile::link(u"/nowhere"_s, place.home()));
        QVERIFY(!lockInstance(place.profile));
    }

    void aLockThatACrashLeftDoesNotCount_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("damaged") << QByteArray("\0\0\0\0", 4);
        QTest::newRow("of a process that is gone") << QByteArray("gone");
    }

    void aLockThatACrashLeftDoesNotCount()
    {
        QFETCH(QByteArray, content);
        Place place;
        QVERIFY(place.make(0700));
        const QString path = place.home() + u"/lock"_s;
        if (content == "gone") {
            const pid_t child = ::fork();
            if (child == 0) { // takes the lock and ends without releasing it
                const auto lock = lockInstance(place.profile);
                ::_exit(lock ? 0 : 1);
            }
            int status = 0;
            QVERIFY(::waitpid(child, &status, 0) == child && status == 0);
            QVERIFY(QFileInfo(path).size() > 0);
        } else {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size()
                    && file.flush());
            QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(-60),
                                     QFile::FileModificationTime));
        }
        const auto lock = lockInstance(place.profile);
        QVERIFY2(lock, lock ? "" : qPrintable(lock.error().english()));
        QVERIFY(!lockInstance(place.profile));
    }
};

VELDMARK_TEST(InstancePlaceTest)
#include "InstancePlaceTest.moc"
