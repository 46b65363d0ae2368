#include "cli/Commands.h"

#include "cli/ConnectLines.h"
#include "instance/InstancePlace.h"
#include "instance/InstanceServer.h"
#include "support/Computer.h"
#include "support/OtherSession.h"
#include "support/Output.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QJsonArray>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <optional>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace veldmark;
using Id = Verb::Id;

namespace {

QCoro::Task<void> take(Invocation invocation, PlatformProfile profile,
                       std::shared_ptr<std::optional<ExitStatus>> ended)
{
    const ExitStatus status = co_await execute(invocation, profile);
    *ended = status;
}

// The exit status of a whole command; empty when it does not end.
std::optional<ExitStatus> outcome(Id verb, const PlatformProfile &profile, const QString &key = {},
                                  const QString &value = {})
{
    Invocation invocation;
    invocation.verb = verb;
    invocation.key = key;
    invocation.value = value;
    const auto ended = std::make_shared<std::optional<ExitStatus>>();
    take(invocation, profile, ended);
    until([&ended] { return ended->has_value(); });
    return *ended;
}

QCoro::Task<TransportDownloader::Outcome> unverified()
{
    co_return InstalledBundle{u"14.0.4"_s, false};
}

} // namespace

// Whole commands with the real processes that they start.
class CommandsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void restoresWithoutAnInstance()
    {
        Computer computer;
        computer.writeMarker();
        QVERIFY(outcome(Id::restore, computer.profile) == ExitStatus::done);
        QVERIFY(!computer.hasMarker());
        QCOMPARE(computer.verbs(), QStringList{u"disconnect"_s});
        // nothing to do is no error
        QVERIFY(outcome(Id::restore, computer.profile) == ExitStatus::done);
        QCOMPARE(computer.verbs().size(), 1);
    }

    void aRestoreThatFailsIsToldEachTime()
    {
        Computer computer;
        computer.writeMarker();
        computer.fail("disconnect", "Could not.");
        for (int time = 1; time <= 2; ++time) {
            QVERIFY(outcome(Id::restore, computer.profile) == ExitStatus::failed);
            QCOMPARE(computer.verbs().size(), time);
        }
        QVERIFY(computer.hasMarker());
    }

    void restoresNothingWhileAnInstanceIsAboutToStart_data()
    {
        QTest::addColumn<bool>("elsewhere");
        QTest::newRow("in its usual place") << false;
        QTest::newRow("in the other place") << true;
    }

    void restoresNothingWhileAnInstanceIsAboutToStart()
    {
        QFETCH(bool, elsewhere);
        Computer computer;
        computer.writeMarker();
        PlatformProfile its = computer.profile;
        if (elsewhere)
            its.controlSocket = std::exchange(its.otherControlSockets, {}).constFirst();
        auto lock = lockInstance(its); // it holds its lock and does not listen yet
        QVERIFY(lock);
        QVERIFY(outcome(Id::restore, computer.profile) == ExitStatus::alreadyRunning);
        QVERIFY(computer.hasMarker());
        QVERIFY(computer.verbs().isEmpty());
        lock->reset();
        QVERIFY(outcome(Id::restore, computer.profile) == ExitStatus::done);
        QVERIFY(!computer.hasMarker());
    }

    void restoresThroughARunningInstance()
    {
        Workbench bench;
        auto server = InstanceServer::start(bench.controller());
        QVERIFY(server);
        bench.writeMarker("strict\n"); // another program's session; this instance is idle
        QVERIFY(outcome(Id::restore, bench.profile) == ExitStatus::done);
        QVERIFY(!bench.hasMarker());
        QCOMPARE(bench.helperRunCount(u"disconnect"_s), 1);
        bench.writeMarker("strict\n");
        bench.failHelper(u"disconnect"_s, u"Could not."_s);
        QVERIFY(outcome(Id::restore, bench.profile) == ExitStatus::failed);
        QVERIFY(bench.hasMarker());
        server->reset();
        settle();
    }

    void rootOpensAnApplicationWithoutAnInstance()
    {
        Computer computer;
        const QString app = computer.folder.filePath(u"app.desktop"_s);
        Computer::write(app, "[Desktop Entry]\nType=Application\nName=A\nExec=true\n");
        const bool isRoot = geteuid() == 0;
        QVERIFY(outcome(Id::launch, computer.profile, app)
                == (isRoot ? ExitStatus::done : ExitStatus::notRunning));
        QCOMPARE(computer.verbs(), isRoot ? QStringList{u"launch"_s} : QStringList());
        if (!isRoot)
            return;
        computer.fail("launch", "The kill switch is not on.");
        QVERIFY(outcome(Id::launch, computer.profile, app) == ExitStatus::failed);
    }

    // A running instance reports it each time. Without one, the command that finds it does.
    void aDamagedSettingsFileIsToldByTheStatus()
    {
        Computer computer;
        Computer::write(computer.profile.settingsFile, QByteArray("\0\xff=", 3));
        const auto said = [](const PlatformProfile &profile) {
            const Output output;
            static_cast<void>(outcome(Id::status, profile));
            return output.text();
        };
        const QString told
            = u"\n  Settings    The settings file couldn't be read. It was kept as "_s;
        QCOMPARE(said(computer.profile).count(told), 1);
        QCOMPARE(said(computer.profile).count(told), 0);

        Workbench bench;
        bench.writeFile(bench.profile.settingsFile, QByteArray("\0\xff=", 3));
        bench.restart();
        auto server = InstanceServer::start(bench.controller());
        QVERIFY(server);
        for (int time = 1; time <= 2; ++time)
            QCOMPARE(said(bench.profile).count(told), 1);
        bench.controller().dismissSettingsProblem(); // as in a window
        QCOMPARE(said(bench.profile).count(told), 0);
        server->reset();
        settle();
    }

    void aDamagedSettingsFileIsToldOnceByTheOtherCommands()
    {
        for (const Id verb : {Id::get, Id::set, Id::restore}) {
            Computer computer;
            Computer::write(computer.profile.settingsFile, QByteArray("\0\xff=", 3));
            const auto said = [&] {
                const Output errors(stderr);
                static_cast<void>(outcome(verb, computer.profile, u"autoConnect"_s, u"true"_s));
                return errors.text();
            };
            QVERIFY(said().startsWith(u"veldmarkctl: The settings file couldn't be read."_s));
            QCOMPARE(said(), QString());
        }
    }

    void whatSshLacksForTerminalModeIsTold_data()
    {
        QTest::addColumn<bool>("running");
        QTest::newRow("without an instance") << false;
        QTest::newRow("through a running one") << true;
    }

    void whatSshLacksForTerminalModeIsTold()
    {
        QFETCH(bool, running);
        Workbench bench; // without a netcat
        Result<std::unique_ptr<InstanceServer>, Text> server;
        if (running) {
            server = InstanceServer::start(bench.controller());
            QVERIFY(server);
        }
        const auto said = [&bench](Id verb, const QString &value = {}) {
            const Output output;
            const auto ended = outcome(verb, bench.profile, u"terminalMode"_s, value);
            return ended == ExitStatus::done ? output.text() : u"it failed"_s;
        };
        const QString hint
            = u"ssh doesn't go through Tor yet: it needs a netcat that speaks SOCKS."_s;
        const QString row = u"\n  Terminal    "_s + hint;
        QVERIFY(!said(Id::status).contains(hint));
        QVERIFY(said(Id::set, u"true"_s).startsWith(hint));
        const QString status = said(Id::status);
        QVERIFY2(status.contains(row), qPrintable(status));
        QCOMPARE(said(Id::set, u"false"_s), QString());
        QVERIFY(!said(Id::status).contains(hint));
        bench.writeFile(bench.profile.netcatCandidates.constFirst(),
                        "#!/bin/sh\necho '[-X proxy_protocol] [-x proxy_address[:port]]'\n", true);
        QCOMPARE(said(Id::set, u"true"_s), QString());
        QVERIFY(!said(Id::status).contains(u"Terminal"_s));
        if (running)
            server->reset();
        settle();
    }

    // Who waits for it is who needs the bridges.
    void aConnectSaysWhatIsTriedAndOffered()
    {
        Workbench bench;
        TorController &c = bench.controller();
        c.customBridges.set(u"192.0.2.1:443"_s);
        c.climb.set(Climb::ask);
        bench.tor.reply("SETCONF UseBridges=1 Bridge=\"192.0.2.1:443\"", "250 OK\r\n");
        bench.setBootstrap("PROGRESS=5 TAG=conn SUMMARY=\"Connecting\"");
        auto server = InstanceServer::start(c);
        QVERIFY(server);
        Invocation invocation;
        invocation.verb = Id::connect;
        const auto ended = std::make_shared<std::optional<ExitStatus>>();
        QString said;
        {
            const Output output;
            const auto passesUntil = [&](const std::function<bool()> &condition) {
                for (int second = 0; second < 60 && !condition(); ++second) {
                    const int before = bench.commandCount(Workbench::bootstrapCommand);
                    bench.clock.advance(std::chrono::seconds(1));
                    static_cast<void>(until([&] {
                        return bench.commandCount(Workbench::bootstrapCommand) > before
                            && bench.clock.sleepers() == 2;
                    }));
                    settle();
                }
            };
            take(invocation, bench.profile, ended);
            static_cast<void>(until([&] { return bench.clock.sleepers() == 2; }));
            passesUntil([&c] { return c.climbOffer().has_value(); });
            static_cast<void>(c.takeOffer());
            passesUntil([&c] { return c.ladder().size() == 2; });
            static_cast<void>(
                until([&output] { return output.text().contains(u"Being tried…"_s); }));
            bench.setBootstrap("PROGRESS=100 TAG=done SUMMARY=\"Done\"");
            bench.clock.advance(std::chrono::seconds(1));
            static_cast<void>(until([&ended] { return ended->has_value(); }));
            said = output.text();
        }
        QVERIFY(*ended == ExitStatus::done);
        const QString offer
            = u"\nTor cannot connect in this network. Veldmark can try bridges: Your bridges. "
              "Try them with: veldmarkctl climb\n"_s;
        QVERIFY2(said.count(offer) == 1, qPrintable(said));
        const qsizetype direct = said.indexOf(u"\nDirect: No answer. ("_s);
        QVERIFY2(direct > said.indexOf(offer), qPrintable(said));
        QCOMPARE(said.count(u"Direct: No answer. ("_s), 1); // it is no part of the final report
        QCOMPARE(said.count(u"\nYour bridges: Being tried…\n"_s), 1);
        QVERIFY(said.contains(u"\n  Bridges     custom"_s));
        server->reset();
        settle();
    }

    // Its attempt is over.
    void aConnectThatDoesNotBeginSaysNothingOfAnEarlierOne()
    {
        ConnectLines lines;
        QJsonObject state{
            {u"phase"_s, u"stale"_s},
            {u"ladder"_s,
             QJsonArray{QJsonObject{
                 {u"rung"_s, u"direct"_s}, {u"result"_s, u"No answer."_s}, {u"seconds"_s, 15}}}}};
        const auto said = [&lines](const QJsonObject &shown) {
            const Output output;
            lines.show(shown);
            return output.text();
        };
        QCOMPARE(said(state), QString());
        static_cast<void>(said({{u"phase"_s, u"connecting"_s}}));
        QCOMPARE(said(state), u"Direct: No answer. (15 s)\n"_s); // this attempt has failed
        QCOMPARE(said(state), QString());
    }

    void aDownloadThroughARunningInstanceEndsWithItsOutcome()
    {
        Workbench bench;
        auto server = InstanceServer::start(bench.controller());
        QVERIFY(server);
        bench.writeFile(bench.profile.bundleDirectory + u"/VERSION"_s, "14.0.4\n");
        const auto said = [&bench] {
            const Output output;
            const auto ended = outcome(Id::downloadTransports, bench.profile);
            return ended == ExitStatus::done ? output.text() : u"it failed"_s;
        };
        const QString verified = said();
        QVERIFY2(verified.endsWith(u"Installed Tor Expert Bundle 14.0.4, signature verified.\n"_s),
                 qPrintable(verified));
        bench.installTransports = [](bool, TransportDownloader::Progress) { return unverified(); };
        const QString text = said();
        QVERIFY2(!text.contains(u"signature verified"_s), qPrintable(text));
        QCOMPARE(text.count(u"Bridge programs 14.0.4 installed over HTTPS."_s), 1);
        server->reset();
        settle();
    }

    void bridgesThatCannotBeUsedAreNamedWhereTheyAreTyped_data()
    {
        QTest::addColumn<bool>("running");
        QTest::newRow("without an instance") << false;
        QTest::newRow("through a running one") << true;
    }

    void bridgesThatCannotBeUsedAreNamedWhereTheyAreTyped()
    {
        QFETCH(bool, running);
        Workbench bench;
        Result<std::unique_ptr<InstanceServer>, Text> server;
        if (running) {
            server = InstanceServer::start(bench.controller());
            QVERIFY(server);
        }
        const auto said = [&bench](const QString &lines) {
            const Output errors(stderr);
            const auto ended = outcome(Id::set, bench.profile, u"customBridges"_s, lines);
            return ended == ExitStatus::done ? errors.text() : u"it failed"_s;
        };
        QCOMPARE(said(u"192.0.2.1:443\n192.0.2.2:443"_s), QString());
        QCOMPARE(said(u"192.0.2.1:443\nexample.org:443"_s),
                 u"veldmarkctl: line 2 is not a bridge line: example.org:443\n"_s);
        QString many;
        for (int i = 1; i <= 102; ++i)
            many += u"192.0.2.1:%1\n"_s.arg(i);
        QCOMPARE(said(many),
                 u"veldmarkctl: 2 too many, from line 101 on; at most 100 can be used\n"_s);
        if (running)
            server->reset();
        settle();
    }

    void addsTheBridgesOfAText_data() { bridgesThatCannotBeUsedAreNamedWhereTheyAreTyped_data(); }

    void addsTheBridgesOfAText()
    {
        QFETCH(bool, running);
        Workbench bench;
        bench.controller().customBridges.set(u"# mine\n192.0.2.1:443"_s);
        Result<std::unique_ptr<InstanceServer>, Text> server;
        if (running) {
            server = InstanceServer::start(bench.controller());
            QVERIFY(server);
        }
        QTemporaryDir folder;
        const QString mail = folder.filePath(u"mail"_s);
        const auto said = [&](const QByteArray &text, ExitStatus expected) {
            Computer::write(mail, text);
            const Output output;
            const Output errors(stderr);
            const auto ended = outcome(Id::addBridges, bench.profile, mail);
            return ended == expected ? output.text() + errors.text() : u"another status"_s;
        };
        const auto stored = [&bench] {
            return SettingsStore(bench.profile).string(u"customBridges"_s);
        };
        const QString added = u"obfs4 192.0.2.2:443 cert=abc iat-mode=0"_s;
        QCOMPARE(
            said("Hello,\n> obfs4 192.0.2.2:443\n> cert=abc iat-mode=0\n> 192.0.2.1:443\nBye\n",
                 ExitStatus::done),
            u"added: obfs4 192.0.2.2:443\nalready there: 192.0.2.1:443\n"_s);
        QCOMPARE(stored(), u"# mine\n192.0.2.1:443\n"_s + added);
        QCOMPARE(said(added.toUtf8(), ExitStatus::done), u"already there: obfs4 192.0.2.2:443\n"_s);
        QCOMPARE(said("Hello\n", ExitStatus::failed),
                 u"veldmarkctl: There is no bridge in %1.\n"_s.arg(mail));
        QByteArray many;
        for (int i = 1; i <= 99; ++i)
            many += "192.0.2.3:" + QByteArray::number(i) + "\n";
        QCOMPARE(
            said(many, ExitStatus::failed),
            u"veldmarkctl: At most 100 custom bridges can be used. Remove some under Bridges → "
            "Custom….\n"_s);
        QCOMPARE(stored(), u"# mine\n192.0.2.1:443\n"_s + added);
        const Output errors(stderr);
        QVERIFY(outcome(Id::addBridges, bench.profile, folder.filePath(u"none"_s))
                == ExitStatus::failed);
        QVERIFY2(errors.text().contains(u"/none can't be read: "_s), qPrintable(errors.text()));
        if (running)
            server->reset();
        settle();
    }

    // The instance has bridges that it could not save.
    void addsBridgesToThoseOfTheRunningInstance()
    {
        Workbench bench;
        bench.writeFile(bench.folder.filePath(u"blocked"_s));
        bench.profile.settingsFile = bench.folder.filePath(u"blocked/veldmark.conf"_s);
        bench.restart();
        static_cast<void>(bench.controller().customBridges.set(u"192.0.2.9:443"_s));
        QVERIFY(SettingsStore(bench.profile).string(u"customBridges"_s).isEmpty());
        auto server = InstanceServer::start(bench.controller());
        QVERIFY(server);
        const QString mail = bench.folder.filePath(u"mail"_s);
        Computer::write(mail, "192.0.2.1:443\n");
        // that it cannot save them was told before
        QVERIFY(outcome(Id::addBridges, bench.profile, mail) == ExitStatus::done);
        QCOMPARE(bench.controller().customBridges(), u"192.0.2.9:443\n192.0.2.1:443"_s);
        server->reset();
        settle();
    }
};

VELDMARK_TEST(CommandsTest)
#include "CommandsTest.moc"
