#include "support/NameLookups.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QCoreApplication>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace veldmark;

namespace {

const QByteArray relay(40, 'A');

// Brings the bench to a point where an operation waits.
using Approach = std::function<bool(Workbench &bench)>;

bool isHeld(Workbench &bench)
{
    return until([&bench] { return bench.processes.held() == 1; });
}

void slowProbe(Workbench &bench)
{
    bench.probe.beforeTorAnswer = [&bench] { return bench.clock.sleep(1s); };
}

bool isAsleep(Workbench &bench, std::size_t sleepers)
{
    return until([&bench, sleepers] { return bench.clock.sleepers() >= sleepers; });
}

QCoro::Task<std::optional<ConnectTime>> slowBridge(ManualClock *clock)
{
    co_await clock->sleep(1s);
    co_return std::nullopt;
}

QCoro::Task<void> after(ResumeOnce<bool> event)
{
    co_await event;
}

QCoro::Task<PluggableTransports> nothingFound()
{
    co_return PluggableTransports{};
}

void showCircuit(Workbench &bench)
{
    bench.tor.reply(
        "GETINFO circuit-status",
        Workbench::block("circuit-status", {"1 BUILT $" + relay + "~one PURPOSE=GENERAL"}));
    bench.tor.reply("GETINFO stream-status", Workbench::block("stream-status", {}));
    bench.tor.reply(
        "GETINFO ns/id/" + relay,
        Workbench::block("ns/id/" + relay, {"r one A B 2026-03-01 10:00:00 192.0.2.2 9001 0"}));
}

struct Place {
    const char *name;
    Approach approach;
};

std::vector<Place> places()
{
    return {
        {"connect, testing bridges",
         [](Workbench &b) {
             b.controller().bridgeChoice.set(BridgeChoice::custom);
             b.controller().customBridges.set(u"192.0.2.1:1\n192.0.2.2:2"_s);
             b.controller().optimizeSpeed.set(true);
             b.bridgeProbe = [&b](QString, quint16, std::chrono::milliseconds) {
                 return slowBridge(&b.clock);
             };
             b.controller().connect();
             return isAsleep(b, 2);
         }},
        {"connect, at the prompt",
         [](Workbench &b) {
             b.hold(u"connect"_s);
             b.controller().connect();
             return isHeld(b);
         }},
        {"connect, asking Tor",
         [](Workbench &b) {
             b.tor.ignore(Workbench::bootstrapCommand);
             b.controller().connect();
             return b.hears(Workbench::bootstrapCommand);
         }},
        {"connect, between two questions",
         [](Workbench &b) {
             b.setBootstrap("PROGRESS=5");
             b.controller().connect();
             return isAsleep(b, 2);
         }},
        {"connect, checking",
         [](Workbench &b) {
             slowProbe(b);
             b.controller().connect();
             return isAsleep(b, 3);
         }},
        {"disconnect",
         [](Workbench &b) {
             if (!b.connect())
                 return false;
             b.hold(u"disconnect"_s);
             b.controller().disconnect();
             return isHeld(b);
         }},
        {"disconnect, to be refused",
         [](Workbench &b) {
             if (!b.connect())
                 return false;
             b.cancelPrompt(u"disconnect"_s);
             b.hold(u"disconnect"_s);
             b.controller().disconnect();
             return isHeld(b);
         }},
        {"runChecks, direct probe",
         [](Workbench &b) {
             if (!b.connect())
                 return false;
             b.probe.beforeDirectAnswer = [&b] { return b.clock.sleep(1s); };
             b.controller().runChecks();
             return isAsleep(b, 3);
         }},
        {"runChecks, live test begins",
         [](Workbench &b) {
             if (!b.connect())
                 return false;
             const int before = b.commandCount("SETEVENTS STREAM");
             b.tor.ignore("SETEVENTS STREAM");
             b.controller().runChecks();
             return b.hears("SETEVENTS STREAM", before + 1);
         }},
        {"checkDNS, listening to Tor",
         [](Workbench &b) {
             if (!b.connect())
                 return false;
             b.tor.reply("SETEVENTS STREAM", "250 OK\r\n");
             NameLookups::clear();
             b.controller().checkDNS(true);
             return until([] { return !NameLookups::hosts().isEmpty(); });
         }},
        {"checkDNS, reading the settings",
         [](Workbench &b) {
             if (!b.connect())
                 return false;
             b.resolvers.beforeAnswer = [&b] { return b.clock.sleep(1s); };
             b.controller().checkDNS(false);
             return isAsleep(b, 3);
         }},
        {"fixDNS",
         [](Workbench &b) {
             if (!b.connect())
                 return false;
             b.hold(u"fix-dns"_s);
             b.controller().fixDNS();
             return isHeld(b);
         }},
        {"refreshCircuits",
         [](Workbench &b) {
             if (!b.connect())
                 return false;
             b.tor.ignore("GETINFO circuit-status");
             b.controller().refreshCircuits();
             return b.hears("GETINFO circuit-status");
         }},
        {"refreshCircuits, asking for relays",
         [](Workbench &b) {
             if (!b.connect())
                 return false;
             showCircuit(b);
             b.tor.ignore("GETINFO ns/id/" + relay);
             b.controller().refreshCircuits();
             return b.hears(("GETINFO ns/id/" + relay).constData());
         }},
        {"refreshCircuits, asking for countries",
         [](Workbench &b) {
             if (!b.connect())
                 return false;
             showCircuit(b);
             b.tor.ignore("GETINFO ip-to-country/192.0.2.2");
             b.controller().refreshCircuits();
             return b.hears("GETINFO ip-to-country/192.0.2.2");
         }},
        {"newIdentity",
         [](Workbench &b) {
             if (!b.connect())
                 return false;
             b.tor.ignore("SIGNAL NEWNYM");
             b.controller().newIdentity();
             return b.hears("SIGNAL NEWNYM");
         }},
        {"newCircuit",
         [](Workbench &b) {
             if (!b.connect())
                 return false;
             b.tor.ignore("CLOSECIRCUIT 1");
             b.controller().newCircuit(u"1"_s);
             return b.hears("CLOSECIRCUIT 1");
         }},
        {"optimizeCircuits, probing",
         [](Workbench &b) {
             if (!b.connect())
                 return false;
             slowProbe(b);
             b.controller().optimizeCircuits();
             return isAsleep(b, 3);
         }},
        {"optimizeCircuits, asking for new paths",
         [](Workbench &b) {
             if (!b.connect())
                 return false;
             b.probe.torAnswer = ScriptedProbe::nothing();
             b.tor.ignore("SIGNAL NEWNYM");
             b.controller().optimizeCircuits();
             return b.hears("SIGNAL NEWNYM");
         }},
        {"optimizeCircuits, in a pause",
         [](Workbench &b) {
             if (!b.connect())
                 return false;
             b.probe.torAnswer = ScriptedProbe::nothing();
             b.controller().optimizeCircuits();
             return isAsleep(b, 3);
         }},
        {"monitor, asleep", [](Workbench &b) { return b.connect(); }},
        {"monitor, asking Tor",
         [](Workbench &b) {
             if (!b.connect())
                 return false;
             b.tor.ignore(Workbench::countersCommand);
             b.clock.advance(2s);
             return b.hears(Workbench::countersCommand);
         }},
        {"monitor, reading the settings",
         [](Workbench &b) {
             if (!b.connect())
                 return false;
             for (int tick = 1; tick < 15; ++tick) {
                 if (!b.tick())
                     return false;
             }
             b.resolvers.beforeAnswer = [&b] { return b.clock.sleep(1s); };
             const int readings = b.resolvers.readings;
             b.clock.advance(2s);
             return until([&b, readings] { return b.resolvers.readings > readings; });
         }},
        {"installPasswordless",
         [](Workbench &b) {
             b.hold(u"install-privileged"_s);
             b.controller().installPasswordless();
             return isHeld(b);
         }},
        {"removePasswordless",
         [](Workbench &b) {
             b.hold(u"uninstall-privileged"_s);
             b.controller().removePasswordless();
             return isHeld(b);
         }},
    };
}

} // namespace

