#pragma once

#include <tl/expected.hpp>

namespace veldmark {

// What an operation that can fail in an expected way gives back: its value, or one of its
// subsystem's errors. Error types have a `description()` that is the sentence a user reads.
template <typename T, typename E> using Result = tl::expected<T, E>;

// The failing branch: `return Failure(ControlPortError::closed());`
template <typename E> auto Failure(E error)
{
    return tl::unexpected<E>(std::move(error));
}

} // namespace veldmark
