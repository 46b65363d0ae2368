#pragma once

#include <algorithm>
#include <chrono>
#include <functional>
#include <vector>

namespace veldmark {

// The median wall time of `work`, in milliseconds, over `repetitions` runs.
inline double medianMilliseconds(int repetitions, const std::function<void()> &work)
{
    std::vector<double> times;
    for (int i = 0; i < repetitions; ++i) {
        const auto start = std::chrono::steady_clock::now();
        work();
        times.push_back(
            std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
                .count());
    }
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

} // namespace veldmark
