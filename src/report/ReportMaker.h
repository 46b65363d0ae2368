#pragma once

#include "doctor/Examiner.h"
#include "report/SupportReport.h"

#include <QJsonObject>
#include <QStringList>

#include <qcorotask.h>

namespace veldmark {

class ProcessRunner;
class SettingsStore;
struct PlatformProfile;

// Makes a report of the computer that the program runs on. It reads files, examines like `doctor`
// (Examiner.h), and as root has nft list the kill switch's rules. It sends nothing. Main thread.
class ReportMaker {
public:
    // All parameters must outlive the object. After its destruction a waiting make() resumes with a
    // report that lacks what was not known yet; the caller checks whether its own object still
    // exists.
    ReportMaker(const PlatformProfile &profile, SettingsStore &settings, ProcessRunner &processes,
                uid_t user = ::geteuid());

    // The state as it is published, the names of its settings, and what else is wrong.
    struct PublishedFacts {
        QJsonObject state;
        QStringList settings;
        QStringList problems = {};
    };
    QCoro::Task<SupportReport> make(PublishedFacts given);

private:
    const PlatformProfile m_profile;
    ProcessRunner &m_processes;
    const uid_t m_user;
    Examiner m_examiner; // the last member: its destruction resumes its waiting callers
};

} // namespace veldmark
