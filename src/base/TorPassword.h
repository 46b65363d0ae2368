#pragma once

#include <QString>

namespace veldmark {

// The control password of one session, and the hash that Tor gets. This process sends the password
// only to Tor and never puts it on a command line. Any thread.
struct TorPassword {
    QString clear; // 64 hexadecimal digits
    QString hash;  // for HashedControlPassword

    static TorPassword random();

    // "16:" and the upper-case hexadecimal digits that `tor --hash-password` prints: OpenPGP's
    // iterated and salted S2K (RFC 4880, 3.7.1.3) with SHA-1, over 65,536 bytes. `salt` has 8
    // bytes.
    static QString hashOf(const QByteArray &clear, const QByteArray &salt);
    static bool matches(const QByteArray &clear, const QString &hash);

    friend bool operator==(const TorPassword &, const TorPassword &) = default;
};

} // namespace veldmark
