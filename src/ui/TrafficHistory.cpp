#include "ui/TrafficHistory.h"

namespace veldmark {

void TrafficHistory::add(quint64 bytesRead, quint64 bytesWritten, TimePoint at)
{
    using Seconds = std::chrono::duration<double>;
    const bool restarted = bytesRead < m_read || bytesWritten < m_written;
    if (m_started && !restarted) {
        const double elapsed = Seconds(at - m_at).count();
        if (elapsed < 0.2 || (bytesRead == m_read && bytesWritten == m_written && elapsed < 1.0))
            return;
        m_samples.push_back({at, static_cast<double>(bytesRead - m_read) / elapsed,
                             static_cast<double>(bytesWritten - m_written) / elapsed});
        while (!m_samples.empty() && m_samples.front().at < at - span)
            m_samples.pop_front();
    } else if (restarted) {
        m_samples.clear();
    }
    m_started = true;
    m_read = bytesRead;
    m_written = bytesWritten;
    m_at = at;
    Q_EMIT changed();
}

void TrafficHistory::clear()
{
    if (!m_started && m_samples.empty())
        return;
    m_samples.clear();
    m_started = false;
    m_read = m_written = 0;
    Q_EMIT changed();
}

} // namespace veldmark
