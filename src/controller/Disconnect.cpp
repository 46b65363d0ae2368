#include "controller/TorController.h"

#include "platform/PlatformProfile.h"
#include "system/PrivilegedRunner.h"
#include "terminal/TerminalIntegration.h"

#include <QCoreApplication>

namespace veldmark {

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

    // The checks that the session had not finished. They are restarted if the session stays.
    const bool wasSettlingIn = m_isSettlingIn;
    const bool wasOptimizing = isOptimizing();
    const bool wasChecking = isChecking() || !torVerified()
        || leakStatus().kind() == LeakStatus::Kind::notTested;
    const bool wasTestingDNS = dnsStatus().kind() == DNSStatus::Kind::checking;
    const Run attempt = startAttempt(); // a connect that waits for Tor ends silently
    // The state to return to after a failure. Only a session that was up stays up when the helper
    // refuses. The marker decides for an unfinished connection or a left-over session.
    const bool sessionWasUp = phase() == ConnectionPhase::connected;
    const auto stalled = stall();
    const QStringList firewalls = denyingFirewalls();
    if (sessionWasUp)
        errorMessage = std::nullopt;
    enterDisconnecting();
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
    if (attempt.isOver())
        co_return Failure(Text());
    if (helper) {
        // The session is over: the banner says nothing of it any more.
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
    denyingFirewalls = firewalls;
    stall = stalled; // until the monitor's next look
    enterConnected();
    if (attempt.isOver())
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

QCoro::Task<Result<void, Text>> TorController::restore()
{
    if (phase() == ConnectionPhase::disconnecting) {
        const QPointer<TorController> self(this);
        const ResumeOnce<bool> ended;
        m_restoreWaiters.push_back(ended);
        co_await ended;
        if (!self)
            co_return Failure(Text());
        if (isSessionMarkerPresent())
            co_return Failure(errorMessage().value_or(Text()));
        co_return {};
    }
    // Another process may have restored the network, or left it set up.
    if (isSessionMarkerPresent())
        detectStaleState();
    else
        lookAtSession();
    if (phase() == ConnectionPhase::disconnected)
        co_return {};
    auto disconnecting = disconnect();
    co_return co_await disconnecting;
}

QCoro::Task<void> TorController::autoConnectIfEnabled()
{
    if (!autoConnect() || phase() != ConnectionPhase::disconnected || isSessionMarkerPresent()
        || !torPath())
        co_return;
    co_await connect();
}

} // namespace veldmark
