#pragma once

#include <QStringList>
#include <QStringView>

namespace veldmark {

// Finds bridge lines in a text of any kind: an e-mail with its quotes and wrapped lines, a web
// page, or a list in a program's format. Pure functions, for any thread; none of them fails.
namespace BridgeText {

inline constexpr qsizetype longestText = 1 << 20; // characters; the rest is not read

// The bridge lines in the text, normalised (BridgeLines.h), each once, in the text's order. A line
// that is a bridge line by itself is taken as it is. Elsewhere a bridge is an address with a port,
// after the name of a known transport or before a relay's fingerprint. The fingerprint and
// arguments (name=value) that follow belong to it, also on the next lines.
QStringList found(QStringView text);

} // namespace BridgeText

} // namespace veldmark
