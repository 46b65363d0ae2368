#pragma once

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusUnixFileDescriptor>
#include <QObject>

namespace veldmark {

// logind's word that the computer is about to shut down, and its delay lock, which holds that back
// for a few seconds (five, where nobody has set another time). Where there is no logind, nothing
// ever happens. Main thread.
class ShutdownNotice : public QObject {
    Q_OBJECT

public:
    explicit ShutdownNotice(const QDBusConnection &bus);

    // Whether a shutdown is to wait for this program. Asks logind; returns at once.
    void setDelaying(bool on);

Q_SIGNALS:
    // Whoever hears it calls setDelaying(false) when he is done.
    void shuttingDown();

private Q_SLOTS:
    void onPrepareForShutdown(bool begins);

private:
    void onAnswer(QDBusPendingCallWatcher *call);

    QDBusConnection m_bus;
    bool m_wanted = false;
    bool m_asked = false;           // an answer is on its way
    QDBusUnixFileDescriptor m_lock; // closing it lets go
};

} // namespace veldmark
