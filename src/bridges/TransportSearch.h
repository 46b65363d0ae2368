#pragma once

#include "base/ResumeOnce.h"
#include "base/StopToken.h"
#include "bridges/PluggableTransports.h"
#include "bridges/TransportMemory.h"
#include "platform/PlatformProfile.h"

#include <qcorotask.h>

#include <list>
#include <memory>
#include <optional>

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

    // PluggableTransports::locate(), which remembers what files and programs have answered. Several
    // may be under way at once. Resumes the caller on its own thread.
    QCoro::Task<PluggableTransports> locate(std::optional<QString> bundleVersion = std::nullopt);
    // The same without starting a lyrebird that has not been asked yet. Never waits for one that is
    // being asked.
    QCoro::Task<PluggableTransports> locateWithoutAsking(std::optional<QString> bundleVersion
                                                         = std::nullopt);

private:
    using Waits = std::list<ResumeOnce<PluggableTransports>>;

    QCoro::Task<PluggableTransports> search(std::optional<QString> bundleVersion, bool mayAsk);

    const PlatformProfile m_profile;
    // outlives this in searches
    const std::shared_ptr<TransportMemory> m_memory = std::make_shared<TransportMemory>();
    StopSource m_ended;
    // outlives this in those who wait
    const std::shared_ptr<Waits> m_waits = std::make_shared<Waits>();
};

} // namespace veldmark
