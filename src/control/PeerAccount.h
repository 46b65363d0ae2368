#pragma once

#include <QByteArray>

#include <optional>

#include <sys/types.h>

namespace veldmark {

// The account whose process accepted a connection on this computer, according to the kernel. The
// password must not go to another program that listens on Tor's port.
struct PeerAccount {
    enum class Kind {
        Absent,   // no such connection (any more, or yet)
        Waiting,  // no process has accepted it yet
        Accepted, // a process of `user` has accepted it
    };
    Kind kind = Kind::Absent;
    uid_t user = 0;

    // Finds the peer at 127.0.0.1:`port` of this process's connection from 127.0.0.1:`own` in the
    // text of /proc/net/tcp. Pure.
    static PeerAccount in(const QByteArray &table, quint16 port, quint16 own);
    // The same, from the kernel's current table.
    static PeerAccount ask(quint16 port, quint16 own);

    friend bool operator==(const PeerAccount &, const PeerAccount &) = default;
};

} // namespace veldmark
