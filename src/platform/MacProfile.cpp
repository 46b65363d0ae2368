#include "platform/PlatformProfile.h"

namespace veldmark {

PlatformProfile PlatformProfile::macos(const Places &places)
{
    const auto at = [&places](const char *path) { return places.root + QLatin1String(path); };
    const QString support = places.home + QStringLiteral("/Library/Application Support/Veldmark");

    PlatformProfile profile;
    profile.name = QStringLiteral("macos");
    profile.places = places;

    profile.computer = Text::tr("This Mac");
    profile.onComputer = Text::tr("on this Mac");
    profile.torInstallHint = QStringLiteral("brew install tor");
    profile.torMissingText = Text::tr("Tor isn't installed. Install it with Homebrew (brew "
                                      "install tor) or set its location in Settings.");
    profile.manualRestoreCommand = QStringLiteral(
        "sudo bash /Applications/Veldmark.app/Contents/Resources/veldmark-helper.sh disconnect");

    profile.sessionMarker = at("/Library/Application Support/Veldmark/state/active");
    profile.journalDirectory = at("/Library/Application Support/Veldmark/journal");
    profile.killSwitchNote = at("/var/run/veldmark.watch");
    profile.applicationSuffix = QStringLiteral(".app");
    profile.installedHelper = at("/Library/Application Support/Veldmark/bin/veldmark-helper.sh");
    profile.sudoersRule = at("/etc/sudoers.d/veldmark");
    profile.runDirectory = at("/var/db/veldmark/run");
    profile.approvedPrograms = at("/var/db/veldmark/programs");
    profile.launcherOutput = QStringLiteral("launchd.out");
    profile.launcherPrefix = QStringLiteral("launchd: ");
    profile.torAccount = QStringLiteral("_veldmark");
    // In the bundle: Contents/MacOS/veldmark and Contents/Resources/veldmark-helper.sh.
    profile.helperCandidates = {
        places.applicationDirectory + QStringLiteral("/../Resources/veldmark-helper.sh"),
        places.applicationDirectory + QStringLiteral("/veldmark-helper.sh")};

    profile.torCandidates = {at("/opt/homebrew/bin/tor"), at("/usr/local/bin/tor"),
                             at("/opt/local/bin/tor")};
    profile.transportDirectories = {at("/opt/homebrew/bin"), at("/usr/local/bin")};
    profile.gnupgCandidates = {at("/opt/homebrew/bin"), at("/usr/local/bin"),
                               at("/usr/local/MacGPG2/bin")};
    profile.sudo = at("/usr/bin/sudo");
    profile.unzip = at("/usr/bin/unzip");
    profile.promptKind = PromptKind::AppleScript;
    profile.promptProgram = at("/usr/bin/osascript");
    profile.promptText = Text::tr(
        "Veldmark needs administrator access to manage Tor routing on this Mac.");

    profile.torBrowserRoots = {
        {at("/Applications/Tor Browser.app"), QStringLiteral("Tor Browser")}};
    profile.bundleDirectory = support + QStringLiteral("/TorExpertBundle");
    profile.bundleArchivePrefix = QStringLiteral("tor-expert-bundle-macos-%1-").arg(places.machine);

    profile.shellFilesAlways = {places.home + QStringLiteral("/.zshrc")};
    profile.shellFilesIfPresent = {places.home + QStringLiteral("/.bash_profile")};
    profile.terminalDirectory = places.home + QStringLiteral("/.veldmark");
    profile.terminalMaker = QStringLiteral("Veldmark.app");
    profile.givesBackProxies = false; // the file never did
    profile.quitCanBeRefused = true;
    profile.iconInMenuBar = true;
    profile.netcat = at("/usr/bin/nc");
    profile.sshDirectory = places.home + QStringLiteral("/.ssh");
    profile.resolverFile = at("/etc/resolv.conf");
    profile.scutil = at("/usr/sbin/scutil");
    profile.controlSocket = support + QStringLiteral("/run/control"); // in a folder of its own
    return profile;
}

} // namespace veldmark
