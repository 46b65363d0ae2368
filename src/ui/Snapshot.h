#pragma once

#include "base/ConnectionPhase.h"
#include "base/RoutingMode.h"
#include "base/Text.h"
#include "bridges/BridgeChoice.h"
#include "bridges/PluggableTransports.h"
#include "checks/DNSStatus.h"
#include "checks/KillSwitch.h"
#include "checks/Verdict.h"
#include "circuits/CircuitInfo.h"
#include "doctor/Finding.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

// The room of what is seen: view models turn a Snapshot of the session into texts, colours by
// meaning and enabled states; QML below qml/ lays them out and calls intents. Start here, then
// Session, PanelModel and qml/panel/Panel.qml.
namespace veldmark {

using Phase = ConnectionPhase;

// What the user has chosen; a view changes a copy and hands it to Session::store().
struct Choices {
    bool strictMode = true;
    bool allowLocalNetwork = true;
    QString exitCountry;   // two lower-case letters; empty = any
    QString customTorPath; // empty = search the standard places
    BridgeChoice bridgeChoice = BridgeChoice::off;
    QString customBridges; // as typed
    QStringList bypassApps;
    bool autoConnect = false;
    bool optimizeSpeed = false;
    bool terminalMode = false;
    bool separateApps = true;

    friend bool operator==(const Choices &, const Choices &) = default;
};

struct Leak {
    enum class Kind { exposed, notTested, checking, blocked, inconclusive };
    Kind kind = Kind::notTested;
    // of `exposed`, and of `checking` after it: the user's own, as the world saw it
    QString address;
};

// Everything that views show, at one moment. A plain value; absent means not known.
struct Snapshot {
    Choices choices;

    Phase phase = Phase::disconnected;
    std::optional<RoutingMode> activeMode;
    std::optional<BridgeChoice> activeBridge;
    double bootstrapProgress = 0; // 0…1
    Text statusDetail = Text::tr("Your traffic is not going through Tor");
    std::optional<Text> bootstrapProblem; // what keeps Tor from connecting
    bool isAnothers = false;              // the session is another process's
    bool hasTorStopped = false; // Tor has ended under the session that a stale phase shows
    bool canCancel = false;
    std::optional<Text> errorMessage;
    quint64 bytesRead = 0; // since Tor started
    quint64 bytesWritten = 0;

    std::optional<KillSwitch> killSwitch;
    std::optional<QString> exitIP;
    std::optional<bool> torVerified;
    std::optional<TrafficWatch::Stall> stall;
    QStringList firewalls; // of the stall, where they are its reason
    Leak leak;
    DNSStatus dns;
    bool isChecking = false;
    std::optional<qint64> latencyMs;
    std::optional<Text> optimizeStatus;
    bool isOptimizing = false;

    std::vector<CircuitInfo> circuits;
    std::optional<Text> circuitError;
    PluggableTransports transports;
    std::optional<Text> transportDownload; // progress or result
    bool canDownloadTransports = true;
    bool passwordlessInstalled = false;
    std::optional<Text> startupError;
    std::optional<Text> terminalError;
    bool terminalInstalled = false; // the shell reads the integration's files
    bool terminalForSsh = false;    // and ssh does

    std::optional<QString> torPath;  // absent: there is no tor to run
    bool markerPresent = false;      // the network is set up for Tor
    Findings findings;               // of the last look at this computer
    bool isExamining = false;        // it is being looked at
    std::optional<bool> openAtLogin; // absent: this build cannot change it

    bool isExposed() const
    {
        return leak.kind == Leak::Kind::exposed
            || (leak.kind == Leak::Kind::checking && !leak.address.isEmpty());
    }
    Verdict verdict() const
    {
        return Verdict::of(
            {.phase = phase,
             .mode = activeMode,
             .killSwitch = killSwitch ? std::optional(killSwitch->state) : std::nullopt,
             .isExposed = isExposed(),
             .isDNSLeaking = dns.isLeak(),
             .torVerified = torVerified,
             .detail = statusDetail,
             .stall = stall,
             .firewalls = firewalls});
    }
};

} // namespace veldmark
