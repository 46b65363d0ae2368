#pragma once

namespace veldmark {

struct PlatformProfile;

// What the program says on standard error when the process is ended behind its back: Qt calls exit()
// when the display goes. While the network is set up for Tor it stays so then, with the kill switch
// closed, as after a crash; the next start shows it. Exists for as long as main() does, once.
class LastWords {
public:
    explicit LastWords(const PlatformProfile &profile);
    ~LastWords(); // an orderly end, which has nothing to add
    LastWords(const LastWords &) = delete;
    LastWords &operator=(const LastWords &) = delete;
};

} // namespace veldmark
