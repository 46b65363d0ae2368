#include "support/Interruption.h"

#include "base/Resumption.h"

#include <QEvent>
#include <QPointer>

#include <utility>

namespace veldmark {

void InterruptibleApplication::interrupt(int resumption, Moment moment, std::function<void()> act)
{
    m_wanted = resumption;
    m_resumptions = 0;
    m_moment = moment;
    m_act = std::move(act);
}

bool InterruptibleApplication::notify(QObject *receiver, QEvent *event)
{
    const bool isResumption = m_act && dynamic_cast<Resumption *>(event);
    if (!isResumption || ++m_resumptions != m_wanted)
        return QCoreApplication::notify(receiver, event);
    const auto act = std::exchange(m_act, nullptr);
    const QPointer<QObject> wait(receiver);
    bool delivered = true;
    if (m_moment == Moment::before)
        act();
    if (wait)
        delivered = QCoreApplication::notify(receiver, event);
    if (m_moment == Moment::after)
        act();
    return delivered;
}

} // namespace veldmark
