#pragma once

#include "cli/Arguments.h"

namespace veldmark {

struct PlatformProfile;

// The data for the shells' completions, one "WORD:HELP" per line: `complete commands`, `complete
// options COMMAND`, `complete fields`, `complete settings`, `complete values SETTING`. Prints
// nothing for an unknown word.
ExitStatus showCompletions(const Invocation &invocation, const PlatformProfile &profile);

} // namespace veldmark
