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

// The value of "ProxyCommand" in an SSH configuration for Tor's port on this computer. Absent when
// no program here supports SOCKS with DNS lookups at the proxy. macOS has such a program; elsewhere
// the function runs the programs in the usual places to query their abilities, and blocks
// meanwhile. Any thread; a stop request ends it without a result.
std::optional<QString> socksCommand(const PlatformProfile &profile, const StopToken &ended = {});

// Queries the programs on its own thread, and keeps the answer until one of their files changes.
// Main thread.
class SocksSearch {
public:
    explicit SocksSearch(PlatformProfile profile);
    // Resumes all waiting callers; a caller checks whether its own object still exists.
    ~SocksSearch();
    Q_DISABLE_COPY_MOVE(SocksSearch)

    // The answer is known, or there is no program to query: command() does not block.
    bool isKnown() const;
    // socksCommand(), from memory if known; otherwise queries and keeps the answer.
    std::optional<QString> command() const;
    // Resumes when the answer is known. Calls during a query share that query.
    QCoro::Task<void> ask();

private:
    struct State {
        bool isRunning = false;
        QString signature; // of the files whose answer is kept; empty: none is
        std::optional<QString> command;
        std::list<ResumeOnce<std::optional<QString>>> waits;
    };
    QString signature() const; // changes with the programs' files; empty: no such files

    const PlatformProfile m_profile;
    StopSource m_ended;
    // waiting coroutines keep it after this object is destroyed
    const std::shared_ptr<State> m_state = std::make_shared<State>();
};

// The sentence that tells the user what to install so that ssh can use Tor.
Text socksCommandHint(const PlatformProfile &profile);

// Whether the output of "-h" or "--help" is that of an OpenBSD netcat, or of an Ncat, with the
// needed options.
bool isSocksNetcat(const QByteArray &usage);
bool isSocksNcat(const QByteArray &usage);

} // namespace veldmark
