#pragma once

#include "controller/NetworkRestorer.h"

#include <QObject>

#include <chrono>

namespace veldmark {

class Clock;

// Ends the program on signals, logout or shutdown. Restores the network first, without asking the
// user, except for the password where the helper needs one. Waits `patience` at most. After that
// the program leaves the network as it is, and its next start shows the left-over session. Main
// thread.
class ExitHandler : public QObject {
    Q_OBJECT

public:
    // Longer than the helper waits for another helper process.
    static constexpr std::chrono::seconds patience{25};

    // Both must outlive the object.
    ExitHandler(TorController &controller, Clock &clock);

    // Restores, then mayEnd(). A second SIGTERM or SIGINT lets the program end at once. SIGHUP
    // never counts as a second signal: systemd sends it together with SIGTERM, and a terminal sends
    // it twice.
    void onSignal(int number);
    // Restores, then mayEnd(). The desktop's session is over.
    void leave();
    // Restores, then settled(). The caller decides whether the program ends.
    void restore();

Q_SIGNALS:
    void settled(bool restored);
    void mayEnd(bool restored);

private:
    QCoro::Task<void> losePatience(quint64 run);
    void settle(bool restored);

    Clock &m_clock;
    NetworkRestorer m_restorer;
    quint64 m_run = 0;      // identifies the current wait, so that an old one does not end it
    bool m_patient = false; // a wait is under way
    int m_insistence = 0;   // number of SIGTERM and SIGINT received
    bool m_leaving = false;
};

} // namespace veldmark
