#pragma once

#include "base/Text.h"

#include <qcorotask.h>

#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

// Which of many bridges answer fastest. Only the TCP handshake is timed, and only of bridges whose
// line names their real address: obfs4 and plain ones.
namespace veldmark {

using ConnectTime = std::chrono::duration<double, std::milli>;

// How long a TCP connection to host and port takes; nothing when it fails or takes longer than the
// limit. TCPProbe::connectTime() is the real one.
using BridgeProbe = std::function<QCoro::Task<std::optional<ConnectTime>>(
    QString host, quint16 port, std::chrono::milliseconds limit)>;

inline constexpr std::chrono::milliseconds bridgeProbeLimit{3000};
inline constexpr qsizetype fastestBridgeCount = 3;

// The lines to use, fastest first. With fewer than two bridges to test that is `lines`, and nothing
// is probed nor said. Else all are probed at once, `status` hears "Testing N bridges…" before and
// the result after, and the answer is that of fastestSelection(). Lasts as long as the slowest
// probe.
QCoro::Task<QStringList> fastestBridges(QStringList lines, BridgeProbe probe,
                                        std::function<void(Text)> status);

// The steps of the above, pure. Candidates are positions in `lines`, in rising order.
std::vector<qsizetype> speedTestCandidates(const QStringList &lines);

struct FastestSelection {
    QStringList lines;
    Text status; // the line for the user
};

// The three fastest candidates (equal times in the order of `lines`), then every line that was not
// a candidate, in its order. All the lines when no candidate answered. `times` has one entry for
// each candidate, nothing for one that did not answer.
FastestSelection fastestSelection(const QStringList &lines,
                                  const std::vector<qsizetype> &candidates,
                                  const std::vector<std::optional<ConnectTime>> &times);

} // namespace veldmark
