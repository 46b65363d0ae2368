#include "base/Clock.h"

#include "base/ResumeOnce.h"

#include <QTimer>

#include <list>
#include <variant>

namespace veldmark {

struct SystemClock::Sleepers {
    std::list<ResumeOnce<std::monostate>> waits;
};

SystemClock::SystemClock() : m_sleepers(std::make_shared<Sleepers>()) { }

SystemClock::~SystemClock()
{
    const auto waits = m_sleepers->waits;
    for (const ResumeOnce<std::monostate> &wait : waits) {
        wait.complete({});
        wait.deliver();
    }
}

Clock::TimePoint SystemClock::now() const
{
    return std::chrono::steady_clock::now();
}

QCoro::Task<void> SystemClock::sleep(std::chrono::milliseconds duration)
{
    const ResumeOnce<std::monostate> elapsed;
    const std::shared_ptr<Sleepers> sleepers = m_sleepers;
    const auto sleeper = sleepers->waits.insert(sleepers->waits.end(), elapsed);
    QTimer::singleShot(duration, Qt::PreciseTimer, [elapsed] { elapsed.complete({}); });
    co_await elapsed;
    sleepers->waits.erase(sleeper); // not `this`, which may be destroyed
}

} // namespace veldmark
