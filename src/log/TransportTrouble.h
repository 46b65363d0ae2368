#pragma once

#include "base/Text.h"
#include "log/TorLogLine.h"

#include <optional>

namespace veldmark {

// A sentence for the user about transport programs that fail, according to Tor's log. Absent
// without such a line, and when Tor has made progress since ("Bootstrapped N%"). `lines` are those
// of one start of Tor, in order. The sentence quotes the program's own message, without unprintable
// characters and at most one line long.
std::optional<Text> transportTrouble(const QList<TorLogLine> &lines);

} // namespace veldmark
