#include "log/TorLogFilter.h"

#include <QLocale>

#include <algorithm>

namespace veldmark {

namespace {

// Compares by the rules of the user's language. Only these three languages have their own case
// rules. For the others, general case folding gives the same result without a copy of every line.
class Search {
public:
    explicit Search(const QString &text) : m_text(text)
    {
        const QLocale::Language language = m_locale.language();
        m_ownRules = language == QLocale::Turkish || language == QLocale::Azerbaijani
            || language == QLocale::Lithuanian;
        if (m_ownRules)
            m_text = m_locale.toLower(text);
    }

    bool matches(const QString &line) const
    {
        return m_ownRules ? m_locale.toLower(line).contains(m_text)
                          : line.contains(m_text, Qt::CaseInsensitive);
    }

private:
    QLocale m_locale;
    bool m_ownRules;
    QString m_text;
};

} // namespace

QList<TorLogLine> TorLogFilter::shown(const TorLog::Snapshot &snapshot) const
{
    const QString wanted = search.trimmed();
    if (wanted.isEmpty() && !problemsOnly)
        return snapshot.lines();
    const Search matcher(wanted);
    QList<TorLogLine> lines;
    for (const TorLogLine &line : snapshot.lines()) {
        if ((!problemsOnly || line.isProblem()) && (wanted.isEmpty() || matcher.matches(line.raw)))
            lines.append(line);
    }
    return lines;
}

std::optional<TorLogFilter::Placeholder> TorLogFilter::placeholder(
    const TorLog::Snapshot &snapshot, const QList<TorLogLine> &shown,
    const QString &runDirectory) const
{
    if (snapshot.kind() == TorLog::Snapshot::Kind::unreadable)
        return Placeholder{
            Text::tr("Can't read Tor's log"),
            Text::tr("The log files in %1 aren't readable by your account. Reconnect once with "
                     "this version of Veldmark to fix their permissions.")
                .arg(runDirectory)};
    if (snapshot.kind() == TorLog::Snapshot::Kind::empty)
        return Placeholder{
            Text::tr("No log yet"),
            Text::tr("Connect, and Tor's messages appear here as it starts. If Tor fails to "
                     "start, the reason shows up here.")};
    if (!shown.isEmpty())
        return std::nullopt;
    if (const QString wanted = search.trimmed(); !wanted.isEmpty())
        return Placeholder{Text::tr("Nothing matches"),
                           Text::tr("No lines contain “%1”").arg(wanted)};
    return Placeholder{Text::tr("No warnings or errors. Tor is happy."), Text()};
}

int TorLogFilter::problemCount(const TorLog::Snapshot &snapshot)
{
    return static_cast<int>(std::count_if(snapshot.lines().begin(), snapshot.lines().end(),
                                          [](const TorLogLine &line) { return line.isProblem(); }));
}

QString TorLogFilter::copyText(const QList<TorLogLine> &shown)
{
    QStringList texts;
    for (const TorLogLine &line : shown)
        texts.append(line.raw);
    return texts.join(u'\n');
}

} // namespace veldmark
