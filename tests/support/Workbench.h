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

// Processes events until `condition` holds. False after ten seconds.
bool until(const std::function<bool()> &condition);
// Processes all events that are ready.
void settle();

// A whole controller in its own computer: the files of one of the systems below a temporary folder,
// with a `tor` and a helper, real objects if they affect nothing else, and replacements for
// programs, Tor, the network and time. By default everything succeeds: the helper executes its
// verbs (it writes and removes the session marker), Tor has bootstrapped at once, the probe through
// Tor answers and the direct one does not. The live DNS test cannot begin.
//
// Time passes when the test moves `clock`. The control port has `socketClock`, which a test moves
// only to let its time limits pass: a real socket cannot follow leaps.
class Workbench {
public:
    enum class System { linux, macos };
    // The data of a test that runs on both systems: one column "system".
    static void bothSystems();
    static constexpr auto bootstrapCommand = "GETINFO status/bootstrap-phase traffic/read";
    static constexpr auto countersCommand
        = "GETINFO traffic/read traffic/written status/circuit-established";

    explicit Workbench(System system = System::linux);
    ~Workbench();

    TorController &controller() { return *m_controller; }
    // The program ends and starts again: new settings store, new controller.
    void restart();
    // The program ends: destroys the controller, then the objects made for it.
    void end() { m_controller.reset(); }

    // Connects and waits until connect() has finished. True when the phase is then `connected`.
    bool connect();
    // The same for disconnect(), with any result.
    void disconnect();
    // Waits for the end of an operation.
    template <typename T> static bool finished(const QCoro::Task<T> &task)
    {
        return until([&task] { return task.isReady(); });
    }
    // One turn of the monitor: two seconds, and its work. False when the work does not end.
    bool tick();

    // The arguments of every run of the helper, verb first.
    std::vector<QStringList> helperRuns() const;
    QStringList lastHelperRun(const QString &verb) const;
    int helperRunCount(const QString &verb) const;
    // The helper's answer to a verb from now on, instead of the verb's effect; "connect" also
    // stands for "replace".
    void failHelper(const QString &verb, const QString &message);
    void cancelPrompt(const QString &verb);
    void letHelperWork() { m_refusals.clear(); }
    // The helper does not end before processes.release().
    void hold(const QString &verb);
    // The password of the last request to Tor.
    QString password() const { return tor.password(); }

    // The watcher's report on the firewall's rules: "standing", "restored" or "open", how often the
    // rules were missing, and when the state began. The watcher reports "standing 0" after the
    // setup of a strict session, and keeps its note recent until it is killed.
    void noteRules(const QByteArray &word, int missed = 0, qint64 since = 1'800'000'000);
    void killWatcher();

    void writeMarker(const QByteArray &content);
    // Another session of the same mode has begun in place of the present one.
    void renewMarker() const;
    void removeMarker();
    bool hasMarker() const;
    void writeFile(const QString &path, const QByteArray &content = {},
                   bool executable = false) const;
    void removeTor() const;

    // Tor's answer to the bootstrap query: "PROGRESS=… TAG=… SUMMARY=…".
    // `received`: bytes that Tor has got since its start.
    void setBootstrap(const QByteArray &fields, qint64 received = 0);
    void setCounters(const QByteArray &read, const QByteArray &written);
    // "250+key=", lines, ".", "250 OK".
    static QByteArray block(const QByteArray &key, const QByteArrayList &lines);
    int commandCount(const char *command) const;
    // Whether Tor's control port gets a command in time.
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
    PluggableTransports transports;                        // the result of a search
    int searches = 0;                                      // for transports
    std::function<QCoro::Task<void>()> beforeSearchAnswer; // the result is fixed before it
    bool withoutDownloader = false;                        // of the next restart()
    std::function<void()> cancelTransports;                // called when a direct download must end
    // The result of a download; success by default.
    std::function<QCoro::Task<TransportDownloader::Outcome>(bool throughTor,
                                                            TransportDownloader::Progress progress)>
        installTransports;
    // The time that a bridge takes to answer; by default none answers.
    BridgeProbe bridgeProbe;
    std::optional<NetworkRoute> route = NetworkRoute{QStringLiteral("eth0"), false};
    bool hasCircuit = true; // of the next setCounters()
    QSet<QHostAddress> ownAddresses = {QHostAddress(QStringLiteral("192.0.2.7"))};

private:
    Result<ProcessResult, StartError> run(const ScriptedRunner::Call &call);
    // Empty when the call does not run the helper.
    QStringList helperArguments(const ScriptedRunner::Call &call) const;
    void setNoteAge(std::chrono::seconds age);
    ProcessResult refusal(const QString &message) const;

    std::map<QString, ProcessResult> m_refusals;
    QTimer m_watcher; // its checks, in real time like the note's
    std::unique_ptr<TorController> m_controller;
};

} // namespace veldmark

Q_DECLARE_METATYPE(veldmark::Workbench::System)
