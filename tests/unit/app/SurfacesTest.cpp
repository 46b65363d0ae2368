#include "StandInSession.h"
#include "app/Alerts.h"
#include "app/ControllerSession.h"
#include "app/Tray.h"
#include "cli/Report.h"
#include "controller/PublishedState.h"
#include "support/OtherSession.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"
#include "ui/PanelModel.h"

#include <QJsonArray>
#include <QMetaEnum>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <map>
#include <set>

using namespace Qt::StringLiterals;
using namespace veldmark;
using State = KillSwitch::State;

namespace {

// A state that a real session can be brought into.
struct Case {
    bool strict = true;
    QByteArray note; // empty: the watcher leaves no note
    bool exposed = false;
    bool leaking = false;
    std::optional<bool> verified; // absent: the check service does not answer
    bool torDies = false;

    bool rulesStand() const { return note == "standing" || note == "restored"; }
    QString name() const
    {
        return u"%1, note %2%3%4, exit %5%6"_s
            .arg(strict ? u"strict"_s : u"proxy"_s, QString::fromLatin1(note))
            .arg(exposed ? u", exposed"_s : QString(), leaking ? u", lookups leak"_s : QString(),
                 verified ? (*verified ? u"confirmed"_s : u"other"_s) : u"silent"_s)
            .arg(torDies ? u", tor dies"_s : QString());
    }
};

std::vector<Case> cases()
{
    std::vector<Case> all;
    for (const bool strict : {true, false})
        for (const char *note : {"standing", "restored", "open", ""})
            for (const bool exposed : {false, true})
                for (const bool leaking : {false, true})
                    for (const std::optional<bool> verified :
                         {std::optional<bool>(), std::optional(false), std::optional(true)})
                        for (const bool torDies : {false, true})
                            all.push_back({strict, note, exposed, leaking, verified, torDies});
    return all;
}

// Brings a session of the real controller into the state.
bool make(Workbench &bench, const Case &wanted)
{
    TorController &c = bench.controller();
    c.strictMode.set(wanted.strict);
    if (wanted.exposed)
        bench.probe.directAnswer = IPCheck{false, u"198.51.100.7"_s};
    if (wanted.verified)
        bench.probe.torAnswer = IPCheck{*wanted.verified, u"203.0.113.10"_s};
    else
        bench.probe.torAnswer = ScriptedProbe::nothing();
    if (wanted.leaking) {
        DNSResolver leaking;
        leaking.nameservers = {u"192.168.1.1"_s};
        bench.resolvers.answer = {leaking};
    }
    if (!bench.connect())
        return false;
    if (wanted.note.isEmpty())
        bench.killWatcher();
    else
        bench.noteRules(wanted.note, 1);
    for (int tick = 0; tick < 5; ++tick)
        if (!bench.tick())
            return false;
    if (wanted.torDies) {
        bench.tor.stopListening();
        for (int tick = 0; tick < 3; ++tick)
            bench.tick();
    }
    settle();
    return c.phase() == (wanted.torDies ? ConnectionPhase::stale : ConnectionPhase::connected);
}

QString toneOf(const PanelModel &panel)
{
    switch (panel.tone()) {
    case PanelModel::Tone::Neutral:
        return u"neutral"_s;
    case PanelModel::Tone::Accent:
        return u"working"_s;
    case PanelModel::Tone::Good:
        return u"good"_s;
    case PanelModel::Tone::Info:
        return u"info"_s;
    case PanelModel::Tone::Warning:
        return u"warning"_s;
    case PanelModel::Tone::Danger:
        break;
    }
    return u"danger"_s;
}

// The panel and the report say the same of the exit.
bool agreeOnTheExit(const PanelModel &panel, const QStringList &report)
{
    const QString name = u"  Exit        "_s;
    const auto found = std::find_if(report.begin(), report.end(),
                                    [&name](const QString &line) { return line.startsWith(name); });
    if (found == report.end())
        return !panel.connected();
    const QString said = found->sliced(name.size());
    const QString shown = panel.verification();
    if (said == u"checking…"_s)
        return shown == u"Checking"_s;
    if (said == u"not checked yet"_s)
        return shown == u"Not checked"_s && panel.exitAddress() == u"Unknown"_s;
    if (said == u"the check service didn't answer through Tor"_s)
        return shown == u"Not confirmed"_s && panel.exitAddress() == u"Unknown"_s;
    return said
        == panel.exitAddress()
        + (shown == u"Verified"_s ? u", a Tor exit"_s : u", NOT a Tor exit"_s);
}

QStringList tried(const QStringList &report)
{
    const QString name = u"  Tried       "_s;
    QStringList steps;
    for (const QString &line : report) {
        if (line.startsWith(name))
            steps << line.sliced(name.size());
    }
    return steps;
}

} // namespace

