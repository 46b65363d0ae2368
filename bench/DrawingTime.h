#pragma once

#include <algorithm>
#include <ctime>
#include <functional>
#include <vector>

namespace veldmark {

// The processor time of the calling thread, in milliseconds, which other programs do not change.
inline double threadMilliseconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

// In milliseconds of processor time.
struct DrawingTimes {
    double middle; // the median
    double most;
};

// The time of `work` over `repetitions` runs; each run gets its number.
inline DrawingTimes drawingTimes(int repetitions, const std::function<void(int)> &work)
{
    std::vector<double> times;
    for (int i = 0; i < repetitions; ++i) {
        const double start = threadMilliseconds();
        work(i);
        times.push_back(threadMilliseconds() - start);
    }
    std::sort(times.begin(), times.end());
    return {times[times.size() / 2], times.back()};
}

} // namespace veldmark
