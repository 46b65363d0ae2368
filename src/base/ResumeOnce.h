#pragma once

#include <QMetaObject>
#include <QObject>

#include <coroutine>
#include <memory>
#include <mutex>
#include <optional>

namespace veldmark {

// The meeting point of one waiting coroutine with the callbacks that can end its wait (a reply, a
// time-out, a lost connection, the destruction of the sender). The first `complete()` wins; every
// later one does nothing. Copies share the same state, so a callback may outlive the waiter.
//
//     ResumeOnce<bool> ready;
//     connect(socket, &QTcpSocket::connected, this, [ready] { ready.complete(true); });
//     connect(socket, &QTcpSocket::errorOccurred, this, [ready] { ready.complete(false); });
//     const bool connected = co_await ready;
//
// The waiter is resumed through the event loop of the thread that awaited, never inside
// `complete()`; it may therefore destroy the object whose signal completed it. `complete()` may
// be called from any thread. One coroutine may await one ResumeOnce, once. Whoever makes one must
// see to it that something completes it; a wait that nobody completes never ends.
template <typename T>
class ResumeOnce {
public:
    ResumeOnce() : m_state(std::make_shared<State>()) {}

    // True when this call ended the wait, false when an earlier one had.
    bool complete(T value) const
    {
        const std::shared_ptr<State> state = m_state;
        {
            const std::lock_guard guard(state->lock);
            if (state->done)
                return false;
            state->done = true;
            state->value.emplace(std::move(value));
            if (!state->waiter)
                return true; // not awaited yet: the waiter will find the value ready
        }
        QMetaObject::invokeMethod(
            state->context.get(), [state] { state->waiter.resume(); }, Qt::QueuedConnection);
        return true;
    }

    bool isDone() const
    {
        const std::lock_guard guard(m_state->lock);
        return m_state->done;
    }

    // The awaitable's own functions, called by co_await.
    bool await_ready() const { return isDone(); }

    bool await_suspend(std::coroutine_handle<> waiter) const
    {
        const std::lock_guard guard(m_state->lock);
        if (m_state->done)
            return false;
        m_state->context = std::make_unique<QObject>();
        m_state->waiter = waiter;
        return true;
    }

    T await_resume() const
    {
        const std::lock_guard guard(m_state->lock);
        return std::move(*m_state->value);
    }

private:
    struct State {
        std::mutex lock;
        bool done = false;
        std::optional<T> value;
        std::coroutine_handle<> waiter;
        std::unique_ptr<QObject> context; // lives in the waiter's thread
    };
    std::shared_ptr<State> m_state;
};

} // namespace veldmark
