#pragma once

#include <QString>
#include <QStringView>

#include <optional>

// The words of a line that Tor writes: positional ones, then KEY=VALUE. A value in quotation marks
// may hold blanks and anything else, also what looks like another key; programs that use Tor choose
// some of these values. Pure functions; nothing fails.
namespace veldmark::ReplyWords {

// Cuts the next word off `rest`; empty at the end. A quoted value belongs to its word, up to its
// closing mark; one that is not closed takes all that follows.
QStringView next(QStringView &rest);

// The value of the first word KEY=VALUE of `line`, without its quotation marks and escapes. Absent
// without such a word, and where its quotation mark is not closed.
std::optional<QString> value(QStringView line, QStringView key);

} // namespace veldmark::ReplyWords
