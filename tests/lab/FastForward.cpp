// Runs the real controller with the real helper and the real tor, on a clock that runs sixty times
// as fast (or as many times as VELDMARK_SPEED says), so that the five-minute deadline of the
// bootstrap comes after five seconds. At less than 1 it is a slow clock, by which a busy computer
// answers at once. For the lab's host only.
//
//     FastForward connect          connects; prints the published state after the attempt as JSON,
//                                  and as "sought" whether a faster path was ever looked for
//     FastForward wrong-password   the same, but tor gets the hash of another control password
//     FastForward monitor HOURS    stays connected for that long by its clock
//
// `monitor` behaves like a user who looks at circuits and the log, and connects again whenever Tor
// has died. It prints a line of JSON for each five minutes of its clock: what the process takes,
// and what it has seen.
//
// Restores the network before it ends; exit status 1 when that failed.

#include "base/Clock.h"
#include "base/TorPassword.h"
#include "bridges/TCPProbe.h"
#include "bridges/TransportSearch.h"
#include "checks/ExitCheckProbe.h"
#include "checks/ResolverSource.h"
#include "control/ControlPort.h"
#include "controller/PublishedState.h"
#include "controller/TorController.h"
#include "log/TorLogStore.h"
#include "platform/PlatformProfile.h"
#include "platform/RunningApplications.h"
#include "system/ChildProcessRunner.h"
#include "system/PrivilegedRunner.h"
#include "system/SettingsStore.h"
#include "terminal/TerminalIntegration.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QTimer>

#include <cstdio>
#include <functional>

#include <malloc.h>
#include <unistd.h>

using namespace veldmark;

namespace {

const double speed = qEnvironmentVariableIsSet("VELDMARK_SPEED")
    ? qEnvironmentVariable("VELDMARK_SPEED").toDouble()
    : 60;

// A time of the fast clock in real time, rounded down to milliseconds.
std::chrono::milliseconds inRealTime(std::chrono::milliseconds duration)
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(duration / speed);
}

class FastClock final : public Clock {
public:
    TimePoint now() const override
    {
        const TimePoint real = std::chrono::steady_clock::now();
        return TimePoint(
            std::chrono::duration_cast<TimePoint::duration>(real.time_since_epoch() * speed));
    }
    QCoro::Task<void> sleep(std::chrono::milliseconds duration) override
    {
        const std::chrono::milliseconds real = inRealTime(duration);
        co_await m_clock.sleep(real);
    }

private:
    SystemClock m_clock;
};

// Gives the helper the hash of another password.
class WrongHash final : public ProcessRunner {
public:
    QCoro::Task<Result<ProcessResult, StartError>> run(QString executable,
                                                       QStringList arguments) override
    {
        return m_runner.run(executable, arguments);
    }
    QCoro::Task<Result<ProcessResult, StartError>> runWithInput(QString executable,
                                                                QStringList arguments,
                                                                QByteArray input) override
    {
        QByteArrayList words = input.split('\n');
        if (const auto place = words.indexOf(QByteArray("--hash")); place >= 0)
            words[place + 1] = TorPassword::hashOf("another", "salty___").toLatin1();
        return m_runner.runWithInput(executable, arguments, words.join('\n'));
    }

private:
    ChildProcessRunner m_runner;
};

QCoro::Task<void> attempt(TorController *controller)
{
    bool sought = false;
    QObject::connect(&controller->isOptimizing, &Field::changed, controller,
                     [controller, &sought] { sought = sought || controller->isOptimizing(); });
    co_await controller->connect();
    QJsonObject state = publishedState(*controller);
    state.insert(QStringLiteral("sought"), sought);
    std::puts(QJsonDocument(state).toJson(QJsonDocument::Compact).constData());
    std::fflush(stdout);
    co_await controller->disconnect();
    QCoreApplication::exit(controller->isSessionMarkerPresent() ? 1 : 0);
}

// This process's memory in KiB (resident, and allocated of it), open descriptors and threads.
QJsonObject taken()
{
    const struct mallinfo2 heap = mallinfo2();
    QFile file(QStringLiteral("/proc/self/statm"));
    const bool isOpen = file.open(QIODevice::ReadOnly);
    const qint64 pages = isOpen ? file.readAll().split(' ').value(1).toLongLong() : 0;
    const auto count = [](const char *folder) {
        return static_cast<qint64>(
            QDir(QLatin1String(folder))
                .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
                .size());
    };
    return {{QStringLiteral("memoryKiB"), pages * sysconf(_SC_PAGESIZE) / 1024},
            {QStringLiteral("heapKiB"), static_cast<qint64>((heap.uordblks + heap.hblkhd) / 1024)},
            {QStringLiteral("descriptors"), count("/proc/self/fd")},
            {QStringLiteral("threads"), count("/proc/self/task")}};
}

