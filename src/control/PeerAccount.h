#pragma once

#include <QByteArray>

#include <optional>

#include <sys/types.h>

namespace veldmark {

// Whose program has accepted a connection on this computer, as the kernel tells: a password must
// not be sent to whatever listens where Tor should.
struct PeerAccount {
    enum class Kind {
        Absent,   // there is no such connection (any more, or yet)
        Waiting,  // nobody has accepted it yet
        Accepted, // a process of `user` has
    };
    Kind kind = Kind::Absent;
    uid_t user = 0;

    // The end at 127.0.0.1:`port` of the connection that this process made from 127.0.0.1:`own`, in
    // the text of /proc/net/tcp. Pure.
    static PeerAccount in(const QByteArray &table, quint16 port, quint16 own);
    // The same, asked of the kernel now.
    static PeerAccount ask(quint16 port, quint16 own);

    friend bool operator==(const PeerAccount &, const PeerAccount &) = default;
};

} // namespace veldmark
