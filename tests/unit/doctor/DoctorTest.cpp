#include "TestMachine.h"
#include "support/OtherSession.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace veldmark;
using Level = Finding::Level;

namespace {

constexpr auto bundleFolder = "home/user/.local/share/veldmark/TorExpertBundle";

// A change of a computer on which a connect works, and the expected finding.
struct Case {
    const char *title;
    std::function<void(TestMachine &)> change;
    const char *name; // of the finding
    Level level;
    const char *words;   // in its sentence
    const char *command; // the whole command, or nothing
};

void addHolder(TestMachine &m, const QByteArray &name, uid_t user, const QByteArray &unit)
{
    m.listens("/proc/net/tcp", {{"0100007F", 9050, user, 7001}});
    m.process(812, name, user, unit);
}

// obfs4 bridges whose program is in a downloaded bundle, with or without the files that root
// verifies it with.
void useBundle(TestMachine &m, bool isKept)
{
    const QByteArray folder = QByteArray("/") + bundleFolder;
    const QByteArray lyrebird = folder + "/tor/pluggable_transports/lyrebird";
    m.program(lyrebird);
    m.program("/usr/bin/gpgv");
    if (isKept) {
        for (const char *name : {"", ".asc", ".key"})
            m.write(folder + "/origin/bundle.tar.gz" + name, "x");
    }
    m.machine.transports.lyrebird = m.at(lyrebird);
    m.machine.bridges = {
        BridgeChoice::custom,
        QStringLiteral(
            "obfs4 192.0.2.7:443 0123456789ABCDEF0123456789ABCDEF01234567 cert=x iat-mode=0"),
        false};
}

// ufw with the files of Debian's package and these rules of the user.
void makeUfwDeny(TestMachine &m, const QByteArray &rules)
{
    m.write("/etc/ufw/ufw.conf", "ENABLED=yes\n");
    m.write("/etc/default/ufw", "DEFAULT_OUTPUT_POLICY=\"REJECT\"\n");
    m.write("/etc/ufw/before.rules",
            "*filter\n:ufw-before-output - [0:0]\n-A ufw-before-output -o lo -j ACCEPT\n"
            "-A ufw-before-input -p tcp -j ACCEPT\n"
            "-A ufw-before-output -m conntrack --ctstate RELATED,ESTABLISHED -j ACCEPT\nCOMMIT\n");
    m.write("/etc/ufw/before6.rules",
            "*filter\n-A ufw6-before-output -m rt --rt-type 0 -j DROP\n"
            "-A ufw6-before-output -p icmpv6 --icmpv6-type echo-request -j ACCEPT\nCOMMIT\n");
    for (const char *name : {"after", "after6", "user6"})
        m.write(QByteArray("/etc/ufw/") + name + ".rules", "*filter\nCOMMIT\n");
    m.write("/etc/ufw/user.rules", "*filter\n:ufw-user-output - [0:0]\n" + rules + "COMMIT\n");
}

const std::vector<Case> &cases()
{
    static const std::vector<Case> list{
        {"no tor", [](TestMachine &m) { m.remove("/usr/bin/tor"); }, "tor", Level::problem,
         "Tor isn't installed", "sudo apt install tor tor-geoipdb"},
        {"a tor that doesn't start", [](TestMachine &m) { m.machine.torVersion.reset(); }, "tor",
         Level::problem, "/usr/bin/tor doesn't start", "sudo apt install --reinstall tor"},
        {"another program called tor",
         [](TestMachine &m) { m.machine.torVersion = QStringLiteral("usage: tor FILE"); }, "tor",
         Level::problem, "isn't Tor", "sudo apt install --reinstall tor"},
        {"an old tor, which a connect has check its configuration",
         [](TestMachine &m) { m.machine.torVersion = QStringLiteral("Tor version 0.4.6.12."); },
         "tor", Level::good, "Tor 0.4.6.12 is installed", nullptr},
        {"a location of tor that is no program",
         [](TestMachine &m) { m.machine.customTor = QStringLiteral("/opt/none/tor"); }, "tor",
         Level::note, "/opt/none/tor, is not an executable program",
         "veldmarkctl set customTorPath \"\""},
        {"a location of tor that is no whole path, which a connect refuses",
         [](TestMachine &m) { m.machine.customTor = QStringLiteral(" bin/tor "); }, "tor",
         Level::problem, "\"bin/tor\" is not a location of Tor",
         "veldmarkctl set customTorPath \"\""},
        {"a tor of the user's",
         [](TestMachine &m) {
             m.program("/home/user/tor", "another\n");
             m.machine.customTor = m.at("/home/user/tor");
         },
         "tor", Level::note,
         "installed ROOT/home/user/tor. The next connect asks an administrator to approve it",
         nullptr},
        {"a tor of the user's that was approved",
         [](TestMachine &m) {
             m.program("/home/user/tor", "another\n");
             m.approve("another\n", "tor");
             m.machine.customTor = m.at("/home/user/tor");
         },
         "tor", Level::good, "is installed: ROOT/home/user/tor.", nullptr},
        {"an exit country that no window would set",
         [](TestMachine &m) { m.machine.exitCountry = QStringLiteral("DE"); }, "exit",
         Level::problem, "Invalid exit country", "veldmarkctl set exitCountry \"\""},
        {"an exit country", [](TestMachine &m) { m.machine.exitCountry = QStringLiteral("de"); },
         "tor", Level::good, "is installed", nullptr},
        {"Debian's own service",
         [](TestMachine &m) { addHolder(m, "tor", 108, "system-tor.slice/tor@default.service"); },
         "ports", Level::note, "(tor@default.service) runs. Veldmark stops it", nullptr},
        {"Debian's own service, whose ports root has opened",
         [](TestMachine &m) {
             m.listens("/proc/net/tcp", {{"0100007F", 9050, 0, 7001}});
             m.process(812, "tor", 108, "system-tor.slice/tor@default.service");
         },
         "ports", Level::note, "(tor@default.service) runs. Veldmark stops it", nullptr},
        {"another service's tor",
         [](TestMachine &m) { addHolder(m, "tor", 108, "tor@other.service"); }, "ports",
         Level::problem,
         "The port 9050, which Tor needs, is held by tor (process 812, account debian-tor)",
         "sudo systemctl stop tor@other.service"},
        {"another user's program on the port", [](TestMachine &m) { addHolder(m, "nc", 4343, {}); },
         "ports", Level::problem, "held by nc (process 812, account bob)", "sudo kill 812"},
        {"a holder that is called something terrible",
         [](TestMachine &m) { addHolder(m, "\x1b[2Jn\x07", 4343, {}); }, "ports", Level::problem,
         "held by ?[2Jn?", "sudo kill 812"},
        {"a program of an account with several",
         [](TestMachine &m) {
             addHolder(m, "nc", 4343, {});
             m.process(813, "cat", 4343);
         },
         "ports", Level::problem, "held by a program of the account bob",
         "sudo ss -lpn sport = :9050"},
        {"a program of one's own, known by its socket",
         [](TestMachine &m) {
             addHolder(m, "nc", TestMachine::alice, {});
             m.hasSocket(812, 7001);
         },
         "ports", Level::problem, "held by nc (process 812, account alice)", "sudo kill 812"},
        {"a port on every address",
         [](TestMachine &m) {
             m.process(812, "nc", 4343);
             m.listens("/proc/net/tcp", {{"00000000", 9051, 4343, 1}});
         },
         "ports", Level::problem, "The port 9051", "sudo kill 812"},
        {"the port for lookups",
         [](TestMachine &m) {
             m.process(812, "nc", 4343);
             m.listens("/proc/net/udp", {{"0100007F", 293, 4343, 1, "07"}});
         },
         "ports", Level::problem, "The port 293", "sudo kill 812"},
        {"a port on every IPv6 address, which is mostly every address",
         [](TestMachine &m) {
             m.process(812, "tor", 4343);
             m.listens("/proc/net/tcp6", {{QByteArray(32, '0'), 9050, 4343, 1}});
         },
         "ports", Level::unknown,
         "held by tor (process 812, account bob). The program listens on IPv6.", "sudo kill 812"},
        {"a port on every IPv6 address, of an account with several programs",
         [](TestMachine &m) {
             addHolder(m, "nc", 4343, {});
             m.listens("/proc/net/tcp", {});
             m.process(813, "cat", 4343);
             m.listens("/proc/net/tcp6", {{QByteArray(32, '0'), 9051, 4343, 1}});
         },
         "ports", Level::unknown, "a program of the account bob. The program listens on IPv6.",
         "sudo ss -lpn sport = :9051"},
        {"Debian's own service on every IPv6 address",
         [](TestMachine &m) {
             m.process(812, "tor", 108, "system-tor.slice/tor@default.service");
             m.listens("/proc/net/tcp6", {{QByteArray(32, '0'), 9050, 108, 7001}});
         },
         "ports", Level::note, "(tor@default.service) runs. Veldmark stops it", nullptr},
        {"a port on our own address, by a socket of IPv6",
         [](TestMachine &m) {
             m.process(812, "nc", 4343);
             m.listens("/proc/net/tcp6", {{"0000000000000000FFFF00000100007F", 9051, 4343, 1}});
         },
         "ports", Level::problem, "The port 9051", "sudo kill 812"},
        {"our own Tor",
         [](TestMachine &m) {
             m.listens("/proc/net/tcp", {{"0100007F", 9050, 990, 1}, {"0100007F", 9051, 990, 2}});
         },
         "ports", Level::good, "Veldmark's own Tor holds", nullptr},
        {"no nftables", [](TestMachine &m) { m.remove("/usr/bin/nft"); }, "nftables",
         Level::problem, "nftables isn't installed", "sudo apt install nftables"},
        {"a kernel without nftables",
         [](TestMachine &m) {
             m.remove("/sys/module/nf_tables");
             m.write("/lib/modules/6.1.0-18-amd64/modules.dep", "kernel/fs/ext4.ko:\n");
         },
         "nftables", Level::problem, "The running kernel (6.1.0-18-amd64) has no nftables",
         "sudo reboot"},
        {"a kernel that could load nftables",
         [](TestMachine &m) {
             m.remove("/sys/module/nf_tables");
             m.write("/lib/modules/6.1.0-18-amd64/modules.dep",
                     "kernel/net/netfilter/nf_tables.ko: kernel/lib/crc.ko\n");
         },
         "nftables", Level::good, "the kernel has it", nullptr},
        {"a kernel that cannot be seen", [](TestMachine &m) { m.remove("/sys/module/nf_tables"); },
         "nftables", Level::unknown, "Only root can tell", "sudo nft list tables"},
        {"nft that fails for root",
         [](TestMachine &m) {
             m.machine.firewallComplaint = QStringLiteral("Operation not permitted");
         },
         "nftables", Level::problem, "can't be used: Operation not permitted",
         "sudo modprobe nf_tables"},
        {"firewalld and Docker",
         [](TestMachine &m) {
             m.process(401, "firewalld", 0, "firewalld.service");
             m.process(402, "dockerd", 0, "docker.service");
         },
         "firewalls", Level::note, "here: firewalld, Docker.", "sudo nft list ruleset"},
        {"ufw that is on",
         [](TestMachine &m) {
             m.write("/etc/ufw/ufw.conf", "# comment\nENABLED=yes\nLOGLEVEL=low\n");
         },
         "firewalls", Level::note, "here: ufw.", "sudo nft list ruleset"},
        {"ufw that denies what goes out",
         [](TestMachine &m) {
             m.write("/etc/ufw/ufw.conf", "ENABLED=yes\n");
             m.write("/etc/default/ufw",
                     "DEFAULT_INPUT_POLICY=\"DROP\"\nDEFAULT_OUTPUT_POLICY=\"DROP\"\n");
         },
         "firewalls", Level::unknown, "so Tor may not get through: ufw.",
         "sudo ufw default allow outgoing"},
        {"ufw that denies what goes out, to a reader of its rules",
         [](TestMachine &m) { makeUfwDeny(m, {}); }, "firewalls", Level::problem,
         "none of its rules allows any, so Tor can't get through: ufw.",
         "sudo ufw default allow outgoing"},
        {"ufw that denies what goes out but the web's port",
         [](TestMachine &m) {
             makeUfwDeny(m, "-A ufw-user-output -p tcp --dport 443 -j ACCEPT\n");
         },
         "firewalls", Level::unknown, "so Tor may not get through: ufw.",
         "sudo ufw default allow outgoing"},
        {"ufw that denies what goes out but what a chain of the administrator's allows",
         [](TestMachine &m) { makeUfwDeny(m, "-A ufw-user-output -j mine\n"); }, "firewalls",
         Level::unknown, "so Tor may not get through: ufw.", "sudo ufw default allow outgoing"},
        {"ufw that denies what goes out, and the mail besides",
         [](TestMachine &m) { makeUfwDeny(m, "-A ufw-user-output -p tcp --dport 25 -j REJECT\n"); },
         "firewalls", Level::problem, "so Tor can't get through: ufw.",
         "sudo ufw default allow outgoing"},
        {"what the helper has found of others",
         [](TestMachine &m) {
             m.write("/var/lib/veldmark/state/active", "strict\n");
             m.write("/run/veldmark.others", "firewalld\ntable ip filter\n\x1b[2J\n");
         },
         "firewalls", Level::unknown, "so Tor may not get through: firewalld, table ip filter.",
         "sudo nft list ruleset"},
        {"what it found in a session that is over",
         [](TestMachine &m) { m.write("/run/veldmark.others", "firewalld\n"); },
         "firewalls",
         Level::good,
         "No other firewall",
         {}},
        {"ufw that lets out",
         [](TestMachine &m) {
             m.write("/etc/ufw/ufw.conf", "ENABLED=yes\n");
             m.write(
                 "/etc/default/ufw",
                 "DEFAULT_INPUT_POLICY=\"DROP\"\n#DEFAULT_OUTPUT_POLICY=\"DROP\"\nDEFAULT_OUTPUT_POLICY=\"ACCEPT\"\n");
         },
         "firewalls", Level::note, "here: ufw.", "sudo nft list ruleset"},
        {"ufw that is off",
         [](TestMachine &m) { m.write("/etc/ufw/ufw.conf", "#ENABLED=yes\nENABLED=no\n"); },
         "firewalls", Level::good, "No other firewall that Veldmark knows", nullptr},
        {"rules that are loaded at boot",
         [](TestMachine &m) {
             m.write("/etc/systemd/system/sysinit.target.wants/nftables.service", "");
         },
         "firewalls", Level::note, "here: nftables.service.", "sudo nft list ruleset"},
        {"no control groups",
         [](TestMachine &m) {
             m.write("/proc/self/mountinfo", "30 23 0:26 / /sys/fs/cgroup rw - tmpfs tmpfs rw\n");
         },
         "cgroups", Level::note, "no control groups of version 2", nullptr},
        {"an old kernel",
         [](TestMachine &m) { m.write("/proc/sys/kernel/osrelease", "5.10.0-9-amd64\n"); },
         "cgroups", Level::note, "older than 5.13", nullptr},
        {"a program of the helper's", [](TestMachine &m) { m.remove("/usr/bin/setpriv"); },
         "programs", Level::problem, "The program setpriv is missing",
         "sudo apt install util-linux"},
        {"useradd, with no account yet",
         [](TestMachine &m) {
             m.remove("/usr/bin/useradd");
             m.write("/etc/passwd", "alice:x:4242:4242::/home/user:/bin/bash\n");
         },
         "programs", Level::problem, "useradd is missing", "sudo apt install passwd"},
        {"useradd, with the account there", [](TestMachine &m) { m.remove("/usr/bin/useradd"); },
         "programs", Level::good, "Every program", nullptr},
        {"no helper", [](TestMachine &m) { m.remove("/usr/share/veldmark"); }, "helper",
         Level::problem, "The helper is missing. Reinstall Veldmark.",
         "sudo apt install --reinstall veldmark"},
        {"a helper of a user's",
         [](TestMachine &m) {
             m.machine.owner = [](const QString &) { return FileOwner{4343, 0755}; };
         },
         "helper", Level::note, "the account bob can change it", "./build.sh package"},
        {"a helper in a folder that others can write",
         [](TestMachine &m) {
             m.machine.owner = [](const QString &path) {
                 return FileOwner{0, path.endsWith(QStringLiteral("/share")) ? 0777u : 0755u};
             };
         },
         "helper", Level::note, "Accounts other than root can change", "./build.sh package"},
        {"an outdated copy for use without a password",
         [](TestMachine &m) {
             m.write("/usr/local/libexec/veldmark/veldmark-helper.sh", "old");
             m.write("/etc/sudoers.d/veldmark", "rule");
         },
         "helper", Level::note, "belongs to another version",
         "sudo bash ROOT/usr/share/veldmark/veldmark-helper.sh install-privileged --user alice"},
        {"no pkexec", [](TestMachine &m) { m.remove("/usr/bin/pkexec"); }, "polkit", Level::note,
         "pkexec isn't installed", "sudo apt install pkexec"},
        {"no pkexec and no sudo",
         [](TestMachine &m) {
             m.remove("/usr/bin/pkexec");
             m.remove("/usr/bin/sudo");
         },
         "polkit", Level::problem, "pkexec isn't installed", "sudo apt install pkexec"},
        {"no polkit", [](TestMachine &m) { m.remove("/proc/300"); }, "polkit", Level::note,
         "polkit isn't installed", "sudo apt install polkitd"},
        {"polkit that is started when it is wanted",
         [](TestMachine &m) {
             m.remove("/proc/300");
             m.write("/usr/share/dbus-1/system-services/org.freedesktop.PolicyKit1.service", "");
         },
         "polkit", Level::good, "polkit is installed", nullptr},
        {"no desktop", [](TestMachine &m) { m.machine.hasDesktop = false; }, "polkit", Level::note,
         "There is no desktop here", "sudo veldmarkctl run --connect"},
        {"no agent", [](TestMachine &m) { m.remove("/proc/900"); }, "polkit", Level::note,
         "No known polkit agent", "sudo veldmarkctl run --connect"},
        {"another user's agent", [](TestMachine &m) { m.process(900, "gnome-shell", 4343); },
         "polkit", Level::note, "No known polkit agent", "sudo veldmarkctl run --connect"},
        {"no agent that is known and no sudo",
         [](TestMachine &m) {
             m.remove("/proc/900");
             m.remove("/usr/bin/sudo");
         },
         "polkit", Level::unknown, "No known polkit agent", "sudo apt install lxpolkit"},
        {"no agent that is known, and nobody knows whether sudo may be used",
         [](TestMachine &m) {
             m.remove("/proc/900");
             m.write("/etc/group", "sudo:x:27:bob\n");
         },
         "polkit", Level::unknown, "No known polkit agent", "sudo veldmarkctl run --connect"},
        {"no pkexec, and nobody knows whether sudo may be used",
         [](TestMachine &m) {
             m.remove("/usr/bin/pkexec");
             m.write("/etc/group", "sudo:x:27:bob\n");
         },
         "polkit", Level::unknown, "pkexec isn't installed", "sudo apt install pkexec"},
        {"no desktop and no sudo",
         [](TestMachine &m) {
             m.machine.hasDesktop = false;
             m.remove("/usr/bin/sudo");
         },
         "polkit", Level::problem, "There is no desktop here", "sudo veldmarkctl run --connect"},
        {"connecting without a password",
         [](TestMachine &m) {
             m.program("/usr/local/libexec/veldmark/veldmark-helper.sh");
             m.write("/etc/sudoers.d/veldmark", "rule");
             m.remove("/usr/bin/pkexec");
         },
         "polkit", Level::good, "Passwordless mode is set up", nullptr},
        {"root",
         [](TestMachine &m) {
             m.machine.user = 0;
             m.remove("/usr/bin/pkexec");
         },
         "polkit", Level::good, "as root", nullptr},
        {"no sudo", [](TestMachine &m) { m.remove("/usr/bin/sudo"); }, "sudo", Level::note,
         "sudo isn't installed", "su -c 'apt install sudo'"},
        {"the administrators of other systems",
         [](TestMachine &m) { m.write("/etc/group", "wheel:x:10:bob,alice\n"); }, "sudo",
         Level::good, "you are in the group wheel", nullptr},
        {"the administrators of older systems",
         [](TestMachine &m) { m.write("/etc/group", "users:admin:9:alice\nadmin:x:11:alice\n"); },
         "sudo", Level::good, "you are in the group admin", nullptr},
        {"no administrator", [](TestMachine &m) { m.write("/etc/group", "sudo:x:27:bob\n"); },
         "sudo", Level::unknown, "Only root can tell", "sudo -v"},
        {"a clock before the program",
         [](TestMachine &m) { m.machine.now = QDateTime(QDate(1970, 1, 2), QTime(0, 0), Qt::UTC); },
         "clock", Level::problem, "The clock is behind: it shows 1970-01-02 00:00 UTC",
         "sudo timedatectl set-ntp true"},
        {"a clock that is half an hour behind a file",
         [](TestMachine &m) { m.machine.now = m.machine.now.addSecs(-1800); }, "clock", Level::good,
         "set from the network", nullptr},
        {"a clock that nothing sets", [](TestMachine &m) { m.machine.clockIsSet = false; }, "clock",
         Level::unknown, "It isn't known whether the clock is right",
         "sudo timedatectl set-ntp true"},
        {"a clock of which the kernel tells nothing",
         [](TestMachine &m) { m.machine.clockIsSet.reset(); }, "clock", Level::unknown,
         "isn't known", "sudo timedatectl set-ntp true"},
        {"a clock that timesyncd has set",
         [](TestMachine &m) {
             m.machine.clockIsSet = false;
             m.write("/run/systemd/timesync/synchronized", "");
         },
         "clock", Level::good, "set from the network", nullptr},
        {"a plain resolver file", [](TestMachine &) {}, "dns", Level::good,
         "ROOT/etc/resolv.conf manages DNS", nullptr},
        {"systemd-resolved",
         [](TestMachine &m) { m.write("/etc/resolv.conf", "nameserver 127.0.0.53\n"); }, "dns",
         Level::good, "systemd-resolved manages DNS", nullptr},
        {"systemd-resolved's file",
         [](TestMachine &m) {
             m.remove("/etc/resolv.conf");
             m.write("/run/systemd/resolve/resolv.conf", "nameserver 192.0.2.1\n");
             QFile::link(QStringLiteral("../run/systemd/resolve/resolv.conf"),
                         m.at("/etc/resolv.conf"));
         },
         "dns", Level::good, "systemd-resolved manages DNS", nullptr},
        {"NetworkManager",
         [](TestMachine &m) {
             m.write("/etc/resolv.conf", "# Generated by NetworkManager\nnameserver 192.0.2.1\n");
         },
         "dns", Level::good, "NetworkManager manages DNS", nullptr},
        {"resolvconf",
         [](TestMachine &m) {
             m.remove("/etc/resolv.conf");
             m.write("/run/resolvconf/resolv.conf", "nameserver 192.0.2.1\n");
             QFile::link(QStringLiteral("../run/resolvconf/resolv.conf"), m.at("/etc/resolv.conf"));
         },
         "dns", Level::good, "resolvconf manages DNS", nullptr},
        {"a resolver of one's own",
         [](TestMachine &m) { m.write("/etc/resolv.conf", "nameserver ::1\n"); }, "dns",
         Level::good, "A resolver on this computer", nullptr},
        {"our resolver file",
         [](TestMachine &m) {
             m.write("/etc/resolv.conf",
                     "# Veldmark: names are looked up through Tor.\nnameserver 127.0.0.1\n");
         },
         "dns", Level::good, "It points DNS at Tor", nullptr},
        {"no resolver file", [](TestMachine &m) { m.remove("/etc/resolv.conf"); }, "dns",
         Level::note, "so DNS may not work at all", nullptr},
        {"no bridge programs", [](TestMachine &) {}, "bridges", Level::good, "none was found",
         "veldmarkctl download-transports"},
        {"bridge programs",
         [](TestMachine &m) {
             m.machine.transports.lyrebird = QStringLiteral("/usr/bin/obfs4proxy");
         },
         "bridges", Level::good, "were found: /usr/bin/obfs4proxy.", nullptr},
        {"bridges without their program",
         [](TestMachine &m) { m.machine.bridges.choice = BridgeChoice::obfs4; }, "bridges",
         Level::problem, "The chosen bridges can't be used", "veldmarkctl download-transports"},
        {"no bridge lines", [](TestMachine &m) { m.machine.bridges.choice = BridgeChoice::custom; },
         "bridges", Level::problem, "Add at least one bridge", "veldmarkctl set bridgeChoice off"},
        {"bridges of one's own",
         [](TestMachine &m) {
             m.machine.bridges = {
                 BridgeChoice::custom,
                 QStringLiteral("192.0.2.7:443 0123456789ABCDEF0123456789ABCDEF01234567"), false};
         },
         "bridges", Level::good, "(Custom) can be used: 1.", nullptr},
        {"a bridge program of the user's", [](TestMachine &m) { useBundle(m, false); }, "bridges",
         Level::note, "lyrebird. The next connect asks an administrator to approve it", nullptr},
        {"an earlier session",
         [](TestMachine &m) { m.write("/var/lib/veldmark/state/active", "strict\n"); }, "session",
         Level::note, "from an earlier session, and no Tor runs", "veldmarkctl restore"},
        {"an earlier session whose bridge program is left",
         [](TestMachine &m) {
             m.write("/var/lib/veldmark/state/active", "strict\n");
             m.process(950, "lyrebird", 990);
         },
         "session", Level::note, "from an earlier session, and no Tor runs", "veldmarkctl restore"},
        {"a session that is open",
         [](TestMachine &m) {
             m.write("/var/lib/veldmark/state/active", "strict\n");
             m.write("/run/veldmark.watch", "standing 0 1795307640\n");
             m.process(950, "tor", 990);
         },
         "session", Level::good, "A session is open: the network is set up", nullptr},
        {"a session in proxy mode, which has no kill switch",
         [](TestMachine &m) {
             m.write("/var/lib/veldmark/state/active", "proxy\n");
             m.process(950, "tor", 990);
         },
         "session", Level::good, "A session is open: the network is set up", nullptr},
        {"a session whose watcher has never spoken",
         [](TestMachine &m) {
             m.write("/var/lib/veldmark/state/active", "strict\n");
             m.process(950, "tor", 990);
         },
         "session", Level::note, "it isn't known whether its kill switch blocks traffic",
         "veldmarkctl restore"},
        {"a session whose watcher spoke 15 s ago",
         [](TestMachine &m) {
             m.write("/var/lib/veldmark/state/active", "strict\n");
             m.write("/run/veldmark.watch", "standing 0 1795307640\n");
             m.machine.now = QFileInfo(m.at("/run/veldmark.watch")).lastModified().addSecs(15);
             m.process(950, "tor", 990);
         },
         "session", Level::good, "A session is open: the network is set up", nullptr},
        {"a session whose watcher spoke 16 s ago",
         [](TestMachine &m) {
             m.write("/var/lib/veldmark/state/active", "strict\n");
             m.write("/run/veldmark.watch", "standing 0 1795307640\n");
             m.machine.now = QFileInfo(m.at("/run/veldmark.watch")).lastModified().addSecs(16);
             m.process(950, "tor", 990);
         },
         "session", Level::note, "it isn't known whether its kill switch blocks traffic",
         "veldmarkctl restore"},
        {"a session whose watcher has ended",
         [](TestMachine &m) {
             m.write("/var/lib/veldmark/state/active", "strict\n");
             m.write("/run/veldmark.watch", "standing 0 1795307640\n");
             m.machine.now = m.machine.now.addSecs(60);
             m.process(950, "tor", 990);
         },
         "session", Level::note, "it isn't known whether its kill switch blocks traffic",
         "veldmarkctl restore"},
        {"a session whose kill switch is open",
         [](TestMachine &m) {
             m.write("/var/lib/veldmark/state/active", "strict\n");
             m.write("/run/veldmark.watch", "open 4 1795307640\n");
             m.process(950, "tor", 990);
         },
         "session", Level::note, "its kill switch doesn't block traffic", "veldmarkctl restore"},
        {"a session in proxy mode after one whose kill switch was open",
         [](TestMachine &m) {
             m.write("/var/lib/veldmark/state/active", "proxy\n");
             m.write("/run/veldmark.watch", "open 4 1795307640\n");
             m.process(950, "tor", 990);
         },
         "session", Level::good, "A session is open: the network is set up", nullptr},
        {"a session whose kill switch was put back",
         [](TestMachine &m) {
             m.write("/var/lib/veldmark/state/active", "strict\n");
             m.write("/run/veldmark.watch", "restored 4 1795307640\n");
             m.process(950, "tor", 990);
         },
         "session", Level::good, "A session is open: the network is set up", nullptr},
        {"a Tor without a session", [](TestMachine &m) { m.process(950, "tor", 990); }, "session",
         Level::note, "(process 950)",
         "sudo bash ROOT/usr/share/veldmark/veldmark-helper.sh disconnect"},
    };
    return list;
}

} // namespace

class DoctorTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aGoodComputerHasNothingToMend()
    {
        const TestMachine m;
        const Findings findings = Doctor::all(m.machine);
        QStringList names;
        for (const Finding &finding : findings) {
            QVERIFY2(finding.level == Level::good, qPrintable(finding.text.english()));
            names << finding.name;
        }
        QCOMPARE(
            names,
            QStringLiteral(
                "tor ports nftables firewalls cgroups programs helper polkit sudo clock dns bridges session")
                .split(u' '));
        QCOMPARE(canConnect(findings), std::optional(true));
    }

    void eachFindingComesTrue_data()
    {
        QTest::addColumn<std::size_t>("place");
        for (std::size_t place = 0; place < cases().size(); ++place)
            QTest::newRow(cases()[place].title) << place;
    }
    void eachFindingComesTrue()
    {
        QFETCH(std::size_t, place);
        const Case *const one = &cases()[place];
        TestMachine m;
        one->change(m);
        m.machine.profile = m.profile();
        const Findings findings = Doctor::all(m.machine);
        const QString root = m.machine.profile.places.root;
        const QString words = QString::fromUtf8(one->words).replace(QStringLiteral("ROOT"), root);
        QStringList said;
        bool isFound = false;
        for (const Finding &finding : findings) {
            const bool isIt = finding.name == QLatin1String(one->name)
                && finding.level == one->level && finding.text.english().contains(words);
            said << levelName(finding.level) + u' ' + finding.name + u' ' + finding.text.english()
                    + u'|' + finding.command;
            if (isIt) {
                isFound = true;
                QCOMPARE(finding.command,
                         QString::fromUtf8(one->command).replace(QStringLiteral("ROOT"), root));
            }
            QVERIFY2(!finding.text.english().contains(u'%'), qPrintable(finding.text.english()));
        }
        QVERIFY2(isFound, qPrintable(said.join(u'\n')));
        // What is not known of the others blocks nothing.
        static const QStringList blocking{QStringLiteral("firewalls"), QStringLiteral("polkit"),
                                          QStringLiteral("ports")};
        const bool isInDoubt = one->level == Level::unknown
            && blocking.contains(QLatin1String(one->name));
        QCOMPARE(canConnect(findings),
                 isInDoubt ? std::nullopt : std::optional(one->level != Level::problem));
    }

    // The list is kept by hand; a case of a problem that is taken out is noticed here.
    void eachCheckThatCanFindAProblemHasACaseOfOne()
    {
        QStringList problems;
        for (const Case &one : cases())
            if (one.level == Level::problem)
                problems << QLatin1String(one.name);
        problems.removeDuplicates();
        problems.sort();
        QCOMPARE(
            problems,
            QStringLiteral("bridges clock exit firewalls helper nftables polkit ports programs tor")
                .split(u' '));
    }

    // Its user would not be told of its end, so that a connect refuses.
    void anotherUsersSessionHasToEndFirst()
    {
        const TestMachine m;
        const auto verdict = [&m](uid_t user) {
            const OtherSession other(m.machine.profile, user);
            const Findings findings = Doctor::sessionFindings(m.machine);
            return std::pair(canConnect(findings), findings.front().text.english());
        };
        const auto [canOverOwn, own] = verdict(geteuid());
        QCOMPARE(canOverOwn, std::optional(true));
        QVERIFY2(!own.contains(QStringLiteral("must be ended")), qPrintable(own));
        const auto [canOverOther, other] = verdict(geteuid() + 1);
        QCOMPARE(canOverOther, std::optional(false));
        QVERIFY2(other.contains(QStringLiteral("is connected with Veldmark (process ")),
                 qPrintable(other));
    }

    void noAdministratorIsAskedForWhatRootVerifies()
    {
        for (const bool isKept : {false, true}) {
            TestMachine m;
            useBundle(m, isKept);
            const Findings findings = Doctor::bridgeFindings(m.machine);
            QCOMPARE(findings.size(), std::size_t(isKept ? 1 : 2));
            QVERIFY(findings.front().level == Level::good);
        }
        TestMachine m;
        useBundle(m, true);
        // The helper of passwordless mode doesn't know bundles.
        const PlatformProfile &profile = m.machine.profile;
        m.write(profile.sudoersRule.mid(profile.places.root.size()).toUtf8(), "rule");
        m.write(profile.installedHelper.mid(profile.places.root.size()).toUtf8(), "another");
        QVERIFY(m.machine.isPasswordless());
        QCOMPARE(Doctor::bridgeFindings(m.machine).size(), std::size_t(2));
        m.machine.user = 0; // root needs no approval
        QCOMPARE(Doctor::bridgeFindings(m.machine).size(), std::size_t(1));
    }

    void aListenerElsewhereIsInNobodysWay()
    {
        TestMachine m;
        m.process(812, "nc", 4343);
        m.listens("/proc/net/tcp",
                  {{"0A00000A", 9050, 4343, 1},
                   {"0100007F", 9150, 4343, 2},
                   {"0100007F", 9051, 4343, 3, "01"}});
        QCOMPARE(canConnect(Doctor::portFindings(m.machine)), std::optional(true));
        // It listens on the other loopback address.
        m.listens("/proc/net/tcp6", {{QByteArray(24, '0') + "01000000", 9050, 4343, 4}});
        QCOMPARE(canConnect(Doctor::portFindings(m.machine)), std::optional(true));
        m.listens("/proc/net/tcp", {{"0100007F", 9051, 4343, 3}});
        QCOMPARE(canConnect(Doctor::portFindings(m.machine)), std::optional(false));
    }

    // The kernel allows no other beside a listener that has IPv4's.
    void aListenerBesideOneOfIpv4TakesIpv6Alone()
    {
        TestMachine m;
        m.process(812, "nc", 4343);
        const TestMachine::Listener wide{QByteArray(32, '0'), 9050, 4343, 2};
        m.listens("/proc/net/tcp6", {wide});
        QCOMPARE(canConnect(Doctor::portFindings(m.machine)), std::optional<bool>());
        m.listens("/proc/net/tcp", {{"0100007F", 9050, 4343, 1}});
        QCOMPARE(Doctor::portFindings(m.machine).size(), std::size_t(1));
        m.listens("/proc/net/tcp", {{"0100007F", 9050, 990, 1}}); // our own Tor
        QCOMPARE(canConnect(Doctor::portFindings(m.machine)), std::optional(true));
    }

    void oneServiceIsSpokenOfOnce()
    {
        TestMachine m;
        m.process(812, "tor", 108, "tor@default.service");
        m.listens("/proc/net/tcp", {{"0100007F", 9050, 108, 1}, {"0100007F", 9051, 108, 2}});
        QCOMPARE(Doctor::portFindings(m.machine).size(), std::size_t(1));
    }

    void oddFilesHarmNothing()
    {
        TestMachine m;
        for (const char *path :
             {"/etc/passwd", "/etc/group", "/proc/net/tcp", "/proc/self/mountinfo",
              "/etc/resolv.conf", "/proc/900/status", "/proc/900/cgroup", "/etc/ufw/ufw.conf"})
            m.write(path, QByteArray("\0:::::::::\n\n:\n0A 0 0 0\n\xff\xfe", 25));
        m.machine.torVersion = QStringLiteral("Tor version 99999999999999999999.1.");
        QVERIFY(!Doctor::all(m.machine).empty());
        Machine nothing;
        nothing.profile = PlatformProfile::linux(Places::below(QStringLiteral("/nonexistent")));
        nothing.owner = [](const QString &) { return std::optional<FileOwner>(); };
        QCOMPARE(canConnect(Doctor::all(nothing)), std::optional(false));
    }

    void eachLevelHasItsWordInJSON()
    {
        const std::pair<Level, const char *> words[] = {{Level::good, "good"},
                                                        {Level::note, "note"},
                                                        {Level::unknown, "unknown"},
                                                        {Level::problem, "problem"}};
        for (const auto &[level, word] : words)
            QCOMPARE(levelName(level), QString::fromLatin1(word));
    }

    void theOtherSystemIsLookedAtAsFarAsItIsKnown()
    {
        TestMachine m;
        m.machine.profile = PlatformProfile::macos(Places::below(m.machine.profile.places.root));
        const Findings findings = Doctor::all(m.machine);
        QCOMPARE(canConnect(findings), std::optional(false)); // there is no tor
        for (const Finding &finding : findings)
            QVERIFY2(finding.name != QLatin1String("nftables")
                         && finding.name != QLatin1String("polkit"),
                     qPrintable(finding.text.english()));
        QVERIFY(Doctor::lookupFindings(m.machine).empty()); // no file says who answers there
        const PlatformProfile &profile = m.machine.profile;
        m.write(profile.sessionMarker.mid(profile.places.root.size()).toUtf8(), "proxy\n");
        const Findings left = Doctor::sessionFindings(m.machine);
        QCOMPARE(left.front().text.english(),
                 QStringLiteral(
                     "The network is set up for Tor. It isn't known whether Tor still runs."));
        QCOMPARE(left.front().command, QStringLiteral("veldmarkctl restore"));
        QCOMPARE(left.front().button, Finding::Button::restore);
    }
};

VELDMARK_TEST(DoctorTest)
#include "DoctorTest.moc"
