#pragma once

#include <QCoreApplication>

#include <functional>

namespace veldmark {

// An application that lets a test act at the n-th time a coroutine is resumed. Every wait of the
// program ends in a ResumeOnce, and every ResumeOnce resumes through an event of its own; these
// events are what is counted, on this thread.
class InterruptibleApplication : public QCoreApplication {
public:
    using QCoreApplication::QCoreApplication;

    enum class Moment { before, after };

    // From now on counts; at the n-th resumption, from 1, does `act` right before or after it. The
    // coroutine that was to be resumed is not when its wait has gone by then.
    void interrupt(int resumption, Moment moment, std::function<void()> act);
    // Counts no longer and does nothing more.
    void leaveAlone() { m_act = nullptr; }
    // Since interrupt().
    int resumptions() const { return m_resumptions; }

    bool notify(QObject *receiver, QEvent *event) override;

private:
    int m_wanted = 0;
    int m_resumptions = 0;
    Moment m_moment = Moment::before;
    std::function<void()> m_act;
};

} // namespace veldmark
