#pragma once

#include "controlfilter/CommandFilter.h"
#include "plain/Descriptor.h"

#include <list>
#include <string>
#include <vector>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

namespace veldmark {

// A connection from a program, and the one to Tor that belongs to it. Neither is read while the
// other does not take what was read, so the memory is bounded however slow a side is. A program
// that does not take its answers sends no further commands either. Tor still collects the events
// that such a program has asked for.
class Connection {
public:
    Connection(Descriptor program, Descriptor tor, const CommandFilter::Reserve &reserve);

    // What poll() has to wait for, of the program and of Tor.
    [[nodiscard]] pollfd programsWait() const;
    [[nodiscard]] pollfd torsWait() const;
    // Moves what can be moved after poll() has returned these. False when the connection is over.
    [[nodiscard]] bool move(short programsEvents, short torsEvents);

    // Whether Tor's first answer was one of success: with the password, or to a farewell.
    [[nodiscard]] bool isKnown() const { return m_isKnown; }

private:
    [[nodiscard]] bool readProgram();
    [[nodiscard]] bool readTor();
    [[nodiscard]] bool writeProgram();
    void writeTor();

    Descriptor m_program;
    Descriptor m_tor;
    CommandFilter m_filter;
    std::string m_toTor;
    std::string m_toProgram;
    bool m_programHasEnded = false; // or is read no more
    bool m_torHasEnded = false;
    bool m_isKnown = false;
    bool m_hasAnswer = false;
};

// Tor's control port as programs see it.
class Connections {
public:
    // Takes the port, without listening yet. errno says why it is not taken.
    // `reserve`: the bridges that Tor may be told to use.
    Connections(const char *address, const char *port, const char *socket,
                CommandFilter::Reserve reserve);

    [[nodiscard]] bool hasPort() const { return static_cast<bool>(m_listener); }
    // Tor's process, in this namespace's numbers. Only with a process that has made its socket by
    // itself is anything said: bridge programs run in the same account and can replace the socket.
    void trust(pid_t tor) { m_tor = tor; }
    // Whether Tor listens at its socket. The first connection is kept for the first program.
    [[nodiscard]] bool torAnswers();
    // Listens from now on. errno says why not.
    [[nodiscard]] bool listen();

    // Waits for connections, and for `other` to be readable.
    void wait(int other);

private:
    [[nodiscard]] Descriptor connectToTor() const;
    void accept();
    // Ends the connection that has waited the longest without the password, if all places are
    // taken.
    void makePlace();
    [[nodiscard]] bool hasPlace() const;

    const CommandFilter::Reserve m_reserve;
    sockaddr_un m_torsPlace{};
    pid_t m_tor = -1;
    Descriptor m_listener;
    Descriptor m_spare;                  // to Tor
    std::list<Connection> m_connections; // the oldest first
    std::vector<pollfd> m_waits;
    bool m_isExhausted = false; // the system has no descriptor left
};

} // namespace veldmark
