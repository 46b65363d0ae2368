#pragma once

#include <QFile>
#include <QString>

#include <cerrno>
#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace veldmark {

// A datagram socket at a path, as veldmark-identify has one. Nobody reads it; it goes with the
// object, and its file stays.
class ListeningSocket {
public:
    explicit ListeningSocket(const QString &path) : m_socket(::socket(AF_UNIX, SOCK_DGRAM, 0))
    {
        QFile::remove(path);
        sockaddr_un place{};
        place.sun_family = AF_UNIX;
        const QByteArray name = QFile::encodeName(path);
        if (m_socket < 0 || name.size() >= static_cast<qsizetype>(sizeof place.sun_path))
            qFatal("ListeningSocket: no place");
        std::memcpy(place.sun_path, name.constData(), static_cast<std::size_t>(name.size()));
        if (::bind(m_socket, reinterpret_cast<const sockaddr *>(&place), sizeof place) != 0)
            qFatal("ListeningSocket: %s", std::strerror(errno));
    }
    ~ListeningSocket() { ::close(m_socket); }
    ListeningSocket(const ListeningSocket &) = delete;
    ListeningSocket &operator=(const ListeningSocket &) = delete;

private:
    const int m_socket;
};

} // namespace veldmark
