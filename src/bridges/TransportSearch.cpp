#include "bridges/TransportSearch.h"

#include <QThreadPool>

namespace veldmark {

TransportSearch::TransportSearch(PlatformProfile profile)
    : m_profile(std::move(profile))
{
}

TransportSearch::~TransportSearch()
{
    m_ended.request_stop();
    const Waits waits = *m_waits; // each takes itself off the list
    for (const ResumeOnce<PluggableTransports> &wait : waits) {
        wait.complete({});
        wait.deliver();
    }
}

QCoro::Task<PluggableTransports> TransportSearch::locate(std::optional<QString> bundleVersion)
{
    const ResumeOnce<PluggableTransports> found;
    const std::shared_ptr<Waits> waits = m_waits;
    const auto wait = waits->insert(waits->end(), found);
    QThreadPool::globalInstance()->start(
        [found, profile = m_profile, version = std::move(bundleVersion), ended = m_ended.get_token()] {
            found.complete(PluggableTransports::locate(profile, version, ended));
        });
    PluggableTransports transports = co_await found;
    waits->erase(wait); // not `this`, which may be gone
    co_return transports;
}

} // namespace veldmark
