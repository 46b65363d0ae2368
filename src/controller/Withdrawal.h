#pragma once

#include <QObject>

#include <qcorotask.h>

namespace veldmark {

class TorController;

// Takes the network out of Tor at the first moment at which that can be done: at once where the
// controller can be told to disconnect, else when what it is busy with has got so far. For a
// program that was told to end. What was left over from an earlier run is restored as well; a
// session of another process that still runs is that one's. Main thread.
class Withdrawal : public QObject {
    Q_OBJECT

public:
    // `controller` must outlive the object.
    explicit Withdrawal(TorController &controller);

    // Does nothing while one is under way. finished() follows, never from within this call.
    void begin();
    bool isUnderWay() const { return m_wanted; }

Q_SIGNALS:
    // Restored: nothing is left that is this program's to put back. Not restored: the controller's
    // `errorMessage` says why, or the prompt was dismissed. It may be begun again.
    void finished(bool restored);

private:
    void proceed();
    QCoro::Task<void> disconnect();
    void finish();
    bool isDone() const;

    TorController &m_controller;
    bool m_wanted = false;
    bool m_disconnecting = false; // by this object
};

} // namespace veldmark
