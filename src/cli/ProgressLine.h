#pragma once

#include <QString>

namespace veldmark {

// Tor's progress for a person: on a terminal one line that is redrawn (a bar, the per cent and
// Tor's own words), elsewhere a plain line for each change.
class ProgressLine {
public:
    ProgressLine(bool terminal, int columns) : m_terminal(terminal), m_columns(columns) { }

    // `progress` 0…1. Gives what is to be written now, empty when nothing has changed.
    QString update(double progress, const QString &detail);
    // The same for progress that tells itself how far it is.
    QString update(const QString &text);
    // Ends a redrawn line, so that what follows starts on a line of its own.
    QString finish();

private:
    bool m_terminal;
    int m_columns;
    bool m_open = false; // a redrawn line stands there without its end
    QString m_last;
};

} // namespace veldmark
