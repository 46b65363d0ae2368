#pragma once

#include "base/Text.h"

#include <QString>
#include <QStringList>

#include <vector>

// The differences between the two systems that Veldmark runs on: paths, texts and program lists, as
// plain data. Both profiles are compiled and tested everywhere; no other code tests for the system.
// Start here, then read LinuxProfile.cpp and MacProfile.cpp, which are tables.
namespace veldmark {

// The folders that a profile's paths are built from. Tests create either system's files below a
// temporary folder and set `root` and `home`; the real program uses `fromEnvironment()`.
struct Places {
    QString root;       // put before every absolute path of the system; empty in the real program
    QString home;       // the user's home folder
    QString configHome; // $XDG_CONFIG_HOME, default ~/.config
    QString dataHome;   // $XDG_DATA_HOME, default ~/.local/share
    // the user's own, from $XDG_RUNTIME_DIR or the system's default; empty if there is none
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
    QString torInstallHint; // the command, or "your package manager"
    Text torMissingText;    // a whole sentence for the error banner
    QString homePage;       // of Veldmark; empty while there is none, and then no link appears
    QString manualRestoreCommand; // for the user when the program does not open

    // The helper and its files.
    // exists while the network is set up for Tor; holds "proxy" or "strict"
    QString sessionMarker;
    // beside the marker: the session's owner; empty where no helper writes it
    QString sessionOwner;
    // the helper's notes on what it has changed, a file each; only root reads them
    QString journalDirectory;
    // other firewalls that deny outgoing traffic, according to the helper, see OtherFirewalls;
    // removed by a restart of the computer
    QString othersNote;
    // the watcher's last report on the firewall's rules, see KillSwitch; removed by a restart of
    // the computer
    QString killSwitchNote;
    // the address of each application, see Identities; empty where the system cannot separate
    // applications
    QString identitiesNote;
    QString identitiesSocket; // takes requests for another address
    QString installedHelper;  // the root-owned copy for use without a password
    QString sudoersRule;
    QString runDirectory;     // Tor's logs; see launcherOutput
    QString approvedPrograms; // copies of programs that an administrator approved: DIGEST/ROLE
    QString launcherOutput;   // file name in runDirectory of the service launcher's output
    QString launcherPrefix;   // put before the launcher's lines in the log
    QString torAccount;
    QStringList helperCandidates; // the shipped helper: the first that exists

    // Programs, each list in order of preference.
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
    QString terminalMaker;           // named in those files as the program that maintains them
    bool givesBackProxies;           // the shell file saves and restores the user's own proxies
    QString netcat;                  // known to support SOCKS; empty: the candidates are tested
    QStringList netcatCandidates;
    QString ncat;          // used when no netcat supports it; empty: not used
    QString resolverFile;  // /etc/resolv.conf
    bool quitCanBeRefused; // the system asks a program before it ends; other systems only notify it
    bool iconInMenuBar;    // not in a tray, see Tray
    QString scutil;        // empty where resolvers are not read from it
    QString controlSocket; // local socket on which a running instance takes commands
    // the socket of an instance of the same user that was started with another environment
    QStringList otherControlSockets;

    static PlatformProfile linux(const Places &places);
    static PlatformProfile macos(const Places &places);
    // The profile of the running system.
    static PlatformProfile current(const Places &places);

    // The first candidate that exists, or empty.
    QString bundledHelper() const;
    // The roots that hold transports, in search order: Tor Browser, then the bundle.
    // The bundle's label has no version.
    std::vector<ProgramRoot> transportRoots() const;
};

// The Tor Project's name of the architecture, in the names of bundle archives, for Qt's.
QString machineName(const QString &architecture);

// The command that installs tor on the distribution that `osRelease` (the content of
// /etc/os-release) names by ID or ID_LIKE, or "your package manager".
QString linuxInstallHint(const QString &osRelease);

} // namespace veldmark
