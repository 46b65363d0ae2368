#pragma once

#include <QString>

#include <optional>

namespace veldmark {

// The way that a packet to a far address would take from this computer now. Nothing is sent.
struct NetworkRoute {
    QString device; // "eth0", "wg0"; empty when it could not be told
    // a tunnel: what goes in leaves the computer in packets of another program's, or of the
    // kernel's
    bool isVPN = false;

    // Absent when there is no route, over IPv4 or IPv6. Any thread.
    static std::optional<NetworkRoute> present();
};

} // namespace veldmark
