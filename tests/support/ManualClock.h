#pragma once

#include "base/Clock.h"
#include "base/ResumeOnce.h"

#include <map>
#include <variant>

namespace veldmark {

// A clock that stands still until the test moves it. Sleepers wake in the order of their wake-up
// times. A sleeper that sleeps again within the same `advance` is woken again when its time comes.
class ManualClock final : public Clock {
public:
    ManualClock() = default;
    // Wakes all sleepers, so that no waiting coroutine outlives the test.
    ~ManualClock() override;

    TimePoint now() const override { return m_now; }
    QCoro::Task<void> sleep(std::chrono::milliseconds duration) override;

    // Moves time forward and runs the woken coroutines (processes events in between).
    void advance(std::chrono::milliseconds duration);
    std::size_t sleepers() const { return m_sleepers.size(); }
    // The sum of all requested sleeps.
    std::chrono::milliseconds totalSlept() const { return m_totalSlept; }

private:
    TimePoint m_now{};
    std::multimap<TimePoint, ResumeOnce<std::monostate>> m_sleepers;
    std::chrono::milliseconds m_totalSlept{0};
};

} // namespace veldmark
