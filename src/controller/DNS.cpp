#include "controller/TorController.h"

#include "checks/DNSCheck.h"
#include "checks/ResolverSource.h"
#include "control/ControlPort.h"
#include "system/PrivilegedRunner.h"

#include <utility>

namespace veldmark {

namespace {

// Captures what the live test resolves, over the session's control port.
QCoro::Task<std::optional<QStringList>> captureResolves(ControlPort *controlPort, QString password,
                                                        std::chrono::milliseconds duration,
                                                        std::function<QCoro::Task<void>()> work)
{
    const ControlPort::Work task = [work](StopToken) { return work(); };
    auto capturing = controlPort->captureResolves(password, duration, task);
    const auto hosts = co_await capturing;
    co_return hosts ? std::optional(*hosts) : std::nullopt;
}

} // namespace

QCoro::Task<void> TorController::checkDNS(bool live)
{
    if (phase() != ConnectionPhase::connected)
        co_return;
    const Run attempt = current(&TorController::m_attempt);
    std::optional<DNSStatus> liveResult;
    if (live) {
        if (!dnsStatus().isLeak()) // a leak stays shown while it is tested again
            dnsStatus = DNSStatus::checking();
        if (m_controlPassword) {
            ControlPort *const controlPort = &m_services.controlPort;
            const QString password = *m_controlPassword;
            Clock *const clock = &m_services.clock;
            const DNSCheck::CaptureResolves capture =
                [controlPort, password](std::chrono::milliseconds duration,
                                        std::function<QCoro::Task<void>()> work) {
                    return captureResolves(controlPort, password, duration, std::move(work));
                };
            const DNSCheck::Lookup lookup = [clock](const QString &host,
                                                    std::chrono::milliseconds timeout) {
                return DNSCheck::lookup(*clock, host, timeout);
            };
            auto testing = DNSCheck::liveTest(capture, lookup);
            liveResult = co_await testing;
            if (attempt.isOver())
                co_return;
            if (liveResult == DNSStatus::throughTor())
                m_dnsLiveVerified = true;
        }
    }
    const auto system = co_await m_services.resolvers.resolvers();
    if (attempt.isOver())
        co_return;
    dnsStatus = DNSCheck::statusAfter(DNSCheck::leaks(system.resolvers), system.isComplete,
                                      liveResult, m_dnsLiveVerified, dnsStatus());
}

QCoro::Task<void> TorController::fixDNS()
{
    if (phase() != ConnectionPhase::connected)
        co_return;
    // The run under way serves this call, too, with one prompt.
    if (m_fixedAttempt == m_attempt) {
        const ResumeOnce<bool> ended;
        m_fixWaiters.push_back(ended);
        co_await ended;
        co_return;
    }
    const Run fix = next(&TorController::m_fixRun);
    m_fixedAttempt = m_attempt;
    auto repairing = repairDNS(current(&TorController::m_attempt));
    co_await repairing;
    if (fix.isOver()) // by one of a newer session, which has taken over the waiting calls
        co_return;
    m_fixedAttempt = std::nullopt;
    endWaits(m_fixWaiters);
}

QCoro::Task<void> TorController::repairDNS(Run attempt)
{
    errorMessage = std::nullopt;
    const QStringList arguments = {QStringLiteral("fix-dns")};
    const auto helper = co_await m_services.privileged.runHelper(arguments);
    if (attempt.isOver())
        co_return;
    if (!helper) {
        if (helper.error().kind() != HelperError::Kind::Cancelled)
            errorMessage = Text::tr("Couldn't fix DNS: %1").arg(helper.error().description());
        co_return;
    }
    lookAtKillSwitch();
    co_await checkDNS(true);
    if (attempt.isOver() || !dnsStatus().isLeak())
        co_return;
    errorMessage = DNSCheck::stillLeakingText(dnsStatus().leaks(),
                                              killSwitch() && killSwitch()->blocks());
}

} // namespace veldmark
