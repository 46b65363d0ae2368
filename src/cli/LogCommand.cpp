#include "cli/LogCommand.h"

#include "base/ResumeOnce.h"
#include "cli/Console.h"
#include "log/TorLogFilter.h"
#include "log/TorLogStore.h"
#include "platform/PlatformProfile.h"

#include <QHash>

namespace veldmark {

namespace {

const QString red = QStringLiteral("\x1b[31m");
const QString yellow = QStringLiteral("\x1b[33m");
const QString faint = QStringLiteral("\x1b[2m");
const QString plain = QStringLiteral("\x1b[0m");

QString harmless(QString text)
{
    for (QChar &c : text) {
        if (!c.isPrint() && c != u'\t' && !c.isSurrogate())
            c = u'?';
    }
    return text;
}

QString inColour(const QString &text, TorLogLine::Level level)
{
    if (level == TorLogLine::Level::error)
        return red + text + plain;
    if (level == TorLogLine::Level::warning)
        return yellow + text + plain;
    return text;
}

void print(const QList<TorLogLine> &lines)
{
    QStringList texts;
    for (const TorLogLine &line : lines)
        texts << logLineText(line, Console::isTerminal());
    if (!texts.isEmpty())
        Console::print(texts.join(u'\n'));
}

// Prints why there is nothing to show. True when the files exist but this user can't read them.
bool explain(const TorLogFilter &filter, const TorLogStore &store)
{
    const auto placeholder = filter.placeholder(store.snapshot(), filter.shown(store.snapshot()),
                                                store.log().runDirectory());
    if (placeholder)
        Console::printError(
            placeholder->text.isEmpty()
                ? placeholder->title
                : Text::joined({placeholder->title, placeholder->text}, QStringLiteral(": ")));
    return store.snapshot().kind() == TorLog::Snapshot::Kind::unreadable;
}

} // namespace

QString logLineText(const TorLogLine &line, bool coloured)
{
    const QString text = harmless(line.raw);
    if (!coloured)
        return text;
    const qsizetype timeEnd = line.time ? line.time->size() : 0; // the text begins with the time
    if (timeEnd == 0)
        return inColour(text, line.level);
    return faint + text.left(timeEnd) + plain + inColour(text.mid(timeEnd), line.level);
}

QList<TorLogLine> newLogLines(const QList<TorLogLine> &before, const QList<TorLogLine> &now)
{
    QHash<QString, int> known; // how often each line occurred
    for (const TorLogLine &line : before)
        ++known[line.raw];
    QList<TorLogLine> added;
    for (const TorLogLine &line : now) {
        const auto seen = known.find(line.raw);
        if (seen != known.end() && *seen > 0)
            --*seen;
        else
            added << line;
    }
    return added;
}

QCoro::Task<ExitStatus> showLog(Invocation invocation, PlatformProfile profile)
{
    TorLogFilter filter;
    filter.problemsOnly = invocation.problems;
    TorLogStore store{TorLog(profile)};
    store.reload(true);
    print(filter.shown(store.snapshot()));
    const bool isUnreadable = explain(filter, store);
    if (!invocation.follow)
        co_return isUnreadable ? ExitStatus::failed : ExitStatus::done;

    LogFollower follower(store.snapshot().lines());
    QObject::connect(&store, &TorLogStore::changed, &store, [&filter, &store, &follower] {
        print(filter.shown(TorLog::Snapshot::of(follower.take(store.snapshot().lines()))));
    });
    store.start();
    const ResumeOnce<bool> never; // a signal ends the process
    co_return (co_await never) ? ExitStatus::done : ExitStatus::failed;
}

} // namespace veldmark
