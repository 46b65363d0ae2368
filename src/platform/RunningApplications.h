#pragma once

#include <QString>

#include <memory>
#include <vector>

namespace veldmark {

// The user's applications: what they are called and which of their processes run. An application is
// known by a path, of its desktop entry on Linux and of its bundle on macOS. Main thread; every
// call looks afresh and returns at once.
class RunningApplications {
public:
    virtual ~RunningApplications() = default;

    // The name in the user's language; made from the file name when the path names no application.
    virtual QString displayName(const QString &path) const = 0;
    // The process ids of the user's running copies, without this program itself.
    virtual std::vector<qint64> copiesOf(const QString &path) const = 0;
    // A request: the application may ask its user first, or refuse.
    virtual void askToQuit(qint64 process) = 0;
    virtual bool hasEnded(qint64 process) const = 0;
};

// For the running system. `processFolder` is /proc but in tests.
std::unique_ptr<RunningApplications> runningApplications(const QString &processFolder
                                                         = QStringLiteral("/proc"));

} // namespace veldmark
