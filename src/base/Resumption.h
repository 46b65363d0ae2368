#pragma once

#include <QEvent>
#include <QObject>

#include <coroutine>
#include <memory>

namespace veldmark {

// The event that resumes a suspended coroutine through the event loop of the thread that created
// the event. It owns its receiver. Qt destroys the event after delivery, on that thread; a thread
// that posts it from elsewhere must not keep a reference.
class Resumption final : public QEvent {
public:
    explicit Resumption(std::coroutine_handle<> waiter);
    ~Resumption() override;
    Q_DISABLE_COPY_MOVE(Resumption)

    // Any thread, once. The event loop or deliver() resumes the coroutine.
    static void post(std::unique_ptr<Resumption> resumption);

    // Identifies the resumption until the coroutine runs.
    QObject *receiver() const { return m_receiver.get(); }
    // Resumes at once the coroutine posted to `receiver`. Call it on the coroutine's thread.
    static void deliver(QObject *receiver);
    // Resumes at once every coroutine posted on this thread. Waits for the global thread pool
    // first, and repeats for what these coroutines post in turn.
    static void deliverAll();
    // The number of waiting coroutines on all threads. It must be 0 at the end of the program.
    static int waiting();

private:
    const std::unique_ptr<QObject> m_receiver;
    bool m_isPosted = false;
};

// Declared after the application and before every object with a coroutine. Its destructor runs
// last, when the event loop has ended, and lets the waiting coroutines run to their ends.
class CoroutineEnds {
public:
    CoroutineEnds() = default;
    ~CoroutineEnds() { Resumption::deliverAll(); }
    Q_DISABLE_COPY_MOVE(CoroutineEnds)
};

// Runs the rest of a program, which makes its objects and returns the exit status; then the
// coroutines that still wait run to their ends. Both programs' main() ends with it.
template <typename Program> int runToCoroutineEnds(const Program &program)
{
    const CoroutineEnds coroutineEnds; // goes last
    return program();
}

} // namespace veldmark