// The controller is destroyed while one of its operations waits. The coroutines that end afterwards
// must not touch it. Most mistakes here are visible only under a sanitizer.
class LifetimeTest : public QObject {
    Q_OBJECT
private:
    static void allPlaces()
    {
        QTest::addColumn<int>("index");
        const auto all = places();
        for (int i = 0; i < static_cast<int>(all.size()); ++i)
            QTest::newRow(all[static_cast<std::size_t>(i)].name) << i;
    }

private Q_SLOTS:
    void nothingIsDoneAfterTheControllersEnd_data() { allPlaces(); }
    void nothingIsDoneAfterTheControllersEnd()
    {
        QFETCH(int, index);
        Workbench bench;
        QVERIFY(places()[static_cast<std::size_t>(index)].approach(bench));
        const auto calls = bench.processes.calls.size();
        const QStringList commands = bench.tor.commands();
        const int probes = bench.probe.torProbes + bench.probe.directProbes;
        const int readings = bench.resolvers.readings;
        bench.end();
        bench.processes.hold = nullptr;
        bench.processes.release();
        settle();
        bench.clock.advance(1h);
        bench.tor.hangUp();
        settle();
        bench.socketClock.advance(1h);
        bench.clock.advance(1h);
        settle();
        QCOMPARE(bench.processes.calls.size(), calls);
        QCOMPARE(bench.tor.commands(), commands);
        QCOMPARE(bench.probe.torProbes + bench.probe.directProbes, probes);
        QCOMPARE(bench.resolvers.readings, readings);
        QCOMPARE(bench.clock.sleepers(), std::size_t(0));
    }

