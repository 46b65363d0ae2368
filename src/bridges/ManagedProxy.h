#pragma once

#include "base/StopToken.h"

#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>

// Asks a transport program what it serves, by starting it the way Tor starts it.
namespace veldmark {

// The transports among `asked` that `program` serves as a client. The program is started as a
// managed proxy with its own state folder, reports the listeners that it opened, and is killed. No
// bridge is contacted. Empty when it cannot be started, ends early, prints something else or has
// not finished within `limit`, or when `ended` is requested first. Blocks for up to `limit`; any
// thread but the main one.
//
// As root, this function runs the program only when nobody but root can change it or a folder above
// it; otherwise the answer is empty.
QStringList servedTransports(const QString &program, const QStringList &asked,
                             std::chrono::milliseconds limit = std::chrono::seconds(5),
                             const StopToken &ended = {});
// Like servedTransports(), but absent when the program gave no complete answer, and empty when it
// serves none of them.
std::optional<QStringList> answeredTransports(const QString &program, const QStringList &asked,
                                              std::chrono::milliseconds limit,
                                              const StopToken &ended);

// The transports whose listeners a managed proxy's output announces ("CMETHOD name version
// address"), in its order. Transports with a reported error are left out.
QStringList announcedTransports(QByteArrayView output);
// Whether the output is complete: the proxy has announced its last listener or given up.
bool isAnnouncementComplete(QByteArrayView output);

} // namespace veldmark
