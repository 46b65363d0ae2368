#pragma once

#include <QString>

#include <optional>

// What the redactor's patterns leave open: whether a candidate is an address, a name, a secret.
// Pure functions.
namespace veldmark::SecretPatterns {

// An IPv4 address with a dot, "%2E" or "[.]" between its numbers, with or without "/LENGTH", as one
// of the same value for all its forms. Absent for what stays.
std::optional<QString> ipv4(const QString &candidate);

// Text of hexadecimal digits and colons. `length`: how much of it is the address. Absent for what
// stays: the loopback address, times, and too few groups.
struct Address {
    QString value;
    qsizetype length = 0;
};
std::optional<Address> ipv6(const QString &candidate);

// Whether a word with dots is a file or unit of the system, or a public name of the Tor Project.
bool isPublicName(const QString &name);
// Whether a word with "@" is a unit that every system has, or a mail address of the Tor Project.
bool isPublicAccount(const QString &account);
// Whether a path below a home is one of Veldmark's or a shell's own.
bool isOwnFile(const QString &tail);
// Whether a long word looks made by a machine: a key, a hash, an identity.
bool isRandom(const QString &word);

} // namespace veldmark::SecretPatterns
