#pragma once

#include "control/ControlPort.h"
#include "controller/TorController.h"
#include "platform/PlatformProfile.h"
#include "support/FakeTor.h"
#include "support/ManualClock.h"
#include "support/StandIns.h"
#include "system/PrivilegedRunner.h"
#include "system/SettingsStore.h"
#include "terminal/TerminalIntegration.h"

#include <QTemporaryDir>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

namespace veldmark {

// Lets everything that is ready run, until `condition` holds. False after ten seconds.
bool until(const std::function<bool()> &condition);
// Lets everything that is ready run.
void settle();

// A whole controller in a computer of its own: the files of one of the systems below a temporary
// folder, with a `tor` and a helper, real objects where they touch nothing else, and stand-ins for
// programs, Tor, the network and time. What is not told otherwise goes well: the helper does what
// it is asked (it writes and removes the session marker), Tor has bootstrapped at once, the probe
// through Tor answers and the direct one does not, the live DNS test cannot begin.
//
// Time passes when the test moves `clock`. The control port has `socketClock`, which a test moves
// only to let its time limits pass: a real socket cannot keep up with leaps.
class Workbench {
public:
    enum class System { linux, macos };
    // The data of a test that runs on both systems: one column "system".
    static void bothSystems();
    static constexpr auto bootstrapCommand = "GETINFO status/bootstrap-phase";
    static constexpr auto countersCommand
        = "GETINFO traffic/read traffic/written status/circuit-established";

    explicit Workbench(System system = System::linux);
    ~Workbench();

    TorController &controller() { return *m_controller; }
    // The program ends and starts again: new settings store, new controller.
    void restart();
    // The program ends: the controller goes, then everything that was made for it.
    void end() { m_controller.reset(); }

    // Connects and waits until connect() has finished. True when it led to `connected`.
    bool connect();
    // The same for disconnect(), whatever it leads to.
    void disconnect();
    // Waits for the end of an operation.
    template <typename T> static bool finished(const QCoro::Task<T> &task)
    {
        return until([&task] { return task.isReady(); });
    }
    // One turn of the monitor: two seconds, and what it then does. False when it does not come to
    // an end.
    bool tick();

    // The arguments of every run of the helper, verb first.
    std::vector<QStringList> helperRuns() const;
    QStringList lastHelperRun(const QString &verb) const;
    int helperRunCount(const QString &verb) const;
    // What the helper answers to a verb from now on, instead of doing it; "connect" stands for
    // "replace" as well.
    void failHelper(const QString &verb, const QString &message);
    void cancelPrompt(const QString &verb);
    void letHelperWork() { m_refusals.clear(); }
    // The helper does not end before processes.release().
    void hold(const QString &verb);
    // The password that Tor was last asked with.
    QString password() const { return tor.password(); }

    // What the watcher over the firewall's rules has seen: "standing", "restored" or "open", how
    // often the rules were missed, and when it began. It has "standing 0" once a strict session was
    // set up, and goes on looking (its note stays young) until it is killed.
    void noteRules(const QByteArray &word, int missed = 0, qint64 since = 1'800'000'000);
    void killWatcher();

    void writeMarker(const QByteArray &content);
    void removeMarker();
    bool hasMarker() const;
    void writeFile(const QString &path, const QByteArray &content = {},
                   bool executable = false) const;
    void removeTor() const;

    // Tor's answer to the bootstrap question: "PROGRESS=… TAG=… SUMMARY=…".
    void setBootstrap(const QByteArray &fields);
    void setCounters(const QByteArray &read, const QByteArray &written);
    // "250+key=", lines, ".", "250 OK".
    static QByteArray block(const QByteArray &key, const QByteArrayList &lines);
    int commandCount(const char *command) const;
    // Tor's control port hears a command within the time.
    bool hears(const char *command, int times = 1);

    QTemporaryDir folder;
    PlatformProfile profile;
    FakeTor tor;
    ManualClock clock;
    ManualClock socketClock;
    ScriptedRunner processes;
    std::unique_ptr<SettingsStore> settings;
    std::unique_ptr<PrivilegedRunner> privileged;
    std::unique_ptr<ControlPort> controlPort;
    ScriptedProbe probe;
    ScriptedResolvers resolvers;
    TerminalIntegration terminal;
    ScriptedApplications applications;
    // none, unless set before a connect
    std::function<std::vector<ProgramApproval>(const QStringList &words)> missingApprovals;
    std::function<std::vector<ProgramApproval>(const QStringList &words)> namedPrograms;
    PluggableTransports transports;                        // what a search finds
    int searches = 0;                                      // for transports
    std::function<QCoro::Task<void>()> beforeSearchAnswer; // what is found is settled before it
    bool withoutDownloader = false;                        // of the next restart()
    std::function<void()> cancelTransports;                // heard when a direct download is to end
    // What a download comes to; well, unless this says otherwise.
    std::function<QCoro::Task<TransportDownloader::Outcome>(bool throughTor,
                                                            TransportDownloader::Progress progress)>
        installTransports;
    // How long a bridge takes to answer; none answer unless this says so.
    BridgeProbe bridgeProbe;
    std::optional<NetworkRoute> route = NetworkRoute{QStringLiteral("eth0"), false};
    bool hasCircuit = true; // of the next setCounters()
    QSet<QHostAddress> ownAddresses = {QHostAddress(QStringLiteral("192.0.2.7"))};

private:
    Result<ProcessResult, StartError> run(const ScriptedRunner::Call &call);
    // Empty when the call is no run of the helper.
    QStringList helperArguments(const ScriptedRunner::Call &call) const;
    void setNoteAge(std::chrono::seconds age);
    ProcessResult refusal(const QString &message) const;

    std::map<QString, ProcessResult> m_refusals;
    QTimer m_watcher; // its looks, in real time like the note's
    std::unique_ptr<TorController> m_controller;
};

} // namespace veldmark

Q_DECLARE_METATYPE(veldmark::Workbench::System)
