#include "log/TransportTrouble.h"

#include "base/OneLine.h"

#include <QRegularExpression>

namespace veldmark {

namespace {

constexpr qsizetype quoteLimit = 120;
// A program's output may contain any character.
constexpr auto anyCharacter = QRegularExpression::DotMatchesEverythingOption;

// Another program's words in a sentence.
QString quoted(const QString &words)
{
    return inOneLine(words, quoteLimit);
}

QString withEnd(const QString &sentence)
{
    return sentence.endsWith(u'.') || sentence.endsWith(u'!') ? sentence : sentence + u'.';
}

QString programAt(const QString &path)
{
    return quoted(path.section(u'/', -1));
}

// Collects facts while it reads the lines.
class TroubleReader {
public:
    void read(const TorLogLine &line);
    std::optional<Text> sentence() const;

private:
    bool readEnd(const QString &message);
    bool readWords(const TorLogLine &line);
    Text endSentence() const;

    int m_ends = 0;    // how often a program has ended
    QString m_program; // the last one that ended: "lyrebird"
    QString m_status;  // its exit status; empty when Tor doesn't report it
    QString m_words;   // a program's message before its end
    // the problem when no program has ended; the first one, since it caused the others
    Text m_trouble;
};

// A line about a program that ended. Tor starts it again and again.
bool TroubleReader::readEnd(const QString &message)
{
    static const QRegularExpression ended(
        QStringLiteral(
            "^Managed proxy \"(.*)\" having PID \\d+ terminated with status code (\\d+)"),
        anyCharacter);
    const auto match = ended.match(message);
    if (!match.hasMatch())
        return false;
    if (match.captured(1) == QLatin1String("N/A"))
        return true; // Tor ended it, for the reason in an earlier line
    ++m_ends;
    m_program = programAt(match.captured(1));
    const QString status = match.captured(2);
    m_status = status.size() <= 3 ? status : QString();
    return true;
}

// A line with a program's message: an error in the form that Tor understands, or free text.
bool TroubleReader::readWords(const TorLogLine &line)
{
    static const QRegularExpression logged(QStringLiteral("^Managed proxy \"(.*?)\": (.+)$"),
                                           anyCharacter);
    static const QRegularExpression unknown(
        QStringLiteral("^Unknown line received by managed proxy \\((.*)\\)\\.?$"), anyCharacter);
    if (const auto match = unknown.match(line.message); match.hasMatch()) {
        m_words = quoted(match.captured(1));
        if (m_trouble.isEmpty())
            m_trouble
                = Text::tr(
                      "The bridge program printed something that Tor doesn't understand: \"%1\".")
                      .arg(m_words);
        return true;
    }
    const auto match = logged.match(line.message);
    if (!match.hasMatch() || !line.isProblem())
        return false;
    m_words = quoted(match.captured(2));
    m_trouble = Text::tr("The bridge program %1 reports: %2")
                    .arg(programAt(match.captured(1)), withEnd(m_words));
    return true;
}

void TroubleReader::read(const TorLogLine &line)
{
    if (line.message.startsWith(QLatin1String("Bootstrapped "))) {
        *this = {};
        return;
    }
    if (readEnd(line.message) || readWords(line) || !line.isProblem() || !m_trouble.isEmpty())
        return;
    static const QRegularExpression died(QStringLiteral("^Managed proxy at '.*' died in state "),
                                         anyCharacter);
    if (died.match(line.message).hasMatch())
        return; // less specific than the line before it
    if (line.message.contains(QLatin1String("anaged proxy"))
        || line.message.contains(QLatin1String("no configured transport")))
        m_trouble = Text::tr("Tor has trouble with the bridge program: %1")
                        .arg(withEnd(quoted(line.message)));
}

Text TroubleReader::endSentence() const
{
    if (m_status.isEmpty())
        return (m_ends == 1 ? Text::tr("The bridge program %1 ended unexpectedly.")
                            : Text::tr("The bridge program %1 keeps ending."))
            .arg(m_program);
    return (m_ends == 1 ? Text::tr("The bridge program %1 ended unexpectedly (exit status %2).")
                        : Text::tr("The bridge program %1 keeps ending (exit status %2)."))
        .arg(m_program, m_status);
}

std::optional<Text> TroubleReader::sentence() const
{
    if (m_ends == 0)
        return m_trouble.isEmpty() ? std::nullopt : std::optional(m_trouble);
    const Text end = endSentence();
    return m_words.isEmpty() ? end : Text::joined({end, Text::tr("It said: \"%1\".").arg(m_words)});
}

} // namespace

std::optional<Text> transportTrouble(const QList<TorLogLine> &lines)
{
    TroubleReader finding;
    for (const TorLogLine &line : lines)
        finding.read(line);
    return finding.sentence();
}

} // namespace veldmark
