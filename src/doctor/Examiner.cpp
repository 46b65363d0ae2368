#include "doctor/Examiner.h"

#include "base/RootsOwn.h"
#include "doctor/Checks.h"
#include "system/SettingsStore.h"

#include <QFile>
#include <QTimer>

#include <sys/stat.h>
#include <sys/timex.h>
#include <unistd.h>

namespace veldmark {

namespace {

using namespace std::chrono_literals;

constexpr auto programLimit = 5s;

std::optional<bool> clockIsSet()
{
    timex state{};
    const int answer = ::ntp_adjtime(&state); // reads only, with no mode set
    if (answer < 0)
        return std::nullopt;
    return answer != TIME_ERROR && (state.status & STA_UNSYNC) == 0;
}

std::optional<FileOwner> ownerOf(const QString &path)
{
    struct stat info { };
    if (::lstat(QFile::encodeName(path).constData(), &info) != 0)
        return std::nullopt;
    return FileOwner{info.st_uid, S_ISLNK(info.st_mode) ? 0 : info.st_mode};
}

} // namespace

Examiner::Examiner(const PlatformProfile &profile, SettingsStore &settings,
                   ProcessRunner &processes, uid_t user)
    : m_profile(profile),
      m_settings(settings),
      m_processes(processes),
      m_user(user),
      m_search(std::make_shared<TransportSearch>(profile))
{
}

QCoro::Task<std::optional<ProcessResult>> Examiner::run(ProcessRunner *processes, QString program,
                                                        QStringList arguments)
{
    StopSource stop;
    QTimer limit;
    limit.setSingleShot(true);
    QObject::connect(&limit, &QTimer::timeout, &limit, [stop]() mutable { stop.request_stop(); });
    limit.start(programLimit);
    auto running = processes->runUntil(program, arguments, stop.get_token());
    const auto result = co_await running;
    if (!result || stop.stop_requested())
        co_return std::nullopt;
    co_return *result;
}

QCoro::Task<Findings> Examiner::examine()
{
    Machine machine;
    machine.profile = m_profile;
    machine.customTor = m_settings.string(QStringLiteral("customTorPath"));
    machine.exitCountry = m_settings.string(QStringLiteral("exitCountry"));
    machine.bridges = {bridgeChoiceFromRawValue(m_settings.string(QStringLiteral("bridgeChoice")))
                           .value_or(BridgeChoice::off),
                       m_settings.string(QStringLiteral("customBridges")), false};
    machine.user = m_user;
    machine.hasDesktop = !qEnvironmentVariableIsEmpty("DISPLAY")
        || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") || !machine.isLinux();
    machine.now = QDateTime::currentDateTimeUtc();
    machine.clockIsSet = clockIsSet();
    machine.owner = ownerOf;

    // No member is used after the first wait.
    ProcessRunner *const processes = &m_processes;
    const std::weak_ptr<TransportSearch> wanted = m_search;
    auto searching = m_search->locate();
    machine.transports = co_await searching;
    if (wanted.expired())
        co_return {};
    const QString tor = machine.tor();
    machine.isTorUnasked = ::geteuid() == 0 && !tor.isEmpty() && !isRootsOwn(tor);
    if (!tor.isEmpty() && !machine.isTorUnasked) {
        auto asking = run(processes, tor, {QStringLiteral("--version")});
        const auto answer = co_await asking;
        if (wanted.expired())
            co_return {};
        if (answer && answer->status == 0)
            machine.torVersion = answer->stdout;
    }
    if (const QString nft = machine.program(QStringLiteral("nft"));
        machine.user == 0 && machine.isLinux() && !nft.isEmpty()) {
        auto asking = run(processes, nft, {QStringLiteral("list"), QStringLiteral("tables")});
        const auto answer = co_await asking;
        if (wanted.expired())
            co_return {};
        machine.firewallComplaint = !answer ? Text::tr("nft doesn't answer.")
            : answer->status == 0           ? QString()
                                            : answer->stderr.section(u'\n', 0, 0).left(200);
        if (answer && answer->status != 0 && machine.firewallComplaint->isEmpty())
            machine.firewallComplaint = Text::tr("nft fails.");
    }
    co_return Doctor::all(machine);
}

} // namespace veldmark
