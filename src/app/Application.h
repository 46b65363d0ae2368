#pragma once

#include "app/Alerts.h"
#include "app/ControllerSession.h"
#include "app/Departure.h"
#include "app/QuitGuard.h"
#include "app/ShutdownNotice.h"
#include "app/Tray.h"
#include "app/TrayHost.h"
#include "app/Windows.h"
#include "base/Clock.h"
#include "base/Text.h"
#include "controller/Production.h"
#include "controller/SessionWatch.h"
#include "instance/InstanceServer.h"
#include "system/SignalWatcher.h"

namespace veldmark {

// The running desktop application: builds everything once, starts the session, and joins windows,
// tray, quit guard and the ways in which it can be told to end. Main thread.
class Application : public QObject {
    Q_OBJECT

public:
    explicit Application(const PlatformProfile &profile);

    // Becomes the user's one instance and shows itself, unless `hidden`; connects when `connectNow`
    // or the user's settings say so. The error is one line.
    Result<void, Text> start(bool hidden, bool connectNow);

    const Windows &windows() const { return m_windows; }
    // null until the desktop has had a place for it
    const Tray *tray() const { return m_tray.get(); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QCoro::Task<void> begin(bool connectNow);
    void onMainClosed();
    void onTrayHostChanged();
    void onTrayHostMissing();
    void tellHidden();
    void joinDeparture();
    void leave(bool restored);

    Production m_production;
    SessionWatch m_watch{m_production.controller()};
    ControllerSession m_session;
    std::unique_ptr<LogFeed> m_log;
    Windows m_windows;
    QuitGuard m_guard;
    Alerts m_alerts;
    SystemClock m_clock;
    Departure m_departure;
    SignalWatcher m_signals;
    ShutdownNotice m_shutdown;
    TrayHost m_trayHost;
    std::unique_ptr<Tray> m_tray; // Qt brings the icon back by itself when the host does
    std::unique_ptr<InstanceServer> m_server;
    // that it runs without anything to see, since the tray's host last came or went
    bool m_isToldHidden = false;
    QObject m_lifetime; // goes first, so that what the others' ends resume finds it gone
};

} // namespace veldmark
