#pragma once

#include "base/Text.h"

namespace veldmark {

// Why a request over Tor's control port failed.
class ControlPortError {
public:
    enum class Kind {
        NotConnected, // the connection was never opened, or this side has closed it
        Closed,       // Tor or the connection's owner closed the connection during the call
        Tor,          // Tor refused; line() is its reply
        Network,      // the socket failed; the description is the system's text
        Malformed,    // a command that must not be sent, or data that Tor never sends
        Stranger,     // another program than Tor listens there; it got no password
        TimedOut,     // the call's time limit passed
    };

    static ControlPortError notConnected();
    static ControlPortError closed();
    static ControlPortError tor(const QString &line);
    static ControlPortError network(const QString &systemText);
    static ControlPortError malformed(const Text &sentence);
    static ControlPortError stranger();
    static ControlPortError timedOut();

    Kind kind() const { return m_kind; }
    // For Kind::Tor: the final reply line, status code included, e.g. "552 Unrecognized key".
    QString line() const { return m_kind == Kind::Tor ? m_text.english() : QString(); }
    // The sentence for the user, usually after the caller's own "Couldn't …: ".
    Text description() const;

    friend bool operator==(const ControlPortError &, const ControlPortError &) = default;

private:
    ControlPortError(Kind kind, const Text &text) : m_kind(kind), m_text(text) { }

    Kind m_kind;
    Text m_text;
};

} // namespace veldmark
