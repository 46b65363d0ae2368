#include "log/TorLogStore.h"

namespace veldmark {

TorLogStore::TorLogStore(TorLog log, QObject *parent, std::chrono::milliseconds interval)
    : QObject(parent),
      m_log(std::move(log))
{
    m_timer.setInterval(interval);
    connect(&m_timer, &QTimer::timeout, this, [this] { reload(false); });
}

void TorLogStore::start()
{
    m_timer.stop();
    reload(true);
    m_timer.start();
}

void TorLogStore::stop()
{
    m_timer.stop();
}

void TorLogStore::reload(bool force)
{
    // Taken before the reading: a write in between shows at the next poll.
    const QString signature = m_log.signature();
    if (!force && signature == m_signature)
        return;
    m_signature = signature;
    TorLog::Snapshot snapshot = m_log.read();
    if (snapshot == m_snapshot)
        return;
    m_snapshot = std::move(snapshot);
    Q_EMIT changed();
}

} // namespace veldmark
