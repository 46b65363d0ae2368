#include "checks/IPCheck.h"

#include <QHostAddress>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace veldmark {

namespace {
auto unusable(const QString &detail)
{
    return Failure(ProbeError{ProbeError::Kind::badResponse, detail, true});
}

constexpr qsizetype addressLimit = 45; // length of the longest address

// QHostAddress alone would also accept text after a "%" or a NUL, and any number of leading zeros.
bool isAddress(const QString &text)
{
    const bool isPlain = std::all_of(text.begin(), text.end(), [](QChar c) {
        return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F')
            || c == u'.' || c == u':';
    });
    return isPlain && text.size() <= addressLimit && !QHostAddress(text).isNull();
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
    // The user sees the address, so no other text may pass.
    if (!isAddress(ip.toString()))
        return unusable(QStringLiteral("The answer's \"IP\" is no address."));
    return IPCheck{isTor.toBool(), ip.toString()};
}

} // namespace veldmark
