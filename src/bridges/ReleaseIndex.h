#pragma once

#include "base/Text.h"

#include <QByteArray>
#include <QString>

#include <optional>

// What the Tor Project's update server and GnuPG say, read: pure functions over their output, which
// is not trusted.
namespace veldmark {

// The "version" of a downloads.json, for example 14.0.4. Nothing when the text is no JSON object or
// that member is not a version. A version becomes part of addresses and file names: it is digits in
// groups parted by points, then perhaps lower-case letters and digits, and never long.
std::optional<QString> latestVersion(const QByteArray &json);

// Whether the first of two such versions is the older. An alpha ("14.0a1") comes before its release
// ("14.0").
bool isOlderVersion(const QString &version, const QString &other);

// When the archive was signed, in seconds since 1970, if what gpg wrote for --status-fd says that
// its signature is valid and was made by the key with this fingerprint or by a subkey of it; 0 when
// gpg does not tell the time. A signature by a key that its owner has revoked does not count.
std::optional<qint64> signatureTime(const QString &statusLines, const QString &fingerprint);

// What is shown of a download under way: "12.3 of 30.1 MB (40%)", or "12.3 MB" when the whole size
// is not known (totalBytes < 1). Decimal megabytes.
Text progressText(qint64 receivedBytes, qint64 totalBytes);

} // namespace veldmark
