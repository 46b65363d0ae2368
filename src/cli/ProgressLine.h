#pragma once

#include <QString>

namespace veldmark {

// Shows Tor's progress to the user: on a terminal one redrawn line (a bar, the per cent and Tor's
// message), otherwise a plain line for each change.
class ProgressLine {
public:
    ProgressLine(bool terminal, int columns) : m_terminal(terminal), m_columns(columns) { }

    // `progress` is 0…1. Returns the text to write now, empty when nothing has changed.
    QString update(double progress, const QString &detail);
    // The same for a text that contains the progress itself.
    QString update(const QString &text);
    // Ends a redrawn line, so that the next output starts on a new line.
    QString finish();

private:
    bool m_terminal;
    int m_columns;
    bool m_open = false; // a redrawn line is on the terminal without its line end
    QString m_last;
};

} // namespace veldmark
