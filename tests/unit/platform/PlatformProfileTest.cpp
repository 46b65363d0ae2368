#include "platform/PlatformProfile.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace veldmark;

namespace {
void write(const QString &path, const QByteArray &content)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
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
        QTest::newRow("fedora") << "ID=fedora\n" << "sudo dnf install tor";
        QTest::newRow("rocky") << "ID=\"rocky\"\nID_LIKE=\"rhel centos fedora\"" << "sudo dnf install tor";
        QTest::newRow("manjaro") << "ID=manjaro\nID_LIKE=arch\n" << "sudo pacman -S tor";
        QTest::newRow("tumbleweed") << "ID='opensuse-tumbleweed'\nID_LIKE='opensuse suse'" << "sudo zypper install tor";
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
        for (const PlatformProfile &p : {PlatformProfile::linux(places), PlatformProfile::macos(places)}) {
            QStringList paths = {p.sessionMarker, p.installedHelper, p.sudoersRule, p.runDirectory,
                                 p.sudo, p.unzip, p.promptProgram, p.bundleDirectory,
                                 p.terminalDirectory, p.sshDirectory, p.resolverFile, p.controlSocket};
            paths += p.torCandidates + p.transportDirectories + p.gnupgCandidates
                + p.shellFilesAlways + p.shellFilesIfPresent + p.helperCandidates;
            for (const ProgramRoot &root : p.torBrowserRoots)
                paths += root.path;
            for (const QString &path : paths)
                QVERIFY2(path.startsWith(QLatin1String("/tmp/elsewhere/")), qPrintable(p.name + path));
        }
    }

    void theMacIsNamedAsSuch()
    {
        const auto mac = PlatformProfile::macos(Places{});
        QCOMPARE(mac.sessionMarker, QStringLiteral("/Library/Application Support/Veldmark/state/active"));
        QCOMPARE(mac.torMissingText, QStringLiteral("Tor isn't installed. Install it with Homebrew (brew install tor) or set its location in Settings."));
        QCOMPARE(mac.promptText, QStringLiteral("Veldmark needs administrator access to manage Tor routing on this Mac."));
        QCOMPARE(mac.torCandidates.first(), QStringLiteral("/opt/homebrew/bin/tor"));
    }

    void linuxNamesItsOwnInstallCommand()
    {
        QTemporaryDir folder;
        write(folder.filePath(QStringLiteral("etc/os-release")), "ID=debian\n");
        const auto profile = PlatformProfile::linux(Places::below(folder.path()));
        QCOMPARE(profile.torMissingText, QStringLiteral("Tor isn't installed. Install it with your package manager (sudo apt install tor tor-geoipdb) or set its location in Settings."));
    }

    void theHelperBesideTheProgramWins()
    {
        QTemporaryDir folder;
        const QString beside = folder.filePath(QStringLiteral("app/veldmark-helper.sh"));
        const QString installed = folder.filePath(QStringLiteral("usr/share/veldmark/veldmark-helper.sh"));
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
        QCOMPARE(profile.transportRoots().front().path, folder.filePath(QStringLiteral("opt/tor-browser")));
        QDir().mkpath(folder.filePath(QStringLiteral("home/user/tor-browser")));
        QCOMPARE(profile.transportRoots().front().path, folder.filePath(QStringLiteral("home/user/tor-browser")));
        QCOMPARE(profile.transportRoots().back().path, profile.bundleDirectory);
    }

    void zshGetsABlockWhenItIsInstalled()
    {
        QTemporaryDir folder;
        const Places places = Places::below(folder.path());
        QVERIFY(!PlatformProfile::linux(places).shellFilesAlways.contains(places.home + QStringLiteral("/.zshrc")));
        write(folder.filePath(QStringLiteral("usr/bin/zsh")), "");
        QVERIFY(PlatformProfile::linux(places).shellFilesAlways.contains(places.home + QStringLiteral("/.zshrc")));
    }
};

VELDMARK_TEST(PlatformProfileTest)
#include "PlatformProfileTest.moc"
