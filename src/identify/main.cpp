// veldmark-identify TREE STATE SOCKET NFT: gives each desktop application on this computer its own
// loopback address, by which Tor separates their connections.
//
// The root helper runs it during a session, with the rules of its table on standard input. It
// follows the names of the control groups below TREE, and keeps the firewall's maps from groups to
// addresses current. It writes STATE, which every user may read (StateFile.h). At SOCKET it
// receives datagrams "new APPLICATION" from the application's user. NFT loads the rules. From the
// start it keeps only root's right to change the firewall. It ends on a signal.

#include "identify/Confinement.h"
#include "identify/FirewallMaps.h"
#include "identify/GroupTree.h"
#include "identify/StateFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <ctime>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/random.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace veldmark {

namespace {

constexpr auto table = "veldmark-identities"; // as in the helper's rules
constexpr std::size_t rulesLimit = 1 << 20;   // bytes
// bytes; the longest name of a unit, with each byte as \xNN
constexpr std::size_t requestLimit = 1100;
constexpr int requestsAtOnce = 16;
// requests are read at most this often, so that no user can keep the program busy
constexpr int requestMilliseconds = 50;
// the firewall is changed at most this often, however fast groups come
constexpr int roundMilliseconds = 2;
constexpr int tellMilliseconds = 100; // the state is written at most this often
constexpr int retryMilliseconds = 1000;
constexpr int leaveMilliseconds = 1000; // how long removed groups may stay in the maps

std::string readAll(int descriptor)
{
    std::string text;
    std::array<char, 4096> piece;
    ssize_t size = 0;
    while (text.size() < rulesLimit && (size = read(descriptor, piece.data(), piece.size())) > 0)
        text.append(piece.data(), static_cast<std::size_t>(size));
    return text;
}

std::int64_t now()
{
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return static_cast<std::int64_t>(time.tv_sec) * 1000 + time.tv_nsec / 1000000;
}

Descriptor requestSocket(const std::string &path)
{
    sockaddr_un place{};
    place.sun_family = AF_UNIX;
    if (path.size() >= sizeof place.sun_path)
        return Descriptor();
    std::memcpy(place.sun_path, path.c_str(), path.size());
    unlink(path.c_str());
    Descriptor made(socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    const int on = 1;
    if (!made || bind(made.number(), reinterpret_cast<const sockaddr *>(&place), sizeof place) != 0
        || chmod(path.c_str(), 0666) != 0
        || setsockopt(made.number(), SOL_SOCKET, SO_PASSCRED, &on, sizeof on) != 0)
        return Descriptor();
    return made;
}

class Identifier {
public:
    Identifier(const char *tree, const char *nft, std::string rules, StateFile &state,
               const Descriptor &requests, std::uint32_t start)
        : m_nft(nft),
          m_rules(std::move(rules)),
          m_state(state),
          m_requests(requests),
          m_tree(tree),
          m_maps(table),
          m_register(start)
    {
    }

    int run()
    {
        scan();
        if (!build())
            return 1;
        for (;;) {
            wait();
            if (m_maps.takeLoss())
                m_standing = false;
            takeEvents();
            takeRequests();
            apply();
            if (!m_standing && now() >= m_retryAt && !build())
                m_retryAt = now() + retryMilliseconds;
            tell();
            poll(nullptr, 0, roundMilliseconds);
        }
    }

private:
    void scan()
    {
        MapChanges forgotten;
        m_register.replace(m_tree.scan(), forgotten);
    }

    // New groups go to the firewall at once. Removed groups can wait for that, or for
    // `leaveMilliseconds`: a removed group sends nothing, and no other group gets its number.
    void apply()
    {
        if (m_changes.size() > m_seenChanges) {
            m_untold = true;
            m_changedAt = m_seenChanges == 0 ? now() : m_changedAt;
            m_seenChanges = m_changes.size();
        }
        const auto adds = [](const MapChange &change) {
            return change.action == MapChange::Action::add;
        };
        if (m_changes.empty()
            || (now() < m_changedAt + leaveMilliseconds
                && std::none_of(m_changes.begin(), m_changes.end(), adds)))
            return;
        m_standing = m_standing && m_maps.apply(m_changes);
        forgetChanges();
    }

    void forgetChanges()
    {
        m_changes.clear();
        m_seenChanges = 0;
    }

    // Loads the table again, with all known groups.
    bool build()
    {
        m_untold = true;
        forgetChanges();
        m_maps.removeTable();
        m_standing = load() && m_maps.apply(m_register.everything());
        return m_standing;
    }

    bool load()
    {
        std::array<int, 2> ends{};
        if (pipe2(ends.data(), O_CLOEXEC) != 0)
            return false;
        Descriptor reading(ends[0]);
        Descriptor writing(ends[1]);
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, reading.number(), STDIN_FILENO);
        std::string words[] = {m_nft, "-f", "-"};
        std::array<char *, 4> arguments = {words[0].data(), words[1].data(), words[2].data(),
                                           nullptr};
        std::array<char *, 1> environment = {nullptr};
        pid_t child = 0;
        const int failed = posix_spawn(&child, m_nft.c_str(), &actions, nullptr, arguments.data(),
                                       environment.data());
        posix_spawn_file_actions_destroy(&actions);
        if (failed != 0)
            return false;
        reading = Descriptor();
        for (std::size_t at = 0; at < m_rules.size();) {
            const ssize_t size = write(writing.number(), m_rules.data() + at, m_rules.size() - at);
            if (size <= 0)
                break;
            at += static_cast<std::size_t>(size);
        }
        writing = Descriptor();
        int status = 1;
        while (waitpid(child, &status, 0) < 0 && errno == EINTR) { }
        return status == 0;
    }

    void wait()
    {
        int timeout = -1;
        const auto until = [&timeout](std::int64_t moment) {
            const int left = static_cast<int>(std::max<std::int64_t>(0, moment - now()));
            timeout = timeout < 0 ? left : std::min(timeout, left);
        };
        if (m_untold)
            until(m_toldAt + tellMilliseconds);
        if (!m_standing)
            until(m_retryAt);
        if (now() < m_requestsAt)
            until(m_requestsAt);
        if (!m_changes.empty())
            until(m_changedAt + leaveMilliseconds);
        std::array<pollfd, 3> waited = {
            {{m_tree.descriptor(), POLLIN, 0},
             {m_maps.descriptor(), POLLIN, 0},
             {now() < m_requestsAt ? -1 : m_requests.number(), POLLIN, 0}}};
        poll(waited.data(), waited.size(), timeout);
    }

    void takeEvents()
    {
        const auto events = m_tree.read();
        if (!events) {
            m_register.replace(m_tree.scan(), m_changes);
            return;
        }
        for (const GroupTree::Event &event : *events) {
            if (event.came)
                m_register.add(event.group, m_changes);
            else
                m_register.remove(event.group, m_changes);
        }
    }

    void takeRequests()
    {
        if (now() < m_requestsAt)
            return;
        for (int many = 0; many < requestsAtOnce; ++many) {
            std::array<char, requestLimit> text;
            alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(ucred))> control;
            iovec part{text.data(), text.size()};
            msghdr message{};
            message.msg_iov = &part;
            message.msg_iovlen = 1;
            message.msg_control = control.data();
            message.msg_controllen = control.size();
            const ssize_t size = recvmsg(m_requests.number(), &message, MSG_CMSG_CLOEXEC);
            if (size < 0)
                return;
            const cmsghdr *head = CMSG_FIRSTHDR(&message);
            constexpr std::string_view word = "new ";
            const std::string_view request(text.data(), static_cast<std::size_t>(size));
            if ((message.msg_flags & MSG_TRUNC) != 0 || !head || head->cmsg_level != SOL_SOCKET
                || head->cmsg_type != SCM_CREDENTIALS || request.substr(0, word.size()) != word)
                continue;
            ucred sender{};
            std::memcpy(&sender, CMSG_DATA(head), sizeof sender);
            m_requestsAt = now() + requestMilliseconds;
            m_register.renew(sender.uid, std::string(request.substr(word.size())), m_changes);
        }
    }

