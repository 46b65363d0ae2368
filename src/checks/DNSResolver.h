#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

namespace veldmark {

// One entry of the system's DNS configuration, whichever way the system keeps it.
struct DNSResolver {
    std::optional<QString> domain; // used only for names below it; absent: for every name
    QStringList nameservers;       // addresses in canonical form, with a port where it is unusual
    std::optional<QString> interface; // asked through this network interface
    bool scoped = false;              // used only for requests bound to its interface
    bool isMDNS = false;              // local link names; no server is asked

    // "10.0.0.53, 10.0.0.54 for *.corp.example on utun3".
    QString summary() const;

    friend bool operator==(const DNSResolver &, const DNSResolver &) = default;
};

size_t qHash(const DNSResolver &resolver, size_t seed = 0);

} // namespace veldmark