    void nothingHappensWhenItsServicesEndWithIt_data() { allPlaces(); }
    void nothingHappensWhenItsServicesEndWithIt()
    {
        QFETCH(int, index);
        Workbench bench;
        QVERIFY(places()[static_cast<std::size_t>(index)].approach(bench));
        const auto calls = bench.processes.calls.size();
        const QStringList commands = bench.tor.commands();
        bench.end();
        bench.controlPort.reset();
        bench.privileged.reset();
        bench.settings.reset();
        bench.processes.hold = nullptr;
        bench.processes.release();
        bench.clock.advance(1h);
        bench.socketClock.advance(1h);
        settle();
        QCOMPARE(bench.processes.calls.size(), calls);
        QCOMPARE(bench.tor.commands(), commands);
        QCOMPARE(bench.clock.sleepers(), std::size_t(0));
    }

    // An answer may have arrived already, and wait for the event loop, when everything is
    // destroyed.
    void orAtAnyTurnOfTheLoop_data()
    {
        QTest::addColumn<QString>("operation");
        for (const char *name :
             {"connect", "refreshCircuits", "runChecks", "optimizeCircuits", "newCircuit"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void orAtAnyTurnOfTheLoop()
    {
        QFETCH(QString, operation);
        for (int turns = 0; turns < 16; ++turns) {
            Workbench bench;
            TorController &c = bench.controller();
            showCircuit(bench);
            bench.tor.reply("GETINFO ip-to-country/192.0.2.2",
                            "250-ip-to-country/192.0.2.2=de\r\n250 OK\r\n");
            if (operation != u"connect"_s)
                QVERIFY(bench.connect());
            if (operation == u"connect"_s)
                c.connect();
            else if (operation == u"refreshCircuits"_s)
                c.refreshCircuits();
            else if (operation == u"runChecks"_s)
                c.runChecks();
            else if (operation == u"optimizeCircuits"_s)
                c.optimizeCircuits();
            else
                c.newCircuit(u"1"_s);
            for (int turn = 0; turn < turns; ++turn)
                QCoreApplication::processEvents();
            bench.end();
            bench.controlPort.reset();
            bench.privileged.reset();
            bench.settings.reset();
            settle(); // earlier data arrive
            const auto calls = bench.processes.calls.size();
            const QStringList commands = bench.tor.commands();
            bench.clock.advance(1h);
            bench.socketClock.advance(1h);
            settle();
            QCOMPARE(bench.processes.calls.size(), calls);
            QCOMPARE(bench.tor.commands(), commands);
        }
    }

    void theProbesClockMayGoFirst()
    {
        // As in the program: the probe ends its waits with an answer when the clock is destroyed
        // already.
        const ResumeOnce<bool> answer;
        Workbench bench;
        QVERIFY(bench.connect());
        auto clock = std::make_unique<ManualClock>();
        ControlPort port(bench.socketClock, bench.tor.port());
        bench.probe.beforeTorAnswer = [answer] { return after(answer); };
        auto controller = std::make_unique<TorController>(TorController::Services{
            .profile = bench.profile,
            .settings = *bench.settings,
            .clock = *clock,
            .processes = bench.processes,
            .privileged = *bench.privileged,
            .controlPort = port,
            .probe = bench.probe,
            .resolvers = bench.resolvers,
            .terminal = bench.terminal,
            .applications = bench.applications,
            .locateTransports = [] { return nothingFound(); },
            .bridgeProbe = bench.bridgeProbe,
        });
        const auto connecting = controller->connect();
        QVERIFY(until([&] { return controller->isChecking(); }));
        controller.reset();
        clock.reset();
        answer.complete(true);
        QVERIFY(Workbench::finished(connecting));
    }
};

VELDMARK_TEST(LifetimeTest)
#include "LifetimeTest.moc"
