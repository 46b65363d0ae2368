#include "ui/LogModel.h"

#include "ui/Wording.h"

#include <QClipboard>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QFile>
#include <QGuiApplication>
#include <QLocale>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace veldmark {

namespace {

// Whether the lines are equal, regardless of their position in the log.
bool isSame(const TorLogLine &a, const TorLogLine &b)
{
    return a.raw == b.raw && a.level == b.level;
}

} // namespace

LogModel::LogModel(LogFeed &feed, const PlatformProfile &profile, QObject *parent)
    : QAbstractListModel(parent),
      m_feed(feed),
      m_profile(profile)
{
    QObject::connect(&feed, &LogFeed::changed, this, &LogModel::update);
    update();
}

void LogModel::open()
{
    setSearch({});
    setProblemsOnly(false);
    setRevealProblem({});
    m_feed.start();
}

void LogModel::update()
{
    const TorLog::Snapshot &log = m_feed.snapshot();
    m_problems = TorLogFilter::problemCount(log);
    QList<TorLogLine> next = m_filter.shown(log);
    // A log grows at its end and is cut at its beginning. Find where the new list continues the old
    // one.
    const auto start = next.isEmpty()
        ? m_shown.cend()
        : std::find_if(m_shown.cbegin(), m_shown.cend(),
                       [&next](const TorLogLine &line) { return isSame(line, next.constFirst()); });
    const auto kept = m_shown.cend() - start;
    if (kept > 0 && kept <= next.size()
        && std::equal(start, m_shown.cend(), next.cbegin(), isSame)) {
        if (const auto cut = start - m_shown.cbegin(); cut > 0) {
            beginRemoveRows({}, 0, static_cast<int>(cut) - 1);
            m_shown.remove(0, cut);
            endRemoveRows();
        }
        if (next.size() > m_shown.size()) {
            beginInsertRows({}, static_cast<int>(m_shown.size()),
                            static_cast<int>(next.size()) - 1);
            m_shown = std::move(next);
            endInsertRows();
        }
    } else {
        beginResetModel();
        m_shown = std::move(next);
        endResetModel();
    }
    Q_EMIT changed();
}

int LogModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

QVariant LogModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const TorLogLine &line = m_shown.at(index.row());
    switch (role) {
    case TimeRole:
        return line.time.value_or(QString());
    case MessageRole:
        return line.message;
    case LevelRole:
        static_assert(int(Level::Error) == int(TorLogLine::Level::error)
                      && int(Level::Warning) == int(TorLogLine::Level::warning)
                      && int(Level::Notice) == int(TorLogLine::Level::notice)
                      && int(Level::Info) == int(TorLogLine::Level::info));
        return static_cast<int>(line.level);
    case Qt::DisplayRole:
        return line.raw;
    default:
        return {};
    }
}

QHash<int, QByteArray> LogModel::roleNames() const
{
    return {{TimeRole, "time"},
            {MessageRole, "message"},
            {LevelRole, "level"},
            {Qt::DisplayRole, "raw"}};
}

void LogModel::setSearch(const QString &text)
{
    if (m_filter.search == text)
        return;
    m_filter.search = text;
    update();
}

void LogModel::setProblemsOnly(bool on)
{
    if (m_filter.problemsOnly == on)
        return;
    m_filter.problemsOnly = on;
    update();
}

QString LogModel::subtitle() const
{
    switch (m_feed.snapshot().kind()) {
    case LogFeed::State::empty:
        return tr("Tor writes here while it connects and runs");
    case LogFeed::State::unreadable:
        return tr("Can't read the log files");
    case LogFeed::State::lines:
        break;
    }
    const auto count = static_cast<int>(m_feed.snapshot().lines().size());
    return (count == 1 ? tr("1 line") : tr("%n lines", nullptr, count)) + QStringLiteral(" · ")
        + fromTheLeft(noticesPath());
}

QString LogModel::problemsLabel() const
{
    return m_problems == 0 ? tr("Problems") : tr("Problems (%1)").arg(m_problems);
}

QString LogModel::emptySymbol() const
{
    if (m_feed.snapshot().kind() == LogFeed::State::unreadable)
        return QStringLiteral("lock");
    if (m_feed.snapshot().kind() == LogFeed::State::empty)
        return QStringLiteral("doc.text");
    return m_filter.search.trimmed().isEmpty()
        ? QStringLiteral("checkmark.circle.fill")
        : QStringLiteral("line.3.horizontal.decrease.circle");
}

std::optional<TorLogFilter::Placeholder> LogModel::placeholder() const
{
    return m_filter.placeholder(m_feed.snapshot(), m_shown, m_profile.runDirectory);
}

QString LogModel::emptyTitle() const
{
    const auto words = placeholder();
    return words ? words->title.translated() : QString();
}

QString LogModel::emptyText() const
{
    const auto words = placeholder();
    return words ? words->text.translated() : QString();
}

QString LogModel::showHelp() const
{
    return m_profile.name == QLatin1String("macos") ? tr("Show the log files in Finder")
                                                    : tr("Show the log files in the file manager");
}

void LogModel::copy(int first, int last) const
{
    const int end = last < 0 ? rowCount() - 1 : std::min(last, rowCount() - 1);
    const int start = std::max(first, 0);
    copyText(TorLogFilter::copyText(m_shown.mid(start, std::max(end - start + 1, 0))));
}

void LogModel::copyText(const QString &text) const
{
    QGuiApplication::clipboard()->setText(text);
}

void LogModel::setRevealProblem(const QString &problem)
{
    if (std::exchange(m_revealProblem, problem) != problem)
        Q_EMIT changed();
}

void LogModel::reveal()
{
    setRevealProblem({});
    const QString path = QFile::exists(noticesPath()) ? noticesPath() : m_profile.runDirectory;
    if (!QFile::exists(path)) {
        setRevealProblem(
            tr("There are no log files yet. Tor creates %1 when it first starts.").arg(path));
        return;
    }
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) { // a call without a bus never returns an answer
        openFolder();
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"),
        QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    call << QStringList{QUrl::fromLocalFile(path).toString()} << QString();
    auto *answer = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        if (answer->isError())
            openFolder();
    });
}

void LogModel::openFolder()
{
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(m_profile.runDirectory)))
        setRevealProblem(tr("No file manager could be opened. The log files are in %1.")
                             .arg(m_profile.runDirectory));
}

} // namespace veldmark
