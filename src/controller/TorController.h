#pragma once

#include "bridges/BridgeChoice.h"
#include "bridges/BridgePlan.h"
#include "bridges/Ladder.h"
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
#include "controller/TorError.h"

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

#include <QDateTime>
#include <QObject>
#include <QPointer>
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

// The parts of Tor's bootstrap report that are shown.
struct BootstrapStatus {
    int progress = 0; // per cent
    QString summary;  // Tor's own words; empty when the report has none
    Text warning;     // why Tor is stuck, a sentence; empty without a warning
    int failures = 0; // since the last progress
    // The last connection was refused, or its address cannot be reached.
    bool isRefused = false;
};

// The one object that holds the program's knowledge: the user's settings, the session with Tor, and
// the results of the checks. Views read its fields and call its operations. Only the operations
// write state. It lives on the main thread and is used there only.
//
// The operations are coroutines that suspend while they wait; each has its own source file
// (Connect.cpp, Disconnect.cpp, Monitoring.cpp, …). They report through the fields; a few return a
// result as well. The helper's session marker, not this object, says whether the network is set up
// for Tor: `isSessionMarkerPresent()`.
class TorController : public FieldOwner {
    Q_OBJECT

public:
    // What the controller needs from other rooms. Every object must outlive the controller.
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
        // TransportDownloader::install(). Without it downloadTransports() does nothing.
        std::function<QCoro::Task<TransportDownloader::Outcome>(
            bool throughTor, TransportDownloader::Progress progress)>
            installTransports = {};
        // TransportDownloader::cancel().
        std::function<void()> cancelTransports = {};
        // Like locateTransports, without starting programs to ask them; for connect(). Without it
        // locateTransports is used.
        std::function<QCoro::Task<PluggableTransports>()> locateWithoutAsking = {};
        std::function<QSet<QHostAddress>()> ownAddresses = OwnAddresses::present;
        std::function<std::optional<NetworkRoute>()> route = NetworkRoute::present;
        // ProgramApproval::missing(), for the words of a connect. Without it nothing needs
        // approval.
        std::function<std::vector<ProgramApproval>(const QStringList &words)> missingApprovals = {};
        // ProgramApproval::named(), for the same words.
        std::function<std::vector<ProgramApproval>(const QStringList &words)> namedPrograms = {};
    };

    // Registers the settings' defaults, reads the settings, and starts looking for transports off
    // the main thread, which sets `transports`.
    explicit TorController(const Services &services, QObject *parent = nullptr);
    ~TorController() override;

    // --- The user's settings; each `set` is stored at once. ---
    Setting<bool> strictMode{this, "strictMode", Scope::connection,
                             Text::tr("strict mode with the kill switch, else proxy mode"), true};
    Setting<bool> allowLocalNetwork{this, "allowLocalNetwork", Scope::connection,
                                    Text::tr("strict mode lets the local network through"), true};
    Setting<bool> separateApps{this, "separateApps", Scope::connection,
                               Text::tr("each application has circuits of its own"), true};
    Setting<QString> exitCountry{this, "exitCountry", Scope::connection,
                                 Text::tr("two lower-case letters, or nothing for any"), QString()};
    Setting<QString> customTorPath{
        this, "customTorPath", Scope::connection,
        Text::tr("the path of the tor to use, or nothing to search for tor"), QString()};
    Setting<BridgeChoice> bridgeChoice{this, "bridgeChoice", Scope::connection,
                                       Text::tr("which bridges"), BridgeChoice::off};
    Setting<QString> customBridges{this, "customBridges", Scope::connection,
                                   Text::tr("your own bridge lines, as typed"), QString()};
    Setting<Climb> climb{this, "climb", Scope::connection,
                         Text::tr("whether bridges are tried when Tor cannot connect"), Climb::ask};
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
    // absent without a session
    Published<std::optional<RoutingMode>> activeMode{this, "activeMode"};
    Published<std::optional<BridgeChoice>> activeBridge{this, "activeBridge"};
    Published<double> bootstrapProgress{this, "bootstrapProgress"}; // 0…1
    // The line under the title.
    Published<Text> statusDetail{this, "statusDetail",
                                 Text::tr("Your traffic is not going through Tor")};
    // Why the bootstrap is stuck, a sentence from Tor's report and log. It clears on progress and
    // survives a failure until the next attempt or the restore.
    Published<std::optional<Text>> bootstrapProblem{this, "bootstrapProblem"};
    // What was tried, in order, once something else than the user's choice was; empty otherwise. It
    // stays until the next attempt or the restore.
    Published<std::vector<LadderStep>> ladder{this, "ladder"};
    // Why bridges are offered; takeOffer() accepts. Absent when nothing is offered.
    Published<std::optional<Text>> climbOffer{this, "climbOffer"};
    // The owner of the session that a stale phase shows, while that other process runs.
    Published<std::optional<SessionOwner>> otherSession{this, "otherSession"};
    // disconnect() may end the connect attempt.
    Published<bool> canCancel{this, "canCancel"};
    // The banner; absent = none. Operations clear it first, except disconnect() when no session was
    // up.
    Published<std::optional<Text>> errorMessage{this, "errorMessage"};
    Published<quint64> bytesRead{this, "bytesRead", 0, Valid::whileConnected}; // since Tor started
    Published<quint64> bytesWritten{this, "bytesWritten", 0, Valid::whileConnected};
    // Why nothing gets through Tor although the phase is `connected`; absent while traffic flows.
    Published<std::optional<TrafficWatch::Stall>> stall{this, "stall", {}, Valid::whileConnected};
    // For the stall "firewall": the names of the firewalls that deny outgoing traffic; else empty.
    Published<QStringList> denyingFirewalls{this, "denyingFirewalls", {}, Valid::whileConnected};

    // --- The checks. ---
    // The state of the rules in the kernel as the watcher last reported it; absent without a strict
    // session. Read in every phase but `disconnected` and `disconnecting`, even when Tor is dead,
    // and before traffic is said to be blocked.
    Published<std::optional<KillSwitch>> killSwitch{this, "killSwitch"};
    Published<std::optional<QString>> exitIP{this, "exitIP", {}, Valid::whileConnected};
    Published<std::optional<bool>> torVerified{
        this, "torVerified", {}, Valid::whileConnected}; // absent = not checked yet
    Published<LeakStatus> leakStatus{this, "leakStatus", LeakStatus::notTested(),
                                     Valid::whileConnected};
    Published<DNSStatus> dnsStatus{this, "dnsStatus", DNSStatus::unknown(), Valid::whileConnected};
    Published<bool> isChecking{this, "isChecking", false, Valid::whileConnected};
    // Whether each application has circuits of its own now; absent where the user does not want
    // that or the system cannot do it.
    Published<std::optional<bool>> separated{this, "separated", {}, Valid::whileConnected};
    // Of a request through Tor by the exit that is shown, in milliseconds.
    Published<std::optional<qint64>> latencyMs{this, "latencyMs", {}, Valid::whileConnected};
    Published<std::optional<Text>> optimizeStatus{
        this, "optimizeStatus", {}, Valid::whileConnected};
    Published<bool> isOptimizing{this, "isOptimizing", false, Valid::whileConnected};

    // --- Circuits, transports, and the settings' own messages. ---
    Published<std::vector<CircuitInfo>> circuits{this, "circuits", {}, Valid::whileConnected};
    Published<std::optional<Text>> circuitError{this, "circuitError", {}, Valid::whileConnected};
    Published<PluggableTransports> transports{this, "transports"};
    Published<std::optional<Text>> transportDownload{this, "transportDownload"};
    Published<bool> passwordlessInstalled{this, "passwordlessInstalled"};
    Published<std::optional<Text>> startupError{this, "startupError"};
    Published<std::optional<Text>> terminalError{this, "terminalError"};
    // What to install so that ssh goes through Tor in terminal mode; absent when ssh does, when the
    // mode is off, and while programs are being asked.
    Published<std::optional<Text>> terminalHint{this, "terminalHint"};
    // What is wrong with the settings' file, a sentence each, oldest first, until the user
    // dismisses it.
    Published<QList<Text>> settingsProblems{this, "settingsProblems"};

    // --- Derived from the fields. ---
    Verdict verdict() const; // how safe the session is; every surface shows it
    Text title() const { return verdict().title; }
    QString menuBarSymbol() const { return verdict().symbol; }
    bool canDownloadTransports() const;
    bool canLaunchBypassed() const;
    // Whether the application is being opened; a password prompt may be shown.
    bool isLaunching(const QString &application) const;
    bool isSessionMarkerPresent() const;
    // The tor to use: the custom path, else the first executable standard place; absent when none
    // is executable. Reads the file system.
    std::optional<QString> torPath() const;
    const PlatformProfile &profile() const { return m_services.profile; }

    // --- Operations: session. ---
    // From `disconnected` or `stale` to `connected`; in any other phase does nothing.
    QCoro::Task<void> connect();
    // Has a connect try the bridges that `climbOffer` offers. The error is a sentence.
    Result<void, Text> takeOffer();
    // Restores the network. Accepted when connected, stale, or connecting with `canCancel`. When
    // the helper fails, a session that was up stays up as long as the marker exists. The error is a
    // sentence; empty when the user dismissed the prompt, when the call was not accepted, or when a
    // later operation replaced it. If another process's session has replaced this one's, the first
    // call shows that session and does not end it.
    QCoro::Task<Result<void, Text>> disconnect();
    // What a user means by "restore": waits for a running disconnect, looks for a session, and
    // disconnects it. Succeeds when none is left. Errors like disconnect()'s.
    QCoro::Task<Result<void, Text>> restore();
    // At start-up, before any view shows state: finds a session left over from an earlier run.
    void detectStaleState();
    // Shows the computer's session as it is now. Called when another process may have begun,
    // replaced or ended one. Does nothing while this object sets up a session (until `canCancel`)
    // or restores the network, nor while its own session is in place.
    void lookAtSession();
    // At start-up: connects when the user wants it, no session is left over and tor exists.
    QCoro::Task<void> autoConnectIfEnabled();

    // --- Operations: checks and circuits; each does nothing unless connected. ---
    QCoro::Task<void> runChecks();
    QCoro::Task<void> checkDNS(bool live);
    // Calls made during a run share that run and its prompt.
    QCoro::Task<void> fixDNS();
    QCoro::Task<void> refreshCircuits();
    QCoro::Task<void> newIdentity();
    QCoro::Task<void> newCircuit(QString id);
    QCoro::Task<void> optimizeCircuits();
    // Called after the computer has slept: the exit is no longer verified, and Tor's connections
    // may hang.
    void wake();

    // When the phase changed, the latest last; the first entry is the start of the program or what
    // is left of the history.
    struct PhaseChange {
        ConnectionPhase phase = ConnectionPhase::disconnected;
        QDateTime at; // UTC
    };
    static constexpr std::size_t mostPhaseChanges = 40;
    const std::vector<PhaseChange> &phaseChanges() const { return m_phaseChanges; }

    // The last failed operation's message, without messages about the kill switch and Tor's own
    // network.
    std::optional<Text> failure() const;
    // The reason to show with the banner: why Tor did not connect, when the banner reports a failed
    // bootstrap.
    std::optional<Text> problemBehindError() const
    {
        return errorMessage() && errorMessage() == m_bootstrapFailure ? bootstrapProblem()
                                                                      : std::nullopt;
    }
    // Of the session that was last shown; another mark is another session.
    const std::optional<SessionMark> &sessionMark() const { return m_sessionMark; }
    // Whether a stale phase shows this object's session, whose Tor has ended.
    bool hasTorStopped() const { return m_torStopped; }
    // Called when the user dismisses the banner.
    void dismissError() { errorMessage = std::nullopt; }
    // Shows a problem from outside the controller as the banner.
    void showProblem(const Text &problem) override { errorMessage = problem; }
    // Takes new problems from the settings' store.
    void readSettingsProblems();
    // Called when the user dismisses the oldest problem.
    void dismissSettingsProblem() { settingsProblems = settingsProblems().mid(1); }

    // --- Operations: transports. ---
    // Searches the computer again and sets `transports`, unless a search that began later has
    // already set it.
    QCoro::Task<void> locateTransports();
    // Downloads and installs the Tor Project's bundle of transport programs, through Tor while
    // connected. A connect() interrupts a direct download, which starts again when the connection
    // is up or has failed. Does nothing unless canDownloadTransports(). `transportDownload` shows
    // the progress and keeps the last message until the next download; it is absent after a success
    // without remarks. True when a bundle was installed, whatever else is reported.
    QCoro::Task<bool> downloadTransports();

    // --- Operations: applications that bypass Tor; paths as `bypassApps` holds them. ---
    // Whether it may be listed: an absolute path with this system's ending for applications.
    bool isApplication(const QString &path) const;
    // Sorted by displayed name, without duplicates: the order of `bypassApps`.
    QStringList sortedByName(QStringList applications) const;
    // Ignores a path that is no application of this system or is already listed.
    void addBypassApp(const QString &path);
    void removeBypassApp(const QString &path);
    // Does nothing unless `canLaunchBypassed()`, nor while the same application is being opened.
    // Running copies are asked to quit first. The error is a sentence; empty when the user
    // dismissed the prompt or the session ended meanwhile.
    QCoro::Task<Result<void, Text>> launchBypassed(QString path);

    // --- Operations: helper without a password, terminal. ---
    // Reinstalls the root-owned helper when the program contains a newer one.
    QCoro::Task<void> updatePrivilegedHelper();
    // One of these two runs at a time; a call during a run does nothing.
    QCoro::Task<void> installPasswordless();
    QCoro::Task<void> removePasswordless();
    std::optional<Text> setTerminalMode(bool on); // like Setting::set()
    void removeTerminalIntegration();
    // Resumes when `terminalHint` is known. The programs are asked once, in the background.
    QCoro::Task<void> askTerminalHint();
    // Whether the shells, and ssh, read terminal mode's files. Both functions read the user's
    // files, so do not call them on every redraw.
    bool isTerminalInstalled() const;
    bool isTerminalUsedBySsh() const;

    // Parses the value of Tor's "status/bootstrap-phase".
    static BootstrapStatus parseBootstrap(const QString &reply);

