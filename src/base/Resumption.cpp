#include "base/Resumption.h"

#include <QCoreApplication>
#include <QThreadPool>

#include <atomic>

namespace veldmark {

namespace {

std::atomic<int> alive = 0;
std::atomic<int> pending = 0; // of these: posted, not delivered

constexpr QEvent::Type turn = QEvent::User; // a Waiter gets no other event from the program

class Waiter final : public QObject {
public:
    explicit Waiter(std::coroutine_handle<> waiter) : m_waiter(waiter) { }

protected:
    bool event(QEvent *event) override
    {
        if (event->type() != turn)
            return QObject::event(event);
        m_waiter.resume();
        return true;
    }

private:
    const std::coroutine_handle<> m_waiter;
};

} // namespace

Resumption::Resumption(std::coroutine_handle<> waiter)
    : QEvent(turn),
      m_receiver(std::make_unique<Waiter>(waiter))
{
    ++alive;
}

Resumption::~Resumption()
{
    --alive;
    if (m_isPosted)
        --pending;
}

void Resumption::post(std::unique_ptr<Resumption> resumption)
{
    resumption->m_isPosted = true;
    ++pending;
    QObject *const receiver = resumption->receiver();
    QCoreApplication::postEvent(receiver, resumption.release());
}

void Resumption::deliver(QObject *receiver)
{
    QCoreApplication::sendPostedEvents(receiver, turn);
}

int Resumption::waiting()
{
    return alive;
}

void Resumption::deliverAll()
{
    constexpr int mostTurns = 1000; // a limit, so that the program always ends
    for (int turns = 0; turns < mostTurns; ++turns) {
        QThreadPool::globalInstance()->waitForDone();
        if (pending == 0)
            return;
        QCoreApplication::sendPostedEvents(nullptr, turn);
    }
}

} // namespace veldmark
