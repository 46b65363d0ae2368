#include "ui/SettingsModel.h"

#include "ui/Wording.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>

#include <algorithm>

namespace veldmark {

SettingsModel::SettingsModel(Session &session, QObject *parent)
    : QObject(parent),
      m_session(session)
{
    QObject::connect(&session, &Session::changed, this, &SettingsModel::changed);
}

void SettingsModel::setAutoConnect(bool on)
{
    Choices next = now().choices;
    next.autoConnect = on;
    m_session.store(next);
}

void SettingsModel::setSeparateApps(bool on)
{
    Choices next = now().choices;
    next.separateApps = on;
    m_session.store(next);
}

QStringList SettingsModel::climbNames() const
{
    return {tr("Do nothing"), tr("Ask"), tr("Try bridges")}; // in the order of allClimbs
}

int SettingsModel::climbIndex() const
{
    const auto at = std::find(allClimbs.begin(), allClimbs.end(), now().choices.climb);
    return static_cast<int>(at - allClimbs.begin());
}

void SettingsModel::setClimbIndex(int index)
{
    Choices next = now().choices;
    next.climb = allClimbs.at(static_cast<std::size_t>(index));
    m_session.store(next);
}

bool SettingsModel::canSeparateApps() const
{
    return !m_session.profile().identitiesNote.isEmpty();
}

QString SettingsModel::separationProblem() const
{
    return now().separated == false
        ? Text::tr("Applications are not separated now: they share circuits.").translated()
        : QString();
}

void SettingsModel::setTerminalMode(bool on)
{
    Choices next = now().choices;
    next.terminalMode = on;
    m_session.store(next);
}

QString SettingsModel::torStatus() const
{
    if (torFound())
        return tr("Found");
    return torCustom() ? tr("Missing") : tr("Not found");
}

QString SettingsModel::torPlace() const
{
    if (torFound())
        return *now().torPath;
    if (torCustom())
        return now().choices.customTorPath;
    return m_session.profile().name == QLatin1String("macos")
        ? tr("Homebrew: %1").arg(m_session.profile().torInstallHint)
        : tr("Install it with %1").arg(shownHint(m_session.profile().torInstallHint));
}

QString SettingsModel::installCommand() const
{
    const QString &hint = m_session.profile().torInstallHint;
    return !torFound() && !torCustom() && isCommand(hint) ? hint : QString();
}

QUrl SettingsModel::torFolder() const
{
    return QUrl::fromLocalFile(
        QFileInfo(m_session.profile().torCandidates.constFirst()).absolutePath());
}

void SettingsModel::chooseTor(const QUrl &file)
{
    Choices next = now().choices;
    next.customTorPath = file.toLocalFile();
    m_session.store(next);
}

QString SettingsModel::bridgeSource() const
{
    const QString &source = now().transports.source;
    return source.isEmpty() ? tr("Not found in Tor Browser or a downloaded bundle")
                            : tr("Loaded from %1").arg(source);
}

QString SettingsModel::bundleStatus() const
{
    if (!bundleLoaded())
        return tr("Not downloaded");
    const QString loaded = tr("Version %1 loaded").arg(now().bundleVersion);
    return now().isBundleSigned ? loaded + QStringLiteral(" · ") + tr("signature verified")
                                : loaded;
}

QString SettingsModel::downloadText() const
{
    return shown(now().transportDownload);
}

QString SettingsModel::bundleTrust() const
{
    return !now().canVerifyDownloads
        ? tr("Fetched over HTTPS. Its signature isn't checked, since GnuPG isn't installed.")
        : tr("Fetched over HTTPS and checked against the Tor Project's signature.");
}

QString SettingsModel::terminalExplanation() const
{
    if (m_session.profile().name == QLatin1String("macos"))
        return tr(
            "Adds one line to ~/.zshrc (and ~/.bash_profile if you have one) and an Include line at "
            "the top of ~/.ssh/config. Its files live in ~/.veldmark. Nothing is routed unless "
            "Veldmark is connected with Terminal mode on.");
    return tr(
        "Adds one line to ~/.bashrc (and ~/.zshrc if you use zsh) and an Include line at the top of "
        "~/.ssh/config. Its files live in ~/.veldmark. Nothing is routed unless Veldmark is "
        "connected with Terminal mode on.");
}

QString SettingsModel::terminalStatus() const
{
    if (!terminalInstalled())
        return tr("Not installed");
    return now().terminalForSsh ? tr("Installed in your shell and SSH config")
                                : tr("Installed in your shell; SSH doesn't use it");
}

QString SettingsModel::terminalTools() const
{
    return m_session.profile().name == QLatin1String("macos")
        ? tr("curl, git, brew, pip, ssh and more use Tor")
        : tr("curl, git, pip, ssh and more use Tor");
}

QString SettingsModel::terminalError() const
{
    return shown(now().terminalError);
}

QString SettingsModel::passwordlessError() const
{
    return shown(now().startupError);
}

QString SettingsModel::credits() const
{
    const QString start = tr(
        "Veldmark is free software and independent of the Tor Project. It contains no Tor: it runs "
        "the tor that is installed here, and where bridges are used lyrebird, snowflake-client or "
        "webtunnel-client.");
    const QString system = m_session.profile().name == QLatin1String("macos")
        ? tr(
            "It sets up the network with macOS's own programs, asks for the administrator with sudo, and checks "
            "downloads with GnuPG where that is installed.")
        : tr(
            "It sets up the network with nftables, resolvectl and gsettings, asks for the administrator with polkit or "
            "sudo, takes ssh through Tor with a netcat, and checks downloads with GnuPG where that is installed.");
    return start + u' ' + system;
}

QString SettingsModel::onComputer() const
{
    return m_session.profile().onComputer.translated();
}

bool SettingsModel::canRestore() const
{
    return now().markerPresent && !isChanging(now().phase);
}

void SettingsModel::copy(const QString &text) const
{
    QGuiApplication::clipboard()->setText(text);
}

} // namespace veldmark
