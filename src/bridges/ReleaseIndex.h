#pragma once

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

// Whether what gpg wrote for --status-fd says that the archive's signature is valid and was made by
// the key with this fingerprint or by a subkey of it. A signature by a key that its owner has
// revoked does not count.
bool isSignedBy(const QString &statusLines, const QString &fingerprint);

// What is shown of a download under way: "12.3 of 30.1 MB (40%)", or "12.3 MB" when the whole size
// is not known (totalBytes < 1). Decimal megabytes.
QString progressText(qint64 receivedBytes, qint64 totalBytes);

} // namespace veldmark
