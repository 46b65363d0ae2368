#pragma once

#include "base/Text.h"
#include "bridges/BridgeChoice.h"

#include <optional>

// How view models word what they show.
namespace veldmark {

// In the user's language; empty without a text.
inline QString shown(const std::optional<Text> &text)
{
    return text ? text->translated() : QString();
}
// A path or a command that stays in one piece, read from the left, where the words around it are
// read from the right.
QString fromTheLeft(const QString &words);
// The name of a bridge kind as the panel writes it: "obfs4", "Snowflake", "meek", "Custom".
QString shownName(BridgeChoice choice);
// Whether a profile's hint of how to install a program is a command, and not a place to look.
bool isCommand(const QString &installHint);
// The hint within a sentence: "Install it with …".
QString shownHint(const QString &installHint);

} // namespace veldmark
