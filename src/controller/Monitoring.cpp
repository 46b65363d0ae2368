#include "controller/TorController.h"

#include "base/Clock.h"
#include "checks/NetworkProbe.h"
#include "control/ControlConnection.h"
#include "control/ControlPort.h"
#include "system/OtherFirewalls.h"

#include <QPointer>

#include <algorithm>
#include <utility>

using namespace std::chrono_literals;

namespace veldmark {

namespace {

constexpr auto monitorInterval = 2s;
constexpr auto counterReadLimit = 3s; // a stopped, not dead, tor must not block the loop
constexpr int ticksPerDNSCheck = 15;  // every 30 seconds
constexpr int failuresUntilDead = 3;

// The banner while this state lasts.
const Text offlineText = Text::tr(
    "Tor hasn't confirmed that it uses the network again, so traffic may not get through. Veldmark keeps telling Tor to. If this lasts, disconnect and connect again.");
const QString readKey = QStringLiteral("traffic/read");
const QString writtenKey = QStringLiteral("traffic/written");
constexpr qsizetype lineEndBytes = 2; // of a command
const QString establishedKey = QStringLiteral("status/circuit-established");

} // namespace

std::optional<Text> TorController::failure() const
{
    return errorMessage() == m_killSwitchMessage || errorMessage() == offlineText ? std::nullopt
                                                                                  : errorMessage();
}

void TorController::startMonitoring()
{
    monitor(next(&TorController::m_monitor));
    listenToStreams();
}

void TorController::stopMonitoring()
{
    ++m_monitor;
    denyingFirewalls = QStringList();
    stall = std::nullopt;
}

void TorController::learnWhatIsCounted(qint64 grown, qsizetype asked)
{
    // Any other number is traffic that came between.
    if (grown != 0 && grown != asked)
        return;
    m_network.countsOwn = grown == asked;
    if (grown == 0)
        m_network.traffic = {}; // bytes were taken off its samples that were not in them
}

void TorController::lookAtTraffic(std::optional<bool> hasCircuit)
{
    const auto route = m_services.route();
    const ControlTraffic own = m_network.countsOwn == false ? ControlTraffic()
                                                            : m_services.controlPort.traffic();
    const bool wasStalled = stall().has_value();
    std::optional<TrafficWatch::Stall> found = m_network.traffic.take(
        {.at = m_services.clock.now(),
         .read = qint64(bytesRead()) - own.sent,
         .written = qint64(bytesWritten()) - own.received,
         .hasCircuit = hasCircuit,
         .hasRoute = route.has_value(),
         .isInVPN = activeMode() == RoutingMode::strict && route && route->isVPN});
    QStringList others = found != TrafficWatch::Stall::noNetwork
        ? OtherFirewalls::denying(m_services.profile)
        : QStringList();
    others.removeIf([this](const QString &name) { return m_network.passed.contains(name); });
    if (!found)
        askPast(others);
    else
        m_network.isDenied = false;
    m_network.others = others;
    // While traffic gets through, no firewall denies it.
    denyingFirewalls = found || m_network.isDenied ? others : QStringList();
    if (!denyingFirewalls().isEmpty())
        found = TrafficWatch::Stall::firewall;
    stall = found;
    if (!wasStalled && stall())
        forgetExit(); // another exit may be in use when traffic flows again
    if (wasStalled && !stall()) {
        forgetExit(); // running checks have asked while nothing got through
        runChecks();
    }
}

// Tor with nothing to send does not notice that no new connection is possible. When a firewall
// begins to deny, an answer through Tor is asked for.
void TorController::askPast(const QStringList &others)
{
    const bool begins = std::any_of(others.begin(), others.end(), [this](const QString &name) {
        return !m_network.others.contains(name);
    });
    if (others.isEmpty() || exitIP())
        m_network.isDenied = false;
    else if (!begins && !isChecking() && torVerified() == false)
        m_network.isDenied = true;
    if (begins)
        forgetExit();
    if (begins || (m_network.isDenied && ++m_network.deniedLooks >= ticksPerDNSCheck)) {
        m_network.deniedLooks = 0;
        checkExit();
    }
}

QCoro::Task<void> TorController::monitor(Run run)
{
    const QStringList keys = {readKey, writtenKey, establishedKey};
    // Tor closes its connections and opens new ones. Otherwise it would use connections of a lost
    // address for minutes.
    const QStringList goOn = {QStringLiteral("SETCONF DisableNetwork=0")};
    const QStringList beginAnew = QStringList{QStringLiteral("SETCONF DisableNetwork=1")} + goOn;
    quint64 tick = 0;
    int failures = 0;
    for (;;) {
        co_await m_services.clock.sleep(monitorInterval);
        if (run.isOver())
            co_return;
        if (phase() != ConnectionPhase::connected || !m_controlPassword)
            continue;
        listenToStreams();
        const bool hasMoved = m_network.addresses.haveMoved(m_services.ownAddresses());
        const bool isStale = std::exchange(m_network.hasSlept, false) || hasMoved;
        if (isStale || m_network.mayBeOffline) {
            if (isStale)
                forgetExit(); // the verified exit belonged to the old connections
            const auto replies = co_await m_services.controlPort.batch(
                isStale ? beginAnew : goOn, *m_controlPassword, counterReadLimit);
            if (run.isOver())
                co_return;
            m_network.mayBeOffline = !replies || !replies->back(); // no answer, or Tor refused
            if (m_network.mayBeOffline)
                // An earlier error stays shown first.
                errorMessage = errorMessage().value_or(offlineText);
            else if (errorMessage() == offlineText)
                errorMessage = std::nullopt;
            if (!m_network.mayBeOffline && phase() == ConnectionPhase::connected && !isChecking())
                runChecks();
        }
        if (++tick % ticksPerDNSCheck == 0) {
            co_await checkDNS(false);
            if (run.isOver())
                co_return;
        }
        // The counter is read twice until it is known what Tor counts.
        QStringList commands = {QStringLiteral("GETINFO ") + readKey,
                                QStringLiteral("GETINFO ") + keys.join(u' ')};
        if (m_network.countsOwn)
            commands.removeFirst();
        const auto replies = co_await m_services.controlPort.batch(commands, *m_controlPassword,
                                                                   counterReadLimit);
        if (run.isOver())
            co_return;
        if (replies && replies->back()) {
            const auto counters = ControlPort::getInfoValues(*replies->back());
            failures = 0;
            bool valid = false;
            if (const quint64 read = counters.value(readKey).toULongLong(&valid); valid)
                bytesRead = read;
            if (valid && commands.size() > 1 && replies->front()) {
                const quint64 before = ControlPort::getInfoValues(*replies->front())
                                           .value(readKey)
                                           .toULongLong(&valid);
                if (valid)
                    learnWhatIsCounted(qint64(bytesRead()) - qint64(before),
                                       commands.back().size() + lineEndBytes);
            }
            if (const quint64 written = counters.value(writtenKey).toULongLong(&valid); valid)
                bytesWritten = written;
            const QString established = counters.value(establishedKey);
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
    // The monitor then restarts Tor's network and runs the checks, also when a refused disconnect
    // leaves the session up.
    m_network.hasSlept = true;
    forgetExit();
}

QCoro::Task<TorController::TimedProbe> TorController::timedViaTor()
{
    const QPointer<TorController> self(this);
    const auto start = m_services.clock.now();
    const auto answer = co_await m_services.probe.viaTor();
    if (!self) // the clock may be gone, too; the result is unused
        co_return TimedProbe{answer, 0ms};
    const auto elapsed = m_services.clock.now() - start;
    co_return TimedProbe{answer, std::chrono::duration_cast<std::chrono::milliseconds>(elapsed)};
}

QCoro::Task<void> TorController::runChecks()
{
    if (phase() != ConnectionPhase::connected || isChecking())
        co_return;
    const Run attempt = current(&TorController::m_attempt);
    isChecking = true;
    leakStatus = LeakStatus::checkingAfter(leakStatus());
    lookAtKillSwitch();
    quint64 identity = m_identity;
    auto throughTor = timedViaTor();
    // In strict mode both requests run at once, since the direct one cannot leave the computer. In
    // proxy mode it leaves, and the service must not see the exit's address and the user's at the
    // same moment.
    const bool together = activeMode() == RoutingMode::strict;
    TimedProbe tor{};
    if (!together) {
        tor = co_await throughTor;
        if (attempt.isOver())
            co_return;
    }
    auto aroundTor = m_services.probe.direct();
    if (together)
        tor = co_await throughTor;
    const ProbeResult direct = co_await aroundTor;
    if (attempt.isOver())
        co_return;                   // the session ended meanwhile: its results are stale
    while (identity != m_identity) { // new circuits meanwhile: the answer was of the old exit
        identity = m_identity;
        const TimedProbe again = co_await timedViaTor();
        if (attempt.isOver())
            co_return;
        tor = again;
    }
    const auto verdict = NetworkVerdict::of(tor.answer, tor.elapsed, direct, activeMode());
    latencyMs = verdict.latencyMs;
    exitIP = verdict.exitIP;
    torVerified = verdict.torVerified;
    lookAtKillSwitch(); // when the rules are gone, silence does not prove blocking
    leakStatus = believable(verdict.leakStatus);
    co_await checkDNS(true);
    if (attempt.isOver())
        co_return;
    isChecking = false;
    if (identity != m_identity) { // new circuits during the DNS test
        auto asking = checkExit();
        co_await asking;
    }
}

void TorController::forgetExit()
{
    ++m_identity;
    exitIP = std::nullopt;
    torVerified = std::nullopt;
    latencyMs = std::nullopt;
}

QCoro::Task<void> TorController::checkExit()
{
    if (phase() != ConnectionPhase::connected || isChecking())
        co_return; // the running checks ask again by themselves
    const Run attempt = current(&TorController::m_attempt);
    isChecking = true;
    for (quint64 identity = m_identity;; identity = m_identity) {
        const TimedProbe tor = co_await timedViaTor();
        if (attempt.isOver())
            co_return;
        if (identity == m_identity) {
            showExit(tor);
            break;
        }
    }
    isChecking = false;
}

void TorController::showExit(const TimedProbe &probe)
{
    exitIP = probe.answer ? std::optional(probe.answer->ip) : std::nullopt;
    torVerified = probe.answer && probe.answer->isTor;
    latencyMs = probe.answer ? std::optional<qint64>(probe.elapsed.count()) : std::nullopt;
}

} // namespace veldmark
