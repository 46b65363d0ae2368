#include "controller/TorController.h"

#include "platform/PlatformProfile.h"
#include "system/PrivilegedRunner.h"
#include "terminal/TerminalIntegration.h"

#include <QCoreApplication>
#include <QFile>
#include <QPointer>

namespace veldmark {

namespace {
constexpr qint64 markerLimitBytes = 256; // it holds one word
} // namespace

bool TorController::isSessionMarkerPresent() const
{
    return QFile::exists(m_services.profile.sessionMarker);
}

QCoro::Task<Result<void, Text>> TorController::disconnect()
{
    const auto meant = otherSession();
    const auto other = SessionOwner::ofAnotherProcess(m_services.profile);
    if (phase() == ConnectionPhase::disconnected || (other && other != meant))
        lookAtSession();
    if (otherSession() && otherSession() != meant) { // not the session that the user wanted to end
        errorMessage = replacedText();
        co_return Failure(replacedText());
    }
    const bool mayDisconnect = phase() == ConnectionPhase::connected
        || phase() == ConnectionPhase::stale
        || (phase() == ConnectionPhase::connecting && canCancel());
    if (!mayDisconnect)
        co_return Failure(Text());

    const QPointer<TorController> self(this);
    // The checks that the session had not finished. They are restarted if the session stays.
    const bool wasSettlingIn = m_isSettlingIn;
    const bool wasOptimizing = isOptimizing();
    const bool wasChecking = isChecking() || !torVerified()
        || leakStatus().kind() == LeakStatus::Kind::notTested;
    const bool wasTestingDNS = dnsStatus().kind() == DNSStatus::Kind::checking;
    const Attempt attempt = startAttempt(); // a connect that waits for Tor ends silently
    // The state to return to after a failure. Only a session that was up stays up when the helper
    // refuses. The marker decides for an unfinished connection or a left-over session.
    const bool sessionWasUp = phase() == ConnectionPhase::connected;
    const auto stalled = stall();
    const QStringList firewalls = denyingFirewalls();
    if (sessionWasUp)
        errorMessage = std::nullopt;
    canCancel = false;
    statusDetail = Text::tr("Restoring your network settings…");
    phase = ConnectionPhase::disconnecting;
    stopMonitoring();
    stopKillSwitchWatch(); // the helper removes the rules from here on
    setShellsActive(false);

    QStringList arguments = {QStringLiteral("disconnect")};
    // A helper of another version may not know the option.
    if (!m_services.profile.sessionOwner.isEmpty()
        && !m_services.privileged.privilegedHelperOutdated())
        arguments << QStringLiteral("--process")
                  << QString::number(meant ? meant->process : QCoreApplication::applicationPid());
    const auto helper = co_await m_services.privileged.runHelper(arguments);
    if (!self || !isCurrent(attempt))
        co_return Failure(Text());
    if (helper) {
        // the session is over, and so is whatever the banner said of it
        errorMessage = std::nullopt;
        endSession();
        co_return {};
    }

    // Another session may have begun while the prompt was shown.
    if (const auto newer = SessionOwner::ofAnotherProcess(m_services.profile);
        newer && newer != meant) {
        giveUpTo(*newer);
        errorMessage = replacedText();
        co_return Failure(replacedText());
    }
    Text reason;
    if (helper.error().kind() != HelperError::Kind::Cancelled) {
        reason = helper.error().description();
        errorMessage = reason;
    }
    // Without the marker, the helper opened the network before it failed. Then nothing is locked to
    // Tor any more, even if the session was up.
    if (!sessionWasUp || !isSessionMarkerPresent()) {
        settleAfterFailure();
        co_return Failure(reason);
    }
    statusDetail = connectedDetail();
    denyingFirewalls = firewalls;
    stall = stalled; // until the monitor's next look
    phase = ConnectionPhase::connected;
    if (!self || !isCurrent(attempt) || phase() != ConnectionPhase::connected)
        co_return Failure(reason);
    applyTerminalMode();
    startMonitoring();
    startKillSwitchWatch();
    if (wasSettlingIn) {
        settleIn(attempt);
        co_return Failure(reason);
    }
    if (wasChecking)
        runChecks();
    else if (wasTestingDNS)
        checkDNS(true);
    if (wasOptimizing)
        optimizeCircuits();
    co_return Failure(reason);
}

void TorController::forgetCircuits()
{
    circuits = {};
    circuitError = std::nullopt;
    m_siteHistory.clear();
    m_relayCache.clear();
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
    statusDetail = Text::tr("Your traffic is not going through Tor");
    phase = ConnectionPhase::disconnected;
}

std::optional<RoutingMode> TorController::markedMode() const
{
    QFile marker(m_services.profile.sessionMarker);
    if (!marker.open(QIODevice::ReadOnly))
        return std::nullopt;
    return routingModeFromRawValue(QString::fromUtf8(marker.read(markerLimitBytes)).trimmed());
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
    otherSession = SessionOwner::ofAnotherProcess(m_services.profile);
    statusDetail = leftOverDetail();
    // What happened to an earlier session is not told.
    killSwitch = m_knownKillSwitch = judgedKillSwitch();
    phase = ConnectionPhase::stale;
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
    // Nor has the session been changed by hand.
    if (other == otherSession() && markedMode() == activeMode())
        return;
    showSessionOf(other);
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
        errorMessage = Text::tr(
            "Another program has ended this session and begun one of its own. Restore Network ends that one.");
    phase = ConnectionPhase::stale;
    startKillSwitchWatch();
}

Text TorController::replacedText() const
{
    return otherSession()->isOwnUser()
        ? Text::tr(
            "Another Veldmark of yours has begun a session since, so nothing was ended. Disconnect again to end it.")
        : Text::tr(
            "Another user's Veldmark has begun a session since, so nothing was ended. Disconnect again to end it.");
}

void TorController::showSessionOf(const std::optional<SessionOwner> &other)
{
    otherSession = other;
    // What is shown and known was about another session.
    m_killSwitchMessage = std::nullopt;
    errorMessage = std::nullopt;
    m_torStopped = false;
    m_controlPassword = std::nullopt;
    m_activeBridgeLines.clear();
    activeBridge = std::nullopt;
    bootstrapProgress = 0.0;
    bootstrapProblem = std::nullopt;
    forgetCircuits();
    resetSessionInfo();
    activeMode = markedMode();
    m_knownKillSwitch = judgedKillSwitch();
    killSwitch = m_knownKillSwitch;
    statusDetail = leftOverDetail();
}

QCoro::Task<void> TorController::autoConnectIfEnabled()
{
    if (!autoConnect() || phase() != ConnectionPhase::disconnected || isSessionMarkerPresent()
        || !torPath())
        co_return;
    co_await connect();
}

} // namespace veldmark
