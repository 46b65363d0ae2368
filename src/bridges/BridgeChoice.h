#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <optional>

namespace veldmark {

// Which bridges Tor uses, as the user chooses.
enum class BridgeChoice {
    off,       // no bridge: Tor connects directly
    obfs4,     // built-in obfs4 bridges, served by lyrebird
    snowflake, // built-in Snowflake bridges
    meek,      // built-in meek bridges, whose transport is called meek_lite
    custom,    // the lines that the user has entered
};

// In a selector's order.
inline constexpr std::array allBridgeChoices = {BridgeChoice::off, BridgeChoice::obfs4,
                                                BridgeChoice::snowflake, BridgeChoice::meek,
                                                BridgeChoice::custom};

// The value in the settings; never translated.
QString rawValue(BridgeChoice choice);
// Absent unless `raw` is exactly one of the five raw values.
std::optional<BridgeChoice> bridgeChoiceFromRawValue(QStringView raw);

// The name in messages: "Off", "obfs4", "Snowflake", "meek", "Custom".
QString displayName(BridgeChoice choice);

// The keys under which PluggableTransports::builtin may hold the bridges of this choice, in the
// order of search; empty for `off` and `custom`. The first key is also the name of the transport
// that those bridges use. meek has several keys, because newer bundles list its bridges under
// "meek" or "meek-azure".
QStringList builtinKeys(BridgeChoice choice);

} // namespace veldmark
