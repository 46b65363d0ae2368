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

// What is known of a session, as far as it decides how safe it is.
struct SessionFacts {
    ConnectionPhase phase = ConnectionPhase::disconnected;
    std::optional<RoutingMode> mode = {};
    std::optional<KillSwitch::State> killSwitch = {}; // absent: nobody has looked, or there is none
    // the last direct probe showed the user's own address
    bool isExposed = false;
    bool isDNSLeaking = false;
    std::optional<bool> torVerified = {}; // absent: not checked yet
    Text detail = {};                     // the line under the title where no danger is known
    // absent: something gets through, as far as is known
    std::optional<TrafficWatch::Stall> stall = {};
    QStringList firewalls = {}; // of Stall::firewall, by name
};

// How safe the session is, in one place: title, symbol, line and colour of every window, the tray,
// the notifications, the command line and the published state come from here. A known danger comes
// before everything else. `good` is only a strict session whose rules were seen in the kernel and
// whose exit was confirmed, without a known leak; proxy mode is never called protected, since
// applications that ignore the proxy settings are not covered.
struct Verdict {
    enum class Level { neutral, working, good, info, warning, danger };
    // The worst of what is known.
    enum class Danger {
        none,
        exitNotConfirmed,
        stalled, // nothing gets through Tor
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
