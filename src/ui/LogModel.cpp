#include "ui/LogModel.h"

#include <QClipboard>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDesktopServices>
#include <QFile>
#include <QGuiApplication>
#include <QLocale>
#include <QUrl>

#include <algorithm>

namespace veldmark {

namespace {

bool isProblem(const LogLine &line)
{
    return line.level == LogLine::Level::error || line.level == LogLine::Level::warning;
}

} // namespace

LogModel::LogModel(LogFeed &feed, const PlatformProfile &profile, QObject *parent)
    : QAbstractListModel(parent), m_feed(feed), m_profile(profile)
{
    QObject::connect(&feed, &LogFeed::changed, this, &LogModel::update);
    update();
}

bool LogModel::lets(const LogLine &line) const
{
    const QString wanted = m_search.trimmed();
    return (!m_problemsOnly || isProblem(line))
        && (wanted.isEmpty() || line.raw.contains(wanted, Qt::CaseInsensitive));
}

void LogModel::update()
{
    std::vector<LogLine> next;
    m_problems = 0;
    if (m_feed.state() == LogFeed::State::lines) {
        m_problems = static_cast<int>(std::count_if(m_feed.lines().begin(), m_feed.lines().end(), isProblem));
        std::copy_if(m_feed.lines().begin(), m_feed.lines().end(), std::back_inserter(next),
                     [this](const LogLine &line) { return lets(line); });
    }
    // A log grows at its end and is cut at its beginning: find where the new list continues the old.
    const auto start = next.empty() ? m_shown.end()
                                    : std::find(m_shown.begin(), m_shown.end(), next.front());
    const auto kept = m_shown.end() - start;
    if (kept > 0 && kept <= static_cast<std::ptrdiff_t>(next.size())
        && std::equal(start, m_shown.end(), next.begin())) {
        if (const auto cut = start - m_shown.begin(); cut > 0) {
            beginRemoveRows({}, 0, static_cast<int>(cut) - 1);
            m_shown.erase(m_shown.begin(), start);
            endRemoveRows();
        }
        if (next.size() > m_shown.size()) {
            beginInsertRows({}, static_cast<int>(m_shown.size()), static_cast<int>(next.size()) - 1);
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
    const LogLine &line = m_shown[static_cast<size_t>(index.row())];
    switch (role) {
    case TimeRole:
        return line.time;
    case MessageRole:
        return line.message;
    case LevelRole:
        return static_cast<int>(line.level);
    case Qt::DisplayRole:
        return line.raw;
    default:
        return {};
    }
}

QHash<int, QByteArray> LogModel::roleNames() const
{
    return {{TimeRole, "time"}, {MessageRole, "message"}, {LevelRole, "level"}, {Qt::DisplayRole, "raw"}};
}

void LogModel::setSearch(const QString &text)
{
    if (m_search == text)
        return;
    m_search = text;
    update();
}

void LogModel::setProblemsOnly(bool on)
{
    if (m_problemsOnly == on)
        return;
    m_problemsOnly = on;
    update();
}

QString LogModel::subtitle() const
{
    switch (m_feed.state()) {
    case LogFeed::State::empty:
        return tr("Tor writes here while it connects and runs");
    case LogFeed::State::unreadable:
        return tr("Can't read the log files");
    case LogFeed::State::lines:
        break;
    }
    const auto count = static_cast<int>(m_feed.lines().size());
    return (count == 1 ? tr("1 line") : tr("%1 lines").arg(count)) + QStringLiteral(" · ") + noticesPath();
}

QString LogModel::problemsLabel() const
{
    return m_problems == 0 ? tr("Problems") : tr("Problems (%1)").arg(m_problems);
}

QString LogModel::emptySymbol() const
{
    if (m_feed.state() == LogFeed::State::unreadable)
        return QStringLiteral("lock");
    if (m_feed.state() == LogFeed::State::empty)
        return QStringLiteral("doc.text");
    return m_search.trimmed().isEmpty() ? QStringLiteral("checkmark.circle.fill")
                                        : QStringLiteral("line.3.horizontal.decrease.circle");
}

QString LogModel::emptyTitle() const
{
    if (m_feed.state() == LogFeed::State::unreadable)
        return tr("Can't read Tor's log");
    if (m_feed.state() == LogFeed::State::empty)
        return tr("No log yet");
    return m_search.trimmed().isEmpty() ? tr("No warnings or errors. Tor is happy.") : tr("Nothing matches");
}

QString LogModel::emptyText() const
{
    if (m_feed.state() == LogFeed::State::unreadable)
        return tr("The log files in %1 aren't readable by your account. Reconnect once with this version "
                  "of Veldmark to fix their permissions.").arg(m_profile.runDirectory);
    if (m_feed.state() == LogFeed::State::empty)
        return tr("Connect, and Tor's messages appear here as it starts. If Tor fails to start, the reason "
                  "shows up here.");
    return m_search.trimmed().isEmpty() ? QString() : tr("No lines contain “%1”").arg(m_search.trimmed());
}

QString LogModel::showHelp() const
{
    return m_profile.name == QLatin1String("macos") ? tr("Show the log files in Finder")
                                                    : tr("Show the log files in the file manager");
}

void LogModel::copy(int first, int last) const
{
    QStringList text;
    const int end = last < 0 ? rowCount() - 1 : std::min(last, rowCount() - 1);
    for (int row = std::max(first, 0); row <= end; ++row)
        text << m_shown[static_cast<size_t>(row)].raw;
    QGuiApplication::clipboard()->setText(text.join(u'\n'));
}

void LogModel::reveal() const
{
    const QString path = QFile::exists(noticesPath()) ? noticesPath() : m_profile.runDirectory;
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    call << QStringList{QUrl::fromLocalFile(path).toString()} << QString();
    if (!QDBusConnection::sessionBus().isConnected() || !QDBusConnection::sessionBus().send(call))
        QDesktopServices::openUrl(QUrl::fromLocalFile(m_profile.runDirectory));
}

} // namespace veldmark
