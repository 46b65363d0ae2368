#pragma once

#include <QHostAddress>
#include <QSet>

namespace veldmark {

// Follows the computer's own network addresses. A connection is bound to its local address. When
// that address disappears, the program gets no error and waits for minutes.
class OwnAddresses {
public:
    // `now` is the current set of addresses. True when connections must be made anew: an address
    // has disappeared since the last call that returned true (or since the first call), and `now`
    // is not empty.
    bool haveMoved(const QSet<QHostAddress> &now);

    // The system's addresses, without loopback and link-local ones, which reach nothing far away.
    static QSet<QHostAddress> present();

private:
    QSet<QHostAddress> m_last;
    bool m_isOneLost = false;
};

} // namespace veldmark
