#pragma once

#include <tl/expected.hpp>

namespace veldmark {

// The result of an operation that can fail: its value, or its subsystem's error. Every error type
// has a `description()`, the sentence that the user reads.
template <typename T, typename E> using Result = tl::expected<T, E>;

// The failing branch: `return Failure(ControlPortError::closed());`
template <typename E> auto Failure(E error)
{
    return tl::unexpected<E>(std::move(error));
}

} // namespace veldmark
