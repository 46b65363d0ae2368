#include "checks/DNSResolver.h"

namespace veldmark {

QString DNSResolver::summary() const
{
    QStringList parts{nameservers.join(QStringLiteral(", "))};
    if (domain)
        parts.append(QStringLiteral("for *.") + *domain);
    if (interface)
        parts.append(QStringLiteral("on ") + *interface);
    return parts.join(u' ');
}

size_t qHash(const DNSResolver &resolver, size_t seed)
{
    return qHashMulti(seed, resolver.domain.has_value(), resolver.domain.value_or(QString()),
                      resolver.nameservers, resolver.interface.has_value(),
                      resolver.interface.value_or(QString()), resolver.scoped, resolver.isMDNS);
}

} // namespace veldmark
