#pragma once

#include "base/ResumeOnce.h"
#include "base/StopToken.h"
#include "base/Text.h"
#include "platform/PlatformProfile.h"

#include <QByteArray>
#include <QString>

#include <qcorotask.h>

#include <list>
#include <memory>
#include <optional>

// The program that ssh uses to reach Tor's SOCKS port.
namespace veldmark {

// What follows "ProxyCommand" in an SSH configuration, for Tor's port on this computer; nothing
// when no program here speaks SOCKS and leaves the look-up of names to the proxy. A Mac has one;
// elsewhere the programs in the usual places are asked what they can do, which blocks for as long
// as it takes to start them. Any thread; an end that is asked for ends it with nothing.
std::optional<QString> socksCommand(const PlatformProfile &profile, const StopToken &ended = {});

// Asks the programs on a thread of its own, and remembers the answer until one of their files
// changes. Main thread.
class SocksSearch {
public:
    explicit SocksSearch(PlatformProfile profile);
    // Whoever still waits is resumed here: look whether you are still wanted.
    ~SocksSearch();
    Q_DISABLE_COPY_MOVE(SocksSearch)

    // The answer is remembered, or there is nobody to ask: command() does not block.
    bool isKnown() const;
    // socksCommand(), as remembered; else it asks and remembers.
    std::optional<QString> command() const;
    // Resumes when the answer is known. Calls that come while the programs are being asked share
    // that run.
    QCoro::Task<void> ask();

private:
    struct State {
        bool isRunning = false;
        QString signature; // of the files whose answer is remembered; empty: none is
        std::optional<QString> command;
        std::list<ResumeOnce<std::optional<QString>>> waits;
    };
    QString signature() const; // changes with the programs' files; empty: there is none of them

    const PlatformProfile m_profile;
    StopSource m_ended;
    // outlives this in those who wait
    const std::shared_ptr<State> m_state = std::make_shared<State>();
};

// The sentence that tells the user what to install for ssh to go through Tor.
Text socksCommandHint(const PlatformProfile &profile);

// Whether the text that "-h" or "--help" makes a program print is that of an OpenBSD netcat or of
// an Ncat that can do it.
bool isSocksNetcat(const QByteArray &usage);
bool isSocksNcat(const QByteArray &usage);

} // namespace veldmark
