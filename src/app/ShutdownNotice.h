#pragma once

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusUnixFileDescriptor>
#include <QObject>

namespace veldmark {

// Hears from logind that the computer is about to shut down, and holds logind's delay lock, which
// delays the shutdown for a few seconds (five by default). Without logind it does nothing. Main
// thread.
class ShutdownNotice : public QObject {
    Q_OBJECT

public:
    explicit ShutdownNotice(const QDBusConnection &bus);

    // Holds or releases the delay lock. Asks logind asynchronously.
    void setDelaying(bool on);

Q_SIGNALS:
    // The receiver calls setDelaying(false) when its work is done.
    void shuttingDown();

private Q_SLOTS:
    void onPrepareForShutdown(bool begins);

private:
    void onAnswer(QDBusPendingCallWatcher *call);

    QDBusConnection m_bus;
    bool m_wanted = false;
    bool m_asked = false;           // a request to logind is under way
    QDBusUnixFileDescriptor m_lock; // closing it releases the lock
};

} // namespace veldmark