private:
    // A request through Tor that took this long or longer is slow; 1500 ms still counts as fast.
    static constexpr qint64 slowPathMs = 1501;

    // What a coroutine keeps across its waits: the value that a counter had when it began. It is
    // over when that counter has moved on or the controller is gone. The coroutine then returns
    // without touching a member.
    class Run {
    public:
        Run(const TorController &controller, quint64 TorController::*counter)
            : m_controller(&controller),
              m_counter(counter),
              m_number(controller.*counter)
        {
        }
        bool isOver() const { return !m_controller || m_controller->*m_counter != m_number; }

    private:
        QPointer<const TorController> m_controller;
        quint64 TorController::*m_counter;
        quint64 m_number;
    };
    Run current(quint64 TorController::*counter) const { return {*this, counter}; }
    // Ends the earlier runs of this counter.
    Run next(quint64 TorController::*counter)
    {
        ++(this->*counter);
        return current(counter);
    }

    // Phases.cpp: the only source that sets `phase`.
    void enter(ConnectionPhase next);
    static void endWaits(std::vector<ResumeOnce<bool>> &waiters);
    void enterConnecting();
    void enterConnected();
    void enterDisconnecting();
    void failBootstrap(const Text &reason);
    // Ends every running operation and clears the fields that it left set.
    Run startAttempt();
    void failAttempt(const Text &message);
    void failAtHelper(const HelperError &error);
    void settleAfterFailure();
    void torDied();
    // Clears everything about the session.
    void endSession();
    void resetSessionInfo();
    // The next Tor numbers its circuits from 1 again.
    void forgetCircuits();
    // The mode that the session marker names; absent when there is none.
    std::optional<RoutingMode> markedMode() const;
    // Another process has replaced this process's session. Absent owner: a left-over session.
    void giveUpTo(const std::optional<SessionOwner> &other);
    void showSessionOf(const std::optional<SessionOwner> &other);
    Text leftOverDetail() const;
    Text replacedText() const; // needs `otherSession`

    // Bridges that Tor may change to without another run of the helper, and what the helper is told
    // of them.
    struct Reserve {
        std::vector<Rung> rungs;
        QStringList words;
        QStringList bundle; // the options that let root verify their programs
        // The settings that it follows from.
        Climb climb = Climb::never;
        QString customBridges;
    };
    // Connect.cpp
    // What can be kept in reserve without an approval of its own.
    QCoro::Task<Reserve> planReserve(Run attempt, BridgeRequest request);
    // The transports that are known, or are found within a short time: a home that hangs does not
    // hold up the connect.
    QCoro::Task<PluggableTransports> transportsForReserve(Run attempt);
    QCoro::Task<void> searchForReserve(Run attempt, ResumeOnce<PluggableTransports> wait);
    void keepApproved(std::vector<Rung> &rungs, Reserve &reserve,
                      const PluggableTransports &found) const;
    bool isReserveOf(Climb wanted, const QString &custom) const;
    // Asks the administrator to approve each of these programs.
    QCoro::Task<Result<void, HelperError>> approve(Run attempt,
                                                   std::vector<ProgramApproval> programs);
    std::vector<ProgramApproval> unapproved(const QStringList &words) const;
    std::vector<ProgramApproval> namedPrograms(const QStringList &words) const;
    // Runs the helper's connect with the approvals that root needs for the programs in these words.
    // The bridges in reserve come along, if root takes them without more. The reserve that root has
    // taken; unused once the attempt is old.
    QCoro::Task<Result<Reserve, HelperError>> runConnect(Run attempt, QStringList words,
                                                         Reserve reserve);
    QCoro::Task<Result<QStringList, Text>> bridgeArguments(Run attempt, BridgeRequest request);
    // Runs after a connect: the checks, then the optimisation of a slow path when the user wants
    // it.
    QCoro::Task<void> settleIn(Run attempt);
    // Bootstrap.cpp
    QCoro::Task<Result<void, Text>> waitForBootstrap(Run attempt);
    // What on this computer keeps Tor from every relay and bridge.
    std::optional<Text> obstacle() const;
    // `waited`: time since Tor's first answer, or since it was told to use other bridges.
    std::optional<Text> problemBehind(const BootstrapStatus &status,
                                      std::chrono::nanoseconds waited) const;
    // Ladder.cpp
    void beginLadder();
    // Looks whether the present rung is given up, and goes on to the next. The sentence of the
    // failure when nothing is left to try.
    QCoro::Task<std::optional<Text>> followLadder(Run attempt, BootstrapStatus status,
                                                  QString report, qint64 received);
    void endStep(const Text &result);
    void endLadder(); // Tor has connected
    void failStep();  // the time is over, although Tor got on
    Text nothingHelps() const;
    // Monitoring.cpp
    void startMonitoring();
    void stopMonitoring();
    QCoro::Task<void> monitor(Run run);
    // The counter of received bytes has grown by `grown` while a command of `asked` bytes was sent.
    void learnWhatIsCounted(qint64 grown, qsizetype asked);
    // Judges the traffic by the counters and by Tor's report on its circuits.
    void lookAtTraffic(std::optional<bool> hasCircuit);
    void askPast(const QStringList &others);
    struct TimedProbe {
        ProbeResult answer;
        std::chrono::milliseconds elapsed; // also without an answer
    };
    QCoro::Task<TimedProbe> timedViaTor();
    // KillSwitchWatch.cpp
    void lookAtKillSwitch();
    void lookAtSeparation();
    // Replaces "blocked" by "not tested" when the rules are not known to block.
    LeakStatus believable(const LeakStatus &found) const;
    // Looks now and every second until stopped or the session ends. The state in m_knownKillSwitch
    // is not told.
    void startKillSwitchWatch();
    void stopKillSwitchWatch() { ++m_killSwitchWatch; }
    void forgetKillSwitch();
    QCoro::Task<void> watchKillSwitch(Run run);
    std::optional<KillSwitch> judgedKillSwitch(); // reads the watcher's note and the marker
    std::optional<Text> killSwitchMessage() const;
    Text deathMessage() const;
    // Asks for the exit alone, after Tor was told to use new circuits.
    QCoro::Task<void> checkExit();
    void forgetExit();
    void showExit(const TimedProbe &probe);
    // DNS.cpp
    QCoro::Task<void> repairDNS(Run attempt);
    // BypassApps.cpp
    QString displayedName(const QString &path) const;
    QCoro::Task<Result<void, Text>> launchOnce(Run session, QString path);
    // Circuits.cpp
    struct Resolution {
        std::vector<RelayInfo> relays;
        bool isComplete = false; // else asked again at the next refresh
    };
    QCoro::Task<Resolution> resolveRelays(std::vector<RelayInfo> relays, Run attempt);
    // Streams.cpp
    // Begins to listen to Tor's events about streams, where applications have addresses of their
    // own. Does nothing while it listens.
    void listenToStreams();
    QCoro::Task<void> hearStreams(Run run);
    // The user's application that has the address now; empty when none is known to have it.
    QString applicationAt(const QString &address);
    void readApplications();
    void nameStreams(); // whose application was not known when they began
    // Transports.cpp
    QCoro::Task<TransportDownloader::Outcome> fetchTransports();
    void interruptDirectDownload();
    void showTransports(const PluggableTransports &found, quint64 search);
    // Terminal.cpp
    void applyTerminalMode();
    void setShellsActive(bool on);
    void showTerminalProblem(const Result<void, TerminalError> &installed);
    QCoro::Task<void> installForSsh(Run run);

    Services m_services;
    std::vector<PhaseChange> m_phaseChanges{
        {ConnectionPhase::disconnected, QDateTime::currentDateTimeUtc()}};
    quint64 m_attempt = 0;     // the running connect or disconnect; older ones end silently
    quint64 m_monitor = 0;     // the running monitor loop
    quint64 m_terminalRun = 0; // the run that last applied terminal mode
    std::optional<QString> m_controlPassword; // of the running session; only in memory
    QString m_controlHash;                    // the hash that Tor got of it
    std::optional<SessionMark> m_sessionMark; // of the session that is shown
    QStringList m_sessionWords; // of the helper's last successful connect, without the reserve
    Reserve m_reserve;          // that it was told of
    // How the connection being set up climbs.
    struct Climbing {
        std::vector<Rung> left;                      // to try
        bool mayClimb = false;                       // without asking
        RungWatch watch{std::chrono::seconds(0), 0}; // of the present rung
        std::optional<Clock::TimePoint> since;       // its begin; absent before Tor's first answer
        std::optional<Clock::TimePoint> freeSince;   // the end of what kept it from beginning
        bool isObstructed = false;                   // by that, at the last look
        QString reportBefore;                        // Tor's last one before it
        int failuresBefore = 0;                      // that it tells
        qsizetype logLines = 0;                      // of Tor's log before it
        std::optional<Clock::TimePoint> began;       // the first change to other bridges
    } m_climbing;
    bool m_isDownloading = false;                   // transports
    bool m_downloadsDirectly = false;               // not through Tor
    bool m_downloadInterrupted = false;             // by a connect
    std::optional<ResumeOnce<bool>> m_downloadWait; // for the end of that connect
    quint64 m_transportSearch = 0;                  // the last search that began
    quint64 m_shownSearch = 0;                      // the search that `transports` is from
    std::vector<ResumeOnce<bool>> m_restoreWaiters; // for the end of a running disconnect
    quint64 m_fixRun = 0;                           // the last fixDNS() that began
    std::optional<quint64> m_fixedAttempt;          // the m_attempt whose fixDNS() runs
    std::vector<ResumeOnce<bool>> m_fixWaiters;     // later calls of the same session
    quint64 m_killSwitchWatch = 0;                  // the running watch
    std::optional<KillSwitch> m_knownKillSwitch;    // as last told in this session
    std::optional<Text> m_killSwitchMessage;        // the banner about it
    Clock::TimePoint m_killSwitchSeen;              // when the watcher's note was last fresh
    std::optional<Text> m_bootstrapFailure;         // the banner of a failed bootstrap
    bool m_torStopped = false;                      // in this session
    // What the monitor knows of the session's network. Kept when a disconnect is refused.
    struct NetworkKnowledge {
        bool hasSlept = false; // Tor is to reopen its connections
        // Tor was told to close its network and has not confirmed that it is back.
        bool mayBeOffline = false;
        OwnAddresses addresses;
        TrafficWatch traffic;
        // Whether Tor's counters have the control port's bytes. They have those of connections to
        // private addresses only with CountPrivateBandwidth, as in a test network. Absent: not
        // known yet.
        std::optional<bool> countsOwn;
        QStringList passed; // firewalls that let Tor connect nevertheless
        QStringList others; // the further ones that deny outgoing traffic, at the last look
        // No answer came through Tor since they began, although Tor itself reports nothing.
        bool isDenied = false;
        int deniedLooks = 0; // since the last such question
    } m_network;
    bool m_dnsLiveVerified = false; // a live DNS check passed in this session
    bool m_isSettlingIn = false;    // settleIn() is under way
    // Counts the requests for new circuits and the other losses of the known exit.
    quint64 m_identity = 0;
    quint64 m_circuitReading = 0;     // the last refresh that began
    quint64 m_readCircuits = 0;       // the newest refresh that was answered
    quint64 m_shownCircuits = 0;      // the refresh that `circuits` is from
    bool m_isSettingUpHelper = false; // passwordless mode is being set up or removed
    QStringList m_launching;          // applications that are being opened to bypass Tor
    QStringList m_pendingBridgeLines; // of the connection being set up
    QStringList m_activeBridgeLines;  // of the running session
    RelayCache m_relayCache;
    SiteHistory m_siteHistory;
    SeenStreams m_streams;
    quint64 m_hearing = 0;                      // the connection that listens to them
    bool m_isHearing = false;                   // it is open, or being opened
    QHash<QString, QString> m_applications;     // address → application, empty for other users'
    std::optional<Clock::TimePoint> m_listRead; // when that was read
};

} // namespace veldmark
