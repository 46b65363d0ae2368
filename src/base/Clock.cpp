#include "base/Clock.h"

#include "base/ResumeOnce.h"

#include <QTimer>

#include <variant>

namespace veldmark {

Clock::TimePoint SystemClock::now() const
{
    return std::chrono::steady_clock::now();
}

QCoro::Task<void> SystemClock::sleep(std::chrono::milliseconds duration)
{
    const ResumeOnce<std::monostate> elapsed;
    QTimer::singleShot(duration, Qt::PreciseTimer, [elapsed] { elapsed.complete({}); });
    co_await elapsed;
}

} // namespace veldmark
