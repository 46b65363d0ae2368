#include "controlfilter/TorProcess.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/signalfd.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace veldmark {

namespace {

constexpr int cannotRun = 127; // as shells say it
constexpr int signalled = 128; // plus the signal's number

// In the child.
[[noreturn]] void becomeTor(char *const *words, pid_t parent, const sigset_t &formerMask)
{
    if (prctl(PR_SET_PDEATHSIG, SIGKILL, 0, 0, 0) != 0 || getppid() != parent
        || sigprocmask(SIG_SETMASK, &formerMask, nullptr) != 0)
        _exit(cannotRun);
    execv(words[0], words);
    std::printf("[err] %s cannot be run: %s.\n", words[0], std::strerror(errno));
    std::fflush(stdout);
    _exit(cannotRun);
}

} // namespace

TorProcess::TorProcess(char *const *words)
{
    sigset_t taken;
    sigset_t former;
    sigemptyset(&taken);
    for (const int number : {SIGTERM, SIGINT, SIGCHLD})
        sigaddset(&taken, number);
    if (sigprocmask(SIG_BLOCK, &taken, &former) != 0)
        return;
    m_signals = Descriptor(signalfd(-1, &taken, SFD_CLOEXEC | SFD_NONBLOCK));
    if (!m_signals)
        return;
    const pid_t self = getpid();
    m_child = fork();
    if (m_child == 0)
        becomeTor(words, self, former);
}

std::optional<int> TorProcess::takeSignals()
{
    signalfd_siginfo signal{};
    while (read(m_signals.number(), &signal, sizeof signal) == sizeof signal) {
        if (signal.ssi_signo != SIGCHLD)
            ::kill(m_child, static_cast<int>(signal.ssi_signo));
    }
    // One notice may be for several children.
    int status = 0;
    for (pid_t ended = 0; (ended = waitpid(-1, &status, WNOHANG)) > 0;) {
        if (ended == m_child)
            return WIFEXITED(status) ? WEXITSTATUS(status) : signalled + WTERMSIG(status);
    }
    return std::nullopt;
}

void TorProcess::kill()
{
    ::kill(m_child, SIGKILL);
    while (waitpid(m_child, nullptr, 0) < 0 && errno == EINTR) { }
}

bool giveUpRights()
{
    __user_cap_header_struct head{};
    head.version = _LINUX_CAPABILITY_VERSION_3;
    const std::array<__user_cap_data_struct, 2> none{};
    const rlimit noCore{0, 0};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0
        && prctl(PR_CAP_AMBIENT, PR_CAP_AMBIENT_CLEAR_ALL, 0, 0, 0) == 0
        && syscall(SYS_capset, &head, none.data()) == 0 && setrlimit(RLIMIT_CORE, &noCore) == 0
        && prctl(PR_SET_DUMPABLE, 0, 0, 0, 0) == 0;
}

} // namespace veldmark
