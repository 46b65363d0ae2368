#pragma once

#include <QString>

#include <memory>
#include <vector>

namespace veldmark {

// The names and running processes of the user's applications. A path identifies an application: its
// desktop entry on Linux, its bundle on macOS. Main thread. Every call reads the current state and
// returns at once.
class RunningApplications {
public:
    virtual ~RunningApplications() = default;

    // The name in the user's language, or the file name when the path is not a known application.
    virtual QString displayName(const QString &path) const = 0;
    // The process ids of the user's running copies, without this program itself.
    virtual std::vector<qint64> copiesOf(const QString &path) const = 0;
    // Only a request: the application may ask its user first, or refuse.
    virtual void askToQuit(qint64 process) = 0;
    virtual bool hasEnded(qint64 process) const = 0;
};

// For the running system. `processFolder` differs from /proc only in tests.
std::unique_ptr<RunningApplications> runningApplications(const QString &processFolder
                                                         = QStringLiteral("/proc"));

} // namespace veldmark
