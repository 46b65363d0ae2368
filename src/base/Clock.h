#pragma once

#include <qcorotask.h>

#include <chrono>
#include <memory>

namespace veldmark {

// Where everything that waits gets its time from, so that a test of a five-minute deadline takes
// no time: production uses SystemClock, tests a clock that they move by hand.
// All functions belong to the thread that owns the event loop on which the caller runs.
class Clock {
public:
    using TimePoint = std::chrono::steady_clock::time_point;

    Clock() = default;
    virtual ~Clock() = default;
    Clock(const Clock &) = delete;
    Clock &operator=(const Clock &) = delete;

    // Monotonic; only differences have a meaning.
    virtual TimePoint now() const = 0;

    // Resumes after `duration`, through the event loop. A sleep cannot be cancelled: look after it
    // whether you are still wanted.
    virtual QCoro::Task<void> sleep(std::chrono::milliseconds duration) = 0;
};

// Real time. Its destruction wakes everybody at once.
class SystemClock final : public Clock {
public:
    SystemClock();
    ~SystemClock() override;

    TimePoint now() const override;
    QCoro::Task<void> sleep(std::chrono::milliseconds duration) override;

private:
    struct Sleepers;
    // each takes itself off the list, also after the clock's end
    const std::shared_ptr<Sleepers> m_sleepers;
};

} // namespace veldmark
