#include "checks/DNSResolver.h"

namespace veldmark {

Text DNSResolver::text() const
{
    Text text = nameservers.join(QStringLiteral(", "));
    if (domain)
        text = Text::tr("%1 for *.%2").arg(text, *domain);
    if (interface)
        text = Text::tr("%1 on %2").arg(text, *interface);
    return text;
}

size_t qHash(const DNSResolver &resolver, size_t seed)
{
    return qHashMulti(seed, resolver.domain.has_value(), resolver.domain.value_or(QString()),
                      resolver.nameservers, resolver.interface.has_value(),
                      resolver.interface.value_or(QString()), resolver.scoped, resolver.isMDNS);
}

} // namespace veldmark
