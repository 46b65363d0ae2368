#pragma once

#include "cli/Arguments.h"

#include <QString>

#include <qcorotask.h>

#include <optional>
#include <vector>

#include <sys/types.h>

namespace veldmark {

struct PlatformProfile;

// The identity program's list of applications and their addresses, in the file that the profile
// names.
struct Identities {
    struct Identity {
        uid_t user = 0;
        QString address;
        // as the program writes it: letters, digits and a few signs, others as \xNN
        QString application;
    };
    bool standing = false; // the firewall's table is there
    std::vector<Identity> all;

    // Absent when the file does not exist or is incomplete, or no process listens on the socket: a
    // killed program leaves its file behind.
    static std::optional<Identities> read(const PlatformProfile &profile);
    static std::optional<Identities> parse(const QByteArray &text);
};

// `veldmarkctl identities`: this user's identities; for root those of all users.
QCoro::Task<ExitStatus> showIdentities(Invocation invocation, PlatformProfile profile);

// `veldmarkctl renew APP`: gives the application another address.
QCoro::Task<ExitStatus> renewIdentity(Invocation invocation, PlatformProfile profile);

// `veldmarkctl run-as NAME -- PROGRAM…`: replaces this process with the program, in its own group.
// Returns only on failure.
QCoro::Task<ExitStatus> runAs(Invocation invocation, PlatformProfile profile);

// The command line that runAs() executes. It waits in the new group until its identity is known, so
// that the program never has another identity.
QStringList runAsWords(const QString &name, const QString &start, uid_t user,
                       const PlatformProfile &profile, const QStringList &program);

} // namespace veldmark
