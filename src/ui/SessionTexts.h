#pragma once

#include "ui/Snapshot.h"

// What the session itself says, in the user's language.
namespace veldmark::SessionTexts {

// The session speaks English. A sentence that is known is translated, also one with a number or a
// word of the moment in it; every other one (Tor's own words, for example) stands as it is.
QString translated(const QString &sentence);
// The name of a bridge kind as the panel writes it: "obfs4", "Snowflake", "meek", "Custom".
QString bridgeName(BridgeChoice choice);
// Whether a profile's hint of how to install a program is a command, and not a place to look.
bool isCommand(const QString &installHint);
// The sentence about look-ups in the leak row's help.
QString lookups(const Lookups &lookups);

} // namespace veldmark::SessionTexts
