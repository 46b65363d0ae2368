#pragma once

#include "base/Text.h"
#include "cli/Arguments.h"
#include "cli/SessionLines.h"
#include "controller/Production.h"
#include "controller/SessionWatch.h"
#include "controller/Withdrawal.h"
#include "instance/InstanceServer.h"
#include "system/SignalWatcher.h"

#include <QObject>

#include <memory>

namespace veldmark {

// `veldmarkctl run`: the program without a window, in the foreground, until a signal asks it to
// restore the network and end. Prints what a person wants to follow. Ending is never half-way: a
// signal that comes while the helper works is heeded when it has finished.
class RunCommand : public QObject {
    Q_OBJECT

public:
    RunCommand(const PlatformProfile &profile, bool connectNow);

    // Starts; `finished` follows, perhaps at once.
    void start();

Q_SIGNALS:
    void finished(ExitStatus status);

private:
    QCoro::Task<void> begin();
    void onSignal(int number);
    void onWithdrawn(bool restored);
    void finish(ExitStatus status);

    Production m_production;
    TorController &m_controller;
    SessionWatch m_watch;
    Withdrawal m_withdrawal;
    const bool m_connectNow;
    std::unique_ptr<InstanceServer> m_server;
    SignalWatcher m_signals;
    SessionLines m_lines;
    bool m_restored = false; // a disconnect has begun since the start
    bool m_mustEnd = false;  // asked by somebody who won't ask again: SIGTERM, SIGHUP
    QObject m_lifetime;      // goes first, so that what the others' ends resume finds it gone
};

} // namespace veldmark
