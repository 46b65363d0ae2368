#include "identify/StateFile.h"

#include <algorithm>
#include <map>
#include <set>

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

std::string StateFile::text(std::uint64_t count, bool standing,
                            const std::vector<Identity> &identities)
{
    std::set<uid_t> users;
    for (const Identity &identity : identities)
        users.insert(identity.user);
    const std::size_t share = std::min(shareLimit,
                                       linesLimit / std::max<std::size_t>(users.size(), 1));

    const std::string number = std::to_string(count) + "\n";
    std::string text = "identities " + number + (standing ? "standing\n" : "lost\n");
    std::map<uid_t, std::size_t> taken;
    for (const Identity &identity : identities) {
        const std::string line = std::to_string(identity.user) + " " + dotted(identity.address)
            + " " + identity.application + "\n";
        std::size_t &bytes = taken[identity.user];
        if (bytes + line.size() > share)
            continue;
        bytes += line.size();
        text += line;
    }
    return text + "end " + number;
}

void StateFile::write(bool standing, const std::vector<Identity> &identities)
{
    const std::string words = text(++m_count, standing, identities);
    // On a full disk the file has no end line, and readers notice that.
    if (ftruncate(m_file.number(), 0) == 0)
        static_cast<void>(pwrite(m_file.number(), words.data(), words.size(), 0) < 0);
}

} // namespace veldmark
