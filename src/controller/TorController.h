#pragma once

#include "bridges/BridgeChoice.h"
#include "bridges/BridgePlan.h"
#include "bridges/PluggableTransports.h"
#include "bridges/TransportDownloader.h"
#include "checks/DNSStatus.h"
#include "checks/KillSwitch.h"
#include "checks/LeakStatus.h"
#include "checks/NetworkRoute.h"
#include "checks/OwnAddresses.h"
#include "checks/TrafficWatch.h"
#include "checks/Verdict.h"
#include "circuits/CircuitTable.h"
#include "controller/Published.h"
#include "controller/SessionTypes.h"

#include "base/Clock.h"
#include "base/ConnectionPhase.h"
#include "base/Result.h"
#include "base/ResumeOnce.h"
#include "base/RoutingMode.h"
#include "base/Text.h"
#include "system/HelperError.h"
#include "system/ProgramApproval.h"
#include "system/SessionMark.h"
#include "system/SessionOwner.h"

#include <QObject>
#include <QStringList>

#include <qcorotask.h>

#include <chrono>
#include <functional>
#include <optional>

namespace veldmark {

class ControlPort;
class ControlPortError;
class NetworkProbe;
class PrivilegedRunner;
class ProcessRunner;
class ResolverSource;
class RunningApplications;
class TerminalIntegration;
struct PlatformProfile;
struct TerminalError;

// A bootstrap report of Tor's, as much of it as is shown.
struct BootstrapStatus {
    int progress = 0; // per cent
    QString summary;  // Tor's own words; empty when the report has none
    Text warning;     // what is in Tor's way, a sentence; empty when Tor warns of nothing
};

// The one object that holds what the program knows: the user's settings, the session with Tor, and
// the results of the checks. Views read its fields and call its operations; only the operations
// write state. It lives, and is used, on the main thread alone.
//
// The operations are coroutines that suspend while they wait; each has its own source file
// (Connect.cpp, Disconnect.cpp, Monitoring.cpp, …). They report through the fields, never by a
// result. Whether the network is set up for Tor is not this object's memory to tell but the
// helper's session marker: `isSessionMarkerPresent()`.
class TorController : public FieldOwner {
    Q_OBJECT

public:
    // What the controller needs from outside. Everything must outlive the controller.
    struct Services {
        const PlatformProfile &profile;
        SettingsStore &settings;
        Clock &clock;
        ProcessRunner &processes;
        PrivilegedRunner &privileged;
        ControlPort &controlPort;
        NetworkProbe &probe;
        ResolverSource &resolvers;
        TerminalIntegration &terminal;
        RunningApplications &applications;
        std::function<QCoro::Task<PluggableTransports>()> locateTransports;
        BridgeProbe bridgeProbe;
        // TransportDownloader::install(); without it downloadTransports() does nothing.
        std::function<QCoro::Task<TransportDownloader::Outcome>(
            bool throughTor, TransportDownloader::Progress progress)>
            installTransports = {};
        // TransportDownloader::cancel().
        std::function<void()> cancelTransports = {};
        // As locateTransports, without waiting for what programs say of themselves; for connect().
        // Without it locateTransports is used.
        std::function<QCoro::Task<PluggableTransports>()> locateWithoutAsking = {};
        std::function<QSet<QHostAddress>()> ownAddresses = OwnAddresses::present;
        std::function<std::optional<NetworkRoute>()> route = NetworkRoute::present;
        // ProgramApproval::missing(), for the words of a connect. Without it nothing is ever to be
        // approved.
        std::function<std::vector<ProgramApproval>(const QStringList &words)> missingApprovals = {};
        // ProgramApproval::named(), likewise.
        std::function<std::vector<ProgramApproval>(const QStringList &words)> namedPrograms = {};
    };

    // Registers the settings' defaults, reads the settings, and starts looking for transports
    // (off the main thread; `transports` is set when they are found).
    explicit TorController(const Services &services, QObject *parent = nullptr);
    ~TorController() override;

