#include "ui/PanelModel.h"
#include "StandInSession.h"
#include "support/TestProgram.h"

#include <QTest>
#include <QTimer>

using namespace veldmark;

namespace {

using Tone = PanelModel::Tone;

Snapshot idle()
{
    Snapshot s;
    s.torPath = QStringLiteral("/usr/bin/tor");
    return s;
}

Snapshot connected(RoutingMode mode)
{
    Snapshot s = idle();
    s.phase = ConnectionPhase::connected;
    s.activeMode = mode;
    if (mode == RoutingMode::strict)
        s.killSwitch = KillSwitch{KillSwitch::State::standing, 0, {}};
    s.torVerified = true;
    s.exitIP = QStringLiteral("203.0.113.10");
    s.leak = LeakStatus::blocked();
    return s;
}

} // namespace

class PanelModelTest : public QObject {
    Q_OBJECT

    PlatformProfile profile = PlatformProfile::linux(Places::below(QStringLiteral("/nowhere")));

    // Emits the timer's signal: the ten seconds have passed.
    static void runOut(PanelModel &panel)
    {
        auto *timer = panel.findChild<QTimer *>();
        QVERIFY(timer && timer->isActive() && timer->interval() == 10'000);
        timer->setInterval(0);
        QTRY_VERIFY(!timer->isActive());
        timer->setInterval(10'000);
    }

private Q_SLOTS:
    void saysWhatKeepsTorFromConnecting()
    {
        StandInSession session(profile);
        PanelModel panel(session);
        Snapshot s = idle();
        s.phase = ConnectionPhase::connecting;
        s.bootstrapProblem = QStringLiteral("The bridge program lyrebird keeps ending.");
        session.show(s);
        QCOMPARE(panel.waitingFor(), *s.bootstrapProblem); // at once, and the summary stays
        QCOMPARE(panel.detail(), s.statusDetail);
        s.phase = ConnectionPhase::stale;
        s.errorMessage = QStringLiteral("Tor didn't finish connecting.");
        session.show(s);
        QCOMPARE(panel.waitingFor(), QString());
        QCOMPARE(panel.error(), s.errorMessage->english() + u' ' + s.bootstrapProblem->english());
        s.phase = ConnectionPhase::disconnected;
        session.show(s);
        QCOMPARE(panel.error(), *s.errorMessage);
    }

    void showsWhatWasTriedAndWhatIsOffered()
    {
        StandInSession session(profile);
        PanelModel panel(session);
        Snapshot s = idle();
        s.ladder = {{BridgeChoice::off, QStringLiteral("No answer."), 15},
                    {BridgeChoice::obfs4, QStringLiteral("Being tried…"), {}}};
        s.climbOffer = Text(QStringLiteral("Veldmark can try bridges."));
        for (const auto &[phase, isShown] : {std::pair(ConnectionPhase::connecting, true),
                                             {ConnectionPhase::stale, true},
                                             {ConnectionPhase::connected, false},
                                             {ConnectionPhase::disconnected, false}}) {
            s.phase = phase;
            session.show(s);
            QCOMPARE(panel.steps(),
                     isShown ? QStringList({QStringLiteral("Direct: No answer. (15 s)"),
                                            QStringLiteral("obfs4: Being tried…")})
                             : QStringList());
            QCOMPARE(panel.offer(), isShown ? s.climbOffer->english() : QString());
        }
        panel.takeOffer();
        QCOMPARE(session.asked, QStringList(QStringLiteral("takeOffer")));
    }

    void saysThatNothingMovesUntilSomethingDoes()
    {
        StandInSession session(profile);
        PanelModel panel(session);
        auto *stillness = panel.findChild<QTimer *>();
        QVERIFY(stillness);
        QCOMPARE(stillness->interval(), 10'000);
        stillness->setInterval(1);
        Snapshot s = idle();
        s.phase = ConnectionPhase::connecting;
        s.bootstrapProgress = 0.1;
        session.show(s);
        QVERIFY(panel.waitingFor().isEmpty());
        QTRY_VERIFY(panel.waitingFor().startsWith(QStringLiteral("Tor hasn't reported progress")));
        session.show(s); // the same value again is no progress
        QVERIFY(!panel.waitingFor().isEmpty());
        stillness->setInterval(10'000);
        s.bootstrapProgress = 0.2;
        session.show(s);
        QCOMPARE(panel.waitingFor(), QString());
        stillness->start(1);
        QTRY_VERIFY(!panel.waitingFor().isEmpty());
        s.phase = ConnectionPhase::disconnected;
        session.show(s);
        QCOMPARE(panel.waitingFor(), QString());
    }

    void theProgressIsThatOfConnecting()
    {
        StandInSession session(profile);
        PanelModel panel(session);
        Snapshot s = idle();
        s.bootstrapProgress = 0.4;
        for (const auto &[phase, shown] : {std::pair(ConnectionPhase::disconnected, 0.0),
                                           {ConnectionPhase::connecting, 0.4},
                                           {ConnectionPhase::connected, 0.0},
                                           {ConnectionPhase::disconnecting, 0.0},
                                           {ConnectionPhase::stale, 0.0}}) {
            s.phase = phase;
            session.show(s);
            QCOMPARE(panel.progress(), shown);
        }
    }

    void theTrafficOfAnEndedSessionGoes()
    {
        StandInSession session(profile);
        PanelModel panel(session);
        Snapshot s = connected(RoutingMode::strict);
        session.show(s);
        const auto now = std::chrono::steady_clock::now();
        panel.traffic()->add(900'000, 1000, now + std::chrono::seconds(2));
        QVERIFY(!panel.traffic()->samples().empty());
        s.phase = ConnectionPhase::disconnected;
        session.show(s);
        QVERIFY(panel.traffic()->samples().empty());
    }

    void showsEachState_data()
    {
        QTest::addColumn<Snapshot>("snapshot");
        QTest::addColumn<Tone>("tone");
        QTest::addColumn<QString>("symbol");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("label");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<QString>("footnote");
        const auto row = [](const char *name, const Snapshot &s, Tone tone, const char *symbol,
                            const char *title, const char *label, bool enabled,
                            const char *footnote) {
            QTest::newRow(name) << s << tone << QString::fromUtf8(symbol)
                                << QString::fromUtf8(title) << QString::fromUtf8(label) << enabled
                                << QString::fromUtf8(footnote);
        };
        Snapshot s = idle();
        row("disconnected", s, Tone::Neutral, "shield.slash", "Not Protected", "Connect to Tor",
            true, "Click to connect");
        s.torPath.reset();
        row("no tor", s, Tone::Neutral, "shield.slash", "Not Protected", "Connect to Tor", false,
            "Install Tor to get started");
        s.isTorRefused = true; // the press brings the reason
        row("a location of tor that a connect refuses", s, Tone::Neutral, "shield.slash",
            "Not Protected", "Connect to Tor", true, "Click to connect");
        s = idle();
        s.phase = ConnectionPhase::connecting;
        row("connecting, not to be cancelled", s, Tone::Accent, "shield.lefthalf.filled",
            "Connecting…", "Cancel", false, "");
        s.canCancel = true;
        row("connecting", s, Tone::Accent, "shield.lefthalf.filled", "Connecting…", "Cancel", true,
            "");
        s = connected(RoutingMode::strict);
        row("strict, verified", s, Tone::Good, "lock.shield.fill", "Protected", "Disconnect", true,
            "Click to disconnect");
        s.torVerified.reset();
        row("strict, not checked yet", s, Tone::Accent, "lock.shield.fill", "Protected",
            "Disconnect", true, "Click to disconnect");
        s.torVerified = false;
        row("strict, not confirmed", s, Tone::Warning, "exclamationmark.shield", "Needs Attention",
            "Disconnect", true, "Click to disconnect");
        s = connected(RoutingMode::strict);
        s.leak = LeakStatus::exposed(QStringLiteral("198.51.100.1"));
        row("strict, exposed", s, Tone::Danger, "exclamationmark.shield", "Needs Attention",
            "Disconnect", true, "Click to disconnect");
        s = connected(RoutingMode::strict);
        s.dns = DNSStatus::leak({QStringLiteral("192.168.1.1")});
        row("strict, lookups leak", s, Tone::Danger, "exclamationmark.shield", "DNS Leak",
            "Disconnect", true, "Click to disconnect");
        s = connected(RoutingMode::strict);
        s.killSwitch->state = KillSwitch::State::open;
        row("strict, open", s, Tone::Danger, "exclamationmark.shield", "Kill Switch Failed",
            "Disconnect", true, "Click to disconnect");
        s.killSwitch.reset();
        row("strict, nobody has looked", s, Tone::Warning, "exclamationmark.shield",
            "Needs Attention", "Disconnect", true, "Click to disconnect");
        s = connected(RoutingMode::proxy);
        row("proxy", s, Tone::Info, "lock.shield.fill", "Proxy Active", "Disconnect", true,
            "Click to disconnect");
        s.activeMode.reset();
        row("connected in no known mode", s, Tone::Info, "lock.shield.fill", "Proxy Active",
            "Disconnect", true, "Click to disconnect");
        s.phase = ConnectionPhase::disconnecting;
        row("disconnecting", s, Tone::Accent, "shield.lefthalf.filled", "Disconnecting…", "", false,
            "");
        s = idle();
        s.phase = ConnectionPhase::stale;
        row("stale", s, Tone::Warning, "exclamationmark.shield", "Needs Attention", "Reconnect",
            true, "");
    }
    void showsEachState()
    {
        QFETCH(Snapshot, snapshot);
        StandInSession session(profile);
        PanelModel panel(session);
        session.show(snapshot);
        QTEST(panel.tone(), "tone");
        QTEST(panel.symbol(), "symbol");
        QTEST(panel.title(), "title");
        QTEST(panel.powerLabel(), "label");
        QTEST(panel.powerEnabled(), "enabled");
        QTEST(panel.footnote(), "footnote");
    }

    // All phases, modes and verdicts: a display that looks or sounds safe needs verified facts.
    void neverPromisesMoreThanWasVerified()
    {
        using Tone = PanelModel::Tone;
        StandInSession session(profile);
        PanelModel panel(session);
        int combinations = 0;
        int green = 0;
        for (const ConnectionPhase phase :
             {ConnectionPhase::disconnected, ConnectionPhase::connecting,
              ConnectionPhase::connected, ConnectionPhase::disconnecting, ConnectionPhase::stale})
            for (const std::optional<RoutingMode> mode :
                 {std::optional<RoutingMode>(), std::optional(RoutingMode::strict),
                  std::optional(RoutingMode::proxy)})
                for (const LeakStatus &leak : everyLeak())
                    for (const DNSStatus &dns :
                         {DNSStatus::leak({}), DNSStatus::unknown(), DNSStatus::checking(),
                          DNSStatus::throughTor(), DNSStatus::unverified()})
                        for (const std::optional<bool> verified :
                             {std::optional<bool>(), std::optional(false), std::optional(true)}) {
                            Snapshot s;
                            s.torPath = QStringLiteral("/usr/bin/tor");
                            s.phase = phase;
                            s.activeMode = mode;
                            s.killSwitch = KillSwitch{KillSwitch::State::standing, 0, {}};
                            s.leak = leak;
                            s.dns = dns;
                            s.torVerified = verified;
                            session.show(s);
                            ++combinations;
                            const bool strict = phase == ConnectionPhase::connected
                                && mode == RoutingMode::strict;
                            const bool known = dns.isLeak() || leak.isExposed();
                            if (panel.tone() == Tone::Good) {
                                ++green;
                                QVERIFY(strict && verified == true && !known);
                            }
                            if (panel.title() == QLatin1String("Protected"))
                                QVERIFY(strict && !known);
                            if (panel.symbol() == QLatin1String("lock.shield.fill"))
                                QVERIFY(phase == ConnectionPhase::connected && !dns.isLeak());
                            if (phase == ConnectionPhase::connected && dns.isLeak())
                                QCOMPARE(panel.tone(), Tone::Danger);
                            if (phase != ConnectionPhase::connected
                                && panel.pillText().startsWith(QLatin1String("Connected")))
                                QFAIL("a bridge is said to be connected through");
                            if (panel.leakText() == QLatin1String("No leaks"))
                                QVERIFY(leak == LeakStatus::blocked() && !dns.isLeak());
                            if (panel.verification() == QLatin1String("Verified"))
                                QVERIFY(verified == true);
                        }
        QCOMPARE(combinations, 5 * 3 * 6 * 5 * 3);
        QVERIFY(green > 0);
    }

    // A second attempt starts its own ten seconds.
    void forgetsAnEarlierAttemptsStandstill()
    {
        StandInSession session(profile);
        PanelModel panel(session);
        Snapshot s = idle();
        s.phase = ConnectionPhase::connecting;
        s.bootstrapProgress = 0.3;
        session.show(s);
        QCOMPARE(panel.waitingFor(), QString());
        runOut(panel);
        QVERIFY(panel.waitingFor().contains(QStringLiteral("hasn't reported progress")));
        s.phase = ConnectionPhase::stale;
        session.show(s);
        QCOMPARE(panel.waitingFor(), QString());
        s.phase = ConnectionPhase::connecting; // with nothing else changed
        session.show(s);
        QCOMPARE(panel.waitingFor(), QString());
        runOut(panel);
        QVERIFY(!panel.waitingFor().isEmpty());
        s.bootstrapProgress = 0.4;
        session.show(s);
        QCOMPARE(panel.waitingFor(), QString());
    }

    void theTrafficsPlotBelongsToOneSession()
    {
        StandInSession session(profile);
        PanelModel panel(session);
        Snapshot s = connected(RoutingMode::strict);
        session.show(s);
        panel.traffic()->add(s.bytesRead + 1'000'000, s.bytesWritten,
                             std::chrono::steady_clock::now() + std::chrono::seconds(2));
        QVERIFY(!panel.traffic()->samples().empty());
        s.phase = ConnectionPhase::disconnected;
        session.show(s);
        QVERIFY(panel.traffic()->samples().empty());
    }

    void theExitsCountryStaysWhenItsCircuitHasGone()
    {
        StandInSession session(profile);
        PanelModel panel(session);
        Snapshot s = connected(RoutingMode::strict);
        s.exitIP = QStringLiteral("192.0.2.44");
        CircuitInfo circuit;
        circuit.id = QStringLiteral("7");
        circuit.hops = {{QStringLiteral("AA"), QStringLiteral("a"), QStringLiteral("192.0.2.43"),
                         QStringLiteral("fr")},
                        {QStringLiteral("BB"), QStringLiteral("b"), QStringLiteral("192.0.2.44"),
                         QStringLiteral("de")}};
        CircuitInfo onion = circuit;
        onion.onionService = QStringLiteral("abc.onion");
        s.circuits = {onion}; // its last relay is no exit
        session.show(s);
        QCOMPARE(panel.exitCountry(), QString());
        s.circuits = {circuit};
        session.show(s);
        QCOMPARE(panel.exitCountry(), QStringLiteral("de"));
        s.circuits.clear();
        session.show(s);
        QCOMPARE(panel.exitCountry(), QStringLiteral("de"));
        s.exitIP = QStringLiteral("192.0.2.45"); // another exit
        session.show(s);
        QCOMPARE(panel.exitCountry(), QString());
        s.circuits = {circuit};
        s.exitIP = QStringLiteral("192.0.2.44");
        session.show(s);
        s.phase = ConnectionPhase::stale;
        session.show(s);
        QCOMPARE(panel.exitCountry(), QString());
    }

    void pressesTheButtonByPhase()
    {
        StandInSession session(profile);
        PanelModel panel(session);
        Snapshot s = idle();
        for (const auto &[phase, asked] : {std::pair{ConnectionPhase::disconnected, "connect"},
                                           {ConnectionPhase::connecting, "disconnect"},
                                           {ConnectionPhase::connected, "disconnect"},
                                           {ConnectionPhase::stale, "connect"}}) {
            s.phase = phase;
            s.canCancel = phase == ConnectionPhase::connecting;
            session.show(s);
            session.asked.clear();
            panel.pressPower();
            QCOMPARE(session.asked, QStringList{QString::fromLatin1(asked)});
        }
        s.phase = ConnectionPhase::disconnecting;
        session.show(s);
        session.asked.clear();
        panel.pressPower();
        QVERIFY(session.asked.isEmpty());
    }

    // It would be refused: the session belongs to a running process.
    void offersNoReconnectOverAnothersSession()
    {
        StandInSession session(profile);
        PanelModel panel(session);
        Snapshot s = idle();
        s.phase = ConnectionPhase::stale;
        s.markerPresent = true;
        session.show(s);
        QVERIFY(panel.powerEnabled() && !panel.powerLabel().isEmpty());
        s.isAnothers = true;
        session.show(s);
        session.asked.clear();
        QVERIFY(!panel.powerEnabled() && panel.powerLabel().isEmpty());
        panel.pressPower();
        QVERIFY(session.asked.isEmpty());
        QVERIFY(panel.canRestore()); // this ends that session
    }

    void namesTheModeOrTheBridge()
    {
        StandInSession session(profile);
        PanelModel panel(session);
        Snapshot s = connected(RoutingMode::strict);
        session.show(s);
        QCOMPARE(panel.pillText(), QStringLiteral("Strict"));
        QCOMPARE(panel.pillSymbol(), QStringLiteral("lock.fill"));
        s.activeMode = RoutingMode::proxy;
        session.show(s);
        QCOMPARE(panel.pillText(), QStringLiteral("Proxy"));
        QCOMPARE(panel.pillSymbol(), QStringLiteral("arrow.triangle.branch"));
        for (const auto &[choice, name] : {std::pair{BridgeChoice::obfs4, "obfs4"},
                                           {BridgeChoice::snowflake, "Snowflake"},
                                           {BridgeChoice::meek, "meek"},
                                           {BridgeChoice::custom, "Custom"}}) {
            s.activeBridge = choice;
            session.show(s);
            QCOMPARE(panel.pillText(),
                     QStringLiteral("Connected through %1 bridges").arg(QLatin1String(name)));
        }
        s.phase = ConnectionPhase::connecting; // there is no connection yet
        session.show(s);
        QCOMPARE(panel.pillText(), QStringLiteral("Proxy"));
    }

    void describesTheExit()
    {
        StandInSession session(profile);
        PanelModel panel(session);
        Snapshot s = connected(RoutingMode::strict);
        session.show(s);
        QCOMPARE(panel.exitAddress(), QStringLiteral("203.0.113.10"));
        QCOMPARE(panel.verification(), QStringLiteral("Verified"));
        QVERIFY(panel.exitVerified());
        s.isChecking = true; // the last result no longer counts
        session.show(s);
        QCOMPARE(panel.verification(), QStringLiteral("Checking"));
        QVERIFY(!panel.exitVerified());
        s.isChecking = false;
        s.torVerified = false;
        session.show(s);
        QCOMPARE(panel.verification(), QStringLiteral("Not confirmed"));
        s.exitIP.reset();
        session.show(s);
        QCOMPARE(panel.exitAddress(), QStringLiteral("Unknown"));
        s.torVerified.reset(); // nobody has asked, so it is no bad answer
        session.show(s);
        QCOMPARE(panel.verification(), QStringLiteral("Not checked"));
        QVERIFY(!panel.exitVerified());
        s.isChecking = true;
        session.show(s);
        QCOMPARE(panel.exitAddress(), QStringLiteral("Checking"));
        QCOMPARE(panel.verification(), QStringLiteral("Checking"));
        QCOMPARE(panel.exitHelp(), QStringLiteral("Checked against check.torproject.org"));
    }

    void describesLeaks_data()
    {
        QTest::addColumn<LeakStatus>("leak");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("help");
        const QString tries = QStringLiteral("Tries a direct connection that skips Tor");
        const auto row = [](const char *name, const LeakStatus &leak, const QString &text,
                            const QString &help) { QTest::newRow(name) << leak << text << help; };
        row("not tested", LeakStatus::notTested(), QStringLiteral("Not tested"), tries);
        row("testing", LeakStatus::checking(), QStringLiteral("Testing…"), tries);
        row("inconclusive", LeakStatus::inconclusive(), QStringLiteral("Inconclusive"), tries);
        row("blocked", LeakStatus::blocked(), QStringLiteral("No answer"),
            QStringLiteral(
                "A direct connection that bypasses Tor got no answer, but proxy mode doesn't block such connections"));
        row("exposed", LeakStatus::exposed(QStringLiteral("198.51.100.1")),
            QStringLiteral("Exposed: 198.51.100.1"),
            QStringLiteral(
                "Apps that ignore proxy settings show your real IP (198.51.100.1). Turn on "
                "Strict mode to block them."));
    }
    void describesLeaks()
    {
        QFETCH(LeakStatus, leak);
        QFETCH(QString, help);
        StandInSession session(profile);
        PanelModel panel(session);
        Snapshot s = connected(RoutingMode::proxy);
        s.leak = leak;
        session.show(s);
        QTEST(panel.leakText(), "text");
        QCOMPARE(panel.leakHelp(), help + QStringLiteral("\nDNS: not tested yet."));
        s.dns = DNSStatus::leak({QStringLiteral("192.168.1.1 on en0")});
        session.show(s);
        QCOMPARE(panel.leakText(), QStringLiteral("DNS leak"));
        QCOMPARE(panel.leakHelp(),
                 help + QStringLiteral("\nDNS can go around Tor via: 192.168.1.1 on en0"));
    }

    // Strict mode is on already, and its switch is locked.
    void whoIsExposedInStrictModeIsNotToldToTurnItOn()
    {
        StandInSession session(profile);
        PanelModel panel(session);
        Snapshot s = connected(RoutingMode::strict);
        s.leak = LeakStatus::exposed(QStringLiteral("198.51.100.1"));
        session.show(s);
        QCOMPARE(
            panel.leakHelp(),
            QStringLiteral(
                "Direct connections that skip Tor show your real IP (198.51.100.1), although Strict mode should block them. "
                "Disconnect, or run the leak test again.\nDNS: not tested yet."));
    }

    void saysNoLeaksOnlyWhereTheRulesWereSeen()
    {
        StandInSession session(profile);
        PanelModel panel(session);
        Snapshot s = connected(RoutingMode::strict);
        for (const auto state : {KillSwitch::State::standing, KillSwitch::State::putBack}) {
            s.killSwitch->state = state;
            session.show(s);
            QCOMPARE(panel.leakText(), QStringLiteral("No leaks"));
            QCOMPARE(panel.leakTone(), PanelModel::Tone::Good);
            QVERIFY(panel.leakHelp().startsWith(
                QStringLiteral("Direct connections that skip Tor are blocked\n")));
        }
        for (const auto state : {KillSwitch::State::open, KillSwitch::State::unknown}) {
            s.killSwitch->state = state;
            session.show(s);
            QCOMPARE(panel.leakText(), QStringLiteral("No answer"));
            QCOMPARE(panel.leakTone(), PanelModel::Tone::Neutral);
            QVERIFY(panel.leakHelp().contains(
                QStringLiteral("isn't known whether the kill switch blocks such connections")));
        }
        s.killSwitch.reset();
        session.show(s);
        QCOMPARE(panel.leakText(), QStringLiteral("No answer"));
    }

    void countsTheResolversThatItDoesNotName()
    {
        StandInSession session(profile);
        PanelModel panel(session);
        Snapshot s = connected(RoutingMode::proxy);
        s.dns = DNSStatus::leak({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
        session.show(s);
        QCOMPARE(panel.leakingResolvers().size(), 3);
        QCOMPARE(panel.moreResolvers(), QString());
        s.dns = DNSStatus::leak(s.dns.leaks()
                                + QList<Text>{QStringLiteral("d"), QStringLiteral("e")});
        session.show(s);
        QCOMPARE(panel.leakingResolvers().size(), 3);
        QCOMPARE(panel.moreResolvers(), QStringLiteral("2 more"));
    }

    void offersToRestoreWhatIsLeft()
    {
        StandInSession session(profile);
        PanelModel panel(session);
        Snapshot s = idle();
        session.show(s);
        QVERIFY(!panel.canRestore());
        s.markerPresent = true;
        session.show(s);
        QVERIFY(panel.canRestore());
        s.phase = ConnectionPhase::connected;
        session.show(s);
        QVERIFY(!panel.canRestore());
        s.phase = ConnectionPhase::stale;
        session.show(s);
        QVERIFY(panel.canRestore());
        panel.restore();
        QCOMPARE(session.asked, QStringList{QStringLiteral("disconnect")});
    }

    void namesTheHintOnlyAsCommandWhenItIsOne()
    {
        PlatformProfile unknown = profile;
        unknown.torInstallHint = QStringLiteral("your package manager");
        StandInSession plain(unknown);
        QVERIFY(!PanelModel(plain).installHintIsCommand());
        unknown.torInstallHint = QStringLiteral("sudo pacman -S tor");
        QVERIFY(PanelModel(plain).installHintIsCommand());
    }
};

VELDMARK_WINDOWED_TEST(PanelModelTest)
#include "PanelModelTest.moc"
