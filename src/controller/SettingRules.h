#pragma once

#include "base/Text.h"
#include "controller/PublishedState.h"
#include "controller/TorController.h"

// What a user may set and when. The rules hold for the windows, the command line and the local
// socket alike. The settings that make a connection are locked until it ends. Main thread.
namespace veldmark::SettingRules {

// Why the setting cannot be changed now, as a sentence; absent when it can.
std::optional<Text> lock(const TorController &controller, const Field &setting);
// Why the text cannot be the path of a tor, as a sentence; absent when it can.
std::optional<Text> torPathProblem(const QString &path);

// Sets a setting of `controller` if these rules allow it. Setting the present value again is never
// refused.
Result<void, SettingError> change(TorController &controller, Setting<bool> &setting, bool value);
Result<void, SettingError> change(TorController &controller, Setting<QString> &setting,
                                  const QString &value);
Result<void, SettingError> change(TorController &controller, Setting<BridgeChoice> &setting,
                                  BridgeChoice value);
Result<void, SettingError> change(TorController &controller, Setting<Climb> &setting, Climb value);
Result<void, SettingError> change(TorController &controller, Setting<QStringList> &setting,
                                  const QStringList &value);

} // namespace veldmark::SettingRules
