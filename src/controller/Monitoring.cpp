#include "controller/TorController.h"

#include "base/Clock.h"
#include "checks/NetworkProbe.h"
#include "control/ControlConnection.h"
#include "control/ControlPort.h"
#include "system/OtherFirewalls.h"

#include <QPointer>

#include <utility>

using namespace std::chrono_literals;

namespace veldmark {

namespace {

constexpr auto monitorInterval = 2s;
constexpr auto counterReadLimit = 3s; // a tor that is stopped, not dead, must not stop the loop
constexpr int ticksPerDNSCheck = 15;  // every 30 seconds
constexpr int failuresUntilDead = 3;

// Stays as long as it is so.
const Text offlineText = Text::tr(
    "Tor hasn't confirmed that it is on the network again, so nothing may get through. Veldmark goes on "
    "telling it to; else disconnect and connect again.");
const QString readKey = QStringLiteral("traffic/read");
const QString writtenKey = QStringLiteral("traffic/written");
const QString establishedKey = QStringLiteral("status/circuit-established");

} // namespace

TorController::Attempt TorController::startAttempt()
{
    isChecking = false;
    isOptimizing = false;
    m_isSettlingIn = false;
    optimizeStatus = std::nullopt;
    if (leakStatus().kind() == LeakStatus::Kind::checking)
        leakStatus = leakStatus().isExposed() ? LeakStatus::exposed(leakStatus().address())
                                              : LeakStatus::notTested();
    if (dnsStatus().kind() == DNSStatus::Kind::checking)
        dnsStatus = DNSStatus::unknown();
    return ++m_attempt;
}

std::optional<Text> TorController::failure() const
{
    return errorMessage() == m_killSwitchMessage || errorMessage() == offlineText ? std::nullopt
                                                                                  : errorMessage();
}

void TorController::startMonitoring()
{
    monitor(++m_monitor);
}

void TorController::stopMonitoring()
{
    ++m_monitor;
    denyingFirewalls = QStringList();
    stall = std::nullopt;
}

void TorController::lookAtTraffic(std::optional<bool> hasCircuit)
{
    const auto route = m_services.route();
    const ControlTraffic own = m_services.controlPort.traffic();
    const bool wasStalled = stall().has_value();
    std::optional<TrafficWatch::Stall> found = m_network.traffic.take(
        {.at = m_services.clock.now(),
         .read = qint64(bytesRead()) - own.sent,
         .written = qint64(bytesWritten()) - own.received,
         .hasCircuit = hasCircuit,
         .hasRoute = route.has_value(),
         .isInVPN = activeMode() == RoutingMode::strict && route && route->isVPN});
    // Asked only now: who is answered is not denied.
    QStringList others = found && found != TrafficWatch::Stall::noNetwork
        ? OtherFirewalls::denying(m_services.profile)
        : QStringList();
    others.removeIf([this](const QString &name) { return m_network.passed.contains(name); });
    if (!others.isEmpty())
        found = TrafficWatch::Stall::firewall;
    denyingFirewalls = others;
    stall = found;
    if (!wasStalled && stall())
        forgetExit(); // what was verified may be another one when traffic flows again
    if (wasStalled && !stall()) {
        forgetExit(); // checks that are under way have asked while nothing got through
        runChecks();
    }
}

QCoro::Task<void> TorController::monitor(quint64 run)
{
    const QPointer<TorController> self(this);
    const QStringList keys = {readKey, writtenKey, establishedKey};
    // Tor closes what it has and begins anew. It would send into connections of an address that is
    // gone for minutes.
    const QStringList goOn = {QStringLiteral("SETCONF DisableNetwork=0")};
    const QStringList beginAnew = QStringList{QStringLiteral("SETCONF DisableNetwork=1")} + goOn;
    quint64 tick = 0;
    int failures = 0;
    for (;;) {
        co_await m_services.clock.sleep(monitorInterval);
        if (!self || run != m_monitor)
            co_return;
        if (phase() != ConnectionPhase::connected || !m_controlPassword)
            continue;
        const bool hasMoved = m_network.addresses.haveMoved(m_services.ownAddresses());
        const bool isStale = std::exchange(m_network.hasSlept, false) || hasMoved;
        if (isStale || m_network.mayBeOffline) {
            if (isStale)
                forgetExit(); // what was verified was another way out
            const auto replies = co_await m_services.controlPort.batch(
                isStale ? beginAnew : goOn, *m_controlPassword, counterReadLimit);
            if (!self || run != m_monitor)
                co_return;
            m_network.mayBeOffline = !replies || !replies->back(); // no answer, or Tor's refusal
            if (m_network.mayBeOffline)
                // what else has failed is to be read first
                errorMessage = errorMessage().value_or(offlineText);
            else if (errorMessage() == offlineText)
                errorMessage = std::nullopt;
            if (!m_network.mayBeOffline && phase() == ConnectionPhase::connected && !isChecking())
                runChecks();
        }
        if (++tick % ticksPerDNSCheck == 0) {
            co_await checkDNS(false);
            if (!self || run != m_monitor)
                co_return;
        }
        const auto counters = co_await m_services.controlPort.getInfo(keys, *m_controlPassword,
                                                                      counterReadLimit);
        if (!self || run != m_monitor)
            co_return;
        if (counters) {
            failures = 0;
            bool valid = false;
            if (const quint64 read = counters->value(readKey).toULongLong(&valid); valid)
                bytesRead = read;
            if (const quint64 written = counters->value(writtenKey).toULongLong(&valid); valid)
                bytesWritten = written;
            const QString established = counters->value(establishedKey);
            if (phase() == ConnectionPhase::connected)
                lookAtTraffic(established.isEmpty()
                                  ? std::nullopt
                                  : std::optional(established != QLatin1String("0")));
        } else if (++failures >= failuresUntilDead && phase() == ConnectionPhase::connected) {
            torDied();
            co_return;
        }
    }
}

void TorController::wake()
{
    if (phase() != ConnectionPhase::connected && phase() != ConnectionPhase::disconnecting)
        return;
    // the loop makes Tor begin anew, and checks; also of a session that a refused disconnect leaves
    m_network.hasSlept = true;
    forgetExit();
}

void TorController::torDied()
{
    startAttempt(); // checks that are still running belong to a session that is over
    stopMonitoring();
    if (!isSessionMarkerPresent()) { // somebody has restored the network by hand
        errorMessage = Text::tr(
            "Tor stopped running, and your network is no longer set up for it.");
        endSession();
        return;
    }
    m_torStopped = true;
    lookAtKillSwitch(); // what is said of it now must be true now
    statusDetail = Text::tr("Tor stopped running");
    errorMessage = m_killSwitchMessage = deathMessage();
    phase = ConnectionPhase::stale;
    // perhaps Tor ended because another process's session has taken this one's place
    lookAtSession();
}

QCoro::Task<TorController::TimedProbe> TorController::timedViaTor()
{
    const QPointer<TorController> self(this);
    const auto start = m_services.clock.now();
    const auto answer = co_await m_services.probe.viaTor();
    if (!self) // and perhaps no clock either; nobody reads this
        co_return TimedProbe{answer, 0ms};
    const auto elapsed = m_services.clock.now() - start;
    co_return TimedProbe{answer, std::chrono::duration_cast<std::chrono::milliseconds>(elapsed)};
}

QCoro::Task<void> TorController::runChecks()
{
    if (phase() != ConnectionPhase::connected || isChecking())
        co_return;
    const QPointer<TorController> self(this);
    const Attempt attempt = m_attempt;
    isChecking = true;
    leakStatus = LeakStatus::checkingAfter(leakStatus());
    lookAtKillSwitch();
    quint64 identity = m_identity;
    auto throughTor = timedViaTor();
    // In strict mode both run side by side: nothing of the direct one leaves. In proxy mode it
    // does, and the service is not to see the exit's address and the user's in the same moment.
    const bool together = activeMode() == RoutingMode::strict;
    TimedProbe tor{};
    if (!together) {
        tor = co_await throughTor;
        if (!self || !isCurrent(attempt))
            co_return;
    }
    auto aroundTor = m_services.probe.direct();
    if (together)
        tor = co_await throughTor;
    const ProbeResult direct = co_await aroundTor;
    if (!self || !isCurrent(attempt))
        co_return;                   // the session ended meanwhile: what it had is no longer true
    while (identity != m_identity) { // new circuits meanwhile: that was the exit of the old ones
        identity = m_identity;
        const TimedProbe again = co_await timedViaTor();
        if (!self || !isCurrent(attempt))
            co_return;
        tor = again;
    }
    const auto verdict = NetworkVerdict::of(tor.answer, tor.elapsed, direct, activeMode());
    latencyMs = verdict.latencyMs;
    exitIP = verdict.exitIP;
    torVerified = verdict.torVerified;
    lookAtKillSwitch(); // without the rules, silence is not their doing
    leakStatus = believable(verdict.leakStatus);
    co_await checkDNS(true);
    if (!self || !isCurrent(attempt))
        co_return;
    isChecking = false;
    if (identity != m_identity) // new circuits while the DNS test ran
        checkExit();
}

void TorController::forgetExit()
{
    ++m_identity;
    exitIP = std::nullopt;
    torVerified = std::nullopt;
}

QCoro::Task<void> TorController::checkExit()
{
    if (phase() != ConnectionPhase::connected || isChecking())
        co_return; // the checks that are under way ask once more by themselves
    const QPointer<TorController> self(this);
    const Attempt attempt = m_attempt;
    isChecking = true;
    for (quint64 identity = m_identity;; identity = m_identity) {
        const TimedProbe tor = co_await timedViaTor();
        if (!self || !isCurrent(attempt))
            co_return;
        if (identity == m_identity) {
            showExit(tor.answer);
            break;
        }
    }
    isChecking = false;
}

void TorController::showExit(const ProbeResult &answer)
{
    exitIP = answer ? std::optional(answer->ip) : std::nullopt;
    torVerified = answer && answer->isTor;
}

} // namespace veldmark
