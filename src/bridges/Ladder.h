#pragma once

#include "base/Text.h"
#include "bridges/BridgeChoice.h"
#include "bridges/PluggableTransports.h"

#include <QStringList>

#include <array>
#include <chrono>
#include <optional>
#include <vector>

// The ladder: what is tried one after the other where Tor's own way is blocked. Pure; any thread.
namespace veldmark {

// Whether bridges are tried when Tor cannot connect.
enum class Climb {
    never,
    ask,    // they are offered
    always, // without asking
};

inline constexpr std::array allClimbs = {Climb::never, Climb::ask, Climb::always};

// The value in the settings; never translated.
QString rawValue(Climb climb);
std::optional<Climb> climbFromRawValue(QStringView raw);

// Bridges that are tried together. `off` is Tor without bridges.
struct Rung {
    BridgeChoice choice = BridgeChoice::off;
    QStringList lines;
    friend bool operator==(const Rung &, const Rung &) = default;
};

// What came of a rung.
struct LadderStep {
    BridgeChoice rung = BridgeChoice::off;
    Text result;                // a sentence
    std::optional<int> seconds; // that it took; absent while it is being tried
    friend bool operator==(const LadderStep &, const LadderStep &) = default;
};

namespace Ladder {

inline constexpr qsizetype mostTogether = 10; // bridges of a rung

// The name for people: "Direct", "Your bridges", "obfs4", "Snowflake", "meek".
Text name(BridgeChoice rung);
// The name in the published state: the setting's value, or "direct".
QString rawName(BridgeChoice rung);

// The step in one line, for people.
Text line(const LadderStep &step);

// What can be tried after `first`, whose bridges are `used`: the user's own bridges, obfs4,
// snowflake and meek, as far as lines and programs for them are there. Never without bridges, since
// who has chosen bridges does not want to be seen without. No line is in two rungs.
std::vector<Rung> rungs(BridgeChoice first, const QStringList &used, const QString &customBridges,
                        const PluggableTransports &found);

// Those of them with which Tor's account still reaches nothing but bridges: without transports
// that meet their bridge through a front or a broker.
std::vector<Rung> confined(std::vector<Rung> rungs);
// Whether a session over these bridges is confined so.
bool isConfined(const QStringList &lines);

// The helper's options that keep these rungs in reserve: --reserve with each line, and the
// programs.
QStringList words(const std::vector<Rung> &rungs, const PluggableTransports &found);

// The command that has Tor use these bridges, and no others.
QString command(const QStringList &lines);

// How long bridges may take until one of them answers; for no lines, relays.
std::chrono::seconds patience(const QStringList &lines);
// After how many failures a refusal counts: of each of these bridges, or of some of them. A single
// relay that is out of order says nothing of the network.
int refusals(const QStringList &lines);

} // namespace Ladder

// Judges one rung by Tor's reports while it is being tried.
class RungWatch {
public:
    // What Tor says of it.
    struct Report {
        int progress = 0;       // per cent; Tor never takes it back
        bool isRefused = false; // by so many that others need not be waited for
        qint64 received = 0;    // bytes, since Tor's start
    };
    enum class Sign {
        trying,
        refused, // what was asked refuses, or cannot be reached
        silent,  // nothing answered in time
        stalled, // something has answered, but Tor gets no further
    };
    // From this progress on a relay or bridge has answered as one (Tor's "handshake_done").
    static constexpr int answered = 15; // per cent
    static constexpr std::chrono::seconds refusedPatience{5};
    static constexpr std::chrono::seconds stalledPatience{45};
    // What a slow network brings in that time (3 KB/s): Tor gets on, although its progress stands
    // still while it loads the list of relays.
    static constexpr qint64 slowBytes = 128 * 1024;
    // Where an earlier rung has had an answer, Tor's progress does not show this rung's.
    static constexpr std::chrono::seconds unseenPatience{30};
    static constexpr qint64 answerBytes = 16 * 1024; // more than a handshake; shows an answer there

    // `before`: Tor's progress when the rung begins.
    RungWatch(std::chrono::seconds patience, int before)
        : m_patience(before < answered ? patience : std::max(patience, unseenPatience)),
          m_refusedPatience(before < answered ? refusedPatience : m_patience),
          m_best(before),
          m_isUnseen(before >= answered)
    {
    }

    // `elapsed`: since the rung began; never falls from one call to the next.
    Sign look(const Report &report, std::chrono::nanoseconds elapsed);
    // In this rung.
    bool hasAnswered() const { return m_moved.has_value(); }

private:
    std::chrono::seconds m_patience;
    std::chrono::seconds m_refusedPatience;
    int m_best;
    bool m_isUnseen;
    std::optional<qint64> m_received;                // at the last progress
    std::chrono::nanoseconds m_advanced{0};          // the last progress
    std::optional<std::chrono::nanoseconds> m_moved; // the last progress after an answer
};

} // namespace veldmark
