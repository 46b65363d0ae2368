#pragma once

#include "base/Text.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

namespace veldmark {

// One entry of the system's DNS configuration, in a form common to all systems.
struct DNSResolver {
    std::optional<QString> domain;    // used only for names in it; absent: for every name
    QStringList nameservers;          // addresses in canonical form, with an unusual port
    std::optional<QString> interface; // reached through this network interface
    bool scoped = false;              // used only for requests bound to its interface
    bool isMDNS = false;              // local link names; no server gets them

    // "10.0.0.53, 10.0.0.54 for *.corp.example on utun3".
    Text text() const;
    QString summary() const { return text().english(); }

    friend bool operator==(const DNSResolver &, const DNSResolver &) = default;
};

size_t qHash(const DNSResolver &resolver, size_t seed = 0);

} // namespace veldmark
