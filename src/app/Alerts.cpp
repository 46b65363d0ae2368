#include "app/Alerts.h"

#include <QDBusConnection>
#include <QDBusMessage>

#include <utility>

namespace veldmark {

namespace {
// At most one notification per minute when another program removes the rules repeatedly.
constexpr qint64 putBackPauseSeconds = 60;
} // namespace

Alerts::Alerts(Session &session)
    : m_session(session),
      m_phase(session.now().phase),
      m_shownSession(session.now().session)
{
    QObject::connect(&session, &Session::changed, this, &Alerts::look);
}

void Alerts::look()
{
    const Snapshot &now = m_session.now();
    const ConnectionPhase before = std::exchange(m_phase, now.phase);
    // A disconnect by the user passes through `disconnecting`, so neither change below is the
    // user's. Tor may also die after another process has restored the network; then the phase is
    // `disconnected`. When another process's session has replaced this one, the banner is about
    // something else.
    const bool isReplaced = now.phase == ConnectionPhase::stale && !now.hasTorStopped;
    if (before == ConnectionPhase::connected
        && (now.phase == ConnectionPhase::stale || now.phase == ConnectionPhase::disconnected))
        tell(isReplaced ? tr("Another session has replaced this one") : tr("Tor stopped running"),
             (now.isAnothers ? now.statusDetail : now.errorMessage.value_or(now.statusDetail))
                 .translated());
    if (!now.killSwitch || now.killSwitch->blocks())
        m_wasWatched = now.killSwitch.has_value();
    if (const auto danger = now.verdict().danger; std::exchange(m_danger, danger) != danger)
        tellDanger(danger);
    const bool isExposed = now.phase == ConnectionPhase::connected
        && now.activeMode == RoutingMode::strict && now.leak.isExposed();
    if (!std::exchange(m_wasExposed, isExposed) && isExposed
        && m_danger == Verdict::Danger::dnsLeak)
        tellDanger(Verdict::Danger::exposed); // the DNS alert alone told only half of it
    // What is known of the rules was about another session. What happened to this one's before is
    // not told.
    const bool isAnother = std::exchange(m_shownSession, now.session) != now.session;
    if (isAnother && now.phase == ConnectionPhase::stale) {
        m_killSwitch = now.killSwitch;
        m_putBackTold = {};
    }
    tellPutBack(std::exchange(m_killSwitch, now.killSwitch));
}

void Alerts::tellDanger(Verdict::Danger danger)
{
    using Danger = Verdict::Danger;
    const Snapshot &now = m_session.now();
    switch (danger) {
    case Danger::killSwitchOpen:
        tell(
            tr("Traffic can leave around Tor"),
            tr("The kill switch doesn't block traffic. Open Veldmark, disconnect and connect again."));
        return;
    case Danger::exposed:
        tell(tr("Traffic can leave around Tor"),
             tr("Your real address can be seen. Open Veldmark to see what to do."));
        return;
    case Danger::dnsLeak:
        tell(tr("Lookups can go around Tor"), now.dns.text().translated());
        return;
    case Danger::killSwitchUnknown:
        // a worse danger may have been told when the rules became unknown
        if (std::exchange(m_wasWatched, false))
            tell(
                tr("The kill switch is not watched"),
                tr("Veldmark can't tell whether the kill switch blocks traffic. Open Veldmark, disconnect and connect again."));
        return;
    case Danger::none:
    case Danger::stalled: // no traffic is at risk, and the user notices the missing network
    case Danger::exitNotConfirmed:
    case Danger::leftOver:
        return;
    }
}

void Alerts::tellPutBack(const std::optional<KillSwitch> &before)
{
    const Snapshot &now = m_session.now();
    const bool isPutBack = now.killSwitch && now.killSwitch->state == KillSwitch::State::putBack;
    if (!isPutBack) {
        if (!now.killSwitch)
            m_putBackTold = {};
        return;
    }
    // What happened before this object first saw the session is not told.
    if (before == now.killSwitch || (!before && now.phase == ConnectionPhase::stale))
        return;
    const bool wasPutBack = before && before->state == KillSwitch::State::putBack;
    if (wasPutBack && m_putBackTold.isValid()
        && m_putBackTold.secsTo(now.killSwitch->since) < putBackPauseSeconds)
        return;
    m_putBackTold = now.killSwitch->since;
    tell(tr("Firewall rules were removed"), KillSwitch::putBackText().translated());
}

void Alerts::tell(const QString &title, const QString &text)
{
    Q_EMIT told(title, text);
    const QString service = QStringLiteral("org.freedesktop.Notifications");
    QDBusMessage call = QDBusMessage::createMethodCall(
        service, QStringLiteral("/org/freedesktop/Notifications"), service,
        QStringLiteral("Notify"));
    const QVariantMap urgent{{QStringLiteral("urgency"), QVariant::fromValue(uchar(2))}};
    call << QStringLiteral("Veldmark") << uint(0) << QStringLiteral("veldmark") << title
         << text.toHtmlEscaped() << QStringList() << urgent << -1;
    QDBusConnection::sessionBus().send(call);
}

} // namespace veldmark
