#include "control/ControlPortError.h"

namespace veldmark {

ControlPortError ControlPortError::notConnected()
{
    return {Kind::NotConnected, QStringLiteral("Not connected to Tor's control port.")};
}

ControlPortError ControlPortError::closed()
{
    return {Kind::Closed, QStringLiteral("Tor closed the control connection.")};
}

ControlPortError ControlPortError::tor(const QString &line)
{
    return {Kind::Tor, line};
}

ControlPortError ControlPortError::network(const QString &systemText)
{
    return {Kind::Network, systemText};
}

ControlPortError ControlPortError::malformed(const QString &sentence)
{
    return {Kind::Malformed, sentence};
}

ControlPortError ControlPortError::stranger()
{
    return {Kind::Stranger, QStringLiteral("Another program than Tor listens on Tor's control port.")};
}

ControlPortError ControlPortError::timedOut()
{
    return {Kind::TimedOut, QStringLiteral("Tor didn't answer on its control port in time.")};
}

QString ControlPortError::description() const
{
    return m_kind == Kind::Tor ? QStringLiteral("Tor replied: ") + m_text : m_text;
}

} // namespace veldmark
