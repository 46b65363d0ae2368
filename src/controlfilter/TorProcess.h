#pragma once

#include "plain/Descriptor.h"

#include <optional>

#include <sys/types.h>

namespace veldmark {

// Tor as the child of this process. This process may be the first of its process namespace: it then
// waits for every process that has lost its parent.
class TorProcess {
public:
    // Takes over SIGTERM, SIGINT and SIGCHLD and runs `words` (ending with null) with everything
    // else that this process has: environment, standard streams, limits and rights. Tor ends with
    // this process.
    explicit TorProcess(char *const *words);

    [[nodiscard]] bool hasStarted() const { return m_child > 0 && m_signals; }
    [[nodiscard]] pid_t number() const { return m_child; }
    // Readable when takeSignals() has something to do.
    [[nodiscard]] int descriptor() const { return m_signals.number(); }

    // Passes signals on to Tor. Tor's exit status once it has ended, as a shell gives it.
    [[nodiscard]] std::optional<int> takeSignals();

    // Kills Tor and waits for its end.
    void kill();

private:
    Descriptor m_signals;
    pid_t m_child = -1;
};

// Gives up every right of this process, after Tor has got its own, and keeps other processes of the
// account away from its memory. False when a step fails.
[[nodiscard]] bool giveUpRights();

} // namespace veldmark
