#pragma once

#include "cli/Arguments.h"
#include "log/TorLogLine.h"

#include <qcorotask.h>

#include <utility>

namespace veldmark {

struct PlatformProfile;

// `veldmarkctl log`: prints Tor's log from its files. With `follow` it prints new lines until the
// process ends.
QCoro::Task<ExitStatus> showLog(Invocation invocation, PlatformProfile profile);

// One line of the log for output, complete and without terminal control characters. `coloured`:
// errors red, warnings yellow, the time faint.
QString logLineText(const TorLogLine &line, bool coloured);

// The lines of `now` that `before` lacks, in order. The merged log does not only grow: its
// beginning is cut, files rotate, and a start-up line disappears when Tor logs it too.
QList<TorLogLine> newLogLines(const QList<TorLogLine> &before, const QList<TorLogLine> &now);

// Keeps track of the lines already printed.
class LogFollower {
public:
    explicit LogFollower(QList<TorLogLine> shown) : m_shown(std::move(shown)) { }
    // The new lines of `now`; they then count as printed.
    QList<TorLogLine> take(const QList<TorLogLine> &now)
    {
        return newLogLines(std::exchange(m_shown, now), now);
    }

private:
    QList<TorLogLine> m_shown;
};

} // namespace veldmark
