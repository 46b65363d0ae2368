#include "app/LastWords.h"
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

// What a process says that ends by exit(), as Qt ends it when the display goes; with `orderly`, at
// the end of main().
QByteArray saidAtTheEnd(const PlatformProfile &profile, bool orderly = false)
{
    int ends[2];
    if (::pipe(ends) != 0)
        qFatal("saidAtTheEnd: no pipe");
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(ends[1], STDERR_FILENO);
        const auto *const words = new LastWords(profile);
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

class LastWordsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void nothingIsLeftWithoutASession()
    {
        const Computer computer;
        QVERIFY(!LastWords::isNetworkLeft(computer.profile));
        QCOMPARE(saidAtTheEnd(computer.profile), QByteArray());
        QCOMPARE(LastWords::advice(computer.profile), QString());
    }

    void tellHowToRestoreWhatIsLeft()
    {
        const Computer computer;
        computer.writeMarker();
        QVERIFY(LastWords::isNetworkLeft(computer.profile));
        const QByteArray command = computer.profile.manualRestoreCommand.toUtf8();
        const QByteArray said = saidAtTheEnd(computer.profile);
        QVERIFY2(said.startsWith("veldmark: Ended without its display. ")
                     && said.endsWith(command + '\n'),
                 said.constData());
        QVERIFY(
            LastWords::advice(computer.profile).endsWith(computer.profile.manualRestoreCommand));
        QCOMPARE(saidAtTheEnd(computer.profile, true), QByteArray());
    }

    // It is to be restored by whoever made it, and this advice would end it.
    void leaveAnotherProcesssSessionToIt()
    {
        const Computer computer;
        OtherSession other(computer.profile);
        QVERIFY(computer.hasMarker());
        QVERIFY(!LastWords::isNetworkLeft(computer.profile));
        QCOMPARE(saidAtTheEnd(computer.profile), QByteArray());
        QCOMPARE(LastWords::advice(computer.profile), QString());
        other.end();
        QVERIFY(LastWords::isNetworkLeft(computer.profile));
        QVERIFY(!saidAtTheEnd(computer.profile).isEmpty());
        QVERIFY(!LastWords::advice(computer.profile).isEmpty());
    }
};

VELDMARK_TEST(LastWordsTest)
#include "LastWordsTest.moc"
