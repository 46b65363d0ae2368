#include "ui/PanelModel.h"

#include "ui/Amount.h"
#include "ui/Wording.h"

#include <QClipboard>
#include <QGuiApplication>

#include <utility>

namespace veldmark {

using namespace std::chrono_literals;

PanelModel::PanelModel(Session &session, QObject *parent)
    : QObject(parent),
      m_session(session),
      m_doctor(session)
{
    m_stillness.setSingleShot(true);
    m_stillness.setInterval(10s);
    QObject::connect(&m_stillness, &QTimer::timeout, this, [this] {
        m_still = true;
        Q_EMIT changed();
    });
    QObject::connect(&session, &Session::changed, this, &PanelModel::update);
    update();
}

void PanelModel::update()
{
    const Snapshot &now = m_session.now();
    const bool moved = std::exchange(m_lastProgress, now.bootstrapProgress) != now.bootstrapProgress
        || std::exchange(m_lastDetail, now.statusDetail) != now.statusDetail;
    if (now.phase != ConnectionPhase::connecting) {
        m_stillness.stop();
        m_still = false;
    } else if (moved || !(m_stillness.isActive() || m_still)) {
        m_still = false;
        m_stillness.start();
    }
    if (now.phase == ConnectionPhase::connected)
        m_traffic.add(now.bytesRead, now.bytesWritten);
    else
        m_traffic.clear();
    rememberExitCountry();
    Q_EMIT changed();
}

// Remembers the exit's country, since the circuit of the check may close while the address stays
// valid.
void PanelModel::rememberExitCountry()
{
    const Snapshot &now = m_session.now();
    const std::optional<QString> exit = connected() ? now.exitIP : std::nullopt;
    if (std::exchange(m_exit, exit) != exit)
        m_exitCountry.clear();
    for (const CircuitInfo &circuit : now.circuits)
        if (exit && !circuit.hops.empty() && circuit.onionService.isEmpty()
            && circuit.hops.back().ip == exit && circuit.hops.back().country)
            m_exitCountry = *circuit.hops.back().country;
}

bool PanelModel::connected() const
{
    return m_session.now().phase == ConnectionPhase::connected;
}

bool PanelModel::dnsLeaks() const
{
    return connected() && m_session.now().dns.isLeak();
}

bool PanelModel::throughBridge() const
{
    const Snapshot &now = m_session.now();
    return now.phase == ConnectionPhase::connected && now.activeBridge
        && *now.activeBridge != BridgeChoice::off;
}

LeakStatus PanelModel::knownLeak() const
{
    return connected() ? m_session.now().leak : LeakStatus();
}

// Only the kill switch blocks, and only while its rules are known to be in place. Otherwise missing
// traffic proves nothing.
bool PanelModel::isClosed() const
{
    const Snapshot &now = m_session.now();
    return now.activeMode == RoutingMode::strict && now.killSwitch && now.killSwitch->blocks();
}

PanelModel::Tone PanelModel::tone() const
{
    switch (m_session.now().verdict().level) {
    case Verdict::Level::neutral:
        return Tone::Neutral;
    case Verdict::Level::working:
        return Tone::Accent;
    case Verdict::Level::good:
        return Tone::Good;
    case Verdict::Level::info:
        return Tone::Info;
    case Verdict::Level::warning:
        return Tone::Warning;
    case Verdict::Level::danger:
        break;
    }
    return Tone::Danger;
}

QString PanelModel::symbol() const
{
    return m_session.now().verdict().symbol;
}

QString PanelModel::title() const
{
    return m_session.now().verdict().title.translated();
}

QString PanelModel::detail() const
{
    return m_session.now().verdict().detail.translated();
}

QString PanelModel::powerLabel() const
{
    switch (m_session.now().phase) {
    case ConnectionPhase::disconnected:
        return tr("Connect to Tor");
    case ConnectionPhase::connecting:
        return tr("Cancel");
    case ConnectionPhase::connected:
        return tr("Disconnect");
    case ConnectionPhase::disconnecting:
        return {};
    case ConnectionPhase::stale:
        return m_session.now().isAnothers ? QString() : tr("Reconnect");
    }
    return {};
}

bool PanelModel::powerEnabled() const
{
    const Snapshot &now = m_session.now();
    switch (now.phase) {
    case ConnectionPhase::disconnected:
        return now.canTryTor();
    case ConnectionPhase::stale: // another process's session is only ended, never replaced
        return now.canTryTor() && !now.isAnothers;
    case ConnectionPhase::connecting:
        return now.canCancel;
    case ConnectionPhase::connected:
        return true;
    case ConnectionPhase::disconnecting:
        return false;
    }
    return false;
}

double PanelModel::progress() const
{
    // While the session is taken down it keeps Tor's last report, which is not the progress of
    // that.
    const Snapshot &now = m_session.now();
    return now.phase == ConnectionPhase::connecting ? now.bootstrapProgress : 0;
}

void PanelModel::pressPower()
{
    if (!powerEnabled())
        return;
    const ConnectionPhase phase = m_session.now().phase;
    if (phase == ConnectionPhase::disconnected || phase == ConnectionPhase::stale)
        m_session.connectToTor();
    else
        m_session.disconnectFromTor();
}

QString PanelModel::pillText() const
{
    const Snapshot &now = m_session.now();
    if (throughBridge())
        return tr("Connected through %1 bridges").arg(shownName(*now.activeBridge));
    if (now.activeMode)
        return *now.activeMode == RoutingMode::strict ? tr("Strict") : tr("Proxy");
    if (now.phase == ConnectionPhase::stale)
        return {};
    return now.choices.strictMode ? tr("Strict") : tr("Proxy");
}

QString PanelModel::pillSymbol() const
{
    const Snapshot &now = m_session.now();
    if (throughBridge())
        return QStringLiteral("point.3.connected.trianglepath.dotted");
    const bool strict = now.activeMode ? *now.activeMode == RoutingMode::strict
                                       : now.choices.strictMode;
    return strict ? QStringLiteral("lock.fill") : QStringLiteral("arrow.triangle.branch");
}

QString PanelModel::footnote() const
{
    const Snapshot &now = m_session.now();
    if (!now.canTryTor() && now.phase == ConnectionPhase::disconnected)
        return tr("Install Tor to get started");
    if (now.phase == ConnectionPhase::disconnected)
        return tr("Click to connect");
    if (now.phase == ConnectionPhase::connected)
        return tr("Click to disconnect");
    return {};
}

bool PanelModel::canRestore() const
{
    const Snapshot &now = m_session.now();
    return now.phase == ConnectionPhase::stale
        || (now.phase == ConnectionPhase::disconnected && now.markerPresent);
}

QString PanelModel::waitingFor() const
{
    const Snapshot &now = m_session.now();
    if (now.phase == ConnectionPhase::connecting && now.bootstrapProblem)
        return now.bootstrapProblem->translated();
    if (!m_still)
        return {};
    return now.bootstrapProgress > 0
        ? tr(
            "Tor hasn't reported progress for a while. It is still trying; a slow or blocked network "
            "is the usual reason.")
        : tr("Still waiting for Tor to start, or for your approval.");
}

QStringList PanelModel::steps() const
{
    const Snapshot &now = m_session.now();
    QStringList lines;
    if (showsLadder(now.phase)) {
        for (const LadderStep &step : now.ladder)
            lines << Ladder::line(step).translated();
    }
    return lines;
}

QString PanelModel::offer() const
{
    const Snapshot &now = m_session.now();
    return showsLadder(now.phase) ? shown(now.climbOffer) : QString();
}

QString PanelModel::exitAddress() const
{
    const Snapshot &now = m_session.now();
    if (exitKnown())
        return *now.exitIP;
    return connected() && now.isChecking ? tr("Checking") : tr("Unknown");
}

QString PanelModel::exitHelp() const
{
    return tr("Checked against %1").arg(QStringLiteral("check.torproject.org"));
}

QString PanelModel::verification() const
{
    if (connected() && m_session.now().isChecking)
        return tr("Checking");
    if (connected() && !m_session.now().torVerified)
        return tr("Not checked");
    return exitVerified() ? tr("Verified") : tr("Not confirmed");
}

QString PanelModel::leakText() const
{
    if (dnsLeaks())
        return tr("DNS leak");
    const LeakStatus leak = knownLeak();
    switch (leak.kind()) {
    case LeakStatus::Kind::notTested:
        return tr("Not tested");
    case LeakStatus::Kind::checking:
        return tr("Testing…");
    case LeakStatus::Kind::blocked:
        return isClosed() ? tr("No leaks") : tr("No answer");
    case LeakStatus::Kind::inconclusive:
        return tr("Inconclusive");
    case LeakStatus::Kind::exposed:
        return tr("Exposed: %1").arg(leak.address());
    }
    return {};
}

QString PanelModel::leakHelp() const
{
    const LeakStatus leak = knownLeak();
    QString traffic = tr("Tries a direct connection that skips Tor");
    if (leak.kind() == LeakStatus::Kind::blocked && isClosed())
        traffic = tr("Direct connections that skip Tor are blocked");
    else if (leak.kind() == LeakStatus::Kind::blocked)
        traffic = m_session.now().activeMode == RoutingMode::strict
            ? tr(
                "A direct connection that bypasses Tor got no answer, but it isn't known whether the kill switch blocks such connections")
            : tr(
                "A direct connection that bypasses Tor got no answer, but proxy mode doesn't block such connections");
    else if (leak.kind() == LeakStatus::Kind::exposed)
        traffic
            = (m_session.now().activeMode == RoutingMode::strict
                   ? tr(
                       "Direct connections that skip Tor show your real IP (%1), although Strict mode should block them. Disconnect, or run the leak test again.")
                   : tr(
                       "Apps that ignore proxy settings show your real IP (%1). Turn on Strict mode to block them."))
                  .arg(leak.address());
    return traffic + u'\n' + (connected() ? m_session.now().dns : DNSStatus()).text().translated();
}

PanelModel::Tone PanelModel::leakTone() const
{
    if (dnsLeaks())
        return Tone::Danger;
    switch (knownLeak().kind()) {
    case LeakStatus::Kind::exposed:
        return m_session.now().activeMode == RoutingMode::strict ? Tone::Danger : Tone::Warning;
    case LeakStatus::Kind::blocked:
        return isClosed() ? Tone::Good : Tone::Neutral;
    case LeakStatus::Kind::inconclusive:
        return Tone::Warning;
    case LeakStatus::Kind::notTested:
    case LeakStatus::Kind::checking:
        break;
    }
    return Tone::Neutral;
}

QString PanelModel::downloaded() const
{
    const Snapshot &now = m_session.now();
    return Amount::text(now.bytesRead, Amount::unitFor(std::max(now.bytesRead, now.bytesWritten)));
}

QString PanelModel::uploaded() const
{
    const Snapshot &now = m_session.now();
    return Amount::text(now.bytesWritten,
                        Amount::unitFor(std::max(now.bytesRead, now.bytesWritten)));
}

QString PanelModel::optimizeText() const
{
    return shown(m_session.now().optimizeStatus);
}

QStringList PanelModel::leakingResolvers() const
{
    QStringList resolvers;
    for (const Text &resolver : m_session.now().dns.leaks().mid(0, shownResolvers))
        resolvers << resolver.translated();
    return resolvers;
}

QString PanelModel::moreResolvers() const
{
    const qsizetype more = m_session.now().dns.leaks().size() - shownResolvers;
    return more > 0 ? tr("%1 more").arg(more) : QString();
}

QString PanelModel::error() const
{
    const Snapshot &now = m_session.now();
    const QString error = shown(now.errorMessage);
    if (error.isEmpty() || now.phase != ConnectionPhase::stale || !now.bootstrapProblem)
        return error;
    return error + u' ' + now.bootstrapProblem->translated();
}

bool PanelModel::torMissing() const
{
    const Snapshot &now = m_session.now();
    return !now.canTryTor()
        && (now.phase == ConnectionPhase::disconnected || now.phase == ConnectionPhase::stale);
}

QString PanelModel::installHint() const
{
    return shownHint(m_session.profile().torInstallHint);
}

bool PanelModel::installHintIsCommand() const
{
    return isCommand(m_session.profile().torInstallHint);
}

void PanelModel::copy(const QString &text) const
{
    QGuiApplication::clipboard()->setText(text);
}

} // namespace veldmark
