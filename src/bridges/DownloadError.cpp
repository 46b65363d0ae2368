#include "bridges/DownloadError.h"

namespace veldmark {

namespace {
// What a program wrote on standard error, as a part of one line.
QString oneLine(const QString &detail)
{
    constexpr qsizetype shown = 400;
    const QString line = detail.simplified();
    return line.size() > shown ? line.left(shown) + u'…' : line;
}
} // namespace

DownloadError DownloadError::http(int status, const QString &item)
{
    return {Kind::http, QStringLiteral("Download of %1 failed (HTTP %2).").arg(item).arg(status)};
}

DownloadError DownloadError::badVersion()
{
    return {Kind::badVersion, QStringLiteral("Couldn't read the latest Tor version from torproject.org.")};
}

DownloadError DownloadError::badSignature(const QString &detail)
{
    return {Kind::badSignature,
            QStringLiteral("The download's signature didn't verify, so it was discarded. ") + oneLine(detail)};
}

DownloadError DownloadError::extractFailed(const QString &detail)
{
    return {Kind::extractFailed, QStringLiteral("Couldn't unpack the download. ") + oneLine(detail)};
}

DownloadError DownloadError::olderVersion(const QString &announced, const QString &installed)
{
    return {Kind::rollback, QStringLiteral("Version %1 is offered, which is older than the installed %2. Nothing was changed.")
                                .arg(announced, oneLine(installed))};
}

DownloadError DownloadError::otherContent(const QString &announced)
{
    return {Kind::rollback,
            QStringLiteral("What came as version %1 is another one, so it was discarded.").arg(announced)};
}

DownloadError DownloadError::other(QString text)
{
    return {Kind::other, oneLine(text)};
}

} // namespace veldmark
