#include "app/Departure.h"

#include "base/Clock.h"

#include <QPointer>

#include <csignal>

namespace veldmark {

Departure::Departure(TorController &controller, Clock &clock)
    : m_clock(clock),
      m_withdrawal(controller)
{
    QObject::connect(&m_withdrawal, &Withdrawal::finished, this, &Departure::settle);
}

void Departure::onSignal(int number)
{
    if (number != SIGHUP && ++m_insistence > 1)
        Q_EMIT mayEnd(false);
    else
        leave();
}

void Departure::leave()
{
    m_leaving = true;
    restore();
}

void Departure::restore()
{
    if (m_patient)
        return;
    m_patient = true;
    m_withdrawal.begin(); // continues an earlier run that was no longer waited for
    losePatience(++m_run);
}

QCoro::Task<void> Departure::losePatience(quint64 run)
{
    const QPointer<Departure> self(this);
    const std::chrono::milliseconds limit = patience;
    co_await m_clock.sleep(limit);
    if (self && run == m_run)
        settle(false);
}

void Departure::settle(bool restored)
{
    ++m_run;
    m_patient = false;
    Q_EMIT settled(restored);
    if (m_leaving)
        Q_EMIT mayEnd(restored);
}

} // namespace veldmark
