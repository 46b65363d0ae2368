#pragma once

#include "base/Clock.h"
#include "checks/ResolvedState.h"

namespace veldmark {

// Asks systemd-resolved for its settings over the system bus. Starts no service: a daemon that is
// not running does not resolve anything. Nothing blocks the calling thread, also not a dead bus.
class ResolvedBus {
public:
    // One reading takes no longer than this.
    static constexpr std::chrono::milliseconds limit{3000};

    // `clock` must outlive the object and its readings.
    explicit ResolvedBus(Clock &clock) : m_clock(clock) { }

    // Nothing when there is no bus, no such service, or no complete answer in time.
    QCoro::Task<std::optional<ResolvedState>> read();

private:
    Clock &m_clock;
};

} // namespace veldmark
