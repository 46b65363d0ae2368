#pragma once

#include "identify/GroupRegister.h"
#include "plain/Descriptor.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace veldmark {

// The identities, readable by every user. Lines:
//
//     identities COUNT
//     standing | lost           whether the table of the firewall is there
//     UID ADDRESS APPLICATION   for each that has a group just now
//     end COUNT
//
// COUNT grows with each change. The file is written in place: a reader that finds two different
// counts, or no end, reads again.
class StateFile {
public:
    // Limits for the lines, in bytes. Users choose the names in them: a user's lines beyond the
    // share are left out, so that the file stays readable for all. With more users than full
    // shares, each gets an equal part of the whole. veldmarkctl reads 4 MiB.
    static constexpr std::size_t shareLimit = 128 << 10;
    static constexpr std::size_t linesLimit = 3 << 20;

    // `identities` by user.
    [[nodiscard]] static std::string text(std::uint64_t count, bool standing,
                                          const std::vector<Identity> &identities);

    explicit StateFile(const std::string &path);

    [[nodiscard]] bool isOpen() const { return static_cast<bool>(m_file); }
    void write(bool standing, const std::vector<Identity> &identities);

private:
    Descriptor m_file;
    std::uint64_t m_count = 0;
};

} // namespace veldmark
