#include "app/Application.h"

#include "app/Activation.h"
#include "app/FileLog.h"
#include "controller/TorController.h"

#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QPointer>
#include <QTextStream>

#include <utility>

namespace veldmark {

Application::Application(const PlatformProfile &profile)
    : m_real(profile),
      m_session(m_real.controller(), m_real.settings(), m_real.applications()),
      m_log(std::make_unique<FileLog>(m_real.controller().profile())),
      m_windows(m_session, *m_log, m_real.settings()),
      m_guard(m_real.controller(), m_windows),
      m_alerts(m_session),
      m_exitHandler(m_real.controller(), m_clock),
      m_shutdown(QDBusConnection::systemBus()),
      m_trayHost(QDBusConnection::sessionBus(), m_clock)
{
    QObject::connect(&m_windows, &Windows::quitWanted, &m_guard, &QuitGuard::quit);
    QObject::connect(&m_windows, &Windows::mainClosed, this, &Application::onMainClosed);
    whenAskedToEnd([this] { m_guard.quit(); });
    QObject::connect(
        &m_guard, &QuitGuard::mayEnd, this, [this] { end(0); }, Qt::QueuedConnection);
    QObject::connect(&m_guard, &QuitGuard::stays, this, [] { answerToEnd(false); });
    QObject::connect(&m_windows, &Windows::failed, this, [this](const QString &reason) {
        // A message box of Qt's, since the program's own windows are what failed.
        QMessageBox::critical(
            nullptr, tr("Veldmark"),
            tr("Veldmark could not open a window. Your network is not affected. To restore it without Veldmark, run:\n%1\n\n%2")
                .arg(m_real.controller().profile().manualRestoreCommand, reason));
    });
    QObject::connect(&m_alerts, &Alerts::told, this, showNotice);
    QObject::connect(&m_real.controller().phase, &Field::changed, this, [this] {
        keepAwake(m_real.controller().phase() != ConnectionPhase::disconnected);
    });
    joinExitHandler();
}

void Application::joinExitHandler()
{
    QObject::connect(&m_exitHandler, &ExitHandler::mayEnd, this, &Application::leave);
    QObject::connect(&m_signals, &SignalWatcher::received, &m_exitHandler, &ExitHandler::onSignal);
    qApp->installEventFilter(this);
    QObject::connect(&m_shutdown, &ShutdownNotice::shuttingDown, &m_exitHandler,
                     &ExitHandler::restore);
    QObject::connect(&m_exitHandler, &ExitHandler::settled, &m_shutdown,
                     [this] { m_shutdown.setDelaying(false); });
    QObject::connect(&m_real.controller().phase, &Field::changed, &m_shutdown, [this] {
        m_shutdown.setDelaying(m_real.controller().phase() != ConnectionPhase::disconnected);
    });
}

bool Application::eventFilter(QObject *watched, QEvent *event)
{
    // Nothing in this program asks Qt to quit, so the desktop did. (Qt's earlier request to save
    // open documents is ignored: the logout may still be cancelled, or there may be none.)
    if (watched != qApp || event->type() != QEvent::Quit)
        return QObject::eventFilter(watched, event);
    event->ignore();
    if (m_real.controller().profile().quitCanBeRefused)
        m_guard.quit();
    else
        m_exitHandler.leave();
    return true;
}

void Application::leave(bool restored)
{
    const TorController &controller = m_real.controller();
    const bool left = !restored && controller.isSessionMarkerPresent()
        && !controller.otherSession();
    if (left) {
        QTextStream errors(stderr);
        if (const auto reason = controller.errorMessage())
            errors << "veldmark: " << reason->translated() << '\n';
        errors << "veldmark: "
               << NetworkRestorer::notRestoredText(controller.profile()).translated() << '\n';
        m_alerts.tell(
            tr("Your network is still set up for Tor"),
            tr("Veldmark had to close and could not restore the network. Open Veldmark again to restore it."));
    }
    QMetaObject::invokeMethod(
        this, [this, left] { end(left ? 1 : 0); }, Qt::QueuedConnection);
}

void Application::end(int status)
{
    if (!answerToEnd(true))
        QCoreApplication::exit(status);
}

Result<void, Text> Application::start(bool hidden, bool connectNow)
{
    auto server = InstanceServer::start(m_real.controller());
    if (!server)
        return Failure(server.error());
    m_server = std::move(*server);
    QObject::connect(m_server.get(), &InstanceServer::raiseRequested, this,
                     [this] { m_windows.open(QStringLiteral("main")); });

    m_real.controller().detectStaleState();
    QObject::connect(&m_trayHost, &TrayHost::changed, this, &Application::onTrayHostChanged);
    QObject::connect(&m_trayHost, &TrayHost::missing, this, &Application::onTrayHostMissing);
    onTrayHostChanged();
    whenReopened([this] { m_windows.open(QStringLiteral("main")); });
    // Also for a hidden start: a Mac reports a later opening only after this.
    whenLaunched([this, hidden](bool atLogin) {
        if (!hidden && !atLogin)
            m_windows.open(QStringLiteral("main"));
    });
    if (const auto advice = misplaced()) {
        auto *const box = new QMessageBox(QMessageBox::Warning, tr("Veldmark"),
                                          advice->translated(), QMessageBox::Ok);
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->open(); // the program can be used meanwhile
    }
    begin(connectNow);
    return {};
}

QCoro::Task<void> Application::begin(bool connectNow)
{
    const QPointer<QObject> self(&m_lifetime);
    co_await m_real.controller().updatePrivilegedHelper();
    if (!self)
        co_return;
    if (connectNow && !locksOptions(m_real.controller().phase()))
        co_await m_real.controller().connect();
    else
        co_await m_real.controller().autoConnectIfEnabled();
}

void Application::onTrayHostChanged()
{
    m_isToldHidden = false;
    if (m_tray || !m_trayHost.isPresent())
        return;
    const bool isMenuBar = m_real.controller().profile().iconInMenuBar;
    m_tray = std::make_unique<Tray>(m_session,
                                    isMenuBar ? Tray::Place::menuBar : Tray::Place::tray);
    QObject::connect(m_tray.get(), &Tray::quitWanted, &m_guard, &QuitGuard::quit);
    QObject::connect(m_tray.get(), &Tray::openWanted, this,
                     [this] { m_windows.open(QStringLiteral("main")); });
    QObject::connect(m_tray.get(), &Tray::panelWanted, this, [this] {
        // A Wayland client cannot place its windows.
        if (QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
            m_windows.open(QStringLiteral("main"));
        else
            m_windows.togglePanel(m_tray->anchor());
    });
}

void Application::onTrayHostMissing()
{
    if (m_windows.isAnyShown())
        return;
    if (m_windows.find(QStringLiteral("main")))
        tellHidden(); // the user has closed the window
    else
        m_windows.open(QStringLiteral("main")); // else the program could not be seen or used
}

void Application::onMainClosed()
{
    if (!m_trayHost.isPresent())
        tellHidden();
}

void Application::tellHidden()
{
    if (!std::exchange(m_isToldHidden, true))
        m_alerts.tell(tr("Veldmark is still running"),
                      tr("Open Veldmark again to see its window."));
}

} // namespace veldmark
