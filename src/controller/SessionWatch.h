#pragma once

#include <QFileSystemWatcher>
#include <QObject>

#include <memory>

class QSocketNotifier;

namespace veldmark {

class TorController;

// Has the controller look at the computer's session whenever another process may have changed it:
// when something happens where the helper keeps its marker, and when the program ends whose session
// is shown. Main thread.
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
