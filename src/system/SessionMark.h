#pragma once

#include <QtGlobal>

#include <optional>

namespace veldmark {

struct PlatformProfile;

// Identifies the session of the helper's marker: every connect writes a new file. Two successive
// sessions with the same content have two different marks.
struct SessionMark {
    quint64 file = 0;   // its inode number
    qint64 seconds = 0; // when it got that name, according to the computer's clock
    qint64 nanoseconds = 0;

    // Absent without a session.
    static std::optional<SessionMark> present(const PlatformProfile &profile);

    friend bool operator==(const SessionMark &, const SessionMark &) = default;
};

} // namespace veldmark
