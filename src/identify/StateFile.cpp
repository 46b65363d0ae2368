#include "identify/StateFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace veldmark {

namespace {

std::string dotted(std::uint32_t address)
{
    return std::to_string(address >> 24) + "." + std::to_string(address >> 16 & 255) + "."
        + std::to_string(address >> 8 & 255) + "." + std::to_string(address & 255);
}

} // namespace

StateFile::StateFile(const std::string &path)
    : m_file(open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0644))
{
    if (m_file && fchmod(m_file.number(), 0644) != 0)
        m_file = Descriptor();
}

void StateFile::write(bool standing, const std::vector<Identity> &identities)
{
    const std::string count = std::to_string(++m_count) + "\n";
    std::string text = "identities " + count + (standing ? "standing\n" : "lost\n");
    for (const Identity &identity : identities)
        text += std::to_string(identity.user) + " " + dotted(identity.address) + " "
            + identity.application + "\n";
    text += "end " + count;
    // A disk that is full leaves a file without an end, which says so.
    if (ftruncate(m_file.number(), 0) == 0)
        static_cast<void>(pwrite(m_file.number(), text.data(), text.size(), 0) < 0);
}

} // namespace veldmark
