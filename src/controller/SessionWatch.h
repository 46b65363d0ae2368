#pragma once

#include <QFileSystemWatcher>
#include <QObject>

#include <memory>

class QSocketNotifier;

namespace veldmark {

class TorController;

// Makes the controller look at the computer's session whenever another process may have changed it:
// when the folder of the helper's marker changes, and when the process that owns the shown session
// ends. Main thread.
class SessionWatch : public QObject {
    Q_OBJECT

public:
    // `controller` must outlive the object.
    explicit SessionWatch(TorController &controller);
    ~SessionWatch() override;

private:
    void look();
    void watchFolder();
    void watchOwner();

    TorController &m_controller;
    QFileSystemWatcher m_folders;
    std::unique_ptr<QSocketNotifier> m_owner;
    int m_process = -1; // descriptor of the owner's process
};

} // namespace veldmark
