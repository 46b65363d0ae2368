#include "controlfilter/Connections.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstring>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>

namespace veldmark {

namespace {

// Each has two descriptors. So many that a program's connection is not displaced by others before
// it has said the password.
constexpr std::size_t mostConnections = 256;
constexpr int acceptsAtOnce = 16;
// Bytes read at once. An empty line of a program becomes ten bytes for Tor.
constexpr std::size_t programsPiece = 1024;
constexpr std::size_t torsPiece = 16384;
// how long no connection is accepted when the system has no descriptor left
constexpr int exhaustedMilliseconds = 100;
constexpr short broken = POLLERR | POLLHUP | POLLNVAL;

bool isPassing(int error)
{
    return error == EAGAIN || error == EWOULDBLOCK || error == EINTR;
}

// Sends as much of `text` as `descriptor` takes. False when the other side is gone.
bool send(const Descriptor &descriptor, std::string &text)
{
    const ssize_t size = ::send(descriptor.number(), text.data(), text.size(), MSG_NOSIGNAL);
    if (size < 0)
        return isPassing(errno);
    text.erase(0, static_cast<std::size_t>(size));
    return true;
}

} // namespace

Connection::Connection(Descriptor program, Descriptor tor, const CommandFilter::Reserve &reserve)
    : m_program(std::move(program)),
      m_tor(std::move(tor)),
      m_filter(reserve)
{
}

// The program's end is always watched for: it may be gone while Tor has nothing to say.
pollfd Connection::programsWait() const
{
    short events = m_toProgram.empty() ? 0 : POLLOUT;
    if (!m_programHasEnded && m_toTor.empty() && m_toProgram.empty())
        events |= POLLIN;
    return {m_program.number(), events, 0};
}

// Tor's end is not: it would be reported again and again while the program takes no answer.
pollfd Connection::torsWait() const
{
    short events = m_toTor.empty() ? 0 : POLLOUT;
    if (!m_torHasEnded && m_toProgram.empty())
        events |= POLLIN;
    return {events == 0 ? -1 : m_tor.number(), events, 0};
}

bool Connection::move(short programsEvents, short torsEvents)
{
    if ((programsEvents & broken) != 0)
        return false;
    if ((programsEvents & POLLIN) != 0 && !readProgram())
        return false;
    if ((torsEvents & (POLLIN | broken)) != 0 && m_toProgram.empty() && !m_torHasEnded
        && !readTor())
        return false;
    // What was read is passed on at once, so that an answer takes one round.
    if (!m_toTor.empty())
        writeTor();
    if (!m_toProgram.empty() && !writeProgram())
        return false;
    return !m_torHasEnded || !m_toProgram.empty();
}

bool Connection::readProgram()
{
    std::array<char, programsPiece> piece;
    const ssize_t size = recv(m_program.number(), piece.data(), piece.size(), 0);
    if (size < 0)
        return isPassing(errno);
    if (size == 0) {
        m_programHasEnded = true;
        shutdown(m_tor.number(), SHUT_WR); // everything before has been sent
        return true;
    }
    m_filter.take({piece.data(), static_cast<std::size_t>(size)}, m_toTor);
    m_programHasEnded = m_filter.isOver();
    return true;
}

bool Connection::readTor()
{
    std::array<char, torsPiece> piece;
    const ssize_t size = recv(m_tor.number(), piece.data(), piece.size(), 0);
    if (size < 0 && isPassing(errno))
        return true;
    if (size <= 0) {
        m_torHasEnded = true;
        return true;
    }
    m_toProgram.assign(piece.data(), static_cast<std::size_t>(size));
    if (!m_hasAnswer)
        m_isKnown = piece[0] == '2';
    m_hasAnswer = true;
    return true;
}

bool Connection::writeProgram()
{
    return send(m_program, m_toProgram);
}

void Connection::writeTor()
{
    if (send(m_tor, m_toTor))
        return;
    // Tor may have answered before it closed the connection.
    m_toTor.clear();
    m_programHasEnded = true;
}

Connections::Connections(const char *address, const char *port, const char *socket,
                         CommandFilter::Reserve reserve)
    : m_reserve(std::move(reserve))
{
    sockaddr_in place{};
    place.sin_family = AF_INET;
    in_port_t number = 0;
    const char *const end = port + std::strlen(port);
    const auto [rest, error] = std::from_chars(port, end, number);
    m_torsPlace.sun_family = AF_UNIX;
    if (rest != end || error != std::errc() || inet_pton(AF_INET, address, &place.sin_addr) != 1
        || std::strlen(socket) >= sizeof m_torsPlace.sun_path) {
        errno = EINVAL;
        return;
    }
    place.sin_port = htons(number);
    std::memcpy(m_torsPlace.sun_path, socket, std::strlen(socket));
    Descriptor made(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    const int on = 1;
    // A former Tor's ended connections would keep the port taken for a minute.
    if (made && setsockopt(made.number(), SOL_SOCKET, SO_REUSEADDR, &on, sizeof on) == 0
        && bind(made.number(), reinterpret_cast<const sockaddr *>(&place), sizeof place) == 0)
        m_listener = std::move(made);
}

bool Connections::torAnswers()
{
    if (!m_spare)
        m_spare = connectToTor();
    return static_cast<bool>(m_spare);
}

bool Connections::listen()
{
    return ::listen(m_listener.number(), SOMAXCONN) == 0;
}

Descriptor Connections::connectToTor() const
{
    Descriptor made(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (!made
        || connect(made.number(), reinterpret_cast<const sockaddr *>(&m_torsPlace),
                   sizeof m_torsPlace)
            != 0)
        return Descriptor();
    // The process that began to listen; its number is not used again before this process ends.
    ucred listener{};
    socklen_t size = sizeof listener;
    if (getsockopt(made.number(), SOL_SOCKET, SO_PEERCRED, &listener, &size) != 0
        || listener.pid != m_tor)
        return Descriptor();
    return made;
}

bool Connections::hasPlace() const
{
    return m_connections.size() < mostConnections
        || std::any_of(m_connections.begin(), m_connections.end(),
                       [](const Connection &one) { return !one.isKnown(); });
}

void Connections::makePlace()
{
    if (m_connections.size() < mostConnections)
        return;
    const auto stranger = std::find_if(m_connections.begin(), m_connections.end(),
                                       [](const Connection &one) { return !one.isKnown(); });
    if (stranger != m_connections.end())
        m_connections.erase(stranger);
}

void Connections::accept()
{
    for (int many = 0; many < acceptsAtOnce && hasPlace(); ++many) {
        Descriptor program(
            accept4(m_listener.number(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
        if (!program) {
            m_isExhausted = errno == EMFILE || errno == ENFILE || errno == ENOBUFS
                || errno == ENOMEM;
            return;
        }
        Descriptor tor = m_spare ? std::move(m_spare) : connectToTor();
        if (!tor)
            continue; // the program sees the end of its connection
        makePlace();
        const int on = 1;
        setsockopt(program.number(), IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
        m_connections.emplace_back(std::move(program), std::move(tor), m_reserve);
    }
}

void Connections::wait(int other)
{
    m_waits.clear();
    m_waits.push_back({other, POLLIN, 0});
    m_waits.push_back({!m_isExhausted && hasPlace() ? m_listener.number() : -1, POLLIN, 0});
    for (const Connection &one : m_connections) {
        m_waits.push_back(one.programsWait());
        m_waits.push_back(one.torsWait());
    }
    if (poll(m_waits.data(), m_waits.size(), m_isExhausted ? exhaustedMilliseconds : -1) < 0)
        return;
    m_isExhausted = false;
    auto wait = m_waits.begin() + 2;
    for (auto one = m_connections.begin(); one != m_connections.end(); wait += 2) {
        if (one->move(wait[0].revents, wait[1].revents))
            ++one;
        else
            one = m_connections.erase(one);
    }
    if (m_waits[1].revents != 0)
        accept();
}

} // namespace veldmark
