#pragma once

#include "base/Result.h"
#include "base/Text.h"
#include "control/ControlPortError.h"

#include <QByteArray>
#include <QStringList>

#include <optional>

namespace veldmark {

// Splits Tor's bytes into lines, and lines into replies. Pure: no socket, no time. The division of
// the bytes over calls of feed() does not change the lines, replies and errors.
//
// Only CR LF ends a line. Lines are decoded as UTF-8, with invalid sequences repaired.
// A reply ends with the first line whose fourth character is a blank ("250 OK"), outside data
// blocks ("250+key=", …, "."). The reply has all its lines, also "." and the final one.
//
// Memory is bounded: beyond the limits below next…() fails, and every later call fails with the
// same error.
class ReplyFraming {
public:
    // A line, without its end.
    static constexpr qsizetype largestLineBytes = 1024 * 1024;
    // The limit for all lines of a reply. Each line counts as its bytes plus lineOverheadBytes,
    // about its real memory use: without the overhead, empty lines would take 12 times as much.
    static constexpr qsizetype largestReplyBytes = 64 * 1024 * 1024;
    static constexpr qsizetype lineOverheadBytes = 64;

    void feed(QByteArrayView bytes);

    // The next line, or nothing until feed() gets more bytes.
    Result<std::optional<QString>, ControlPortError> nextLine();
    // The next whole reply, or nothing until then. Lines taken by nextLine() belong to no reply.
    Result<std::optional<QStringList>, ControlPortError> nextReply();

private:
    Result<std::optional<QString>, ControlPortError> fail(const Text &sentence);

    QByteArray m_buffer;
    qsizetype m_start = 0;   // start of the bytes not yet split into lines
    qsizetype m_scanned = 0; // no line ends between m_start and here

    QStringList m_lines; // of the current reply
    qsizetype m_weight = 0;
    bool m_inDataBlock = false;
    std::optional<ControlPortError> m_error;
};

} // namespace veldmark
