#include "checks/ResolvedState.h"

#include <QHostAddress>
#include <QSet>

#include <sys/socket.h>

namespace veldmark {

namespace {

constexpr quint16 dnsPort = 53;
constexpr quint16 torDNSPort = 293; // the DNS port of the session's Tor
constexpr quint64 dnsScope = 1;     // in a link's "ScopesMask"

// The elements of the array in `value`, each read by `readElement`. Any value but a D-Bus array of
// structures gives none.
template <typename T, typename ReadElement>
std::vector<T> readArray(const QVariant &value, const QString &signature, ReadElement readElement)
{
    std::vector<T> list;
    if (value.metaType() != QMetaType::fromType<QDBusArgument>())
        return list;
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != signature)
        return list;
    argument.beginArray();
    while (!argument.atEnd()) {
        argument.beginStructure();
        list.push_back(readElement(argument));
        argument.endStructure();
    }
    argument.endArray();
    return list;
}

// `name` is "DNS" or "FallbackDNS". Prefers the property with ports, which older daemons lack.
std::vector<ResolvedServer> readServers(const QVariantMap &properties, const QString &name,
                                        bool withLink)
{
    const auto element = [withLink](const QDBusArgument &argument, bool withPort) {
        ResolvedServer server;
        if (withLink)
            argument >> server.linkIndex;
        argument >> server.family >> server.address;
        if (withPort)
            argument >> server.port >> server.serverName;
        return server;
    };
    const QString start = withLink ? QStringLiteral("a(iiay") : QStringLiteral("a(iay");
    const QVariant extended = properties.value(name + QStringLiteral("Ex"));
    if (extended.isValid())
        return readArray<ResolvedServer>(extended, start + QStringLiteral("qs)"),
                                         [&](const QDBusArgument &a) { return element(a, true); });
    return readArray<ResolvedServer>(properties.value(name), start + u')',
                                     [&](const QDBusArgument &a) { return element(a, false); });
}

ResolvedDomain readDomain(const QDBusArgument &argument)
{
    ResolvedDomain domain;
    argument >> domain.name >> domain.routeOnly;
    return domain;
}

QStringList texts(const std::vector<ResolvedServer> &servers)
{
    QStringList list;
    for (const ResolvedServer &server : servers) {
        const QString text = server.text();
        if (!text.isEmpty() && !list.contains(text))
            list.append(text);
    }
    return list;
}

bool servesEveryName(const ResolvedLink &link)
{
    for (const ResolvedDomain &domain : link.domains) {
        if (domain.name == u".")
            return true;
    }
    return link.isDefaultRoute;
}

} // namespace

QString ResolvedServer::text() const
{
    QHostAddress host;
    if (family == AF_INET && address.size() == 4) {
        quint32 value = 0;
        for (const char byte : address)
            value = value << 8 | static_cast<quint8>(byte);
        host.setAddress(value);
    } else if (family == AF_INET6 && address.size() == 16) {
        host.setAddress(reinterpret_cast<const quint8 *>(address.constData()));
    } else {
        return {};
    }
    const bool isTor = port == torDNSPort && host.isLoopback();
    if (port == 0 || port == dnsPort || isTor)
        return host.toString();
    return (family == AF_INET6 ? QStringLiteral("[%1]:%2") : QStringLiteral("%1:%2"))
        .arg(host.toString())
        .arg(port);
}

ResolvedLink ResolvedLink::fromProperties(const QString &interface, const QVariantMap &properties)
{
    ResolvedLink link;
    link.interface = interface;
    link.servers = readServers(properties, QStringLiteral("DNS"), false);
    link.domains = readArray<ResolvedDomain>(properties.value(QStringLiteral("Domains")),
                                             QStringLiteral("a(sb)"), readDomain);
    link.isDefaultRoute = properties.value(QStringLiteral("DefaultRoute"), true).toBool();
    const QVariant scopes = properties.value(QStringLiteral("ScopesMask"));
    link.isActive = !scopes.isValid() || (scopes.toULongLong() & dnsScope) != 0;
    return link;
}

ResolvedState ResolvedState::fromProperties(const QVariantMap &properties)
{
    ResolvedState state;
    state.servers = readServers(properties, QStringLiteral("DNS"), true);
    state.fallbackServers = readServers(properties, QStringLiteral("FallbackDNS"), true);
    return state;
}

std::vector<DNSResolver> ResolvedState::resolvers() const
{
    std::vector<DNSResolver> resolvers;
    QSet<QString> ofLinks;
    for (const ResolvedLink &link : links) {
        for (const QString &server : texts(link.servers))
            ofLinks.insert(server);
    }

    // The index does not distinguish the system's servers from a link's: a loopback address has the
    // loopback's index, a link-local one its link's. A server that no link lists is the system's.
    DNSResolver everywhere;
    for (const ResolvedServer &server : servers.empty() ? fallbackServers : servers) {
        const QString text = server.text();
        if (!text.isEmpty() && (server.linkIndex == 0 || !ofLinks.contains(text))
            && !everywhere.nameservers.contains(text))
            everywhere.nameservers.append(text);
    }
    if (!everywhere.nameservers.isEmpty())
        resolvers.push_back(everywhere);

    for (const ResolvedLink &link : links) {
        DNSResolver resolver;
        resolver.nameservers = texts(link.servers);
        resolver.interface = link.interface;
        if (resolver.nameservers.isEmpty() || !link.isActive)
            continue;
        if (servesEveryName(link)) {
            resolvers.push_back(resolver);
            continue;
        }
        for (const ResolvedDomain &domain : link.domains) {
            resolver.domain = domain.name;
            resolvers.push_back(resolver);
        }
    }
    return resolvers;
}

} // namespace veldmark
