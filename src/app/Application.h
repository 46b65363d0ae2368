#pragma once

#include "app/Alerts.h"
#include "app/ControllerSession.h"
#include "app/ExitHandler.h"
#include "app/QuitGuard.h"
#include "app/ShutdownNotice.h"
#include "app/Tray.h"
#include "app/TrayHost.h"
#include "app/Windows.h"
#include "base/Clock.h"
#include "base/Text.h"
#include "controller/RealController.h"
#include "controller/SessionWatch.h"
#include "instance/InstanceServer.h"
#include "system/SignalWatcher.h"

namespace veldmark {

// The running desktop application: builds all parts once, starts the session, and connects windows,
// tray, quit guard and the requests to end. Main thread.
class Application : public QObject {
    Q_OBJECT

public:
    explicit Application(const PlatformProfile &profile);

    // Becomes the user's one instance and opens the main window, unless `hidden`. Connects when
    // `connectNow` or the user's settings say so. The error is one line.
    Result<void, Text> start(bool hidden, bool connectNow);

    const Windows &windows() const { return m_windows; }
    // Null until the desktop has had a tray.
    const Tray *tray() const { return m_tray.get(); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QCoro::Task<void> begin(bool connectNow);
    void onMainClosed();
    void onTrayHostChanged();
    void onTrayHostMissing();
    void tellHidden();
    void joinExitHandler();
    void leave(bool restored);
    void end(int status);

    RealController m_real;
    SessionWatch m_watch{m_real.controller()};
    ControllerSession m_session;
    std::unique_ptr<LogFeed> m_log;
    Windows m_windows;
    QuitGuard m_guard;
    Alerts m_alerts;
    SystemClock m_clock;
    ExitHandler m_exitHandler;
    SignalWatcher m_signals;
    ShutdownNotice m_shutdown;
    TrayHost m_trayHost;
    std::unique_ptr<Tray> m_tray; // Qt restores the icon by itself when the tray's host returns
    std::unique_ptr<InstanceServer> m_server;
    // The user was told, since the tray's host last came or went, that the program runs unseen.
    bool m_isToldHidden = false;
    // destroyed first: a coroutine that the other members' destructors resume finds it gone
    QObject m_lifetime;
};

} // namespace veldmark