    void tell()
    {
        if (!m_untold || now() < m_toldAt + tellMilliseconds)
            return;
        m_toldAt = now();
        m_untold = false;
        m_state.write(m_standing, m_register.identities());
    }

    const std::string m_nft;
    const std::string m_rules;
    StateFile &m_state;
    const Descriptor &m_requests;
    GroupTree m_tree;
    FirewallMaps m_maps;
    GroupRegister m_register;
    MapChanges m_changes; // not yet in the firewall
    std::size_t m_seenChanges = 0;
    std::int64_t m_changedAt = 0;
    bool m_standing = false;
    bool m_untold = true;
    std::int64_t m_toldAt = 0;
    std::int64_t m_retryAt = 0;
    std::int64_t m_requestsAt = 0;
};

} // namespace

} // namespace veldmark

int main(int argc, char **argv)
{
    using namespace veldmark;
    if (argc != 5 || geteuid() != 0) {
        std::fprintf(stderr, "veldmark-identify is run by Veldmark's root helper.\n");
        return 2;
    }
    umask(022);
    std::signal(SIGPIPE, SIG_IGN); // nft may end early
    const std::string rules = readAll(STDIN_FILENO);
    StateFile state(argv[2]);
    const Descriptor requests = requestSocket(argv[3]);
    // Starts at a random address, so that no application of the next session gets a former address
    // of another application.
    std::uint32_t start = 0;
    if (!state.isOpen() || !requests || getrandom(&start, sizeof start, 0) != sizeof start
        || !keepFirewallRightAlone())
        return 1;
    return Identifier(argv[1], argv[4], rules, state, requests, start).run();
}
