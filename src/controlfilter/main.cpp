// veldmark-control ADDRESS PORT SOCKET [-] -- TOR WORD...: runs TOR, and takes its place at
// the control port.
//
// The root helper starts it in Tor's account, as the first process of Tor's namespaces. TOR opens
// its control port at SOCKET, which only that account reaches, instead of ADDRESS:PORT. From there
// only commands that Veldmark uses reach Tor (CommandFilter.h). With "-" the bridges that they may
// name are read from standard input, which Tor does not inherit. Tor's answers come back unchanged.
// The port opens when Tor's socket does. SIGTERM and SIGINT are passed on to Tor. It ends with
// Tor's exit status when Tor ends, and Tor ends with it.

#include "controlfilter/Connections.h"
#include "controlfilter/ReserveFile.h"
#include "controlfilter/TorProcess.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace veldmark {

namespace {

constexpr int startMilliseconds = 5; // between two looks for Tor's socket

// In Tor's words, which the helper shows.
int reportTakenPort(const char *address, const char *port)
{
    std::printf("[warn] Could not bind to %s:%s: %s.\n", address, port, std::strerror(errno));
    return 1;
}

// Replaces standard input by nothing.
bool closeInput()
{
    const int nothing = open("/dev/null", O_RDONLY | O_CLOEXEC);
    if (nothing < 0 || dup2(nothing, STDIN_FILENO) < 0)
        return false;
    return nothing == STDIN_FILENO || close(nothing) == 0;
}

} // namespace

} // namespace veldmark

int main(int argc, char **argv)
{
    using namespace veldmark;
    // Where the words of Tor begin.
    const int words = argc >= 6 && std::strcmp(argv[4], "--") == 0                       ? 5
        : argc >= 7 && std::strcmp(argv[4], "-") == 0 && std::strcmp(argv[5], "--") == 0 ? 6
                                                                                         : 0;
    if (words == 0) {
        std::fprintf(stderr, "veldmark-control is run by Veldmark's root helper.\n");
        return 2;
    }
    auto reserve = words == 6 ? readReserve(STDIN_FILENO) : std::optional(CommandFilter::Reserve());
    if (!reserve || !closeInput()) {
        std::printf("[err] The bridges in reserve cannot be read: %s.\n", std::strerror(errno));
        return 1;
    }
    Connections connections(argv[1], argv[2], argv[3], std::move(*reserve));
    if (!connections.hasPort())
        return reportTakenPort(argv[1], argv[2]);
    TorProcess tor(argv + words);
    if (!tor.hasStarted() || !giveUpRights()) {
        std::printf("[err] The filter before the control port cannot start: %s.\n",
                    std::strerror(errno));
        return 1;
    }
    connections.trust(tor.number());
    pollfd signals = {tor.descriptor(), POLLIN, 0};
    while (!connections.torAnswers()) {
        poll(&signals, 1, startMilliseconds);
        if (const auto status = tor.takeSignals())
            return *status;
    }
    if (!connections.listen()) {
        const int status = reportTakenPort(argv[1], argv[2]);
        tor.kill();
        return status;
    }
    for (;;) {
        connections.wait(tor.descriptor());
        if (const auto status = tor.takeSignals())
            return *status;
    }
}
