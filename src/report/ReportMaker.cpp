#include "report/ReportMaker.h"

#include "doctor/Machine.h"
#include "platform/PlatformProfile.h"
#include "report/KnownSecrets.h"

#include <QDir>
#include <QFileInfo>
#include <QSysInfo>

namespace veldmark {

namespace {

QStringList versions(const PlatformProfile &profile)
{
    return {QStringLiteral("Veldmark " VELDMARK_VERSION),
            QStringLiteral("Qt ") + QLatin1String(qVersion()), QSysInfo::prettyProductName(),
            QStringLiteral("%1 %2").arg(QSysInfo::kernelType(), QSysInfo::kernelVersion()),
            profile.places.machine};
}

QStringList notes(const PlatformProfile &profile)
{
    const std::pair<const char *, QString> files[] = {{"session", profile.sessionMarker},
                                                      {"owner", profile.sessionOwner},
                                                      {"kill switch", profile.killSwitchNote},
                                                      {"other firewalls", profile.othersNote}};
    QStringList lines;
    for (const auto &[name, path] : files) {
        if (!path.isEmpty() && QFileInfo::exists(path))
            lines << QStringLiteral("%1, of %2: %3")
                         .arg(QLatin1String(name),
                              QFileInfo(path).lastModified().toUTC().toString(Qt::ISODate),
                              Machine::readFile(path).simplified());
    }
    return lines;
}

// The names alone: an entry's content is a former setting of the system, such as a proxy with its
// password.
std::optional<QStringList> journal(const PlatformProfile &profile)
{
    const QFileInfo folder(profile.journalDirectory);
    if (folder.exists() && !(folder.isReadable() && folder.isExecutable()))
        return std::nullopt;
    return QDir(profile.journalDirectory).entryList(QDir::Files | QDir::Hidden);
}

} // namespace

ReportMaker::ReportMaker(const PlatformProfile &profile, SettingsStore &settings,
                         ProcessRunner &processes, uid_t user)
    : m_profile(profile),
      m_processes(processes),
      m_user(user),
      m_examiner(profile, settings, processes, user)
{
}

QCoro::Task<SupportReport> ReportMaker::make(PublishedFacts given)
{
    ReportSources sources;
    sources.made = QDateTime::currentDateTimeUtc();
    sources.versions = versions(m_profile);
    sources.state = given.state;
    sources.settings = given.settings;
    sources.problems = given.problems;
    sources.notes = notes(m_profile);
    sources.journal = journal(m_profile);
    sources.log = TorLog(m_profile).read();
    const KnownSecrets known = KnownSecrets::of(m_profile, given.state);

    Machine machine;
    machine.profile = m_profile;
    const QString nft = machine.program(QStringLiteral("nft"));
    ProcessRunner *const processes = &m_processes;
    const bool isAsked = m_user == 0 && machine.isLinux() && !nft.isEmpty();
    // No member is used after the first wait.
    auto examining = m_examiner.examine();
    sources.findings = co_await examining;
    if (isAsked && !sources.findings.empty()) {
        const QStringList words{QStringLiteral("list"), QStringLiteral("table"),
                                QStringLiteral("inet"), QStringLiteral("veldmark")};
        auto listing = Examiner::run(processes, nft, words);
        const auto answer = co_await listing;
        sources.rules = !answer   ? QStringLiteral("nft doesn't answer.")
            : answer->status == 0 ? answer->stdout
                                  : answer->stderr;
    }
    co_return SupportReport::of(sources, known);
}

} // namespace veldmark
