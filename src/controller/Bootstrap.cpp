#include "controller/TorController.h"

#include "base/Clock.h"
#include "base/ReplyWords.h"
#include "bridges/BridgeLines.h"
#include "control/ControlPort.h"
#include "log/TorLog.h"
#include "log/TransportTrouble.h"
#include "system/OtherFirewalls.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace veldmark {

namespace {

// from the connect, or from the first change to other bridges
constexpr auto bootstrapLimit = 300s;
constexpr auto bootstrapPoll = 1s;
// A transport program is ready within a second. Tor does not start without it, and does not report
// that it waits for it.
constexpr auto transportPatience = 10s;
// The first relay answers within a second or two. Below this progress no relay has answered.
constexpr auto relayPatience = 10s;
constexpr int relayReached = 10;

const QString bootstrapKey = QStringLiteral("status/bootstrap-phase");
const QString receivedKey = QStringLiteral("traffic/read");

QString field(const QString &report, QStringView name)
{
    return ReplyWords::value(report, name).value_or(QString());
}

// Tor's warning as a sentence; empty without a warning, and when Tor itself recommends to ignore
// it.
Text warningIn(const QString &report)
{
    const QString warning = field(report, u"WARNING");
    if (warning.isEmpty() || field(report, u"RECOMMENDATION") == QLatin1String("ignore"))
        return {};
    if (field(report, u"TAG") == QLatin1String("conn_pt"))
        return Text::tr("Tor can't reach the bridge program: %1.").arg(warning);
    QStringList details = {field(report, u"REASON"), field(report, u"HOSTADDR")};
    details.removeAll(QString());
    return details.isEmpty()
        ? Text::tr("Tor reports: %1.").arg(warning)
        : Text::tr("Tor reports: %1 (%2).").arg(warning, details.join(QStringLiteral(", ")));
}

// Whether it is of no use to wait for that connection, whatever Tor recommends.
bool isRefusal(const QString &report)
{
    static const QStringList reasons = {QStringLiteral("CONNECTREFUSED"),
                                        QStringLiteral("CONNECTRESET"), QStringLiteral("NOROUTE"),
                                        QStringLiteral("PT_MISSING")};
    return reasons.contains(field(report, u"REASON"));
}

} // namespace

BootstrapStatus TorController::parseBootstrap(const QString &reply)
{
    return {std::max(field(reply, u"PROGRESS").toInt(), 0), // 0 when absent or out of range
            field(reply, u"SUMMARY"), warningIn(reply), std::max(field(reply, u"COUNT").toInt(), 0),
            isRefusal(reply)};
}

std::optional<Text> TorController::obstacle() const
{
    const auto route = m_services.route();
    if (!route)
        return Text::tr("This computer has no network, so Tor can't connect.");
    if (const QStringList others = OtherFirewalls::denying(m_services.profile); !others.isEmpty())
        return Text::
            tr("Another firewall on this computer blocks outgoing traffic, so Tor can't connect: %1.")
                .arg(others.join(QStringLiteral(", ")));
    if (strictMode() && route->isVPN)
        return Text::tr(
            "A VPN takes Tor's traffic, and strict mode does not let the VPN out. Switch the VPN off, or use proxy mode.");
    return std::nullopt;
}

std::optional<Text> TorController::problemBehind(const BootstrapStatus &status,
                                                 std::chrono::nanoseconds waited) const
{
    const bool usesPrograms = std::any_of(
        m_activeBridgeLines.begin(), m_activeBridgeLines.end(),
        [](const QString &line) { return BridgeLines::transport(line).has_value(); });
    if (usesPrograms && status.progress < 100) {
        // The report does not know why a transport program can't be reached; the log does. Lines
        // about bridges that were given up say nothing of the present ones.
        const auto lines = TorLog(m_services.profile).read().lines();
        if (const auto trouble = transportTrouble(lines.mid(m_climbing.logLines)))
            return trouble;
    }
    if (status.progress < relayReached && waited >= relayPatience) {
        // Tor itself reports no reason here.
        if (const auto reason = obstacle())
            return reason;
    }
    if (!status.warning.isEmpty())
        return status.warning;
    if (usesPrograms && status.progress == 0 && waited >= transportPatience)
        return Text::tr(
            "Tor is waiting for the bridge program, which hasn't said that it is ready.");
    return std::nullopt;
}

QCoro::Task<Result<void, Text>> TorController::waitForBootstrap(Run attempt)
{
    if (!m_controlPassword)
        co_return Failure(ControlPortError::notConnected().description());
    const QString password = *m_controlPassword;
    const QStringList keys = {bootstrapKey, receivedKey};
    Clock &clock = m_services.clock;
    const auto start = clock.now();
    std::optional<Text> lastError;
    beginLadder();
    while (clock.now() < m_climbing.began.value_or(start) + bootstrapLimit) {
        const auto reply = co_await m_services.controlPort.getInfo(keys, password);
        if (attempt.isOver())
            co_return Failure(Text()); // the user disconnected; the result is unused
        if (reply) {
            const QString report = reply->value(bootstrapKey);
            BootstrapStatus status = parseBootstrap(report);
            if (report == m_climbing.reportBefore) { // it is about bridges that were given up
                status.warning = Text();
                status.isRefused = false;
            }
            bootstrapProgress = std::min(status.progress, 100) / 100.0;
            if (!status.summary.isEmpty())
                statusDetail = status.summary;
            lastError = std::nullopt;
            if (!m_climbing.since)
                m_climbing.since = clock.now();
            bootstrapProblem = problemBehind(status, clock.now() - *m_climbing.since);
            if (status.progress >= 100) {
                endLadder();
                co_return {};
            }
            auto following = followLadder(attempt, status, report,
                                          reply->value(receivedKey).toLongLong());
            const auto failure = co_await following;
            if (attempt.isOver())
                co_return Failure(Text());
            if (failure)
                co_return Failure(*failure);
        } else {
            lastError = reply.error().description();
        }
        co_await clock.sleep(bootstrapPoll);
        if (attempt.isOver())
            co_return Failure(Text());
    }
    failStep();
    co_return Failure(TorError::bootstrapTimeout(lastError).description());
}

} // namespace veldmark
