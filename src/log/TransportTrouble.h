#pragma once

#include "base/Text.h"
#include "log/TorLogLine.h"

#include <optional>

namespace veldmark {

// What Tor's log says about transport programs that don't do their work: a sentence for the user.
// Nothing when there is no such line, and when Tor has got on since ("Bootstrapped N%").
// `lines` are those of one start of Tor, in order. What a program itself has said is quoted in the
// sentence, without characters that can't be shown and not longer than a line.
std::optional<Text> transportTrouble(const QList<TorLogLine> &lines);

} // namespace veldmark
