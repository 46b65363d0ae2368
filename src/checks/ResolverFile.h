#pragma once

#include "checks/DNSResolver.h"

#include <QByteArray>

#include <vector>

namespace veldmark {

// /etc/resolv.conf as the C library reads it.
struct ResolverFile {
    // The C library asks no more servers than this; further ones are ignored.
    static constexpr qsizetype serverLimit = 3;
    // More of a file is not read.
    static constexpr qsizetype sizeLimitBytes = 1024 * 1024;

    // Canonical addresses, with the scope of a link-local one: "fe80::1%eth0".
    QStringList nameservers;
    QStringList search;   // of the last "search" or "domain" line
    QStringList options;  // of all "options" lines, in order: "ndots:2", "rotate" …
    QStringList sortlist; // "130.155.160.0/255.255.240.0" …

    friend bool operator==(const ResolverFile &, const ResolverFile &) = default;

    // A keyword counts only at the start of a line and before white space; lines that start with
    // "#" or ";" are comments; what follows a server's address is ignored, an address that is none
    // is skipped. A carriage return counts as white space: one C library skips such a line, others
    // take it, and a leak must not be missed.
    static ResolverFile parse(const QByteArray &text);

    // Empty when there is no such file, it can't be read, or it is no regular file.
    static QByteArray read(const QString &path);

    // At most one resolver, for every name. None without servers: the C library then asks this
    // computer itself.
    std::vector<DNSResolver> resolvers() const;
};

} // namespace veldmark
