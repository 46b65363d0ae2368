#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <optional>

namespace veldmark {

// Which bridges the user wants Tor to enter the network through.
enum class BridgeChoice {
    off,       // none: Tor connects directly
    obfs4,     // built-in obfs4 bridges, served by lyrebird
    snowflake, // built-in Snowflake bridges
    meek,      // built-in meek bridges, whose transport is called meek_lite
    custom,    // the lines that the user has pasted
};

// In the order in which a selector lists them.
inline constexpr std::array allBridgeChoices = {BridgeChoice::off, BridgeChoice::obfs4,
                                                BridgeChoice::snowflake, BridgeChoice::meek,
                                                BridgeChoice::custom};

// What the settings store; never translated.
QString rawValue(BridgeChoice choice);
// Nothing unless `raw` is exactly one of the five raw values.
std::optional<BridgeChoice> bridgeChoiceFromRawValue(QStringView raw);

// The name in messages: "Off", "obfs4", "Snowflake", "meek", "Custom".
QString displayName(BridgeChoice choice);

// The keys under which PluggableTransports::builtin may hold the bridges of this choice, in the
// order of search; empty for `off` and `custom`. The first is also the name of the transport that
// those bridges use. meek has more than one because newer bundles file its bridges under "meek"
// or "meek-azure".
QStringList builtinKeys(BridgeChoice choice);

} // namespace veldmark
