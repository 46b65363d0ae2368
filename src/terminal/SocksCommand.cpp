#include "terminal/SocksCommand.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QProcess>

namespace veldmark {

namespace {

constexpr qsizetype usageLimitBytes = 64 * 1024;

// What a program prints about itself, on either channel; empty when it does not end within 2 s.
QByteArray usage(const QString &program, const QString &option)
{
    if (!QFileInfo(program).isExecutable())
        return {};
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, {option});
    const QDeadlineTimer deadline(2000);
    QByteArray text;
    while (text.size() <= usageLimitBytes && process.state() != QProcess::NotRunning
           && !deadline.hasExpired()) {
        if (!process.waitForReadyRead(int(deadline.remainingTime())))
            process.waitForFinished(int(deadline.remainingTime()));
        text += process.readAll();
    }
    if (process.state() == QProcess::NotRunning)
        return text;
    process.kill();
    process.waitForFinished();
    return {};
}

QString netcatCommand(const QString &program)
{
    return program + QStringLiteral(" -X 5 -x 127.0.0.1:9050 %h %p");
}

} // namespace

bool isSocksNetcat(const QByteArray &usage)
{
    return usage.contains("[-X proxy_") && usage.contains("[-x proxy_");
}

bool isSocksNcat(const QByteArray &usage)
{
    // One that cannot be told to send names to the proxy looks them up by itself, in the open.
    return usage.contains("--proxy-type") && usage.contains("--proxy-dns");
}

std::optional<QString> socksCommand(const PlatformProfile &profile)
{
    if (!profile.netcat.isEmpty())
        return netcatCommand(profile.netcat);
    for (const QString &netcat : profile.netcatCandidates) {
        if (isSocksNetcat(usage(netcat, QStringLiteral("-h"))))
            return netcatCommand(netcat);
    }
    if (isSocksNcat(usage(profile.ncat, QStringLiteral("--help"))))
        return profile.ncat
            + QStringLiteral(" --proxy 127.0.0.1:9050 --proxy-type socks5 --proxy-dns remote"
                             " %h %p");
    return std::nullopt;
}

QString socksCommandHint(const PlatformProfile &profile)
{
    struct Package {
        const char *installer;
        const char *name;
    };
    for (const Package &package : {Package{"sudo apt install ", "netcat-openbsd"},
                                   Package{"sudo dnf install ", "nmap-ncat"},
                                   Package{"sudo pacman -S ", "openbsd-netcat"},
                                   Package{"sudo zypper install ", "netcat-openbsd"}}) {
        const QLatin1String installer(package.installer);
        if (profile.torInstallHint.startsWith(installer))
            return QStringLiteral("ssh doesn't go through Tor yet: it needs a netcat that speaks "
                                  "SOCKS. Install one with: %1%2")
                .arg(installer, QLatin1String(package.name));
    }
    return QStringLiteral("ssh doesn't go through Tor yet: it needs a netcat that speaks SOCKS. "
                          "Install the OpenBSD netcat or Ncat with your package manager.");
}

} // namespace veldmark
