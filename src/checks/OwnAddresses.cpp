#include "checks/OwnAddresses.h"

#include <QNetworkInterface>

#include <utility>

namespace veldmark {

bool OwnAddresses::haveMoved(const QSet<QHostAddress> &now)
{
    if (!now.contains(m_last))
        m_isOneLost = true;
    m_last = now;
    return !now.isEmpty() && std::exchange(m_isOneLost, false);
}

QSet<QHostAddress> OwnAddresses::present()
{
    QSet<QHostAddress> found;
    for (const QHostAddress &address : QNetworkInterface::allAddresses()) {
        if (!address.isLoopback() && !address.isLinkLocal())
            found.insert(address);
    }
    return found;
}

} // namespace veldmark
