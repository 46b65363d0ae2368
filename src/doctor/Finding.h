#pragma once

#include "base/Text.h"

#include <QString>

#include <optional>
#include <vector>

// The room that examines this computer: what a connect needs, what blocks it, and the remedy. It
// only reads, sends nothing to the network and needs no root. Start here, then read Machine (the
// examined data), Checks.h (the findings, each a function of a Machine) and Examiner (for the real
// computer).
namespace veldmark {

// The result for one examined subject. A plain value.
struct Finding {
    enum class Level {
        good,    // a connect can use it
        note,    // a connect works; the user should know this
        unknown, // not known
        problem, // a connect cannot work before the user fixes this
    };
    // The window's control that fixes it.
    enum class Button { none, restore, download };

    QString name; // the subject: "tor", "ports" …; never translated
    Level level = Level::good;
    Text text;       // a sentence
    QString command; // the command that fixes it; empty: none, or none known
    Button button = Button::none;
    // For an unknown finding: in the bad case no connect works.
    bool mayBlock = false;

    friend bool operator==(const Finding &, const Finding &) = default;
};

using Findings = std::vector<Finding>;

// "good", "note", "unknown", "problem".
QString levelName(Finding::Level level);

// Whether a connect can work: false with a problem among the findings, absent when an unknown
// finding may block it.
std::optional<bool> canConnect(const Findings &findings);

} // namespace veldmark
