#pragma once

#include "base/Text.h"
#include "platform/PlatformProfile.h"
#include "system/HelperError.h"

#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

#include <sys/types.h>
#include <unistd.h>

namespace veldmark {

// Runs the root helper in one of two ways. Without a password, through sudo, when the root-owned
// copy and its sudoers rule are installed. Otherwise through the system's authorisation dialog
// (osascript or pkexec, according to the profile). On a PolicyKit system a process that is root
// runs the shipped helper directly.
//
// pkexec runs the helper as its program, so the file must be executable. For the installed helper,
// polkit's policy (packaging/org.veldmark.helper.policy) has one action per verb, found by that
// path and the verb as first argument. For any other path polkit shows its own dialog.
//
// The helper reports a failure as one line on standard error, optionally after "ERROR: ", and a
// status other than 0. That line, cleaned, is the error's description.
//
// The options of connect and replace go to the helper's standard input, where no other process can
// read them, except through osascript. The helper refuses a connect that would weaken a running
// strict session; then `replace` asks for approval.
//
// Where no dialog asks, because this process is root already, the person who runs it is asked
// before a program is approved: sudo's password alone doesn't say what it is given for.
//
// Belongs to the main thread and must be destroyed before its ProcessRunner. A current run then
// continues to its end; its caller gets `cancelled`, at the latest at that end.
class PrivilegedRunner {
public:
    using Outcome = Result<QString, HelperError>; // standard output
    enum class Answer { yes, no, nobodyThere };
    // Shows `text`, one line, and waits for the answer.
    using Question = std::function<QCoro::Task<Answer>(Text text)>;

    // effectiveUser: the account that decides whether this process is root.
    PrivilegedRunner(PlatformProfile profile, ProcessRunner &runner,
                     uid_t effectiveUser = ::geteuid());
    ~PrivilegedRunner();
    PrivilegedRunner(const PrivilegedRunner &) = delete;
    PrivilegedRunner &operator=(const PrivilegedRunner &) = delete;

    // Whether both the root-owned copy and its rule exist. Checked at every call.
    bool passwordlessInstalled() const;
    // Whether the installed copy differs from the helper that this version ships.
    bool privilegedHelperOutdated() const;
    // The path of the shipped helper, or missingHelper.
    Outcome bundledHelper() const;

    // The normal call for every verb: without a password if possible, otherwise with the dialog.
    [[nodiscard]] QCoro::Task<Outcome> runHelper(QStringList arguments);
    // Always through the dialog. script: the shipped helper when absent.
    [[nodiscard]] QCoro::Task<Outcome> runWithPrompt(QStringList arguments,
                                                     std::optional<QString> script = std::nullopt);

    // How root is asked. Without it a process that is root approves no program.
    void askWith(Question question);

    // The message in the standard error of the helper, or of osascript around it.
    static Text cleanError(const QString &text);

private:
    // The data of a run, valid until its end; `runner` becomes null when this object is destroyed.
    struct RunData {
        PlatformProfile profile;
        ProcessRunner *runner;
        bool isRoot;
        Question question;

        bool passwordlessInstalled() const;
        bool privilegedHelperOutdated() const;
        Outcome bundledHelper() const;
    };
    static QCoro::Task<Outcome> run(std::shared_ptr<const RunData> data, QStringList arguments);
    static QCoro::Task<Outcome> prompt(std::shared_ptr<const RunData> data, QStringList arguments,
                                       std::optional<QString> script);
    // Success when `arguments` need no answer of root's, or have got it.
    static QCoro::Task<Result<void, HelperError>> askRoot(std::shared_ptr<const RunData> data,
                                                          QStringList arguments);
    static QCoro::Task<Outcome> runAsRoot(std::shared_ptr<const RunData> data, QString script,
                                          QStringList arguments);

    std::shared_ptr<RunData> m_data;
};

// `word` quoted as one word of a POSIX shell command line.
QString shellQuoted(const QString &word);
// The AppleScript program that shows a dialog with `promptText` and then runs `words` in a shell
// with administrator privileges.
QString appleScriptSource(const QStringList &words, const QString &promptText);

} // namespace veldmark
