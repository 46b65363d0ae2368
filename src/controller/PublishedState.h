#pragma once

#include "base/Result.h"
#include "base/Text.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace veldmark {

class TorController;

// The controller's fields as other programs see them: `veldmarkctl status --json`, the local
// socket, scripts.

// Every published field under its name. And the verdict: "title", "menuBarSymbol", "level", and
// "statusDetail" as far as a known danger is not said instead; "killSwitchSince" goes with
// "killSwitch".
QJsonObject publishedState(const TorController &controller);

// The texts among them, each as Text::toJson(): the state has them in English.
QJsonObject publishedTexts(const TorController &controller);
// `state` with its texts in this program's language, for people.
QJsonObject inUsersLanguage(QJsonObject state, const QJsonObject &texts);

// The fields that a user may set, by name.
QStringList settingNames(const TorController &controller);

// Why setSetting() is not content.
class SettingError {
public:
    enum class Kind {
        Refused, // no such setting, none of its values, or not while connected; nothing has changed
        NotDone, // the setting holds, but could not be saved or not be carried out
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

// Sets the setting `name` from the user's words, as parse() in FieldValue.h knows them.
Result<void, SettingError> setSetting(TorController &controller, const QString &name,
                                      const QString &text);

} // namespace veldmark
