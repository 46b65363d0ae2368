#pragma once

#include "base/Text.h"
#include "log/TorLog.h"

namespace veldmark {

// What is shown of a log, and the words round it.
struct TorLogFilter {
    bool problemsOnly = false; // errors and warnings
    QString search;            // blanks round it don't count; letter case doesn't either

    // A sentence or two in place of lines.
    struct Placeholder {
        Text title;
        Text text; // may be empty
        friend bool operator==(const Placeholder &, const Placeholder &) = default;
    };

    // The lines that pass, in order.
    QList<TorLogLine> shown(const TorLog::Snapshot &snapshot) const;

    // Why there is nothing to show; nothing when `shown` is not empty.
    std::optional<Placeholder> placeholder(const TorLog::Snapshot &snapshot,
                                           const QList<TorLogLine> &shown,
                                           const QString &runDirectory) const;

    static int problemCount(const TorLog::Snapshot &snapshot);
    // The whole lines, joined with line feeds.
    static QString copyText(const QList<TorLogLine> &shown);
};

} // namespace veldmark
