#pragma once

#include <QString>

#include <optional>

#include <sys/types.h>

namespace veldmark {

struct PlatformProfile;

// The owner of the session of the helper's marker: the user, and the program that requested it.
struct SessionOwner {
    uid_t user = 0;
    qint64 process = 0;

    friend bool operator==(const SessionOwner &, const SessionOwner &) = default;
    bool isOwnUser() const { return user == callerOfHelper(); }
    QString userName() const; // or the number, when the user has no name

    // The user that the helper regards as its caller when this process runs it: this process's
    // user, or for root the user who became root through sudo or pkexec.
    static uid_t callerOfHelper();
    // The owner of another process's session, while that process runs. Absent without a session,
    // for a leftover session, and when no helper has noted the owner (on macOS). A process id that
    // now belongs to a different process does not count.
    static std::optional<SessionOwner> ofAnotherProcess(const PlatformProfile &profile);
};

} // namespace veldmark
