#pragma once

#include "base/Text.h"

#include <QByteArray>
#include <QString>

#include <optional>

// Parses the output of the Tor Project's update server and of GnuPG. Pure functions; the input is
// not trusted.
namespace veldmark {

// The "version" of a downloads.json, for example 14.0.4. Absent when the text is no JSON object or
// the member is no version. A version becomes part of addresses and file names, so its form is
// strict: groups of digits separated by points, then optional lower-case letters and digits,
// limited in length.
std::optional<QString> latestVersion(const QByteArray &json);

// Whether the first of two such versions is older. An alpha ("14.0a1") comes before its release
// ("14.0").
bool isOlderVersion(const QString &version, const QString &other);

// When the archive was signed, in seconds since 1970, if gpg's --status-fd output says that the
// signature is valid and made by the key with this fingerprint or by a subkey of it; 0 when gpg
// does not tell the time. A signature by a revoked key does not count.
std::optional<qint64> signatureTime(const QString &statusLines, const QString &fingerprint);

// The progress of a download: "12.3 of 30.1 MB (40%)", or "12.3 MB" when the total size is unknown
// (totalBytes < 1). Decimal megabytes.
Text progressText(qint64 receivedBytes, qint64 totalBytes);

} // namespace veldmark
