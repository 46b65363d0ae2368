#pragma once

#include "base/StopToken.h"

#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>

// What a transport program says about itself when it is started the way Tor starts it.
namespace veldmark {

// The transports among `asked` that `program` serves as a client. It is started as a managed proxy
// with a state folder of its own, says which listeners it has opened, and is killed; no bridge is
// contacted. Empty when it cannot be started, ends early, prints something else or has not finished
// within `limit`, or by the time that `ended` says that nobody asks any more. Blocks for up to that
// long; any thread but the one that draws.
//
// A process that is root runs it only when nobody but root can change the program or a folder
// above it; otherwise the answer is empty.
QStringList servedTransports(const QString &program, const QStringList &asked,
                             std::chrono::milliseconds limit = std::chrono::seconds(5),
                             const StopToken &ended = {});
// The same, and tells a program that serves none of them from one that gave no whole answer:
// absent.
std::optional<QStringList> answeredTransports(const QString &program, const QStringList &asked,
                                              std::chrono::milliseconds limit,
                                              const StopToken &ended);

// The transports whose listener the output of a managed proxy announces ("CMETHOD name version
// address"), in its order; ones that it reports an error for are not among them.
QStringList announcedTransports(QByteArrayView output);
// Whether the output is complete: the proxy has announced the last listener or given up.
bool isAnnouncementComplete(QByteArrayView output);

} // namespace veldmark
