#pragma once

#include "system/ProcessRunner.h"

#include <QObject>

#include <optional>

namespace veldmark {

// Runs real programs as children of this process, asynchronously, on the event loop of the thread
// that owns it.
//
// The child inherits environment, working directory and standard input unchanged. Both output
// streams are read while it runs, so that no amount on either makes it stall.
//
// A run ends when the child itself has exited and all that stood in its pipes by then has been
// read. A process that the child leaves behind with the pipes open does not prolong the run; what
// it writes later is not collected, and finds the pipe closed. Whatever is meant to live on (a
// daemon) must therefore redirect its output, as daemons do.
//
// Destroying the runner ends every wait with a StartError, but kills nothing: a child that is in
// the middle of changing the system finishes its work, and its output is still read.
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
    // Without `stop` the child stays in this process's group and session, without `input` its input
    // is ours.
    QCoro::Task<Result<ProcessResult, StartError>> start(QString executable, QStringList arguments,
                                                         std::optional<StopToken> stop,
                                                         std::optional<QByteArray> input);
    QObject m_lifetime; // its destroyed() ends the waits
};

} // namespace veldmark
