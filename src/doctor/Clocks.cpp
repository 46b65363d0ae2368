#include "doctor/Checks.h"

#include <QFileInfo>

namespace veldmark::Doctor {

namespace {

using Level = Finding::Level;

const QString clockName = QStringLiteral("clock");
// Tor fails when the clock is wrong by some hours; a file's own time may be slightly off
constexpr qint64 allowedSeconds = 3600;

QString shown(const QDateTime &time)
{
    return time.toUTC().toString(QStringLiteral("yyyy-MM-dd HH:mm 'UTC'"));
}

} // namespace

// Without the network the real time is unknown. Known is that it is later than the time of every
// existing file, and whether a service has set the clock.
Findings clockFindings(const Machine &machine)
{
    const QString setting = machine.isLinux() ? QStringLiteral("sudo timedatectl set-ntp true")
                                              : QString();
    QDateTime latest;
    QString witness;
    for (const QString &path : {machine.profile.bundledHelper(), machine.at("/var/lib/dpkg/status"),
                                machine.at("/var/lib/systemd/timesync/clock")}) {
        const QFileInfo file(path);
        if (path.isEmpty() || !file.exists() || (latest.isValid() && file.lastModified() <= latest))
            continue;
        latest = file.lastModified();
        witness = path;
    }
    if (latest.isValid() && machine.now.secsTo(latest) > allowedSeconds)
        return {
            {clockName, Level::problem,
             Text::tr(
                 "The clock is behind: it shows %1, but the file %2 was written on %3. Tor needs a clock that is right "
                 "to within minutes.")
                 .arg(shown(machine.now), witness, shown(latest)),
             setting}};
    if (machine.clockIsSet == true || machine.exists("/run/systemd/timesync/synchronized"))
        return {
            {clockName,
             Level::good,
             Text::tr("The clock is set from the network. It shows %1.").arg(shown(machine.now)),
             {}}};
    return {
        {clockName, Level::unknown,
         Text::tr(
             "It isn't known whether the clock is right: no time service seems to set it. It shows %1. Tor needs it right to within minutes.")
             .arg(shown(machine.now)),
         setting}};
}

} // namespace veldmark::Doctor
