#include "checks/DNSStatus.h"

namespace veldmark {

QString DNSStatus::name() const
{
    switch (m_kind) {
    case Kind::leak:
        return QStringLiteral("leak");
    case Kind::unknown:
        return QStringLiteral("unknown");
    case Kind::checking:
        return QStringLiteral("checking");
    case Kind::throughTor:
        return QStringLiteral("throughTor");
    case Kind::unverified:
        break;
    }
    return QStringLiteral("unverified");
}

QString DNSStatus::text() const
{
    switch (m_kind) {
    case Kind::leak:
        return QStringLiteral("DNS can go around Tor via: ") + m_leaks.join(QStringLiteral("; "));
    case Kind::unknown:
        return QStringLiteral("DNS: not tested yet.");
    case Kind::checking:
        return QStringLiteral("DNS: testing…");
    case Kind::throughTor:
        return QStringLiteral("DNS: a test lookup went through Tor.");
    case Kind::unverified:
        break;
    }
    return QStringLiteral("DNS: settings point at Tor, but a test lookup couldn't be confirmed.");
}

} // namespace veldmark
