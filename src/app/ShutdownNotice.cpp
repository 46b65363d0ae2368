#include "app/ShutdownNotice.h"

#include <QDBusMessage>
#include <QDBusPendingReply>

namespace veldmark {

namespace {

const QString service = QStringLiteral("org.freedesktop.login1");
const QString path = QStringLiteral("/org/freedesktop/login1");
const QString interface = QStringLiteral("org.freedesktop.login1.Manager");

} // namespace

ShutdownNotice::ShutdownNotice(const QDBusConnection &bus) : m_bus(bus)
{
    m_bus.connect(service, path, interface, QStringLiteral("PrepareForShutdown"), this,
                  SLOT(onPrepareForShutdown(bool)));
}

void ShutdownNotice::setDelaying(bool on)
{
    m_wanted = on;
    if (!on) {
        m_lock = QDBusUnixFileDescriptor();
        return;
    }
    if (m_lock.isValid() || m_asked || !m_bus.isConnected())
        return;
    m_asked = true;
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface,
                                                       QStringLiteral("Inhibit"));
    call << QStringLiteral("shutdown") << QStringLiteral("Veldmark")
         << tr("Restoring your network settings") << QStringLiteral("delay");
    auto *answer = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, this, &ShutdownNotice::onAnswer);
}

void ShutdownNotice::onAnswer(QDBusPendingCallWatcher *call)
{
    m_asked = false;
    const QDBusPendingReply<QDBusUnixFileDescriptor> lock = *call;
    if (lock.isValid() && m_wanted)
        m_lock = lock.value();
    call->deleteLater();
}

void ShutdownNotice::onPrepareForShutdown(bool begins)
{
    if (begins)
        Q_EMIT shuttingDown();
}

} // namespace veldmark
