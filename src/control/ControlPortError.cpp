#include "control/ControlPortError.h"

namespace veldmark {

ControlPortError ControlPortError::notConnected()
{
    return {Kind::NotConnected, Text::tr("Not connected to Tor's control port.")};
}

ControlPortError ControlPortError::closed()
{
    return {Kind::Closed, Text::tr("Tor closed the control connection.")};
}

ControlPortError ControlPortError::tor(const QString &line)
{
    return {Kind::Tor, line};
}

ControlPortError ControlPortError::network(const QString &systemText)
{
    return {Kind::Network, systemText};
}

ControlPortError ControlPortError::malformed(const Text &sentence)
{
    return {Kind::Malformed, sentence};
}

ControlPortError ControlPortError::stranger()
{
    return {Kind::Stranger, Text::tr("A program other than Tor listens on Tor's control port.")};
}

ControlPortError ControlPortError::timedOut()
{
    return {Kind::TimedOut, Text::tr("Tor didn't answer on its control port in time.")};
}

Text ControlPortError::description() const
{
    return m_kind == Kind::Tor ? Text::tr("Tor replied: %1").arg(m_text) : m_text;
}

} // namespace veldmark
