#pragma once

#include <QString>

#include <optional>

namespace veldmark {

// The route from this computer to a far address at this moment. Sends nothing.
struct NetworkRoute {
    QString device; // "eth0", "wg0"; empty when unknown
    // a tunnel: traffic leaves the computer in packets of another program or of the kernel
    bool isVPN = false;

    // Absent when there is no route over IPv4 or IPv6. Any thread.
    static std::optional<NetworkRoute> present();
};

} // namespace veldmark
