#include "bridges/ReleaseIndex.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace veldmark {

namespace {
constexpr qsizetype versionLimit = 40; // characters
const QString statusPrefix = QStringLiteral("[GNUPG:] ");
} // namespace

std::optional<QString> latestVersion(const QByteArray &json)
{
    static const QRegularExpression pattern(
        QRegularExpression::anchoredPattern(QStringLiteral("[0-9]+(\\.[0-9]+)*[a-z0-9]*")));
    const QString version =
        QJsonDocument::fromJson(json).object().value(QStringLiteral("version")).toString();
    if (version.size() > versionLimit || !pattern.match(version).hasMatch())
        return std::nullopt;
    return version;
}

bool isSignedBy(const QString &statusLines, const QString &fingerprint)
{
    bool isRevoked = false;
    for (const QString &line : statusLines.split(u'\n')) {
        if (!line.startsWith(statusPrefix))
            continue;
        QStringList fields = line.mid(statusPrefix.size()).split(u' ', Qt::SkipEmptyParts);
        for (QString &field : fields)
            field = field.trimmed();
        const QString keyword = fields.value(0);
        // For each signature gpg first says how good it is, then VALIDSIG.
        if (keyword == u"NEWSIG" || keyword == u"GOODSIG")
            isRevoked = false;
        else if (keyword == u"REVKEYSIG")
            isRevoked = true;
        else if (keyword == u"VALIDSIG" && !isRevoked && fields.indexOf(fingerprint, 1) > 0)
            return true;
    }
    return false;
}

QString progressText(qint64 receivedBytes, qint64 totalBytes)
{
    const auto megabytes = [](qint64 bytes) {
        return QString::number(static_cast<double>(bytes) / 1e6, 'f', 1);
    };
    if (totalBytes < 1)
        return megabytes(receivedBytes) + QStringLiteral(" MB");
    const qint64 percent = std::min(receivedBytes, totalBytes) * 100 / totalBytes;
    return QStringLiteral("%1 of %2 MB (%3%)")
        .arg(megabytes(receivedBytes), megabytes(totalBytes)).arg(percent);
}

} // namespace veldmark