    // --- The user's settings; each `set` is stored at once. ---
    Setting<bool> strictMode{this, "strictMode", Scope::connection,
                             Text::tr("the kill switch, else proxy mode"), true};
    Setting<bool> allowLocalNetwork{this, "allowLocalNetwork", Scope::connection,
                                    Text::tr("strict mode lets the local network through"), true};
    Setting<bool> separateApps{this, "separateApps", Scope::connection,
                               Text::tr("each application has circuits of its own"), true};
    Setting<QString> exitCountry{this, "exitCountry", Scope::connection,
                                 Text::tr("two lower-case letters, or nothing for any"), QString()};
    Setting<QString> customTorPath{this, "customTorPath", Scope::connection,
                                   Text::tr("the tor to use, or nothing to search for it"),
                                   QString()};
    Setting<BridgeChoice> bridgeChoice{this, "bridgeChoice", Scope::connection,
                                       Text::tr("which bridges"), BridgeChoice::off};
    Setting<QString> customBridges{this, "customBridges", Scope::connection,
                                   Text::tr("your own bridge lines, as typed"), QString()};
    Setting<QStringList> bypassApps{
        this, "bypassApps", Scope::always,
        Text::tr("paths of applications that may be opened without Tor")};
    Setting<bool> autoConnect{this, "autoConnect", Scope::always,
                              Text::tr("connect when Veldmark starts")};
    Setting<bool> optimizeSpeed{
        this, "optimizeSpeed", Scope::connection,
        Text::tr("test bridges before connecting, look for a faster path afterwards")};
    Setting<bool> terminalMode{this, "terminalMode", Scope::always,
                               Text::tr("command-line tools go through Tor while connected"),
                               false};

    // --- The session. ---
    Published<ConnectionPhase> phase{this, "phase", ConnectionPhase::disconnected};
    Published<std::optional<RoutingMode>> activeMode{this, "activeMode"}; // absent when no session
    Published<std::optional<BridgeChoice>> activeBridge{this, "activeBridge"};
    Published<double> bootstrapProgress{this, "bootstrapProgress"}; // 0…1
    // the line under the title
    Published<Text> statusDetail{this, "statusDetail",
                                 Text::tr("Your traffic is not going through Tor")};
    // What keeps Tor from connecting, by its own report and log, in a sentence; absent when Tor
    // knows of nothing. Stays after a bootstrap that failed, until the next attempt or the restore.
    Published<std::optional<Text>> bootstrapProblem{this, "bootstrapProblem"};
    // Whose the session is that a stale phase shows, while another process that made it still runs.
    Published<std::optional<SessionOwner>> otherSession{this, "otherSession"};
    // a connect attempt may be ended by disconnect()
    Published<bool> canCancel{this, "canCancel"};
    // The banner; absent = none. An operation that may set it takes back what stood there before,
    // except a restore that did not happen: then the reason for restoring is still true.
    Published<std::optional<Text>> errorMessage{this, "errorMessage"};
    Published<quint64> bytesRead{this, "bytesRead"}; // since Tor started
    Published<quint64> bytesWritten{this, "bytesWritten"};
    // Why nothing gets through Tor at the moment, although it counts as connected; absent while
    // something does.
    Published<std::optional<TrafficWatch::Stall>> stall{this, "stall"};
    // Of the stall "firewall": the names of those that deny what goes out; else empty.
    Published<QStringList> denyingFirewalls{this, "denyingFirewalls"};

    // --- The checks. ---
    // What the watcher over the rules has last seen in the kernel; absent without a strict session.
    // Read in every phase but `disconnected` and `disconnecting`, also when Tor is dead, and before
    // anything is said to be blocked.
    Published<std::optional<KillSwitch>> killSwitch{this, "killSwitch"};
    Published<std::optional<QString>> exitIP{this, "exitIP"};
    Published<std::optional<bool>> torVerified{this, "torVerified"}; // absent = not checked yet
    Published<LeakStatus> leakStatus{this, "leakStatus", LeakStatus::notTested()};
    Published<DNSStatus> dnsStatus{this, "dnsStatus", DNSStatus::unknown()};
    Published<bool> isChecking{this, "isChecking"};
    // of a request through Tor, milliseconds
    Published<std::optional<qint64>> latencyMs{this, "latencyMs"};
    Published<std::optional<Text>> optimizeStatus{this, "optimizeStatus"};
    Published<bool> isOptimizing{this, "isOptimizing"};

