#pragma once

#include "app/Windows.h"

#include <qcorotask.h>

#include <memory>

namespace veldmark {

class TorController;

// Decides whether the program may end: at once while no session marker exists, otherwise only after
// the user has answered a dialogue. Main thread.
class QuitGuard : public QObject {
    Q_OBJECT

public:
    // Both must outlive the guard.
    QuitGuard(TorController &controller, Windows &windows);

public Q_SLOTS:
    void quit();

Q_SIGNALS:
    void mayEnd();
    // The answer to quit() is no: the user has cancelled, or the network could not be restored.
    void stays();

private Q_SLOTS:
    void onDisconnectWanted() { disconnectAndQuit(); }
    void onQuitWanted();
    void onCancelled();
    void showWhetherClosed();

private:
    QCoro::Task<void> disconnectAndQuit();
    void finish();
    void closeDialog();
    bool staysClosed() const;

    TorController &m_controller;
    Windows &m_windows;
    std::unique_ptr<QQuickWindow> m_dialog;
    bool m_quitAfterwards = false; // quit when the running disconnect has succeeded
};

} // namespace veldmark
