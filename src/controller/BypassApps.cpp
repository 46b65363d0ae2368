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

void TorController::addBypassApp(const QString &path)
{
    if (!path.endsWith(m_services.profile.applicationSuffix) || bypassApps().contains(path))
        return;
    const RunningApplications &applications = m_services.applications;
    QStringList apps = bypassApps();
    apps << path;
    std::stable_sort(apps.begin(), apps.end(), [&applications](const QString &a, const QString &b) {
        return QString::localeAwareCompare(applications.displayName(a).toCaseFolded(),
                                           applications.displayName(b).toCaseFolded()) < 0;
    });
    bypassApps.set(apps);
}

void TorController::removeBypassApp(const QString &path)
{
    QStringList apps = bypassApps();
    apps.removeAll(path);
    bypassApps.set(apps);
}

QCoro::Task<Result<void, QString>> TorController::launchBypassed(QString path)
{
    if (!canLaunchBypassed())
        co_return Failure(QStringLiteral("Connect in strict mode to open apps without Tor"));
    const QPointer<TorController> self(this);
    RunningApplications &applications = m_services.applications;
    const auto copies = applications.copiesOf(QDir::cleanPath(path));
    for (const qint64 copy : copies)
        applications.askToQuit(copy);
    for (int check = 0; check < quitChecks; ++check) {
        const bool ended = std::all_of(copies.begin(), copies.end(),
                                       [&applications](qint64 copy) { return applications.hasEnded(copy); });
        if (ended)
            break;
        co_await m_services.clock.sleep(quitCheckInterval);
        if (!self || !canLaunchBypassed())
            co_return Failure(QString()); // the session ended meanwhile
    }

    const QStringList arguments = {QStringLiteral("launch"), QStringLiteral("--uid"), QString::number(SessionOwner::callerOfHelper()),
                                   QStringLiteral("--app"), path};
    const auto helper = co_await m_services.privileged.runHelper(arguments);
    if (helper)
        co_return {};
    if (!self || helper.error().kind() == HelperError::Kind::Cancelled)
        co_return Failure(QString());
    const QString failure = QStringLiteral("Couldn't open ") + m_services.applications.displayName(path)
        + QStringLiteral(" without Tor: ") + helper.error().description();
    errorMessage = failure;
    co_return Failure(failure);
}

} // namespace veldmark