// The events of a watched session.
struct Seen {
    qint64 deaths = 0;
    qint64 failures = 0;
    qint64 refreshes = 0;
};

void printReading(const TorController &controller, const TorLogStore &log, const Seen &seen,
                  Clock::TimePoint::duration since)
{
    QJsonObject line = taken();
    line.insert(
        QStringLiteral("minutes"),
        static_cast<qint64>(std::chrono::duration_cast<std::chrono::minutes>(since).count()));
    line.insert(QStringLiteral("deaths"), seen.deaths);
    line.insert(QStringLiteral("failures"), seen.failures);
    line.insert(QStringLiteral("refreshes"), seen.refreshes);
    line.insert(QStringLiteral("circuits"), static_cast<qint64>(controller.circuits().size()));
    line.insert(QStringLiteral("logLines"), static_cast<qint64>(log.snapshot().lines().size()));
    line.insert(QStringLiteral("logBytes"), QFileInfo(log.log().noticesPath()).size());
    std::puts(QJsonDocument(line).toJson(QJsonDocument::Compact).constData());
    std::fflush(stdout);
}

QCoro::Task<void> monitor(TorController *controller, FastClock *clock, Seen *seen,
                          Clock::TimePoint end, std::function<void()> atEnd)
{
    constexpr std::chrono::seconds turn(10); // of the fast clock
    co_await controller->connect();
    for (int turns = 0; clock->now() < end; ++turns) {
        if (controller->phase() != ConnectionPhase::connected) {
            ++(controller->phase() == ConnectionPhase::stale ? seen->deaths : seen->failures);
            co_await controller->connect();
        } else if (turns % 3 == 0) {
            co_await controller->refreshCircuits();
            seen->refreshes += controller->circuitError() ? 0 : 1;
        } else if (turns % 12 == 1) {
            co_await controller->runChecks();
        }
        const std::chrono::milliseconds pause = turn;
        co_await clock->sleep(pause);
    }
    atEnd();
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
    ProcessRunner &runner = wrongPassword ? static_cast<ProcessRunner &>(wrongHash) : processes;
    PrivilegedRunner privileged(profile, runner);
    ControlPort controlPort(systemClock);
    ExitCheckProbe probe(systemClock);
    LinuxResolverSource resolvers(systemClock, profile.resolverFile);
    TerminalIntegration terminal(profile, NetworkProbe::checkURL().toString());
    const auto running = runningApplications();
    RunningApplications &applications = *running;
    TransportSearch search(profile);
    TorController controller(TorController::Services{
        .profile = profile,
        .settings = settings,
        .clock = clock,
        .processes = runner,
        .privileged = privileged,
        .controlPort = controlPort,
        .probe = probe,
        .resolvers = resolvers,
        .terminal = terminal,
        .applications = applications,
        .locateTransports = [&search] { return search.locate(); },
        .bridgeProbe =
            [&systemClock](const QString &host, quint16 port, std::chrono::milliseconds limit) {
                return TCPProbe::connectTime(host, port, limit, &systemClock);
            },
    });
    // Less often than once a second of the fast clock: reading a full log so often would take all
    // the time.
    TorLogStore log(TorLog(profile), nullptr, inRealTime(TorLogStore::pollInterval * 10));
    Seen seen;
    QTimer readings;
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QStringLiteral("monitor")) {
        log.start();
        const auto start = clock.now();
        const auto end = start
            + std::chrono::duration_cast<Clock::TimePoint::duration>(
                             std::chrono::duration<double, std::ratio<3600>>(
                                 arguments.value(2).toDouble()));
        QObject::connect(&readings, &QTimer::timeout, &application,
                         [&, start] { printReading(controller, log, seen, clock.now() - start); });
        readings.start(inRealTime(std::chrono::minutes(5)));
        QTimer::singleShot(0, &application, [&, start, end] {
            monitor(&controller, &clock, &seen, end,
                    [&, start] { printReading(controller, log, seen, clock.now() - start); });
        });
    } else {
        QTimer::singleShot(0, &application, [&controller] { attempt(&controller); });
    }
    return QCoreApplication::exec();
}
