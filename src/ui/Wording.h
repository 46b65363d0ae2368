#pragma once

#include "base/Text.h"
#include "bridges/BridgeChoice.h"

#include <optional>

// The wording of what view models show.
namespace veldmark {

// The text in the user's language; empty without a text.
inline QString shown(const std::optional<Text> &text)
{
    return text ? text->translated() : QString();
}
// Keeps a path or a command together, read from the left, inside text that is read from the right.
QString fromTheLeft(const QString &words);
// The panel's name of a bridge kind: "obfs4", "Snowflake", "meek", "Custom".
QString shownName(BridgeChoice choice);
// Whether a profile's hint for installing a program is a command rather than a place to look.
bool isCommand(const QString &installHint);
// The hint within a sentence: "Install it with …".
QString shownHint(const QString &installHint);

} // namespace veldmark
