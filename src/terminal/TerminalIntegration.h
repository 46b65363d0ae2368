#pragma once

#include "base/Result.h"
#include "base/Text.h"
#include "platform/PlatformProfile.h"
#include "terminal/MarkedBlock.h"
#include "terminal/SocksCommand.h"
#include "terminal/TerminalError.h"

#include <QString>

#include <map>
#include <memory>
#include <optional>

namespace veldmark {

// Terminal mode: makes command-line tools go through Tor while the computer is connected, without
// any privilege. It keeps a shell file, an SSH configuration and a small test program in
// ~/.veldmark, hooks them into the user's start-up files and SSH configuration with one marked
// block each, and switches them with a marker file. The installed files look at that marker and
// at the session's own each time they run, so after a crash they fall back by themselves.
//
// On a Mac the files are ~/.zshrc and, where it exists, ~/.bash_profile; on Linux ~/.bashrc and,
// where zsh is installed or the file exists, ~/.zshrc.
//
// Keeps no state but which program ssh can use. Everything blocks, but works on small files only,
// once it is known what that program is; the main thread is fine. One process at a time. Copies
// share what they know.
class TerminalIntegration {
public:
    // `exitCheckAddress` is what `torip` asks for the caller's address: a plain https address,
    // without any character that means something to a shell.
    TerminalIntegration(PlatformProfile profile, QString exitCheckAddress);

    // Writes the files and adds the blocks; doing it again changes nothing. A failure ends it
    // where it stands and keeps what was written before. Where no program speaks SOCKS for ssh,
    // what concerns ssh is left out, or taken away again: see sshHint(). Asks for that program,
    // unless it is known.
    Result<void, TerminalError> install() const;
    // The shells' part of it alone.
    Result<void, TerminalError> installForShells() const;

    // Whether it is known which program ssh can use, if any.
    bool knowsSocksCommand() const { return m_search->isKnown(); }
    // Resumes when it is known.
    QCoro::Task<void> askForSocksCommand() const { return m_search->ask(); }

    // Removes the marker, the blocks and ~/.veldmark; the user's files are byte for byte what they
    // were, apart from what the user has changed since. A file that install() created stays, empty.
    Result<void, TerminalError> uninstall() const;

    // Whether the shell file exists and a start-up file that always gets the block has it.
    bool isInstalled() const;

    // Whether ssh's configuration leads to ours.
    bool isUsedBySsh() const;

    // Creates or removes the marker. Never fails: without it nothing goes through Tor.
    void setActive(bool on) const;

    // What to install so that ssh goes through Tor; empty when it does. Asks like install().
    Text sshHint() const;

private:
    // What install() put between the user's text and the block, by file, so that uninstall() can
    // tell its own line breaks from the user's. Kept in ~/.veldmark and written before the file.
    using Separations = std::map<QString, MarkedBlock::Separation>;
    Separations separations() const;
    Result<void, TerminalError> keep(const Separations &separations) const;

    Result<void, TerminalError> addBlock(const QByteArray &body, const QString &path,
                                         MarkedBlock::Position position, mode_t newMode) const;
    Result<void, TerminalError> removeBlock(const QString &path,
                                            MarkedBlock::Position position) const;
    Result<void, TerminalError> writeShellFiles() const;
    Result<void, TerminalError> writeSshFiles(const QString &socksCommand) const;
    Result<void, TerminalError> addShellBlocks() const;
    Result<void, TerminalError> addSshBlock() const;
    Result<void, TerminalError> leaveOutSsh() const;

    QString own(const char *name) const; // a file in ~/.veldmark
    QString sshConfiguration() const;

    PlatformProfile m_profile;
    QString m_exitCheckAddress;
    std::shared_ptr<SocksSearch> m_search;
};

} // namespace veldmark
