#pragma once

#include "base/Text.h"

#include <QDateTime>
#include <QString>

#include <optional>

namespace veldmark {

// Whether the kernel holds the rules of a strict session, according to the helper's watcher.
struct KillSwitch {
    enum class State {
        standing, // unchanged since the session began
        // present again; another program had removed them, and traffic could leave meanwhile
        putBack,
        open,    // missing or changed, and the watcher could not restore them
        unknown, // no recent report, so the program claims nothing
    };

    State state = State::unknown;
    int missed = 0;  // how often the watcher found the rules missing or changed
    QDateTime since; // when the state began, or began again; UTC

    // Parses the watcher's note, "standing 0 1795307640" (or "restored", "open"). Absent for any
    // other text.
    static std::optional<KillSwitch> parse(const QByteArray &note);
    // True only when the rules were last seen in the kernel.
    bool blocks() const { return state == State::standing || state == State::putBack; }
    // Told when the state becomes `putBack`.
    static Text putBackText();
    QString name() const; // "standing", "putBack", "open", "unknown"

    friend bool operator==(const KillSwitch &, const KillSwitch &) = default;
};

} // namespace veldmark
