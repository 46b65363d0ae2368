#include "bridges/ReleaseIndex.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace veldmark {

namespace {
constexpr qsizetype versionLimit = 40; // characters
const QString statusPrefix = QStringLiteral("[GNUPG:] ");
} // namespace

std::optional<QString> latestVersion(const QByteArray &json)
{
    static const QRegularExpression pattern(
        QRegularExpression::anchoredPattern(QStringLiteral("[0-9]+(\\.[0-9]+)*[a-z0-9]*")));
    const QString version
        = QJsonDocument::fromJson(json).object().value(QStringLiteral("version")).toString();
    if (version.size() > versionLimit || !pattern.match(version).hasMatch())
        return std::nullopt;
    return version;
}

bool isOlderVersion(const QString &version, const QString &other)
{
    // Groups of digits, then a suffix, which a release does not have.
    static const QRegularExpression parts(
        QStringLiteral("^([0-9]+(?:\\.[0-9]+)*)([a-z]*)([0-9]*)"));
    const auto one = parts.match(version);
    const auto two = parts.match(other);
    if (!one.hasMatch() || !two.hasMatch())
        return false;
    const QStringList groups = one.captured(1).split(u'.');
    const QStringList others = two.captured(1).split(u'.');
    for (qsizetype i = 0; i < std::max(groups.size(), others.size()); ++i) {
        const qulonglong group = groups.value(i).toULongLong();
        const qulonglong otherGroup = others.value(i).toULongLong();
        if (group != otherGroup)
            return group < otherGroup;
    }
    const QString stage = one.captured(2);
    const QString otherStage = two.captured(2);
    if (stage != otherStage)
        return otherStage.isEmpty() || (!stage.isEmpty() && stage < otherStage);
    return one.captured(3).toULongLong() < two.captured(3).toULongLong();
}

std::optional<qint64> signatureTime(const QString &statusLines, const QString &fingerprint)
{
    constexpr qsizetype timeField = 3; // after the keyword, the signing key and the date
    bool isRevoked = false;
    for (const QString &line : statusLines.split(u'\n')) {
        if (!line.startsWith(statusPrefix))
            continue;
        QStringList fields = line.mid(statusPrefix.size()).split(u' ', Qt::SkipEmptyParts);
        for (QString &field : fields)
            field = field.trimmed();
        const QString keyword = fields.value(0);
        // For each signature gpg first reports its status, then VALIDSIG.
        if (keyword == u"NEWSIG" || keyword == u"GOODSIG")
            isRevoked = false;
        else if (keyword == u"REVKEYSIG")
            isRevoked = true;
        else if (keyword == u"VALIDSIG" && !isRevoked && fields.indexOf(fingerprint, 1) > 0)
            return fields.value(timeField).toLongLong();
    }
    return std::nullopt;
}

Text progressText(qint64 receivedBytes, qint64 totalBytes)
{
    const auto megabytes = [](qint64 bytes) {
        return QString::number(static_cast<double>(bytes) / 1e6, 'f', 1);
    };
    if (totalBytes < 1)
        return Text::tr("%1 MB").arg(megabytes(receivedBytes));
    const qint64 percent = std::min(receivedBytes, totalBytes) * 100 / totalBytes;
    return Text::tr("%1 of %2 MB (%3%)")
        .arg(megabytes(receivedBytes), megabytes(totalBytes))
        .arg(percent);
}

} // namespace veldmark
