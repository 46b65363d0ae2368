#include "checks/TrafficWatch.h"

using namespace std::chrono_literals;

namespace veldmark {

namespace {

// An idle connection to a relay carries padding in both directions, at least every 9.5 s.
constexpr auto answerPatience = 12s;
constexpr auto circuitPatience = 10s; // new circuits, as after a new identity, take time
// The smallest message between Tor and a relay is a cell; an application's request to Tor is
// smaller.
constexpr qint64 cellBytes = 500;
constexpr int routelessLooks = 2; // between two networks there is briefly no route

} // namespace

std::optional<TrafficWatch::Stall> TrafficWatch::take(const Sample &sample)
{
    const bool hasRead = !m_last || sample.read - m_last->read >= cellBytes;
    m_last = sample;
    if (!m_answer || sample.read - m_answer->read >= cellBytes) {
        m_answer = sample;
        m_unanswered = std::nullopt;
    } else if (sample.written - m_answer->written >= cellBytes && !m_unanswered) {
        m_unanswered = sample.at;
    }
    if (sample.hasCircuit != false)
        m_circuitless = std::nullopt;
    else if (!m_circuitless)
        m_circuitless = sample.at;
    // Incoming cells prove a route, whatever the routing table says: a bridge may be in the local
    // network.
    m_routeless = sample.hasRoute || hasRead ? 0 : m_routeless + 1;

    if (m_routeless >= routelessLooks)
        return Stall::noNetwork;
    if (m_circuitless && sample.at - *m_circuitless >= circuitPatience)
        return sample.isInVPN ? Stall::vpn : Stall::noCircuit;
    if (m_unanswered && sample.at - *m_unanswered >= answerPatience)
        return sample.isInVPN ? Stall::vpn : Stall::noAnswer;
    return std::nullopt;
}

QString TrafficWatch::name(Stall stall)
{
    switch (stall) {
    case Stall::noNetwork:
        return QStringLiteral("noNetwork");
    case Stall::noCircuit:
        return QStringLiteral("noCircuit");
    case Stall::noAnswer:
        return QStringLiteral("noAnswer");
    case Stall::firewall:
        return QStringLiteral("firewall");
    case Stall::vpn:
        break;
    }
    return QStringLiteral("vpn");
}

} // namespace veldmark
