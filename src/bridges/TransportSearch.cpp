#include "bridges/TransportSearch.h"

#include <QThreadPool>

namespace veldmark {

TransportSearch::TransportSearch(PlatformProfile profile) : m_profile(std::move(profile)) { }

TransportSearch::~TransportSearch()
{
    m_ended.request_stop();
    const Waits waits = *m_waits; // a copy, since each wait removes itself from the list
    for (const ResumeOnce<PluggableTransports> &wait : waits) {
        wait.complete({});
        wait.deliver();
    }
}

QCoro::Task<PluggableTransports> TransportSearch::locate(std::optional<QString> bundleVersion)
{
    return search(std::move(bundleVersion), true);
}

QCoro::Task<PluggableTransports> TransportSearch::locateWithoutAsking(
    std::optional<QString> bundleVersion)
{
    return search(std::move(bundleVersion), false);
}

QCoro::Task<PluggableTransports> TransportSearch::search(std::optional<QString> bundleVersion,
                                                         bool mayAsk)
{
    const ResumeOnce<PluggableTransports> found;
    const std::shared_ptr<Waits> waits = m_waits;
    const auto wait = waits->insert(waits->end(), found);
    QThreadPool *const pool = QThreadPool::globalInstance();
    pool->start([found, profile = m_profile, version = std::move(bundleVersion),
                 ended = m_ended.get_token(), memory = m_memory, mayAsk, pool] {
        // A search that waits for a program does not count against the pool's threads.
        if (mayAsk)
            pool->releaseThread();
        const PluggableTransports transports = PluggableTransports::locate(profile, version, ended,
                                                                           memory.get(), mayAsk);
        if (mayAsk)
            pool->reserveThread();
        found.complete(transports);
    });
    PluggableTransports transports = co_await found;
    waits->erase(wait); // not `this`, which may have been destroyed
    co_return transports;
}

} // namespace veldmark