// One session on every surface: the published state, the command line's report, the panel, the tray
// and the notifications agree, and none claims more than was verified.
class SurfacesTest : public QObject {
    Q_OBJECT

    PlatformProfile profile = PlatformProfile::linux(Places::below(QStringLiteral("/nowhere")));

private Q_SLOTS:
    void sayTheSameOfEverySession()
    {
        int isProtected = 0;
        int advised = 0;
        std::map<Verdict::Danger, int> dangers;
        for (const Case &one : cases()) {
            Workbench bench;
            ControllerSession session(bench.controller(), *bench.settings, bench.applications);
            PanelModel panel(session);
            Tray tray(session);
            Alerts alerts(session);
            QSignalSpy told(&alerts, &Alerts::told);
            QVERIFY2(make(bench, one), qPrintable(one.name()));
            QVERIFY(until([&] { return session.now().phase == bench.controller().phase(); }));
            const QByteArray name = one.name().toUtf8();

            const QJsonObject state = publishedState(bench.controller());
            const QString title = state.value(u"title"_s).toString();
            const QStringList report = Report::status(state).split(u'\n');
            QVERIFY2(panel.title() == title, name);
            QVERIFY2(bench.controller().title() == title, name);
            QVERIFY2(report.at(0) == title, name);
            QVERIFY2(tray.findChild<QSystemTrayIcon *>()->toolTip() == u"Veldmark: "_s + title,
                     name);
            QVERIFY2(panel.symbol() == state.value(u"menuBarSymbol"_s).toString(), name);
            QVERIFY2(toneOf(panel) == state.value(u"level"_s).toString(), name);
            QVERIFY2(panel.detail() == state.value(u"statusDetail"_s).toString(), name);
            QVERIFY2(report.at(1).trimmed() == panel.detail(), name);
            QVERIFY2(agreeOnTheExit(panel, report), name);

            // Every word on show, and the facts that it needs.
            QString words = report.join(u'\n') + panel.title() + panel.detail() + panel.leakText()
                + panel.leakHelp() + panel.error();
            const bool isConnected = !one.torDies;
            const bool isLocked = one.strict && one.rulesStand();
            const bool isSafe = isConnected && isLocked && !one.leaking && one.verified == true
                && bench.controller().leakStatus().kind() != LeakStatus::Kind::exposed;
            if (title == u"Protected"_s) {
                ++isProtected;
                QVERIFY2(isSafe, name);
            }
            const bool wasSeenOut = one.leaking || (one.strict && one.exposed);
            QVERIFY2(!words.contains(u"only Tor's traffic leaves"_s) || !wasSeenOut, name);
            for (const QString &claim : {u"locked to Tor"_s, u"only Tor's traffic leaves"_s,
                                         u"blocking traffic, so nothing leaked"_s,
                                         u"Direct path   blocked"_s, u"Direct path blocked"_s})
                QVERIFY2(!words.contains(claim) || isLocked, name + ": " + claim.toUtf8());
            for (const QString &claim : {u"No leaks"_s, u"that skip Tor are blocked"_s})
                QVERIFY2(!words.contains(claim) || isLocked, name);
            // nobody is told to turn on what is on
            const bool isAdvised = words.contains(u"Turn on Strict mode"_s);
            QVERIFY2(!isAdvised || !one.strict, name);
            advised += isAdvised;
            if (words.contains(u"so nothing leaked"_s))
                QVERIFY2(one.note == "standing", name);
            if (one.strict && one.note == "open") {
                QVERIFY2(title == u"Kill Switch Failed"_s, name);
                int danger = 0;
                for (const auto &notification : told)
                    danger += notification.at(0).toString() == u"Traffic can leave around Tor"_s
                        && notification.at(1).toString().startsWith(
                            u"The kill switch doesn't block traffic."_s);
                QVERIFY2(danger == 1, name);
            }
            // Other lasting dangers are told once as well. Without a danger there is no
            // notification.
            const auto danger = bench.controller().verdict().danger;
            const QString heading = danger == Verdict::Danger::dnsLeak
                ? u"Lookups can go around Tor"_s
                : danger == Verdict::Danger::exposed ? u"Traffic can leave around Tor"_s
                                                     : QString();
            const auto count = std::count_if(told.begin(), told.end(),
                                             [&heading](const auto &notification) {
                                                 return notification.at(0).toString() == heading;
                                             });
            QVERIFY2(heading.isEmpty() || count == 1, name);
            ++dangers[danger];
            const bool isWell = !one.exposed && !one.leaking && !one.torDies
                && (!one.strict || one.note == "standing");
            QVERIFY2(!isWell || told.isEmpty(), name);
        }
        QVERIFY(isProtected > 0 && advised > 0);
        QCOMPARE(dangers.size(), std::size_t(7)); // all there are
    }

