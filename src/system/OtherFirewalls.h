#pragma once

#include <QStringList>

namespace veldmark {

struct PlatformProfile;

// Firewalls of other programs on this computer that deny what goes out, so that Tor may not get
// through.
namespace OtherFirewalls {

// Their names: "ufw", "firewalld", or a table of rules ("table ip filter"). From what everybody may
// read: the helper's note of what it found at the connect whose session is there, and ufw's
// settings. Empty: none is known, which is no word that there is none.
QStringList denying(const PlatformProfile &profile);

// Whether ufw is switched on, whatever it denies.
bool isUfwOn(const PlatformProfile &profile);

// Whether none of ufw's rules lets a new connection out, as far as they are its own kinds of lines.
// False where they can't be read, as by anybody but root.
bool isUfwWithoutAWayOut(const PlatformProfile &profile);

} // namespace OtherFirewalls

} // namespace veldmark
