#pragma once

#include "base/Clock.h"
#include "base/ResumeOnce.h"

namespace veldmark {

// Completes `wait` with `value` when `duration` has passed. Touches neither the clock nor anything
// else of the caller afterwards, so the task may be dropped.
template <typename T>
QCoro::Task<void> completeAfter(Clock *clock, std::chrono::milliseconds duration,
                                ResumeOnce<T> wait, T value)
{
    co_await clock->sleep(duration);
    wait.complete(std::move(value));
}

} // namespace veldmark
