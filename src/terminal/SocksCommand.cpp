#include "terminal/SocksCommand.h"

#include <QDateTime>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QProcess>
#include <QThreadPool>

#include <algorithm>
#include <utility>

namespace veldmark {

namespace {

constexpr qsizetype usageLimitBytes = 64 * 1024;

// The program's output, on either stream; empty when it does not end within 2 s, or after a stop
// request.
QByteArray usage(const QString &program, const QString &option, const StopToken &ended)
{
    if (ended.stop_requested() || !QFileInfo(program).isExecutable())
        return {};
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, {option});
    const QDeadlineTimer deadline(2000);
    QByteArray text;
    while (text.size() <= usageLimitBytes && process.state() != QProcess::NotRunning
           && !deadline.hasExpired() && !ended.stop_requested()) {
        const int slice = std::min(100, int(deadline.remainingTime()));
        if (!process.waitForReadyRead(slice))
            process.waitForFinished(slice);
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
    // A program that cannot send names to the proxy makes its own DNS lookups, which bypass Tor.
    return usage.contains("--proxy-type") && usage.contains("--proxy-dns");
}

std::optional<QString> socksCommand(const PlatformProfile &profile, const StopToken &ended)
{
    if (!profile.netcat.isEmpty())
        return netcatCommand(profile.netcat);
    for (const QString &netcat : profile.netcatCandidates) {
        if (isSocksNetcat(usage(netcat, QStringLiteral("-h"), ended)))
            return netcatCommand(netcat);
    }
    if (isSocksNcat(usage(profile.ncat, QStringLiteral("--help"), ended)))
        return profile.ncat
            + QStringLiteral(" --proxy 127.0.0.1:9050 --proxy-type socks5 --proxy-dns remote"
                             " %h %p");
    return std::nullopt;
}

SocksSearch::SocksSearch(PlatformProfile profile) : m_profile(std::move(profile)) { }

SocksSearch::~SocksSearch()
{
    m_ended.request_stop();
    const auto waits = m_state->waits; // each waiter removes itself from the list
    for (const auto &wait : waits) {
        wait.complete(std::nullopt);
        wait.deliver();
    }
}

QString SocksSearch::signature() const
{
    QString text;
    for (const QString &path : m_profile.netcatCandidates + QStringList{m_profile.ncat}) {
        const QFileInfo file(path);
        if (!path.isEmpty() && file.isExecutable())
            text += path + u' ' + QString::number(file.size()) + u' '
                + QString::number(file.lastModified().toMSecsSinceEpoch()) + u'\n';
    }
    return text;
}

bool SocksSearch::isKnown() const
{
    if (!m_profile.netcat.isEmpty())
        return true;
    const QString now = signature();
    return now.isEmpty() || now == m_state->signature;
}

std::optional<QString> SocksSearch::command() const
{
    if (m_profile.netcat.isEmpty() && !isKnown()) {
        const QString asked = signature();
        m_state->command = socksCommand(m_profile);
        m_state->signature = asked;
    }
    return m_profile.netcat.isEmpty() && !signature().isEmpty() ? m_state->command
                                                                : socksCommand(m_profile);
}

QCoro::Task<void> SocksSearch::ask()
{
    if (isKnown())
        co_return;
    const std::shared_ptr<State> state = m_state;
    const ResumeOnce<std::optional<QString>> answer;
    const auto wait = state->waits.insert(state->waits.end(), answer);
    const QString asked = signature();
    const StopToken ended = m_ended.get_token();
    const bool isFirst = !std::exchange(state->isRunning, true);
    if (isFirst)
        QThreadPool::globalInstance()->start([answer, profile = m_profile, ended] {
            answer.complete(socksCommand(profile, ended));
        });
    const std::optional<QString> found = co_await answer;
    state->waits.erase(wait);
    if (!isFirst || ended.stop_requested()) // `this` may be destroyed
        co_return;
    state->isRunning = false;
    state->command = found;
    state->signature = asked;
    for (const auto &other : state->waits)
        other.complete(found);
}

Text socksCommandHint(const PlatformProfile &profile)
{
    struct Package {
        const char *installer;
        const char *name;
    };
    for (const Package &package :
         {Package{"sudo apt install ", "netcat-openbsd"}, Package{"sudo dnf install ", "nmap-ncat"},
          Package{"sudo pacman -S ", "openbsd-netcat"},
          Package{"sudo zypper install ", "netcat-openbsd"}}) {
        const QLatin1String installer(package.installer);
        if (profile.torInstallHint.startsWith(installer))
            return Text::
                tr("ssh doesn't go through Tor yet: it needs a netcat that speaks SOCKS. Install one "
                   "with: %1")
                    .arg(installer + QLatin1String(package.name));
    }
    return Text::tr("ssh doesn't go through Tor yet: it needs a netcat that speaks SOCKS. "
                    "Install the OpenBSD netcat or Ncat with your package manager.");
}

} // namespace veldmark
