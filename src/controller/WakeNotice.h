#pragma once

#include <QDBusConnection>
#include <QObject>

namespace veldmark {

// logind's word that the computer has been asleep and is awake again. Where there is no logind,
// nothing ever happens. Main thread.
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
