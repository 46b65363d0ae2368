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

// Examines the computer that the program runs on. Main thread. It runs tor for its version and, as
// root, nft for its tables, each for at most five seconds. It searches for transports on another
// thread.
class Examiner {
public:
    // All parameters must outlive the object. After its destruction a waiting examine() resumes
    // with no findings; the caller checks whether its own object still exists. `user` is the
    // account of this process.
    Examiner(const PlatformProfile &profile, SettingsStore &settings, ProcessRunner &processes,
             uid_t user = ::geteuid());

    QCoro::Task<Findings> examine();

    // The program's standard output and standard error; absent when it can't start, fails or
    // exceeds the time limit.
    static QCoro::Task<std::optional<ProcessResult>> run(ProcessRunner *processes, QString program,
                                                         QStringList arguments);

private:
    const PlatformProfile m_profile;
    SettingsStore &m_settings;
    ProcessRunner &m_processes;
    const uid_t m_user;
    std::shared_ptr<TransportSearch> m_search;
};

} // namespace veldmark
