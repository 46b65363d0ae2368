#include "cli/RunCommand.h"

#include "support/Computer.h"
#include "support/OtherSession.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

// How `veldmarkctl run` starts, with the real processes that it starts; Tor is never reached.
class RunStartTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<ExitStatus>(); }

    void renewsTheRootOwnedHelperBeforeItIsUsed()
    {
        Computer computer;
        computer.installOldHelper();
        RunCommand run(computer.profile, true);
        run.start();
        QVERIFY(until([&] { return computer.verbs().size() >= 3; }));
        QCOMPARE(computer.verbs(), QStringList({u"install-privileged"_s, u"approve"_s, u"connect"_s})); // its tor is the user's own
        QCOMPARE(Computer::read(computer.profile.installedHelper), Computer::read(computer.profile.bundledHelper()));
    }

    void aHelperThatIsUpToDateIsLeftAlone()
    {
        Computer computer;
        computer.installOldHelper();
        Computer::write(computer.profile.installedHelper, Computer::read(computer.profile.bundledHelper()), true);
        RunCommand run(computer.profile, true);
        run.start();
        QVERIFY(until([&] { return computer.verbs().size() >= 2; }));
        QCOMPARE(computer.verbs(), QStringList({u"approve"_s, u"connect"_s}));
    }

    void aHelperThatCannotBeRenewedDoesNotKeepItFromConnecting()
    {
        Computer computer;
        computer.installOldHelper();
        computer.fail("install-privileged", "No.");
        RunCommand run(computer.profile, true);
        run.start();
        QVERIFY(until([&] { return computer.verbs().size() >= 3; }));
        QCOMPARE(computer.verbs().constLast(), u"connect"_s);
    }

    void endsWhereAnotherProcessIsConnected()
    {
        Computer computer;
        OtherSession other(computer.profile);
        RunCommand run(computer.profile, true);
        QSignalSpy finished(&run, &RunCommand::finished);
        run.start();
        QVERIFY(until([&] { return finished.count() == 1; }));
        QVERIFY(finished.at(0).at(0).value<ExitStatus>() == ExitStatus::failed);
        QVERIFY(computer.verbs().isEmpty());
        QVERIFY(computer.hasMarker());
    }
};

VELDMARK_TEST(RunStartTest)
#include "RunStartTest.moc"
