#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QTimer>

#include <qcorotask.h>

#include <chrono>

namespace veldmark {

class Clock;

// Whether the desktop has a place for tray icons. Its panel may start after this program, end, and
// come back. Qt asks once and keeps the answer for good, so it must not be asked before there is
// such a place. Main thread.
class TrayHost : public QObject {
    Q_OBJECT

public:
    // How long a panel that starts with the desktop, or anew, is waited for.
    static constexpr std::chrono::seconds patience{4};

    // `bus` is the session's. The clock must outlive the object.
    TrayHost(const QDBusConnection &bus, Clock &clock);

    bool isPresent() const { return m_onBus || m_onDisplay; }

Q_SIGNALS:
    void changed();
    // There has been none for as long as one is waited for.
    void missing();

private Q_SLOTS:
    void ask();

private:
    void set(bool onBus, bool onDisplay);
    void lookAtDisplay();
    QCoro::Task<void> losePatience();

    QDBusConnection m_bus;
    Clock &m_clock;
    QDBusServiceWatcher m_watcher;
    QTimer m_display; // X tells of new trays by a message to a window that we do not have
    bool m_onBus = false;
    bool m_onDisplay = false;
    quint64 m_run = 0; // of the wait for a host
};

} // namespace veldmark
