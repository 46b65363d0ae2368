#include "controller/NetworkRestorer.h"

#include "controller/TorController.h"
#include "platform/PlatformProfile.h"

#include <QPointer>

namespace veldmark {

NetworkRestorer::NetworkRestorer(TorController &controller) : m_controller(controller)
{
    // Queued: by then the operation has set all its fields.
    for (const Field *field :
         std::initializer_list<const Field *>{&controller.phase, &controller.canCancel})
        QObject::connect(field, &Field::changed, this, &NetworkRestorer::proceed,
                         Qt::QueuedConnection);
}

void NetworkRestorer::begin()
{
    if (m_wanted)
        return;
    m_wanted = true;
    QMetaObject::invokeMethod(this, &NetworkRestorer::proceed, Qt::QueuedConnection);
}

Text NetworkRestorer::notRestoredText(const PlatformProfile &profile)
{
    return Text::tr("The network is still set up for Tor. Restore it with: %1")
        .arg(profile.manualRestoreCommand);
}

void NetworkRestorer::proceed()
{
    if (!m_wanted || m_disconnecting)
        return;
    if (isChanging(m_controller.phase()) && !m_controller.canCancel())
        return; // the next change of phase calls again
    if (isDone())
        finish();
    else
        disconnect();
}

QCoro::Task<void> NetworkRestorer::disconnect()
{
    const QPointer<NetworkRestorer> self(this);
    m_disconnecting = true;
    m_controller.dismissError(); // a later banner is about this disconnect
    co_await m_controller.restore();
    if (!self)
        co_return;
    m_disconnecting = false;
    finish();
}

void NetworkRestorer::finish()
{
    m_wanted = false;
    Q_EMIT finished(isDone());
}

// Also true when another process has replaced this session and this process has not noticed yet.
bool NetworkRestorer::isDone() const
{
    return m_controller.phase() == ConnectionPhase::disconnected
        || SessionOwner::ofAnotherProcess(m_controller.profile());
}

} // namespace veldmark
