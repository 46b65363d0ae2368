#pragma once

#include <QString>
#include <QStringView>

#include <optional>

// Splits a line from Tor into words: positional words, then KEY=VALUE. A quoted value may contain
// blanks and any other character, also text that looks like another key. Programs that use Tor
// choose some of these values. Pure functions; none fails.
namespace veldmark::ReplyWords {

// Cuts the next word off `rest`; empty at the end. A quoted value belongs to its word, up to the
// closing mark. Without a closing mark the word is the rest of the line.
QStringView next(QStringView &rest);

// The value of the first word KEY=VALUE in `line`, without quotation marks and escapes. Absent
// without such a word, and when the closing mark is missing.
std::optional<QString> value(QStringView line, QStringView key);

} // namespace veldmark::ReplyWords
