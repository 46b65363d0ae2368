#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

namespace veldmark {

// Whether the kernel holds the rules of a strict session, as the helper's watcher has last told it.
struct KillSwitch {
    enum class State {
        standing, // as they were loaded, since the session began
        putBack,  // they stand; another program had removed them, and traffic could leave meanwhile
        open,     // they are missing or changed, and the watcher could not put them back
        unknown,  // nobody has looked for a while, so nothing is claimed
    };

    State state = State::unknown;
    int missed = 0;  // how often the watcher has missed the rules
    QDateTime since; // when the state began, or began again; UTC

    // Reads the watcher's note, "standing 0 1795307640" (or "restored", "open"). Absent when it is
    // no such note.
    static std::optional<KillSwitch> parse(const QByteArray &note);
    // Only what was seen to stand blocks.
    bool blocks() const { return state == State::standing || state == State::putBack; }
    QString name() const; // "standing", "putBack", "open", "unknown"

    friend bool operator==(const KillSwitch &, const KillSwitch &) = default;
};

} // namespace veldmark
