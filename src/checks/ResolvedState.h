#pragma once

#include "checks/DNSResolver.h"

#include <QDBusArgument>
#include <QVariantMap>

#include <vector>

namespace veldmark {

// systemd-resolved's settings on the system bus, and their meaning. The types follow those of the
// bus; ResolvedBus reads them.

// An entry of the manager's "DNSEx" property, a(iiayqs), or of "DNS", a(iiay), which lacks the last
// two fields. A link's own property lacks the index.
struct ResolvedServer {
    int linkIndex = 0; // the link's index; not 0 for some system-wide addresses either
    int family = 0;
    QByteArray address; // 4 or 16 bytes, network order
    quint16 port = 0;   // 0: port 53
    QString serverName;

    // "10.8.0.3", "10.8.0.3:5353", "[2001:db8::3]:5353"; empty for an invalid address. Tor's own
    // DNS port on the loopback becomes the loopback address alone.
    QString text() const;
    friend bool operator==(const ResolvedServer &, const ResolvedServer &) = default;
};

struct ResolvedDomain {
    QString name;           // "." is every name
    bool routeOnly = false; // not added to short names
    friend bool operator==(const ResolvedDomain &, const ResolvedDomain &) = default;
};

// One network interface's own settings.
struct ResolvedLink {
    QString interface;
    std::vector<ResolvedServer> servers;
    std::vector<ResolvedDomain> domains;
    bool isDefaultRoute = true; // gets the names that match no link's domains
    bool isActive = true;       // resolved uses this link

    // From the properties of an "org.freedesktop.resolve1.Link". Missing or invalid properties
    // count as unset.
    static ResolvedLink fromProperties(const QString &interface, const QVariantMap &properties);
};

struct ResolvedState {
    std::vector<ResolvedServer> servers;         // all servers, of the system and of the links
    std::vector<ResolvedServer> fallbackServers; // used only when `servers` is empty
    std::vector<ResolvedLink> links;

    // From the properties of "org.freedesktop.resolve1.Manager"; the caller adds the links.
    static ResolvedState fromProperties(const QVariantMap &properties);

    // The system's servers first (for every name, no interface), then each link's: for every name
    // when the link is a default route or has the domain ".", otherwise once per domain.
    std::vector<DNSResolver> resolvers() const;
};

} // namespace veldmark
