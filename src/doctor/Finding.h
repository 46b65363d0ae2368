#pragma once

#include "base/Text.h"

#include <QString>

#include <optional>
#include <vector>

// The room that looks at this computer and says what a connect needs, what is in its way, and what
// mends it. It reads only, asks nobody on the network, and needs no root. Start here, then Machine
// (what is looked at), Checks.h (the findings, each a function of a Machine) and Examiner (which
// looks at the real computer).
namespace veldmark {

// One thing that was looked at. A plain value.
struct Finding {
    enum class Level {
        good,    // as a connect needs it
        note,    // a connect works; this is worth knowing
        unknown, // could not be told
        problem, // a connect cannot work before this is mended
    };
    // The control of the window that mends it.
    enum class Button { none, restore, download };

    QString name; // what was looked at: "tor", "ports" …; never translated
    Level level = Level::good;
    Text text;       // a sentence
    QString command; // what a user types to mend it; empty: nothing, or nothing that is known
    Button button = Button::none;
    // Of what is unknown: when it is as feared, no connect gets through.
    bool mayBlock = false;

    friend bool operator==(const Finding &, const Finding &) = default;
};

using Findings = std::vector<Finding>;

// "good", "note", "unknown", "problem".
QString levelName(Finding::Level level);

// Whether a connect can work: not with a problem among them; absent where one of them may block it
// and that can't be told.
std::optional<bool> canConnect(const Findings &findings);

} // namespace veldmark
