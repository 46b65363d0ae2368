#include "system/SignalWatcher.h"

#include "support/TestProgram.h"

#include <QSet>
#include <QSignalSpy>
#include <QTest>

#include <csignal>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace veldmark;

class SignalWatcherTest : public QObject {
    Q_OBJECT

    static void (*handlerOf(int number))(int)
    {
        struct sigaction action { };
        sigaction(number, nullptr, &action);
        return action.sa_handler;
    }

    static QSet<int> openDescriptors()
    {
        QSet<int> open;
        for (int number = 0; number < 256; ++number) {
            if (::fcntl(number, F_GETFD) >= 0)
                open.insert(number);
        }
        return open;
    }

private Q_SLOTS:
    void tellsEachSignalInsteadOfEndingTheProcess()
    {
        SignalWatcher watcher;
        QSignalSpy received(&watcher, &SignalWatcher::received);
        const QList<int> numbers = {SIGINT, SIGTERM, SIGHUP, SIGINT};
        for (const int number : numbers) {
            // otherwise the signal would end the test
            QVERIFY(handlerOf(number) != SIG_DFL && handlerOf(number) != SIG_IGN);
            QCOMPARE(::raise(number), 0);
        }
        QVERIFY(received.isEmpty()); // not inside the handler
        QTRY_COMPARE(received.count(), numbers.size());
        for (qsizetype i = 0; i < numbers.size(); ++i)
            QCOMPARE(received.at(i).at(0).toInt(), numbers.at(i));
    }

    void leavesTheSignalsToTheSystemAgain()
    {
        for (int time = 0; time < 2; ++time) { // and another one may follow
            {
                SignalWatcher watcher;
                QSignalSpy received(&watcher, &SignalWatcher::received);
                QVERIFY(handlerOf(SIGTERM) != SIG_DFL);
                QCOMPARE(::raise(SIGTERM), 0);
                QTRY_COMPARE(received.count(), 1);
            }
            for (const int number : {SIGINT, SIGTERM, SIGHUP})
                QVERIFY(handlerOf(number) == SIG_DFL);
        }
    }

    void noProgramThatIsStartedMeanwhileGetsItsPipe()
    {
        const QSet<int> before = openDescriptors();
        const SignalWatcher watcher;
        const QSet<int> pipe = openDescriptors() - before;
        QVERIFY(pipe.size() >= 2);
        for (const int end : pipe)
            QVERIFY((::fcntl(end, F_GETFD) & FD_CLOEXEC) != 0);
    }

    // It would run on and obey no signal. In a child process, which that ends.
    void withoutAPipeTheProgramEnds()
    {
        for (const bool hasRoom : {true, false}) {
            const pid_t child = ::fork();
            if (child == 0) {
                const rlimit none{};
                ::setrlimit(RLIMIT_CORE, &none);
                std::signal(SIGABRT, SIG_DFL);
                qInstallMessageHandler(
                    [](QtMsgType, const QMessageLogContext &, const QString &) {});
                if (!hasRoom)
                    ::setrlimit(RLIMIT_NOFILE, &none);
                {
                    const SignalWatcher watcher;
                }
                ::_exit(0);
            }
            int status = -1;
            QCOMPARE(::waitpid(child, &status, 0), child);
            QCOMPARE(WIFSIGNALED(status) ? WTERMSIG(status) : 0, hasRoom ? 0 : SIGABRT);
            QVERIFY(!hasRoom || (WIFEXITED(status) && WEXITSTATUS(status) == 0));
        }
    }
};

VELDMARK_TEST(SignalWatcherTest)
#include "SignalWatcherTest.moc"
