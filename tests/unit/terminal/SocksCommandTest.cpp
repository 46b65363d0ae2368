#include "terminal/SocksCommand.h"

#include "Home.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace veldmark;

namespace {
const QByteArray openbsd
    = "OpenBSD netcat\nusage: nc [-46CD] [-W recvlimit]\n\t  [-w timeout] [-X proxy_protocol] [-x proxy_address[:port]]\n";
const QByteArray ncat
    = "Ncat 7.93\n      --proxy <addr[:port]>  Specify address\n      --proxy-type <type>  Specify type\n      --proxy-dns <type>  Specify where\n";

QByteArray program(const QByteArray &usage, const QByteArray &end = "exit 1")
{
    return "#!/bin/sh\ncat >&2 <<'END'\n" + usage + "\nEND\n" + end + "\n";
}
} // namespace

class SocksCommandTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void takesTheFirstProgramThatCanDoIt_data()
    {
        QTest::addColumn<QByteArray>("nc"); // the text it prints; empty: not there
        QTest::addColumn<QByteArray>("openbsdNc");
        QTest::addColumn<QByteArray>("ncatProgram");
        QTest::addColumn<QString>("command"); // below the root
        const QByteArray traditional
            = "[v1.10-47]\nconnect to somewhere: nc [-options] hostname port\n";
        const QByteArray oldNcat = "Ncat 7.70\n      --proxy-type <type>\n";
        const QString netcat = QStringLiteral("/usr/bin/nc -X 5 -x 127.0.0.1:9050 %h %p");
        const QString other = QStringLiteral("/usr/bin/nc.openbsd -X 5 -x 127.0.0.1:9050 %h %p");
        const QString ncatCommand = QStringLiteral(
            "/usr/bin/ncat --proxy 127.0.0.1:9050 --proxy-type socks5 --proxy-dns remote %h %p");
        QTest::newRow("nc") << openbsd << openbsd << ncat << netcat;
        QTest::newRow("another nc") << traditional << openbsd << ncat << other;
        QTest::newRow("ncat") << traditional << QByteArray() << ncat << ncatCommand;
        QTest::newRow("nc is ncat") << ncat << QByteArray() << ncat << ncatCommand;
        QTest::newRow("ncat that looks names up itself")
            << QByteArray() << QByteArray() << oldNcat << QString();
        QTest::newRow("traditional only")
            << traditional << QByteArray() << QByteArray() << QString();
        QTest::newRow("none") << QByteArray() << QByteArray() << QByteArray() << QString();
    }

    void takesTheFirstProgramThatCanDoIt()
    {
        QFETCH(QByteArray, nc);
        QFETCH(QByteArray, openbsdNc);
        QFETCH(QByteArray, ncatProgram);
        QFETCH(QString, command);
        const Home home;
        const QString folder = home.profile.places.root + QStringLiteral("/usr/bin/");
        QFile::remove(folder + QStringLiteral("nc"));
        for (const auto &[name, usage] : {std::pair("nc", nc), std::pair("nc.openbsd", openbsdNc),
                                          std::pair("ncat", ncatProgram)}) {
            if (!usage.isEmpty())
                home.file(folder + QLatin1String(name), program(usage), 0755);
        }
        const std::optional<QString> found = socksCommand(home.profile);
        QCOMPARE(found.has_value(), !command.isEmpty());
        if (found)
            QCOMPARE(*found, home.profile.places.root + command);
    }

    void programsThatMisbehaveAreNotTaken_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("hangs") << program(openbsd, "exec sleep 1000");
        QTest::newRow("prints without end") << program(openbsd, "exec cat /dev/zero");
        QTest::newRow("is none") << QByteArray("\x7f"
                                               "ELFnot");
    }

    void programsThatMisbehaveAreNotTaken()
    {
        QFETCH(QByteArray, content);
        const Home home;
        const QString nc = home.profile.places.root + QStringLiteral("/usr/bin/nc");
        QFile::remove(nc);
        home.file(nc, content, 0755);
        QVERIFY(!socksCommand(home.profile));
    }

    void theProgramsAreAskedOnceAndBesideWhatElseHappens()
    {
        const Home home;
        const QString folder = home.profile.places.root + QStringLiteral("/usr/bin/");
        QFile::remove(folder + QStringLiteral("nc"));
        SocksSearch search(home.profile);
        QVERIFY(search.isKnown()); // there is no program to ask
        const QString asked = folder + QStringLiteral("asked"), go = folder + QStringLiteral("go");
        const QByteArray wait = "echo x >>'" + asked.toUtf8() + "'\nwhile [ ! -e '" + go.toUtf8()
            + "' ]; do sleep 0.01; done";
        home.file(folder + QStringLiteral("nc"), program(openbsd, wait), 0755);
        QVERIFY(!search.isKnown());
        const auto first = search.ask();
        const auto second = search.ask();               // shares that run
        QVERIFY(!first.isReady() && !second.isReady()); // and this thread continues
        QTRY_VERIFY(QFile::exists(asked));
        home.file(go, {});
        QTRY_VERIFY(first.isReady() && second.isReady());
        QVERIFY(search.isKnown());
        QVERIFY(search.command()->startsWith(folder + QStringLiteral("nc ")));
        const auto third = search.ask();
        QVERIFY(third.isReady());
        QCOMPARE(home.content(asked), QByteArray("x\n"));

        home.file(folder + QStringLiteral("nc"), program("another one"), 0755); // an update
        QVERIFY(!search.isKnown());
        const auto again = search.ask();
        QTRY_VERIFY(again.isReady());
        QVERIFY(search.isKnown() && !search.command());
    }

    void nobodyWaitsForASearchThatIsGone()
    {
        const Home home;
        const QString nc = home.profile.places.root + QStringLiteral("/usr/bin/nc");
        QFile::remove(nc);
        home.file(nc, program(openbsd, "exec sleep 1000"), 0755);
        auto search = std::make_unique<SocksSearch>(home.profile);
        const auto asking = search->ask();
        QVERIFY(!asking.isReady());
        search.reset();
        QVERIFY(asking.isReady());
    }

    void theDistributionsNetcatCanDoIt()
    {
        const QString nc = QStringLiteral("/bin/nc.openbsd");
        QVERIFY2(QFile::exists(nc), "needs the package netcat-openbsd");
        const Ended usage = run(nc, {QStringLiteral("-h")});
        QVERIFY(isSocksNetcat(usage.output + usage.errors));
        const Home home;
        QVERIFY(socksCommand(home.profile));
    }

    void aMacHasOneAlways()
    {
        PlatformProfile mac = PlatformProfile::macos(Places{});
        QCOMPARE(*socksCommand(mac), QStringLiteral("/usr/bin/nc -X 5 -x 127.0.0.1:9050 %h %p"));
    }

    void namesThePackageOfTheDistribution_data()
    {
        QTest::addColumn<QByteArray>("osRelease");
        QTest::addColumn<QString>("end");
        QTest::newRow("debian") << QByteArray("ID=debian\n") << "sudo apt install netcat-openbsd";
        QTest::newRow("fedora") << QByteArray("ID=fedora\n") << "sudo dnf install nmap-ncat";
        QTest::newRow("arch") << QByteArray("ID=arch\n") << "sudo pacman -S openbsd-netcat";
        QTest::newRow("suse") << QByteArray("ID_LIKE=suse\n")
                              << "sudo zypper install netcat-openbsd";
        QTest::newRow("unknown") << QByteArray("ID=plan9\n") << "with your package manager.";
    }

    void namesThePackageOfTheDistribution()
    {
        QFETCH(QByteArray, osRelease);
        QFETCH(QString, end);
        const Home home;
        home.file(home.profile.places.root + QStringLiteral("/etc/os-release"), osRelease);
        const QString hint
            = socksCommandHint(PlatformProfile::linux(home.profile.places)).english();
        QVERIFY2(hint.endsWith(end), qPrintable(hint));
        QVERIFY(hint.startsWith(QStringLiteral("ssh doesn't go through Tor yet")));
    }
};

VELDMARK_TEST(SocksCommandTest)
#include "SocksCommandTest.moc"
