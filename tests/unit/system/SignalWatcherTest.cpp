#include "system/SignalWatcher.h"

#include "support/TestProgram.h"

#include <QSignalSpy>
#include <QTest>

#include <csignal>

using namespace veldmark;

class SignalWatcherTest : public QObject {
    Q_OBJECT

    static void (*handlerOf(int number))(int)
    {
        struct sigaction action { };
        sigaction(number, nullptr, &action);
        return action.sa_handler;
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
};

VELDMARK_TEST(SignalWatcherTest)
#include "SignalWatcherTest.moc"
