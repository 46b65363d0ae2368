#pragma once

#include "base/Text.h"
#include "log/TorLog.h"

namespace veldmark {

// The filter for the visible lines of a log, and the texts around them.
struct TorLogFilter {
    bool problemsOnly = false; // errors and warnings
    QString search;            // surrounding blanks and letter case do not count

    // A sentence or two in place of the lines.
    struct Placeholder {
        Text title;
        Text text; // may be empty
        friend bool operator==(const Placeholder &, const Placeholder &) = default;
    };

    // The matching lines, in order.
    QList<TorLogLine> shown(const TorLog::Snapshot &snapshot) const;

    // The reason for an empty list; absent when `shown` is not empty.
    std::optional<Placeholder> placeholder(const TorLog::Snapshot &snapshot,
                                           const QList<TorLogLine> &shown,
                                           const QString &runDirectory) const;

    static int problemCount(const TorLog::Snapshot &snapshot);
    // The complete lines, joined with line feeds.
    static QString copyText(const QList<TorLogLine> &shown);
};

} // namespace veldmark
