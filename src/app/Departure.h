#pragma once

#include "controller/Withdrawal.h"

#include <QObject>

#include <chrono>

namespace veldmark {

class Clock;

// How the program leaves when it is told to from outside: by a signal, by the end of the desktop's
// session or of the computer's day. The network is restored first and nobody is asked, except for
// the password where the helper needs one. That takes `patience` at most; then the program leaves
// the network as it is, and its next start shows that. Main thread.
class Departure : public QObject {
    Q_OBJECT

public:
    // Longer than the helper waits for another run of itself.
    static constexpr std::chrono::seconds patience{25};

    // Both must outlive the object.
    Departure(TorController &controller, Clock &clock);

    // Restores, then mayEnd(). The second SIGTERM or SIGINT lets the program end at once. SIGHUP is
    // never a second one: systemd sends it together with SIGTERM, and a terminal twice.
    void onSignal(int number);
    // Restores, then mayEnd(): the desktop's session is over.
    void leave();
    // Restores, then settled(). Whether the program ends is for others to say.
    void restore();

Q_SIGNALS:
    void settled(bool restored);
    void mayEnd(bool restored);

private:
    QCoro::Task<void> losePatience(quint64 run);
    void settle(bool restored);

    Clock &m_clock;
    Withdrawal m_withdrawal;
    quint64 m_run = 0;      // so that an old wait does not end a new one
    bool m_patient = false; // a wait is under way
    int m_insistence = 0;   // how often SIGTERM or SIGINT came
    bool m_leaving = false;
};

} // namespace veldmark
