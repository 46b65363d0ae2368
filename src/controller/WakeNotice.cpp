#include "controller/WakeNotice.h"

namespace veldmark {

WakeNotice::WakeNotice(const QDBusConnection &bus) : m_bus(bus)
{
    m_bus.connect(QStringLiteral("org.freedesktop.login1"),
                  QStringLiteral("/org/freedesktop/login1"),
                  QStringLiteral("org.freedesktop.login1.Manager"),
                  QStringLiteral("PrepareForSleep"), this, SLOT(onPrepareForSleep(bool)));
}

void WakeNotice::onPrepareForSleep(bool begins)
{
    if (!begins)
        Q_EMIT awake();
}

} // namespace veldmark
