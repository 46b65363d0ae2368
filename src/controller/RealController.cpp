#include "controller/RealController.h"

#include "bridges/TCPProbe.h"
#include "bridges/TransportDownloader.h"
#include "system/ProgramApproval.h"

#include <QFile>

#include <pwd.h>

namespace veldmark {

namespace {

QCoro::Task<QString> readScutil(ProcessRunner *processes, QString scutil)
{
    const QStringList arguments = {QStringLiteral("--dns")};
    const auto run = co_await processes->run(scutil, arguments);
    co_return run ? run->stdout : QString();
}

// The account that Tor must run under; only root can create it. On a Mac the system does not tell
// users which account owns a connection.
ControlPort::TorUser torUser(const PlatformProfile &profile)
{
    if (profile.name != QLatin1String("linux"))
        return {};
    return [name = QFile::encodeName(profile.torAccount)]() -> std::optional<uid_t> {
        const passwd *entry = getpwnam(name.constData());
        return entry ? std::optional(entry->pw_uid) : std::nullopt;
    };
}

std::unique_ptr<ResolverSource> resolverSource(const PlatformProfile &profile, Clock &clock,
                                               ProcessRunner &processes)
{
    if (profile.scutil.isEmpty())
        return std::make_unique<LinuxResolverSource>(clock, profile.resolverFile);
    ProcessRunner *const runner = &processes;
    const QString scutil = profile.scutil;
    return std::make_unique<ScutilResolverSource>(
        [runner, scutil] { return readScutil(runner, scutil); });
}

} // namespace

RealController::RealController(const PlatformProfile &profile)
    : m_profile(profile),
      m_settings(m_profile),
      m_privileged(m_profile, m_processes),
      m_controlPort(m_clock, ControlPort::defaultPort, torUser(m_profile)),
      m_probe(m_clock),
      m_resolvers(resolverSource(m_profile, m_clock, m_processes)),
      m_terminal(m_profile, NetworkProbe::checkURL().toString()),
      m_applications(runningApplications()),
      m_downloader(m_profile, m_processes, m_clock),
      m_search(m_profile),
      m_controller(TorController::Services{
          .profile = m_profile,
          .settings = m_settings,
          .clock = m_clock,
          .processes = m_processes,
          .privileged = m_privileged,
          .controlPort = m_controlPort,
          .probe = m_probe,
          .resolvers = *m_resolvers,
          .terminal = m_terminal,
          .applications = *m_applications,
          .locateTransports =
              [this] { return m_search.locate(TransportDownloader::installedVersion(m_profile)); },
          .bridgeProbe =
              [clock = &m_clock](const QString &host, quint16 port,
                                 std::chrono::milliseconds limit) {
                  return TCPProbe::connectTime(host, port, limit, clock);
              },
          .installTransports =
              [this](bool throughTor, const TransportDownloader::Progress &progress) {
                  return m_downloader.install(throughTor, progress);
              },
          .cancelTransports = [this] { m_downloader.cancel(); },
          .locateWithoutAsking =
              [this] {
                  return m_search.locateWithoutAsking(
                      TransportDownloader::installedVersion(m_profile));
              },
          .missingApprovals
          = [this](const QStringList &words) { return ProgramApproval::missing(m_profile, words); },
          .namedPrograms =
              [this](const QStringList &words) { return ProgramApproval::named(m_profile, words); },
      }),
      m_wake(QDBusConnection::systemBus())
{
    QObject::connect(&m_wake, &WakeNotice::awake, &m_controller, &TorController::wake);
}

} // namespace veldmark
