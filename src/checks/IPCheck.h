#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QString>

// The room that verifies what the program claims: which address the world sees (NetworkProbe), and
// whether look-ups can leave around Tor (DNSCheck, ResolverSource).
namespace veldmark {

// Why a probe has no answer. Never shown to the user; the controller turns it into "no answer".
struct ProbeError {
    enum class Kind {
        transport,   // no connection, an interrupted one, or no proxy
        certificate, // TLS failed: untrusted, expired, for another host
        timedOut,
        // a status other than 200, more than the allowed size, or not the JSON asked for
        badResponse,
        cancelled, // the probe object went away
    };
    Kind kind;
    QString detail; // for the log; the system's text where there is one
    // Something on the other side of the path answered, whatever it said. Then the path is open,
    // even though nobody knows what address was seen.
    bool reachedNetwork = false;

    QString description() const { return detail; }
    friend bool operator==(const ProbeError &, const ProbeError &) = default;
};

// The exit-check service's answer.
struct IPCheck {
    bool isTor = false; // the asking address is a Tor exit
    QString ip;         // the asking address

    friend bool operator==(const IPCheck &, const IPCheck &) = default;

    // A body is never more than this many bytes; a real one has about fifty.
    static constexpr qsizetype sizeLimitBytes = 64 * 1024;

    // A JSON object with "IsTor" (true or false) and "IP" (text that is an IP address), in exactly
    // this spelling; other keys are ignored. Everything else is `badResponse`.
    static Result<IPCheck, ProbeError> fromJson(const QByteArray &body);
};

using ProbeResult = Result<IPCheck, ProbeError>;

} // namespace veldmark
