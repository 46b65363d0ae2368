#pragma once

#include "base/Text.h"

// What the root helper says, and the launcher that it starts. They are programs of their own and
// print English lines; this is the one place that knows a sentence by its words. The list is
// compared with the programs' sources by a test.
namespace veldmark::HelperSentences {

// The line as a text. What is not on the list (Tor's reason within a sentence, a shell's complaint)
// stays as it is. Pure.
Text recognised(const QString &line);

} // namespace veldmark::HelperSentences
