#pragma once

#include "cli/Arguments.h"

namespace veldmark {

struct PlatformProfile;

// What the shells' completions ask for, one "WORD:HELP" on each line: `complete commands`,
// `complete options COMMAND`, `complete fields`, `complete settings`, `complete values SETTING`.
// Nothing for what is not known.
ExitStatus showCompletions(const Invocation &invocation, const PlatformProfile &profile);

} // namespace veldmark
