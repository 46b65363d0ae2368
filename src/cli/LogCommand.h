#pragma once

#include "cli/Arguments.h"
#include "log/TorLogLine.h"

#include <qcorotask.h>

#include <utility>

namespace veldmark {

struct PlatformProfile;

// `veldmarkctl log`: prints Tor's log, straight from its files. With `follow` it goes on printing
// new lines until the process is ended.
QCoro::Task<ExitStatus> showLog(Invocation invocation, PlatformProfile profile);

// One line of the log as it is printed: the whole line, with nothing in it that a terminal obeys.
// `coloured`: errors red, warnings yellow, the time faint.
QString logLineText(const TorLogLine &line, bool coloured);

// The lines of `now` that were not in `before`, in order. The merged log is no file that only
// grows: its beginning is cut, files rotate, and a start-up line goes when Tor logs it too.
QList<TorLogLine> newLogLines(const QList<TorLogLine> &before, const QList<TorLogLine> &now);

// What somebody who follows the log has not been shown yet.
class LogFollower {
public:
    explicit LogFollower(QList<TorLogLine> shown) : m_shown(std::move(shown)) { }
    // The new ones of `now`; they count as shown from then on.
    QList<TorLogLine> take(const QList<TorLogLine> &now)
    {
        return newLogLines(std::exchange(m_shown, now), now);
    }

private:
    QList<TorLogLine> m_shown;
};

} // namespace veldmark
