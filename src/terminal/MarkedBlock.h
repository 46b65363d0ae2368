#pragma once

#include <QByteArray>

// The program's block in files that belong to the user:
//
//     # >>> veldmark >>>
//     body
//     # <<< veldmark <<<
//
// Pure functions over bytes, so that a file in any encoding, with any line breaks, keeps every byte
// outside the block. A marker counts only as a complete line (which may end in CR LF), never within
// a longer line.
namespace veldmark::MarkedBlock {

enum class Position { atEnd, atStart };

// The bytes that addition puts between the user's text and the block, so that removal can remove
// them.
struct InsertedBytes {
    bool lineBreak = false; // ends the user's last line, which had no line break
    bool emptyLine = false; // is between text and block
    friend bool operator==(const InsertedBytes &, const InsertedBytes &) = default;
};

struct TextWithBlock {
    QByteArray text;
    InsertedBytes inserted;
};

// Whether the text has a start marker, even without an end marker.
bool hasStart(const QByteArray &text);

// The text with the block, and an empty line between the two unless the text is empty. Text with a
// start marker stays unchanged: a block is never updated nor added twice.
TextWithBlock added(const QByteArray &text, const QByteArray &body, Position position);

// The text without its first complete block; unchanged without one, in particular when the end
// marker is missing. The bytes of `inserted` are removed too if they are still next to the block.
// The line break is removed only when nothing follows the block, so that no two lines of the user
// become one.
QByteArray removed(const QByteArray &text, Position position, InsertedBytes inserted);

} // namespace veldmark::MarkedBlock
