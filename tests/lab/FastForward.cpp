// Runs the real controller with the real helper and the real tor, on a clock that runs sixty times as fast (or as many
// times as VELDMARK_SPEED says), so that the five-minute deadline of the bootstrap comes after five seconds. For the lab's
// host only.
//
//     FastForward connect         connects and prints the published state when the attempt has ended, as JSON
//     FastForward wrong-password  the same, but tor is given the hash of another control password
//
// Restores the network before it ends; exit status 1 when that failed.

#include "base/Clock.h"
#include "bridges/TCPProbe.h"
#include "checks/ExitCheckProbe.h"
#include "checks/ResolverSource.h"
#include "control/ControlPort.h"
#include "controller/PublishedState.h"
#include "controller/TorController.h"
#include "platform/PlatformProfile.h"
#include "system/ChildProcessRunner.h"
#include "system/PrivilegedRunner.h"
#include "system/SettingsStore.h"
#include "platform/RunningApplications.h"
#include "terminal/TerminalIntegration.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QTimer>

#include <cstdio>

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
    QTimer::singleShot(0, &application, [&controller] { attempt(&controller); });
    return QCoreApplication::exec();
}
