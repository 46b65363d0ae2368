#include "terminal/MarkedBlock.h"

namespace veldmark::MarkedBlock {

namespace {

const QByteArray startMarker = "# >>> veldmark >>>";
const QByteArray endMarker = "# <<< veldmark <<<";

// The length of the line break at `at`: 2 for CR LF, 1 for LF, otherwise 0.
qsizetype lineBreakLength(const QByteArray &text, qsizetype at)
{
    const QByteArrayView rest = QByteArrayView(text).sliced(at);
    return rest.startsWith("\r\n") ? 2 : rest.startsWith('\n') ? 1 : 0;
}

bool isWholeLine(const QByteArray &text, qsizetype start, qsizetype end)
{
    if (start > 0 && text[start - 1] != '\n')
        return false;
    return end == text.size() || lineBreakLength(text, end) > 0
        || (text[end] == '\r' && end + 1 == text.size());
}

qsizetype findLine(const QByteArray &text, const QByteArray &line, qsizetype from)
{
    qsizetype at = text.indexOf(line, from);
    while (at >= 0 && !isWholeLine(text, at, at + line.size()))
        at = text.indexOf(line, at + 1);
    return at;
}

} // namespace

bool hasStart(const QByteArray &text)
{
    return findLine(text, startMarker, 0) >= 0;
}

TextWithBlock added(const QByteArray &text, const QByteArray &body, Position position)
{
    if (hasStart(text))
        return {text, {}};
    const QByteArray block = startMarker + '\n' + body + '\n' + endMarker + '\n';
    if (text.isEmpty())
        return {block, {}};
    if (position == Position::atStart)
        return {block + '\n' + text, {false, true}};
    if (text.endsWith('\n'))
        return {text + '\n' + block, {false, true}};
    return {text + "\n\n" + block, {true, true}};
}

QByteArray removed(const QByteArray &text, Position position, InsertedBytes inserted)
{
    const qsizetype firstStart = findLine(text, startMarker, 0);
    const qsizetype endLine = firstStart < 0 ? -1 : findLine(text, endMarker, firstStart);
    if (endLine < 0)
        return text;
    // A start marker without an end may precede a complete block. The text between is the user's.
    qsizetype start = firstStart;
    for (qsizetype next = start; next >= 0 && next < endLine;
         next = findLine(text, startMarker, next + 1))
        start = next;

    qsizetype end = endLine + endMarker.size();
    end += lineBreakLength(text, end);

    if (inserted.emptyLine && position == Position::atStart)
        end += lineBreakLength(text, end);

    QByteArray before = text.first(start);
    const QByteArray after = text.sliced(end);
    if (inserted.emptyLine && position == Position::atEnd) {
        // The program's line breaks are LF, unless the whole file has been converted to CR LF
        // since.
        const bool isCrLf = before.endsWith("\n\r\n");
        const qsizetype ours = isCrLf ? 2 : 1;
        if (isCrLf || before.endsWith("\n\n")) {
            before.chop(ours);
            if (inserted.lineBreak && after.isEmpty())
                before.chop(ours);
        }
    }
    return before + after;
}

} // namespace veldmark::MarkedBlock
