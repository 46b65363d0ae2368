#pragma once

#include "base/Text.h"
#include "cli/Arguments.h"
#include "cli/SessionLines.h"
#include "cli/TerminalQuestion.h"
#include "controller/NetworkRestorer.h"
#include "controller/RealController.h"
#include "controller/SessionWatch.h"
#include "instance/InstanceServer.h"
#include "system/SignalWatcher.h"

#include <QObject>

#include <memory>

namespace veldmark {

// `veldmarkctl run`: the program without a window, in the foreground. Prints the progress of the
// session. A signal makes it restore the network and end. It never ends half-way: a signal during
// the helper's work takes effect when the helper has finished.
class RunCommand : public QObject {
    Q_OBJECT

public:
    // terminal: where root is asked to approve programs.
    RunCommand(const PlatformProfile &profile, bool connectNow,
               const QString &terminal = QStringLiteral("/dev/tty"));

    // Starts; emits `finished` later, or at once.
    void start();

Q_SIGNALS:
    void finished(ExitStatus status);

private:
    QCoro::Task<void> begin();
    void onSignal(int number);
    void onRestored(bool restored);
    void finish(ExitStatus status);

    TerminalQuestion m_question; // destroyed last: the controller's coroutines wait for it
    RealController m_real;
    TorController &m_controller;
    SessionWatch m_watch;
    NetworkRestorer m_restorer;
    const bool m_connectNow;
    std::unique_ptr<InstanceServer> m_server;
    SignalWatcher m_signals;
    SessionLines m_lines;
    bool m_restored = false; // a disconnect has begun since the start
    bool m_mustEnd = false;  // SIGTERM or SIGHUP, whose sender does not ask again
    // declared last and so destroyed first: coroutines that the other members' destructors resume
    // can check it
    QObject m_lifetime;
};

} // namespace veldmark
