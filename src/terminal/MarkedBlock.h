#pragma once

#include <QByteArray>

// The block that the program keeps in files that belong to the user:
//
//     # >>> veldmark >>>
//     body
//     # <<< veldmark <<<
//
// Pure functions over bytes, so that a file in any encoding, with any line breaks, keeps every byte
// outside the block. A marker counts only as a line of its own (which may end in CR LF), never as
// a part of a longer line.
namespace veldmark::MarkedBlock {

enum class Position { atEnd, atStart };

// What addition puts between the user's text and the block, so that removal can take it back.
struct Separation {
    bool lineBreak = false; // ended the user's last line, which had no line break
    bool emptyLine = false; // stands between text and block
    friend bool operator==(const Separation &, const Separation &) = default;
};

struct Addition {
    QByteArray text;
    Separation separation;
};

// Whether the text has a start marker, be the block whole or not.
bool hasStart(const QByteArray &text);

// The text with the block, and an empty line between the two unless the text is empty. The text
// as it is when it has a start marker already: a block is never updated nor added twice.
Addition added(const QByteArray &text, const QByteArray &body, Position position);

// The text without its first whole block; as it is when it has none, in particular when the end
// marker is missing. What `separation` tells of is removed with it where it still stands beside
// the block; the line break only when nothing follows the block, so that no two lines of the user
// become one.
QByteArray removed(const QByteArray &text, Position position, Separation separation);

} // namespace veldmark::MarkedBlock
