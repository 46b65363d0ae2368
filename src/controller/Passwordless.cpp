#include "controller/TorController.h"

#include "platform/PlatformProfile.h"
#include "system/PrivilegedRunner.h"

#include <QPointer>

#include <utility>

#include <pwd.h>
#include <unistd.h>

namespace veldmark {

namespace {
QString loginName()
{
    const passwd *entry = getpwuid(geteuid());
    return entry ? QString::fromLocal8Bit(entry->pw_name) : QString::number(geteuid());
}
} // namespace

QCoro::Task<void> TorController::installPasswordless()
{
    if (std::exchange(m_isSettingUpHelper, true))
        co_return; // the password prompt is shown
    const QPointer<TorController> self(this);
    startupError = std::nullopt;
    QStringList arguments = {QStringLiteral("install-privileged"), QStringLiteral("--user"),
                             loginName()};
    const QString &folder = m_services.profile.places.applicationDirectory;
    if (!folder.isEmpty())
        arguments << QStringLiteral("--launch") << folder + QStringLiteral("/veldmark-launch");
    const auto helper = co_await m_services.privileged.runWithPrompt(arguments);
    if (!self)
        co_return;
    m_isSettingUpHelper = false;
    passwordlessInstalled = m_services.privileged.passwordlessInstalled();
    if (!helper) {
        // The user's own cancel is no error.
        if (helper.error().kind() != HelperError::Kind::Cancelled)
            startupError = Text::tr("Couldn't set up passwordless mode: %1")
                               .arg(helper.error().description());
    } else if (!passwordlessInstalled()) {
        startupError = Text::tr("Setup ran but the helper wasn't installed. Try again.");
    }
}

QCoro::Task<void> TorController::removePasswordless()
{
    if (std::exchange(m_isSettingUpHelper, true))
        co_return;
    const QPointer<TorController> self(this);
    startupError = std::nullopt;
    const QStringList arguments = {QStringLiteral("uninstall-privileged")};
    const auto helper = co_await m_services.privileged.runHelper(arguments);
    if (!self)
        co_return;
    m_isSettingUpHelper = false;
    passwordlessInstalled = m_services.privileged.passwordlessInstalled();
    if (!helper && helper.error().kind() != HelperError::Kind::Cancelled)
        startupError
            = Text::tr("Couldn't remove passwordless mode: %1").arg(helper.error().description());
}

QCoro::Task<void> TorController::updatePrivilegedHelper()
{
    if (m_services.privileged.privilegedHelperOutdated())
        co_await installPasswordless();
}

} // namespace veldmark
