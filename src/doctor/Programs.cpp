#include "doctor/Checks.h"
#include "system/HelperError.h"
#include "system/ProgramApproval.h"
#include "system/SignedBundle.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <array>

namespace veldmark::Doctor {

namespace {

using Level = Finding::Level;
using Button = Finding::Button;

const QString torName = QStringLiteral("tor");
const QString exitName = QStringLiteral("exit");
const QString programsName = QStringLiteral("programs");
const QString helperName = QStringLiteral("helper");
const QString bridgesName = QStringLiteral("bridges");

// A program that the helper calls, and its package unless every system has it.
struct Needed {
    const char *program;
    const char *package;
};
constexpr std::array needed{
    Needed{"bash", "bash"},           Needed{"flock", "util-linux"},
    Needed{"setpriv", "util-linux"},  Needed{"unshare", "util-linux"},
    Needed{"setsid", "util-linux"},   Needed{"mount", "mount"},
    Needed{"umount", "mount"},        Needed{"getent", "libc-bin"},
    Needed{"stat", "coreutils"},      Needed{"sync", "coreutils"},
    Needed{"timeout", "coreutils"},   Needed{"readlink", "coreutils"},
    Needed{"sha256sum", "coreutils"}, Needed{"useradd", "passwd"},
};

// "Tor version 0.4.7.16." or "… (git-…)."
QString versionIn(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("Tor version (\\d+\\.\\d+\\.\\d+(?:\\.\\d+)?[A-Za-z0-9-]*)"));
    return form.match(text).captured(1);
}

// An account besides root that can change the file or a folder above it, up to the system's root. 0
// when a group or every user can write one of them, or an owner is unknown. Absent when only root
// can.
std::optional<uid_t> otherWriter(const Machine &machine, const QString &path)
{
    const QString root = machine.profile.places.root;
    for (QString part = path; part.size() > root.size();
         part = part.left(std::max(part.lastIndexOf(u'/'), qsizetype(0)))) {
        const auto owner = machine.owner(part);
        if (!owner || (owner->mode & 022) != 0)
            return uid_t(0);
        if (owner->user != 0)
            return owner->user;
    }
    return std::nullopt;
}

// Whether the installed helper, which runs without a password, differs from the shipped one.
bool isHelperOutdated(const Machine &machine)
{
    return machine.isPasswordless()
        && Machine::readFile(machine.profile.installedHelper)
        != Machine::readFile(machine.profile.bundledHelper());
}

// The programs for which a connect needs an administrator's approval.
std::vector<ProgramApproval> unapproved(const Machine &machine, const QStringList &arguments)
{
    if (machine.user == 0) // root needs no approval
        return {};
    auto programs = ProgramApproval::missing(machine.profile, arguments);
    const bool isVerified = !isHelperOutdated(machine)
        && !SignedBundle::words(machine.profile, programs).isEmpty();
    if (isVerified)
        std::erase_if(programs, [&machine](const ProgramApproval &program) {
            return SignedBundle::brings(machine.profile, program);
        });
    return programs;
}

// What a connect would ask an administrator to approve by name.
void addApprovals(Findings &findings, const QString &name, const Machine &machine,
                  const QStringList &arguments)
{
    for (const ProgramApproval &program : unapproved(machine, arguments))
        findings.push_back({name,
                            Level::note,
                            Text::tr("No package of the system installed %1. The next connect asks "
                                     "an administrator to approve it.")
                                .arg(program.path),
                            {}});
}

} // namespace

Findings torFindings(const Machine &machine)
{
    Findings findings;
    const QString tor = machine.tor();
    const QString custom = machine.customTor.trimmed();
    const QString usual = QStringLiteral("veldmarkctl set customTorPath \"\"");
    if (!custom.isEmpty() && !custom.startsWith(u'/')) // a connect uses no other tor instead
        return {
            {torName, Level::problem,
             Text::tr(
                 "\"%1\" is not a location of Tor. Give an absolute path, such as /usr/bin/tor.")
                 .arg(custom.simplified()),
             usual}};
    if (!custom.isEmpty() && custom != tor)
        findings.push_back(
            {torName, Level::note,
             Text::tr(
                 "The location of Tor in the settings, %1, is not an executable program. Veldmark searches the usual places instead.")
                 .arg(custom),
             usual});
    if (tor.isEmpty()) {
        findings.push_back(
            {torName, Level::problem, Text::tr("Tor isn't installed."),
             machine.installing({}).isEmpty() ? QString() : machine.profile.torInstallHint});
        return findings;
    }
    const QString version = versionIn(machine.torVersion.value_or(QString()));
    if (machine.isTorUnasked)
        findings.push_back(
            {torName, Level::unknown,
             Text::tr(
                 "Users other than root can change %1, so root doesn't run it to ask for its version.")
                 .arg(tor),
             QString(), Finding::Button::none, true});
    else if (version.isEmpty())
        findings.push_back(
            {torName, Level::problem,
             Text::tr("%1 doesn't start, or isn't Tor: it prints no version.").arg(tor),
             tor == custom ? usual : machine.installing(QStringLiteral("--reinstall tor"))});
    else // each connect asks tor itself whether it accepts the configuration
        findings.push_back(
            {torName, Level::good, Text::tr("Tor %1 is installed: %2.").arg(version, tor), {}});
    addApprovals(findings, torName, machine, {QStringLiteral("--tor"), tor});
    return findings;
}

