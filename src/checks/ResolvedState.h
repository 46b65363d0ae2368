#pragma once

#include "checks/DNSResolver.h"

#include <QDBusArgument>
#include <QVariantMap>

#include <vector>

namespace veldmark {

// What systemd-resolved says about itself on the system bus, and what it means. The shapes are
// those of the bus; ResolvedBus fetches them.

// An entry of the manager's "DNSEx" property, a(iiayqs), and of "DNS", a(iiay), without the last
// two. A link's own property has the same without the index.
struct ResolvedServer {
    int linkIndex = 0; // of a link or, for some addresses of the whole system, not 0 either
    int family = 0;
    QByteArray address; // 4 or 16 bytes, network order
    quint16 port = 0;   // 0: the usual one
    QString serverName;

    // "10.8.0.3", "10.8.0.3:5353", "[2001:db8::3]:5353"; empty when there is no such address. Tor's
    // own DNS port on the loopback is written as the loopback address alone.
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
    bool isDefaultRoute = true; // gets names that belong to no link's domains
    bool isActive = true;       // is asked at all

    // From the properties of an "org.freedesktop.resolve1.Link". Missing or odd ones are as if
    // unset.
    static ResolvedLink fromProperties(const QString &interface, const QVariantMap &properties);
};

struct ResolvedState {
    std::vector<ResolvedServer> servers;         // all that are set, of the system and of the links
    std::vector<ResolvedServer> fallbackServers; // asked only when none is set
    std::vector<ResolvedLink> links;

    // From the properties of "org.freedesktop.resolve1.Manager"; the links are added by the caller.
    static ResolvedState fromProperties(const QVariantMap &properties);

    // The system's servers first (for every name, no interface), then each link's: for every name
    // when the link is a default route or has the domain ".", otherwise once per domain.
    std::vector<DNSResolver> resolvers() const;
};

} // namespace veldmark