    // The phases in between, another process's session, and a leftover session.
    void sayTheSameInEveryPhase()
    {
        for (const bool open : {false, true}) {
            Workbench bench;
            TorController &c = bench.controller();
            ControllerSession session(c, *bench.settings, bench.applications);
            PanelModel panel(session);
            Tray tray(session);
            QStringList titles;
            const auto agree = [&] {
                if (!until([&] {
                        return session.now().phase == c.phase()
                            && session.now().isAnothers == c.otherSession().has_value();
                    }))
                    return false;
                settle();
                const QJsonObject state = publishedState(c);
                const QString title = state.value(u"title"_s).toString();
                titles << title;
                const QStringList report = Report::status(state).split(u'\n');
                return panel.title() == title && report.at(0) == title
                    && tray.findChild<QSystemTrayIcon *>()->toolTip() == u"Veldmark: "_s + title
                    && panel.symbol() == state.value(u"menuBarSymbol"_s).toString()
                    && toneOf(panel) == state.value(u"level"_s).toString()
                    && panel.detail() == state.value(u"statusDetail"_s).toString()
                    && report.at(1).trimmed() == panel.detail() && agreeOnTheExit(panel, report);
            };
            QVERIFY(agree());
            bench.setBootstrap("PROGRESS=5 SUMMARY=\"Connecting\"");
            const auto connecting = c.connect();
            QVERIFY(bench.hears(Workbench::bootstrapCommand));
            QVERIFY(until([&] { return bench.clock.sleepers() == 2; }));
            if (open) {
                bench.noteRules("open", 1);
                bench.clock.advance(std::chrono::seconds(2));
            }
            QVERIFY(agree());
            bench.setBootstrap("PROGRESS=100");
            for (int second = 0; second < 3 && !connecting.isReady(); ++second) {
                bench.clock.advance(std::chrono::seconds(1));
                settle();
            }
            QVERIFY(Workbench::finished(connecting));
            QVERIFY(agree());
            bench.probe.beforeTorAnswer = [&bench] {
                return bench.clock.sleep(std::chrono::seconds(1));
            };
            const auto checking = c.runChecks();
            QVERIFY(until([&] { return session.now().isChecking; }));
            QVERIFY(agree());
            titles.removeLast();
            bench.clock.advance(std::chrono::seconds(1));
            bench.probe.beforeTorAnswer = nullptr;
            QVERIFY(Workbench::finished(checking));
            bench.writeFile(bench.profile.othersNote, "ufw\n");
            bench.hasCircuit = false;
            bench.setCounters("1000", "200");
            for (int tick = 0; tick < 7; ++tick)
                QVERIFY(bench.tick());
            QVERIFY(c.stall() == TrafficWatch::Stall::firewall);
            QVERIFY(agree());
            QVERIFY(open || panel.detail().endsWith(u"can't connect: ufw."_s));
            bench.hasCircuit = true;
            bench.setCounters("9000", "200");
            QVERIFY(bench.tick());
            QVERIFY(until([&] { return !c.stall() && !c.isChecking(); }));
            QVERIFY(agree());
            bench.cancelPrompt(u"disconnect"_s);
            bench.hold(u"disconnect"_s);
            const auto disconnecting = c.disconnect();
            QVERIFY(until([&] { return bench.processes.held() == 1; }));
            QVERIFY(agree());
            bench.processes.hold = nullptr;
            bench.processes.release();
            QVERIFY(Workbench::finished(disconnecting));
            QVERIFY(agree());
            OtherSession other(bench.profile);
            c.lookAtSession();
            QVERIFY(agree());
            other.end();
            c.lookAtSession();
            QVERIFY(agree());
            const QString up = open ? u"Kill Switch Failed"_s : u"Protected"_s;
            const QString stale = open ? u"Kill Switch Failed"_s : u"Needs Attention"_s;
            QCOMPARE(titles,
                     (QStringList{u"Not Protected"_s, open ? up : u"Connecting…"_s, up,
                                  open ? up : u"Nothing Gets Through"_s, up, u"Disconnecting…"_s,
                                  up, stale, stale}));
        }
    }

