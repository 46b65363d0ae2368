#pragma once

#include <QHostAddress>
#include <QSet>

namespace veldmark {

// The addresses by which this computer reaches others, looked at from time to time. A connection
// belongs to the address that it was made from: when that is gone, nobody is told, and whoever
// holds the connection waits for minutes.
class OwnAddresses {
public:
    // `now`: those that there are at this look. Whether connections have to be made anew: since the
    // last look for which this was true (or since the first), one of the addresses has gone, and
    // now there is one to go out by.
    bool haveMoved(const QSet<QHostAddress> &now);

    // The system's, without loopback and link-local ones, by which nothing far away is reached.
    static QSet<QHostAddress> present();

private:
    QSet<QHostAddress> m_last;
    bool m_isOneLost = false;
};

} // namespace veldmark
