#pragma once

#include <QCoreApplication>

#include <functional>

namespace veldmark {

// An application in which a test can act at the n-th resumption of a coroutine. Every wait of the
// program ends in a ResumeOnce, and every ResumeOnce resumes through an event of its own. The
// application counts these events on this thread.
class InterruptibleApplication : public QCoreApplication {
public:
    using QCoreApplication::QCoreApplication;

    enum class Moment { before, after };

    // Starts to count; at the n-th resumption, from 1, calls `act` right before or after it. The
    // coroutine is not resumed when its wait no longer exists by then.
    void interrupt(int resumption, Moment moment, std::function<void()> act);
    // Stops counting and acting.
    void leaveAlone() { m_act = nullptr; }

    bool notify(QObject *receiver, QEvent *event) override;

private:
    int m_wanted = 0;
    int m_resumptions = 0;
    Moment m_moment = Moment::before;
    std::function<void()> m_act;
};

} // namespace veldmark
