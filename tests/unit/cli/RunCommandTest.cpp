#include "cli/RunCommand.h"

#include "base/Resumption.h"
#include "support/Interruption.h"
#include "support/TestProgram.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <memory>

using namespace Qt::StringLiterals;
using namespace veldmark;
using Moment = InterruptibleApplication::Moment;

namespace {

InterruptibleApplication *application = nullptr;

// A computer whose tor hashes passwords and never opens its control port, and whose helper writes
// and removes the marker. No program listens at the real control port, so no session gets
// established.
struct Computer {
    QTemporaryDir folder;
    PlatformProfile profile = PlatformProfile::linux(Places::below(folder.path()));

    Computer()
    {
        const QByteArray marker = QFile::encodeName(profile.sessionMarker);
        const QByteArray tor = "#!/bin/sh\necho 16:0123456789ABCDEF\n";
        write(profile.torCandidates.constFirst(), tor);
        const QByteArray digest = QCryptographicHash::hash(tor, QCryptographicHash::Sha256).toHex();
        write(profile.approvedPrograms + u'/' + QLatin1String(digest) + u"/tor"_s, tor);
        write(profile.helperCandidates.constFirst(),
              "#!/bin/bash\ncase $1 in\nconnect) mkdir -p '"
                  + QFile::encodeName(QFileInfo(profile.sessionMarker).path())
                  + "' && echo strict >'" + marker + "' ;;\ndisconnect) rm -f '" + marker
                  + "' ;;\nesac\n");
        // not asked when root runs the test
        write(profile.promptProgram, "#!/bin/sh\nexec /bin/bash \"$@\"\n");
        QDir().mkpath(profile.places.home);
        QDir().mkpath(profile.places.runtimeDirectory);
    }

    static void write(const QString &path, const QByteArray &content)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(path));
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    bool hasMarker() const { return QFile::exists(profile.sessionMarker); }
};

} // namespace

class RunCommandTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void endsWithoutASession()
    {
        Computer computer;
        RunCommand run(computer.profile, false);
        QSignalSpy finished(&run, &RunCommand::finished);
        run.start();
        QCoreApplication::processEvents();
        ::raise(SIGTERM);
        QTRY_COMPARE(finished.count(), 1);
        QCOMPARE(finished.at(0).at(0).value<ExitStatus>(), ExitStatus::done);
    }

    void restoresWhatItHasBegun()
    {
        Computer computer;
        RunCommand run(computer.profile, true);
        QSignalSpy finished(&run, &RunCommand::finished);
        run.start();
        QTRY_VERIFY(computer.hasMarker());
        ::raise(SIGTERM);
        QTRY_COMPARE(finished.count(), 1);
        QCOMPARE(finished.at(0).at(0).value<ExitStatus>(), ExitStatus::done);
        QVERIFY(!computer.hasMarker());
    }

    // The event loop may end at any point, also without notice. No coroutine is left waiting, and
    // no resumed coroutine uses a destroyed object.
    void leavesNobodyWaiting_data()
    {
        QTest::addColumn<bool>("connects");
        QTest::addColumn<int>("resumption");
        QTest::addColumn<Moment>("moment");
        for (const bool connects : {false, true}) {
            for (int resumption = 1; resumption <= (connects ? 8 : 2); ++resumption) {
                for (const Moment moment : {Moment::before, Moment::after})
                    QTest::addRow("%s %d %s", connects ? "connect" : "ready", resumption,
                                  moment == Moment::before ? "before" : "after")
                        << connects << resumption << moment;
            }
        }
    }

    void leavesNobodyWaiting()
    {
        QFETCH(bool, connects);
        QFETCH(int, resumption);
        QFETCH(Moment, moment);
        QCOMPARE(Resumption::waiting(), 0);
        Computer computer;
        bool ended = false;
        {
            const CoroutineEnds coroutineEnds;
            auto run = std::make_unique<RunCommand>(computer.profile, connects);
            application->interrupt(resumption, moment, [&] {
                ended = true;
                run.reset();
            });
            run->start();
            static_cast<void>(QTest::qWaitFor([&ended] { return ended; }, connects ? 10'000 : 300));
            application->leaveAlone();
        }
        QCOMPARE(Resumption::waiting(), 0);
        if (connects)
            QVERIFY(ended); // it reaches that point
    }

    void leavesNobodyWaitingWhileTheHelperRuns()
    {
        Computer computer;
        Computer::write(computer.profile.helperCandidates.constFirst(), "#!/bin/bash\nsleep 2\n");
        {
            const CoroutineEnds coroutineEnds;
            RunCommand run(computer.profile, true);
            run.start();
            QTest::qWait(500);
            QVERIFY(Resumption::waiting() > 0); // at least one coroutine waits
        }
        QCOMPARE(Resumption::waiting(), 0);
    }
};

static int runRunCommandTest(int argc, char **argv)
{
    InterruptibleApplication app(argc, argv);
    application = &app;
    RunCommandTest test;
    return QTest::qExec(&test, argc, argv);
}
static const veldmark::test::Registration registeredRunCommandTest("RunCommandTest",
                                                                   runRunCommandTest);

#include "RunCommandTest.moc"
