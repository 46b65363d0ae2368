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

// Terminal mode: command-line tools use Tor while the computer is connected, without any privilege.
// It keeps a shell file, an SSH configuration and a small test program in ~/.veldmark, adds one
// marked block each to the user's start-up files and SSH configuration, and enables them with a
// marker file. The installed files check that marker and the session's own at every run, so after a
// crash they disable themselves.
//
// On macOS the files are ~/.zshrc and, if it exists, ~/.bash_profile. On Linux they are ~/.bashrc
// and, if zsh is installed or the file exists, ~/.zshrc.
//
// Its only state is the program that ssh can use; copies share it. Every call blocks, but once that
// program is known it works only on small files, so the main thread may call it. One process at a
// time.
class TerminalIntegration {
public:
    // `exitCheckAddress` is the address that `torip` queries for the caller's address: a plain
    // https address, without characters that are special to a shell.
    TerminalIntegration(PlatformProfile profile, QString exitCheckAddress);

    // Writes the files and adds the blocks; a repeated call changes nothing. It ends at the first
    // failure and keeps the files written before. When no program supports SOCKS for ssh, the parts
    // for ssh are left out or removed: see sshHint(). Queries the programs unless the answer is
    // known.
    Result<void, TerminalError> install() const;
    // Only the part for shells.
    Result<void, TerminalError> installForShells() const;

    // Whether the program for ssh, if any, is known.
    bool knowsSocksCommand() const { return m_search->isKnown(); }
    // Resumes when it is known.
    QCoro::Task<void> askForSocksCommand() const { return m_search->ask(); }

    // Removes the marker, the blocks and ~/.veldmark. The user's files are then byte for byte as
    // before, apart from the user's later changes. A file that install() created stays, empty.
    Result<void, TerminalError> uninstall() const;

    // Whether the shell file exists, and a start-up file that always gets the block has it.
    bool isInstalled() const;

    // Whether ssh's configuration includes Veldmark's.
    bool isUsedBySsh() const;

    // Creates or removes the marker. Never fails: without the marker the tools do not use Tor.
    void setActive(bool on) const;

    // What to install so that ssh uses Tor; empty when it does. Queries the programs like
    // install().
    Text sshHint() const;

private:
    // The bytes that install() put between the user's text and the block, by file, so that
    // uninstall() can tell them from the user's own line breaks. Kept in ~/.veldmark and written
    // before the file.
    using InsertedByFile = std::map<QString, MarkedBlock::InsertedBytes>;
    InsertedByFile insertedByFile() const;
    Result<void, TerminalError> keep(const InsertedByFile &insertedByFile) const;

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
