#pragma once

#include "base/Text.h"
#include "platform/PlatformProfile.h"
#include "system/HelperError.h"

#include <QStringList>

#include <memory>
#include <optional>

#include <sys/types.h>
#include <unistd.h>

namespace veldmark {

// Runs the root helper. It has two ways: without a password, through sudo, when the user has had
// the root-owned copy and its sudoers rule installed; and through the system's authorisation
// dialog (osascript or pkexec, as the profile says). On a PolicyKit system a process that is root
// already needs neither and runs the shipped helper directly.
//
// pkexec is given the helper as the program to run, so the file must be executable. Where it is the
// installed one, polkit's policy (packaging/org.veldmark.helper.policy) has an action for each
// verb, found by that path and the verb as first argument; elsewhere the dialog is polkit's own.
//
// The helper reports a failure as one line on standard error, optionally after "ERROR: ", and a
// status other than 0; that line, cleaned, is the error's description.
//
// The options of connect and replace go to the helper's standard input, where nobody else reads
// them, except through osascript. A connect that would lessen a running strict session is refused
// by the helper; then replace asks.
//
// Belongs to the main thread and must be destroyed before its ProcessRunner. A run that is under
// way then is left to finish; its caller gets `cancelled`, at the latest when it ends.
class PrivilegedRunner {
public:
    using Outcome = Result<QString, HelperError>; // standard output

    // effectiveUser: what decides whether this process is root.
    PrivilegedRunner(PlatformProfile profile, ProcessRunner &runner,
                     uid_t effectiveUser = ::geteuid());
    ~PrivilegedRunner();
    PrivilegedRunner(const PrivilegedRunner &) = delete;
    PrivilegedRunner &operator=(const PrivilegedRunner &) = delete;

    // Whether both the root-owned copy and its rule exist. Looked up afresh each time.
    bool passwordlessInstalled() const;
    // Whether the installed copy is not, byte for byte, the helper that this version ships.
    bool privilegedHelperOutdated() const;
    // The path of the shipped helper, or missingHelper.
    Outcome bundledHelper() const;

    // The normal entry for every verb: without a password if it can be, else with the dialog.
    [[nodiscard]] QCoro::Task<Outcome> runHelper(QStringList arguments);
    // Always through the dialog. script: the shipped helper when absent.
    [[nodiscard]] QCoro::Task<Outcome> runWithPrompt(QStringList arguments,
                                                     std::optional<QString> script = std::nullopt);

    // The message within what a helper, or osascript around it, wrote on standard error.
    static Text cleanError(const QString &text);

private:
    // What a run needs, however long it takes; `runner` is null once this object is gone.
    struct Means {
        PlatformProfile profile;
        ProcessRunner *runner;
        bool isRoot;

        bool passwordlessInstalled() const;
        bool privilegedHelperOutdated() const;
        Outcome bundledHelper() const;
    };
    static QCoro::Task<Outcome> run(std::shared_ptr<const Means> means, QStringList arguments);
    static QCoro::Task<Outcome> prompt(std::shared_ptr<const Means> means, QStringList arguments,
                                       std::optional<QString> script);
    static QCoro::Task<Outcome> runAsRoot(std::shared_ptr<const Means> means, QString script,
                                          QStringList arguments);

    std::shared_ptr<Means> m_means;
};

// `word` as one word of a POSIX shell command line.
QString shellQuoted(const QString &word);
// The AppleScript program that runs `words` in a shell with administrator privileges after a
// dialog that shows `promptText`.
QString appleScriptSource(const QStringList &words, const QString &promptText);

} // namespace veldmark