    // --- Circuits, transports, and the settings' own messages. ---
    Published<std::vector<CircuitInfo>> circuits{this, "circuits"};
    Published<std::optional<Text>> circuitError{this, "circuitError"};
    Published<PluggableTransports> transports{this, "transports"};
    Published<std::optional<Text>> transportDownload{this, "transportDownload"};
    Published<bool> passwordlessInstalled{this, "passwordlessInstalled"};
    Published<std::optional<Text>> startupError{this, "startupError"};
    Published<std::optional<Text>> terminalError{this, "terminalError"};
    // What to install so that ssh goes through Tor in terminal mode; absent when it does, when the
    // mode is off, and while programs are still being asked.
    Published<std::optional<Text>> terminalHint{this, "terminalHint"};
    // What is wrong with the settings' file, a sentence each, the oldest first; until its reader
    // has dismissed it.
    Published<QList<Text>> settingsProblems{this, "settingsProblems"};

    // --- Derived from the fields. ---
    Verdict verdict() const; // how safe all this is; what every surface shows
    Text title() const { return verdict().title; }
    QString menuBarSymbol() const { return verdict().symbol; }
    bool optionsLocked() const;
    bool canDownloadTransports() const;
    bool canLaunchBypassed() const;
    bool isSessionMarkerPresent() const;
    // The executable to use: the custom path, then the standard places; absent when none is
    // executable. Asks the file system.
    std::optional<QString> torPath() const;
    const PlatformProfile &profile() const { return m_services.profile; }

    // --- Operations: session. ---
    // From `disconnected` or `stale` to `connected`; in any other phase does nothing.
    QCoro::Task<void> connect();
    // Restores the network. Accepted when connected, stale, or connecting with `canCancel`. When
    // the helper fails, a session that was up is so again as long as the marker says so too. The
    // error is a sentence; empty when the user dismissed the prompt, or when it was not accepted or
    // not waited for. A session by which another process has replaced this one's is not ended by
    // the first call, which shows it instead.
    QCoro::Task<Result<void, Text>> disconnect();
    // At start-up, before anything shows state: finds a session left from an earlier run.
    void detectStaleState();
    // When another process may have made, replaced or ended the computer's session: shows what is
    // so now. Does nothing while a session of this object's is being made or goes, nor while its
    // own stands unreplaced.
    void lookAtSession();
    // At start-up: connects when the user wants it, nothing is left over and tor is there.
    QCoro::Task<void> autoConnectIfEnabled();

    // --- Operations: checks and circuits; each does nothing unless connected. ---
    QCoro::Task<void> runChecks();
    QCoro::Task<void> checkDNS(bool live);
    // Calls that come while one is under way share its run, and its prompt.
    QCoro::Task<void> fixDNS();
    QCoro::Task<void> refreshCircuits();
    QCoro::Task<void> newIdentity();
    QCoro::Task<void> newCircuit(QString id);
    QCoro::Task<void> optimizeCircuits();
    // The computer was asleep: what was verified is no longer known, and Tor's connections may hang
    // without a word.
    void wake();

    // What the last operation that failed has said, without what is told of the kill switch and of
    // Tor's own network.
    std::optional<Text> failure() const;
    // What goes behind the banner: what kept Tor from connecting, where the banner says that it
    // didn't.
    std::optional<Text> problemBehindError() const
    {
        return errorMessage() && errorMessage() == m_bootstrapFailure ? bootstrapProblem()
                                                                      : std::nullopt;
    }
    // Whether the session that a stale phase shows is this object's, and its Tor has ended.
    bool hasTorStopped() const { return m_torStopped; }
    // The user has read the banner.
    void dismissError() { errorMessage = std::nullopt; }
    // Shows what went wrong outside the controller as the banner.
    void showProblem(const Text &problem) override { errorMessage = problem; }
    // Takes over what the settings' store has to tell.
    void readSettingsProblems();
    // The user has read the oldest of them.
    void dismissSettingsProblem() { settingsProblems = settingsProblems().mid(1); }

    // --- Operations: transports. ---
    // Searches the computer afresh and sets `transports`, unless a search that began later has done
    // so.
    QCoro::Task<void> locateTransports();
    // Fetches and installs the Tor Project's bundle of transport programs, through Tor while
    // connected. A connect() ends a direct download; it begins again when the connection stands or
    // has failed. Does nothing unless canDownloadTransports(). `transportDownload` tells how it
    // goes and keeps the last word until the next download; it is absent when all went well. True
    // when a bundle was installed, whatever else there is to say about it.
    QCoro::Task<bool> downloadTransports();

