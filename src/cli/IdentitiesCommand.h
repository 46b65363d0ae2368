#pragma once

#include "cli/Arguments.h"

#include <QJsonArray>
#include <QString>

#include <qcorotask.h>

#include <sys/types.h>

namespace veldmark {

struct PlatformProfile;

// `veldmarkctl identities`: this user's identities; for root those of all users. With their exits
// and sites, where an instance is connected.
QCoro::Task<ExitStatus> showIdentities(Invocation invocation, PlatformProfile profile);

// The exits that an application uses now, each an object with "ip", "country" and "sites".
// `circuits`: as `circuits --json` has them. For onion services, which have no exit, the first two
// are null.
QJsonArray exitsOf(const QString &application, const QJsonArray &circuits);
// Such an exit for people: "DE 192.0.2.7: a.example, b.example".
QString exitLine(const QJsonObject &exit);

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
