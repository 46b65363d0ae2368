#pragma once

#include "base/Result.h"
#include "base/StopToken.h"
#include "base/Text.h"

#include <QString>
#include <QStringList>

#include <qcorotask.h>

#include <cstdio> // may define stdout and stderr as macros: so every user sees the same names

namespace veldmark {

// The outcome of one run of a program that did start.
struct ProcessResult {
    int status = 0; // the exit code, or the number of the signal that ended the program
    QString stdout; // everything it wrote there; UTF-8 with invalid sequences repaired
    QString stderr;
};

// Why a program could not be started, in the system's words: "No such file or directory".
class StartError {
public:
    explicit StartError(Text description) : m_description(std::move(description)) { }
    Text description() const { return m_description; }

private:
    Text m_description;
};

// Runs other programs. Every outside program goes through this interface, so that a test can
// answer in their place; production uses ChildProcessRunner.
class ProcessRunner {
public:
    ProcessRunner() = default;
    virtual ~ProcessRunner() = default;
    ProcessRunner(const ProcessRunner &) = delete;
    ProcessRunner &operator=(const ProcessRunner &) = delete;

    // Runs `executable` (an absolute path) with `arguments`, one per element, with no shell in
    // between, and resumes when it has ended. A status other than 0 is no error here. There is no
    // time limit: a caller that needs one imposes it. Several runs may be under way at once.
    [[nodiscard]] virtual QCoro::Task<Result<ProcessResult, StartError>> run(QString executable,
                                                                             QStringList arguments)
        = 0;

    // The same, with `input` on its standard input, which then ends. run() leaves it this process's
    // own.
    [[nodiscard]] virtual QCoro::Task<Result<ProcessResult, StartError>> runWithInput(
        QString executable, QStringList arguments, QByteArray input)
        = 0;

    // The same, but when `stop` is requested, on the thread that runs the event loop, the program
    // and every process that it has started are killed; the run has then ended by that signal. The
    // program has no terminal. What stands here is for stand-ins, whose programs end by themselves.
    [[nodiscard]] virtual QCoro::Task<Result<ProcessResult, StartError>> runUntil(
        QString executable, QStringList arguments, StopToken stop)
    {
        Q_UNUSED(stop)
        return run(std::move(executable), std::move(arguments));
    }
};

} // namespace veldmark
