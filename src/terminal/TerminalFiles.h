#pragma once

#include <QByteArray>
#include <QString>

// The text of the files that terminal mode keeps in ~/.veldmark. Pure. None ends with a line break.
namespace veldmark {

// What the files name.
struct TerminalNames {
    QString maker;         // who looks after them, as in "Managed by Veldmark.app"
    QString sessionMarker; // exists while the network is set up for Tor
    QString exitCheck;     // https address; no character in it that means something to a shell
    // Whether the user's own proxy variables are put back after a session; the Mac's file clears
    // them.
    bool givesBackProxies = true;
};

// shell.sh: sourced by bash and zsh, before each prompt it sets or clears the proxy variables.
// Harmless to any other POSIX shell.
QByteArray shellFile(const TerminalNames &names);

// ssh_config: sends connections through the program that `socksCommand` starts.
QByteArray sshFile(const TerminalNames &names, const QString &socksCommand);

// bin/veldmark-active: exits 0 when ssh to the host of its first argument should go through Tor.
QByteArray activeProgram(const TerminalNames &names);

} // namespace veldmark
