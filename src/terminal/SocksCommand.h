#pragma once

#include "platform/PlatformProfile.h"

#include <QByteArray>
#include <QString>

#include <optional>

// The program that ssh uses to reach Tor's SOCKS port.
namespace veldmark {

// What follows "ProxyCommand" in an SSH configuration, for Tor's port on this computer; nothing
// when no program here speaks SOCKS and leaves the look-up of names to the proxy. A Mac has one;
// elsewhere the programs in the usual places are asked what they can do, which blocks for as long
// as it takes to start them.
std::optional<QString> socksCommand(const PlatformProfile &profile);

// The sentence that tells the user what to install for ssh to go through Tor.
QString socksCommandHint(const PlatformProfile &profile);

// Whether the text that "-h" or "--help" makes a program print is that of an OpenBSD netcat or of
// an Ncat that can do it.
bool isSocksNetcat(const QByteArray &usage);
bool isSocksNcat(const QByteArray &usage);

} // namespace veldmark
