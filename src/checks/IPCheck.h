#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QString>

// The room that verifies the program's claims: which address the internet sees (NetworkProbe),
// and whether lookups can bypass Tor (DNSCheck, ResolverSource).
namespace veldmark {

// Why a probe has no answer. The user never sees it; the controller reports "no answer".
struct ProbeError {
    enum class Kind {
        transport,   // no connection, an interrupted one, or no proxy
        certificate, // TLS failed: untrusted, expired, for another host
        timedOut,
        // a status other than 200, too long an answer, or not the expected JSON
        badResponse,
        cancelled, // the probe object was destroyed
    };
    Kind kind;
    QString detail; // for the log; the system's text if there is one
    // A server at the other end answered, whatever the answer. The path is then open, although the
    // address that the server saw is unknown.
    bool reachedNetwork = false;

    QString description() const { return detail; }
    friend bool operator==(const ProbeError &, const ProbeError &) = default;
};

// The exit-check service's answer.
struct IPCheck {
    bool isTor = false; // the request came from a Tor exit
    QString ip;         // the address that the request came from

    friend bool operator==(const IPCheck &, const IPCheck &) = default;

    // The limit for a body; a real one has about fifty bytes.
    static constexpr qsizetype sizeLimitBytes = 64 * 1024;

    // A JSON object with "IsTor" (true or false) and "IP" (an IP address as text), in exactly this
    // spelling; other keys are ignored. Everything else is `badResponse`.
    static Result<IPCheck, ProbeError> fromJson(const QByteArray &body);
};

using ProbeResult = Result<IPCheck, ProbeError>;

} // namespace veldmark
