#pragma once

#include "log/TorLog.h"

#include <QObject>
#include <QTimer>

namespace veldmark {

// A live view of the log, owned by whoever shows it. Lives on a thread with an event loop; reading,
// a few milliseconds at most, is done there.
class TorLogStore : public QObject {
    Q_OBJECT
public:
    static constexpr std::chrono::milliseconds pollInterval{1000};

    explicit TorLogStore(TorLog log, QObject *parent = nullptr,
                         std::chrono::milliseconds interval = pollInterval);

    const TorLog &log() const { return m_log; }
    const TorLog::Snapshot &snapshot() const { return m_snapshot; }

    // Reads at once and then looks for changes, until stop() or destruction.
    void start();
    void stop();
    // Reads when a file's size or time has changed since the last reading, or when forced.
    void reload(bool force);

Q_SIGNALS:
    // The snapshot differs from the one before.
    void changed();

private:
    TorLog m_log;
    TorLog::Snapshot m_snapshot;
    QString m_signature;
    QTimer m_timer;
};

} // namespace veldmark
