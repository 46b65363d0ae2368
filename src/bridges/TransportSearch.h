#pragma once

#include "base/ResumeOnce.h"
#include "bridges/PluggableTransports.h"
#include "platform/PlatformProfile.h"

#include <qcorotask.h>

#include <list>
#include <memory>
#include <optional>
#include <stop_token>

namespace veldmark {

// Searches for transport programs beside what else happens, on threads of the global pool. Its
// destruction ends the searches that are under way, so that a program need not wait for one that
// nobody wants any more, and leaves none of its waiters behind. Main thread.
class TransportSearch {
public:
    explicit TransportSearch(PlatformProfile profile);
    // Whoever still waits is resumed here, with nothing found: look whether you are still wanted.
    ~TransportSearch();
    Q_DISABLE_COPY_MOVE(TransportSearch)

    // PluggableTransports::locate(). Several may be under way at once. Resumes the caller on its
    // own thread.
    QCoro::Task<PluggableTransports> locate(std::optional<QString> bundleVersion = std::nullopt);

private:
    using Waits = std::list<ResumeOnce<PluggableTransports>>;

    const PlatformProfile m_profile;
    std::stop_source m_ended;
    const std::shared_ptr<Waits> m_waits = std::make_shared<Waits>(); // outlives this in those who wait
};

} // namespace veldmark
