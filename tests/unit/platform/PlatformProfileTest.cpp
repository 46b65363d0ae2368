#include "platform/PlatformProfile.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QTemporaryDir>
#include <QTest>

#include <sys/utsname.h>
#include <unistd.h>

using namespace veldmark;

namespace {
void write(const QString &path, const QByteArray &content)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

Places home()
{
    return Places::below(QStringLiteral("/nowhere"));
}

// A profile as text, a line for each field.
QString table(const PlatformProfile &p)
{
    const auto list = [](const QStringList &words) { return words.join(QStringLiteral(", ")); };
    QStringList browsers;
    for (const ProgramRoot &root : p.torBrowserRoots) {
        browsers << root.path;
        if (root.label != QLatin1String("Tor Browser"))
            browsers << root.label;
    }
    const std::vector<std::pair<const char *, QString>> rows{
        {"name", p.name},
        {"computer", list({p.computer.english(), p.onComputer.english()})},
        {"torInstallHint", p.torInstallHint},
        {"torMissingText", p.torMissingText.english()},
        {"homePage", p.homePage},
        {"manualRestoreCommand", p.manualRestoreCommand},
        {"sessionMarker", p.sessionMarker},
        {"sessionOwner", p.sessionOwner},
        {"journalDirectory", p.journalDirectory},
        {"killSwitchNote", p.killSwitchNote},
        {"othersNote", p.othersNote},
        {"approvedPrograms", p.approvedPrograms},
        {"identities", list({p.identitiesNote, p.identitiesSocket})},
        {"installedHelper", p.installedHelper},
        {"sudoersRule", p.sudoersRule},
        {"runDirectory", p.runDirectory},
        {"launcher", list({p.launcherOutput, p.launcherPrefix})},
        {"torAccount", p.torAccount},
        {"helperCandidates", list(p.helperCandidates)},
        {"torCandidates", list(p.torCandidates)},
        {"transportDirectories", list(p.transportDirectories)},
        {"gnupgCandidates", list(p.gnupgCandidates)},
        {"sudo", p.sudo},
        {"unzip", p.unzip},
        {"prompt",
         list({p.promptKind == PromptKind::PolicyKit ? QStringLiteral("PolicyKit")
                                                     : QStringLiteral("AppleScript"),
               p.promptProgram})},
        {"promptText", p.promptText.english()},
        {"torBrowserRoots", list(browsers)},
        {"bundle", list({p.bundleDirectory, p.bundleArchivePrefix})},
        {"applicationSuffix", p.applicationSuffix},
        {"settingsFile", p.settingsFile},
        {"autostartFile", p.autostartFile},
        {"shellFiles",
         list(p.shellFilesAlways) + QStringLiteral("; where it exists ")
             + list(p.shellFilesIfPresent)},
        {"terminal",
         list({p.terminalDirectory, p.terminalMaker})
             + QStringLiteral(", gives back proxies %1").arg(p.givesBackProxies)},
        {"sshDirectory", p.sshDirectory},
        {"netcat",
         p.netcat + QStringLiteral("; ") + list(p.netcatCandidates) + QStringLiteral("; ")
             + p.ncat},
        {"resolverFile", p.resolverFile},
        {"quitCanBeRefused", QString::number(p.quitCanBeRefused)},
        {"iconInMenuBar", QString::number(p.iconInMenuBar)},
        {"scutil", p.scutil},
        {"controlSocket", list({p.controlSocket})},
    };
    QString text;
    for (const auto &[key, value] : rows)
        text += QLatin1String(key) + QStringLiteral(": ") + value + u'\n';
    return text.replace(p.places.home, QStringLiteral("~"));
}
} // namespace

class PlatformProfileTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void namesTheInstallCommandOfTheDistribution_data()
    {
        QTest::addColumn<QString>("osRelease");
        QTest::addColumn<QString>("hint");
        const QString apt = QStringLiteral("sudo apt install tor tor-geoipdb");
        const QString other = QStringLiteral("your package manager");
        QTest::newRow("debian") << "NAME=\"Debian GNU/Linux\"\nID=debian\n" << apt;
        QTest::newRow("mint") << "ID=linuxmint\nID_LIKE=\"ubuntu debian\"\n" << apt;
        QTest::newRow("fedora") << "ID=fedora\n"
                                << "sudo dnf install tor";
        QTest::newRow("rocky") << "ID=\"rocky\"\nID_LIKE=\"rhel centos fedora\""
                               << "sudo dnf install tor";
        QTest::newRow("centos") << "ID=centos\n"
                                << "sudo dnf install tor";
        QTest::newRow("rhel") << "ID=rhel\n"
                              << "sudo dnf install tor";
        QTest::newRow("manjaro") << "ID=manjaro\nID_LIKE=arch\n"
                                 << "sudo pacman -S tor";
        QTest::newRow("tumbleweed") << "ID='opensuse-tumbleweed'\nID_LIKE='opensuse suse'"
                                    << "sudo zypper install tor";
        QTest::newRow("unknown") << "ID=plan9\n" << other;
        QTest::newRow("similar key") << "VERSION_ID=debian\nBUG_ID=debian\n" << other;
        QTest::newRow("empty") << "" << other;
        QTest::newRow("one quote") << "ID=\"" << other;
    }

    void namesTheInstallCommandOfTheDistribution()
    {
        QFETCH(QString, osRelease);
        QFETCH(QString, hint);
        QCOMPARE(linuxInstallHint(osRelease), hint);
    }

    void everySystemPathLiesBelowTheRoot()
    {
        const Places places = Places::below(QStringLiteral("/tmp/elsewhere"));
        for (const PlatformProfile &p :
             {PlatformProfile::linux(places), PlatformProfile::macos(places)}) {
            QStringList paths = {p.sessionMarker,
                                 p.installedHelper,
                                 p.sudoersRule,
                                 p.runDirectory,
                                 p.sudo,
                                 p.unzip,
                                 p.promptProgram,
                                 p.bundleDirectory,
                                 p.terminalDirectory,
                                 p.sshDirectory,
                                 p.resolverFile,
                                 p.controlSocket};
            paths += p.torCandidates + p.transportDirectories + p.gnupgCandidates
                + p.shellFilesAlways + p.shellFilesIfPresent + p.helperCandidates;
            for (const ProgramRoot &root : p.torBrowserRoots)
                paths += root.path;
            for (const QString &path : paths)
                QVERIFY2(path.startsWith(QLatin1String("/tmp/elsewhere/")),
                         qPrintable(p.name + path));
        }
    }

    // Every field, so that no path or text changes unnoticed. "~" stands for the home.
    void linuxIsThis()
    {
        QCOMPARE(table(PlatformProfile::linux(home())), QStringLiteral(R"(name: linux
computer: This computer, on this computer
torInstallHint: your package manager
torMissingText: Tor isn't installed. Install it with your package manager or set its location in Settings.
homePage: 
manualRestoreCommand: sudo bash /nowhere/usr/share/veldmark/veldmark-helper.sh disconnect
sessionMarker: /nowhere/var/lib/veldmark/state/active
sessionOwner: /nowhere/var/lib/veldmark/state/owner
journalDirectory: /nowhere/var/lib/veldmark/journal
killSwitchNote: /nowhere/run/veldmark.watch
othersNote: /nowhere/run/veldmark.others
approvedPrograms: /nowhere/var/lib/veldmark/programs
identities: /nowhere/run/veldmark.identities, /nowhere/run/veldmark.identify
installedHelper: /nowhere/usr/local/libexec/veldmark/veldmark-helper.sh
sudoersRule: /nowhere/etc/sudoers.d/veldmark
runDirectory: /nowhere/var/lib/veldmark/run
launcher: launcher.out, launcher: 
torAccount: _veldmark
helperCandidates: /nowhere/app/veldmark-helper.sh, /nowhere/usr/share/veldmark/veldmark-helper.sh
torCandidates: /nowhere/usr/bin/tor, /nowhere/usr/local/bin/tor, /nowhere/usr/sbin/tor, /nowhere/home/linuxbrew/.linuxbrew/bin/tor
transportDirectories: /nowhere/usr/bin, /nowhere/usr/local/bin
gnupgCandidates: /nowhere/usr/bin, /nowhere/usr/local/bin
sudo: /nowhere/usr/bin/sudo
unzip: /nowhere/usr/bin/unzip
prompt: PolicyKit, /nowhere/usr/bin/pkexec
promptText: Veldmark needs administrator access to manage Tor routing on this computer. While connected, Veldmark stops the system's own Tor service.
torBrowserRoots: ~/.local/share/torbrowser/tbb/x86_64/tor-browser, ~/tor-browser, /nowhere/opt/tor-browser
bundle: ~/.local/share/veldmark/TorExpertBundle, tor-expert-bundle-linux-x86_64-
applicationSuffix: .desktop
settingsFile: ~/.config/veldmark/veldmark.conf
autostartFile: ~/.config/autostart/veldmark.desktop
shellFiles: ~/.bashrc; where it exists ~/.zshrc
terminal: ~/.veldmark, Veldmark, gives back proxies 1
sshDirectory: ~/.ssh
netcat: ; /nowhere/usr/bin/nc, /nowhere/bin/nc, /nowhere/usr/bin/nc.openbsd, /nowhere/bin/nc.openbsd; /nowhere/usr/bin/ncat
resolverFile: /nowhere/etc/resolv.conf
quitCanBeRefused: 0
iconInMenuBar: 0
scutil: 
controlSocket: /nowhere/run/user/1000/veldmark/control
)"));
    }

    void aMacIsThis()
    {
        QCOMPARE(table(PlatformProfile::macos(home())), QStringLiteral(R"(name: macos
computer: This Mac, on this Mac
torInstallHint: brew install tor
torMissingText: Tor isn't installed. Install it with Homebrew (brew install tor) or set its location in Settings.
homePage: 
manualRestoreCommand: sudo bash /Applications/Veldmark.app/Contents/Resources/veldmark-helper.sh disconnect
sessionMarker: /nowhere/Library/Application Support/Veldmark/state/active
sessionOwner: 
journalDirectory: /nowhere/Library/Application Support/Veldmark/journal
killSwitchNote: /nowhere/var/run/veldmark.watch
othersNote: 
approvedPrograms: /nowhere/var/db/veldmark/programs
identities: , 
installedHelper: /nowhere/Library/Application Support/Veldmark/bin/veldmark-helper.sh
sudoersRule: /nowhere/etc/sudoers.d/veldmark
runDirectory: /nowhere/var/db/veldmark/run
launcher: launchd.out, launchd: 
torAccount: _veldmark
helperCandidates: /nowhere/app/../Resources/veldmark-helper.sh, /nowhere/app/veldmark-helper.sh
torCandidates: /nowhere/opt/homebrew/bin/tor, /nowhere/usr/local/bin/tor, /nowhere/opt/local/bin/tor
transportDirectories: /nowhere/opt/homebrew/bin, /nowhere/usr/local/bin
gnupgCandidates: /nowhere/opt/homebrew/bin, /nowhere/usr/local/bin, /nowhere/usr/local/MacGPG2/bin
sudo: /nowhere/usr/bin/sudo
unzip: /nowhere/usr/bin/unzip
prompt: AppleScript, /nowhere/usr/bin/osascript
promptText: Veldmark needs administrator access to manage Tor routing on this Mac.
torBrowserRoots: /nowhere/Applications/Tor Browser.app
bundle: ~/Library/Application Support/Veldmark/TorExpertBundle, tor-expert-bundle-macos-x86_64-
applicationSuffix: .app
settingsFile: 
autostartFile: 
shellFiles: ~/.zshrc; where it exists ~/.bash_profile
terminal: ~/.veldmark, Veldmark.app, gives back proxies 0
sshDirectory: ~/.ssh
netcat: /nowhere/usr/bin/nc; ; 
resolverFile: /nowhere/etc/resolv.conf
quitCanBeRefused: 1
iconInMenuBar: 1
scutil: /nowhere/usr/sbin/scutil
controlSocket: ~/Library/Application Support/Veldmark/run/control
)"));
    }

    void theMachineDecidesWhichBundle()
    {
        Places places = Places::below(QStringLiteral("/nowhere"));
        for (const char *machine : {"x86_64", "aarch64"}) {
            places.machine = QLatin1String(machine);
            for (const PlatformProfile &profile :
                 {PlatformProfile::linux(places), PlatformProfile::macos(places)})
                QVERIFY2(profile.bundleArchivePrefix.endsWith(u'-' + places.machine + u'-'),
                         qPrintable(profile.bundleArchivePrefix));
        }
    }

    void appleSiliconHasTheTorProjectsName()
    {
        QCOMPARE(machineName(QStringLiteral("arm64")), QStringLiteral("aarch64"));
        QCOMPARE(machineName(QStringLiteral("x86_64")), QStringLiteral("x86_64"));
    }

    // The kernel's name of the architecture, which on a Mac differs from the Tor Project's.
    void theMachineIsThisOne()
    {
        utsname system{};
        QCOMPARE(::uname(&system), 0);
        const QString machine = QString::fromLatin1(system.machine);
        QCOMPARE(Places::fromEnvironment().machine,
                 machine == QLatin1String("arm64") ? QStringLiteral("aarch64") : machine);
    }

    void aRelativeFolderOfTheEnvironmentIsIgnored()
    {
        for (const char *variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
            qputenv(variable, "/absolute");
        Places places = Places::fromEnvironment();
        QCOMPARE(places.configHome + places.dataHome + places.runtimeDirectory,
                 QStringLiteral("/absolute/absolute/absolute"));
        for (const char *variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
            qputenv(variable, "relative");
        places = Places::fromEnvironment();
        QCOMPARE(places.configHome, places.home + QStringLiteral("/.config"));
        QCOMPARE(places.dataHome, places.home + QStringLiteral("/.local/share"));
        QCOMPARE(places.runtimeDirectory, QString());
        for (const char *variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
            qunsetenv(variable);
    }

    void rootDoesNotUseFoldersThatOthersCanChange()
    {
        const QByteArrayList names = {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME",
                                      "XDG_RUNTIME_DIR"};
        const QByteArray home = qgetenv("HOME");
        const QTemporaryDir folder;
        const QString inside = folder.filePath(QStringLiteral("not/yet"));
        for (const QByteArray &name : names)
            qputenv(name.constData(), QFile::encodeName(inside));
        const Places own = Places::fromEnvironment();
        QVERIFY(QFile::setPermissions(folder.path(),
                                      QFile::permissions(folder.path()) | QFile::WriteOther));
        const Places open = Places::fromEnvironment();
        qputenv("HOME", home);
        qunsetenv("XDG_CONFIG_HOME");
        qunsetenv("XDG_DATA_HOME");
        qunsetenv("XDG_RUNTIME_DIR");
        QCOMPARE(QStringList({own.home, own.configHome, own.dataHome}),
                 QStringList({inside, inside, inside}));
        if (geteuid() != 0) {
            QCOMPARE(open.home, inside);
            return;
        }
        QVERIFY(!open.home.startsWith(folder.path()));
        QVERIFY(!open.runtimeDirectory.startsWith(folder.path()));
        QCOMPARE(open.configHome, open.home + QStringLiteral("/.config"));
        QCOMPARE(open.dataHome, open.home + QStringLiteral("/.local/share"));
    }

#ifndef Q_OS_MACOS
    void theRuntimeFolderIsTheUsersOwn()
    {
        QTemporaryDir own;
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(own.path()));
        QCOMPARE(Places::fromEnvironment().runtimeDirectory, own.path());
        const QString missing = own.filePath(QStringLiteral("missing"));
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(missing));
        QCOMPARE(Places::fromEnvironment().runtimeDirectory, missing);
        // Without the variable, or when su has left another user's, logind's folder is used if it
        // exists.
        const QFileInfo logind(QStringLiteral("/run/user/%1").arg(geteuid()));
        const QString usual = logind.isDir() && logind.ownerId() == geteuid() ? logind.filePath()
                                                                              : QString();
        for (const char *given : {"", "relative"}) {
            qputenv("XDG_RUNTIME_DIR", given);
            QCOMPARE(Places::fromEnvironment().runtimeDirectory, usual);
        }
        if (geteuid() == 0) {
            QVERIFY(::chown(QFile::encodeName(own.path()).constData(), 65534, 65534) == 0);
            qputenv("XDG_RUNTIME_DIR", QFile::encodeName(own.path()));
            QCOMPARE(Places::fromEnvironment().runtimeDirectory, usual);
        }
        qunsetenv("XDG_RUNTIME_DIR");
    }
#endif

    void aUsersInstanceIsLookedForInBothPlaces()
    {
        Places places = Places::below(QStringLiteral("/x"));
        const QString runtime = QStringLiteral("/x/run/user/1000/veldmark/control");
        const QString home = QStringLiteral("/x/home/user/.local/share/veldmark/run/control");
        QCOMPARE(PlatformProfile::linux(places).controlSocket, runtime);
        QCOMPARE(PlatformProfile::linux(places).otherControlSockets, QStringList{home});
        places.runtimeDirectory.clear();
        QCOMPARE(PlatformProfile::linux(places).controlSocket, home);
        QCOMPARE(PlatformProfile::linux(places).otherControlSockets, QStringList());
    }

    void theMacIsNamedAsSuch()
    {
        const auto mac = PlatformProfile::macos(Places{});
        QCOMPARE(mac.sessionMarker,
                 QStringLiteral("/Library/Application Support/Veldmark/state/active"));
        QCOMPARE(
            mac.torMissingText,
            QStringLiteral(
                "Tor isn't installed. Install it with Homebrew (brew install tor) or set its location in Settings."));
        QCOMPARE(mac.promptText,
                 QStringLiteral(
                     "Veldmark needs administrator access to manage Tor routing on this Mac."));
        QCOMPARE(mac.torCandidates.first(), QStringLiteral("/opt/homebrew/bin/tor"));
    }

    void linuxNamesItsOwnInstallCommand()
    {
        QTemporaryDir folder;
        write(folder.filePath(QStringLiteral("etc/os-release")), "ID=debian\n");
        const auto profile = PlatformProfile::linux(Places::below(folder.path()));
        QCOMPARE(
            profile.torMissingText,
            QStringLiteral(
                "Tor isn't installed. Install it with your package manager (sudo apt install tor tor-geoipdb) or set its location in Settings."));
    }

    void theHelperBesideTheProgramWins()
    {
        QTemporaryDir folder;
        const QString beside = folder.filePath(QStringLiteral("app/veldmark-helper.sh"));
        const QString installed = folder.filePath(
            QStringLiteral("usr/share/veldmark/veldmark-helper.sh"));
        const auto profile = PlatformProfile::linux(Places::below(folder.path()));
        QCOMPARE(profile.bundledHelper(), QString());
        write(installed, "#");
        QCOMPARE(profile.bundledHelper(), installed);
        write(beside, "#");
        QCOMPARE(profile.bundledHelper(), beside);
    }

    void theFirstTorBrowserIsSearchedThenTheBundle()
    {
        QTemporaryDir folder;
        const auto profile = PlatformProfile::linux(Places::below(folder.path()));
        QCOMPARE(profile.transportRoots().size(), 1u);
        QDir().mkpath(folder.filePath(QStringLiteral("opt/tor-browser")));
        QCOMPARE(profile.transportRoots().front().path,
                 folder.filePath(QStringLiteral("opt/tor-browser")));
        QDir().mkpath(folder.filePath(QStringLiteral("home/user/tor-browser")));
        QCOMPARE(profile.transportRoots().front().path,
                 folder.filePath(QStringLiteral("home/user/tor-browser")));
        QCOMPARE(profile.transportRoots().back().path, profile.bundleDirectory);
    }

    void zshGetsABlockWhenItIsInstalled()
    {
        QTemporaryDir folder;
        const Places places = Places::below(folder.path());
        QVERIFY(!PlatformProfile::linux(places).shellFilesAlways.contains(
            places.home + QStringLiteral("/.zshrc")));
        write(folder.filePath(QStringLiteral("usr/bin/zsh")), "");
        QVERIFY(PlatformProfile::linux(places).shellFilesAlways.contains(
            places.home + QStringLiteral("/.zshrc")));
    }

    void onlyWholePathsOfTheEnvironmentCount_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<bool>("counts");
        QTest::newRow("whole") << QByteArray("/elsewhere/x") << true;
        QTest::newRow("relative") << QByteArray("elsewhere/x") << false;
        QTest::newRow("empty") << QByteArray("") << false;
    }

    void onlyWholePathsOfTheEnvironmentCount()
    {
        QFETCH(QByteArray, value);
        QFETCH(bool, counts);
        const QByteArrayList names = {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"};
        QHash<QByteArray, QByteArray> former;
        for (const QByteArray &name : names) {
            if (qEnvironmentVariableIsSet(name.constData()))
                former.insert(name, qgetenv(name.constData()));
            qputenv(name.constData(), value);
        }
        const Places places = Places::fromEnvironment();
        for (const QByteArray &name : names) {
            if (former.contains(name))
                qputenv(name.constData(), former.value(name));
            else
                qunsetenv(name.constData());
        }
        const QString given = QString::fromUtf8(value);
        QCOMPARE(places.configHome, counts ? given : places.home + QStringLiteral("/.config"));
        QCOMPARE(places.dataHome, counts ? given : places.home + QStringLiteral("/.local/share"));
        QCOMPARE(places.runtimeDirectory, counts ? given : QString());
    }
};

VELDMARK_TEST(PlatformProfileTest)
#include "PlatformProfileTest.moc"
