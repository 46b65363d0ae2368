#include "doctor/Checks.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <array>

namespace veldmark::Doctor {

namespace {

using Level = Finding::Level;

const QString portsName = QStringLiteral("ports");

struct Port {
    int number;
    const char *table; // the kernel's table of listeners
    const char *state; // of a listener in that table
};
// The tables of IPv6 are the last.
constexpr std::array ports{Port{9050, "/proc/net/tcp", "0A"}, Port{9051, "/proc/net/tcp", "0A"},
                           Port{293, "/proc/net/udp", "07"}, Port{9050, "/proc/net/tcp6", "0A"},
                           Port{9051, "/proc/net/tcp6", "0A"}};

struct Holder {
    int port = 0;
    uid_t user = 0;
    QString socket;     // the socket's number
    bool isSure = true; // false: it blocks Tor unless it takes IPv6 alone, which no table tells
};

// What a listener's address, a number in either byte order, means for Tor's address.
enum class Reach { elsewhere, perhaps, blocks };

Reach reachOf(const QString &address)
{
    static const QStringList blocking{
        QStringLiteral("0100007F"),
        QStringLiteral("7F000001"),
        QStringLiteral("00000000"),
        QStringLiteral("0000000000000000FFFF00000100007F"),
        QStringLiteral("00000000000000000000FFFF7F000001"),
    };
    if (blocking.contains(address))
        return Reach::blocks;
    return address == QString(32, u'0') ? Reach::perhaps : Reach::elsewhere;
}

// The sockets that block Tor's address on this computer: listeners on it, or on every address.
std::vector<Holder> holders(const Machine &machine)
{
    std::vector<Holder> found;
    for (const Port &port : ports) {
        const QString suffix
            = QStringLiteral(":%1").arg(port.number, 4, 16, QLatin1Char('0')).toUpper();
        for (const QString &line : machine.read(port.table).split(u'\n')) {
            const QStringList words = line.simplified().split(u' ');
            if (words.size() < 10 || words[3] != QLatin1String(port.state)
                || !words[1].endsWith(suffix))
                continue;
            const Reach reach = reachOf(words[1].chopped(suffix.size()));
            if (reach == Reach::elsewhere)
                continue;
            // Beside a listener that blocks Tor, one on every address takes IPv6 alone.
            if (reach == Reach::perhaps
                && std::any_of(found.cbegin(), found.cend(), [&port](const Holder &other) {
                       return other.port == port.number && other.isSure;
                   }))
                continue;
            found.push_back({port.number, words[7].toUInt(), words[9], reach == Reach::blocks});
        }
    }
    return found;
}

bool hasSocket(const Machine &machine, const RunningProcess &process, const QString &socket)
{
    const QDir folder(machine.at("/proc/%1/fd").arg(process.pid));
    const QString wanted = QStringLiteral("socket:[%1]").arg(socket);
    for (const QString &entry :
         folder.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)) {
        if (QFile::symLinkTarget(folder.filePath(entry)).endsWith(wanted))
            return true;
    }
    return false;
}

// That the holder has the port, as `words` say it, is a problem, or may be one.
Finding takenPort(const Holder &holder, Text words, const QString &command)
{
    if (holder.isSure)
        return {portsName, Level::problem, std::move(words), command};
    Finding finding{
        portsName, Level::unknown,
        Text::joined(
            {std::move(words),
             Text::tr(
                 "The program listens on IPv6. If it takes IPv6 alone, Tor can use the port.")}),
        command};
    finding.mayBlock = true;
    return finding;
}

bool isSystemsService(const RunningProcess &process)
{
    return process.unit == QLatin1String("tor@default.service")
        || process.unit == QLatin1String("tor.service");
}

// The process that owns the socket. Another user's descriptors are not readable. In that case it is
// the system's own Tor service (root may have opened its ports), or a tor of that user, or that
// user's only process.
std::optional<RunningProcess> holderProcess(const Machine &machine,
                                            const std::vector<RunningProcess> &processes,
                                            const Holder &holder)
{
    std::optional<RunningProcess> service, tor, only;
    int many = 0;
    for (const RunningProcess &process : processes) {
        if (hasSocket(machine, process, holder.socket))
            return process;
        if (isSystemsService(process) && (holder.user == 0 || holder.user == process.user))
            service = process;
        if (process.user != holder.user)
            continue;
        if (process.name == QLatin1String("tor"))
            tor = process;
        only = process;
        ++many;
    }
    if (service)
        return service;
    return tor ? tor : many == 1 ? only : std::nullopt;
}

} // namespace

Findings portFindings(const Machine &machine)
{
    if (!machine.isLinux())
        return {};
    Findings findings;
    const std::vector<Holder> held = holders(machine);
    const auto ours = machine.account(machine.profile.torAccount);
    const auto processes = held.empty() ? std::vector<RunningProcess>() : runningProcesses(machine);
    QStringList paused; // units already reported
    bool isOurs = false;
    for (const Holder &holder : held) {
        const QString port = QString::number(holder.port);
        if (ours && holder.user == *ours) {
            isOurs = true;
            continue;
        }
        const auto process = holderProcess(machine, processes, holder);
        if (!process) {
            findings.push_back(takenPort(
                holder,
                Text::tr("The port %1, which Tor needs, is held by a program of the account %2.")
                    .arg(port, machine.accountName(holder.user)),
                QStringLiteral("sudo ss -lpn sport = :%1").arg(port)));
        } else if (isSystemsService(*process)) {
            if (!paused.contains(process->unit))
                findings.push_back(
                    {portsName,
                     Level::note,
                     Text::tr(
                         "The system's own Tor service (%1) runs. Veldmark stops it while it is "
                         "connected and starts it again afterwards.")
                         .arg(process->unit),
                     {}});
            paused << process->unit;
        } else {
            const QString unit = process->unit;
            findings.push_back(takenPort(
                holder,
                Text::tr("The port %1, which Tor needs, is held by %2 (process %3, account %4).")
                    .arg(port, process->name, QString::number(process->pid),
                         machine.accountName(process->user)),
                unit.isEmpty() || unit.startsWith(QLatin1String("user@"))
                    ? QStringLiteral("sudo kill %1").arg(process->pid)
                    : QStringLiteral("sudo systemctl stop %1").arg(unit)));
        }
    }
    if (findings.empty() && isOurs)
        findings.push_back({portsName,
                            Level::good,
                            Text::tr("Veldmark's own Tor holds the ports 9050, 9051 and 293."),
                            {}});
    else if (findings.empty())
        findings.push_back({portsName,
                            Level::good,
                            Text::tr("The ports that Tor needs (9050, 9051 and 293) are free."),
                            {}});
    return findings;
}

} // namespace veldmark::Doctor
