#pragma once

#include "base/Result.h"
#include "bridges/BridgeError.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace veldmark {

struct ParsedBridgeLines {
    QStringList lines;   // the usable valid lines, normalised, in the order of the text
    QStringList invalid; // the rejected lines, normalised in the same way
    // For each entry of `invalid` the line's number in the text, from 1. Empty lines and comments
    // count.
    std::vector<int> invalidLineNumbers;
    std::vector<int> surplusLineNumbers; // of valid lines above mostLines
};

struct BridgeAddress {
    QString host; // IPv6 without brackets
    quint16 port = 0;
    friend bool operator==(const BridgeAddress &, const BridgeAddress &) = default;
};

// The format of bridge lines, as users enter them, bundles list them and Tor reads them:
//
//     [transport ]address:port[ argument…]
//
// A normalised line has single blanks between its words, no leading "bridge " and only printable
// ASCII, without the characters that have a meaning in Tor's configuration: # " and \. Addresses
// are numeric: a host name is not a valid bridge. The root helper accepts the same lines. Pure
// functions, for any thread; none of them fails. Text decoded from broken UTF-8 holds U+FFFD, which
// makes a line invalid.
namespace BridgeLines {

inline constexpr qsizetype mostLines = 100;    // lines used at once
inline constexpr qsizetype longestLine = 4096; // characters

// Whether a character ends a line.
bool isLineBreak(QChar c);

// Splits a text into lines, at any of Unicode's line breaks. Blank lines and lines that begin with
// "#" are skipped. Duplicates are kept.
ParsedBridgeLines parse(QStringView text);

// One line in the normalised form of parse(): trimmed, without a leading "bridge " (in any case),
// words separated by one blank. Empty for a line without words.
QString normalised(QStringView line);
// Whether a normalised line is a bridge line.
bool isValid(QStringView normalisedLine);
// Whether a normalised line contains one of the forbidden characters # " and \.
bool hasForbiddenCharacter(QStringView normalisedLine);

// "obfs4" for "obfs4 192.0.2.1:443 …"; absent for a plain bridge or an empty line.
std::optional<QString> transport(QStringView line);

// The bridge's address in the line: the first word with ":" and without "=". For snowflake, meek
// and webtunnel it is a placeholder. Absent when there is no such word or the port is not a decimal
// number of 16 bits.
std::optional<BridgeAddress> address(QStringView line);

// Why the user's own list cannot be longer.
Text tooManyText();
// The lines of the user's own list, or the sentence that says why the list cannot be used. Invalid
// lines are reported before too many lines, those before an empty list.
Result<QStringList, BridgeError> custom(QStringView text);

} // namespace BridgeLines

} // namespace veldmark
