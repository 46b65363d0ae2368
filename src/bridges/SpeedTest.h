#pragma once

#include "base/Text.h"

#include <qcorotask.h>

#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

// Finds the bridges that answer fastest. Times only the TCP handshake, and only of bridges whose
// line has their real address: obfs4 and plain ones.
namespace veldmark {

using ConnectTime = std::chrono::duration<double, std::milli>;

// How long a TCP connection to host and port takes; absent when it fails or exceeds the limit.
// TCPProbe::connectTime() is the real implementation.
using BridgeProbe = std::function<QCoro::Task<std::optional<ConnectTime>>(
    QString host, quint16 port, std::chrono::milliseconds limit)>;

inline constexpr std::chrono::milliseconds bridgeProbeLimit{3000};
inline constexpr qsizetype fastestBridgeCount = 3;

// The lines to use, fastest first. With fewer than two bridges to test, returns `lines` and probes
// nothing. Otherwise probes all at once, calls `status` with "Testing N bridges…" before and with
// the result after, and returns the lines of fastestSelection(). Takes as long as the slowest
// probe.
QCoro::Task<QStringList> fastestBridges(QStringList lines, BridgeProbe probe,
                                        std::function<void(Text)> status);

// The steps of fastestBridges(), pure. Candidates are positions in `lines`, in rising order.
std::vector<qsizetype> speedTestCandidates(const QStringList &lines);

struct FastestSelection {
    QStringList lines;
    Text status; // the status for the user
};

// The three fastest candidates (equal times in the order of `lines`), then every line that was not
// a candidate, in its order. All lines when no candidate answered. `times` has one entry for each
// candidate, absent when it did not answer.
FastestSelection fastestSelection(const QStringList &lines,
                                  const std::vector<qsizetype> &candidates,
                                  const std::vector<std::optional<ConnectTime>> &times);

} // namespace veldmark
