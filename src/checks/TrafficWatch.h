#pragma once

#include "base/Clock.h"

#include <QString>

#include <optional>

namespace veldmark {

// Whether anything gets through a Tor that counts as connected, by what it is seen to send and to
// get. Asks nobody: the caller hands over one look after another.
class TrafficWatch {
public:
    // Why nothing gets through.
    enum class Stall {
        noNetwork, // this computer has no route to anywhere
        noCircuit, // Tor itself says that none of its circuits works
        noAnswer,  // Tor sends, and nothing comes back
        // noCircuit or noAnswer, and what Tor sends goes into a VPN that strict mode does not let
        // out
        vpn,
        // noCircuit or noAnswer, and a firewall of somebody else's is known to deny what goes out;
        // who asks the watch finds that out
        firewall,
    };

    struct Look {
        Clock::TimePoint at;
        // Bytes since Tor started, without those of the control port. What applications and Tor say
        // to each other is among them.
        qint64 read = 0;
        qint64 written = 0;
        std::optional<bool> hasCircuit = {}; // absent: Tor did not say
        bool hasRoute = true;
        bool isInVPN = false; // the route leads into a VPN whose own packets are refused
    };

    // Absent while something gets through, or too little is known. Takes back what it said as soon
    // as Tor has read a relay's smallest message and has a circuit.
    std::optional<Stall> take(const Look &look);

    static QString name(Stall stall); // "noNetwork" …

private:
    std::optional<Look> m_last;
    std::optional<Look> m_answer;                 // the look at which Tor had last been answered
    std::optional<Clock::TimePoint> m_unanswered; // since when Tor has sent without an answer
    std::optional<Clock::TimePoint> m_circuitless;
    int m_routeless = 0; // looks in a row
};

} // namespace veldmark
