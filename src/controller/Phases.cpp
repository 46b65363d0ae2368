#include "controller/TorController.h"

#include "platform/PlatformProfile.h"
#include "terminal/TerminalIntegration.h"

#include <QDebug>
#include <QFile>

#include <algorithm>
#include <iterator>
#include <utility>

namespace veldmark {

namespace {

constexpr qint64 markerLimitBytes = 256; // it holds one word

struct Transition {
    ConnectionPhase from;
    ConnectionPhase to;
};
// Every change of the phase. `stale` to `stale` is another session in the same phase.
bool isTransition(ConnectionPhase from, ConnectionPhase to)
{
    using enum ConnectionPhase;
    static constexpr Transition transitions[] = {
        {disconnected, connecting},  // connect()
        {disconnected, stale},       // a session of another process or run was found
        {connecting, connected},     // Tor has bootstrapped
        {connecting, disconnected},  // failed before the helper set up the network
        {connecting, stale},         // failed afterwards, or another process took the session over
        {connecting, disconnecting}, // disconnect() while `canCancel`
        {connected, disconnecting},  // disconnect()
        {connected, stale},          // Tor died, or another process took the session over
        {connected, disconnected},   // Tor died, and the network was restored from outside
        {disconnecting, disconnected}, // the helper has restored the network
        {disconnecting, connected},    // the helper refused, and the session is whole
        {disconnecting, stale},        // the helper failed half-way, or another session has begun
        {stale, connecting},           // connect()
        {stale, disconnecting},        // disconnect()
        {stale, disconnected},         // another process has restored the network
        {stale, stale},                // another process took the session over
    };
    return std::any_of(std::begin(transitions), std::end(transitions),
                       [&](const Transition &each) { return each.from == from && each.to == to; });
}

Text begunAnewText()
{
    return Text::tr(
        "Another program has ended this session and started its own. Restore Network ends that session.");
}

} // namespace

// The last step of a change: the observers of `phase` find the other fields set.
void TorController::enter(ConnectionPhase next)
{
    if (!isTransition(phase(), next))
        qCritical() << "Unexpected change of phase:" << phase() << next;
    std::vector<ResumeOnce<bool>> waiters;
    if (phase() == ConnectionPhase::disconnecting)
        waiters.swap(m_restoreWaiters);
    if (m_phaseChanges.size() >= mostPhaseChanges)
        m_phaseChanges.erase(m_phaseChanges.begin());
    m_phaseChanges.push_back({next, QDateTime::currentDateTimeUtc()});
    climbOffer = std::nullopt; // or it would be offered in the next attempt
    phase = next;              // an observer may destroy this object
    endWaits(waiters);
}

void TorController::endWaits(std::vector<ResumeOnce<bool>> &waiters)
{
    for (const ResumeOnce<bool> &waiter : std::exchange(waiters, {}))
        waiter.complete(true);
}

void TorController::enterConnecting()
{
    stopMonitoring();
    m_torStopped = false;
    forgetCircuits();
    bootstrapProgress = 0.0;
    bootstrapProblem = std::nullopt;
    ladder = {};
    m_climbing = {};
    resetSessionInfo();
    statusDetail = Text::tr("Preparing Tor…");
    enter(ConnectionPhase::connecting);
}

void TorController::enterConnected()
{
    statusDetail = activeMode() == RoutingMode::strict
        ? Text::tr("All traffic is locked to Tor")
        : Text::tr("Apps that use system proxy settings go through Tor");
    lookAtSeparation();
    enter(ConnectionPhase::connected);
}

void TorController::enterDisconnecting()
{
    canCancel = false;
    statusDetail = Text::tr("Restoring your network settings…");
    enter(ConnectionPhase::disconnecting);
}

void TorController::failBootstrap(const Text &reason)
{
    errorMessage = m_bootstrapFailure
        = Text::tr("%1 Your network is still pointed at Tor. Click Restore Network to undo.")
              .arg(reason);
    statusDetail = Text::tr("Tor didn't finish connecting");
    enter(ConnectionPhase::stale);
}

bool TorController::isSessionMarkerPresent() const
{
    return QFile::exists(m_services.profile.sessionMarker);
}

std::optional<RoutingMode> TorController::markedMode() const
{
    QFile marker(m_services.profile.sessionMarker);
    if (!marker.open(QIODevice::ReadOnly))
        return std::nullopt;
    return routingModeFromRawValue(QString::fromUtf8(marker.read(markerLimitBytes)).trimmed());
}

TorController::Run TorController::startAttempt()
{
    isChecking = false;
    isOptimizing = false;
    m_isSettlingIn = false;
    optimizeStatus = std::nullopt;
    std::vector<LadderStep> steps = ladder();
    if (!steps.empty() && !steps.back().seconds) { // its bridges are no longer tried
        steps.pop_back();
        ladder = steps;
    }
    if (leakStatus().kind() == LeakStatus::Kind::checking)
        leakStatus = leakStatus().isExposed() ? LeakStatus::exposed(leakStatus().address())
                                              : LeakStatus::notTested();
    if (dnsStatus().kind() == DNSStatus::Kind::checking)
        dnsStatus = DNSStatus::unknown();
    return next(&TorController::m_attempt);
}

void TorController::resetSessionInfo()
{
    exitIP = std::nullopt;
    torVerified = std::nullopt;
    leakStatus = LeakStatus::notTested();
    latencyMs = std::nullopt;
    separated = std::nullopt;
    bytesRead = 0;
    bytesWritten = 0;
    dnsStatus = DNSStatus::unknown();
    m_dnsLiveVerified = false;
}

void TorController::forgetCircuits()
{
    circuits = {};
    circuitError = std::nullopt;
    m_siteHistory.clear();
    m_relayCache.clear();
    m_streams = {};
    m_applications.clear();
    m_listRead = std::nullopt;
    ++m_hearing;
    m_isHearing = false;
}

void TorController::failAttempt(const Text &message)
{
    errorMessage = message;
    settleAfterFailure();
}

void TorController::failAtHelper(const HelperError &error)
{
    if (error.kind() == HelperError::Kind::Cancelled)
        settleAfterFailure();
    else
        failAttempt(error.description());
}

void TorController::settleAfterFailure()
{
    if (!isSessionMarkerPresent()) {
        endSession();
        return;
    }
    canCancel = false;
    activeMode = markedMode(); // the helper may have changed the mode before it failed
    m_sessionMark = SessionMark::present(m_services.profile);
    otherSession = SessionOwner::ofAnotherProcess(m_services.profile);
    statusDetail = otherSession() ? leftOverDetail()
                                  : Text::tr("Your network is still set up for Tor");
    // The banner says why the operation failed; later changes of the rules are told. A banner about
    // the rules that stayed during the prompt for a restore is corrected at once.
    const auto rules = judgedKillSwitch();
    if (!m_killSwitchMessage || errorMessage() != m_killSwitchMessage)
        m_knownKillSwitch = rules;
    killSwitch = rules;
    enter(ConnectionPhase::stale);
    startKillSwitchWatch();
}

void TorController::endSession()
{
    m_controlPassword = std::nullopt;
    m_activeBridgeLines.clear();
    m_services.terminal.setActive(false);
    forgetKillSwitch();
    canCancel = false;
    otherSession = std::nullopt;
    activeMode = std::nullopt;
    activeBridge = std::nullopt;
    forgetCircuits();
    resetSessionInfo();
    bootstrapProgress = 0.0;
    bootstrapProblem = std::nullopt;
    ladder = {};
    statusDetail = Text::tr("Your traffic is not going through Tor");
    enter(ConnectionPhase::disconnected);
}

void TorController::detectStaleState()
{
    if (!isSessionMarkerPresent()) {
        m_services.terminal.setActive(false);
        return;
    }
    if (phase() != ConnectionPhase::disconnected)
        return;
    activeMode = markedMode();
    m_sessionMark = SessionMark::present(m_services.profile);
    otherSession = SessionOwner::ofAnotherProcess(m_services.profile);
    statusDetail = leftOverDetail();
    // What happened to an earlier session is not told.
    killSwitch = m_knownKillSwitch = judgedKillSwitch();
    enter(ConnectionPhase::stale);
    startKillSwitchWatch();
}

Text TorController::leftOverDetail() const
{
    if (!otherSession())
        return Text::tr("Your network is still set up for Tor from an earlier session");
    return otherSession()->isOwnUser()
        ? Text::tr("Your network is set up for Tor by another Veldmark of yours, process %1")
              .arg(otherSession()->process)
        : Text::tr("Your network is set up for Tor by %1, whose Veldmark is process %2")
              .arg(otherSession()->userName(), QString::number(otherSession()->process));
}

void TorController::lookAtSession()
{
    if (phase() == ConnectionPhase::disconnected && isSessionMarkerPresent())
        detectStaleState();
    if (phase() == ConnectionPhase::connected
        || (phase() == ConnectionPhase::connecting && canCancel())) {
        // A session begun by hand has no owner, but its password differs from this session's.
        const auto other = SessionOwner::ofAnotherProcess(m_services.profile);
        const auto mark = SessionMark::present(m_services.profile);
        // The kill switch reports a session of another mode: it is open then.
        if (other
            || (mark && m_sessionMark && mark != m_sessionMark && markedMode() == activeMode()))
            giveUpTo(other);
        return;
    }
    if (phase() != ConnectionPhase::stale)
        return;
    if (!isSessionMarkerPresent()) { // another process has restored the network
        errorMessage = std::nullopt;
        endSession();
        return;
    }
    const auto other = SessionOwner::ofAnotherProcess(m_services.profile);
    const auto mark = SessionMark::present(m_services.profile);
    const bool isAnew = mark && m_sessionMark && mark != m_sessionMark; // begun again by hand
    if (other == otherSession() && markedMode() == activeMode() && !isAnew)
        return;
    showSessionOf(other);
    if (isAnew && !other)
        errorMessage = begunAnewText();
}

void TorController::showSessionOf(const std::optional<SessionOwner> &other)
{
    otherSession = other;
    m_sessionMark = SessionMark::present(m_services.profile);
    // What is shown and known was about another session.
    m_killSwitchMessage = std::nullopt;
    errorMessage = std::nullopt;
    m_torStopped = false;
    m_controlPassword = std::nullopt;
    m_activeBridgeLines.clear();
    activeBridge = std::nullopt;
    bootstrapProgress = 0.0;
    bootstrapProblem = std::nullopt;
    ladder = {};
    forgetCircuits();
    resetSessionInfo();
    activeMode = markedMode();
    m_knownKillSwitch = judgedKillSwitch();
    killSwitch = m_knownKillSwitch;
    statusDetail = leftOverDetail();
}

// Another process has replaced this process's session. Its Tor has ended, and the rules belong to
// the other session.
void TorController::giveUpTo(const std::optional<SessionOwner> &other)
{
    startAttempt(); // running checks belong to a session that is over
    stopMonitoring();
    canCancel = false;
    showSessionOf(other);
    if (!other)
        errorMessage = begunAnewText();
    enter(ConnectionPhase::stale);
    startKillSwitchWatch();
}

Text TorController::replacedText() const
{
    return otherSession()->isOwnUser()
        ? Text::tr(
            "Another Veldmark of yours has started a session meanwhile, so no session was ended. Disconnect again to end that session.")
        : Text::tr(
            "Another user's Veldmark has started a session meanwhile, so no session was ended. Disconnect again to end that session.");
}

void TorController::torDied()
{
    startAttempt(); // running checks belong to a session that is over
    stopMonitoring();
    if (!isSessionMarkerPresent()) { // the network was restored from outside
        errorMessage = Text::tr(
            "Tor stopped running, and your network is no longer set up for it.");
        endSession();
        return;
    }
    m_torStopped = true;
    lookAtKillSwitch(); // the message below must describe the rules as they are now
    statusDetail = Text::tr("Tor stopped running");
    errorMessage = m_killSwitchMessage = deathMessage();
    enter(ConnectionPhase::stale);
    // Tor may have ended because another process's session has replaced this one.
    lookAtSession();
}

} // namespace veldmark
