#include "platform/PlatformProfile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSysInfo>

#include <sys/stat.h>
#include <unistd.h>

namespace veldmark {

namespace {
QString absoluteFromEnvironment(const char *variable, const QString &fallback)
{
    const QString value = qEnvironmentVariable(variable);
    return value.startsWith(u'/') ? value : fallback;
}

QString machineName()
{
    const QString architecture = QSysInfo::currentCpuArchitecture();
    return architecture == QLatin1String("arm64") ? QStringLiteral("aarch64") : architecture;
}
#ifndef Q_OS_MACOS
// The variable is missing after su, in cron and in some SSH sessions; after su it may be another
// user's. All processes of a user share logind's folder. A missing folder is created by the code
// that needs it.
QString ownRuntimeDirectory()
{
    const QString given = absoluteFromEnvironment("XDG_RUNTIME_DIR", QString());
    struct stat info { };
    const auto isOwn = [&info](const QString &path) {
        return ::stat(QFile::encodeName(path).constData(), &info) == 0 && S_ISDIR(info.st_mode)
            && info.st_uid == geteuid();
    };
    if (!given.isEmpty() && (isOwn(given) || !QFile::exists(given)))
        return given;
    const QString usual = QStringLiteral("/run/user/%1").arg(geteuid());
    return isOwn(usual) ? usual : QString();
}
#endif
} // namespace

Places Places::fromEnvironment()
{
    Places places;
    places.home = QDir::homePath();
    places.configHome = absoluteFromEnvironment("XDG_CONFIG_HOME",
                                                places.home + QStringLiteral("/.config"));
    places.dataHome = absoluteFromEnvironment("XDG_DATA_HOME",
                                              places.home + QStringLiteral("/.local/share"));
#ifndef Q_OS_MACOS
    places.runtimeDirectory = ownRuntimeDirectory();
#endif
    places.applicationDirectory = QCoreApplication::applicationDirPath();
    places.machine = machineName();
    return places;
}

Places Places::below(const QString &folder)
{
    Places places;
    places.root = folder;
    places.home = folder + QStringLiteral("/home/user");
    places.configHome = places.home + QStringLiteral("/.config");
    places.dataHome = places.home + QStringLiteral("/.local/share");
    places.runtimeDirectory = folder + QStringLiteral("/run/user/1000");
    places.applicationDirectory = folder + QStringLiteral("/app");
    places.machine = QStringLiteral("x86_64");
    return places;
}

PlatformProfile PlatformProfile::current(const Places &places)
{
#ifdef Q_OS_MACOS
    return macos(places);
#else
    return linux(places);
#endif
}

QString PlatformProfile::bundledHelper() const
{
    for (const QString &candidate : helperCandidates) {
        if (QFile::exists(candidate))
            return candidate;
    }
    return {};
}

std::vector<ProgramRoot> PlatformProfile::transportRoots() const
{
    std::vector<ProgramRoot> roots;
    for (const ProgramRoot &browser : torBrowserRoots) {
        if (QFile::exists(browser.path)) {
            roots.push_back(browser);
            break;
        }
    }
    roots.push_back({bundleDirectory, QStringLiteral("Tor Expert Bundle")});
    return roots;
}

} // namespace veldmark
