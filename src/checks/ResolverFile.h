#pragma once

#include "checks/DNSResolver.h"

#include <QByteArray>

#include <vector>

namespace veldmark {

// /etc/resolv.conf as the C library reads it.
struct ResolverFile {
    // The C library uses at most this many servers and ignores the rest.
    static constexpr qsizetype serverLimit = 3;
    // The limit for reading a file.
    static constexpr qsizetype sizeLimitBytes = 1024 * 1024;

    // Canonical addresses, with the scope of a link-local one: "fe80::1%eth0".
    QStringList nameservers;
    QStringList search;   // of the last "search" or "domain" line
    QStringList options;  // of all "options" lines, in order: "ndots:2", "rotate" …
    QStringList sortlist; // "130.155.160.0/255.255.240.0" …

    friend bool operator==(const ResolverFile &, const ResolverFile &) = default;

    // A keyword counts only at the start of a line and before white space. Lines that start with
    // "#" or ";" are comments. Text after a server's address is ignored; an invalid address is
    // skipped. A carriage return counts as white space: one C library skips such a line and others
    // accept it, and the program must not miss a leak.
    static ResolverFile parse(const QByteArray &text);

    // Empty when the file does not exist, can't be read, or is not a regular file.
    static QByteArray read(const QString &path);

    // At most one resolver, for every name. None without servers: the C library then asks this
    // computer itself.
    std::vector<DNSResolver> resolvers() const;
};

} // namespace veldmark
