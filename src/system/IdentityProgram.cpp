#include "system/IdentityProgram.h"

#include "platform/PlatformProfile.h"

#include <QFile>
#include <QList>

#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>

namespace veldmark {

namespace {
constexpr qint64 headBytes = 64; // the note's first two lines
} // namespace

IdentityProgram::IdentityProgram(const PlatformProfile &profile)
    : m_socket(socket(AF_UNIX, SOCK_DGRAM, 0))
{
    sockaddr_un place{};
    place.sun_family = AF_UNIX;
    const QByteArray name = QFile::encodeName(profile.identitiesSocket);
    if (!m_socket || name.size() >= static_cast<qsizetype>(sizeof place.sun_path))
        return;
    std::memcpy(place.sun_path, name.constData(), static_cast<std::size_t>(name.size()));
    m_isThere = ::connect(m_socket.number(), reinterpret_cast<const sockaddr *>(&place),
                          sizeof place)
        == 0;
}

bool IdentityProgram::send(const QByteArray &wish) const
{
    return m_isThere
        && ::send(m_socket.number(), wish.constData(), static_cast<std::size_t>(wish.size()), 0)
        == wish.size();
}

std::optional<bool> IdentityProgram::separates(const PlatformProfile &profile)
{
    if (profile.identitiesNote.isEmpty())
        return std::nullopt;
    if (!IdentityProgram(profile).isThere())
        return false;
    QFile file(profile.identitiesNote);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QList<QByteArray> lines = file.read(headBytes).split('\n');
    if (lines.size() < 3 || !lines.constFirst().startsWith("identities "))
        return std::nullopt;
    return lines[1] == "standing";
}

} // namespace veldmark
