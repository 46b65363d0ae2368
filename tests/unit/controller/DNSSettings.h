#pragma once

#include "checks/DNSResolver.h"
#include "checks/DNSStatus.h"

namespace veldmark {

inline DNSResolver resolver(const QStringList &servers, std::optional<QString> domain = {},
                            std::optional<QString> interface = {})
{
    DNSResolver result;
    result.nameservers = servers;
    result.domain = std::move(domain);
    result.interface = std::move(interface);
    return result;
}

inline const std::vector<DNSResolver> throughTor = {
    resolver({QStringLiteral("127.0.0.1"), QStringLiteral("::1")})};

// Two leaks and their texts.
inline const std::vector<DNSResolver> leaking = {
    resolver({QStringLiteral("192.168.1.1")}, {}, QStringLiteral("en0")),
    resolver({QStringLiteral("127.0.0.1"), QStringLiteral("10.8.0.1")}, QStringLiteral("corp"),
             QStringLiteral("utun2"))};
inline const DNSStatus leak = DNSStatus::leak(
    {QStringLiteral("192.168.1.1 on en0"), QStringLiteral("10.8.0.1 for *.corp on utun2")});

} // namespace veldmark
