#include "system/SignalWatcher.h"

#include <array>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace veldmark {

namespace {

constexpr std::array watched = {SIGINT, SIGTERM, SIGHUP};
std::array<int, 2> pipeEnds = {-1, -1}; // a signal handler can use only globals

void handle(int number)
{
    const int error = errno;
    const auto byte = static_cast<unsigned char>(number);
    // A full pipe loses the signal, but the reader then has many others to read.
    [[maybe_unused]] const auto written = ::write(pipeEnds[1], &byte, 1);
    errno = error;
}

void setHandlers(void (*handler)(int))
{
    struct sigaction action { };
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (const int number : watched)
        sigaction(number, &action, nullptr);
}

} // namespace

SignalWatcher::SignalWatcher()
{
    if (::pipe(pipeEnds.data()) != 0)
        qFatal("no pipe for signals");
    for (const int end : pipeEnds) {
        fcntl(end, F_SETFD, FD_CLOEXEC);
        fcntl(end, F_SETFL, O_NONBLOCK);
    }
    m_notifier = std::make_unique<QSocketNotifier>(pipeEnds[0], QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        unsigned char number = 0;
        while (::read(pipeEnds[0], &number, 1) == 1)
            Q_EMIT received(number);
    });
    setHandlers(handle);
}

SignalWatcher::~SignalWatcher()
{
    setHandlers(SIG_DFL);
    m_notifier.reset();
    for (int &end : pipeEnds) {
        ::close(end);
        end = -1;
    }
}

} // namespace veldmark
