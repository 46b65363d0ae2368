#include "log/TorLogStore.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>

#include <memory>

using namespace veldmark;
using namespace std::chrono_literals;
using Kind = TorLog::Snapshot::Kind;

class TorLogStoreTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<TorLogStore> m_store;
    std::unique_ptr<QSignalSpy> m_changes;

    void write(const QByteArray &content)
    {
        QFile file(m_store->log().noticesPath());
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)
            || file.write(content) != content.size())
            qFatal("cannot write");
    }

    // Sets a file's time, so that a signature can stay the same although the content differs.
    void setTime(time_t seconds)
    {
        const timespec times[2] = {{seconds, 0}, {seconds, 0}};
        QCOMPARE(::utimensat(AT_FDCWD, QFile::encodeName(m_store->log().noticesPath()).constData(),
                             times, 0),
                 0);
    }

    QString only() const
    {
        const auto &lines = m_store->snapshot().lines();
        return lines.size() == 1 ? lines.constFirst().raw : QString();
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        const PlatformProfile profile = PlatformProfile::linux(Places::below(m_folder->path()));
        QVERIFY(QDir().mkpath(profile.runDirectory));
        m_store = std::make_unique<TorLogStore>(TorLog(profile), nullptr, 1ms);
        m_changes = std::make_unique<QSignalSpy>(m_store.get(), &TorLogStore::changed);
    }

    void isEmptyUntilItIsStarted()
    {
        write("one\n");
        QVERIFY(m_store->snapshot() == TorLog::Snapshot());
        m_store->start();
        QCOMPARE(only(), QStringLiteral("one"));
        QCOMPARE(m_changes->size(), 1);
    }

    void followsTheFiles()
    {
        m_store->start();
        QVERIFY(m_store->snapshot().kind() == Kind::empty);
        QCOMPARE(m_changes->size(), 0);
        write("one\n");
        QTRY_COMPARE(only(), QStringLiteral("one"));
        write("a longer line\n");
        QTRY_COMPARE(only(), QStringLiteral("a longer line"));
        QVERIFY(QFile::remove(m_store->log().noticesPath()));
        QTRY_VERIFY(m_store->snapshot().kind() == Kind::empty);
        QVERIFY(QDir().mkpath(m_store->log().noticesPath()));
        QTRY_VERIFY(m_store->snapshot().kind() == Kind::unreadable);
        QCOMPARE(m_changes->size(), 4);
    }

    // A file whose size and time are as before is not opened: its new content stays unseen.
    void readsOnlyWhatHasChanged()
    {
        write("one\n");
        setTime(1000);
        m_store->reload(true);
        write("two\n");
        setTime(1000);
        m_store->reload(false);
        QCOMPARE(only(), QStringLiteral("one"));
        m_store->reload(true);
        QCOMPARE(only(), QStringLiteral("two"));
        write("six\n");
        setTime(1001);
        m_store->reload(false);
        QCOMPARE(only(), QStringLiteral("six"));
    }

    void reportsOnlyWhatDiffers()
    {
        write("one\n");
        setTime(1000);
        m_store->reload(true);
        m_store->reload(true);
        write("one\n\n");
        m_store->reload(false);
        QCOMPARE(m_changes->size(), 1);
        write("two\n");
        m_store->reload(false);
        QCOMPARE(m_changes->size(), 2);
    }

    void stopsWatchingWhenTold()
    {
        m_store->start();
        write("one\n");
        QTRY_COMPARE(only(), QStringLiteral("one"));
        m_store->stop();
        write("two\n");
        // A second store, which still watches, shows that the interval has passed.
        TorLogStore other(m_store->log(), nullptr, 1ms);
        other.start();
        write("three\n");
        QTRY_COMPARE(other.snapshot().lines().constFirst().raw, QStringLiteral("three"));
        QCOMPARE(only(), QStringLiteral("one"));
        m_store->start();
        QCOMPARE(only(), QStringLiteral("three"));
    }

    void looksEverySecondByDefault() { QCOMPARE(TorLogStore::pollInterval, 1000ms); }
};

VELDMARK_TEST(TorLogStoreTest)
#include "TorLogStoreTest.moc"
