#pragma once

#include "plain/Descriptor.h"

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

    bool isThere() const { return m_isThere; }
    // Asks for another address; true when the program will read it.
    bool send(const QByteArray &wish) const;

    // Whether applications are separated now. Absent where the system cannot separate them, and at
    // a moment at which the program writes its note. Cheap.
    static std::optional<bool> separates(const PlatformProfile &profile);

private:
    Descriptor m_socket;
    bool m_isThere = false;
};

} // namespace veldmark
