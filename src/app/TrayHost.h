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
// return. Qt asks once and keeps the answer, so Qt must not be asked before the desktop has a
// place. Main thread.
class TrayHost : public QObject {
    Q_OBJECT

public:
    // How long to wait for a panel that starts with the desktop or restarts.
    static constexpr std::chrono::seconds patience{4};

    // `bus` is the session bus. The clock must outlive the object.
    TrayHost(const QDBusConnection &bus, Clock &clock);

    bool isPresent() const { return m_onBus || m_onDisplay; }

Q_SIGNALS:
    void changed();
    // No place has appeared within `patience`.
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
    QTimer m_display; // polls, since X reports new trays to a window that this object does not have
    bool m_onBus = false;
    bool m_onDisplay = false;
    quint64 m_run = 0; // identifies the current wait for a host
};

} // namespace veldmark
