#include "platform/PlatformProfile.h"

#include "base/RootsOwn.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace veldmark {

namespace {
QString absoluteFromEnvironment(const char *variable, const QString &fallback)
{
    const QString value = qEnvironmentVariable(variable);
    return value.startsWith(u'/') ? value : fallback;
}

// The path; for root, only where no other user can change the folder or the nearest one that is
// there: sudo may keep the variables of the user who called it.
template <typename Usual> QString trusted(const QString &path, Usual usual)
{
    if (::geteuid() != 0)
        return path;
    QString present = path;
    while (!QFileInfo::exists(present) && present.size() > 1)
        present = present.left(qMax(qsizetype(1), present.lastIndexOf(u'/')));
    return isRootsOwn(present) ? path : usual();
}

#ifndef Q_OS_MACOS
// The variable is missing after su, in cron and in some SSH sessions; after su it may be another
// user's. All processes of a user share logind's folder. A missing folder is created by the code
// that needs it.
QString ownRuntimeDirectory()
{
    const QString given = trusted(absoluteFromEnvironment("XDG_RUNTIME_DIR", QString()),
                                  [] { return QString(); });
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

QString machineName(const QString &architecture)
{
    return architecture == QLatin1String("arm64") ? QStringLiteral("aarch64") : architecture;
}

Places Places::fromEnvironment()
{
    Places places;
    places.home = trusted(QDir::homePath(), [] {
        const struct passwd *const account = ::getpwuid(0);
        return QFile::decodeName(account ? account->pw_dir : "/root");
    });
    const auto folder = [&places](const char *variable, const QString &usual) {
        const QString path = places.home + usual;
        return trusted(absoluteFromEnvironment(variable, path), [&path] { return path; });
    };
    places.configHome = folder("XDG_CONFIG_HOME", QStringLiteral("/.config"));
    places.dataHome = folder("XDG_DATA_HOME", QStringLiteral("/.local/share"));
#ifndef Q_OS_MACOS
    places.runtimeDirectory = ownRuntimeDirectory();
#endif
    places.applicationDirectory = QCoreApplication::applicationDirPath();
    places.machine = machineName(QSysInfo::currentCpuArchitecture());
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
