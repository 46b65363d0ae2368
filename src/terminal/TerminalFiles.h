#pragma once

#include <QByteArray>
#include <QString>

// The content of terminal mode's files in ~/.veldmark. Pure. None ends with a line break.
namespace veldmark {

// The names that the files contain.
struct TerminalNames {
    QString maker;         // the program that maintains them, as in "Managed by Veldmark.app"
    QString sessionMarker; // exists while the network is set up for Tor
    QString exitCheck;     // https address; without characters that are special to a shell
    // Whether the user's own proxy variables are restored after a session; the file on macOS clears
    // them.
    bool givesBackProxies = true;
};

// shell.sh: bash and zsh source it. It sets or clears the proxy variables before each prompt.
// Harmless in any other POSIX shell.
QByteArray shellFile(const TerminalNames &names);

// ssh_config: sends connections through the program that `socksCommand` starts.
QByteArray sshFile(const TerminalNames &names, const QString &socksCommand);

// bin/veldmark-active: exits 0 when ssh to the host in its first argument should use Tor.
QByteArray activeProgram(const TerminalNames &names);

} // namespace veldmark
