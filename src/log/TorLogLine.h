#pragma once

#include <QList>
#include <QString>

#include <optional>

// The room of Tor's log: TorLog reads the files that Tor and its launcher write, TorLogStore
// watches them, TorLogFilter selects the lines for a window or a command, and transportTrouble()
// reports problems of transport programs.
namespace veldmark {

// One line of the merged log.
struct TorLogLine {
    // A lower number is more severe; `error` and `warning` are problems.
    enum class Level { error = 0, warning = 1, notice = 2, info = 3 };

    int id = 0; // position in its snapshot
    // as Tor writes it ("Nov 16 00:41:07.123"); absent in other formats
    std::optional<QString> time;
    Level level = Level::info;
    QString message; // the text after the level; the whole line in other formats
    QString raw;     // the whole line

    bool isProblem() const { return level < Level::notice; }

    friend bool operator==(const TorLogLine &, const TorLogLine &) = default;

    // Parses "Nov 16 00:41:07.123 [warn] text", exactly as this pattern would:
    //     ^([A-Z][a-z]{2} +\d{1,2} [0-9:.]+) \[(\w+)\] (.*)$
    // The level of any other line is guessed from its words, and is never `notice`. `line` has no
    // line breaks.
    static TorLogLine parse(const QString &line, int id);
};

} // namespace veldmark
