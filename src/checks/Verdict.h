#pragma once

#include "base/ConnectionPhase.h"
#include "base/RoutingMode.h"
#include "base/Text.h"
#include "checks/KillSwitch.h"
#include "checks/TrafficWatch.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace veldmark {

// The facts about a session that decide how safe it is.
struct SessionFacts {
    ConnectionPhase phase = ConnectionPhase::disconnected;
    std::optional<RoutingMode> mode = {};
    std::optional<KillSwitch::State> killSwitch = {}; // absent: no report, or no kill switch
    // the last direct probe showed the user's own address
    bool isExposed = false;
    bool isDNSLeaking = false;
    std::optional<bool> torVerified = {}; // absent: not checked yet
    Text detail = {};                     // the line under the title when there is no danger
    // absent: traffic gets through, as far as known
    std::optional<TrafficWatch::Stall> stall = {};
    QStringList firewalls = {}; // for Stall::firewall: names of the firewalls
};

// How safe the session is. Title, symbol, line and colour of every window, the tray, the
// notifications, the command line and the published state come from here. A known danger comes
// first. `good` requires a strict session whose rules were seen in the kernel, a confirmed exit and
// no known leak. Proxy mode is never called protected, because applications that ignore the proxy
// settings are not covered.
struct Verdict {
    enum class Level { neutral, working, good, info, warning, danger };
    // The worst known danger.
    enum class Danger {
        none,
        exitNotConfirmed,
        stalled, // no traffic gets through Tor
        killSwitchUnknown,
        leftOver, // the network is still set up for Tor, without a session
        exposed,  // in strict mode
        dnsLeak,
        killSwitchOpen,
    };

    Level level = Level::neutral;
    Danger danger = Danger::none;
    Text title;
    QString symbol;
    Text detail;

    static Verdict of(const SessionFacts &facts);
    QString levelName() const; // "neutral", "working" …

    friend bool operator==(const Verdict &, const Verdict &) = default;
};

} // namespace veldmark
