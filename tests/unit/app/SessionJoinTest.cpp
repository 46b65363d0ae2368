#include "app/ControllerSession.h"
#include "controller/PublishedState.h"
#include "support/OtherSession.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"
#include "ui/PanelModel.h"

#include <QTest>

#include <functional>
#include <map>
#include <set>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace veldmark;

// What the windows show is what the controller has, and what they ask for reaches it: each choice,
// each intent and each part of the snapshot.
class SessionJoinTest : public QObject {
    Q_OBJECT

    struct ChoiceRow {
        const char *setting; // its name
        std::function<void(Choices &)> change;
    };

    // A part of the snapshot and the controller's value for it.
    struct Part {
        const char *name;
        std::function<bool(const Snapshot &, const TorController &)> agrees;
        std::function<bool(const Snapshot &)> isChanged; // it is not what a new snapshot has
    };

    template <typename T, typename Value>
    static Part part(const char *name, T Snapshot::*member, Value value)
    {
        return {name,
                [member, value](const Snapshot &shown, const TorController &c) {
                    return shown.*member == value(c);
                },
                [member](const Snapshot &shown) { return !(shown.*member == Snapshot().*member); }};
    }
    // A field that counts in each phase, or only while connected.
    template <typename T, typename F>
    static Part field(const char *name, T Snapshot::*member, F TorController::*value)
    {
        return part(name, member,
                    [value](const TorController &c) { return (c.*value).in(c.phase()); });
    }

    static std::vector<Part> parts()
    {
        using C = TorController;
        return {
            field("phase", &Snapshot::phase, &C::phase),
            field("activeMode", &Snapshot::activeMode, &C::activeMode),
            field("activeBridge", &Snapshot::activeBridge, &C::activeBridge),
            field("bootstrapProgress", &Snapshot::bootstrapProgress, &C::bootstrapProgress),
            field("statusDetail", &Snapshot::statusDetail, &C::statusDetail),
            part("bootstrapProblem", &Snapshot::bootstrapProblem,
                 [](const C &c) {
                     return c.phase() == ConnectionPhase::connecting ? c.bootstrapProblem()
                                                                     : c.problemBehindError();
                 }),
            field("ladder", &Snapshot::ladder, &C::ladder),
            field("climbOffer", &Snapshot::climbOffer, &C::climbOffer),
            part("isAnothers", &Snapshot::isAnothers,
                 [](const C &c) { return c.otherSession().has_value(); }),
            part("hasTorStopped", &Snapshot::hasTorStopped,
                 [](const C &c) { return c.hasTorStopped(); }),
            field("canCancel", &Snapshot::canCancel, &C::canCancel),
            field("errorMessage", &Snapshot::errorMessage, &C::errorMessage),
            field("bytesRead", &Snapshot::bytesRead, &C::bytesRead),
            field("bytesWritten", &Snapshot::bytesWritten, &C::bytesWritten),
            field("killSwitch", &Snapshot::killSwitch, &C::killSwitch),
            field("exitIP", &Snapshot::exitIP, &C::exitIP),
            field("torVerified", &Snapshot::torVerified, &C::torVerified),
            field("stall", &Snapshot::stall, &C::stall),
            field("firewalls", &Snapshot::firewalls, &C::denyingFirewalls),
            field("leak", &Snapshot::leak, &C::leakStatus),
            field("dns", &Snapshot::dns, &C::dnsStatus),
            field("isChecking", &Snapshot::isChecking, &C::isChecking),
            field("separated", &Snapshot::separated, &C::separated),
            field("latencyMs", &Snapshot::latencyMs, &C::latencyMs),
            field("optimizeStatus", &Snapshot::optimizeStatus, &C::optimizeStatus),
            field("isOptimizing", &Snapshot::isOptimizing, &C::isOptimizing),
            field("circuits", &Snapshot::circuits, &C::circuits),
            field("circuitError", &Snapshot::circuitError, &C::circuitError),
            field("transports", &Snapshot::transports, &C::transports),
            field("transportDownload", &Snapshot::transportDownload, &C::transportDownload),
            part("canDownloadTransports", &Snapshot::canDownloadTransports,
                 [](const C &c) { return c.canDownloadTransports(); }),
            field("passwordlessInstalled", &Snapshot::passwordlessInstalled,
                  &C::passwordlessInstalled),
            field("startupError", &Snapshot::startupError, &C::startupError),
            part("terminalError", &Snapshot::terminalError,
                 [](const C &c) {
                     return c.terminalError() ? c.terminalError() : c.terminalHint();
                 }),
            part("torPath", &Snapshot::torPath, [](const C &c) { return c.torPath(); }),
            part("markerPresent", &Snapshot::markerPresent,
                 [](const C &c) { return c.isSessionMarkerPresent(); }),
        };
    }

