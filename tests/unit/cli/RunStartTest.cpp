#include "cli/RunCommand.h"

#include "instance/InstancePlace.h"
#include "support/Computer.h"
#include "support/OtherSession.h"
#include "support/Output.h"
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
        QVERIFY(until([&] { return computer.verbs().size() >= 2; }));
        QCOMPARE(computer.verbs(), QStringList({u"install-privileged"_s, u"connect"_s}));
        QCOMPARE(Computer::read(computer.profile.installedHelper),
                 Computer::read(computer.profile.bundledHelper()));
    }

    void aHelperThatIsUpToDateIsLeftAlone()
    {
        Computer computer;
        computer.installOldHelper();
        Computer::write(computer.profile.installedHelper,
                        Computer::read(computer.profile.bundledHelper()), true);
        RunCommand run(computer.profile, true);
        run.start();
        QVERIFY(until([&] { return !computer.verbs().isEmpty(); }));
        QCOMPARE(computer.verbs(), QStringList({u"connect"_s}));
    }

    void aHelperThatCannotBeRenewedDoesNotKeepItFromConnecting()
    {
        Computer computer;
        computer.installOldHelper();
        computer.fail("install-privileged", "No.");
        RunCommand run(computer.profile, true);
        run.start();
        QVERIFY(until([&] { return computer.verbs().size() >= 2; }));
        QCOMPARE(computer.verbs().constLast(), u"connect"_s);
    }

    // The phase stays the same, and its line was printed while the helper was renewed.
    void saysWhyItDoesNotConnectOverWhatWasLeft()
    {
        Computer computer;
        computer.installOldHelper();
        computer.writeMarker();
        Computer::write(computer.profile.settingsFile, "[General]\ncustomTorPath=bin/tor\n");
        const Output output;
        RunCommand run(computer.profile, true);
        run.start();
        QVERIFY2(until([&] { return output.text().contains(u"\n  Problem "_s); }),
                 qPrintable(output.text()));
        QCOMPARE(computer.verbs(), QStringList({u"install-privileged"_s}));
        QCOMPARE(output.text().count(u"\n  Problem "_s), 1);
    }

    // Once, whichever of the two says it first.
    void saysWhyItDoesNotConnect_data()
    {
        QTest::addColumn<bool>("asked");
        QTest::newRow("asked to") << true;
        QTest::newRow("by the setting") << false;
    }

    void saysWhyItDoesNotConnect()
    {
        QFETCH(bool, asked);
        Computer computer;
        Computer::write(computer.profile.settingsFile, "[General]\nautoConnect=true\n");
        computer.fail("connect", "No way.");
        const Output errors(stderr);
        RunCommand run(computer.profile, asked);
        run.start();
        QVERIFY2(until([&] { return errors.text().contains(u"No way."_s); }),
                 qPrintable(errors.text()));
        settle();
        QCOMPARE(errors.text().count(u"No way."_s), 1);
    }

    void tellsOfADamagedSettingsFile()
    {
        Computer computer;
        Computer::write(computer.profile.settingsFile, QByteArray("\0\xff=", 3));
        const Output errors(stderr);
        RunCommand run(computer.profile, false);
        run.start();
        QCOMPARE(errors.text().count(u"veldmarkctl: The settings file couldn't be read."_s), 1);
    }

    void endsWhereOneRunsAlready()
    {
        Computer computer;
        const auto lock = lockInstance(computer.profile);
        QVERIFY(lock);
        const Output errors(stderr);
        RunCommand run(computer.profile, true);
        QSignalSpy finished(&run, &RunCommand::finished);
        run.start();
        QCOMPARE(finished.count(), 1); // at once
        QVERIFY(finished.at(0).at(0).value<ExitStatus>() == ExitStatus::alreadyRunning);
        QCOMPARE(errors.text(),
                 u"veldmarkctl: "_s + lockInstance(computer.profile).error().english() + u'\n');
        settle();
        QVERIFY(computer.verbs().isEmpty());
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

    // The phase stays the same meanwhile.
    void tellsWhatBecomesOfASessionThatIsNotItsOwn()
    {
        Computer computer;
        computer.writeMarker();
        QString atFirst, taken, leftOver;
        qint64 process = 0;
        {
            const Output output;
            RunCommand run(computer.profile, false);
            run.start();
            const auto says = [&output](const QString &words) {
                return until([&] { return output.text().contains(words); });
            };
            static_cast<void>(says(u"from an earlier session"_s));
            atFirst = output.text();
            OtherSession other(computer.profile);
            process = other.process();
            static_cast<void>(says(u"process %1"_s.arg(process)));
            taken = output.text().sliced(atFirst.size());
            other.end();
            static_cast<void>(until([&] {
                return output.text().sliced(atFirst.size() + taken.size()).contains(u"earlier"_s);
            }));
            leftOver = output.text().sliced(atFirst.size() + taken.size());
        }
        QCOMPARE(atFirst.count(u"from an earlier session"_s), 1);
        QVERIFY2(taken.contains(u"by another Veldmark of yours, process %1"_s.arg(process)),
                 qPrintable(taken));
        QVERIFY2(leftOver.contains(u"from an earlier session"_s), qPrintable(leftOver));
    }
};

VELDMARK_TEST(RunStartTest)
#include "RunStartTest.moc"
