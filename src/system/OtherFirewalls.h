#pragma once

#include <QStringList>

namespace veldmark {

struct PlatformProfile;

// Firewalls of other programs on this computer that deny outgoing traffic and may block Tor.
namespace OtherFirewalls {

// Their names: "ufw", "firewalld", or a table of rules ("table ip filter"). Reads only files that
// every user can read: the helper's note from the connect of the present session, and ufw's
// settings. Empty means that none is known, not that there is none.
QStringList denying(const PlatformProfile &profile);

// Whether ufw is switched on, whatever it denies.
bool isUfwOn(const PlatformProfile &profile);

// Whether none of ufw's rules lets a new connection out, as far as the lines have ufw's usual form.
// False when the rules can't be read, as for every user but root.
bool isUfwWithoutAWayOut(const PlatformProfile &profile);

} // namespace OtherFirewalls

} // namespace veldmark
