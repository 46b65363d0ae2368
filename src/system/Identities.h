#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

#include <sys/types.h>

namespace veldmark {

struct PlatformProfile;

// The identity program's list of applications and their addresses, in the file that the profile
// names. Any thread; reads files.
struct Identities {
    struct Identity {
        uid_t user = 0;
        QString address;
        // as the program writes it: letters, digits and a few signs, others as \xNN
        QString application;
        // Whether it belongs to the user who asks; all do for root.
        bool isMine() const;
    };
    bool standing = false; // the firewall's table is there
    std::vector<Identity> all;

    // The program may be writing the file at that moment. It is then read again, 5 ms later.
    static constexpr int mostReadings = 20;
    // Absent when the file does not exist or is incomplete, or no process listens on the socket: a
    // killed program leaves its file behind.
    static std::optional<Identities> read(const PlatformProfile &profile,
                                          int readings = mostReadings);
    static std::optional<Identities> parse(const QByteArray &text);
};

} // namespace veldmark
