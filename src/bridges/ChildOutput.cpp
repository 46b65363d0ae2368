#include "bridges/ChildOutput.h"

#include <QDeadlineTimer>
#include <QProcess>

#include <algorithm>

#include <signal.h>
#include <unistd.h>

namespace veldmark {

namespace {

// While QProcess waits, it cannot hear a stop request. So the wait is interrupted this often to
// check.
constexpr int turnMilliseconds = 25;

// Kills the group only while the child is not reaped: until then its id cannot be reused.
void end(QProcess &process)
{
    if (process.state() == QProcess::NotRunning)
        return;
    ::kill(-static_cast<pid_t>(process.processId()), SIGKILL);
    process.kill();
    process.waitForFinished();
}

} // namespace

std::optional<QByteArray> childOutput(const QString &program, const QStringList &arguments,
                                      const QProcessEnvironment &environment, ChildLimits limits,
                                      const std::function<bool(const QByteArray &)> &isEnough)
{
    const QDeadlineTimer deadline(limits.time);
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    process.setProcessEnvironment(environment);
    process.setStandardErrorFile(QProcess::nullDevice());
    process.setChildProcessModifier([] { ::setsid(); });
    process.start();
    if (!process.waitForStarted(static_cast<int>(deadline.remainingTime()))) {
        end(process);
        return std::nullopt;
    }

    const auto remaining = [&deadline, &limits] {
        const qint64 left = deadline.remainingTime();
        return static_cast<int>(
            limits.ended.stop_possible() ? std::min<qint64>(left, turnMilliseconds) : left);
    };
    QByteArray output;
    for (;;) {
        const bool isOver = process.state() == QProcess::NotRunning;
        output += process.readAllStandardOutput();
        if (output.size() > limits.outputBytes)
            break;
        if (isOver || (isEnough && isEnough(output))) {
            end(process);
            return output;
        }
        if (deadline.hasExpired() || limits.ended.stop_requested())
            break;
        // Waits for a child that has closed its output and runs on, instead of polling it.
        if (!process.waitForReadyRead(remaining()))
            process.waitForFinished(remaining());
    }
    end(process);
    return std::nullopt;
}

} // namespace veldmark