    // --- Operations: applications without Tor; paths as `bypassApps` holds them. ---
    // Whether it can be one: an absolute path that ends like this system's applications.
    bool isApplication(const QString &path) const;
    // The order of `bypassApps`: by displayed name, each once.
    QStringList sortedByName(QStringList applications) const;
    // Ignores what is no application of this system, and what is listed already.
    void addBypassApp(const QString &path);
    void removeBypassApp(const QString &path);
    // Does nothing unless `canLaunchBypassed()`, nor while the same application is being opened.
    // Running copies are asked to quit first. The error is a sentence; empty when the user
    // dismissed the prompt or the session ended meanwhile.
    QCoro::Task<Result<void, Text>> launchBypassed(QString path);

    // --- Operations: helper without a password, terminal. ---
    // Reinstalls the root-owned helper when the program brought a newer one.
    QCoro::Task<void> updatePrivilegedHelper();
    // One of these two at a time; a call while one is under way does nothing.
    QCoro::Task<void> installPasswordless();
    QCoro::Task<void> removePasswordless();
    std::optional<Text> setTerminalMode(bool on); // as Setting::set()
    void removeTerminalIntegration();
    // Resumes when `terminalHint` is known. Programs are asked for it, beside what else happens and
    // once.
    QCoro::Task<void> askTerminalHint();
    // Whether the shells, and ssh, read terminal mode's files. Both read the user's files, so not
    // for every redraw.
    bool isTerminalInstalled() const;
    bool isTerminalUsedBySsh() const;

    // Reads the value of Tor's "status/bootstrap-phase".
    static BootstrapStatus parseBootstrap(const QString &reply);

private:
    using Attempt = quint64;
    // A request through Tor that took this long or longer is slow; 1500 ms still counts as fast.
    static constexpr qint64 slowPathMs = 1501;

    // Connect.cpp
    // Has the administrator asked for each of these programs.
    QCoro::Task<Result<void, HelperError>> approve(Attempt attempt,
                                                   std::vector<ProgramApproval> programs);
    std::vector<ProgramApproval> unapproved(const QStringList &words) const;
    std::vector<ProgramApproval> namedPrograms(const QStringList &words) const;
    // Runs the helper's connect with what root needs for the programs in these words. Nobody reads
    // the answer once the attempt is an old one.
    QCoro::Task<Result<void, HelperError>> runConnect(Attempt attempt, QStringList words);
    void failAtHelper(const HelperError &error);
    QCoro::Task<Result<QStringList, Text>> bridgeArguments(Attempt attempt, BridgeRequest request);
    // Makes every operation that is still under way an old one and clears what it left shown.
    Attempt startAttempt();
    bool isCurrent(Attempt attempt) const { return attempt == m_attempt; }
    void resetSessionInfo();
    // Empties what is known about circuits: the next Tor counts its circuits from 1 again.
    void forgetCircuits();
    // Everything of the session goes, and the phase becomes `disconnected`.
    void endSession();
    void settleAfterFailure();
    // What follows a connect: the checks, and the optimisation of a slow path where it is wanted.
    QCoro::Task<void> settleIn(Attempt attempt);
    // The mode that the session marker names; absent when it names none, or is not there.
    std::optional<RoutingMode> markedMode() const;
    Text connectedDetail() const;
    Text leftOverDetail() const;
    void failAttempt(const Text &message);
    // Bootstrap.cpp
    QCoro::Task<Result<void, Text>> waitForBootstrap(Attempt attempt);
    // `waited`: since Tor's first answer.
    std::optional<Text> problemBehind(const BootstrapStatus &status,
                                      std::chrono::nanoseconds waited) const;
    // Monitoring.cpp
    void startMonitoring();
    void stopMonitoring();
    QCoro::Task<void> monitor(quint64 run);
    // What the counters and Tor's word on its circuits say of the traffic.
    void lookAtTraffic(std::optional<bool> hasCircuit);
    void torDied();
    void giveUpTo(const std::optional<SessionOwner> &other);
    Text replacedText() const; // `otherSession` is there
    // nobody's: one that was left over
    void showSessionOf(const std::optional<SessionOwner> &other);
    struct TimedProbe {
        ProbeResult answer;
        std::chrono::milliseconds elapsed; // in both outcomes
    };
    QCoro::Task<TimedProbe> timedViaTor();
    // KillSwitchWatch.cpp
    void lookAtKillSwitch();
    // "Blocked" is the rules' doing, and nothing where they aren't known to stand.
    LeakStatus believable(const LeakStatus &found) const;
    // Looks now and every two seconds until stopped or the session ends. What m_knownKillSwitch
    // holds is no news.
    void startKillSwitchWatch();
    void stopKillSwitchWatch() { ++m_killSwitchWatch; }
    void forgetKillSwitch();
    QCoro::Task<void> watchKillSwitch(quint64 run);
    std::optional<KillSwitch> judgedKillSwitch(); // asks the note and the marker
    std::optional<Text> killSwitchMessage() const;
    Text deathMessage() const;
    // Asks for the exit alone, after Tor was told to take new circuits.
    QCoro::Task<void> checkExit();
    void forgetExit();
    void showExit(const ProbeResult &answer);
    // DNS.cpp
    QCoro::Task<void> repairDNS(Attempt attempt);
    void endFixWaits();
    // BypassApps.cpp
    QString displayedName(const QString &path) const;
    QCoro::Task<Result<void, Text>> launchOnce(QString path);
    // Circuits.cpp
    struct Resolution {
        std::vector<RelayInfo> relays;
        bool isComplete = false; // else asked again at the next refresh
    };
    QCoro::Task<Resolution> resolveRelays(std::vector<RelayInfo> relays, Attempt attempt);
    // Transports.cpp
    QCoro::Task<TransportDownloader::Outcome> fetchTransports();
    void interruptDirectDownload();
    void showTransports(const PluggableTransports &found, quint64 search);
    bool isChangingPhase() const
    {
        return phase() == ConnectionPhase::connecting || phase() == ConnectionPhase::disconnecting;
    }
    // Terminal.cpp
    void applyTerminalMode();
    void setShellsActive(bool on);
    void showTerminalProblem(const Result<void, TerminalError> &installed);
    QCoro::Task<void> installForSsh(quint64 run);

