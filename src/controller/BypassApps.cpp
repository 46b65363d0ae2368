#include "controller/TorController.h"

#include "base/Clock.h"
#include "platform/PlatformProfile.h"
#include "platform/RunningApplications.h"
#include "system/PrivilegedRunner.h"

#include <QDir>
#include <QPointer>

#include <algorithm>

using namespace std::chrono_literals;

namespace veldmark {

namespace {
constexpr auto quitCheckInterval = 100ms;
constexpr int quitChecks = 60; // about six seconds
} // namespace

bool TorController::canLaunchBypassed() const
{
    return phase() == ConnectionPhase::connected && activeMode() == RoutingMode::strict;
}

QString TorController::displayedName(const QString &path) const
{
    return m_services.applications.displayName(path);
}

bool TorController::isApplication(const QString &path) const
{
    return path.startsWith(u'/') && path.endsWith(m_services.profile.applicationSuffix);
}

QStringList TorController::sortedByName(QStringList applications) const
{
    applications.removeDuplicates();
    const RunningApplications &names = m_services.applications;
    std::stable_sort(applications.begin(), applications.end(),
                     [&names](const QString &a, const QString &b) {
                         return QString::localeAwareCompare(names.displayName(a).toCaseFolded(),
                                                            names.displayName(b).toCaseFolded())
                             < 0;
                     });
    return applications;
}

void TorController::addBypassApp(const QString &path)
{
    if (!isApplication(path) || bypassApps().contains(path))
        return;
    QStringList apps = bypassApps();
    apps << path;
    bypassApps.set(sortedByName(apps));
}

void TorController::removeBypassApp(const QString &path)
{
    QStringList apps = bypassApps();
    apps.removeAll(path);
    bypassApps.set(apps);
}

bool TorController::isLaunching(const QString &application) const
{
    return m_launching.contains(QDir::cleanPath(application));
}

QCoro::Task<Result<void, Text>> TorController::launchBypassed(QString path)
{
    if (!canLaunchBypassed())
        co_return Failure(Text::tr("Connect in strict mode to open apps without Tor"));
    const QString application = QDir::cleanPath(path);
    if (isLaunching(application))
        co_return Failure(Text::tr("%1 is already being opened.").arg(displayedName(path)));
    m_launching << application;
    const QPointer<TorController> self(this);
    auto launching = launchOnce(current(&TorController::m_attempt), path);
    const auto launched = co_await launching;
    if (self)
        m_launching.removeAll(application);
    co_return launched;
}

QCoro::Task<Result<void, Text>> TorController::launchOnce(Run session, QString path)
{
    RunningApplications &applications = m_services.applications;
    const auto copies = applications.copiesOf(QDir::cleanPath(path));
    for (const qint64 copy : copies)
        applications.askToQuit(copy);
    for (int check = 0; check < quitChecks; ++check) {
        const bool ended = std::all_of(copies.begin(), copies.end(), [&applications](qint64 copy) {
            return applications.hasEnded(copy);
        });
        if (ended)
            break;
        co_await m_services.clock.sleep(quitCheckInterval);
        if (session.isOver())
            co_return Failure(Text());
    }

    const QStringList arguments = {QStringLiteral("launch"), QStringLiteral("--uid"),
                                   QString::number(SessionOwner::callerOfHelper()),
                                   QStringLiteral("--app"), path};
    const auto helper = co_await m_services.privileged.runHelper(arguments);
    if (helper)
        co_return {};
    if (session.isOver() || helper.error().kind() == HelperError::Kind::Cancelled)
        co_return Failure(Text());
    const Text failure = Text::tr("Couldn't open %1 without Tor: %2")
                             .arg(displayedName(path), helper.error().description());
    errorMessage = failure;
    co_return Failure(failure);
}

} // namespace veldmark
