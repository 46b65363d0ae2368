#pragma once

#include "controlfilter/CommandFilter.h"

#include <optional>

namespace veldmark {

// The bridges in reserve, a line each, as the root helper has written them to this open file, read
// from its present place to its end. Absent when it cannot be read (errno says why) or holds
// anything else: too many or too long lines, an empty one, or a character that could end the quotes
// in a command to Tor.
[[nodiscard]] std::optional<CommandFilter::Reserve> readReserve(int descriptor);

} // namespace veldmark
