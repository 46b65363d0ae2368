#pragma once

#include "base/Result.h"
#include "base/Text.h"
#include "control/ControlPortError.h"

#include <QByteArray>
#include <QStringList>

#include <optional>

namespace veldmark {

// Cuts the bytes that Tor sends into lines, and lines into replies. Pure: no socket, no time.
// However the bytes are divided over calls of feed(), the same lines, replies and errors come out.
//
// A line ends with CR LF, nothing else. It is decoded as UTF-8 with invalid sequences repaired.
// A reply ends with the first line whose fourth character is a blank ("250 OK"), where lines of
// a data block ("250+key=", …, ".") do not count. All its lines are kept, "." and final included.
//
// Memory is bounded: beyond the limits below next…() fails, from then on always with this error.
class ReplyFraming {
public:
    // A line, without its end.
    static constexpr qsizetype largestLineBytes = 1024 * 1024;
    // All the lines of a reply, where each counts as its bytes and lineOverheadBytes more, which
    // is about what it takes in memory: without that, empty lines would take 12 times as much.
    static constexpr qsizetype largestReplyBytes = 64 * 1024 * 1024;
    static constexpr qsizetype lineOverheadBytes = 64;

    void feed(QByteArrayView bytes);

    // The next line, or nothing until more bytes are fed.
    Result<std::optional<QString>, ControlPortError> nextLine();
    // The next whole reply, likewise. Lines taken by nextLine() are no part of one.
    Result<std::optional<QStringList>, ControlPortError> nextReply();

private:
    Result<std::optional<QString>, ControlPortError> fail(const Text &sentence);

    QByteArray m_buffer;
    qsizetype m_start = 0;   // of what has not been cut into lines yet
    qsizetype m_scanned = 0; // up to here there is no line end after m_start

    QStringList m_lines; // of the reply under way
    qsizetype m_weight = 0;
    bool m_inDataBlock = false;
    std::optional<ControlPortError> m_error;
};

} // namespace veldmark
