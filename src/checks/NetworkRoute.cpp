#include "checks/NetworkRoute.h"

#include <QHostAddress>
#include <QNetworkInterface>

#include <cstring>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace veldmark {

namespace {

// Addresses reserved for documentation: routed like any far address, and not in use.
const QHostAddress farAway(QStringLiteral("192.0.2.1"));
const QHostAddress farAway6(QStringLiteral("2001:db8::1"));

// The local address of a datagram to `target`; null without a route. Connecting a datagram socket
// sends nothing.
QHostAddress leavingBy(const QHostAddress &target)
{
    sockaddr_storage address{};
    socklen_t size = 0;
    if (target.protocol() == QAbstractSocket::IPv4Protocol) {
        auto *const to = reinterpret_cast<sockaddr_in *>(&address);
        to->sin_family = AF_INET;
        to->sin_port = htons(9);
        to->sin_addr.s_addr = htonl(target.toIPv4Address());
        size = sizeof(sockaddr_in);
    } else {
        auto *const to = reinterpret_cast<sockaddr_in6 *>(&address);
        const Q_IPV6ADDR bytes = target.toIPv6Address();
        to->sin6_family = AF_INET6;
        to->sin6_port = htons(9);
        std::memcpy(&to->sin6_addr, &bytes, sizeof bytes);
        size = sizeof(sockaddr_in6);
    }
    const int socket = ::socket(address.ss_family, SOCK_DGRAM, 0);
    if (socket < 0)
        return {};
    QHostAddress own;
    sockaddr_storage name{};
    socklen_t length = sizeof name;
    if (::connect(socket, reinterpret_cast<sockaddr *>(&address), size) == 0
        && ::getsockname(socket, reinterpret_cast<sockaddr *>(&name), &length) == 0)
        own = QHostAddress(reinterpret_cast<sockaddr *>(&name));
    ::close(socket);
    return own;
}

} // namespace

std::optional<NetworkRoute> NetworkRoute::present()
{
    QHostAddress own = leavingBy(farAway);
    if (own.isNull())
        own = leavingBy(farAway6);
    if (own.isNull())
        return std::nullopt;
    for (const QNetworkInterface &device : QNetworkInterface::allInterfaces()) {
        for (const QNetworkAddressEntry &entry : device.addressEntries()) {
            if (!entry.ip().isEqual(own, QHostAddress::TolerantConversion))
                continue;
            // A WireGuard device, a VPN program's, or a tunnel of the kernel's. macOS gives its
            // tunnels no type of their own.
            const bool isTunnel = device.type() == QNetworkInterface::Virtual
                || device.name().startsWith(QLatin1String("utun"))
                || device.name().startsWith(QLatin1String("ipsec"));
            return NetworkRoute{device.name(), isTunnel};
        }
    }
    return NetworkRoute{};
}

} // namespace veldmark
