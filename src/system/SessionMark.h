#pragma once

#include <QtGlobal>

#include <optional>

namespace veldmark {

struct PlatformProfile;

// Which session the helper's marker tells of: every connect writes a new file. Two sessions that
// look the same, one after the other, have two marks.
struct SessionMark {
    quint64 file = 0;   // its number in the file system
    qint64 seconds = 0; // when it got that name, by the system's clock
    qint64 nanoseconds = 0;

    // Absent without a session.
    static std::optional<SessionMark> present(const PlatformProfile &profile);

    friend bool operator==(const SessionMark &, const SessionMark &) = default;
};

} // namespace veldmark
