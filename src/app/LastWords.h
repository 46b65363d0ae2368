#pragma once

#include <QString>

namespace veldmark {

struct PlatformProfile;

// What the program says on standard error when the process is ended behind its back: Qt calls
// exit() when the display goes. While the network is set up for Tor it stays so then, with the kill
// switch closed, as after a crash; the next start shows it. Exists for as long as main() does,
// once.
class LastWords {
public:
    explicit LastWords(const PlatformProfile &profile);
    ~LastWords(); // an orderly end, which has nothing to add
    // Whether the network is set up for Tor, and not by another process that runs, whose it is to
    // restore.
    static bool isNetworkLeft(const PlatformProfile &profile);
    // What a start that fails says besides, on lines of its own; empty unless isNetworkLeft(): it
    // was perhaps meant to restore.
    static QString advice(const PlatformProfile &profile);
    LastWords(const LastWords &) = delete;
    LastWords &operator=(const LastWords &) = delete;
};

} // namespace veldmark
