#pragma once

#include "base/Clock.h"
#include "checks/ResolvedState.h"

namespace veldmark {

// Reads systemd-resolved's settings from the system bus. Starts no service: a daemon that is not
// running resolves nothing. Never blocks the calling thread, even when the bus hangs.
class ResolvedBus {
public:
    // The time limit of one reading.
    static constexpr std::chrono::milliseconds limit{3000};

    // `clock` must outlive the object and its readings.
    explicit ResolvedBus(Clock &clock) : m_clock(clock) { }

    // Absent when there is no bus or no such service, or no complete answer in time.
    QCoro::Task<std::optional<ResolvedState>> read();

private:
    Clock &m_clock;
};

} // namespace veldmark
