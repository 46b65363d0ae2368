#include "cli/Commands.h"

#include "instance/InstancePlace.h"
#include "instance/InstanceServer.h"
#include "support/Computer.h"
#include "support/OtherSession.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QTest>

#include <optional>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace veldmark;
using Id = Verb::Id;

namespace {

QCoro::Task<void> take(Invocation invocation, PlatformProfile profile, std::shared_ptr<std::optional<ExitStatus>> ended)
{
    const ExitStatus status = co_await execute(invocation, profile);
    *ended = status;
}

// What a whole command comes to; nothing when it does not end.
std::optional<ExitStatus> outcome(Id verb, const PlatformProfile &profile, const QString &key = {})
{
    Invocation invocation;
    invocation.verb = verb;
    invocation.key = key;
    const auto ended = std::make_shared<std::optional<ExitStatus>>();
    take(invocation, profile, ended);
    until([&ended] { return ended->has_value(); });
    return *ended;
}

} // namespace

// Whole commands, with the real processes that they start.
class CommandsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void restoresWithoutAnInstance()
    {
        Computer computer;
        computer.writeMarker();
        QVERIFY(outcome(Id::restore, computer.profile) == ExitStatus::done);
        QVERIFY(!computer.hasMarker());
        QCOMPARE(computer.verbs(), QStringList{u"disconnect"_s});
        QVERIFY(outcome(Id::restore, computer.profile) == ExitStatus::done); // nothing to do is no error
        QCOMPARE(computer.verbs().size(), 1);
    }

    void aRestoreThatFailsIsToldEachTime()
    {
        Computer computer;
        computer.writeMarker();
        computer.fail("disconnect", "Could not.");
        for (int time = 1; time <= 2; ++time) {
            QVERIFY(outcome(Id::restore, computer.profile) == ExitStatus::failed);
            QCOMPARE(computer.verbs().size(), time);
        }
        QVERIFY(computer.hasMarker());
    }

    void restoresNothingWhileAnInstanceIsAboutToStart_data()
    {
        QTest::addColumn<bool>("elsewhere");
        QTest::newRow("in its usual place") << false;
        QTest::newRow("in the other place") << true;
    }

    void restoresNothingWhileAnInstanceIsAboutToStart()
    {
        QFETCH(bool, elsewhere);
        Computer computer;
        computer.writeMarker();
        PlatformProfile its = computer.profile;
        if (elsewhere)
            its.controlSocket = std::exchange(its.otherControlSockets, {}).constFirst();
        auto lock = lockInstance(its); // it has its lock, and does not listen yet
        QVERIFY(lock);
        QVERIFY(outcome(Id::restore, computer.profile) == ExitStatus::alreadyRunning);
        QVERIFY(computer.hasMarker());
        QVERIFY(computer.verbs().isEmpty());
        lock->reset();
        QVERIFY(outcome(Id::restore, computer.profile) == ExitStatus::done);
        QVERIFY(!computer.hasMarker());
    }

    void restoresThroughARunningInstance()
    {
        Workbench bench;
        auto server = InstanceServer::start(bench.controller());
        QVERIFY(server);
        bench.writeMarker("strict\n"); // of somebody else; the instance is at rest
        QVERIFY(outcome(Id::restore, bench.profile) == ExitStatus::done);
        QVERIFY(!bench.hasMarker());
        QCOMPARE(bench.helperRunCount(u"disconnect"_s), 1);
        bench.writeMarker("strict\n");
        bench.failHelper(u"disconnect"_s, u"Could not."_s);
        QVERIFY(outcome(Id::restore, bench.profile) == ExitStatus::failed);
        QVERIFY(bench.hasMarker());
        server->reset();
        settle();
    }

    void rootOpensAnApplicationWithoutAnInstance()
    {
        Computer computer;
        const QString app = computer.folder.filePath(u"app.desktop"_s);
        Computer::write(app, "[Desktop Entry]\nType=Application\nName=A\nExec=true\n");
        const bool isRoot = geteuid() == 0;
        QVERIFY(outcome(Id::launch, computer.profile, app) == (isRoot ? ExitStatus::done : ExitStatus::notRunning));
        QCOMPARE(computer.verbs(), isRoot ? QStringList{u"launch"_s} : QStringList());
        if (!isRoot)
            return;
        computer.fail("launch", "The kill switch is not on.");
        QVERIFY(outcome(Id::launch, computer.profile, app) == ExitStatus::failed);
    }
};

VELDMARK_TEST(CommandsTest)
#include "CommandsTest.moc"