// The windows and veldmarkctl set only valid ones; the settings' file may have another.
Findings exitFindings(const Machine &machine)
{
    static const QRegularExpression valid(QStringLiteral("^([a-z]{2})?\\z"));
    if (valid.match(machine.exitCountry).hasMatch())
        return {};
    return {{exitName, Level::problem, Text::tr("Invalid exit country."),
             QStringLiteral("veldmarkctl set exitCountry \"\"")}};
}

Findings programFindings(const Machine &machine)
{
    if (!machine.isLinux())
        return {};
    Findings findings;
    for (const auto &[program, package] : needed) {
        const QString name = QLatin1String(program);
        // The account may exist already.
        if (!machine.program(name).isEmpty()
            || (name == QLatin1String("useradd") && machine.account(machine.profile.torAccount)))
            continue;
        findings.push_back(
            {programsName, Level::problem,
             Text::tr("The program %1 is missing. Veldmark's helper needs it.").arg(name),
             machine.installing(QLatin1String(package))});
    }
    if (findings.empty())
        findings.push_back({programsName,
                            Level::good,
                            Text::tr("Every program that Veldmark's helper calls is installed."),
                            {}});
    return findings;
}

Findings helperFindings(const Machine &machine)
{
    Findings findings;
    const QString helper = machine.profile.bundledHelper();
    if (helper.isEmpty()) {
        findings.push_back({helperName, Level::problem, HelperError::missingHelper().description(),
                            machine.installing(QStringLiteral("--reinstall veldmark"))});
        return findings;
    }
    const auto writer = otherWriter(machine, helper);
    if (writer == uid_t(0))
        findings.push_back(
            {helperName, Level::note,
             Text::tr(
                 "Accounts other than root can change Veldmark's helper, %1, and with it what the administrator's password runs.")
                 .arg(helper),
             QStringLiteral("./build.sh package")});
    else if (writer)
        findings.push_back(
            {helperName, Level::note,
             Text::tr(
                 "Veldmark's helper, %1, is not installed: the account %2 can change it, and with it what the administrator's password runs.")
                 .arg(helper, machine.accountName(*writer)),
             QStringLiteral("./build.sh package")});
    else
        findings.push_back(
            {helperName,
             Level::good,
             Text::tr("Veldmark's helper is installed, and only root can change it: %1.")
                 .arg(helper),
             {}});
    if (isHelperOutdated(machine))
        findings.push_back(
            {helperName, Level::note,
             Text::tr(
                 "The helper of passwordless mode belongs to another version. Set up passwordless mode again in Settings, General."),
             QStringLiteral("sudo bash %1 install-privileged --user %2")
                 .arg(helper, machine.accountName(machine.user))});
    return findings;
}

Findings bridgeFindings(const Machine &machine)
{
    QStringList found;
    for (const auto &path :
         {machine.transports.lyrebird, machine.transports.snowflake, machine.transports.webtunnel})
        if (path && !found.contains(*path))
            found << *path;
    const QString download = QStringLiteral("veldmarkctl download-transports");
    if (machine.bridges.choice == BridgeChoice::off) {
        if (found.isEmpty())
            return {
                {bridgesName, Level::good,
                 Text::tr(
                     "Bridges are off. Bridges need bridge programs where Tor is blocked, and none was found."),
                 download, Button::download}};
        return {{bridgesName,
                 Level::good,
                 Text::tr("Bridges are off. Bridge programs were found: %1.")
                     .arg(found.join(QStringLiteral(", "))),
                 {}}};
    }
    const auto lines = selectedBridgeLines(machine.bridges, machine.transports);
    const auto arguments = lines ? bridgeArguments(*lines, machine.transports) : lines;
    if (!arguments) {
        const bool isTyped = machine.bridges.choice == BridgeChoice::custom && !lines;
        return {
            {bridgesName, Level::problem,
             Text::tr("The chosen bridges can't be used. %1").arg(arguments.error().description()),
             isTyped ? QStringLiteral("veldmarkctl set bridgeChoice off") : download,
             isTyped ? Button::none : Button::download}};
    }
    Findings findings{
        {bridgesName,
         Level::good,
         Text::tr("The chosen bridges (%1) can be used: %2.")
             .arg(displayName(machine.bridges.choice), QString::number(lines->size())),
         {}}};
    addApprovals(findings, bridgesName, machine, *arguments);
    return findings;
}

} // namespace veldmark::Doctor
