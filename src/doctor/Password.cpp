#include "doctor/Checks.h"

#include <QFileInfo>

#include <algorithm>

namespace veldmark::Doctor {

namespace {

using Level = Finding::Level;

const QString polkitName = QStringLiteral("polkit");
const QString sudoName = QStringLiteral("sudo");
const QString throughSudo = QStringLiteral("sudo veldmarkctl run --connect");

// Processes of a desktop session that show polkit's dialog; /proc keeps 15 characters of a name.
bool isAgent(const QString &name)
{
    static const QStringList agents{
        QStringLiteral("gnome-shell"),     QStringLiteral("polkit-gnome-au"),
        QStringLiteral("polkit-kde-auth"), QStringLiteral("polkit-mate-aut"),
        QStringLiteral("lxpolkit"),        QStringLiteral("lxqt-policykit-"),
        QStringLiteral("xfce-polkit"),     QStringLiteral("mate-polkit"),
        QStringLiteral("cinnamon"),        QStringLiteral("budgie-polkit-d"),
        QStringLiteral("ukui-polkit"),     QStringLiteral("hyprpolkitagent"),
        QStringLiteral("dde-polkit-agen"), QStringLiteral("phosh"),
        QStringLiteral("soteria"),         QStringLiteral("cosmic-osd"),
        QStringLiteral("pkttyagent"),      QStringLiteral("ts-polkitagent"),
    };
    return agents.contains(name);
}

// The first administrators' group that the user belongs to, or empty.
QString administrators(const Machine &machine)
{
    const QString user = machine.accountName(machine.user);
    for (const QString &line : machine.read("/etc/group").split(u'\n')) {
        const QStringList fields = line.split(u':');
        if ((fields[0] == QLatin1String("sudo") || fields[0] == QLatin1String("wheel")
             || fields[0] == QLatin1String("admin"))
            && fields.value(3).trimmed().split(u',').contains(user))
            return fields[0];
    }
    return {};
}

// `otherwise` is the level of what keeps a window from asking.
Finding polkit(const Machine &machine, Level otherwise)
{
    if (!QFileInfo(machine.profile.promptProgram).isExecutable())
        return {
            polkitName, otherwise,
            Text::tr(
                "pkexec isn't installed, so no window can ask for the administrator's password."),
            machine.installing(machine.profile.torInstallHint.startsWith(QLatin1String("sudo apt"))
                                   ? QStringLiteral("pkexec")
                                   : polkitName)};
    const auto processes = runningProcesses(machine);
    if (!runs(processes, QStringLiteral("polkitd"))
        && !machine.exists("/usr/share/dbus-1/system-services/org.freedesktop.PolicyKit1.service"))
        return {
            polkitName, otherwise,
            Text::tr(
                "polkit isn't installed, so no window can ask for the administrator's password."),
            machine.installing(machine.profile.torInstallHint.startsWith(QLatin1String("sudo apt"))
                                   ? QStringLiteral("polkitd")
                                   : polkitName)};
    if (!machine.hasDesktop)
        return {
            polkitName, otherwise,
            Text::tr(
                "There is no desktop here on which a window could ask for the administrator's password. Use sudo."),
            throughSudo};
    const bool hasAgent = std::any_of(
        processes.cbegin(), processes.cend(), [&machine](const RunningProcess &process) {
            return process.user == machine.user && isAgent(process.name);
        });
    if (!hasAgent)
        return {
            polkitName, otherwise == Level::problem ? Level::unknown : otherwise,
            Text::tr(
                "No known polkit agent, the program that asks for the password, runs in your session. Use sudo, or start an agent such as lxpolkit."),
            otherwise == Level::problem ? machine.installing(QStringLiteral("lxpolkit"))
                                        : throughSudo};
    return {
        polkitName,
        Level::good,
        Text::tr(
            "polkit is installed, and an agent that asks for the password runs in your session."),
        {}};
}

} // namespace

Findings passwordFindings(const Machine &machine)
{
    if (!machine.isLinux())
        return {};
    if (machine.user == 0)
        return {{polkitName,
                 Level::good,
                 Text::tr("Veldmark runs as root here and asks for no password."),
                 {}}};
    const bool hasSudo = QFileInfo(machine.profile.sudo).isExecutable();
    const QString group = administrators(machine);
    const QString installing = machine.installing(sudoName);
    // What keeps a window from asking matters only when there is no other way to root rights.
    const Level otherwise = (hasSudo && !group.isEmpty()) || machine.isPasswordless() ? Level::note
        : hasSudo ? Level::unknown
                  : Level::problem;
    Findings findings;
    if (hasSudo && machine.isPasswordless())
        findings.push_back({polkitName, Level::good, Text::tr("Passwordless mode is set up."), {}});
    else
        findings.push_back(polkit(machine, otherwise));
    findings.front().mayBlock = findings.front().level == Level::unknown;
    if (!hasSudo)
        findings.push_back(
            {sudoName, Level::note, Text::tr("sudo isn't installed. Passwordless mode needs it."),
             installing.isEmpty() ? QString()
                                  : QStringLiteral("su -c '%1'").arg(installing.mid(5))});
    else if (group.isEmpty())
        findings.push_back(
            {sudoName, Level::unknown,
             Text::tr("sudo is installed. Only root can tell whether you may use it."),
             QStringLiteral("sudo -v")});
    else
        findings.push_back({sudoName,
                            Level::good,
                            Text::tr("sudo is installed, and you are in the group %1.").arg(group),
                            {}});
    return findings;
}

} // namespace veldmark::Doctor
