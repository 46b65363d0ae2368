#include "Scenes.h"

#include <array>

namespace veldmark::Scenes {

namespace {

RelayInfo relay(int number)
{
    static const std::array countries{"de", "nl", "se", "fr", "ch", "us", "fi", "ro"};
    static const std::array names{"quietharbor",   "Kastanie", "northwind7", "relaisparis",
                                  "alpenglow",     "DFRI42",   "sammakko",   "bucegi",
                                  "ForPrivacyNET", "tulip"};
    const auto index = static_cast<size_t>(number);
    RelayInfo relay;
    relay.fingerprint = QStringLiteral("%1").arg(number, 40, 16, QLatin1Char('0')).toUpper();
    relay.nickname = QLatin1String(names[index % names.size()])
        + (number < 10 ? QString() : QString::number(number));
    relay.ip = QStringLiteral("192.0.2.%1").arg(number % 250);
    relay.country = QLatin1String(countries[index % countries.size()]);
    return relay;
}

} // namespace

std::vector<CircuitInfo> circuits(int count)
{
    std::vector<CircuitInfo> list;
    for (int i = 0; i < count; ++i) {
        CircuitInfo circuit;
        circuit.id = QString::number(11 + i);
        circuit.hops = {relay(i % 3), relay(4 + (i * 7) % (8 + count / 2)),
                        relay(3 + (i * 5) % (7 + count / 2))};
        circuit.purpose = QStringLiteral("GENERAL");
        if (i < 2 && count > 1) {
            circuit.purpose = QStringLiteral("CONFLUX");
            circuit.confluxID = QStringLiteral("A1");
            circuit.hops[2] = relay(5);
            circuit.roundTrip = std::chrono::milliseconds(182 + 61 * i);
        }
        if (i % 2 == 0)
            circuit.sites << QStringLiteral("www.example.org");
        if (i == 2)
            circuit.sites << QStringLiteral("static.images.example.net")
                          << QStringLiteral("mail.example.com")
                          << QStringLiteral("forum.example.org")
                          << QStringLiteral("cdn.example.net");
        list.push_back(circuit);
    }
    if (list.size() > 1)
        list[0].hops[2].ip = QStringLiteral("203.0.113.10");
    return list;
}

Snapshot protectedSession()
{
    Snapshot s;
    s.torPath = QStringLiteral("/usr/bin/tor");
    s.phase = ConnectionPhase::connected;
    s.activeMode = RoutingMode::strict;
    s.statusDetail = Text::tr("All traffic is locked to Tor");
    s.killSwitch = KillSwitch{KillSwitch::State::standing, 0,
                              QDateTime::fromSecsSinceEpoch(1'800'000'000, Qt::UTC)};
    s.exitIP = QStringLiteral("203.0.113.10");
    s.torVerified = true;
    s.leak = LeakStatus::blocked();
    s.dns = DNSStatus::throughTor();
    s.bytesRead = 48'213'004;
    s.bytesWritten = 3'100'480;
    s.circuits = circuits(6);
    s.markerPresent = true;
    s.openAtLogin = false;
    return s;
}

Findings findings()
{
    using Level = Finding::Level;
    const auto text = [](const char *words) { return QString::fromUtf8(words); };
    return {
        {text("tor"),
         Level::good,
         Text::tr("Tor %1 is installed: %2.").arg(text("0.4.9.11"), text("/usr/bin/tor")),
         {}},
        {text("nftables"), Level::problem,
         Text::tr("nftables isn't installed. Veldmark's firewall needs it."),
         text("sudo apt install nftables")},
        {text("firewalls"), Level::note,
         Text::tr(
             "Other programs set firewall rules here: %1. Veldmark leaves their rules alone. Rules that drop packets can block Tor.")
             .arg(text("firewalld, Docker")),
         text("sudo nft list ruleset")},
        {text("clock"), Level::unknown,
         Text::tr(
             "It isn't known whether the clock is right: no time service seems to set it. It shows %1. Tor needs it right to within minutes.")
             .arg(text("2026-11-22 01:00 UTC")),
         text("sudo timedatectl set-ntp true")},
        {text("session"), Level::note,
         Text::tr(
             "The network is still set up for Tor from an earlier session, and no Tor runs. Connect again, or restore the network."),
         text("veldmarkctl restore"), Finding::Button::restore}};
}

std::vector<Scene> panel()
{
    std::vector<Scene> scenes;
    const auto add = [&scenes](const char *name, const Snapshot &s) {
        scenes.push_back({QString::fromLatin1(name), s});
    };
    Snapshot idle;
    idle.torPath = QStringLiteral("/usr/bin/tor");
    add("disconnected-strict", idle);
    Snapshot s = idle;
    s.choices.strictMode = false;
    s.choices.exitCountry = QStringLiteral("de");
    s.choices.bridgeChoice = BridgeChoice::snowflake;
    add("disconnected-proxy-country-bridges-missing", s);
    s.transportDownload = Text::tr("Starting…");
    add("disconnected-proxy-downloading", s);
    s = idle;
    s.torPath.reset();
    add("disconnected-no-tor", s);
    s.errorMessage = Text::tr(
        "The settings couldn't be saved. Changes to them may last only until you quit.");
    add("disconnected-no-tor-error", s);
    s = idle;
    s.errorMessage = Text::tr("Tor didn't finish connecting within 5 minutes. (%1)")
                         .arg(QStringLiteral("Connection refused"));
    add("disconnected-error", s);
    s = idle;
    s.choices.exitCountry = QStringLiteral("at");
    s.choices.bridgeChoice = BridgeChoice::obfs4;
    s.transports.lyrebird = QStringLiteral("/usr/bin/lyrebird");
    s.transports.builtin = {
        {QStringLiteral("obfs4"), {QStringLiteral("obfs4 192.0.2.1:443 cert=a")}}};
    s.transports.source = QStringLiteral("Tor Browser");
    s.choices.terminalMode = true;
    s.terminalError
        = Text::tr("Couldn't set up terminal mode: %1")
              .arg(Text::tr("%1 is read-only.").arg(QStringLiteral("/home/user/.bashrc")));
    add("disconnected-unlisted-country-terminal-error", s);
    s = idle;
    s.choices.bridgeChoice = BridgeChoice::custom;
    s.choices.bypassApps = {QStringLiteral("/usr/share/applications/org.example.Game.desktop")};
    add("disconnected-custom-bridges", s);

    s = idle;
    s.choices.bridgeChoice = BridgeChoice::obfs4;
    s.errorMessage = Text::tr(
        "obfs4 bridges need lyrebird, and it isn't on this computer. Click Download next to "
        "Bridges to get it.");
    add("disconnected-error-programs-missing", s);

    s = idle;
    s.phase = ConnectionPhase::connecting;
    s.activeMode = RoutingMode::strict;
    s.statusDetail = Text::tr("Waiting for administrator approval…");
    add("connecting-approval", s);
    s.bootstrapProgress = 0.45;
    s.canCancel = true;
    s.statusDetail = QStringLiteral("Asking for relay descriptors");
    add("connecting-strict", s);
    s.bootstrapProblem = Text::tr("Tor reports: %1.").arg(QStringLiteral("Connection refused"));
    add("connecting-strict-waiting", s);
    s.bootstrapProblem.reset();
    s.bootstrapProgress = 0.05;
    s.statusDetail = QStringLiteral("Connecting to a relay");
    s.climbOffer = Text::tr("Tor cannot connect in this network. Veldmark can try bridges: %1.")
                       .arg(QStringLiteral("obfs4, Snowflake"));
    add("connecting-strict-offer", s);
    s.climbOffer.reset();
    s.activeBridge = BridgeChoice::obfs4;
    s.ladder = {{BridgeChoice::off, Text::tr("Refused, or out of reach."), 5},
                {BridgeChoice::custom, Text::tr("No answer."), 15},
                {BridgeChoice::obfs4, Text::tr("Being tried…"), {}}};
    add("connecting-strict-ladder", s);
    s.ladder.clear();
    s.activeBridge.reset();
    s.activeMode = RoutingMode::proxy;
    s.choices.strictMode = false;
    s.bootstrapProgress = 1;
    s.statusDetail = QStringLiteral("Done");
    add("connecting-proxy", s);
    s.activeBridge = BridgeChoice::obfs4;
    s.bootstrapProgress = 0.14;
    s.statusDetail = QStringLiteral("Handshaking with a relay");
    add("connecting-proxy-bridge", s);

    s = protectedSession();
    add("connected-strict-verified", s);
    s.activeBridge = BridgeChoice::snowflake;
    s.transports.snowflake = QStringLiteral("/usr/bin/snowflake-client");
    s.transports.builtin = {
        {QStringLiteral("snowflake"), {QStringLiteral("snowflake 192.0.2.3:80")}}};
    s.transports.source = QStringLiteral("Tor Browser");
    add("connected-strict-bridge", s);
    s = protectedSession();
    s.isOptimizing = true;
    s.optimizeStatus = Text::tr("Testing speed (%1 of %2)…").arg(1).arg(3);
    add("connected-strict-optimizing", s);
    s = protectedSession();
    s.exitIP.reset();
    s.torVerified.reset();
    s.isChecking = true;
    s.leak = LeakStatus::checking();
    s.circuits.clear();
    add("connected-strict-checking", s);
    s.isChecking = false;
    s.leak = LeakStatus::notTested();
    s.dns = DNSStatus::unknown();
    add("connected-strict-not-tested", s);
    s.torVerified = false;
    s.leak = LeakStatus::inconclusive();
    add("connected-strict-unconfirmed", s);
    s = protectedSession();
    s.stall = TrafficWatch::Stall::noNetwork;
    s.exitIP.reset();
    s.torVerified.reset();
    add("connected-strict-no-network", s);
    s.stall = TrafficWatch::Stall::vpn;
    add("connected-strict-vpn", s);
    s = protectedSession();
    s.leak = LeakStatus::inconclusive();
    s.dns = DNSStatus::unverified();
    add("connected-strict-inconclusive", s);
    s = protectedSession();
    s.leak = LeakStatus::exposed(QStringLiteral("198.51.100.23"));
    add("connected-strict-exposed", s);
    s = protectedSession();
    s.killSwitch->state = KillSwitch::State::open;
    s.leak = LeakStatus::notTested();
    s.errorMessage = Text::tr(
        "Another program removed Veldmark's firewall rules and they could not be put back. Traffic "
        "may leave this computer directly. Disconnect and connect again.");
    add("connected-strict-open", s);
    s.killSwitch->state = KillSwitch::State::unknown;
    s.errorMessage = Text::tr(
        "The watcher of Veldmark's firewall rules has stopped reporting, so it isn't known whether the kill switch blocks traffic. Disconnect and connect again.");
    add("connected-strict-unknown", s);
    s = protectedSession();
    s.dns = DNSStatus::leak({QStringLiteral("192.168.1.1 on eth0"),
                             QStringLiteral("10.0.0.53, 10.0.0.54 for *.corp.example on tun0"),
                             QStringLiteral("9.9.9.9 on wlan0"), QStringLiteral("fd00::1 on eth1"),
                             QStringLiteral("fd00::2 on eth1")});
    add("connected-strict-dns-leak", s);
    s = protectedSession();
    s.killSwitch.reset();
    s.activeMode = RoutingMode::proxy;
    s.choices.strictMode = false;
    s.statusDetail = Text::tr("Apps that use system proxy settings go through Tor");
    s.leak = LeakStatus::inconclusive();
    add("connected-proxy", s);
    s.leak = LeakStatus::checking();
    s.dns = DNSStatus::checking();
    s.isChecking = true;
    s.torVerified.reset();
    s.exitIP.reset();
    add("connected-proxy-checking", s);
    s.isChecking = false;
    s.torVerified = false;
    s.leak = LeakStatus::notTested();
    add("connected-proxy-unconfirmed", s);
    s.torVerified = true;
    s.leak = LeakStatus::exposed(QStringLiteral("2001:db8:85a3:8d3:1319:8a2e:370:7348"));
    s.exitIP = QStringLiteral("2001:db8:ffff:ffff:ffff:8a2e:370:1234");
    add("connected-proxy-exposed-ipv6", s);
    s.dns = DNSStatus::leak({QStringLiteral("192.168.1.1 on eth0")});
    add("connected-proxy-dns-leak", s);

    s = protectedSession();
    s.phase = ConnectionPhase::disconnecting;
    s.statusDetail = Text::tr("Restoring your network settings…");
    s.bootstrapProgress = 1; // as Tor reported last
    add("disconnecting-strict", s);
    s.activeMode = RoutingMode::proxy;
    s.choices.strictMode = false;
    add("disconnecting-proxy", s);

    s = idle;
    s.phase = ConnectionPhase::stale;
    s.activeMode = RoutingMode::strict;
    s.markerPresent = true;
    s.statusDetail = Text::tr("Tor stopped running");
    s.errorMessage = Text::tr(
        "Tor stopped running. The kill switch is still blocking traffic, so nothing "
        "leaked. Reconnect, or Restore Network to go back online.");
    add("stale-strict-tor-died", s);
    s.killSwitch = KillSwitch{KillSwitch::State::open, 1,
                              QDateTime::fromSecsSinceEpoch(1'800'000'000, Qt::UTC)};
    s.errorMessage = Text::tr(
        "Tor stopped running, and the kill switch doesn't block traffic: another program removed its rules. Traffic may leave this computer directly. Reconnect, or Restore Network.");
    add("stale-strict-open", s);
    s.killSwitch.reset();
    s.activeMode = RoutingMode::proxy;
    s.choices.strictMode = false;
    s.errorMessage = Text::tr(
        "Tor stopped running. Apps using the proxy can't connect until you reconnect or "
        "Restore Network.");
    add("stale-proxy-tor-died", s);
    s.activeMode = RoutingMode::strict;
    s.choices.strictMode = true;
    s.ladder = {{BridgeChoice::off, Text::tr("No answer."), 15},
                {BridgeChoice::obfs4,
                 Text::tr("Something answered, but Tor made no further progress."), 34}};
    s.errorMessage = Text::tr("Tor cannot connect in this network. Tried: %1.")
                         .arg(QStringLiteral("Direct, obfs4"));
    s.statusDetail = Text::tr("Tor didn't finish connecting");
    add("stale-strict-ladder", s);
    s.ladder.clear();
    s.errorMessage.reset();
    s.statusDetail = Text::tr("Your network is still set up for Tor from an earlier session");
    add("stale-strict", s);
    s.activeMode.reset();
    s.statusDetail = Text::tr("Your network is still set up for Tor from an earlier session");
    add("stale-proxy", s);
    s.activeMode = RoutingMode::strict;
    s.killSwitch = protectedSession().killSwitch;
    s.isAnothers = true;
    s.statusDetail = QStringLiteral(
        "Your network is set up for Tor by alexandra, whose Veldmark is process 48213");
    add("stale-strict-another-user", s);
    return scenes;
}

QString report()
{
    return QStringLiteral(
        "Veldmark report, 2026-11-23T06:19:54Z\n\n"
        "Addresses, names, bridges, fingerprints, links, keys and paths in a home are\n"
        "replaced.\n\n== Settings ==\nstrictMode: true\ncustomTorPath: path-1\n"
        "customBridges: obfs4 bridge-1\n\n== Session ==\n"
        "errorMessage: Tor at ~/path-2 didn't start: bridge-1:443 doesn't answer\n"
        "exitIP: address-1\n\n== Phases, in UTC ==\n"
        "2026-11-23T06:19:54.123Z connecting\n2026-11-23T06:21:04.500Z stale\n\n"
        "== Rules ==\nnot readable without root\n\n== Tor's log ==\n"
        "Nov 23 06:19:58.000 [warn] Proxy Client: unable to connect OR connection "
        "(handshaking (proxy)) with bridge-1:443 (\"general SOCKS server failure\")\n");
}

QList<TorLogLine> log(int count)
{
    static const std::array<std::pair<TorLogLine::Level, const char *>, 7> texts{{
        {TorLogLine::Level::notice,
         "Tor 0.4.7.16 running on Linux with Libevent 2.1.12-stable, OpenSSL 3.0.15"},
        {TorLogLine::Level::notice, "Opened Socks listener connection (ready) on 127.0.0.1:9050"},
        {TorLogLine::Level::notice,
         "Bootstrapped 45% (requesting_descriptors): Asking for relay descriptors"},
        {TorLogLine::Level::warning,
         "Guard quietharbor ($0000000000000000000000000000000000000001) is failing more circuits than usual. Most likely this means the Tor network is overloaded. Success counts are 141/203."},
        {TorLogLine::Level::info, "launcher: tor started"},
        {TorLogLine::Level::error,
         "Could not bind to 127.0.0.1:9051: Address already in use. Is Tor already running?"},
        {TorLogLine::Level::notice, "Bootstrapped 100% (done): Done"},
    }};
    QList<TorLogLine> lines;
    for (int i = 0; i < count; ++i) {
        const auto &[level, text] = texts[static_cast<size_t>(i) % texts.size()];
        TorLogLine line;
        line.level = level;
        line.message = QString::fromUtf8(text);
        if (level != TorLogLine::Level::info)
            line.time = QStringLiteral("Nov 16 09:%1:%2.123")
                            .arg(i / 60 % 60, 2, 10, QLatin1Char('0'))
                            .arg(i % 60, 2, 10, QLatin1Char('0'));
        line.raw = line.time.value_or(QString()) + u' ' + line.message + QString::number(i);
        lines << line;
    }
    return lines;
}

} // namespace veldmark::Scenes
