#include "app/Alerts.h"

#include "ui/SessionTexts.h"

#include <QDBusConnection>
#include <QDBusMessage>

#include <utility>

namespace veldmark {

Alerts::Alerts(Session &session) : m_session(session), m_phase(session.now().phase)
{
    QObject::connect(&session, &Session::changed, this, &Alerts::look);
    QObject::connect(&session, &Session::rulesRemoved, this, &Alerts::onRulesRemoved);
}

void Alerts::look()
{
    const Snapshot &now = m_session.now();
    const Phase before = std::exchange(m_phase, now.phase);
    // What the user asks for goes by way of `disconnecting`. Tor may die after somebody else has
    // restored the network; then nothing is left over.
    if (before == Phase::connected && (now.phase == Phase::stale || now.phase == Phase::disconnected))
        tell(tr("Tor stopped running"),
             SessionTexts::translated(now.errorMessage.value_or(now.statusDetail)));
    const bool exposed = now.leak.kind == Leak::Kind::exposed && now.activeMode == RoutingMode::strict;
    const bool leaking = now.phase == Phase::connected
        && (exposed || now.lookups.kind == Lookups::Kind::leak);
    if (!std::exchange(m_leaking, leaking) && leaking)
        tell(exposed ? tr("Traffic can leave around Tor") : tr("Lookups can go around Tor"),
             exposed ? tr("Your real address can be seen. Open Veldmark to see what to do.")
                     : SessionTexts::lookups(now.lookups));
}

void Alerts::onRulesRemoved(bool putBack)
{
    tell(putBack ? tr("Firewall rules were removed") : tr("Traffic can leave around Tor"),
         putBack ? tr("Another program removed Veldmark's firewall rules; they are back in place.")
                 : tr("Another program removed Veldmark's firewall rules and they could not be put back. "
                      "Open Veldmark, disconnect and connect again."));
}

void Alerts::tell(const QString &title, const QString &text)
{
    Q_EMIT told(title, text);
    const QString service = QStringLiteral("org.freedesktop.Notifications");
    QDBusMessage call = QDBusMessage::createMethodCall(service, QStringLiteral("/org/freedesktop/Notifications"),
                                                       service, QStringLiteral("Notify"));
    const QVariantMap urgent{{QStringLiteral("urgency"), QVariant::fromValue(uchar(2))}};
    call << QStringLiteral("Veldmark") << uint(0) << QStringLiteral("veldmark") << title << text.toHtmlEscaped()
         << QStringList() << urgent << -1;
    QDBusConnection::sessionBus().send(call);
}

} // namespace veldmark
