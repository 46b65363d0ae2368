#include "bridges/DownloadError.h"

namespace veldmark {

namespace {
// A program's error output, made fit for one line.
Text oneLine(const Text &text)
{
    if (!text.isWords())
        return text;
    const QString detail = text.english();
    constexpr qsizetype shown = 400;
    const QString line = detail.simplified();
    return line.size() > shown ? line.left(shown) + u'…' : line;
}
} // namespace

DownloadError DownloadError::http(int status, const Text &item)
{
    return {Kind::http, Text::tr("Download of %1 failed (HTTP %2).").arg(item).arg(status)};
}

DownloadError DownloadError::badVersion()
{
    return {Kind::badVersion,
            Text::tr("Couldn't read the latest Tor version from torproject.org.")};
}

DownloadError DownloadError::badSignature(const Text &detail)
{
    return {Kind::badSignature,
            Text::tr("The download's signature didn't verify, so it was discarded. %1")
                .arg(oneLine(detail))};
}

DownloadError DownloadError::extractFailed(const Text &detail)
{
    return {Kind::extractFailed, Text::tr("Couldn't unpack the download. %1").arg(oneLine(detail))};
}

DownloadError DownloadError::olderVersion(const QString &announced, const QString &installed)
{
    return {Kind::rollback,
            Text::tr(
                "Version %1 is offered, which is older than the installed %2. Nothing was changed.")
                .arg(announced, oneLine(installed))};
}

DownloadError DownloadError::otherContent(const QString &announced)
{
    return {Kind::rollback,
            Text::tr("The download of version %1 contains another version, so it was discarded.")
                .arg(announced)};
}

DownloadError DownloadError::cancelled()
{
    return {Kind::other, Text::tr("Cancelled.")};
}

DownloadError DownloadError::other(const Text &text)
{
    return {Kind::other, oneLine(text)};
}

} // namespace veldmark
