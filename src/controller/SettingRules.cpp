#include "controller/SettingRules.h"

#include "base/ExitCountry.h"
#include "base/OneLine.h"
#include "platform/PlatformProfile.h"

#include <algorithm>

namespace veldmark::SettingRules {

namespace {

auto refusal(const Text &description)
{
    return Failure(SettingError(SettingError::Kind::Refused, description));
}

template <typename T>
Result<void, SettingError> store(const TorController &controller, Setting<T> &setting,
                                 const T &value)
{
    if (const auto locked = lock(controller, setting); locked && setting() != value)
        return refusal(*locked);
    if (const auto problem = setting.set(value))
        return Failure(SettingError(SettingError::Kind::NotDone, *problem));
    return {};
}

} // namespace

std::optional<Text> lock(const TorController &controller, const Field &setting)
{
    if (!locksOptions(controller.phase()) || !setting.setting()->isOfConnection)
        return std::nullopt;
    return Text::tr("\"%1\" can't be changed during a connection. Disconnect to change it.")
        .arg(setting.name());
}

std::optional<Text> torPathProblem(const QString &path)
{
    const QString place = path.trimmed();
    if (place.isEmpty() || place.startsWith(u'/'))
        return std::nullopt;
    return Text::tr("\"%1\" is not a location of Tor. Give an absolute path, such as /usr/bin/tor.")
        .arg(inOneLine(place));
}

Result<void, SettingError> change(TorController &controller, Setting<bool> &setting, bool value)
{
    if (&setting == &controller.terminalMode) {
        const auto problem = controller.setTerminalMode(value);
        if (const auto told = problem ? problem : controller.terminalError())
            return Failure(SettingError(SettingError::Kind::NotDone, *told));
        return {};
    }
    return store(controller, setting, value);
}

Result<void, SettingError> change(TorController &controller, Setting<BridgeChoice> &setting,
                                  BridgeChoice value)
{
    return store(controller, setting, value);
}

Result<void, SettingError> change(TorController &controller, Setting<Climb> &setting, Climb value)
{
    return store(controller, setting, value);
}

Result<void, SettingError> change(TorController &controller, Setting<QString> &setting,
                                  const QString &value)
{
    if (&setting == &controller.exitCountry && !ExitCountry::isValid(value))
        return refusal(
            Text::tr(
                "\"%1\" is not an exit country: two lower-case letters such as \"de\", or nothing for any.")
                .arg(inOneLine(value)));
    if (&setting == &controller.customTorPath) {
        if (const auto problem = torPathProblem(value))
            return refusal(*problem);
    }
    return store(controller, setting, value);
}

Result<void, SettingError> change(TorController &controller, Setting<QStringList> &setting,
                                  const QStringList &value)
{
    const auto odd = std::find_if_not(
        value.begin(), value.end(),
        [&controller](const QString &path) { return controller.isApplication(path); });
    if (odd != value.end())
        return refusal(
            Text::tr("\"%1\" is not an application: an absolute path that ends in \"%2\".")
                .arg(inOneLine(*odd), controller.profile().applicationSuffix));
    return store(controller, setting, controller.sortedByName(value));
}

} // namespace veldmark::SettingRules
