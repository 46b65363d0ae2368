#pragma once

#include <qcorotask.h>

#include <chrono>
#include <memory>

namespace veldmark {

// The source of time for everything that waits. RealController uses SystemClock. Tests use a clock
// that they move by hand, so a test of a five-minute deadline takes no time. Call every function on
// the thread that owns the caller's event loop.
class Clock {
public:
    using TimePoint = std::chrono::steady_clock::time_point;

    Clock() = default;
    virtual ~Clock() = default;
    Clock(const Clock &) = delete;
    Clock &operator=(const Clock &) = delete;

    // Monotonic; only differences are meaningful.
    virtual TimePoint now() const = 0;

    // Resumes after `duration`, through the event loop. A sleep cannot be cancelled: after it, the
    // caller checks whether its work is still wanted.
    virtual QCoro::Task<void> sleep(std::chrono::milliseconds duration) = 0;
};

// Real time. The destructor ends all sleeps at once.
class SystemClock final : public Clock {
public:
    SystemClock();
    ~SystemClock() override;

    TimePoint now() const override;
    QCoro::Task<void> sleep(std::chrono::milliseconds duration) override;

private:
    struct Sleepers;
    // each sleeper removes itself, also after the clock is destroyed
    const std::shared_ptr<Sleepers> m_sleepers;
};

} // namespace veldmark
