#include "bridges/BridgeText.h"

#include "bridges/BridgeLines.h"

#include <QHostAddress>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <array>
#include <vector>

namespace veldmark::BridgeText {

namespace {

// Transports whose name before an address makes a bridge of it. A line by itself may name others.
constexpr std::array<QStringView, 6> knownTransports = {
    u"obfs4", u"webtunnel", u"snowflake", u"meek_lite", u"obfs3", u"scramblesuit"};

const QRegularExpression &addressPattern()
{
    static const QRegularExpression pattern(QStringLiteral(
        R"(\A(?:[0-9]{1,3}(?:\.[0-9]{1,3}){3}|\[[0-9A-Fa-f:.]{2,45}\]):[0-9]{1,5}\z)"));
    return pattern;
}

const QRegularExpression &fingerprintPattern()
{
    static const QRegularExpression pattern(QStringLiteral(R"(\A\$?[0-9A-Fa-f]{40}\z)"));
    return pattern;
}

const QRegularExpression &argumentPattern()
{
    static const QRegularExpression pattern(
        QStringLiteral(R"(\A[a-z][a-z0-9_-]{0,31}=[!$-\[\]-~]+\z)"));
    return pattern;
}

const QRegularExpression &argumentStartPattern()
{
    static const QRegularExpression pattern(QStringLiteral(R"(\A[a-z][a-z0-9_-]{0,31}=)"));
    return pattern;
}

bool matches(const QRegularExpression &pattern, QStringView word)
{
    return pattern.match(word).hasMatch();
}

// An e-mail's transfer encoding: "=" at the end of a line joins it to the next, "=3D" is "=".
QString withoutMailEncoding(QString text)
{
    static const QRegularExpression encoded(QStringLiteral("[a-z]=3D"));
    if (!encoded.match(text).hasMatch())
        return text;
    static const QRegularExpression softBreak(QStringLiteral("=[ \\t]*\\r?\\n"));
    text.remove(softBreak);
    return text.replace(QStringLiteral("=3D"), QStringLiteral("="));
}

// A web page's source: elements end words, and named characters are written out.
QString withoutMarkup(QString text)
{
    static const QRegularExpression element(QStringLiteral("<[/!a-zA-Z][^<>]{0,2000}>"));
    text.replace(element, QStringLiteral("\n"));
    text.replace(QStringLiteral("\\n"), QStringLiteral("\n")); // JSON
    text.replace(QStringLiteral("\\/"), QStringLiteral("/"));
    static const std::array<std::pair<QString, QString>, 9> characters = {{
        {QStringLiteral("&nbsp;"), QStringLiteral(" ")},
        {QStringLiteral("&#61;"), QStringLiteral("=")},
        {QStringLiteral("&#x3d;"), QStringLiteral("=")},
        {QStringLiteral("&#43;"), QStringLiteral("+")},
        {QStringLiteral("&#x2b;"), QStringLiteral("+")},
        {QStringLiteral("&quot;"), QStringLiteral("\"")},
        {QStringLiteral("&#34;"), QStringLiteral("\"")},
        {QStringLiteral("&#39;"), QStringLiteral("'")},
        {QStringLiteral("&amp;"), QStringLiteral("&")},
    }};
    for (const auto &[name, character] : characters)
        text.replace(name, character, Qt::CaseInsensitive);
    return text;
}

// No bridge line contains them.
bool isSeparator(QChar c)
{
    constexpr QStringView quotes = u"\"{}\u201c\u201d\u201e\u00ab\u00bb\u3001\uff0c";
    return c.isSpace() || c.category() == QChar::Other_Control || quotes.contains(c);
}

bool isAround(QChar c)
{
    constexpr QStringView around = u"'`,;<>()|*\u2018\u2019";
    return around.contains(c);
}

// Without the quotes, commas and brackets around a word; an IPv6 address keeps its brackets.
QString bare(QStringView word)
{
    constexpr QStringView behind = u".!]";
    while (!word.empty() && (isAround(word.back()) || behind.contains(word.back())))
        word.chop(1);
    while (
        !word.empty()
        && (isAround(word.front()) || (word.front() == u'[' && !matches(addressPattern(), word))))
        word = word.sliced(1);
    const bool hasMeaning = std::any_of(word.begin(), word.end(),
                                        [](QChar c) { return c.isLetterOrNumber(); });
    return hasMeaning ? word.toString() : QString();
}

struct Word {
    QString text;
    int line = 0; // counts lines with words
};

// All kinds of white space separate words. Characters without width are no part of them.
std::vector<Word> wordsOf(const QString &text)
{
    std::vector<Word> words;
    int number = 0;
    QString word;
    const auto end = [&words, &number, &word] {
        if (const QString plain = bare(word); !plain.isEmpty())
            words.push_back({plain, number});
        word.clear();
    };
    for (const QChar c : text) {
        const bool isBreak = BridgeLines::isLineBreak(c);
        if (isBreak || isSeparator(c))
            end();
        else if (c.category() != QChar::Other_Format)
            word += c;
        number += isBreak ? 1 : 0;
    }
    end();
    return words;
}

bool isKnownTransport(QStringView word)
{
    return std::find(knownTransports.begin(), knownTransports.end(), word) != knownTransports.end();
}

} // namespace

QStringList found(QStringView text)
{
    const QString readable = withoutMarkup(
        withoutMailEncoding(text.first(std::min(text.size(), longestText)).toString()));
    const std::vector<Word> words = wordsOf(readable);
    const auto isIn = [&words](std::size_t at, int line) {
        return at < words.size() && words[at].line == line;
    };

    QStringList lines;
    QSet<QString> seen;
    for (std::size_t at = 0; at < words.size(); ++at) {
        const auto &[address, line] = words[at];
        if (!matches(addressPattern(), address))
            continue;
        // The words before it, where they can belong to it.
        const QString before = at > 0 ? words[at - 1].text.toLower() : QString();
        const bool isNamed = isKnownTransport(before);
        const bool isFirst = at == 0 || words[at - 1].line < line;
        const bool isSecond = !isFirst && (at == 1 || words[at - 2].line < line);

        std::size_t next = at + 1;
        const bool hasFingerprint = next < words.size()
            && matches(fingerprintPattern(), words[next].text);
        next += hasFingerprint ? 1 : 0;
        while (next < words.size() && matches(argumentPattern(), words[next].text))
            ++next;
        const bool endsLine = !isIn(next, line);
        if (!endsLine && matches(argumentStartPattern(), words[next].text))
            continue; // an argument that no bridge line can contain
        const bool isByItself = endsLine
            && (isFirst || (isSecond && BridgeLines::transport(words[at - 1].text)));

        if (isNamed || hasFingerprint || before == u"bridge" || isByItself) {
            QStringList parts;
            if (isNamed || (isByItself && isSecond && before != u"bridge"))
                parts << before;
            for (std::size_t part = at; part < next; ++part)
                parts << words[part].text;
            const QString bridge = parts.join(u' ');
            const auto place = BridgeLines::address(bridge);
            if (place && place->port != 0 && !QHostAddress(place->host).isNull()
                && BridgeLines::isValid(bridge) && !seen.contains(bridge)) {
                seen.insert(bridge);
                lines << bridge;
            }
        }
        at = next - 1;
    }
    return lines;
}

} // namespace veldmark::BridgeText
