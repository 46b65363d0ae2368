#include "app/RecoveryNotice.h"
#include "support/Computer.h"
#include "support/OtherSession.h"
#include "support/TestProgram.h"

#include <QTest>

#include <cstdlib>

#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace veldmark;

namespace {

// The output of a process that ends by exit(), as Qt ends it when the display goes. With `orderly`
// it ends at the end of main().
QByteArray saidAtTheEnd(const PlatformProfile &profile, bool orderly = false)
{
    int ends[2];
    if (::pipe(ends) != 0)
        qFatal("saidAtTheEnd: no pipe");
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(ends[1], STDERR_FILENO);
        const auto *const words = new RecoveryNotice(profile);
        if (orderly)
            delete words;
        std::exit(1);
    }
    ::close(ends[1]);
    QFile output;
    const bool isOpen = output.open(ends[0], QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    const QByteArray said = isOpen ? output.readAll() : QByteArray();
    ::waitpid(child, nullptr, 0);
    return said;
}

} // namespace

class RecoveryNoticeTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void nothingIsLeftWithoutASession()
    {
        const Computer computer;
        QVERIFY(!RecoveryNotice::isNetworkLeft(computer.profile));
        QCOMPARE(saidAtTheEnd(computer.profile), QByteArray());
        QCOMPARE(RecoveryNotice::advice(computer.profile), QString());
    }

    void tellHowToRestoreWhatIsLeft()
    {
        const Computer computer;
        computer.writeMarker();
        QVERIFY(RecoveryNotice::isNetworkLeft(computer.profile));
        const QByteArray command = computer.profile.manualRestoreCommand.toUtf8();
        const QByteArray said = saidAtTheEnd(computer.profile);
        QVERIFY2(said.startsWith("veldmark: Ended because the display is gone. ")
                     && said.endsWith(command + '\n'),
                 said.constData());
        QVERIFY(RecoveryNotice::advice(computer.profile)
                    .endsWith(computer.profile.manualRestoreCommand));
        QCOMPARE(saidAtTheEnd(computer.profile, true), QByteArray());
    }

    // The process that has the session restores it; this advice would end that session.
    void leaveAnotherProcesssSessionToIt()
    {
        const Computer computer;
        OtherSession other(computer.profile);
        QVERIFY(computer.hasMarker());
        QVERIFY(!RecoveryNotice::isNetworkLeft(computer.profile));
        QCOMPARE(saidAtTheEnd(computer.profile), QByteArray());
        QCOMPARE(RecoveryNotice::advice(computer.profile), QString());
        other.end();
        QVERIFY(RecoveryNotice::isNetworkLeft(computer.profile));
        QVERIFY(!saidAtTheEnd(computer.profile).isEmpty());
        QVERIFY(!RecoveryNotice::advice(computer.profile).isEmpty());
    }
};

VELDMARK_TEST(RecoveryNoticeTest)
#include "RecoveryNoticeTest.moc"
