#include "base/Resumption.h"

#include <QCoreApplication>

namespace veldmark {

namespace {

// Owns the receiver: Qt destroys an event after its delivery, on the receiver's thread, and so the
// receiver is never destroyed within its own event handler, nor by the thread that posts.
class Turn final : public QEvent {
public:
    explicit Turn(std::unique_ptr<Resumption> resumption) : QEvent(Resumption::turn), m_resumption(std::move(resumption)) {}

private:
    const std::unique_ptr<Resumption> m_resumption;
};

} // namespace

Resumption *Resumption::post(std::unique_ptr<Resumption> resumption)
{
    Resumption *const receiver = resumption.get();
    QCoreApplication::postEvent(receiver, new Turn(std::move(resumption)));
    return receiver;
}

void Resumption::deliver()
{
    QCoreApplication::sendPostedEvents(this, turn);
}

bool Resumption::event(QEvent *event)
{
    if (event->type() != turn)
        return QObject::event(event);
    m_waiter.resume();
    return true;
}

} // namespace veldmark
