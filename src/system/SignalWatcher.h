#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <memory>

namespace veldmark {

// Turns SIGINT, SIGTERM and SIGHUP into a Qt signal on the thread that created the watcher. During
// its lifetime none of them ends the process. At most one per process.
class SignalWatcher : public QObject {
    Q_OBJECT

public:
    SignalWatcher();
    ~SignalWatcher() override;

Q_SIGNALS:
    void received(int number);

private:
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace veldmark