    void sayTheSameOfWhatWasTried()
    {
        for (const bool works : {true, false}) {
            Workbench bench;
            TorController &c = bench.controller();
            ControllerSession session(c, *bench.settings, bench.applications);
            PanelModel panel(session);
            c.customBridges.set(u"192.0.2.1:443"_s);
            c.climb.set(Climb::ask);
            bench.tor.reply("SETCONF UseBridges=1 Bridge=\"192.0.2.1:443\"", "250 OK\r\n");
            bench.setBootstrap("PROGRESS=5 TAG=conn SUMMARY=\"Connecting\"");
            int offers = 0;
            std::set<qsizetype> counts;
            const auto agree = [&] {
                settle();
                const QStringList report = Report::status(publishedState(c)).split(u'\n');
                const QString offer = panel.offer().isEmpty()
                    ? QString()
                    : u"  Offer       "_s + panel.offer() + u" Try them with: veldmarkctl climb"_s;
                offers += !offer.isEmpty();
                counts.insert(panel.steps().size());
                return session.now().phase == c.phase() && tried(report) == panel.steps()
                    && (offer.isEmpty() ? report.filter(u"  Offer "_s).isEmpty()
                                        : report.contains(offer));
            };
            const auto connecting = c.connect();
            QVERIFY(until([&] { return bench.clock.sleepers() == 2; }));
            for (int second = 0; second < 120 && c.phase() == ConnectionPhase::connecting;
                 ++second) {
                QVERIFY(agree());
                if (c.climbOffer())
                    QVERIFY(c.takeOffer());
                if (works && c.ladder().size() == 2)
                    bench.setBootstrap("PROGRESS=100 TAG=done SUMMARY=\"Done\"");
                const int before = bench.commandCount(Workbench::bootstrapCommand);
                bench.clock.advance(std::chrono::seconds(1));
                QVERIFY(until([&] {
                    return c.phase() != ConnectionPhase::connecting
                        || (bench.commandCount(Workbench::bootstrapCommand) > before
                            && bench.clock.sleepers() == 2);
                }));
            }
            QVERIFY(Workbench::finished(connecting));
            QVERIFY(c.phase() == (works ? ConnectionPhase::connected : ConnectionPhase::stale));
            QCOMPARE(c.ladder().size(), std::size_t(2)); // the published state keeps it
            QVERIFY(agree());
            QVERIFY(offers > 0 && counts == (std::set<qsizetype>{0, 2}));
            QCOMPARE(panel.steps().size(), works ? 0 : 2);
            bench.disconnect();
            QVERIFY(agree());
        }
    }

