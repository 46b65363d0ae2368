#include "checks/Verdict.h"

namespace veldmark {

namespace {

using Level = Verdict::Level;
using Danger = Verdict::Danger;

Danger worst(const SessionFacts &facts)
{
    const bool isConnected = facts.phase == ConnectionPhase::connected;
    const bool isStrict = isConnected && facts.mode == RoutingMode::strict;
    const bool hasRules = facts.phase != ConnectionPhase::disconnected
        && facts.phase != ConnectionPhase::disconnecting;
    if (hasRules && facts.killSwitch == KillSwitch::State::open)
        return Danger::killSwitchOpen;
    if (isConnected && facts.isDNSLeaking)
        return Danger::dnsLeak;
    if (isStrict && facts.isExposed)
        return Danger::exposed;
    if (facts.phase == ConnectionPhase::stale)
        return Danger::leftOver;
    if (isStrict
        && facts.killSwitch.value_or(KillSwitch::State::unknown) == KillSwitch::State::unknown)
        return Danger::killSwitchUnknown;
    if (isConnected && facts.stall)
        return Danger::stalled;
    if (isConnected && facts.torVerified == false)
        return Danger::exitNotConfirmed;
    return Danger::none;
}

// The text for a stall. In strict mode the rules are in the kernel here, because otherwise a worse
// danger comes first.
Text waiting(const SessionFacts &facts, bool isStrict)
{
    using Stall = TrafficWatch::Stall;
    switch (*facts.stall) {
    case Stall::noNetwork:
        return isStrict
            ? Text::tr("This computer has no network. Traffic around Tor stays blocked.")
            : Text::tr("This computer has no network. Veldmark goes on when it is back.");
    case Stall::noCircuit:
        return isStrict ? Text::tr(
                   "Tor has no working circuit and keeps trying. Traffic around Tor stays blocked.")
                        : Text::tr("Tor has no working circuit and keeps trying.");
    case Stall::noAnswer:
        return isStrict
            ? Text::tr(
                "Tor gets no answer from the network and keeps trying. Traffic around Tor stays blocked.")
            : Text::tr("Tor gets no answer from the network and keeps trying.");
    case Stall::firewall:
        return Text::
            tr("Another firewall on this computer blocks outgoing traffic, so Tor can't connect: %1.")
                .arg(facts.firewalls.join(QStringLiteral(", ")));
    case Stall::vpn:
        break;
    }
    return Text::tr(
        "A VPN takes Tor's traffic, and strict mode does not let the VPN out. Switch the VPN off, or use proxy mode.");
}

Verdict inDanger(Danger danger, const SessionFacts &facts)
{
    const QString symbol = QStringLiteral("exclamationmark.shield");
    const Text attention = Text::tr("Needs Attention");
    const bool isStrict = facts.mode == RoutingMode::strict;
    switch (danger) {
    case Danger::killSwitchOpen:
        return {Level::danger, danger, Text::tr("Kill Switch Failed"), symbol,
                Text::tr("Traffic may leave this computer directly")};
    case Danger::dnsLeak:
        return {Level::danger, danger, Text::tr("DNS Leak"), symbol,
                isStrict && facts.isExposed
                    ? Text::tr("Lookups can go around Tor, and your real address can be seen")
                    : Text::tr("Lookups can go around Tor")};
    case Danger::exposed:
        return {Level::danger, danger, attention, symbol,
                Text::tr("Your real address can be seen. Disconnect, or run the leak test again.")};
    case Danger::killSwitchUnknown:
        return {
            Level::warning, danger, attention, symbol,
            Text::tr(
                "Veldmark can't tell whether the kill switch blocks traffic. Disconnect and connect again.")};
    case Danger::stalled:
        return {Level::warning, danger,
                facts.stall == TrafficWatch::Stall::noNetwork ? Text::tr("No Network")
                                                              : Text::tr("Nothing Gets Through"),
                symbol, waiting(facts, isStrict)};
    case Danger::exitNotConfirmed:
        return {
            Level::warning, danger, attention, symbol,
            isStrict
                ? Text::tr("All traffic is locked to Tor, but the exit could not be confirmed")
                : Text::tr(
                    "Apps that use system proxy settings go through Tor, but the exit could not be confirmed")};
    case Danger::leftOver:
    case Danger::none:
        break;
    }
    return {Level::warning, danger, attention, symbol, facts.detail};
}

} // namespace

Verdict Verdict::of(const SessionFacts &facts)
{
    if (const Danger found = worst(facts); found != Danger::none)
        return inDanger(found, facts);
    switch (facts.phase) {
    case ConnectionPhase::connecting:
        return {Level::working, Danger::none, Text::tr("Connecting…"),
                QStringLiteral("shield.lefthalf.filled"), facts.detail};
    case ConnectionPhase::disconnecting:
        return {Level::working, Danger::none, Text::tr("Disconnecting…"),
                QStringLiteral("shield.lefthalf.filled"), facts.detail};
    case ConnectionPhase::connected:
        if (facts.mode != RoutingMode::strict)
            return {Level::info, Danger::none, Text::tr("Proxy Active"),
                    QStringLiteral("lock.shield.fill"), facts.detail};
        return {facts.torVerified == true ? Level::good : Level::working, Danger::none,
                Text::tr("Protected"), QStringLiteral("lock.shield.fill"), facts.detail};
    case ConnectionPhase::disconnected:
    case ConnectionPhase::stale:
        break;
    }
    return {Level::neutral, Danger::none, Text::tr("Not Protected"), QStringLiteral("shield.slash"),
            facts.detail};
}

QString Verdict::levelName() const
{
    switch (level) {
    case Level::neutral:
        return QStringLiteral("neutral");
    case Level::working:
        return QStringLiteral("working");
    case Level::good:
        return QStringLiteral("good");
    case Level::info:
        return QStringLiteral("info");
    case Level::warning:
        return QStringLiteral("warning");
    case Level::danger:
        break;
    }
    return QStringLiteral("danger");
}

} // namespace veldmark
