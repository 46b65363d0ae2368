// Runs the real controller with the real helper and the real tor, on a clock that runs sixty times as fast (or as many
// times as VELDMARK_SPEED says), so that the five-minute deadline of the bootstrap comes after five seconds. For the lab's
// host only.
//
//     FastForward connect         connects and prints the published state when the attempt has ended, as JSON
//     FastForward wrong-password  the same, but tor is given the hash of another control password
//     FastForward monitor HOURS   connects and stays so for that long by its clock, as somebody would who looks at circuits and
//                                 the log and connects again whenever Tor has died; prints a line of JSON every few minutes:
//                                 what the process takes, and what it has seen
//
// Restores the network before it ends; exit status 1 when that failed.

#include "base/Clock.h"
#include "bridges/TCPProbe.h"
#include "checks/ExitCheckProbe.h"
#include "checks/ResolverSource.h"
#include "control/ControlPort.h"
#include "controller/PublishedState.h"
#include "controller/TorController.h"
#include "log/TorLogStore.h"
#include "platform/PlatformProfile.h"
#include "system/ChildProcessRunner.h"
#include "system/PrivilegedRunner.h"
#include "system/SettingsStore.h"
#include "platform/RunningApplications.h"
#include "terminal/TerminalIntegration.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTimer>

#include <cstdio>

#include <unistd.h>

using namespace veldmark;

namespace {

const int speed = qEnvironmentVariableIsSet("VELDMARK_SPEED") ? qEnvironmentVariableIntValue("VELDMARK_SPEED") : 60;

class FastClock final : public Clock {
public:
    TimePoint now() const override
    {
        const TimePoint real = std::chrono::steady_clock::now();
        return TimePoint(real.time_since_epoch() * speed);
    }
    QCoro::Task<void> sleep(std::chrono::milliseconds duration) override
    {
        const std::chrono::milliseconds real = duration / speed;
        co_await m_clock.sleep(real);
    }

private:
    SystemClock m_clock;
};

// Hashes another password than it is asked to.
class WrongHash final : public ProcessRunner {
public:
    QCoro::Task<Result<ProcessResult, StartError>> run(QString executable, QStringList arguments) override
    {
        if (arguments.contains(QStringLiteral("--hash-password")))
            arguments.last() = QStringLiteral("another");
        auto running = m_runner.run(executable, arguments);
        auto result = co_await running;
        co_return result;
    }

private:
    ChildProcessRunner m_runner;
};

QCoro::Task<void> attempt(TorController *controller)
{
    co_await controller->connect();
    const QJsonDocument state(publishedState(*controller));
    std::puts(state.toJson(QJsonDocument::Compact).constData());
    std::fflush(stdout);
    co_await controller->disconnect();
    QCoreApplication::exit(controller->isSessionMarkerPresent() ? 1 : 0);
}

// Resident memory in KiB, open descriptors and threads of this process.
QJsonObject taken()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    const bool isOpen = file.open(QIODevice::ReadOnly);
    const qint64 pages = isOpen ? file.readAll().split(' ').value(1).toLongLong() : 0;
    const auto count = [](const char *folder) {
        return static_cast<qint64>(QDir(QLatin1String(folder)).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size());
    };
    return {{QStringLiteral("memoryKiB"), pages * sysconf(_SC_PAGESIZE) / 1024},
            {QStringLiteral("descriptors"), count("/proc/self/fd")},
            {QStringLiteral("threads"), count("/proc/self/task")}};
}

QCoro::Task<void> monitor(TorController *controller, FastClock *clock, TorLogStore *log, double hours)
{
    constexpr std::chrono::seconds turn(10); // of the fast clock
    constexpr int turnsPerLine = 12;
    qint64 deaths = 0;
    qint64 failures = 0;
    qint64 refreshes = 0;
    const auto start = clock->now();
    const auto end = start + std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::duration<double, std::ratio<3600>>(hours));
    co_await controller->connect();
    for (int turns = 0; clock->now() < end; ++turns) {
        if (controller->phase() != ConnectionPhase::connected) {
            ++(controller->phase() == ConnectionPhase::stale ? deaths : failures);
            co_await controller->connect();
        } else if (turns % 3 == 0) {
            co_await controller->refreshCircuits();
            refreshes += controller->circuitError() ? 0 : 1;
        } else if (turns % turnsPerLine == 1) {
            co_await controller->runChecks();
        }
        if (turns % turnsPerLine == 0) {
            QJsonObject line = taken();
            line.insert(QStringLiteral("minutes"), static_cast<qint64>(std::chrono::duration_cast<std::chrono::minutes>(clock->now() - start).count()));
            line.insert(QStringLiteral("deaths"), deaths);
            line.insert(QStringLiteral("failures"), failures);
            line.insert(QStringLiteral("refreshes"), refreshes);
            line.insert(QStringLiteral("circuits"), static_cast<qint64>(controller->circuits().size()));
            line.insert(QStringLiteral("logLines"), static_cast<qint64>(log->snapshot().lines().size()));
            std::puts(QJsonDocument(line).toJson(QJsonDocument::Compact).constData());
            std::fflush(stdout);
        }
        const std::chrono::milliseconds pause = turn;
        co_await clock->sleep(pause);
    }
    co_await controller->disconnect();
    QCoreApplication::exit(controller->isSessionMarkerPresent() ? 1 : 0);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const bool wrongPassword = application.arguments().contains(QStringLiteral("wrong-password"));
    Places places = Places::fromEnvironment();
    places.applicationDirectory = qEnvironmentVariable("VELDMARK_PROGRAMS");
    const PlatformProfile profile = PlatformProfile::linux(places);

    FastClock clock;
    SystemClock systemClock;
    SettingsStore settings(profile);
    ChildProcessRunner processes;
    WrongHash wrongHash;
    PrivilegedRunner privileged(profile, processes);
    ControlPort controlPort(systemClock);
    ExitCheckProbe probe(systemClock);
    LinuxResolverSource resolvers(systemClock, profile.resolverFile);
    TerminalIntegration terminal(profile, NetworkProbe::checkURL().toString());
    const auto running = runningApplications();
    RunningApplications &applications = *running;
    TorController controller(TorController::Services{
        .profile = profile,
        .settings = settings,
        .clock = clock,
        .processes = wrongPassword ? static_cast<ProcessRunner &>(wrongHash) : processes,
        .privileged = privileged,
        .controlPort = controlPort,
        .probe = probe,
        .resolvers = resolvers,
        .terminal = terminal,
        .applications = applications,
        .locateTransports = [&profile] { return PluggableTransports::locateAsync(profile); },
        .bridgeProbe =
            [&systemClock](const QString &host, quint16 port, std::chrono::milliseconds limit) {
                return TCPProbe::connectTime(host, port, limit, &systemClock);
            },
    });
    TorLogStore log(TorLog(profile), nullptr, TorLogStore::pollInterval / speed);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QStringLiteral("monitor")) {
        log.start();
        const double hours = arguments.value(2).toDouble();
        QTimer::singleShot(0, &application, [&, hours] { monitor(&controller, &clock, &log, hours); });
    } else {
        QTimer::singleShot(0, &application, [&controller] { attempt(&controller); });
    }
    return QCoreApplication::exec();
}
