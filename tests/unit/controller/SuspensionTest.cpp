#include "support/Interruption.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace veldmark;
using Moment = InterruptibleApplication::Moment;

namespace {

const QByteArray relay(40, 'A');

QCoro::Task<void> pause(ManualClock *clock)
{
    co_await clock->sleep(1s);
}

QCoro::Task<std::optional<ConnectTime>> slowBridge(ManualClock *clock)
{
    co_await clock->sleep(1s);
    co_return ConnectTime(1s);
}

QCoro::Task<TransportDownloader::Outcome> slowInstall(ManualClock *clock,
                                                      TransportDownloader::Progress progress)
{
    progress(u"Downloading…"_s);
    co_await clock->sleep(1s);
    progress(u"Installing…"_s);
    co_return InstalledBundle{u"14.0.4"_s, false};
}

// Runs the operation and ignores its answer.
template <typename T> QCoro::Task<void> inWords(QCoro::Task<T> task)
{
    co_await task;
}

QCoro::Task<void> quitLater(Workbench *bench)
{
    co_await bench->clock.sleep(250ms);
    bench->applications.ended = {1, 2};
}

const QString listening = u"SETEVENTS STREAM"_s;

// Tor reports the names in its lookups, so the live DNS test runs to its end.
void hearLookups(Workbench &bench)
{
    bench.tor.reply(listening.toUtf8(), "250 OK\r\n");
}

// Everything that an operation may wait for does wait: no answer is immediate.
void slowDown(Workbench &bench)
{
    bench.probe.beforeTorAnswer = [&bench] { return pause(&bench.clock); };
    bench.probe.beforeDirectAnswer = [&bench] { return pause(&bench.clock); };
    bench.resolvers.beforeAnswer = [&bench] { return pause(&bench.clock); };
    bench.tor.reply(
        "GETINFO circuit-status",
        Workbench::block("circuit-status", {"1 BUILT $" + relay + "~one PURPOSE=GENERAL"}));
    bench.tor.reply("GETINFO stream-status", Workbench::block("stream-status", {}));
    bench.tor.reply(
        "GETINFO ns/id/" + relay,
        Workbench::block("ns/id/" + relay, {"r one A B 2026-03-01 10:00:00 192.0.2.2 9001 0"}));
    bench.tor.reply("GETINFO ip-to-country/192.0.2.2",
                    "250-ip-to-country/192.0.2.2=de\r\n250 OK\r\n");
}

struct Operation {
    const char *name;
    bool isConnected; // begins in a session
    std::function<QCoro::Task<void>(Workbench &bench)> begin;
    int leastWaits;                             // fewer would mean that the test tried nothing
    std::function<bool(Workbench &)> succeeded; // without an interruption
};

std::vector<Operation> operations()
{
    const auto always = [](Workbench &) { return true; };
    const auto isConnected = [](Workbench &b) {
        return b.controller().phase() == ConnectionPhase::connected;
    };
    const auto isDisconnected = [](Workbench &b) {
        return b.controller().phase() == ConnectionPhase::disconnected;
    };
    return {
        {"connect", false, [](Workbench &b) { return b.controller().connect(); }, 4, isConnected},
        {"connect with the fastest bridge", false,
         [](Workbench &b) {
             b.controller().bridgeChoice.set(BridgeChoice::custom);
             b.controller().customBridges.set(u"192.0.2.1:1\n192.0.2.2:2"_s);
             b.controller().optimizeSpeed.set(true);
             b.bridgeProbe = [&b](QString, quint16, std::chrono::milliseconds) {
                 return slowBridge(&b.clock);
             };
             return b.controller().connect();
         },
         6, isConnected},
        {"connect to a tor that takes its time", false,
         [](Workbench &b) {
             b.tor.replyOnce(
                 Workbench::bootstrapCommand,
                 "250-status/bootstrap-phase=NOTICE BOOTSTRAP PROGRESS=5\r\n250 OK\r\n");
             b.tor.replyOnce(Workbench::bootstrapCommand, "551 Not yet\r\n");
             return b.controller().connect();
         },
         8, isConnected},
        {"connect that climbs", false,
         [](Workbench &b) {
             b.controller().climb.set(Climb::always);
             b.controller().customBridges.set(u"192.0.2.1:443"_s);
             for (int poll = 0; poll < 7; ++poll)
                 b.tor.replyOnce(Workbench::bootstrapCommand,
                                 "250-status/bootstrap-phase=WARN BOOTSTRAP PROGRESS=5 "
                                 "REASON=CONNECTREFUSED COUNT=3\r\n250 OK\r\n");
             b.tor.reply("SETCONF UseBridges=1 Bridge=\"192.0.2.1:443\"", "250 OK\r\n");
             return b.controller().connect();
         },
         14,
         [](Workbench &b) {
             return b.controller().phase() == ConnectionPhase::connected
                 && b.controller().activeBridge() == BridgeChoice::custom;
         }},
        {"connect that the helper refuses", false,
         [](Workbench &b) {
             b.failHelper(u"connect"_s, u"No."_s);
             b.hold(u"connect"_s);
             return b.controller().connect();
         },
         1, isDisconnected},
        {"autoConnectIfEnabled", false,
         [](Workbench &b) {
             b.controller().autoConnect.set(true);
             return b.controller().autoConnectIfEnabled();
         },
         4, isConnected},
        {"disconnect", true,
         [](Workbench &b) {
             b.hold(u"disconnect"_s);
             return inWords(b.controller().disconnect());
         },
         1, isDisconnected},
        {"disconnect that is refused", true,
         [](Workbench &b) {
             b.cancelPrompt(u"disconnect"_s);
             b.hold(u"disconnect"_s);
             return inWords(b.controller().disconnect());
         },
         1, isConnected},
        {"restoring what an earlier run left", false,
         [](Workbench &b) {
             b.writeMarker("strict\n");
             b.controller().detectStaleState();
             b.hold(u"disconnect"_s);
             return inWords(b.controller().disconnect());
         },
         1, isDisconnected},
        {"runChecks", true, [](Workbench &b) { return b.controller().runChecks(); }, 4,
         [](Workbench &b) {
             return b.controller().torVerified() == true && !b.controller().isChecking();
         }},
        {"checkDNS", true,
         [](Workbench &b) {
             hearLookups(b);
             return b.controller().checkDNS(true);
         },
         4, always},
        {"fixDNS", true,
         [](Workbench &b) {
             hearLookups(b);
             b.hold(u"fix-dns"_s);
             return b.controller().fixDNS();
         },
         5, always},
        {"refreshCircuits", true, [](Workbench &b) { return b.controller().refreshCircuits(); }, 6,
         [](Workbench &b) {
             return b.controller().circuits().size() == 1
                 && b.controller().circuits().front().hops.front().country == u"de";
         }},
        {"newIdentity", true, [](Workbench &b) { return b.controller().newIdentity(); }, 2, always},
        {"newCircuit", true, [](Workbench &b) { return b.controller().newCircuit(u"1"_s); }, 8,
         always},
        {"optimizeCircuits", true,
         [](Workbench &b) {
             b.probe.torAnswer = ScriptedProbe::nothing();
             return b.controller().optimizeCircuits();
         },
         12, [](Workbench &b) { return !b.controller().isOptimizing(); }},
        {"downloadTransports", true,
         [](Workbench &b) {
             b.installTransports = [&b](bool, TransportDownloader::Progress progress) {
                 return slowInstall(&b.clock, std::move(progress));
             };
             return inWords(b.controller().downloadTransports());
         },
         1, [](Workbench &b) { return b.controller().transportDownload().has_value(); }},
        {"launchBypassed", true,
         [](Workbench &b) {
             b.hold(u"launch"_s);
             b.applications.copies = {{u"/a.desktop"_s, {1, 2}}};
             quitLater(&b);
             return inWords(b.controller().launchBypassed(u"/a.desktop"_s));
         },
         4, always},
        {"installPasswordless", false,
         [](Workbench &b) {
             b.hold(u"install-privileged"_s);
             return b.controller().installPasswordless();
         },
         1, always},
        {"removePasswordless", false,
         [](Workbench &b) {
             b.hold(u"uninstall-privileged"_s);
             return b.controller().removePasswordless();
         },
         1, always},
    };
}

InterruptibleApplication *application = nullptr;

// Lets the operation continue and its time pass until it has ended or was interrupted.
// `listened`: the number of event subscriptions when it began.
bool goOn(Workbench &bench, const QCoro::Task<void> &task, const bool &interrupted,
          qsizetype listened)
{
    return until([&] {
        if (!interrupted && !task.isReady()) {
            if (bench.processes.held() > 0)
                bench.processes.release();
            bench.clock.advance(1s);
            // The control port listens by its own clock; its other waits are for sockets, which
            // need none.
            if (bench.tor.commands().count(listening) > listened)
                bench.socketClock.advance(1s);
        }
        return interrupted || task.isReady();
    });
}

} // namespace

