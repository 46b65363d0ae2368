#pragma once

#include <QObject>

namespace veldmark {
Q_NAMESPACE

// The phase of the session. Only TorController's operations change it.
enum class ConnectionPhase {
    disconnected,  // no session; the network is in its normal state
    connecting,    // helper approval, Tor's start, bootstrap
    connected,     // Tor has bootstrapped and the network is routed through it
    disconnecting, // the network is being restored and Tor stopped
    stale,         // the network is still set up for Tor but no session of this run owns it
};
Q_ENUM_NS(ConnectionPhase)

// Whether another phase follows without a user's doing.
constexpr bool isChanging(ConnectionPhase phase)
{
    return phase == ConnectionPhase::connecting || phase == ConnectionPhase::disconnecting;
}

// Whether the steps to bridges and the offer of them are shown: until Tor has connected, and after
// a failure.
constexpr bool showsLadder(ConnectionPhase phase)
{
    return phase == ConnectionPhase::connecting || phase == ConnectionPhase::stale;
}

// Whether a connection begins, lasts or ends, so that the options that it was made with are locked.
constexpr bool locksOptions(ConnectionPhase phase)
{
    return phase == ConnectionPhase::connected || isChanging(phase);
}

} // namespace veldmark
