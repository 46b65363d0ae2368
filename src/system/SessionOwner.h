#pragma once

#include <QString>

#include <optional>

#include <sys/types.h>

namespace veldmark {

struct PlatformProfile;

// Who made the session that the helper's marker tells of: the user, and the program that asked for
// it.
struct SessionOwner {
    uid_t user = 0;
    qint64 process = 0;

    friend bool operator==(const SessionOwner &, const SessionOwner &) = default;
    bool isOwnUser() const { return user == callerOfHelper(); }
    QString userName() const; // or the number, where the user has no name

    // Whom the helper takes for its caller when this process runs it: this process's user, and for
    // root whoever has become root by sudo or pkexec.
    static uid_t callerOfHelper();
    // The owner of the session of another process than this one, while that process runs. Nothing
    // where there is no session, where it was left over, or where no helper has noted it (on a
    // Mac). A process id that another process has by now does not count.
    static std::optional<SessionOwner> ofAnotherProcess(const PlatformProfile &profile);
};

} // namespace veldmark
