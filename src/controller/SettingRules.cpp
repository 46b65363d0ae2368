#include "controller/SettingRules.h"

#include "platform/PlatformProfile.h"

#include <algorithm>

namespace veldmark::SettingRules {

namespace {

auto refusal(const QString &description)
{
    return Failure(SettingError(SettingError::Kind::Refused, description));
}

template <typename T>
Result<void, SettingError> store(const TorController &controller, Setting<T> &setting, const T &value)
{
    if (const auto locked = lock(controller, setting.key()); locked && setting() != value)
        return refusal(*locked);
    if (const auto problem = setting.set(value))
        return Failure(SettingError(SettingError::Kind::NotDone, *problem));
    return {};
}

} // namespace

QString shown(const QString &text)
{
    constexpr qsizetype limit = 60;
    const QString line = text.simplified();
    return line.size() <= limit ? line : line.left(limit - 1) + u'…';
}

bool isOfConnection(const QString &name)
{
    static const QStringList names = {QStringLiteral("strictMode"),    QStringLiteral("allowLocalNetwork"),
                                      QStringLiteral("exitCountry"),   QStringLiteral("customTorPath"),
                                      QStringLiteral("bridgeChoice"),  QStringLiteral("customBridges"),
                                      QStringLiteral("optimizeSpeed")};
    return names.contains(name);
}

std::optional<QString> lock(const TorController &controller, const QString &name)
{
    if (!controller.optionsLocked() || !isOfConnection(name))
        return std::nullopt;
    return QStringLiteral("\"%1\" holds for the whole connection. Disconnect to change it.").arg(name);
}

std::optional<QString> torPathProblem(const QString &path)
{
    const QString place = path.trimmed();
    if (place.isEmpty() || place.startsWith(u'/'))
        return std::nullopt;
    return QStringLiteral("\"%1\" is no place for Tor: give the whole path, such as /usr/bin/tor.").arg(shown(place));
}

Result<void, SettingError> change(TorController &controller, Setting<bool> &setting, bool value)
{
    return store(controller, setting, value);
}

Result<void, SettingError> change(TorController &controller, Setting<BridgeChoice> &setting, BridgeChoice value)
{
    return store(controller, setting, value);
}

Result<void, SettingError> change(TorController &controller, Setting<QString> &setting, const QString &value)
{
    if (setting.key() == controller.exitCountry.key() && !ExitCountry::isValid(value))
        return refusal(QStringLiteral("\"%1\" is no exit country: two lower-case letters such as \"de\", or nothing "
                                      "for any.").arg(shown(value)));
    if (setting.key() == controller.customTorPath.key()) {
        if (const auto problem = torPathProblem(value))
            return refusal(*problem);
    }
    return store(controller, setting, value);
}

Result<void, SettingError> change(TorController &controller, Setting<QStringList> &setting, const QStringList &value)
{
    const auto odd = std::find_if_not(value.begin(), value.end(), [&controller](const QString &path) {
        return controller.isApplication(path);
    });
    if (odd != value.end())
        return refusal(QStringLiteral("\"%1\" is no application: an absolute path that ends in \"%2\".")
                           .arg(shown(*odd), controller.profile().applicationSuffix));
    return store(controller, setting, controller.sortedByName(value));
}

} // namespace veldmark::SettingRules
