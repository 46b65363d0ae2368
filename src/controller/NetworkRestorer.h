#pragma once

#include "base/Text.h"

#include <QObject>

#include <qcorotask.h>

namespace veldmark {

class TorController;
struct PlatformProfile;

// Restores the network for a program that was told to end. Disconnects now, or as soon as the
// current operation allows it. A session left over from an earlier run is restored, too. A session
// of another running process is left alone. Main thread.
class NetworkRestorer : public QObject {
    Q_OBJECT

public:
    // `controller` must outlive the object.
    explicit NetworkRestorer(TorController &controller);

    // Does nothing while it restores. finished() follows, never from within this
    // call.
    void begin();
    bool isUnderWay() const { return m_wanted; }
    // For a program that ends without having restored the network.
    static Text notRestoredText(const PlatformProfile &profile);

Q_SIGNALS:
    // Restored: this program has nothing left to restore. Not restored: the controller's
    // `errorMessage` says why, or the user dismissed the prompt. begin() may be called again.
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
