#include "bridges/TransportSearch.h"

#include "ProgramTree.h"
#include "support/TestProgram.h"

#include <QElapsedTimer>
#include <QSemaphore>
#include <QTest>
#include <QThread>
#include <QThreadPool>

#include <signal.h>

using namespace veldmark;

namespace {

// The result of a search, and the thread it arrived on.
struct Outcome {
    PluggableTransports found;
    QThread *thread = nullptr; // null while the search runs
};

QCoro::Task<void> keep(QCoro::Task<PluggableTransports> search, Outcome *outcome)
{
    const PluggableTransports found = co_await search;
    *outcome = {found, QThread::currentThread()};
}

QCoro::Task<void> keepAndDestroy(QCoro::Task<PluggableTransports> search,
                                 std::unique_ptr<TransportSearch> *owner, Outcome *outcome)
{
    const PluggableTransports found = co_await search;
    owner->reset();
    *outcome = {found, QThread::currentThread()};
}

struct System {
    QString bundle(const QString &name) const { return profile.bundleDirectory + u'/' + name; }

    ProgramTree tree;
    PlatformProfile profile = PlatformProfile::linux(Places::below(tree.root()));
};

// Keeps the thread pool busy for its lifetime.
class BusyPool {
public:
    BusyPool()
    {
        m_pool->waitForDone();
        m_pool->setMaxThreadCount(1);
        m_pool->start([gate = m_gate] { gate->acquire(); });
    }
    ~BusyPool()
    {
        m_gate->release();
        m_pool->setMaxThreadCount(m_threads);
    }
    Q_DISABLE_COPY_MOVE(BusyPool)

private:
    QThreadPool *const m_pool = QThreadPool::globalInstance();
    const int m_threads = m_pool->maxThreadCount();
    const std::shared_ptr<QSemaphore> m_gate = std::make_shared<QSemaphore>();
};

// Writes its process id to `running`, and then hangs for a minute.
QByteArray silentProgram(const QString &running)
{
    return "#!/bin/sh\necho $$ >'" + QFile::encodeName(running) + ".new'\nmv '"
        + QFile::encodeName(running) + ".new' '" + QFile::encodeName(running)
        + "'\nexec /bin/sleep 60\n";
}

} // namespace

class TransportSearchTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void searchesOnAnotherThreadAndAnswersOnThis()
    {
        const System system;
        system.tree.program(system.bundle(QStringLiteral("snowflake-client")));
        TransportSearch search(system.profile);
        Outcome outcome;
        const auto task = keep(search.locate(), &outcome);
        QTRY_VERIFY(outcome.thread);
        QCOMPARE(outcome.thread, QThread::currentThread());
        QCOMPARE(outcome.found, PluggableTransports::locate(system.profile));
        QVERIFY(outcome.found.snowflake);
    }

    void severalSearchesMayBeUnderWay()
    {
        const System system;
        system.tree.program(system.bundle(QStringLiteral("snowflake-client")));
        TransportSearch search(system.profile);
        Outcome first;
        Outcome second;
        const auto one = keep(search.locate(), &first);
        const auto another = keep(search.locate(QStringLiteral("14.5")), &second);
        QTRY_VERIFY(first.thread && second.thread);
        QVERIFY(first.found.snowflake && second.found.snowflake);
    }

    void itsDestructionEndsASearchAndTheProgramThatThisAsks()
    {
        const System system;
        const QString running = system.tree.path(QStringLiteral("running"));
        system.tree.program(system.bundle(QStringLiteral("lyrebird")), silentProgram(running));
        auto search = std::make_unique<TransportSearch>(system.profile);
        Outcome outcome;
        const auto task = keep(search->locate(), &outcome);
        QTRY_VERIFY(QFile::exists(running));
        const int process = system.tree.content(running).trimmed().toInt();
        QVERIFY(process > 0);
        QCOMPARE(::kill(process, 0), 0);
        QVERIFY(!outcome.thread);

        search.reset();
        QVERIFY2(outcome.thread, "the waiter was left behind");
        QCOMPARE(outcome.found, PluggableTransports());
        QElapsedTimer sinceThen;
        sinceThen.start();
        QVERIFY(QThreadPool::globalInstance()->waitForDone());
        QVERIFY2(sinceThen.elapsed() < 4000,
                 "it took as long as the program may take to answer, which is 5 s");
        QCOMPARE(::kill(process, 0), -1);
    }

    void aProgramThatHangsHoldsUpNoSearchThatDoesNotAsk()
    {
        const System system;
        const QString running = system.tree.path(QStringLiteral("running"));
        system.tree.program(system.bundle(QStringLiteral("lyrebird")), silentProgram(running));
        QThreadPool *const pool = QThreadPool::globalInstance();
        const int threads = pool->maxThreadCount();
        pool->setMaxThreadCount(1);
        {
            TransportSearch search(system.profile);
            Outcome first;
            Outcome second;
            Outcome quick;
            const auto one = keep(search.locate(), &first);
            const auto another = keep(search.locate(), &second);
            QTRY_VERIFY(QFile::exists(running));
            const auto task = keep(search.locateWithoutAsking(), &quick);
            QTRY_VERIFY(quick.thread);
            QVERIFY(quick.found.lyrebird && !quick.found.snowflake);
            QVERIFY(!first.thread && !second.thread); // they do hang
        }
        pool->waitForDone();
        pool->setMaxThreadCount(threads);
    }

    void aSecondSearchDoesNotAskAgain()
    {
        const System system;
        const QString ran = system.tree.path(QStringLiteral("ran"));
        system.tree.program(
            system.bundle(QStringLiteral("lyrebird")),
            "#!/bin/sh\necho x >>" + QFile::encodeName(ran)
                + "\necho CMETHOD snowflake socks5 127.0.0.1:1\necho CMETHODS DONE\n");
        TransportSearch search(system.profile);
        Outcome first;
        Outcome second;
        const auto one = keep(search.locate(), &first);
        const auto another = keep(search.locate(), &second); // while the other still asks, perhaps
        QTRY_VERIFY(first.thread && second.thread);
        QVERIFY(first.found.snowflake && second.found == first.found);
        QCOMPARE(system.tree.content(ran).count('x'), 1);
    }

    void itsDestructionEndsAWalkThroughFolders()
    {
        const System system;
        QString path = system.bundle(QStringLiteral("d"));
        for (int depth = 0; depth < 60; ++depth)
            path += QStringLiteral("/d");
        system.tree.program(path + QStringLiteral("/webtunnel-client"));
        StopSource ended;
        QVERIFY(
            PluggableTransports::locate(system.profile, std::nullopt, ended.get_token()).webtunnel);
        ended.request_stop();
        QVERIFY(!PluggableTransports::locate(system.profile, std::nullopt, ended.get_token())
                     .webtunnel);
    }

    void whatWasFoundButNotYetHandedOverIsHandedOverByItsDestruction()
    {
        const System system;
        system.tree.program(system.bundle(QStringLiteral("snowflake-client")));
        auto search = std::make_unique<TransportSearch>(system.profile);
        Outcome outcome;
        auto busy = std::make_unique<BusyPool>();
        const auto task = keep(search->locate(), &outcome);
        busy.reset();
        QVERIFY(QThreadPool::globalInstance()->waitForDone());
        QVERIFY2(!outcome.thread, "nothing was left to hand over");
        search.reset();
        QVERIFY(outcome.thread);
        QVERIFY(outcome.found.snowflake);
    }

    void theWaiterMayDestroyIt()
    {
        const System system;
        auto search = std::make_unique<TransportSearch>(system.profile);
        Outcome first;
        Outcome second;
        auto busy = std::make_unique<BusyPool>();
        const auto one = keepAndDestroy(search->locate(), &search, &first);
        const auto another = keep(search->locate(), &second);
        busy.reset();
        QTRY_VERIFY(first.thread && second.thread);
        QVERIFY(!search);
    }
};

VELDMARK_TEST(TransportSearchTest)
#include "TransportSearchTest.moc"
