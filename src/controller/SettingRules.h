#pragma once

#include "base/Text.h"
#include "controller/PublishedState.h"
#include "controller/TorController.h"

// What a user may set and when: one rule for every way in, the windows as well as the command line
// and the local socket. What a connection is made with holds until it ends. Main thread.
namespace veldmark::SettingRules {

// Why the setting cannot be changed now, a sentence; absent: it can be.
std::optional<Text> lock(const TorController &controller, const Field &setting);
// Why the text is no place of a tor, a sentence; absent: it may be one.
std::optional<Text> torPathProblem(const QString &path);

// Sets a setting of `controller` where these rules allow it. A value that it has already is never
// refused.
Result<void, SettingError> change(TorController &controller, Setting<bool> &setting, bool value);
Result<void, SettingError> change(TorController &controller, Setting<QString> &setting,
                                  const QString &value);
Result<void, SettingError> change(TorController &controller, Setting<BridgeChoice> &setting,
                                  BridgeChoice value);
Result<void, SettingError> change(TorController &controller, Setting<QStringList> &setting,
                                  const QStringList &value);

} // namespace veldmark::SettingRules
