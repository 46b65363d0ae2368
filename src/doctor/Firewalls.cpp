#include "doctor/Checks.h"
#include "system/OtherFirewalls.h"

#include <QFileInfo>

#include <array>

namespace veldmark::Doctor {

namespace {

using Level = Finding::Level;

const QString nftablesName = QStringLiteral("nftables");
const QString firewallsName = QStringLiteral("firewalls");
const QString groupsName = QStringLiteral("cgroups");

// Firewalls, known by the names of their processes.
struct FirewallName {
    const char *process;
    const char *name;
};
constexpr std::array known{
    FirewallName{"firewalld", "firewalld"},        FirewallName{"dockerd", "Docker"},
    FirewallName{"libvirtd", "libvirt"},           FirewallName{"virtnetworkd", "libvirt"},
    FirewallName{"opensnitchd", "OpenSnitch"},     FirewallName{"portmaster-core", "Portmaster"},
    FirewallName{"mullvad-daemon", "Mullvad VPN"}, FirewallName{"nordvpnd", "NordVPN"},
    FirewallName{"fail2ban-server", "Fail2ban"},
};

QString kernel(const Machine &machine)
{
    return machine.read("/proc/sys/kernel/osrelease").trimmed();
}

// Whether the kernel has nf_tables; absent: unknown.
std::optional<bool> kernelHasTables(const Machine &machine)
{
    if (machine.exists("/sys/module/nf_tables"))
        return true;
    for (const char *prefix : {"/lib/modules/", "/usr/lib/modules/"}) {
        const QString folder = machine.at(prefix) + kernel(machine);
        if (kernel(machine).isEmpty() || !QFileInfo(folder).isDir())
            continue;
        for (const char *list : {"/modules.dep", "/modules.builtin"}) {
            QFile file(folder + QLatin1String(list));
            if (file.open(QIODevice::ReadOnly) && file.readAll().contains("/nf_tables.ko"))
                return true;
        }
        return false;
    }
    return std::nullopt;
}

Finding nftables(const Machine &machine)
{
    if (machine.program(QStringLiteral("nft")).isEmpty())
        return {nftablesName, Level::problem,
                Text::tr("nftables isn't installed. Veldmark's firewall needs it."),
                machine.installing(nftablesName)};
    if (machine.firewallComplaint)
        return machine.firewallComplaint->isEmpty()
            ? Finding{nftablesName,
                      Level::good,
                      Text::tr("The system's firewall, nftables, can be used."),
                      {}}
            : Finding{
                nftablesName, Level::problem,
                Text::tr("The system's firewall can't be used: %1").arg(*machine.firewallComplaint),
                QStringLiteral("sudo modprobe nf_tables")};
    const auto hasTables = kernelHasTables(machine);
    if (hasTables == false)
        return {
            nftablesName, Level::problem,
            Text::tr(
                "The running kernel (%1) has no nftables. After an upgrade of the kernel, restart the computer.")
                .arg(kernel(machine)),
            QStringLiteral("sudo reboot")};
    if (!hasTables)
        return {
            nftablesName, Level::unknown,
            Text::tr(
                "nftables is installed. Only root can tell whether the running kernel can use it."),
            QStringLiteral("sudo nft list tables")};
    return {
        nftablesName, Level::good, Text::tr("nftables is installed, and the kernel has it."), {}};
}

QStringList others(const Machine &machine)
{
    QStringList names;
    const auto processes = runningProcesses(machine);
    for (const auto &[process, name] : known)
        if (runs(processes, QLatin1String(process)) && !names.contains(QLatin1String(name)))
            names << QLatin1String(name);
    if (OtherFirewalls::isUfwOn(machine.profile))
        names << QStringLiteral("ufw");
    if (QFileInfo(machine.at("/etc/systemd/system/sysinit.target.wants/nftables.service"))
            .isSymLink()
        || machine.exists("/etc/systemd/system/sysinit.target.wants/nftables.service"))
        names << QStringLiteral("nftables.service");
    return names;
}

Finding controlGroups(const Machine &machine)
{
    bool isThere = false;
    for (const QString &line : machine.read("/proc/self/mountinfo").split(u'\n'))
        isThere |= line.contains(QLatin1String(" - cgroup2 "))
            && line.section(u' ', 3, 3) == QLatin1String("/");
    if (!isThere)
        return {
            groupsName,
            Level::note,
            Text::tr(
                "This system has no control groups of version 2, so no application can be opened without Tor, "
                "and the kill switch knows Tor by its account alone. Everything else works."),
            {}};
    const QStringList version = kernel(machine).split(u'.');
    const int major = version.value(0).toInt(), minor = version.value(1).toInt();
    if (major > 0 && (major < 5 || (major == 5 && minor < 13)))
        return {
            groupsName,
            Level::note,
            Text::tr(
                "The kernel (%1) is older than 5.13, so no application can be opened without Tor, "
                "and the kill switch knows Tor by its account alone. Everything else works.")
                .arg(kernel(machine)),
            {}};
    return {
        groupsName,
        Level::good,
        Text::tr("Applications can be opened without Tor: control groups of version 2 are there."),
        {}};
}

} // namespace

Findings firewallFindings(const Machine &machine)
{
    if (!machine.isLinux())
        return {};
    Findings findings{nftables(machine)};
    const QStringList names = others(machine);
    const QString ufw = QStringLiteral("ufw");
    const QStringList denying = OtherFirewalls::denying(machine.profile);
    if (denying.contains(ufw) && OtherFirewalls::isUfwWithoutAWayOut(machine.profile))
        findings.push_back(
            {firewallsName, Level::problem,
             Text::tr(
                 "Another firewall on this computer blocks outgoing traffic, and none of its rules allows any, so Tor can't get through: %1.")
                 .arg(ufw),
             QStringLiteral("sudo ufw default allow outgoing")});
    else if (!denying.isEmpty())
        findings.push_back(
            {firewallsName, Level::unknown,
             Text::tr(
                 "Another firewall on this computer blocks outgoing traffic that its rules don't allow, so Tor may not get through: %1.")
                 .arg(denying.join(QStringLiteral(", "))),
             denying.first() == ufw ? QStringLiteral("sudo ufw default allow outgoing")
                                    : QStringLiteral("sudo nft list ruleset"),
             Finding::Button::none, true});
    else if (names.isEmpty())
        findings.push_back(
            {firewallsName,
             Level::good,
             Text::tr(
                 "No other firewall that Veldmark knows runs. Only root can read the rules themselves."),
             {}});
    else
        findings.push_back(
            {firewallsName, Level::note,
             Text::tr(
                 "Other programs set firewall rules here: %1. Veldmark leaves their rules alone. Rules "
                 "that drop packets can block Tor.")
                 .arg(names.join(QStringLiteral(", "))),
             QStringLiteral("sudo nft list ruleset")});
    findings.push_back(controlGroups(machine));
    return findings;
}

} // namespace veldmark::Doctor
