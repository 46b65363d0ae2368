#include "log/TorLog.h"

#include <QFile>
#include <QSet>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace veldmark {

namespace {

bool statusOf(const QString &path, struct stat &status)
{
    return ::stat(QFile::encodeName(path).constData(), &status) == 0;
}

// A file in a folder that can't be entered counts as existing.
bool exists(const QString &path)
{
    struct stat status { };
    return statusOf(path, status) || errno == EACCES;
}

QString fileSignature(const QString &path)
{
    struct stat status { };
    if (!statusOf(path, status))
        return QStringLiteral("0:0.0");
#ifdef Q_OS_MACOS
    const timespec &modified = status.st_mtimespec;
#else
    const timespec &modified = status.st_mtim;
#endif
    return QStringLiteral("%1:%2.%3")
        .arg(status.st_size)
        .arg(modified.tv_sec)
        .arg(modified.tv_nsec, 9, 10, QLatin1Char('0'));
}

// The end of a file, cut after a line feed when its beginning is left out. Absent when it can't be
// opened; empty when it can't be read.
std::optional<QByteArray> readEnd(const QString &path)
{
    // A pipe without a writer must not block the program.
    const int descriptor = ::open(QFile::encodeName(path).constData(),
                                  O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0)
        return std::nullopt;
    struct stat status { };
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        ::close(descriptor);
        return std::nullopt;
    }
    const qint64 offset = std::max<qint64>(status.st_size - TorLog::fileLimitBytes, 0);
    QByteArray content(status.st_size - offset, Qt::Uninitialized);
    qsizetype filled = 0;
    while (filled < content.size()) {
        const ssize_t count = ::pread(descriptor, content.data() + filled,
                                      static_cast<size_t>(content.size() - filled),
                                      offset + filled);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            filled = 0; // half a file would look like a whole one
        if (count <= 0)
            break; // the file shrank, or can't be read
        filled += count;
    }
    ::close(descriptor);
    content.truncate(filled);
    if (offset > 0) {
        const qsizetype lineFeed = content.indexOf('\n');
        content.remove(0, lineFeed < 0 ? content.size() : lineFeed + 1);
    }
    return content;
}

// The last `most` lines of `content`, in their order: trimmed, without empty ones. It searches from
// the end, since a file may have far more lines than needed.
QList<QByteArrayView> lastLines(QByteArrayView content, qsizetype most)
{
    QList<QByteArrayView> lines;
    const auto appendPieces = [&lines, most](QByteArrayView text) {
        // A carriage return also ends a line. Few lines have one, so it is searched last.
        for (bool more = true; more && lines.size() < most;) {
            const qsizetype cut = text.lastIndexOf('\r');
            const QByteArrayView line = text.sliced(cut + 1).trimmed();
            if (!line.isEmpty())
                lines.append(line);
            more = cut >= 0;
            text = text.first(std::max<qsizetype>(cut, 0));
        }
    };
    for (bool more = true; more && lines.size() < most;) {
        const qsizetype cut = content.lastIndexOf('\n');
        appendPieces(content.sliced(cut + 1));
        more = cut >= 0;
        content = content.first(std::max<qsizetype>(cut, 0));
    }
    std::reverse(lines.begin(), lines.end());
    return lines;
}

} // namespace

TorLog::Snapshot TorLog::Snapshot::of(QList<TorLogLine> lines)
{
    Snapshot snapshot;
    snapshot.m_kind = lines.isEmpty() ? Kind::empty : Kind::lines;
    snapshot.m_lines = std::move(lines);
    return snapshot;
}

TorLog::Snapshot TorLog::Snapshot::unreadable()
{
    Snapshot snapshot;
    snapshot.m_kind = Kind::unreadable;
    return snapshot;
}

TorLog::TorLog(const PlatformProfile &profile)
    : m_runDirectory(profile.runDirectory),
      m_launcherOutput(profile.launcherOutput),
      m_launcherPrefix(profile.launcherPrefix)
{
}

QString TorLog::startupPath() const
{
    return m_runDirectory + QStringLiteral("/start.out");
}

QString TorLog::noticesPath() const
{
    return m_runDirectory + QStringLiteral("/notices.log");
}

QString TorLog::launcherPath() const
{
    return m_runDirectory + u'/' + m_launcherOutput;
}

QString TorLog::signature() const
{
    return fileSignature(startupPath()) + u'|' + fileSignature(noticesPath()) + u'|'
        + fileSignature(launcherPath());
}

TorLog::Snapshot TorLog::read() const
{
    const auto notices = readEnd(noticesPath());
    const auto startup = readEnd(startupPath());
    const auto launcher = readEnd(launcherPath());
    if (!notices && !startup && !launcher) {
        const bool anyFile = exists(startupPath()) || exists(noticesPath())
            || exists(launcherPath());
        return anyFile ? Snapshot::unreadable() : Snapshot();
    }

    // The last lines are kept, so the groups are filled from the last one.
    const auto ofLauncher = lastLines(launcher.value_or(QByteArray()), lineLimit);
    const auto ofNotices = lastLines(notices.value_or(QByteArray()), lineLimit - ofLauncher.size());
    QList<QByteArrayView> ofStartup;
    const qsizetype room = lineLimit - ofLauncher.size() - ofNotices.size();
    if (room > 0) {
        // With room left, `ofNotices` is all of Tor's log.
        const QSet<QByteArrayView> logged(ofNotices.begin(), ofNotices.end());
        ofStartup = lastLines(startup.value_or(QByteArray()), fileLimitBytes);
        ofStartup.removeIf([&logged](QByteArrayView line) { return logged.contains(line); });
        ofStartup = ofStartup.last(std::min(room, ofStartup.size()));
    }

    QList<TorLogLine> lines;
    lines.reserve(ofStartup.size() + ofNotices.size() + ofLauncher.size());
    const auto append = [&lines](const QString &text) {
        lines.append(TorLogLine::parse(text, static_cast<int>(lines.size())));
    };
    const QByteArray prefix = m_launcherPrefix.toUtf8();
    for (const QByteArrayView line : ofStartup)
        append(QString::fromUtf8(line));
    for (const QByteArrayView line : ofNotices)
        append(QString::fromUtf8(line));
    for (const QByteArrayView line : ofLauncher)
        append(QString::fromUtf8(prefix + line.toByteArray()));
    return Snapshot::of(std::move(lines));
}

} // namespace veldmark
