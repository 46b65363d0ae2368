#include "system/ChildProcessRunner.h"

#include "base/ResumeOnce.h"

#include <QPointer>
#include <QProcess>
#include <QSet>

#include <algorithm>
#include <cerrno>
#include <functional>

#include <signal.h>
#include <unistd.h>

namespace veldmark {

namespace {

using Outcome = Result<ProcessResult, StartError>;

// QProcess puts the name of the failed system call before the system's own text.
QString systemText(const QString &errorString)
{
    static const QString call = QStringLiteral("execvp: ");
    return errorString.startsWith(call) ? errorString.mid(call.size()) : errorString;
}

// Refuses input that the system would reject or truncate before anything starts. A bare name would
// be searched in PATH, which is not trusted.
std::optional<StartError> refusal(const QString &executable, const QStringList &arguments)
{
    if (!executable.startsWith(u'/'))
        return StartError(qt_error_string(ENOENT));
    const auto hasNul = [](const QString &word) { return word.contains(QChar(u'\0')); };
    if (hasNul(executable) || std::any_of(arguments.begin(), arguments.end(), hasNul))
        return StartError(qt_error_string(EINVAL));
    return std::nullopt;
}

// Only before the child has been waited for: until then no other process can get its number.
void killGroup(QProcess &process)
{
    const auto pid = static_cast<pid_t>(process.processId());
    if (process.state() == QProcess::NotRunning || pid <= 0)
        return;
    ::kill(-pid, SIGKILL);
    process.kill(); // in case it has no group of its own yet
}

// The processes still running when the program ends. Never destroyed, so that it stays valid until
// then.
QSet<QProcess *> &underWay()
{
    static auto *const processes = new QSet<QProcess *>;
    return *processes;
}

Outcome outcomeOf(QProcess &process)
{
    // For a child ended by a signal QProcess has the signal's number as exit code.
    return ProcessResult{process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                         QString::fromUtf8(process.readAllStandardError())};
}

} // namespace

QCoro::Task<Outcome> ChildProcessRunner::run(QString executable, QStringList arguments)
{
    return start(std::move(executable), std::move(arguments), std::nullopt, std::nullopt);
}

QCoro::Task<Outcome> ChildProcessRunner::runWithInput(QString executable, QStringList arguments,
                                                      QByteArray input)
{
    return start(std::move(executable), std::move(arguments), std::nullopt, std::move(input));
}

QCoro::Task<Outcome> ChildProcessRunner::runUntil(QString executable, QStringList arguments,
                                                  StopToken stop)
{
    return start(std::move(executable), std::move(arguments), std::move(stop), std::nullopt);
}

QCoro::Task<Outcome> ChildProcessRunner::start(QString executable, QStringList arguments,
                                               std::optional<StopToken> stop,
                                               std::optional<QByteArray> input)
{
    if (const auto refused = refusal(executable, arguments))
        co_return Failure(*refused);

    // The process object owns itself: QProcess kills its child when it is destroyed.
    auto *process = new QProcess;
    underWay().insert(process);
    QObject::connect(process, &QObject::destroyed, [process] { underWay().remove(process); });
    const ResumeOnce<Outcome> ended;
    QObject::connect(process, &QProcess::finished, process, [process, ended] {
        ended.complete(outcomeOf(*process));
        process->deleteLater();
    });
    QObject::connect(process, &QProcess::errorOccurred, process,
                     [process, ended](QProcess::ProcessError error) {
                         if (error != QProcess::FailedToStart)
                             return; // finished() follows
                         ended.complete(Failure(StartError(systemText(process->errorString()))));
                         process->deleteLater();
                     });
    QObject::connect(&m_lifetime, &QObject::destroyed, process, [ended] {
        ended.complete(Failure(StartError(Text::tr("The program is quitting."))));
    });
    process->setInputChannelMode(input ? QProcess::ManagedInputChannel
                                       : QProcess::ForwardedInputChannel);
    if (stop)
        process->setChildProcessModifier([] { ::setsid(); });
    process->start(executable, arguments, input ? QIODevice::ReadWrite : QIODevice::ReadOnly);
    if (input) {
        process->write(*input);
        process->closeWriteChannel(); // after all of it is written
    }

    std::optional<StopCallback> onStop;
    if (stop) {
        const QPointer<QProcess> running(process);
        onStop.emplace(*stop, std::function<void()>([running] {
            if (running)
                killGroup(*running);
        }));
    }
    const Outcome outcome = co_await ended;
    co_return outcome;
}

} // namespace veldmark
