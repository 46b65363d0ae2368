#include "bridges/TransportFiles.h"

#include "bridges/BridgeLines.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>

namespace veldmark {

QMap<QString, QStringList> bridgesOfTransportConfiguration(const QByteArray &json)
{
    const QJsonValue bridges = QJsonDocument::fromJson(json).object().value(u"bridges");
    if (!bridges.isObject())
        return {};
    QMap<QString, QStringList> result;
    bool hasLine = false;
    const QJsonObject lists = bridges.toObject();
    for (auto list = lists.begin(); list != lists.end(); ++list) {
        if (!list.value().isArray())
            return {};
        QStringList &kept = result[list.key()];
        for (const QJsonValue &entry : list.value().toArray()) {
            if (!entry.isString())
                return {};
            QString line = BridgeLines::normalised(entry.toString());
            if (BridgeLines::isValid(line))
                kept.append(std::move(line));
        }
        hasLine = hasLine || !kept.isEmpty();
    }
    // A file without a usable bridge must not hide another source.
    return hasLine ? result : QMap<QString, QStringList>();
}

QStringList transportsOfPluginLines(const QByteArray &json, const QString &programName)
{
    QStringList transports;
    const QJsonObject lines
        = QJsonDocument::fromJson(json).object().value(u"pluggableTransports").toObject();
    for (const QJsonValue &value : lines) {
        const QStringList words = value.toString().simplified().split(u' ');
        if (words.size() < 4 || words[0] != u"ClientTransportPlugin" || words[2] != u"exec")
            continue;
        const QString name = words[3].section(u'/', -1).section(u'}', -1); // ${pt_path}lyrebird
        if (name == programName)
            transports += words[1].split(u',', Qt::SkipEmptyParts);
    }
    return transports;
}

QMap<QString, QStringList> bridgesOfPreferences(const QString &preferences)
{
    static const QRegularExpression pattern(QStringLiteral(
        R"re(pref\("extensions\.torlauncher\.default_bridge\.[^"]+",\s*"([^"]+)"\))re"));
    QMap<QString, QStringList> result;
    auto matches = pattern.globalMatch(preferences);
    while (matches.hasNext()) {
        const QString line = BridgeLines::normalised(matches.next().capturedView(1));
        if (!BridgeLines::isValid(line))
            continue;
        if (const std::optional<QString> transport = BridgeLines::transport(line))
            result[*transport].append(line);
    }
    return result;
}

} // namespace veldmark
