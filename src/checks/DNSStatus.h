#pragma once

#include "base/Text.h"

#include <QList>
#include <QString>

namespace veldmark {

// What is known about the way of DNS lookups.
class DNSStatus {
public:
    enum class Kind {
        leak,       // lookups can bypass Tor
        unknown,    // not tested yet
        checking,   // a live test is running
        throughTor, // Tor reported a test lookup
        unverified, // no leak in the settings, but Tor did not report the test lookup
    };

    DNSStatus() = default; // unknown
    // `resolvers` are the leaking ones, in the configuration's order.
    static DNSStatus leak(QList<Text> resolvers) { return {Kind::leak, std::move(resolvers)}; }
    static DNSStatus unknown() { return {Kind::unknown, {}}; }
    static DNSStatus checking() { return {Kind::checking, {}}; }
    static DNSStatus throughTor() { return {Kind::throughTor, {}}; }
    static DNSStatus unverified() { return {Kind::unverified, {}}; }

    Kind kind() const { return m_kind; }
    bool isLeak() const { return m_kind == Kind::leak; }
    const QList<Text> &leaks() const { return m_leaks; } // empty unless `leak`
    // The case's name: "leak", "throughTor" …
    QString name() const;
    // The sentence that the user reads.
    Text text() const;

    friend bool operator==(const DNSStatus &, const DNSStatus &) = default;

private:
    DNSStatus(Kind kind, QList<Text> leaks) : m_kind(kind), m_leaks(std::move(leaks)) { }

    Kind m_kind = Kind::unknown;
    QList<Text> m_leaks;
};

} // namespace veldmark
