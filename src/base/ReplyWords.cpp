#include "base/ReplyWords.h"

#include <algorithm>

namespace veldmark::ReplyWords {

namespace {

// The index of the mark that closes the string opened at `open`; -1 without one.
qsizetype closingMark(QStringView text, qsizetype open)
{
    for (qsizetype i = open + 1; i < text.size(); ++i) {
        if (text[i] == u'\\')
            ++i;
        else if (text[i] == u'"')
            return i;
    }
    return -1;
}

bool isOctal(QChar c)
{
    return c >= u'0' && c <= u'7';
}

// The text between the marks, with Tor's escapes resolved: \n, \r, \t, \ooo, and \ before any other
// character, also itself.
QString unescaped(QStringView text)
{
    QString plain;
    plain.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != u'\\' || i + 1 == text.size()) {
            plain += text[i];
            continue;
        }
        const QChar escaped = text[++i];
        if (isOctal(escaped)) {
            char16_t code = 0;
            for (int digit = 0; digit < 3 && i < text.size() && isOctal(text[i]); ++digit, ++i)
                code = static_cast<char16_t>(code * 8 + (text[i].unicode() - u'0'));
            --i;
            plain += QChar(code);
        } else {
            plain += escaped == u'n' ? u'\n'
                : escaped == u'r'    ? u'\r'
                : escaped == u't'    ? u'\t'
                                     : escaped;
        }
    }
    return plain;
}

} // namespace

QStringView next(QStringView &rest)
{
    const auto isBlank = [](QChar c) { return c == u' '; };
    rest = QStringView(std::find_if_not(rest.begin(), rest.end(), isBlank), rest.end());
    const auto keyEnd = std::find_if(rest.begin(), rest.end(),
                                     [](QChar c) { return c == u' ' || c == u'='; });
    auto from = keyEnd; // where the blank that ends the word is looked for
    if (rest.end() - keyEnd > 1 && keyEnd[0] == u'=' && keyEnd[1] == u'"') {
        const qsizetype close = closingMark(rest, keyEnd + 1 - rest.begin());
        from = close < 0 ? rest.end() : rest.begin() + close;
    }
    const auto end = std::find_if(from, rest.end(), isBlank);
    const QStringView word(rest.begin(), end);
    rest = QStringView(end, rest.end());
    return word;
}

std::optional<QString> value(QStringView line, QStringView key)
{
    for (QStringView word = next(line); !word.isEmpty(); word = next(line)) {
        if (word.size() <= key.size() || !word.startsWith(key) || word[key.size()] != u'=')
            continue;
        const QStringView found = word.sliced(key.size() + 1);
        if (!found.startsWith(u'"'))
            return found.toString();
        const qsizetype close = closingMark(found, 0);
        return close < 0 ? std::nullopt : std::optional(unescaped(found.sliced(1, close - 1)));
    }
    return std::nullopt;
}

} // namespace veldmark::ReplyWords
