#pragma once

#include "base/Clock.h"

#include <QString>

#include <optional>

namespace veldmark {

// Whether traffic gets through a connected Tor, judged by the bytes that Tor sends and receives. It
// queries nothing: the caller passes one sample after another.
class TrafficWatch {
public:
    // Why no traffic gets through.
    enum class Stall {
        noNetwork, // this computer has no route to any network
        noCircuit, // Tor reports that no circuit works
        noAnswer,  // Tor sends, but receives nothing
        // noCircuit or noAnswer, and Tor's packets go into a VPN that strict mode blocks
        vpn,
        // noCircuit or noAnswer, and another program's firewall is known to deny outgoing traffic;
        // the caller finds that out
        firewall,
    };

    struct Sample {
        Clock::TimePoint at;
        // Bytes since Tor started, without the control port's. In a test network they include the
        // traffic between applications and Tor.
        qint64 read = 0;
        qint64 written = 0;
        std::optional<bool> hasCircuit = {}; // absent: Tor did not report it
        bool hasRoute = true;
        bool isInVPN = false; // the route leads into a VPN whose own packets are blocked
    };

    // Absent while traffic gets through, or when too little is known. noAnswer ends as soon as Tor
    // has read a relay's smallest message, noCircuit as soon as Tor stops reporting that no circuit
    // works.
    std::optional<Stall> take(const Sample &sample);

    static QString name(Stall stall); // "noNetwork" …

private:
    std::optional<Sample> m_last;
    std::optional<Sample> m_answer; // the last sample at which Tor had received an answer
    std::optional<Clock::TimePoint> m_unanswered; // since when Tor sends without an answer
    std::optional<Clock::TimePoint> m_circuitless;
    int m_routeless = 0; // number of samples in a row
};

} // namespace veldmark
