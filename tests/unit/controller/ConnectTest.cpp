#include "base/TorPassword.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"
#include "system/SignedBundle.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

#include <set>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace veldmark;
using System = Workbench::System;

// The start of a connection and the helper's arguments. BootstrapTest tests Tor's answers,
// ConnectFailureTest the failures.
class ConnectTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void connects_data() { Workbench::bothSystems(); }
    void connects()
    {
        QFETCH(System, system);
        Workbench bench(system);
        TorController &c = bench.controller();
        QStringList details;
        std::vector<ConnectionPhase> phases;
        QObject::connect(&c.statusDetail, &Field::changed,
                         [&] { details << c.statusDetail().english(); });
        QObject::connect(&c.phase, &Field::changed, [&] { phases.push_back(c.phase()); });
        QVERIFY(bench.connect());
        QCOMPARE(details,
                 QStringList({u"Preparing Tor…"_s, u"Waiting for administrator approval…"_s,
                              u"Starting Tor…"_s, u"Done"_s, u"All traffic is locked to Tor"_s}));
        QVERIFY((phases == std::vector{ConnectionPhase::connecting, ConnectionPhase::connected}));
        QVERIFY(c.activeMode() == RoutingMode::strict);
        QVERIFY(!c.activeBridge() && !c.errorMessage() && !c.canCancel());
        QCOMPARE(c.bootstrapProgress(), 1.0);
        QVERIFY(bench.hasMarker());
        // Tor is not run to hash the password
        QCOMPARE(bench.processes.calls.size(), std::size_t(1));
        QCOMPARE(bench.processes.calls.front().executable, bench.profile.promptProgram);
        const QString hash = bench.lastHelperRun(u"connect"_s).value(4);
        QVERIFY(TorPassword::matches(bench.password().toUtf8(), hash));
        QStringList words = {u"connect"_s, u"--tor"_s, bench.profile.torCandidates.constFirst(),
                             u"--hash"_s,  hash,       u"--strict"_s,
                             u"1"_s,       u"--lan"_s, u"1"_s};
        if (!bench.profile.identitiesNote.isEmpty())
            words << u"--separate"_s << u"1"_s; // a Mac's helper can't tell applications apart
        QCOMPARE(bench.lastHelperRun(u"connect"_s), words);
    }

    void proxyModeIsNotCalledLocked()
    {
        Workbench bench;
        bench.controller().strictMode.set(false);
        QVERIFY(bench.connect());
        QVERIFY(bench.controller().activeMode() == RoutingMode::proxy);
        QCOMPARE(bench.controller().statusDetail(),
                 u"Apps that use system proxy settings go through Tor"_s);
    }

    void checksAndMonitorsOnceConnected()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        QCOMPARE(bench.probe.torProbes, 1);
        QCOMPARE(bench.probe.directProbes, 1);
        QCOMPARE(bench.controller().exitIP().value(), u"203.0.113.10"_s);
        // the monitor, and the watch over the rules
        QCOMPARE(bench.clock.sleepers(), std::size_t(2));
        QVERIFY(bench.tick());
        QCOMPARE(bench.commandCount(Workbench::countersCommand), 1);
    }

    void withoutAPasswordWhenThatIsSetUp_data() { Workbench::bothSystems(); }
    void withoutAPasswordWhenThatIsSetUp()
    {
        QFETCH(System, system);
        Workbench bench(system);
        bench.writeFile(bench.profile.installedHelper, "the helper");
        bench.writeFile(bench.profile.sudoersRule);
        QVERIFY(bench.connect());
        QCOMPARE(bench.processes.calls.back().executable, bench.profile.sudo);
        QCOMPARE(bench.processes.calls.back().arguments.mid(0, 3),
                 QStringList({u"-n"_s, bench.profile.installedHelper, u"connect"_s}));
    }

    void helperOptionsFollowTheSettings_data()
    {
        QTest::addColumn<bool>("strict");
        QTest::addColumn<bool>("localNetwork");
        QTest::addColumn<QString>("exit");
        QTest::addColumn<QString>("options");
        QTest::newRow("strict, local")
            << true << true << QString() << u"--strict 1 --lan 1 --separate 1"_s;
        QTest::newRow("strict, not local")
            << true << false << QString() << u"--strict 1 --lan 0 --separate 1"_s;
        QTest::newRow("proxy, local")
            << false << true << QString() << u"--strict 0 --lan 1 --separate 1"_s;
        QTest::newRow("together") << true << true << QString()
                                  << u"--strict 1 --lan 1 --separate 0"_s;
        QTest::newRow("exit") << true << false << u"de"_s
                              << u"--strict 1 --lan 0 --separate 1 --exit de"_s;
    }

    void helperOptionsFollowTheSettings()
    {
        QFETCH(bool, strict);
        QFETCH(bool, localNetwork);
        QFETCH(QString, exit);
        Workbench bench;
        bench.controller().strictMode.set(strict);
        bench.controller().allowLocalNetwork.set(localNetwork);
        bench.controller().exitCountry.set(exit);
        bench.controller().separateApps.set(
            !QByteArray(QTest::currentDataTag()).startsWith("together"));
        QVERIFY(bench.connect());
        QTEST(bench.lastHelperRun(u"connect"_s).mid(5).join(u' '), "options");
    }

    void bridgesComeAfterTheExitCountry()
    {
        Workbench bench;
        const QString line
            = u"obfs4 192.0.2.1:443 0123456789ABCDEF0123456789ABCDEF01234567 cert=abc iat-mode=0"_s;
        bench.transports.builtin.insert(u"obfs4"_s, {line});
        bench.transports.lyrebird = u"/opt/it's \"lyre\\bird\""_s;
        bench.controller().bridgeChoice.set(BridgeChoice::obfs4);
        bench.controller().exitCountry.set(u"ch"_s);
        QVERIFY(bench.connect());
        QCOMPARE(bench.lastHelperRun(u"connect"_s).mid(11),
                 QStringList({u"--exit"_s, u"ch"_s, u"--bridge"_s, line, u"--pt-lyrebird"_s,
                              u"/opt/it's \"lyre\\bird\""_s}));
        QVERIFY(bench.controller().activeBridge() == BridgeChoice::obfs4);
        // searched again
        QCOMPARE(bench.controller().transports().lyrebird, bench.transports.lyrebird);
    }

    void testsTheBridgesFirstWhenAskedTo()
    {
        Workbench bench;
        QStringList details;
        QObject::connect(&bench.controller().statusDetail, &Field::changed,
                         [&] { details << bench.controller().statusDetail().english(); });
        bench.controller().customBridges.set(u"192.0.2.1:443\n192.0.2.2:443"_s);
        bench.controller().bridgeChoice.set(BridgeChoice::custom);
        bench.controller().optimizeSpeed.set(true);
        QVERIFY(bench.connect());
        QVERIFY(details.contains(u"Testing 2 bridges…"_s));
        QVERIFY(details.contains(u"No bridge answered a quick test, trying them all"_s));
        QCOMPARE(bench.lastHelperRun(u"connect"_s).count(u"--bridge"_s), 2);
    }

    void takesTheSettingsAsTheyWereAtTheBeginning()
    {
        Workbench bench;
        TorController &c = bench.controller();
        c.exitCountry.set(u"de"_s);
        bench.hold(u"connect"_s);
        const auto connecting = c.connect();
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        c.exitCountry.set(u"; reboot"_s); // a view may accept any input
        c.strictMode.set(false);
        c.allowLocalNetwork.set(false);
        c.bridgeChoice.set(BridgeChoice::snowflake);
        bench.processes.hold = nullptr;
        bench.processes.release();
        QVERIFY(Workbench::finished(connecting));
        QCOMPARE(bench.lastHelperRun(u"connect"_s).mid(5).join(u' '),
                 u"--strict 1 --lan 1 --separate 1 --exit de"_s);
        QVERIFY(c.activeMode() == RoutingMode::strict);
        QVERIFY(!c.activeBridge());
    }

    void standardPlacesInTheirOrder_data() { Workbench::bothSystems(); }
    void standardPlacesInTheirOrder()
    {
        QFETCH(System, system);
        Workbench bench(system);
        bench.removeTor();
        QVERIFY(!bench.controller().torPath());
        const QStringList places = bench.profile.torCandidates;
        for (auto place = places.crbegin(); place != places.crend(); ++place) {
            bench.writeFile(*place); // not executable: no candidate
            QVERIFY(bench.controller().torPath() != *place);
            bench.writeFile(*place, {}, true);
            QCOMPARE(bench.controller().torPath().value(), *place);
        }
    }

    void customPath_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("name"); // below the folder; empty for none
        QTest::addColumn<QString>("after");
        QTest::addColumn<bool>("used");
        QTest::newRow("as it is") << QString() << u"my tor"_s << QString() << true;
        QTest::newRow("trimmed") << u" \t"_s << u"my tor"_s << u" \r\n"_s << true;
        QTest::newRow("blanks only") << u"  \n"_s << QString() << QString() << false;
        QTest::newRow("not executable") << QString() << u"text"_s << QString() << false;
        QTest::newRow("a folder") << QString() << u"home"_s << QString() << false;
        QTest::newRow("missing") << QString() << u"nothing"_s << QString() << false;
    }

    void customPath()
    {
        QFETCH(QString, before);
        QFETCH(QString, name);
        QFETCH(QString, after);
        QFETCH(bool, used);
        Workbench bench;
        bench.writeFile(bench.folder.filePath(u"my tor"_s), {}, true);
        bench.writeFile(bench.folder.filePath(u"text"_s));
        const QString path = name.isEmpty() ? QString() : bench.folder.filePath(name);
        bench.controller().customTorPath.set(before + path + after);
        QCOMPARE(bench.controller().torPath().value(),
                 used ? path : bench.profile.torCandidates.constFirst());
    }

    void everyPasswordIsNewAndStaysHere()
    {
        Workbench bench;
        std::set<QString> passwords;
        for (int session = 0; session < 3; ++session) {
            QVERIFY(bench.connect());
            passwords.insert(bench.password());
            bench.disconnect();
        }
        QCOMPARE(passwords.size(), std::size_t(3));
        for (const QString &password : passwords) {
            QVERIFY(QRegularExpression(u"^[0-9a-f]{64}$"_s).match(password).hasMatch());
            for (const QStringList &run : bench.helperRuns())
                QVERIFY(!run.join(u' ').contains(password));
        }
    }

    // The passwordless rule allows only the same session again.
    void aStrictSessionThatIsBegunAgainIsTheSame()
    {
        Workbench bench;
        const auto endTor = [&bench] {
            bench.tor.stopListening();
            for (int failure = 0; failure < 3; ++failure)
                QVERIFY(bench.tick());
            QVERIFY(bench.controller().phase() == ConnectionPhase::stale);
            bench.tor.listen();
        };
        QVERIFY(bench.connect());
        const QStringList words = bench.lastHelperRun(u"connect"_s);
        endTor();
        QVERIFY(bench.connect());
        QCOMPARE(bench.helperRunCount(u"connect"_s), 2);
        QCOMPARE(bench.lastHelperRun(u"connect"_s), words);
        endTor();
        bench.controller().allowLocalNetwork.set(false);
        QVERIFY(bench.connect()); // the dialog of this verb says what it does
        QCOMPARE(bench.helperRunCount(u"connect"_s), 2);
        QCOMPARE(bench.lastHelperRun(u"replace"_s).mid(5).join(u' '),
                 u"--strict 1 --lan 0 --separate 1"_s);
        bench.disconnect();
        QVERIFY(bench.connect());
        QVERIFY(bench.lastHelperRun(u"connect"_s).at(4) != words.at(4));
    }

    void programsOfTheUsersAreApprovedByNameFirst()
    {
        Workbench bench;
        bench.missingApprovals = [](const QStringList &words) {
            return std::vector<ProgramApproval>{{words.at(2), u"tor"_s, u"abcd"_s}};
        };
        const QString tor = bench.profile.torCandidates.constFirst();
        bench.cancelPrompt(u"approve"_s);
        QVERIFY(!bench.connect());
        QCOMPARE(bench.helperRunCount(u"connect"_s), 0);
        QVERIFY(bench.controller().phase() == ConnectionPhase::disconnected
                && !bench.controller().errorMessage());
        bench.failHelper(u"approve"_s, u"No."_s);
        QVERIFY(!bench.connect());
        QCOMPARE(bench.controller().errorMessage().value(), u"No."_s);
        QCOMPARE(bench.helperRunCount(u"connect"_s), 0);
        bench.letHelperWork();
        QVERIFY(bench.connect());
        QCOMPARE(bench.lastHelperRun(u"approve"_s),
                 QStringList({u"approve"_s, u"--program"_s, tor, u"--as"_s, u"tor"_s, u"--sha256"_s,
                              u"abcd"_s}));
        QCOMPARE(bench.helperRuns().back().constFirst(), u"connect"_s);
    }

    void aCopyThatRootDoesNotRunAnyMoreIsApprovedByName()
    {
        Workbench bench;
        const QString tor = bench.profile.torCandidates.constFirst();
        bool isApproved = false;
        const auto answer = bench.processes.answer;
        bench.processes.answer =
            [answer,
             &isApproved](const ScriptedRunner::Call &call) -> Result<ProcessResult, StartError> {
            isApproved = isApproved || call.arguments.contains(u"approve"_s);
            if (!isApproved)
                return ProcessResult{
                    4, {}, u"ERROR: An administrator password is needed to approve it.\n"_s};
            return answer(call);
        };
        QVERIFY(!bench.connect()); // nothing to approve, so the helper's message is shown
        QVERIFY(bench.controller().errorMessage()->english().contains(u"approve it"_s));
        bench.namedPrograms = [](const QStringList &words) {
            return std::vector<ProgramApproval>{{words.at(2), u"tor"_s, u"abcd"_s}};
        };
        QVERIFY(bench.connect());
        QCOMPARE(bench.lastHelperRun(u"approve"_s),
                 QStringList({u"approve"_s, u"--program"_s, tor, u"--as"_s, u"tor"_s, u"--sha256"_s,
                              u"abcd"_s}));
        QCOMPARE(bench.helperRunCount(u"replace"_s), 0); // no strict session is lessened
        bench.disconnect();
        bench.cancelPrompt(u"approve"_s);
        isApproved = false;
        QVERIFY(!bench.connect());
        QVERIFY(!bench.controller().errorMessage()); // the user's own choice
    }

    // The dialogs have already said all that there is to approve.
    void aSessionThatStaysRefusedIsNoMatterOfPrograms()
    {
        Workbench bench;
        bench.namedPrograms = [](const QStringList &words) {
            return std::vector<ProgramApproval>{{words.at(2), u"tor"_s, u"abcd"_s}};
        };
        bench.processes.answer =
            [](const ScriptedRunner::Call &) -> Result<ProcessResult, StartError> {
            return ProcessResult{3, {}, u"ERROR: An administrator password is needed.\n"_s};
        };
        QVERIFY(!bench.connect());
        QCOMPARE(bench.helperRunCount(u"replace"_s), 1);
        QCOMPARE(bench.helperRunCount(u"approve"_s), 0);
        QCOMPARE(bench.controller().errorMessage().value(),
                 u"An administrator password is needed."_s);
    }

    void aRefusalIsNotAskedForWithoutEnd()
    {
        Workbench bench;
        bench.namedPrograms = [](const QStringList &words) {
            return std::vector<ProgramApproval>{{words.at(2), u"tor"_s, u"abcd"_s}};
        };
        const auto answer = bench.processes.answer;
        bench.processes.answer =
            [answer](const ScriptedRunner::Call &call) -> Result<ProcessResult, StartError> {
            if (!call.arguments.contains(u"approve"_s))
                return ProcessResult{4, {}, u"ERROR: An administrator password is needed.\n"_s};
            return answer(call);
        };
        QVERIFY(!bench.connect());
        QCOMPARE(bench.helperRunCount(u"approve"_s), 1);
        QVERIFY(bench.controller().errorMessage());
    }

    void transportsOfASignedBundleAreRootsToVerify()
    {
        Workbench bench;
        const QString archive = SignedBundle::archiveBelow(bench.profile.bundleDirectory);
        const QString lyrebird = bench.profile.bundleDirectory
            + u"/tor/pluggable_transports/lyrebird"_s;
        bench.writeFile(bench.profile.places.root + u"/usr/bin/gpgv"_s, "x", true);
        for (const QString &path :
             {archive, SignedBundle::signatureOf(archive), SignedBundle::keyOf(archive), lyrebird})
            bench.writeFile(path, "x");
        bench.missingApprovals = [lyrebird](const QStringList &) {
            return std::vector<ProgramApproval>{
                {QFileInfo(lyrebird).canonicalFilePath(), u"lyrebird"_s, u"abcd"_s}};
        };
        QVERIFY(bench.connect());
        QCOMPARE(bench.helperRunCount(u"approve"_s), 0);
        QCOMPARE(
            bench.lastHelperRun(u"connect"_s).mid(bench.lastHelperRun(u"connect"_s).size() - 2),
            QStringList({u"--bundle"_s, archive}));
        bench.disconnect();

        // Root does not accept the bundle, so an administrator has to approve the program.
        const auto answer = bench.processes.answer;
        bench.processes.answer =
            [answer](const ScriptedRunner::Call &call) -> Result<ProcessResult, StartError> {
            if (call.arguments.contains(u"--bundle"_s))
                return ProcessResult{
                    4, {}, u"ERROR: An administrator password is needed to approve it.\n"_s};
            return answer(call);
        };
        QVERIFY(bench.connect());
        QCOMPARE(bench.helperRunCount(u"approve"_s), 1);
        QVERIFY(!bench.lastHelperRun(u"connect"_s).contains(u"--bundle"_s));
        QCOMPARE(bench.helperRuns().back().constFirst(), u"connect"_s);
        QCOMPARE(bench.helperRunCount(u"replace"_s), 0); // no strict session is weakened
        bench.disconnect();

        bench.cancelPrompt(u"approve"_s);
        QVERIFY(!bench.connect());
        QVERIFY(bench.controller().phase() == ConnectionPhase::disconnected
                && !bench.controller().errorMessage());

        // A helper of an earlier version, which runs without a password, does not know the option.
        bench.letHelperWork();
        bench.processes.answer = answer;
        bench.writeFile(bench.profile.installedHelper, "an earlier one");
        bench.writeFile(bench.profile.sudoersRule, "rule");
        QVERIFY(bench.connect());
        QVERIFY(!bench.lastHelperRun(u"connect"_s).contains(u"--bundle"_s));
    }

    void aSecondConnectIsIgnored()
    {
        Workbench bench;
        TorController &c = bench.controller();
        bench.hold(u"connect"_s);
        const auto connecting = c.connect();
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        const auto second = c.connect();
        QVERIFY(second.isReady());
        bench.processes.hold = nullptr;
        bench.processes.release();
        QVERIFY(Workbench::finished(connecting));
        QVERIFY(c.phase() == ConnectionPhase::connected);
        const auto third = c.connect();
        QVERIFY(third.isReady());
        QCOMPARE(bench.helperRunCount(u"connect"_s), 1);
        bench.hold(u"disconnect"_s);
        const auto disconnecting = c.disconnect();
        const auto fourth = c.connect();
        QVERIFY(fourth.isReady() && c.phase() == ConnectionPhase::disconnecting);
        bench.processes.hold = nullptr;
        bench.processes.release();
        QVERIFY(Workbench::finished(disconnecting));
        QCOMPARE(bench.helperRunCount(u"connect"_s), 1);
    }

    void anObserverOfThePhaseMayDisconnectAtOnce()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QObject::connect(&c.phase, &Field::changed, [&c] {
            if (c.phase() == ConnectionPhase::connected)
                c.disconnect();
        });
        const auto connecting = c.connect();
        QVERIFY(Workbench::finished(connecting));
        QVERIFY(until([&] { return c.phase() == ConnectionPhase::disconnected; }));
        QVERIFY(!bench.hasMarker());
        QCOMPARE(bench.probe.torProbes, 0);
        bench.clock.advance(std::chrono::seconds(2));
        QCOMPARE(bench.clock.sleepers(), std::size_t(0)); // nothing is monitored
    }

    void startsWithNothingOfTheSessionBefore()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        QVERIFY(bench.tick());
        QCOMPARE(c.bytesRead(), quint64(1000));
        bench.tor.stopListening();
        for (int failure = 0; failure < 3; ++failure)
            QVERIFY(bench.tick());
        QVERIFY(c.phase() == ConnectionPhase::stale);
        QVERIFY(c.exitIP() && c.torVerified() && c.latencyMs() && c.errorMessage());
        bench.tor.listen();
        bench.hold(u"connect"_s);
        const auto connecting = c.connect();
        QVERIFY(c.phase() == ConnectionPhase::connecting);
        QVERIFY(!c.exitIP() && !c.torVerified() && !c.latencyMs() && !c.errorMessage());
        QVERIFY(c.leakStatus() == LeakStatus::notTested() && c.dnsStatus() == DNSStatus::unknown());
        QVERIFY(c.bytesRead() == 0 && c.bytesWritten() == 0);
        QCOMPARE(c.bootstrapProgress(), 0.0);
        bench.processes.hold = nullptr;
        bench.processes.release();
        QVERIFY(Workbench::finished(connecting));
        QVERIFY(c.phase() == ConnectionPhase::connected);
    }
};

VELDMARK_TEST(ConnectTest)
#include "ConnectTest.moc"
