#include "app/QuitGuard.h"

#include "controller/TorController.h"

#include <QPointer>

namespace veldmark {

QuitGuard::QuitGuard(TorController &controller, Windows &windows)
    : m_controller(controller),
      m_windows(windows)
{
    QObject::connect(&controller.killSwitch, &Field::changed, this, &QuitGuard::showWhetherClosed);
    QObject::connect(&controller.activeMode, &Field::changed, this, &QuitGuard::showWhetherClosed);
}

void QuitGuard::quit()
{
    m_controller.lookAtSession();
    // This process has no session to lose or leave.
    if (!m_controller.isSessionMarkerPresent() || m_controller.otherSession()) {
        Q_EMIT mayEnd();
        return;
    }
    if (!m_dialog) {
        m_dialog = m_windows.make(
            QStringLiteral("main/QuitDialog.qml"),
            {{QStringLiteral("strict"), staysClosed()}, {QStringLiteral("busy"), false}});
        if (!m_dialog) {
            Q_EMIT stays(); // to guard the network; the windows have shown the reason
            return;
        }
        QObject::connect(m_dialog.get(), SIGNAL(disconnectWanted()), this,
                         SLOT(onDisconnectWanted()));
        QObject::connect(m_dialog.get(), SIGNAL(quitWanted()), this, SLOT(onQuitWanted()));
        QObject::connect(m_dialog.get(), SIGNAL(cancelled()), this, SLOT(onCancelled()));
    }
    m_dialog->show();
    m_dialog->raise();
    m_dialog->requestActivate();
}

// Whether the dialogue may say that the kill switch stays on: only when it is known to be on.
bool QuitGuard::staysClosed() const
{
    const auto &rules = m_controller.killSwitch();
    return m_controller.activeMode() == RoutingMode::strict && rules && rules->blocks();
}

void QuitGuard::showWhetherClosed()
{
    if (m_dialog)
        m_dialog->setProperty("strict", staysClosed());
}

void QuitGuard::closeDialog()
{
    if (!m_dialog)
        return;
    m_dialog->disconnect(this);
    m_dialog->hide();
    // deleted later, since the dialogue may be inside one of its own signals
    m_dialog.release()->deleteLater();
}

void QuitGuard::onQuitWanted()
{
    closeDialog();
    Q_EMIT mayEnd();
}

void QuitGuard::onCancelled()
{
    m_quitAfterwards = false;
    closeDialog();
    Q_EMIT stays();
}

QCoro::Task<void> QuitGuard::disconnectAndQuit()
{
    if (m_quitAfterwards)
        co_return;
    m_quitAfterwards = true;
    if (m_dialog)
        m_dialog->setProperty("busy", true);
    const QPointer<QuitGuard> self(this);
    co_await m_controller.restore();
    if (self)
        finish();
}

void QuitGuard::finish()
{
    const bool wanted = std::exchange(m_quitAfterwards, false);
    closeDialog();
    if (!wanted)
        return;
    if (!m_controller.isSessionMarkerPresent()) {
        Q_EMIT mayEnd();
        return;
    }
    m_windows.open(QStringLiteral("main")); // its banner shows the reason
    Q_EMIT stays();
}

} // namespace veldmark
