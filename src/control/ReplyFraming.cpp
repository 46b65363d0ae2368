#include "control/ReplyFraming.h"

#include <utility>

namespace veldmark {

namespace {

QString decoded(QByteArrayView bytes)
{
    QString text = QString::fromUtf8(bytes);
    // fromUtf8() drops a byte order mark, which would shift the columns.
    if (bytes.startsWith("\xef\xbb\xbf"))
        text.prepend(QChar(QChar::ByteOrderMark));
    return text;
}

} // namespace

void ReplyFraming::feed(QByteArrayView bytes)
{
    if (m_error)
        return;
    // Drops split-off bytes only when they are the larger half, so that each byte moves no more
    // than once on average.
    if (m_start > m_buffer.size() / 2) {
        m_buffer.remove(0, m_start);
        m_scanned -= m_start;
        m_start = 0;
    }
    m_buffer.append(bytes);
}

Result<std::optional<QString>, ControlPortError> ReplyFraming::fail(const Text &sentence)
{
    m_error = ControlPortError::malformed(sentence);
    m_buffer = {};
    m_lines = {};
    return Failure(*m_error);
}

Result<std::optional<QString>, ControlPortError> ReplyFraming::nextLine()
{
    if (m_error)
        return Failure(*m_error);
    const Text tooLong = Text::tr("Tor sent a line of more than 1 MiB on its control port.");
    const QByteArrayView buffer = m_buffer;
    for (;;) {
        const qsizetype newline = buffer.indexOf('\n', m_scanned);
        if (newline < 0)
            break;
        m_scanned = newline + 1;
        if (newline == m_start || buffer[newline - 1] != '\r')
            continue; // a bare line feed is part of the line
        const QByteArrayView line = buffer.sliced(m_start, newline - 1 - m_start);
        if (line.size() > largestLineBytes)
            return fail(tooLong);
        m_start = newline + 1;
        return decoded(line);
    }
    m_scanned = buffer.size();
    // A trailing CR may be the first half of the line's end.
    const qsizetype pending = buffer.size() - m_start - (buffer.endsWith('\r') ? 1 : 0);
    if (pending > largestLineBytes)
        return fail(tooLong);
    return std::nullopt;
}

Result<std::optional<QStringList>, ControlPortError> ReplyFraming::nextReply()
{
    for (;;) {
        const qsizetype before = m_start;
        auto line = nextLine();
        if (!line)
            return Failure(line.error());
        if (!*line)
            return std::nullopt;
        m_weight += m_start - before + lineOverheadBytes;
        if (m_weight > largestReplyBytes) {
            const auto failed = fail(
                Text::tr("Tor sent a reply of more than 64 MiB on its control port."));
            return Failure(failed.error());
        }
        const QString text = *std::move(*line);
        m_lines += text;
        if (m_inDataBlock) {
            m_inDataBlock = text != QLatin1String(".");
        } else if (text.size() >= 4) {
            m_inDataBlock = text.at(3) == u'+';
            if (text.at(3) == u' ') {
                m_weight = 0;
                return std::exchange(m_lines, {});
            }
        }
    }
}

} // namespace veldmark
