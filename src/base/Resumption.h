#pragma once

#include <QEvent>
#include <QObject>

#include <coroutine>
#include <memory>

namespace veldmark {

// The event that lets a suspended coroutine go on, through the event loop of the thread that made
// it. Owns what it is sent to, and Qt destroys it after its delivery, on that thread: whoever posts
// it from another thread makes no part of it and keeps none.
class Resumption final : public QEvent {
public:
    explicit Resumption(std::coroutine_handle<> waiter);
    ~Resumption() override;
    Q_DISABLE_COPY_MOVE(Resumption)

    // Any thread, once. The coroutine is resumed when the event loop comes to it, or by deliver().
    static void post(std::unique_ptr<Resumption> resumption);

    // Names it until the coroutine runs.
    QObject *receiver() const { return m_receiver.get(); }
    // Resumes at once what was posted to `receiver`. On the thread of the coroutine.
    static void deliver(QObject *receiver);
    // Resumes at once everything that was posted on this thread, what the global thread pool is
    // busy with as well, and what comes of it in turn.
    static void deliverAll();
    // How many coroutines wait, on all threads together. At a program's end none may.
    static int waiting();

private:
    const std::unique_ptr<QObject> m_receiver;
    bool m_isPosted = false;
};

// Declared before everything that waits and after the application: when all of that has gone and
// the event loop turns no more, lets the coroutines that were waiting run to their ends.
class LastTurn {
public:
    LastTurn() = default;
    ~LastTurn() { Resumption::deliverAll(); }
    Q_DISABLE_COPY_MOVE(LastTurn)
};

} // namespace veldmark
