#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace veldmark {

struct PlatformProfile;

// The socket of the program that gives each application an identity of its own (veldmark-identify).
// A program that has gone leaves its note, so the note alone says nothing. Any thread.
class IdentityProgram {
public:
    explicit IdentityProgram(const PlatformProfile &profile);
    IdentityProgram(const IdentityProgram &) = delete;
    IdentityProgram &operator=(const IdentityProgram &) = delete;
    ~IdentityProgram();

    bool isThere() const { return m_isThere; }
    // Asks for another address; true when the program will read it.
    bool send(const QByteArray &wish) const;

    // Whether applications are separated now. Absent where the system cannot separate them, and at
    // a moment at which the program writes its note. Cheap.
    static std::optional<bool> separates(const PlatformProfile &profile);

private:
    int m_socket;
    bool m_isThere = false;
};

} // namespace veldmark
