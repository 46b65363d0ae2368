#pragma once

#include <QDBusConnection>
#include <QObject>

namespace veldmark {

// Hears from logind that the computer has slept and is awake again. Without logind it does nothing.
// Main thread.
class WakeNotice : public QObject {
    Q_OBJECT

public:
    explicit WakeNotice(const QDBusConnection &bus);

Q_SIGNALS:
    void awake();

private Q_SLOTS:
    void onPrepareForSleep(bool begins);

private:
    QDBusConnection m_bus;
};

} // namespace veldmark
