#pragma once

#include "base/Result.h"
#include "base/StopToken.h"
#include "base/Text.h"

#include <QString>
#include <QStringList>

#include <qcorotask.h>

// Included here because it may define stdout and stderr as macros: so every file sees the same
// names.
#include <cstdio>

namespace veldmark {

// The outcome of one run of a program that started.
struct ProcessResult {
    int status = 0; // the exit code, or the number of the signal that ended the program
    QString stdout; // all its output; UTF-8 with invalid sequences repaired
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

// Runs other programs. Every outside program runs through this interface, so that a test can
// replace it; the real program uses ChildProcessRunner.
class ProcessRunner {
public:
    ProcessRunner() = default;
    virtual ~ProcessRunner() = default;
    ProcessRunner(const ProcessRunner &) = delete;
    ProcessRunner &operator=(const ProcessRunner &) = delete;

    // Runs `executable` (an absolute path) with `arguments`, one per element, without a shell, and
    // resumes when it has ended. A status other than 0 is no error here. There is no time limit: a
    // caller that needs one imposes it. Several runs may happen at once.
    [[nodiscard]] virtual QCoro::Task<Result<ProcessResult, StartError>> run(QString executable,
                                                                             QStringList arguments)
        = 0;

    // The same, with `input` as its complete standard input. In run() the program inherits this
    // process's standard input.
    [[nodiscard]] virtual QCoro::Task<Result<ProcessResult, StartError>> runWithInput(
        QString executable, QStringList arguments, QByteArray input)
        = 0;

    // The same, but a request to `stop`, on the event loop's thread, kills the program and every
    // process that it has started. The run then ends by that signal. The program has no terminal.
    // This default is for tests, whose programs end by themselves.
    [[nodiscard]] virtual QCoro::Task<Result<ProcessResult, StartError>> runUntil(
        QString executable, QStringList arguments, StopToken stop)
    {
        Q_UNUSED(stop)
        return run(std::move(executable), std::move(arguments));
    }
};

} // namespace veldmark
