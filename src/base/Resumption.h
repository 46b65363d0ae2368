#pragma once

#include <QEvent>
#include <QObject>

#include <coroutine>
#include <memory>

namespace veldmark {

// A suspended coroutine that is to go on through the event loop of the thread that made this.
// Lives and dies on that thread: what posts it from another one keeps no part of it.
class Resumption final : public QObject {
public:
    // The event that it waits for.
    static constexpr QEvent::Type turn = QEvent::User;

    explicit Resumption(std::coroutine_handle<> waiter) : m_waiter(waiter) {}

    // Any thread. The event loop of its own thread resumes the coroutine and then destroys it; the
    // pointer is good until the coroutine runs.
    static Resumption *post(std::unique_ptr<Resumption> resumption);

    // Resumes at once what was posted. On its own thread.
    void deliver();

protected:
    bool event(QEvent *event) override;

private:
    const std::coroutine_handle<> m_waiter;
};

} // namespace veldmark
