#pragma once

#include <QString>

namespace veldmark {

struct PlatformProfile;

// Prints recovery instructions when Qt calls exit() itself, as it does when the display goes away.
// If the network is set up for Tor then, it stays so with the kill switch closed, as after a crash,
// and the next start shows it. main() owns the one object, for its whole run.
class RecoveryNotice {
public:
    explicit RecoveryNotice(const PlatformProfile &profile);
    ~RecoveryNotice(); // an orderly end: prints nothing
    // Whether the network is set up for Tor by a session that is not another running process's.
    static bool isNetworkLeft(const PlatformProfile &profile);
    // Recovery instructions to add, on lines of their own, when a start fails: the user may have
    // wanted to restore the network. Empty unless isNetworkLeft().
    static QString advice(const PlatformProfile &profile);
    RecoveryNotice(const RecoveryNotice &) = delete;
    RecoveryNotice &operator=(const RecoveryNotice &) = delete;
};

} // namespace veldmark
