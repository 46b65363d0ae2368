#pragma once

#include "system/ProcessRunner.h"

#include <QObject>

#include <optional>

namespace veldmark {

// Runs real programs as child processes, asynchronously, on the event loop of its own thread.
//
// The child inherits environment, working directory and standard input unchanged. Both output
// streams are read while it runs, so that much output never blocks it.
//
// A run ends when the child has exited and all output in its pipes at that time has been read. A
// process that the child leaves behind with open pipes does not prolong the run; its later output
// is not collected, and it finds the pipe closed. A process that must live on (a daemon) must
// therefore redirect its output, as daemons do.
//
// The destructor ends every wait with a StartError, but kills no child: a child that is changing
// the system finishes its work, and its output is still read.
class ChildProcessRunner final : public ProcessRunner {
public:
    [[nodiscard]] QCoro::Task<Result<ProcessResult, StartError>> run(
        QString executable, QStringList arguments) override;
    [[nodiscard]] QCoro::Task<Result<ProcessResult, StartError>> runWithInput(
        QString executable, QStringList arguments, QByteArray input) override;
    [[nodiscard]] QCoro::Task<Result<ProcessResult, StartError>> runUntil(QString executable,
                                                                          QStringList arguments,
                                                                          StopToken stop) override;

private:
    // Without `stop` the child stays in this process's group and session. Without `input` it gets
    // this process's standard input.
    QCoro::Task<Result<ProcessResult, StartError>> start(QString executable, QStringList arguments,
                                                         std::optional<StopToken> stop,
                                                         std::optional<QByteArray> input);
    QObject m_lifetime; // its destroyed() ends the waits
};

} // namespace veldmark
