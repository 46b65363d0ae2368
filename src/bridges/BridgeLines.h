#pragma once

#include "base/Result.h"
#include "bridges/BridgeError.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace veldmark {

struct ParsedBridgeLines {
    QStringList lines;   // the valid ones that can be used, normalised, in the order of the text
    QStringList invalid; // the rejected ones, normalised likewise
    // For each entry of `invalid` the number of its line in the text, from 1, empty lines and
    // comments counted.
    std::vector<int> invalidLineNumbers;
    std::vector<int> surplusLineNumbers; // of valid lines beyond those that can be used at once
};

struct BridgeAddress {
    QString host; // IPv6 without brackets
    quint16 port = 0;
    friend bool operator==(const BridgeAddress &, const BridgeAddress &) = default;
};

// Bridge lines as users paste them, bundles list them and Tor reads them:
//
//     [transport ]address:port[ argument…]
//
// A normalised line has single blanks between its words, no leading "bridge " and only printable
// ASCII, without the characters that mean something else in Tor's configuration: # " and \.
// Addresses are numeric: a host name is not a valid bridge. What is valid here is what the root
// helper takes. Pure functions of any thread; none of them fails. Text that was decoded from broken
// UTF-8 holds U+FFFD, which no valid line does, so such a line lands among the invalid ones.
namespace BridgeLines {

inline constexpr qsizetype mostLines = 100;    // that are used at once
inline constexpr qsizetype longestLine = 4096; // characters

// Splits a block of text into lines, at any of Unicode's line breaks. Blank lines and lines that
// begin with "#" are skipped. Nothing is de-duplicated.
ParsedBridgeLines parse(QStringView text);

// One line as parse() would normalise it: trimmed, without "bridge " (in any case) in front, words
// separated by one blank. Empty when nothing is left.
QString normalised(QStringView line);
// Whether a normalised line is a bridge line.
bool isValid(QStringView normalisedLine);
// Whether a normalised line has one of the characters that no bridge line may have, # " and \.
bool hasForbiddenCharacter(QStringView normalisedLine);

// "obfs4" of "obfs4 192.0.2.1:443 …"; nothing for a plain bridge or an empty line.
std::optional<QString> transport(QStringView line);

// Where the line says its bridge is: the first word with ":" and without "=". For snowflake, meek
// and webtunnel that is a place holder. Nothing without such a word or when the port is not a
// decimal number of 16 bits.
std::optional<BridgeAddress> address(QStringView line);

// The lines of the user's own list, or the sentence that says why it cannot be used: lines that
// are not valid come before too many, those before an empty list.
Result<QStringList, BridgeError> custom(QStringView text);

} // namespace BridgeLines

} // namespace veldmark
