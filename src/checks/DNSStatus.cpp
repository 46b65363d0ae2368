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

Text DNSStatus::text() const
{
    switch (m_kind) {
    case Kind::leak:
        return Text::tr("DNS can go around Tor via: %1")
            .arg(Text::joined({m_leaks.begin(), m_leaks.end()}, QStringLiteral("; ")));
    case Kind::unknown:
        return Text::tr("DNS: not tested yet.");
    case Kind::checking:
        return Text::tr("DNS: testing…");
    case Kind::throughTor:
        return Text::tr("DNS: a test lookup went through Tor.");
    case Kind::unverified:
        break;
    }
    return Text::tr("DNS: settings point at Tor, but a test lookup couldn't be confirmed.");
}

} // namespace veldmark
