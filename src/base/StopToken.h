#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <utility>

namespace veldmark {

class StopCallback;

// A caller's request to end an operation. The caller keeps a StopSource; the operation gets its
// StopToken and polls it or registers a StopCallback. Copies of a source or token share one
// request. Any thread may use them.
//
// The needed part of the standard's <stop_token>, under the same names: Apple's standard library
// does not have that header.
class StopToken {
public:
    StopToken() = default; // without a source; never requested

    bool stop_possible() const { return m_state != nullptr; }
    bool stop_requested() const { return m_state && m_state->requested; }

private:
    friend class StopSource;
    friend class StopCallback;

    struct State {
        std::atomic<bool> requested = false;
        // Recursive, since a callback may destroy its own StopCallback.
        std::recursive_mutex lock;
        StopCallback *first = nullptr;
    };
    explicit StopToken(std::shared_ptr<State> state) : m_state(std::move(state)) { }

    std::shared_ptr<State> m_state;
};

// Calls a function once, when the stop is requested, on the requesting thread; at once if it was
// requested before. The destructor waits for a call that is running on another thread.
class StopCallback {
public:
    StopCallback(StopToken token, std::function<void()> call)
        : m_state(std::move(token.m_state)),
          m_call(std::move(call))
    {
        if (!m_state)
            return;
        const std::lock_guard guard(m_state->lock);
        if (m_state->requested) {
            m_call();
            return;
        }
        m_next = std::exchange(m_state->first, this);
    }
    ~StopCallback()
    {
        if (!m_state)
            return;
        const std::lock_guard guard(m_state->lock);
        for (StopCallback **at = &m_state->first; *at; at = &(*at)->m_next) {
            if (*at == this) {
                *at = m_next;
                return;
            }
        }
    }
    StopCallback(const StopCallback &) = delete;
    StopCallback &operator=(const StopCallback &) = delete;

private:
    friend class StopSource;

    std::shared_ptr<StopToken::State> m_state;
    std::function<void()> m_call;
    StopCallback *m_next = nullptr;
};

class StopSource {
public:
    StopSource() : m_state(std::make_shared<StopToken::State>()) { }

    StopToken get_token() const { return StopToken(m_state); }
    bool stop_requested() const { return m_state->requested; }

    // False when the stop was requested before.
    bool request_stop()
    {
        const auto state = m_state; // a callback may destroy this source
        const std::lock_guard guard(state->lock);
        if (state->requested.exchange(true))
            return false;
        while (StopCallback *callback = state->first) {
            state->first = callback->m_next;
            // the call may destroy its callback
            const std::function<void()> call = callback->m_call;
            call();
        }
        return true;
    }

private:
    std::shared_ptr<StopToken::State> m_state;
};

} // namespace veldmark
