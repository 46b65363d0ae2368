#pragma once

#include "base/Result.h"
#include "base/Text.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace veldmark {

class TorController;

// The controller's fields for other programs: `veldmarkctl status --json`, the local socket,
// scripts.

// Every published field under its name. The verdict adds "title", "menuBarSymbol" and "level", and
// replaces "statusDetail" by a known danger. "killSwitchSince" goes with "killSwitch",
// "phaseChanges" ([{"phase": …, "at": …}]) with "phase".
QJsonObject publishedState(const TorController &controller);

// The state's texts, each as Text::toJson(). The state itself has them in English.
QJsonObject publishedTexts(const TorController &controller);
// `state` with its texts in this program's language, for people.
QJsonObject inUsersLanguage(QJsonObject state, const QJsonObject &texts);

// The names of the fields that a user may set.
QStringList settingNames(const TorController &controller);

// Why setSetting() failed.
class SettingError {
public:
    enum class Kind {
        Refused, // no such setting or value, or locked while connected; nothing has changed
        NotDone, // the setting holds, but could not be saved or carried out
    };
    SettingError(Kind kind, Text description) : m_kind(kind), m_description(std::move(description))
    {
    }

    Kind kind() const { return m_kind; }
    Text description() const { return m_description; } // one line

private:
    Kind m_kind;
    Text m_description;
};

// Sets the setting `name` from the user's words, in the form of parse() in FieldValue.h.
Result<void, SettingError> setSetting(TorController &controller, const QString &name,
                                      const QString &text);

} // namespace veldmark
