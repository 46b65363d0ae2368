#include "controller/Withdrawal.h"

#include "controller/TorController.h"

#include <QPointer>

namespace veldmark {

Withdrawal::Withdrawal(TorController &controller) : m_controller(controller)
{
    // Queued: by then the operation has set all its fields.
    for (const Field *field :
         std::initializer_list<const Field *>{&controller.phase, &controller.canCancel})
        QObject::connect(field, &Field::changed, this, &Withdrawal::proceed, Qt::QueuedConnection);
}

void Withdrawal::begin()
{
    if (m_wanted)
        return;
    m_wanted = true;
    QMetaObject::invokeMethod(this, &Withdrawal::proceed, Qt::QueuedConnection);
}

void Withdrawal::proceed()
{
    if (!m_wanted || m_disconnecting)
        return;
    const ConnectionPhase phase = m_controller.phase();
    const bool busy = phase == ConnectionPhase::disconnecting
        || (phase == ConnectionPhase::connecting && !m_controller.canCancel());
    if (busy)
        return; // the next change of phase calls again
    if (isDone())
        finish();
    else
        disconnect();
}

QCoro::Task<void> Withdrawal::disconnect()
{
    const QPointer<Withdrawal> self(this);
    m_disconnecting = true;
    m_controller.dismissError(); // a later banner is about this disconnect
    co_await m_controller.disconnect();
    if (!self)
        co_return;
    m_disconnecting = false;
    finish();
}

void Withdrawal::finish()
{
    m_wanted = false;
    Q_EMIT finished(isDone());
}

// Also true when another process has replaced this session and this process has not noticed yet.
bool Withdrawal::isDone() const
{
    return m_controller.phase() == ConnectionPhase::disconnected
        || SessionOwner::ofAnotherProcess(m_controller.profile());
}

} // namespace veldmark