// For each operation and each of its waits, the controller is destroyed right before the coroutine
// is resumed, together with its parts, or right afterwards, alone. The coroutines that end later
// must not touch it. Most mistakes are visible only under a sanitizer.
class SuspensionTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void theControllerMayGoAtEveryWait_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<bool>("before");
        QTest::addColumn<bool>("withServices");
        const auto all = operations();
        for (int i = 0; i < static_cast<int>(all.size()); ++i) {
            const char *const name = all[static_cast<std::size_t>(i)].name;
            QTest::addRow("%s, before it is resumed, with its services", name) << i << true << true;
            QTest::addRow("%s, after it was resumed, alone", name) << i << false << false;
        }
    }

    void theControllerMayGoAtEveryWait()
    {
        QFETCH(int, index);
        QFETCH(bool, before);
        QFETCH(bool, withServices);
        const Operation operation = operations()[static_cast<std::size_t>(index)];
        for (int wait = 1;; ++wait) {
            Workbench bench;
            if (operation.isConnected)
                QVERIFY(bench.connect());
            slowDown(bench);
            bool interrupted = false;
            application->interrupt(wait, before ? Moment::before : Moment::after, [&] {
                interrupted = true;
                bench.end();
                if (withServices) {
                    bench.controlPort.reset();
                    bench.privileged.reset();
                    bench.settings.reset();
                }
            });
            const auto listened = bench.tor.commands().count(listening);
            const auto task = operation.begin(bench);
            QVERIFY(goOn(bench, task, interrupted, listened));
            application->leaveAlone();
            if (!interrupted) {
                QVERIFY(operation.succeeded(bench));
                QVERIFY2(wait > operation.leastWaits, qPrintable(u"only %1 waits"_s.arg(wait - 1)));
                break;
            }
            settle(); // earlier data arrive
            const auto calls = bench.processes.calls.size();
            const QStringList commands = bench.tor.commands();
            const int probes = bench.probe.torProbes + bench.probe.directProbes;
            bench.processes.hold = nullptr;
            bench.processes.release();
            bench.clock.advance(1h);
            bench.tor.hangUp();
            settle();
            bench.socketClock.advance(1h);
            bench.clock.advance(1h);
            settle();
            QVERIFY(until([&] { return task.isReady(); }));
            QCOMPARE(bench.processes.calls.size(), calls);
            QCOMPARE(bench.tor.commands(), commands);
            QCOMPARE(bench.probe.torProbes + bench.probe.directProbes, probes);
            QCOMPARE(bench.clock.sleepers(), std::size_t(0));
        }
    }

    // The same for the turns of the monitor, which never ends by itself.
    void theControllerMayGoAtEveryTurnOfTheMonitor()
    {
        for (const Moment moment : {Moment::before, Moment::after}) {
            for (int wait = 1; wait <= 20; ++wait) {
                Workbench bench;
                QVERIFY(bench.connect());
                slowDown(bench);
                bool interrupted = false;
                application->interrupt(wait, moment, [&] {
                    interrupted = true;
                    bench.end();
                    bench.controlPort.reset();
                });
                QVERIFY(until([&] {
                    if (!interrupted)
                        bench.clock.advance(500ms);
                    return interrupted;
                }));
                settle();
                const QStringList commands = bench.tor.commands();
                bench.clock.advance(1h);
                settle();
                QCOMPARE(bench.tor.commands(), commands);
                QCOMPARE(bench.clock.sleepers(), std::size_t(0));
            }
        }
    }
};

static int runSuspensionTest(int argc, char **argv)
{
    InterruptibleApplication app(argc, argv);
    application = &app;
    SuspensionTest test;
    return QTest::qExec(&test, argc, argv);
}
static const veldmark::test::Registration registeredSuspensionTest("SuspensionTest",
                                                                   runSuspensionTest);

#include "SuspensionTest.moc"
