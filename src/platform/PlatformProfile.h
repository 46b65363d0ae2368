#pragma once

#include "base/Text.h"

#include <QString>
#include <QStringList>

#include <vector>

// Where the two systems that Veldmark runs on differ: paths, texts and program lists, as plain
// data. Both profiles are compiled and tested everywhere; no other code asks which system it is on.
// Start here, then LinuxProfile.cpp and MacProfile.cpp, which are tables.
namespace veldmark {

// The places that the paths of a profile are built from. Tests lay out either system's files below
// a temporary folder by giving `root` and `home`; production takes `fromEnvironment()`.
struct Places {
    QString root;       // put before every absolute path of the system; empty in production
    QString home;       // the user's home folder
    QString configHome; // $XDG_CONFIG_HOME, default ~/.config
    QString dataHome;   // $XDG_DATA_HOME, default ~/.local/share
    // the user's, of $XDG_RUNTIME_DIR or the system's; empty where there is none
    QString runtimeDirectory;
    QString applicationDirectory; // the folder of the running program's executable
    QString machine;              // "x86_64" or "aarch64", for the name of the bundle archive

    // Needs a QCoreApplication. XDG variables that are not absolute paths are ignored.
    static Places fromEnvironment();
    // Everything below `folder`: the system's files in folder/, the home in folder/home/user.
    static Places below(const QString &folder);
};

// How the program asks for administrator rights.
enum class PromptKind {
    AppleScript, // osascript, do shell script … with administrator privileges
    PolicyKit,   // pkexec; a process that is root already runs the helper directly
};

struct ProgramRoot {
    QString path;
    QString label; // shown to the user
};

struct PlatformProfile {
    QString name; // "linux" or "macos"
    Places places;

    // Texts.
    Text computer;          // "This Mac" / "This computer"
    Text onComputer;        // "on this Mac" / "on this computer"
    QString fileManager;    // "Finder" / "the file manager"
    QString torInstallHint; // the command, or "your package manager"
    Text torMissingText;    // a whole sentence for the error banner
    QString homePage;       // of Veldmark; empty while it has none, and then nothing links to it
    QString manualRestoreCommand; // what a user types when the program does not open

    // The helper and what it leaves behind.
    // exists while the network is set up for Tor; holds "proxy" or "strict"
    QString sessionMarker;
    // beside the marker: who made the session; empty where no helper notes it
    QString sessionOwner;
    // who else denies what goes out, as the helper has found it, see OtherFirewalls; gone after a
    // restart
    QString othersNote;
    // what the watcher has last seen of the firewall's rules, see KillSwitch; gone after a restart
    QString killSwitchNote;
    // which application has which address, see Identities; empty where applications cannot be told
    // apart
    QString identitiesNote;
    QString identitiesSocket; // where another address is asked for
    QString installedHelper;  // the root-owned copy for use without a password
    QString sudoersRule;
    QString runDirectory;     // Tor's logs; see launcherOutput
    QString approvedPrograms; // copies of programs that an administrator approved: DIGEST/ROLE
    QString launcherOutput;   // file name in runDirectory of the service launcher's output
    QString launcherPrefix;   // put before the launcher's lines in the log
    QString torAccount;
    QStringList helperCandidates; // the shipped helper: the first that exists

    // Programs, each list in the order of preference.
    QStringList torCandidates;
    QStringList transportDirectories;
    QStringList gnupgCandidates;
    QString sudo;
    QString unzip;
    PromptKind promptKind;
    QString promptProgram;
    Text promptText; // shown in the authorisation dialog where it can be set

    // Pluggable transports.
    std::vector<ProgramRoot> torBrowserRoots; // the first that exists is searched
    QString bundleDirectory;                  // the downloaded Tor Expert Bundle
    QString bundleArchivePrefix;              // VERSION and ".tar.gz" follow

    // The user's own files.
    QString applicationSuffix;       // of the paths that name applications: ".desktop" or ".app"
    QString settingsFile;            // empty: the system's own settings store
    QString autostartFile;           // empty: the system's login-item service
    QStringList shellFilesAlways;    // terminal mode adds its block, creating the file
    QStringList shellFilesIfPresent; // … only where the file exists
    QString terminalDirectory;       // ~/.veldmark
    QString sshDirectory;            // ~/.ssh
    QString terminalMaker;           // named in those files as who looks after them
    bool givesBackProxies;           // the shell file saves and restores the user's own proxies
    QString netcat;                  // known to speak SOCKS; empty: the candidates are asked
    QStringList netcatCandidates;
    QString ncat;          // asked when no netcat will do; empty: not asked
    QString resolverFile;  // /etc/resolv.conf
    bool quitCanBeRefused; // the system asks a program whether it may end; elsewhere it is told
    QString scutil;        // empty where resolvers are not read from it
    QString controlSocket; // local socket on which a running instance takes commands
    // where the same user's instance listens that was started in other circumstances
    QStringList otherControlSockets;

    static PlatformProfile linux(const Places &places);
    static PlatformProfile macos(const Places &places);
    // The profile of the running system.
    static PlatformProfile current(const Places &places);

    // The first candidate that exists, or empty.
    QString bundledHelper() const;
    // The roots that hold transports, in the order of search: Tor Browser, then the bundle.
    // The bundle's label has no version.
    std::vector<ProgramRoot> transportRoots() const;
};

// The command that installs tor on the distribution that `osRelease` (the content of
// /etc/os-release) names by ID or ID_LIKE, or "your package manager".
QString linuxInstallHint(const QString &osRelease);

} // namespace veldmark
