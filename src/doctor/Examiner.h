#pragma once

#include "bridges/TransportSearch.h"
#include "doctor/Finding.h"
#include "system/ProcessRunner.h"

#include <qcorotask.h>

#include <memory>

#include <unistd.h>

namespace veldmark {

class SettingsStore;
struct Machine;

// Looks at the computer that the program runs on. Main thread; it runs tor for its version, and as
// root nft for its tables, each for five seconds at most, and searches for transports on another
// thread.
class Examiner {
public:
    // All must outlive it. Who still waits when it goes is resumed with no findings: look whether
    // you are still wanted. `user` runs this program.
    Examiner(const PlatformProfile &profile, SettingsStore &settings, ProcessRunner &processes,
             uid_t user = ::geteuid());

    QCoro::Task<Findings> examine();

private:
    // The program's standard output and complaint; absent when it cannot be started, fails or takes
    // too long.
    static QCoro::Task<std::optional<ProcessResult>> run(ProcessRunner *processes, QString program,
                                                         QStringList arguments);

    const PlatformProfile m_profile;
    SettingsStore &m_settings;
    ProcessRunner &m_processes;
    const uid_t m_user;
    std::shared_ptr<TransportSearch> m_search;
};

} // namespace veldmark
