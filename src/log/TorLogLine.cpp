#include "log/TorLogLine.h"

#include <algorithm>

namespace veldmark {

namespace {

bool isBetween(QChar c, char16_t first, char16_t last)
{
    return c.unicode() >= first && c.unicode() <= last;
}
bool isDigit(QChar c)
{
    return isBetween(c, u'0', u'9');
}
bool isTimeCharacter(QChar c)
{
    return isBetween(c, u'0', u':') || c == u'.';
}
bool isWordCharacter(QChar c)
{
    return isDigit(c) || isBetween(c, u'a', u'z') || isBetween(c, u'A', u'Z') || c == u'_';
}

// Parses a line by hand: a compiled pattern takes ten times as long for a full log. The format is
// unambiguous, so there is no backtracking.
class Cursor {
public:
    explicit Cursor(QStringView text) : m_rest(text) { }

    // Takes as many characters of the kind as possible, at most `most`.
    template <typename IsWanted> QStringView takeWhile(IsWanted isWanted, qsizetype most)
    {
        qsizetype length = 0;
        while (length < m_rest.size() && length < most && isWanted(m_rest[length]))
            ++length;
        const QStringView taken = m_rest.first(length);
        m_rest = m_rest.sliced(length);
        return taken;
    }

    bool take(QStringView text)
    {
        if (!m_rest.startsWith(text))
            return false;
        m_rest = m_rest.sliced(text.size());
        return true;
    }

    QStringView rest() const { return m_rest; }

private:
    QStringView m_rest;
};

struct Parts {
    QStringView time;
    QStringView level;
    QStringView message;
};

std::optional<Parts> match(QStringView line)
{
    const qsizetype unlimited = line.size();
    Cursor cursor(line);
    const bool isDate = cursor.takeWhile([](QChar c) { return isBetween(c, u'A', u'Z'); }, 1).size()
            == 1
        && cursor.takeWhile([](QChar c) { return isBetween(c, u'a', u'z'); }, 2).size() == 2
        && !cursor.takeWhile([](QChar c) { return c == u' '; }, unlimited).isEmpty()
        && !cursor.takeWhile(isDigit, 2).isEmpty() && cursor.take(u" ")
        && !cursor.takeWhile(isTimeCharacter, unlimited).isEmpty();
    if (!isDate)
        return std::nullopt;
    Parts parts;
    parts.time = line.first(line.size() - cursor.rest().size());
    if (!cursor.take(u" ["))
        return std::nullopt;
    parts.level = cursor.takeWhile(isWordCharacter, unlimited);
    if (parts.level.isEmpty() || !cursor.take(u"] "))
        return std::nullopt;
    parts.message = cursor.rest();
    return parts;
}

TorLogLine::Level levelOfWord(QStringView word)
{
    const auto is = [word](QStringView name) {
        return word.compare(name, Qt::CaseInsensitive) == 0;
    };
    return is(u"err")   ? TorLogLine::Level::error
        : is(u"warn")   ? TorLogLine::Level::warning
        : is(u"notice") ? TorLogLine::Level::notice
                        : TorLogLine::Level::info;
}

// `keyword` is lower case ASCII; letters of the text match in either case.
bool startsWith(QStringView text, QStringView keyword)
{
    return text.size() >= keyword.size()
        && std::equal(keyword.begin(), keyword.end(), text.begin(), [](QChar wanted, QChar c) {
               return c == wanted
                   || (isBetween(c, u'A', u'Z') && c.unicode() + 32 == wanted.unicode());
           });
}

// Searches for all words in one pass. Two letters select the candidates at each place.
TorLogLine::Level guessLevel(QStringView line)
{
    constexpr auto pair = [](char16_t first, char16_t second) {
        return static_cast<quint32>(first) << 16 | second;
    };
    const char16_t *const text = line.utf16();
    bool hasWarning = false;
    for (qsizetype i = 0; i + 1 < line.size(); ++i) {
        QStringView word;
        switch (pair(text[i] | 0x20, text[i + 1] | 0x20)) {
        case pair(u'e', u'r'):
            word = u"error";
            break;
        case pair(u'f', u'a'):
            word = u"failed";
            break;
        case pair(u'c', u'o'):
            word = u"could not";
            break;
        case pair(u'l', u'a'):
            word = u"last exit code = 1";
            break;
        case pair(u'w', u'a'):
            hasWarning = hasWarning || startsWith(line.sliced(i), u"warn");
            continue;
        default:
            continue;
        }
        if (startsWith(line.sliced(i), word))
            return TorLogLine::Level::error;
    }
    return hasWarning ? TorLogLine::Level::warning : TorLogLine::Level::info;
}

} // namespace

TorLogLine TorLogLine::parse(const QString &line, int id)
{
    if (const auto parts = match(line))
        return {id, parts->time.toString(), levelOfWord(parts->level), parts->message.toString(),
                line};
    return {id, std::nullopt, guessLevel(line), line, line};
}

} // namespace veldmark
