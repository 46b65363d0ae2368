#include "app/TrayHost.h"

#include "base/Clock.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QLibrary>
#include <QPointer>
#include <QSystemTrayIcon>

namespace veldmark {

using namespace std::chrono_literals;

namespace {

const QString service = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString path = QStringLiteral("/StatusNotifierWatcher");

bool onX11()
{
    return QGuiApplication::platformName() == QLatin1String("xcb");
}

// Whether the X server has a window that takes tray icons. Xlib is loaded, since Qt's X platform
// plugin uses it.
bool hasX11Tray()
{
#if QT_CONFIG(xcb)
    const auto *x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11 || !x11->display())
        return false;
    using InternAtom = unsigned long (*)(Display *, const char *, int);
    using SelectionOwner = unsigned long (*)(Display *, unsigned long);
    static QLibrary library(QStringLiteral("X11"), 6);
    static const auto atom = reinterpret_cast<InternAtom>(library.resolve("XInternAtom"));
    static const auto owner = reinterpret_cast<SelectionOwner>(
        library.resolve("XGetSelectionOwner"));
    return atom && owner
        && owner(x11->display(), atom(x11->display(), "_NET_SYSTEM_TRAY_S0", 0)) != 0;
#else
    return false;
#endif
}

} // namespace

TrayHost::TrayHost(const QDBusConnection &bus, Clock &clock)
    : m_bus(bus),
      m_clock(clock),
      m_watcher(service, m_bus, QDBusServiceWatcher::WatchForOwnerChange)
{
    QObject::connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, this, &TrayHost::ask);
    QObject::connect(&m_watcher, &QDBusServiceWatcher::serviceUnregistered, this,
                     [this] { set(false, m_onDisplay); });
    for (const char *change : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"})
        m_bus.connect(service, path, service, QString::fromLatin1(change), this, SLOT(ask()));
    m_display.setInterval(5s);
    QObject::connect(&m_display, &QTimer::timeout, this, &TrayHost::lookAtDisplay);
    if (onX11()) {
        m_onDisplay = hasX11Tray();
        m_display.start();
    } else if (!m_bus.isConnected()) {
        // a system with its own place for icons
        m_onDisplay = QSystemTrayIcon::isSystemTrayAvailable();
    }
    ask();
    if (!isPresent())
        losePatience();
}

void TrayHost::ask()
{
    if (!m_bus.isConnected())
        return;
    QDBusMessage call = QDBusMessage::createMethodCall(
        service, path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    call << service << QStringLiteral("IsStatusNotifierHostRegistered");
    call.setAutoStartService(false);
    auto *answer = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        set(reply.isValid() && reply.value().variant().toBool(), m_onDisplay);
    });
}

void TrayHost::lookAtDisplay()
{
    if (!isPresent() || m_onDisplay)
        set(m_onBus, hasX11Tray());
}

void TrayHost::set(bool onBus, bool onDisplay)
{
    const bool before = isPresent();
    m_onBus = onBus;
    m_onDisplay = onDisplay;
    if (before == isPresent())
        return;
    if (before)
        losePatience();
    Q_EMIT changed();
}

QCoro::Task<void> TrayHost::losePatience()
{
    const QPointer<TrayHost> self(this);
    const quint64 run = ++m_run;
    const std::chrono::milliseconds limit = patience;
    co_await m_clock.sleep(limit);
    if (self && run == m_run && !isPresent())
        Q_EMIT missing();
}

} // namespace veldmark