    // Lets a second of the connect pass, with Tor's answer.
    static bool second(Workbench &bench)
    {
        const int before = bench.commandCount(Workbench::bootstrapCommand);
        bench.clock.advance(1s);
        const bool hasPassed = until([&] {
            return bench.commandCount(Workbench::bootstrapCommand) > before
                && bench.clock.sleepers() == 2; // and the watch over the rules
        });
        settle();
        return hasPassed;
    }
    static bool waitsFor(Workbench &bench, const std::function<bool()> &condition)
    {
        for (int seconds = 0; seconds < 60 && !condition(); ++seconds) {
            if (!second(bench))
                return false;
        }
        return condition();
    }
    // A computer with one bridge, in a network in which Tor cannot connect.
    static void block(Workbench &bench)
    {
        bench.controller().customBridges.set(u"192.0.2.1:443"_s);
        bench.controller().climb.set(Climb::ask);
        bench.tor.reply("SETCONF UseBridges=1 Bridge=\"192.0.2.1:443\"", "250 OK\r\n");
        bench.setBootstrap("PROGRESS=5 TAG=conn SUMMARY=\"Connecting\" "
                           "WARNING=\"Connection refused\" REASON=CONNECTREFUSED");
    }
    static void provideCircuit(Workbench &bench)
    {
        bench.tor.reply(
            "GETINFO circuit-status",
            Workbench::block("circuit-status",
                             {"5 BUILT $" + QByteArray(40, 'A') + "~one PURPOSE=GENERAL"}));
        bench.tor.reply("GETINFO stream-status", Workbench::block("stream-status", {}));
    }
    static QCoro::Task<TransportDownloader::Outcome> download(ResumeOnce<bool> gate)
    {
        co_await gate;
        co_return InstalledBundle{u"14.0.4"_s, true};
    }

private Q_SLOTS:
    void eachChoiceIsStoredAndShownAsItself()
    {
        const std::vector<ChoiceRow> rows{
            {"strictMode", [](Choices &c) { c.strictMode = false; }},
            {"allowLocalNetwork", [](Choices &c) { c.allowLocalNetwork = false; }},
            {"exitCountry", [](Choices &c) { c.exitCountry = u"de"_s; }},
            {"customTorPath", [](Choices &c) { c.customTorPath = u"/opt/tor"_s; }},
            {"bridgeChoice", [](Choices &c) { c.bridgeChoice = BridgeChoice::meek; }},
            {"customBridges", [](Choices &c) { c.customBridges = u"192.0.2.1:443"_s; }},
            {"bypassApps", [](Choices &c) { c.bypassApps = QStringList{u"/a.desktop"_s}; }},
            {"autoConnect", [](Choices &c) { c.autoConnect = true; }},
            {"optimizeSpeed", [](Choices &c) { c.optimizeSpeed = true; }},
            {"terminalMode", [](Choices &c) { c.terminalMode = true; }},
            {"separateApps", [](Choices &c) { c.separateApps = false; }},
            {"climb", [](Choices &c) { c.climb = Climb::always; }},
        };
        for (const ChoiceRow &row : rows) {
            Workbench bench;
            TorController &c = bench.controller();
            QCOMPARE(settingNames(c).size(), static_cast<qsizetype>(rows.size()));
            const QJsonObject before = publishedState(c);
            {
                ControllerSession session(c, *bench.settings, bench.applications);
                Choices choices = session.now().choices;
                row.change(choices);
                QVERIFY2(!(choices == session.now().choices), row.setting);
                session.store(choices);
                settle();
                QVERIFY2(session.now().choices == choices, row.setting);
            }
            const QJsonObject after = publishedState(c);
            for (const QString &name : settingNames(c))
                QVERIFY2((after[name] != before[name]) == (name == QLatin1String(row.setting)),
                         row.setting);
            bench.restart(); // it was saved
            QCOMPARE(publishedState(bench.controller()).value(QLatin1String(row.setting)),
                     after[QLatin1String(row.setting)]);
        }
    }

