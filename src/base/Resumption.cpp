#include "base/Resumption.h"

#include <QCoreApplication>

namespace veldmark {

namespace {

constexpr QEvent::Type turn = QEvent::User; // a Waiter gets no other event of ours

class Waiter final : public QObject {
public:
    explicit Waiter(std::coroutine_handle<> waiter) : m_waiter(waiter) {}

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
    : QEvent(turn), m_receiver(std::make_unique<Waiter>(waiter))
{
}

Resumption::~Resumption() = default;

void Resumption::post(std::unique_ptr<Resumption> resumption)
{
    QObject *const receiver = resumption->receiver();
    QCoreApplication::postEvent(receiver, resumption.release());
}

void Resumption::deliver(QObject *receiver)
{
    QCoreApplication::sendPostedEvents(receiver, turn);
}

} // namespace veldmark
