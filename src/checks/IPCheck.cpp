#include "checks/IPCheck.h"

#include <QHostAddress>
#include <QJsonDocument>
#include <QJsonObject>

namespace veldmark {

namespace {
auto unusable(const QString &detail)
{
    return Failure(ProbeError{ProbeError::Kind::badResponse, detail, true});
}
} // namespace

Result<IPCheck, ProbeError> IPCheck::fromJson(const QByteArray &body)
{
    if (body.size() > sizeLimitBytes)
        return unusable(QStringLiteral("The answer is too long."));
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(body, &error);
    if (!document.isObject())
        return unusable(QStringLiteral("The answer is no JSON object: ") + error.errorString());
    const QJsonObject object = document.object();
    const QJsonValue isTor = object.value(QStringLiteral("IsTor"));
    const QJsonValue ip = object.value(QStringLiteral("IP"));
    if (!isTor.isBool() || !ip.isString())
        return unusable(QStringLiteral("The answer has no \"IsTor\" and \"IP\"."));
    // The address is shown to the user; nothing else may come in by this door.
    if (QHostAddress(ip.toString()).isNull())
        return unusable(QStringLiteral("The answer's \"IP\" is no address."));
    return IPCheck{isTor.toBool(), ip.toString()};
}

} // namespace veldmark