    Services m_services;
    Attempt m_attempt = 0;     // the running connect or disconnect; older ones end silently
    quint64 m_monitor = 0;     // the running monitor loop
    quint64 m_terminalRun = 0; // how often terminal mode was applied
    std::optional<QString> m_controlPassword;       // of the running session; in memory only
    QString m_controlHash;                          // what Tor was told of it
    std::optional<SessionMark> m_sessionMark;       // of the session that this object has made
    QStringList m_sessionWords;                     // what the helper was last asked for, and did
    bool m_isDownloading = false;                   // transports
    bool m_downloadsDirectly = false;               // and not through Tor
    bool m_downloadInterrupted = false;             // a connect has begun meanwhile
    std::optional<ResumeOnce<bool>> m_downloadWait; // for the end of that connect
    quint64 m_transportSearch = 0;                  // the last search that began
    quint64 m_shownSearch = 0;                      // the one that `transports` is of
    std::optional<Attempt> m_fixedAttempt;          // whose fixDNS() is under way
    std::vector<ResumeOnce<bool>> m_fixWaiters;     // later calls of the same session
    quint64 m_killSwitchWatch = 0;                  // the running watch
    std::optional<KillSwitch> m_knownKillSwitch;    // as last told in this session
    std::optional<Text> m_killSwitchMessage;        // the banner that tells of it
    Clock::TimePoint m_killSwitchSeen;              // when the watcher's note was last a fresh one
    std::optional<Text> m_bootstrapFailure;         // the banner of a bootstrap that failed
    bool m_torStopped = false;                      // under this session
    // What the monitor knows of the session's network, also over a disconnect that was refused.
    struct NetworkKnowledge {
        bool hasSlept = false; // Tor is to begin anew
        // Tor was told to leave the network, and has not confirmed that it is back
        bool mayBeOffline = false;
        OwnAddresses addresses;
        TrafficWatch traffic;
        QStringList passed; // firewalls of others through which Tor has connected all the same
    } m_network;
    bool m_dnsLiveVerified = false; // a live DNS check passed in this session
    bool m_isSettlingIn = false;    // settleIn() is under way
    // counts the times that Tor was asked for new circuits
    quint64 m_identity = 0;
    quint64 m_circuitReading = 0;     // the last refresh that began
    quint64 m_readCircuits = 0;       // the newest whose answer has come
    quint64 m_shownCircuits = 0;      // the one that `circuits` is of
    bool m_isSettingUpHelper = false; // password-free mode is being set up or removed
    QStringList m_launching;          // applications that are being opened without Tor
    QStringList m_pendingBridgeLines; // of the connection being set up
    QStringList m_activeBridgeLines;  // of the running session
    RelayCache m_relayCache;
    SiteHistory m_siteHistory;
};

} // namespace veldmark
