#include "doctor/Machine.h"

#include "base/FileContent.h"
#include "base/ProgramFile.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace veldmark {

namespace {

// The fields of the first line of /etc/passwd that `wanted` accepts.
QStringList passwdLine(const Machine &machine,
                       const std::function<bool(const QStringList &)> &wanted)
{
    for (const QString &line : machine.read("/etc/passwd").split(u'\n')) {
        const QStringList fields = line.split(u':');
        if (fields.size() >= 7 && wanted(fields))
            return fields;
    }
    return {};
}

QString unitOf(const QString &groups)
{
    for (const QString &line : groups.split(u'\n')) {
        // cgroup version 2, or systemd's own hierarchy of version 1.
        if (!line.startsWith(QLatin1String("0::"))
            && !line.contains(QLatin1String(":name=systemd:")))
            continue;
        for (const QString &part : line.section(u':', 2).split(u'/'))
            if (part.endsWith(QLatin1String(".service")))
                return part;
    }
    return {};
}

} // namespace

bool Machine::exists(const char *path) const
{
    return QFileInfo::exists(at(path));
}

QString Machine::readFile(const QString &path)
{
    return QString::fromUtf8(contentOf(path, 256 * 1024));
}

QString Machine::program(const QString &name) const
{
    for (const char *folder : {"/usr/sbin/", "/usr/bin/", "/sbin/", "/bin/"}) {
        const QString path = at(folder) + name;
        if (isProgram(path))
            return path;
    }
    return {};
}

QString Machine::tor() const
{
    const QString custom = customTor.trimmed();
    if (!custom.isEmpty() && !custom.startsWith(u'/'))
        return {}; // a connect refuses this path, so no other tor is used instead
    if (!custom.isEmpty() && isProgram(custom))
        return custom;
    for (const QString &candidate : profile.torCandidates)
        if (isProgram(candidate))
            return candidate;
    return {};
}

QString Machine::installing(const QString &package) const
{
    for (const char *words : {"sudo apt install ", "sudo dnf install ", "sudo pacman -S ",
                              "sudo zypper install ", "brew install "})
        if (profile.torInstallHint.startsWith(QLatin1String(words)))
            return QLatin1String(words) + package;
    return {};
}

std::optional<uid_t> Machine::account(const QString &name) const
{
    const QStringList fields = passwdLine(
        *this, [&name](const QStringList &line) { return line[0] == name; });
    bool isNumber = false;
    const uid_t number = fields.value(2).toUInt(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

QString Machine::accountName(uid_t wanted) const
{
    const QString number = QString::number(wanted);
    const QString name = passwdLine(*this, [&number](const QStringList &line) {
                             return line[2] == number;
                         }).value(0);
    return name.isEmpty() ? number : name;
}

bool Machine::isPasswordless() const
{
    return QFileInfo::exists(profile.installedHelper) && QFileInfo::exists(profile.sudoersRule);
}

std::vector<RunningProcess> runningProcesses(const Machine &machine)
{
    std::vector<RunningProcess> processes;
    const QString proc = machine.at("/proc/");
    for (const QString &entry : QDir(proc).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        bool isNumber = false;
        RunningProcess process;
        process.pid = entry.toLongLong(&isNumber);
        const QString folder = proc + entry;
        if (!isNumber)
            continue;
        for (const QString &line :
             Machine::readFile(folder + QStringLiteral("/status")).split(u'\n')) {
            const QStringList words = line.simplified().split(u' ');
            if (words.first() == QLatin1String("Name:"))
                process.name = line.section(u':', 1).trimmed();
            else if (words.first() == QLatin1String("Uid:"))
                process.user = words.value(1).toUInt();
        }
        // A process may have any name.
        for (QChar &c : process.name)
            if (!c.isPrint())
                c = u'?';
        process.unit = unitOf(Machine::readFile(folder + QStringLiteral("/cgroup")));
        if (!process.name.isEmpty())
            processes.push_back(process);
    }
    std::sort(processes.begin(), processes.end(),
              [](const auto &a, const auto &b) { return a.pid < b.pid; });
    return processes;
}

bool runs(const std::vector<RunningProcess> &processes, const QString &name)
{
    return std::any_of(processes.cbegin(), processes.cend(),
                       [&name](const auto &process) { return process.name == name; });
}

} // namespace veldmark