    // Every combination of the panel's and the tray's input, also those that no session of the
    // stand-in can reach.
    void promiseNoMoreThanTheVerdict()
    {
        StandInSession session(profile);
        PanelModel panel(session);
        Tray tray(session);
        auto *icon = tray.findChild<QSystemTrayIcon *>();
        int combinations = 0;
        for (const ConnectionPhase phase :
             {ConnectionPhase::disconnected, ConnectionPhase::connecting,
              ConnectionPhase::connected, ConnectionPhase::disconnecting, ConnectionPhase::stale})
            for (const std::optional<RoutingMode> mode :
                 {std::optional<RoutingMode>(), std::optional(RoutingMode::strict),
                  std::optional(RoutingMode::proxy)})
                for (const std::optional<State> rules :
                     {std::optional<State>(), std::optional(State::standing),
                      std::optional(State::putBack), std::optional(State::open),
                      std::optional(State::unknown)})
                    for (const LeakStatus &leak : everyLeak())
                        for (const DNSStatus &dns :
                             {DNSStatus::leak({}), DNSStatus::unknown(), DNSStatus::throughTor()})
                            for (const std::optional<bool> verified :
                                 {std::optional<bool>(), std::optional(false),
                                  std::optional(true)}) {
                                Snapshot s;
                                s.phase = phase;
                                s.activeMode = mode;
                                if (rules)
                                    s.killSwitch = KillSwitch{*rules, 0, {}};
                                s.leak = leak;
                                s.dns = dns;
                                s.torVerified = verified;
                                s.statusDetail = u"All traffic is locked to Tor"_s;
                                if (combinations % 3 == 1)
                                    s.stall = TrafficWatch::Stall::noAnswer;
                                session.show(s);
                                ++combinations;
                                const Verdict verdict = s.verdict();
                                QCOMPARE(panel.title(), verdict.title);
                                QCOMPARE(panel.symbol(), verdict.symbol);
                                QCOMPARE(panel.detail(), verdict.detail);
                                QCOMPARE(toneOf(panel), verdict.levelName());
                                if (panel.leakText() == u"No leaks"_s
                                    || panel.leakHelp().contains(u"are blocked"_s))
                                    QVERIFY(mode == RoutingMode::strict && s.killSwitch
                                            && s.killSwitch->blocks());
                                QCOMPARE(icon->toolTip(),
                                         u"Veldmark: "_s + verdict.title.english());
                            }
        QCOMPARE(combinations, 5 * 3 * 5 * 6 * 3 * 3);
    }

    // The report of any published state, also of one that no session can be in.
    void theReportClaimsOnlyWhatThePublishedStateHolds()
    {
        for (const char *phase :
             {"disconnected", "connecting", "connected", "disconnecting", "stale"})
            for (const char *mode : {"", "strict", "proxy"})
                for (const char *rules : {"", "standing", "putBack", "open", "unknown"}) {
                    QJsonObject state{{u"title"_s, u"T"_s},
                                      {u"phase"_s, QLatin1String(phase)},
                                      {u"leakStatus"_s, u"blocked"_s}};
                    if (*mode)
                        state.insert(u"activeMode"_s, QLatin1String(mode));
                    if (*rules) {
                        state.insert(u"killSwitch"_s, QLatin1String(rules));
                        state.insert(u"killSwitchSince"_s, u"2027-01-15T08:00:00Z"_s);
                    }
                    const QString report = Report::status(state);
                    const bool stands = QLatin1String(rules) == "standing"_L1
                        || QLatin1String(rules) == "putBack"_L1;
                    if (report.contains(u"only Tor's traffic leaves"_s))
                        QVERIFY(QLatin1String(mode) == "strict"_L1 && stands);
                    if (report.contains(u"Direct path blocked"_s))
                        QVERIFY(QLatin1String(mode) == "strict"_L1 && stands);
                    QCOMPARE(report.contains(u"Kill switch blocks traffic"_s), stands);
                    QCOMPARE(report.contains(u"NOT BLOCKING since"_s),
                             QLatin1String(rules) == "open"_L1);
                    QCOMPARE(report.contains(u"isn't known to block traffic"_s),
                             QLatin1String(rules) == "unknown"_L1);
                }
    }
};

VELDMARK_WINDOWED_TEST(SurfacesTest)
#include "SurfacesTest.moc"
