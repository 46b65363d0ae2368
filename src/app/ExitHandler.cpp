#include "app/ExitHandler.h"

#include "base/Clock.h"

#include <QPointer>

#include <csignal>

namespace veldmark {

ExitHandler::ExitHandler(TorController &controller, Clock &clock)
    : m_clock(clock),
      m_restorer(controller)
{
    QObject::connect(&m_restorer, &NetworkRestorer::finished, this, &ExitHandler::settle);
}

void ExitHandler::onSignal(int number)
{
    if (number != SIGHUP && ++m_insistence > 1)
        Q_EMIT mayEnd(false);
    else
        leave();
}

void ExitHandler::leave()
{
    m_leaving = true;
    restore();
}

void ExitHandler::restore()
{
    if (m_patient)
        return;
    m_patient = true;
    m_restorer.begin(); // continues an earlier run that was no longer waited for
    losePatience(++m_run);
}

QCoro::Task<void> ExitHandler::losePatience(quint64 run)
{
    const QPointer<ExitHandler> self(this);
    const std::chrono::milliseconds limit = patience;
    co_await m_clock.sleep(limit);
    if (self && run == m_run)
        settle(false);
}

void ExitHandler::settle(bool restored)
{
    ++m_run;
    m_patient = false;
    Q_EMIT settled(restored);
    if (m_leaving)
        Q_EMIT mayEnd(restored);
}

} // namespace veldmark
