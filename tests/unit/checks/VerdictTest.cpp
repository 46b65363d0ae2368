#include "checks/Verdict.h"
#include "support/TestProgram.h"

#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;
using namespace veldmark;
using State = KillSwitch::State;
using Level = Verdict::Level;
using Danger = Verdict::Danger;
using Stall = TrafficWatch::Stall;

namespace {

// All values.
void forEachSession(const std::function<void(const SessionFacts &)> &look)
{
    for (const ConnectionPhase phase :
         {ConnectionPhase::disconnected, ConnectionPhase::connecting, ConnectionPhase::connected,
          ConnectionPhase::disconnecting, ConnectionPhase::stale})
        for (const std::optional<RoutingMode> mode :
             {std::optional<RoutingMode>(), std::optional(RoutingMode::strict),
              std::optional(RoutingMode::proxy)})
            for (const std::optional<State> rules :
                 {std::optional<State>(), std::optional(State::standing),
                  std::optional(State::putBack), std::optional(State::open),
                  std::optional(State::unknown)})
                for (const bool isExposed : {false, true})
                    for (const bool isDNSLeaking : {false, true})
                        for (const std::optional<bool> verified :
                             {std::optional<bool>(), std::optional(false), std::optional(true)})
                            for (const std::optional<Stall> stall :
                                 {std::optional<Stall>(), std::optional(Stall::noNetwork),
                                  std::optional(Stall::noCircuit), std::optional(Stall::noAnswer),
                                  std::optional(Stall::vpn), std::optional(Stall::firewall)})
                                look({phase,
                                      mode,
                                      rules,
                                      isExposed,
                                      isDNSLeaking,
                                      verified,
                                      u"What is going on"_s,
                                      stall,
                                      {u"ufw"_s}});
}

SessionFacts strict()
{
    return {
        ConnectionPhase::connected,       RoutingMode::strict, State::standing, false, false, true,
        u"All traffic is locked to Tor"_s};
}

} // namespace

class VerdictTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void neverPromisesMoreThanWasVerified()
    {
        int sessions = 0, good = 0, protectedOnes = 0;
        forEachSession([&](const SessionFacts &facts) {
            ++sessions;
            const Verdict verdict = Verdict::of(facts);
            const bool isConnected = facts.phase == ConnectionPhase::connected;
            const bool rulesStand = facts.killSwitch == State::standing
                || facts.killSwitch == State::putBack;
            const bool isSafe = isConnected && facts.mode == RoutingMode::strict && rulesStand
                && !facts.isExposed && !facts.isDNSLeaking && facts.torVerified != false
                && !facts.stall;
            if (verdict.title == u"Protected"_s) {
                ++protectedOnes;
                QVERIFY(isSafe);
            }
            if (verdict.level == Level::good) {
                ++good;
                QVERIFY(isSafe && facts.torVerified == true);
                QCOMPARE(verdict.title, u"Protected"_s);
            }
            const bool isDanger = verdict.danger != Danger::none;
            QCOMPARE(isDanger, verdict.level == Level::warning || verdict.level == Level::danger);
            QCOMPARE(isDanger, verdict.symbol == u"exclamationmark.shield"_s);
            if (verdict.symbol == u"lock.shield.fill"_s)
                QVERIFY(isConnected && !facts.isDNSLeaking && facts.torVerified != false
                        && !facts.stall);
            // the claim needs rules that block
            if (verdict.detail.english().contains(u"Traffic around Tor stays blocked"_s))
                QVERIFY(isConnected && facts.mode == RoutingMode::strict && rulesStand
                        && !facts.isExposed && !facts.isDNSLeaking);
            if (verdict.detail.english().contains(u"locked to Tor"_s))
                QVERIFY(isConnected && facts.mode == RoutingMode::strict && rulesStand
                        && !facts.isExposed && !facts.isDNSLeaking);
            // the ordinary line is replaced
            if (isConnected && facts.mode == RoutingMode::strict && !isSafe) {
                QVERIFY(isDanger);
                QVERIFY(verdict.detail != facts.detail);
            }
            QVERIFY(!verdict.title.isEmpty() && !verdict.symbol.isEmpty()
                    && !verdict.detail.isEmpty());
        });
        QCOMPARE(sessions, 5 * 3 * 5 * 2 * 2 * 3 * 6);
        QVERIFY(good > 0 && protectedOnes > good);
    }

    void anOpenKillSwitchIsSaidWhereverItIsKnown()
    {
        forEachSession([](const SessionFacts &facts) {
            if (facts.killSwitch != State::open)
                return;
            const bool isAskedFor = facts.phase == ConnectionPhase::disconnected
                || facts.phase == ConnectionPhase::disconnecting;
            const Verdict verdict = Verdict::of(facts);
            QCOMPARE(verdict.danger == Danger::killSwitchOpen, !isAskedFor);
            QCOMPARE(verdict.title == u"Kill Switch Failed"_s, !isAskedFor);
            QCOMPARE(verdict.level == Level::danger, !isAskedFor);
        });
    }

    void theTablesHoldWhereNoDangerIsKnown()
    {
        forEachSession([](const SessionFacts &facts) {
            const Verdict verdict = Verdict::of(facts);
            QCOMPARE(verdict.danger == Danger::leftOver,
                     facts.phase == ConnectionPhase::stale && facts.killSwitch != State::open);
            if (verdict.danger != Danger::none && verdict.danger != Danger::leftOver)
                return;
            switch (facts.phase) {
            case ConnectionPhase::disconnected:
                QCOMPARE(verdict.title.english() + verdict.symbol, u"Not Protectedshield.slash"_s);
                break;
            case ConnectionPhase::connecting:
                QCOMPARE(verdict.title.english() + verdict.symbol,
                         u"Connecting…shield.lefthalf.filled"_s);
                break;
            case ConnectionPhase::connected:
                QCOMPARE(verdict.title,
                         facts.mode == RoutingMode::strict ? u"Protected"_s : u"Proxy Active"_s);
                QCOMPARE(verdict.symbol, u"lock.shield.fill"_s);
                break;
            case ConnectionPhase::disconnecting:
                QCOMPARE(verdict.title.english() + verdict.symbol,
                         u"Disconnecting…shield.lefthalf.filled"_s);
                break;
            case ConnectionPhase::stale:
                QCOMPARE(verdict.title.english() + verdict.symbol,
                         u"Needs Attentionexclamationmark.shield"_s);
                break;
            }
            QCOMPARE(verdict.detail, facts.detail);
        });
    }

    void theWorstIsSaid_data()
    {
        QTest::addColumn<SessionFacts>("facts");
        QTest::addColumn<QString>("level");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("detail");
        const auto row = [](const char *name, const SessionFacts &facts, const QString &level,
                            const QString &title, const QString &detail) {
            QTest::newRow(name) << facts << level << title << detail;
        };
        SessionFacts facts = strict();
        row("all is well", facts, u"good"_s, u"Protected"_s, u"All traffic is locked to Tor"_s);
        facts.killSwitch = State::putBack;
        row("put back", facts, u"good"_s, u"Protected"_s, u"All traffic is locked to Tor"_s);
        facts = strict();
        facts.torVerified.reset();
        row("not checked yet", facts, u"working"_s, u"Protected"_s,
            u"All traffic is locked to Tor"_s);
        facts.torVerified = false;
        row("not confirmed", facts, u"warning"_s, u"Needs Attention"_s,
            u"All traffic is locked to Tor, but the exit could not be confirmed"_s);
        facts.stall = Stall::noNetwork;
        row("no network", facts, u"warning"_s, u"No Network"_s,
            u"This computer has no network. Traffic around Tor stays blocked."_s);
        facts.stall = Stall::noCircuit;
        row("no circuit", facts, u"warning"_s, u"Nothing Gets Through"_s,
            u"Tor has no working circuit and keeps trying. Traffic around Tor stays blocked."_s);
        facts.stall = Stall::vpn;
        row("a VPN in the way", facts, u"warning"_s, u"Nothing Gets Through"_s,
            u"A VPN takes Tor's traffic, and strict mode does not let the VPN out. Switch the VPN off, or use proxy mode."_s);
        facts.stall = Stall::firewall;
        facts.firewalls = QStringList{u"ufw"_s, u"table ip filter"_s};
        row("another firewall in the way", facts, u"warning"_s, u"Nothing Gets Through"_s,
            u"Another firewall on this computer blocks outgoing traffic, so Tor can't connect: ufw, table ip filter."_s);
        facts.stall = Stall::noAnswer;
        row("no answer", facts, u"warning"_s, u"Nothing Gets Through"_s,
            u"Tor gets no answer from the network and keeps trying. Traffic around Tor stays blocked."_s);
        facts.killSwitch = State::unknown;
        row("nor known to stand", facts, u"warning"_s, u"Needs Attention"_s,
            u"Veldmark can't tell whether the kill switch blocks traffic. Disconnect and connect again."_s);
        facts.killSwitch.reset();
        row("nobody has looked", facts, u"warning"_s, u"Needs Attention"_s,
            u"Veldmark can't tell whether the kill switch blocks traffic. Disconnect and connect again."_s);
        facts.isExposed = true;
        row("exposed as well", facts, u"danger"_s, u"Needs Attention"_s,
            u"Your real address can be seen. Disconnect, or run the leak test again."_s);
        facts.isDNSLeaking = true;
        row("lookups leak as well", facts, u"danger"_s, u"DNS Leak"_s,
            u"Lookups can go around Tor, and your real address can be seen"_s);
        facts.killSwitch = State::open;
        row("open as well", facts, u"danger"_s, u"Kill Switch Failed"_s,
            u"Traffic may leave this computer directly"_s);
        facts.phase = ConnectionPhase::stale;
        row("Tor is dead, and it is open", facts, u"danger"_s, u"Kill Switch Failed"_s,
            u"Traffic may leave this computer directly"_s);
        facts = {ConnectionPhase::connected,
                 RoutingMode::proxy,
                 std::nullopt,
                 true,
                 false,
                 true,
                 u"Apps that use system proxy settings go through Tor"_s};
        row("proxy, where apps may go direct", facts, u"info"_s, u"Proxy Active"_s,
            facts.detail.english());
        facts.torVerified = false;
        row("proxy, not confirmed", facts, u"warning"_s, u"Needs Attention"_s,
            u"Apps that use system proxy settings go through Tor, but the exit could not be confirmed"_s);
        facts.stall = Stall::noNetwork;
        row("proxy, no network", facts, u"warning"_s, u"No Network"_s,
            u"This computer has no network. Veldmark goes on when it is back."_s);
        facts.isDNSLeaking = true;
        row("proxy, lookups leak", facts, u"danger"_s, u"DNS Leak"_s,
            u"Lookups can go around Tor"_s);
        row("nothing", {}, u"neutral"_s, u"Not Protected"_s, QString());
        row("connecting", {.phase = ConnectionPhase::connecting, .detail = u"Preparing Tor…"_s},
            u"working"_s, u"Connecting…"_s, u"Preparing Tor…"_s);
    }

    void theWorstIsSaid()
    {
        QFETCH(SessionFacts, facts);
        const Verdict verdict = Verdict::of(facts);
        QTEST(verdict.levelName(), "level");
        QTEST(verdict.title.english(), "title");
        QTEST(verdict.detail.english(), "detail");
    }
};

VELDMARK_TEST(VerdictTest)
#include "VerdictTest.moc"
