#pragma once

#include "cli/Arguments.h"

#include <QString>

#include <qcorotask.h>

#include <optional>
#include <vector>

#include <sys/types.h>

namespace veldmark {

struct PlatformProfile;

// What the helper's program tells of applications and their addresses, in the file that the profile
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

    // Absent when there is no such file, none that was written whole, or nobody at the socket: a
    // program that was killed cannot take its file along.
    static std::optional<Identities> read(const PlatformProfile &profile);
    static std::optional<Identities> parse(const QByteArray &text);
};

// `veldmarkctl identities`: this user's, for root everybody's.
QCoro::Task<ExitStatus> showIdentities(Invocation invocation, PlatformProfile profile);

// `veldmarkctl renew APP`: another address for it.
QCoro::Task<ExitStatus> renewIdentity(Invocation invocation, PlatformProfile profile);

// `veldmarkctl run-as NAME -- PROGRAM…`: becomes the program, in a group of its own; returns only
// when it cannot.
QCoro::Task<ExitStatus> runAs(Invocation invocation, PlatformProfile profile);

// What runAs() becomes. Waits in the new group until its identity is known, so that the program has
// no other one.
QStringList runAsWords(const QString &name, const QString &start, uid_t user,
                       const PlatformProfile &profile, const QStringList &program);

} // namespace veldmark
