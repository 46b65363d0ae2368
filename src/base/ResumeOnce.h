#pragma once

#include "base/Resumption.h"

#include <memory>
#include <mutex>
#include <optional>

namespace veldmark {

// Connects one waiting coroutine with the callbacks that can end its wait (a reply, a time-out, a
// lost connection, the destruction of the sender). The first `complete()` wins; later calls do
// nothing. Copies share one state, so a callback may outlive the waiter.
//
//     ResumeOnce<bool> ready;
//     connect(socket, &QTcpSocket::connected, this, [ready] { ready.complete(true); });
//     connect(socket, &QTcpSocket::errorOccurred, this, [ready] { ready.complete(false); });
//     const bool connected = co_await ready;
//
// The waiter resumes through the event loop of the thread that awaited, never inside `complete()`.
// The waiter may therefore destroy the object whose signal completed the wait. Any thread may call
// `complete()`. One coroutine may await one ResumeOnce, once. The creator must make sure that
// something completes the wait: otherwise it never ends.
template <typename T> class ResumeOnce {
public:
    ResumeOnce() : m_state(std::make_shared<State>()) { }

    // True when this call ended the wait, false when an earlier call did.
    bool complete(T value) const
    {
        const std::lock_guard guard(m_state->lock);
        if (m_state->done)
            return false;
        m_state->done = true;
        m_state->value.emplace(std::move(value));
        // Posted under the lock, so that deliver() finds it. Without a resumption no coroutine
        // waits yet, and the later waiter finds the value ready.
        if (m_state->resumption) {
            m_state->posted = m_state->resumption->receiver();
            Resumption::post(std::move(m_state->resumption));
        }
        return true;
    }

    // Resumes the waiter now if its wait has ended and the event loop has not resumed it yet. For
    // the destructor of the object waited for, after which the loop may not run again. Call it on
    // the waiter's thread. The waiter runs inside this call and may destroy the caller.
    void deliver() const
    {
        QObject *posted = nullptr;
        {
            const std::lock_guard guard(m_state->lock);
            posted = m_state->posted;
        }
        if (posted)
            Resumption::deliver(posted);
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
        m_state->resumption = std::make_unique<Resumption>(waiter);
        return true;
    }

    T await_resume() const
    {
        const std::lock_guard guard(m_state->lock);
        m_state->posted = nullptr;
        return std::move(*m_state->value);
    }

private:
    struct State {
        std::mutex lock;
        bool done = false;
        std::optional<T> value;
        std::unique_ptr<Resumption> resumption; // while a coroutine waits
        // the receiver of the posted resumption, until the waiter runs
        QObject *posted = nullptr;
    };
    std::shared_ptr<State> m_state;
};

} // namespace veldmark
