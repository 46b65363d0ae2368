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

// Searches for transport programs in the background, on threads of the global pool. The destructor
// stops running searches, so that the program's end need not wait for them, and resumes every
// waiting caller. Main thread.
class TransportSearch {
public:
    explicit TransportSearch(PlatformProfile profile);
    // Resumes waiting callers with an empty result; each must check whether it is still wanted.
    ~TransportSearch();
    Q_DISABLE_COPY_MOVE(TransportSearch)

    // PluggableTransports::locate() with a memory of what files and programs have answered. Several
    // searches may run at once. Resumes the caller on its own thread.
    QCoro::Task<PluggableTransports> locate(std::optional<QString> bundleVersion = std::nullopt);
    // The same without starting a lyrebird that has not been asked yet. Never waits for one that is
    // being asked.
    QCoro::Task<PluggableTransports> locateWithoutAsking(std::optional<QString> bundleVersion
                                                         = std::nullopt);

private:
    using Waits = std::list<ResumeOnce<PluggableTransports>>;

    QCoro::Task<PluggableTransports> search(std::optional<QString> bundleVersion, bool mayAsk);

    const PlatformProfile m_profile;
    // Shared with searches, which may outlive this object.
    const std::shared_ptr<TransportMemory> m_memory = std::make_shared<TransportMemory>();
    StopSource m_ended;
    // Shared with waiting callers, which may outlive this object.
    const std::shared_ptr<Waits> m_waits = std::make_shared<Waits>();
};

} // namespace veldmark
