#pragma once

#include "log/TorLog.h"

#include <QObject>
#include <QTimer>

namespace veldmark {

// A live view of the log; each viewer owns one. Lives on a thread with an event loop and reads
// there, for at most a few milliseconds.
class TorLogStore : public QObject {
    Q_OBJECT
public:
    static constexpr std::chrono::milliseconds pollInterval{1000};

    explicit TorLogStore(TorLog log, QObject *parent = nullptr,
                         std::chrono::milliseconds interval = pollInterval);

    const TorLog &log() const { return m_log; }
    const TorLog::Snapshot &snapshot() const { return m_snapshot; }

    // Reads at once and then polls for changes, until stop() or destruction.
    void start();
    void stop();
    // Reads when a file's size or time has changed since the last reading, or when `force` is set.
    void reload(bool force);

Q_SIGNALS:
    // The snapshot differs from the previous one.
    void changed();

private:
    TorLog m_log;
    TorLog::Snapshot m_snapshot;
    QString m_signature;
    QTimer m_timer;
};

} // namespace veldmark