    void eachIntentReachesWhatItIsFor()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        int downloads = 0;
        const auto install = bench.installTransports;
        bench.installTransports = [&downloads, install](bool throughTor,
                                                        TransportDownloader::Progress progress) {
            ++downloads;
            return install(throughTor, std::move(progress));
        };
        using Counts = std::map<QString, int>;
        const auto counts = [&] {
            Counts now{{u"direct"_s, bench.probe.directProbes},
                       {u"through Tor"_s, bench.probe.torProbes},
                       {u"lookup"_s, bench.commandCount("SETEVENTS STREAM")},
                       {u"NEWNYM"_s, bench.commandCount("SIGNAL NEWNYM")},
                       {u"CLOSECIRCUIT"_s, bench.commandCount("CLOSECIRCUIT 5")},
                       {u"search"_s, bench.searches},
                       {u"download"_s, downloads}};
            for (const QString &verb : {u"connect"_s, u"disconnect"_s, u"fix-dns"_s,
                                        u"install-privileged"_s, u"uninstall-privileged"_s})
                now[verb] = bench.helperRunCount(verb);
            return now;
        };
        struct Intent {
            std::function<void()> ask;
            QStringList reached; // each once
        };
        const std::vector<Intent> intents{
            {[&] { session.connectToTor(); },
             {u"connect"_s, u"direct"_s, u"through Tor"_s, u"lookup"_s}},
            {[&] { session.runChecks(); }, {u"direct"_s, u"through Tor"_s, u"lookup"_s}},
            {[&] { session.checkDNS(); }, {u"lookup"_s}},
            {[&] { session.fixDNS(); }, {u"fix-dns"_s, u"lookup"_s}},
            {[&] { session.newIdentity(); }, {u"NEWNYM"_s, u"through Tor"_s}},
            {[&] { session.newCircuit(u"5"_s); }, {u"CLOSECIRCUIT"_s}},
            {[&] { session.optimizeCircuits(); }, {u"through Tor"_s}},
            {[&] { session.lookForTransports(); }, {u"search"_s}},
            {[&] { session.downloadTransports(); }, {u"download"_s, u"search"_s}},
            {[&] { session.installPasswordless(); }, {u"install-privileged"_s}},
            {[&] { session.removePasswordless(); }, {u"uninstall-privileged"_s}},
            {[&] { session.disconnectFromTor(); }, {u"disconnect"_s}},
        };
        for (const Intent &intent : intents) {
            Counts expected = counts();
            for (const QString &name : intent.reached)
                ++expected.at(name);
            intent.ask();
            QVERIFY2(until([&] { return counts() == expected; }),
                     qPrintable(intent.reached.join(u' ')));
            QVERIFY(until([&] {
                return !session.now().isChecking && !session.now().isOptimizing
                    && !isChanging(session.now().phase);
            }));
            settle();
            QVERIFY2(counts() == expected, qPrintable(intent.reached.join(u' ')));
        }
        session.addBypassApp(u"/a.desktop"_s);
        QCOMPARE(bench.controller().bypassApps(), QStringList(u"/a.desktop"_s));
        session.removeBypassApp(u"/a.desktop"_s);
        QCOMPARE(bench.controller().bypassApps(), QStringList());
    }

    void bridgesAreOfferedTakenAndFollowed()
    {
        Workbench bench;
        ControllerSession session(bench.controller(), *bench.settings, bench.applications);
        PanelModel panel(session);
        block(bench);
        const auto connecting = bench.controller().connect();
        QVERIFY(until([&] { return bench.clock.sleepers() == 2; }));
        settle();
        QCOMPARE(panel.offer(), QString());
        QVERIFY(waitsFor(bench, [&] { return !panel.offer().isEmpty(); }));
        QVERIFY2(panel.offer().endsWith(u"Veldmark can try bridges: Your bridges."_s),
                 qPrintable(panel.offer()));
        QCOMPARE(panel.steps(), QStringList());
        panel.takeOffer();
        QVERIFY(waitsFor(bench, [&] { return panel.steps().size() == 2; }));
        QCOMPARE(panel.offer(), QString());
        QVERIFY2(panel.steps().constFirst().startsWith(u"Direct: "_s),
                 qPrintable(panel.steps().constFirst()));
        QCOMPARE(panel.steps().constLast(), u"Your bridges: Being tried…"_s);
        bench.setBootstrap("PROGRESS=100 TAG=done SUMMARY=\"Done\"");
        bench.clock.advance(1s);
        QVERIFY(Workbench::finished(connecting));
        settle();
        QCOMPARE(panel.pillText(), u"Connected through Custom bridges"_s);
        QCOMPARE(panel.steps(), QStringList());
    }

    // One long life, in which each part of the snapshot has something to show.
    void theSnapshotIsWhatTheControllerHas()
    {
        Workbench bench;
        TorController &c = bench.controller();
        ControllerSession session(c, *bench.settings, bench.applications);
        QStringList wrong;
        std::set<QString> changed;
        const std::vector<Part> all = parts();
        const auto look = [&] {
            for (const Part &one : all) {
                if (!one.agrees(session.now(), c))
                    wrong << QLatin1String(one.name);
                if (one.isChanged(session.now()))
                    changed.insert(QLatin1String(one.name));
            }
        };
        QObject::connect(&session, &Session::changed, this, look);

        bench.writeFile(bench.profile.terminalDirectory); // a file where the folder should be
        static_cast<void>(c.setTerminalMode(true));
        settle();
        static_cast<void>(c.setTerminalMode(false));
        session.installPasswordless(); // the helper does not install it
        settle();
        bench.writeFile(bench.profile.installedHelper, "the helper");
        bench.writeFile(bench.profile.sudoersRule);
        session.removePasswordless(); // nor does it remove it
        settle();
        const ResumeOnce<bool> isLoaded;
        bench.installTransports = [isLoaded](bool, TransportDownloader::Progress) {
            return download(isLoaded);
        };
        session.downloadTransports();
        settle();
        bench.transports.lyrebird = u"/opt/lyrebird"_s;
        isLoaded.complete(true);
        settle();

        block(bench);
        provideCircuit(bench);
        DNSResolver leaking;
        leaking.nameservers = {u"192.168.1.1"_s};
        bench.resolvers.answer = {leaking};
        const auto connecting = c.connect();
        QVERIFY(until([&] { return bench.clock.sleepers() == 2; }));
        QVERIFY(waitsFor(bench, [&] { return session.now().climbOffer.has_value(); }));
        session.takeOffer();
        QVERIFY(waitsFor(bench, [&] { return session.now().ladder.size() == 2; }));
        bench.setBootstrap("PROGRESS=100 TAG=done SUMMARY=\"Done\"");
        bench.probe.beforeTorAnswer = [&bench] { return bench.clock.sleep(1s); };
        bench.clock.advance(1s);
        QVERIFY(until([&] { return session.now().isChecking; }));
        bench.clock.advance(1s);
        QVERIFY(Workbench::finished(connecting));
        QVERIFY(until([&] { return session.now().circuits.size() == 1; }));
        session.optimizeCircuits();
        QVERIFY(until([&] { return session.now().isOptimizing; }));
        bench.clock.advance(1s);
        QVERIFY(until([&] { return !session.now().isOptimizing; }));
        bench.probe.beforeTorAnswer = nullptr;
        bench.tor.reply("GETINFO circuit-status", {});
        bench.tor.closeAfter("GETINFO circuit-status");
        session.refreshCircuits();
        QVERIFY(until([&] { return session.now().circuitError.has_value(); }));

        bench.writeFile(bench.profile.othersNote, "ufw\n");
        bench.hasCircuit = false;
        bench.setCounters("1000", "200");
        for (int tick = 0; tick < 7; ++tick)
            QVERIFY(bench.tick());
        QVERIFY(until([&] { return session.now().stall.has_value(); }));
        bench.tor.stopListening();
        bench.tor.disconnectAll();
        for (int tick = 0; tick < 3; ++tick)
            QVERIFY(bench.tick());
        QVERIFY(until([&] { return session.now().phase == ConnectionPhase::stale; }));
        OtherSession other(bench.profile);
        c.lookAtSession();
        QVERIFY(until([&] { return session.now().isAnothers; }));

        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(u' ')));
        for (const Part &one : all)
            QVERIFY2(changed.count(QLatin1String(one.name)) == 1, one.name);
    }
};

VELDMARK_TEST(SessionJoinTest)
#include "SessionJoinTest.moc"
