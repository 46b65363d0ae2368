#pragma once

#include "base/Text.h"

// The sentences of the root helper and of the launcher that it starts. These separate programs
// print English lines; only this file recognises a sentence by its words. A test compares the list
// with the programs' sources.
namespace veldmark::HelperSentences {

// The line as a translatable text. Parts that are not in the list (Tor's reason within a sentence,
// a shell's error) stay unchanged. Pure.
Text recognised(const QString &line);

} // namespace veldmark::HelperSentences
