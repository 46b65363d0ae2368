#pragma once

#include "base/Clock.h"
#include "base/ResumeOnce.h"

namespace veldmark {

// Completes `wait` with `value` after `duration`. Afterwards it uses neither the clock nor any
// other object of the caller, so the caller may drop the task.
template <typename T>
QCoro::Task<void> completeAfter(Clock *clock, std::chrono::milliseconds duration,
                                ResumeOnce<T> wait, T value)
{
    co_await clock->sleep(duration);
    wait.complete(std::move(value));
}

} // namespace veldmark
