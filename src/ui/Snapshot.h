#pragma once

#include "base/ConnectionPhase.h"
#include "base/RoutingMode.h"
#include "base/Text.h"
#include "bridges/BridgeChoice.h"
#include "bridges/Ladder.h"
#include "bridges/PluggableTransports.h"
#include "checks/DNSStatus.h"
#include "checks/KillSwitch.h"
#include "checks/LeakStatus.h"
#include "checks/Verdict.h"
#include "circuits/CircuitInfo.h"
#include "doctor/Finding.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

// View models turn a Snapshot of the session into texts, colours by meaning and enabled states. QML
// below qml/ lays them out and calls intents. Start here, then read Session, PanelModel and
// qml/panel/Panel.qml.
namespace veldmark {

// The user's choices. A view changes a copy and passes it to Session::store().
struct Choices {
    bool strictMode = true;
    bool allowLocalNetwork = true;
    QString exitCountry;   // two lower-case letters; empty = any
    QString customTorPath; // empty = search the standard places
    BridgeChoice bridgeChoice = BridgeChoice::off;
    QString customBridges; // as the user entered them
    QStringList bypassApps;
    bool autoConnect = false;
    bool optimizeSpeed = false;
    bool terminalMode = false;
    bool separateApps = true;
    Climb climb = Climb::ask;

    friend bool operator==(const Choices &, const Choices &) = default;
};

// Everything that views show, at one moment. A plain value; absent means unknown.
struct Snapshot {
    Choices choices;

    ConnectionPhase phase = ConnectionPhase::disconnected;
    std::optional<RoutingMode> activeMode;
    std::optional<BridgeChoice> activeBridge;
    double bootstrapProgress = 0; // 0…1
    Text statusDetail = Text::tr("Your traffic is not going through Tor");
    std::optional<Text> bootstrapProblem; // why the bootstrap is stuck
    std::vector<LadderStep> ladder;       // what was tried beside the user's choice
    std::optional<Text> climbOffer;       // why bridges are offered
    bool isAnothers = false;              // the session belongs to another process
    int session = 0; // counts the sessions that were shown: another number, another session
    bool hasTorStopped = false; // the session of a stale phase has lost its Tor
    bool canCancel = false;
    std::optional<Text> errorMessage;
    quint64 bytesRead = 0; // since Tor started
    quint64 bytesWritten = 0;

    std::optional<KillSwitch> killSwitch;
    std::optional<QString> exitIP;
    std::optional<bool> torVerified;
    std::optional<TrafficWatch::Stall> stall;
    QStringList firewalls; // those that cause the stall
    LeakStatus leak;
    DNSStatus dns;
    bool isChecking = false;
    std::optional<bool> separated; // each application has circuits of its own
    std::optional<qint64> latencyMs;
    std::optional<Text> optimizeStatus;
    bool isOptimizing = false;

    std::vector<CircuitInfo> circuits;
    std::optional<Text> circuitError;
    PluggableTransports transports;
    std::optional<Text> transportDownload; // progress or result
    bool canDownloadTransports = true;
    QString bundleVersion;           // of the downloaded bundle; empty without one
    bool isBundleSigned = false;     // its signature was verified
    bool canVerifyDownloads = false; // a new download's signature can be verified
    bool passwordlessInstalled = false;
    std::optional<Text> startupError;
    std::optional<Text> terminalError;
    bool terminalInstalled = false; // the shell reads the integration's files
    bool terminalForSsh = false;    // ssh does, too

    std::optional<QString> torPath; // absent: no tor was found
    bool isTorRefused = false;      // the chosen location is no place for one; a connect says why
    bool markerPresent = false;     // the network is set up for Tor
    Findings findings;              // of the last examination
    bool isExamining = false;       // an examination is running
    QString report;                 // the last one made; empty while one is being made
    bool isReporting = false;       // a report is being made
    // The file that the report was saved in, or why it was not.
    std::optional<QString> reportSaved;
    std::optional<Text> reportProblem;
    std::optional<bool> openAtLogin; // absent: this build cannot change it

    // A connect finds a tor, or says what is wrong with its location.
    bool canTryTor() const { return torPath.has_value() || isTorRefused; }
    Verdict verdict() const
    {
        return Verdict::of(
            {.phase = phase,
             .mode = activeMode,
             .killSwitch = killSwitch ? std::optional(killSwitch->state) : std::nullopt,
             .isExposed = leak.isExposed(),
             .isDNSLeaking = dns.isLeak(),
             .torVerified = torVerified,
             .detail = statusDetail,
             .stall = stall,
             .firewalls = firewalls});
    }
};

} // namespace veldmark
