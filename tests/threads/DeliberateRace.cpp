// Shows that the thread sanitizer sees a race in work that is handed over like in the program.
//
//     DeliberateRace pool      a thread of the global pool writes on after it has handed back its
//                              result, to what the waiting coroutine then reads
//     DeliberateRace thread    the same on a thread of its own
//     DeliberateRace pointer   what is handed back is a pointer to something that is written on
//
// With a second word, "not", the write comes before the hand-over, which is no race. Exit status 0
// unless a race was seen.

#include "base/ResumeOnce.h"

#include <qcorotask.h>

#include <QCoreApplication>
#include <QThreadPool>
#include <QTimer>

#include <thread>

#include <unistd.h>

using namespace veldmark;

namespace {

struct Shared {
    int count = 0;
};

// The writer stays until the reader has read, so that its end does not order the two accesses. The
// other end of this pipe closes only then.
int hasRead[2];

QCoro::Task<void> readWhenTold(ResumeOnce<int> once, Shared *shared)
{
    const int value = co_await once;
    const int seen = shared->count;
    ::close(hasRead[1]);
    QCoreApplication::exit(value == 1 && seen >= 0 ? 0 : 1);
}

QCoro::Task<void> readThroughPointer(ResumeOnce<Shared *> once)
{
    const Shared *const shared = co_await once;
    const int seen = shared->count;
    ::close(hasRead[1]);
    QCoreApplication::exit(seen >= 0 ? 0 : 1);
}

template <typename T>
void writeAndTell(const ResumeOnce<T> &once, T result, Shared *shared, bool isRace)
{
    if (!isRace)
        ++shared->count;
    once.complete(result);
    if (isRace)
        ++shared->count;
    char none = 0;
    while (::read(hasRead[0], &none, 1) > 0) { }
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QString way = application.arguments().value(1);
    const bool isRace = application.arguments().size() < 3;
    if (::pipe(hasRead) != 0)
        return 1;
    Shared shared;
    const ResumeOnce<int> once;
    const ResumeOnce<Shared *> pointer;
    std::thread thread;
    QTimer::singleShot(0, &application, [&] {
        if (way == QLatin1String("pool")) {
            readWhenTold(once, &shared);
            QThreadPool::globalInstance()->start([&] { writeAndTell(once, 1, &shared, isRace); });
        } else if (way == QLatin1String("thread")) {
            readWhenTold(once, &shared);
            thread = std::thread([&] { writeAndTell(once, 1, &shared, isRace); });
        } else {
            readThroughPointer(pointer);
            thread = std::thread([&] { writeAndTell(pointer, &shared, &shared, isRace); });
        }
    });
    const int status = QCoreApplication::exec();
    if (thread.joinable())
        thread.join();
    QThreadPool::globalInstance()->waitForDone();
    return status;
}
