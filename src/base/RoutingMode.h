#pragma once

#include <QString>

#include <optional>

namespace veldmark {

// How the computer's traffic goes through Tor.
enum class RoutingMode {
    proxy,  // the system's proxy settings point at Tor; programs that ignore them connect directly
    strict, // a firewall lets only Tor's traffic out
};

// The word that the settings, the session marker and the helper use.
inline QString rawValue(RoutingMode mode)
{
    return mode == RoutingMode::strict ? QStringLiteral("strict") : QStringLiteral("proxy");
}

// Absent for any other text; the comparison is exact.
inline std::optional<RoutingMode> routingModeFromRawValue(QStringView text)
{
    if (text == u"proxy")
        return RoutingMode::proxy;
    if (text == u"strict")
        return RoutingMode::strict;
    return std::nullopt;
}

} // namespace veldmark
