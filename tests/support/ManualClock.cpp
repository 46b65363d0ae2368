#include "support/ManualClock.h"

#include <QCoreApplication>
#include <QTimer>

namespace veldmark {

namespace {
// Processes all ready events: coroutines resume through the event loop.
void settle()
{
    for (int round = 0; round < 20; ++round)
        QCoreApplication::processEvents();
}
} // namespace

ManualClock::~ManualClock()
{
    while (!m_sleepers.empty()) {
        const auto sleeper = m_sleepers.extract(m_sleepers.begin());
        sleeper.mapped().complete({});
        settle();
    }
}

QCoro::Task<void> ManualClock::sleep(std::chrono::milliseconds duration)
{
    m_totalSlept += duration;
    const ResumeOnce<std::monostate> elapsed;
    m_sleepers.emplace(m_now + duration, elapsed);
    if (duration.count() <= 0) // one turn of the event loop, without a move of the clock
        QTimer::singleShot(0, qApp, [elapsed] { elapsed.complete({}); });
    co_await elapsed;
}

void ManualClock::advance(std::chrono::milliseconds duration)
{
    const TimePoint target = m_now + duration;
    settle();
    while (!m_sleepers.empty() && m_sleepers.begin()->first <= target) {
        const auto sleeper = m_sleepers.extract(m_sleepers.begin());
        m_now = sleeper.key();
        sleeper.mapped().complete({});
        settle();
    }
    m_now = target;
}

} // namespace veldmark
