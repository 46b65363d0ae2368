// Tor's log: single lines against the documented pattern, and the merged files. A byte 0xFF
// separates the files.
#include "fuzz/Require.h"

#include "log/TorLog.h"
#include "log/TorLogFilter.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace veldmark;

namespace {

void requireLikePattern(const QString &line)
{
    static const QRegularExpression pattern(
        QStringLiteral(R"(^([A-Z][a-z]{2} +\d{1,2} [0-9:.]+) \[(\w+)\] (.*)$)"),
        QRegularExpression::DotMatchesEverythingOption);
    const TorLogLine read = TorLogLine::parse(line, 0);
    const auto match = pattern.match(line);
    REQUIRE(read.raw == line);
    REQUIRE(read.time.has_value() == match.hasMatch());
    if (match.hasMatch())
        REQUIRE(*read.time == match.captured(1) && read.message == match.captured(3));
    else
        REQUIRE(read.message == line && read.level != TorLogLine::Level::notice);
}

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    REQUIRE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = bytesOf(data, size);
    const QList<QByteArray> files = bytes.split('\xff');
    for (const QByteArray &line : files.constFirst().split('\n'))
        requireLikePattern(QString::fromUtf8(line).remove(u'\r'));

    static const QTemporaryDir folder(QDir::tempPath() + QStringLiteral("/veldmark-fuzz-XXXXXX"));
    static const PlatformProfile profile = PlatformProfile::linux(Places::below(folder.path()));
    static const TorLog log = [] {
        QDir().mkpath(profile.runDirectory);
        return TorLog(profile);
    }();
    write(log.startupPath(), files.value(0));
    write(log.noticesPath(), files.value(1));
    write(log.launcherPath(), files.value(2));
    const TorLog::Snapshot snapshot = log.read();
    REQUIRE(snapshot.kind() != TorLog::Snapshot::Kind::unreadable);
    REQUIRE(snapshot.lines().size() <= TorLog::lineLimit);
    for (int i = 0; i < snapshot.lines().size(); ++i) {
        const TorLogLine &line = snapshot.lines()[i];
        REQUIRE(line.id == i && !line.raw.isEmpty() && !line.raw.contains(u'\n')
                && !line.raw.contains(u'\r'));
    }
    TorLogFilter filter;
    filter.problemsOnly = true;
    REQUIRE(filter.shown(snapshot).size() == TorLogFilter::problemCount(snapshot));
    filter.search = QString::fromUtf8(files.constFirst().left(8));
    filter.placeholder(snapshot, filter.shown(snapshot), log.runDirectory());
    return 0;
}
