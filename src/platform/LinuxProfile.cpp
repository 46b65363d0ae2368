#include "platform/PlatformProfile.h"

#include "base/FileContent.h"

#include <QFile>
#include <QRegularExpression>

namespace veldmark {

namespace {

QString osReleaseValue(const QString &osRelease, const QString &key)
{
    for (const QString &line : osRelease.split(u'\n')) {
        if (!line.startsWith(key + u'='))
            continue;
        QString value = line.mid(key.size() + 1).trimmed();
        if (value.size() >= 2 && (value.startsWith(u'"') || value.startsWith(u'\''))
            && value.endsWith(value.front()))
            value = value.mid(1, value.size() - 2);
        return value;
    }
    return {};
}

QString readText(const QString &path)
{
    return QString::fromUtf8(contentOf(path, 65536));
}

const QString unknownSystem = QStringLiteral("your package manager");

} // namespace

QString linuxInstallHint(const QString &osRelease)
{
    const QStringList names = (osReleaseValue(osRelease, QStringLiteral("ID")) + u' '
                               + osReleaseValue(osRelease, QStringLiteral("ID_LIKE")))
                                  .toLower()
                                  .split(u' ', Qt::SkipEmptyParts);
    for (const QString &name : names) {
        if (name == QLatin1String("debian") || name == QLatin1String("ubuntu"))
            return QStringLiteral("sudo apt install tor tor-geoipdb");
        if (name == QLatin1String("fedora") || name == QLatin1String("rhel")
            || name == QLatin1String("centos"))
            return QStringLiteral("sudo dnf install tor");
        if (name == QLatin1String("arch"))
            return QStringLiteral("sudo pacman -S tor");
        if (name == QLatin1String("suse") || name == QLatin1String("opensuse")
            || name.startsWith(QLatin1String("opensuse-")))
            return QStringLiteral("sudo zypper install tor");
    }
    return unknownSystem;
}

PlatformProfile PlatformProfile::linux(const Places &places)
{
    const auto at = [&places](const char *path) { return places.root + QLatin1String(path); };

    PlatformProfile profile;
    profile.name = QStringLiteral("linux");
    profile.places = places;

    QString osRelease = readText(at("/etc/os-release"));
    if (osRelease.isEmpty())
        osRelease = readText(at("/usr/lib/os-release"));
    profile.computer = Text::tr("This computer");
    profile.onComputer = Text::tr("on this computer");
    profile.torInstallHint = linuxInstallHint(osRelease);
    profile.torMissingText = profile.torInstallHint == unknownSystem
        ? Text::tr("Tor isn't installed. Install it with your package manager or set its "
                   "location in Settings.")
        : Text::tr("Tor isn't installed. Install it with your package manager (%1) or set "
                   "its location in Settings.")
              .arg(profile.torInstallHint);

    profile.sessionMarker = at("/var/lib/veldmark/state/active");
    profile.sessionOwner = at("/var/lib/veldmark/state/owner");
    profile.journalDirectory = at("/var/lib/veldmark/journal");
    profile.killSwitchNote = at("/run/veldmark.watch");
    profile.othersNote = at("/run/veldmark.others");
    profile.identitiesNote = at("/run/veldmark.identities");
    profile.identitiesSocket = at("/run/veldmark.identify");
    profile.installedHelper = at("/usr/local/libexec/veldmark/veldmark-helper.sh");
    profile.sudoersRule = at("/etc/sudoers.d/veldmark");
    profile.runDirectory = at("/var/lib/veldmark/run");
    profile.approvedPrograms = at("/var/lib/veldmark/programs");
    profile.launcherOutput = QStringLiteral("launcher.out");
    profile.launcherPrefix = QStringLiteral("launcher: ");
    profile.torAccount = QStringLiteral("_veldmark");
    profile.helperCandidates = {places.applicationDirectory + QStringLiteral("/veldmark-helper.sh"),
                                at("/usr/share/veldmark/veldmark-helper.sh")};
    const QString helper = profile.bundledHelper();
    profile.manualRestoreCommand = QStringLiteral("sudo bash %1 disconnect")
                                       .arg(helper.isEmpty() ? profile.helperCandidates.constLast()
                                                             : helper);

    profile.torCandidates = {at("/usr/bin/tor"), at("/usr/local/bin/tor"), at("/usr/sbin/tor"),
                             at("/home/linuxbrew/.linuxbrew/bin/tor")};
    profile.transportDirectories = {at("/usr/bin"), at("/usr/local/bin")};
    profile.gnupgCandidates = {at("/usr/bin"), at("/usr/local/bin")};
    profile.sudo = at("/usr/bin/sudo");
    profile.unzip = at("/usr/bin/unzip");
    profile.promptKind = PromptKind::PolicyKit;
    profile.promptProgram = at("/usr/bin/pkexec");
    profile.promptText = Text::tr(
        "Veldmark needs administrator access to manage Tor routing on this computer. While connected, Veldmark stops the system's own Tor service.");

    profile.torBrowserRoots = {
        {places.home + QStringLiteral("/.local/share/torbrowser/tbb/x86_64/tor-browser"),
         QStringLiteral("Tor Browser")},
        {places.home + QStringLiteral("/tor-browser"), QStringLiteral("Tor Browser")},
        {at("/opt/tor-browser"), QStringLiteral("Tor Browser")},
    };
    profile.bundleDirectory = places.dataHome + QStringLiteral("/veldmark/TorExpertBundle");
    profile.bundleArchivePrefix = QStringLiteral("tor-expert-bundle-linux-%1-").arg(places.machine);

    profile.applicationSuffix = QStringLiteral(".desktop");
    profile.settingsFile = places.configHome + QStringLiteral("/veldmark/veldmark.conf");
    profile.autostartFile = places.configHome + QStringLiteral("/autostart/veldmark.desktop");
    const QString zshrc = places.home + QStringLiteral("/.zshrc");
    const bool zshInstalled = QFile::exists(at("/usr/bin/zsh")) || QFile::exists(at("/bin/zsh"));
    profile.shellFilesAlways = {places.home + QStringLiteral("/.bashrc")};
    if (zshInstalled)
        profile.shellFilesAlways.prepend(zshrc);
    else
        profile.shellFilesIfPresent = {zshrc};
    profile.terminalDirectory = places.home + QStringLiteral("/.veldmark");
    profile.terminalMaker = QStringLiteral("Veldmark");
    profile.givesBackProxies = true;
    profile.quitCanBeRefused = false;
    profile.iconInMenuBar = false;
    profile.netcatCandidates = {at("/usr/bin/nc"), at("/bin/nc"), at("/usr/bin/nc.openbsd"),
                                at("/bin/nc.openbsd")};
    profile.ncat = at("/usr/bin/ncat");
    profile.sshDirectory = places.home + QStringLiteral("/.ssh");
    profile.resolverFile = at("/etc/resolv.conf");
    // Without a runtime folder (a root shell, an SSH session without logind) the socket is in a
    // folder below the home that only the user can enter. The instance may have had a runtime
    // folder when this process has none, or the other way round.
    profile.controlSocket = places.dataHome + QStringLiteral("/veldmark/run/control");
    if (!places.runtimeDirectory.isEmpty()) {
        profile.otherControlSockets = {profile.controlSocket};
        profile.controlSocket = places.runtimeDirectory + QStringLiteral("/veldmark/control");
    }
    return profile;
}

} // namespace veldmark
