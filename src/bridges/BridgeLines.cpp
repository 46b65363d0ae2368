#include "bridges/BridgeLines.h"

#include <QRegularExpression>

#include <algorithm>

namespace veldmark::BridgeLines {

namespace {

// [transport ]address:port[ argument…]. Possessive groups keep long lines from backtracking or
// overflowing the stack; \z rejects a line break at the end.
const QRegularExpression &linePattern()
{
    static const QRegularExpression pattern = [] {
        QRegularExpression compiled(QStringLiteral(
            R"(\A(?:[a-z][a-z0-9_]*+ )?+\[?[0-9A-Fa-f.:]+\]?:[0-9]++(?: [!$-\[\]-~]++)*+\z)"));
        compiled.optimize();
        return compiled;
    }();
    return pattern;
}

bool isHorizontalSpace(QChar c)
{
    return c == u'\t' || c.category() == QChar::Separator_Space;
}

QStringView trimmed(QStringView line)
{
    while (!line.empty() && isHorizontalSpace(line.front()))
        line = line.sliced(1);
    while (!line.empty() && isHorizontalSpace(line.back()))
        line.chop(1);
    return line;
}

QStringView firstWord(QStringView line)
{
    while (line.startsWith(u' '))
        line = line.sliced(1);
    const qsizetype end = line.indexOf(u' ');
    return end < 0 ? line : line.first(end);
}

bool isTransportName(QStringView word)
{
    const auto isLower = [](QChar c) { return c >= u'a' && c <= u'z'; };
    return !word.empty() && isLower(word.front())
        && std::all_of(word.begin(), word.end(), [&isLower](QChar c) {
               return isLower(c) || (c >= u'0' && c <= u'9') || c == u'_';
           });
}

std::optional<quint16> parsePort(QStringView text)
{
    if (text.empty())
        return std::nullopt;
    quint32 port = 0;
    for (const QChar c : text) {
        if (c < u'0' || c > u'9')
            return std::nullopt;
        port = port * 10 + (c.unicode() - u'0');
        if (port > 0xffff)
            return std::nullopt;
    }
    return static_cast<quint16>(port);
}

} // namespace

bool isLineBreak(QChar c)
{
    return (c >= u'\n' && c <= u'\r') || c == QChar(0x0085) || c == QChar::LineSeparator
        || c == QChar::ParagraphSeparator;
}

QString normalised(QStringView line)
{
    constexpr QStringView keyword = u"bridge ";
    QStringView rest = trimmed(line);
    if (rest.startsWith(keyword, Qt::CaseInsensitive))
        rest = rest.sliced(keyword.size());

    QString words;
    words.reserve(rest.size());
    bool isWordPending = false; // insert a blank before the next character
    for (const QChar c : rest) {
        if (c == u' ' || c == u'\t') {
            isWordPending = !words.isEmpty();
            continue;
        }
        if (isWordPending)
            words += u' ';
        isWordPending = false;
        words += c;
    }
    return words;
}

bool isValid(QStringView normalisedLine)
{
    return normalisedLine.size() <= longestLine && linePattern().match(normalisedLine).hasMatch();
}

bool hasForbiddenCharacter(QStringView normalisedLine)
{
    return std::any_of(normalisedLine.begin(), normalisedLine.end(),
                       [](QChar c) { return c == u'#' || c == u'"' || c == u'\\'; });
}

ParsedBridgeLines parse(QStringView text)
{
    ParsedBridgeLines parsed;
    int number = 1;
    for (qsizetype start = 0; start <= text.size(); ++number) {
        qsizetype end = start;
        while (end < text.size() && !isLineBreak(text[end]))
            ++end;
        QString line = normalised(text.sliced(start, end - start));
        start = end + 1;
        if (end + 1 < text.size() && text[end] == u'\r' && text[end + 1] == u'\n')
            ++start;

        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        if (isValid(line)) {
            if (parsed.lines.size() < mostLines)
                parsed.lines.append(std::move(line));
            else
                parsed.surplusLineNumbers.push_back(number);
        } else {
            parsed.invalid.append(std::move(line));
            parsed.invalidLineNumbers.push_back(number);
        }
    }
    return parsed;
}

std::optional<QString> transport(QStringView line)
{
    const QStringView word = firstWord(line);
    return isTransportName(word) ? std::optional(word.toString()) : std::nullopt;
}

std::optional<BridgeAddress> address(QStringView line)
{
    for (const QStringView word : line.split(u' ', Qt::SkipEmptyParts)) {
        if (!word.contains(u':') || word.contains(u'='))
            continue;
        QStringView host;
        QStringView portText;
        const qsizetype bracket = word.startsWith(u'[') ? word.indexOf(u']') : -1;
        if (bracket >= 0) {
            if (bracket + 1 >= word.size() || word[bracket + 1] != u':')
                return std::nullopt;
            host = word.sliced(1, bracket - 1);
            portText = word.sliced(bracket + 2);
        } else {
            const qsizetype colon = word.lastIndexOf(u':');
            host = word.first(colon);
            portText = word.sliced(colon + 1);
        }
        const std::optional<quint16> port = parsePort(portText);
        if (!port)
            return std::nullopt;
        return BridgeAddress{host.toString(), *port};
    }
    return std::nullopt;
}

Text tooManyText()
{
    return Text::tr("At most %1 custom bridges can be used. Remove some under Bridges → Custom….")
        .arg(mostLines);
}

Result<QStringList, BridgeError> custom(QStringView text)
{
    ParsedBridgeLines parsed = parse(text);
    if (!parsed.invalid.isEmpty())
        return Failure(BridgeError::unavailable(
            Text::tr("Some custom bridge lines aren't valid. Fix them under Bridges → Custom….")));
    if (!parsed.surplusLineNumbers.empty())
        return Failure(BridgeError::unavailable(tooManyText()));
    if (parsed.lines.isEmpty())
        return Failure(
            BridgeError::unavailable(Text::tr("Add at least one bridge under Bridges → Custom….")));
    return std::move(parsed.lines);
}

} // namespace veldmark::BridgeLines
