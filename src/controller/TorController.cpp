#include "controller/TorController.h"

#include "platform/PlatformProfile.h"
#include "system/PrivilegedRunner.h"

#include <QPointer>

namespace veldmark {

bool readSetting(const SettingsStore &store, const QString &key, bool)
{
    return store.boolean(key);
}

QString readSetting(const SettingsStore &store, const QString &key, const QString &)
{
    return store.string(key);
}

QStringList readSetting(const SettingsStore &store, const QString &key, const QStringList &)
{
    return store.stringList(key);
}

BridgeChoice readSetting(const SettingsStore &store, const QString &key, BridgeChoice fallback)
{
    return bridgeChoiceFromRawValue(store.string(key)).value_or(fallback);
}

void writeSetting(SettingsStore &store, const QString &key, bool value)
{
    store.setBoolean(key, value);
}

void writeSetting(SettingsStore &store, const QString &key, const QString &value)
{
    store.setString(key, value);
}

void writeSetting(SettingsStore &store, const QString &key, const QStringList &value)
{
    store.setStringList(key, value);
}

void writeSetting(SettingsStore &store, const QString &key, BridgeChoice value)
{
    store.setString(key, rawValue(value));
}

TorController::TorController(const Services &services, QObject *parent)
    : QObject(parent)
    , strictMode(this, &TorController::strictModeChanged, services.settings, QStringLiteral("strictMode"))
    , allowLocalNetwork(this, &TorController::allowLocalNetworkChanged, services.settings,
                        QStringLiteral("allowLocalNetwork"))
    , exitCountry(this, &TorController::exitCountryChanged, services.settings, QStringLiteral("exitCountry"))
    , customTorPath(this, &TorController::customTorPathChanged, services.settings,
                    QStringLiteral("customTorPath"))
    , bridgeChoice(this, &TorController::bridgeChoiceChanged, services.settings,
                   QStringLiteral("bridgeChoice"))
    , customBridges(this, &TorController::customBridgesChanged, services.settings,
                    QStringLiteral("customBridges"))
    , bypassApps(this, &TorController::bypassAppsChanged, services.settings, QStringLiteral("bypassApps"))
    , autoConnect(this, &TorController::autoConnectChanged, services.settings, QStringLiteral("autoConnect"))
    , optimizeSpeed(this, &TorController::optimizeSpeedChanged, services.settings,
                    QStringLiteral("optimizeSpeed"))
    , terminalMode(this, &TorController::terminalModeChanged, services.settings,
                   QStringLiteral("terminalMode"))
    , phase(this, &TorController::phaseChanged, ConnectionPhase::disconnected)
    , activeMode(this, &TorController::activeModeChanged)
    , activeBridge(this, &TorController::activeBridgeChanged)
    , bootstrapProgress(this, &TorController::bootstrapProgressChanged)
    , statusDetail(this, &TorController::statusDetailChanged,
                   QStringLiteral("Your traffic is not going through Tor"))
    , bootstrapProblem(this, &TorController::bootstrapProblemChanged)
    , otherSession(this, &TorController::otherSessionChanged)
    , canCancel(this, &TorController::canCancelChanged)
    , errorMessage(this, &TorController::errorMessageChanged)
    , bytesRead(this, &TorController::bytesReadChanged)
    , bytesWritten(this, &TorController::bytesWrittenChanged)
    , killSwitch(this, &TorController::killSwitchChanged)
    , exitIP(this, &TorController::exitIPChanged)
    , torVerified(this, &TorController::torVerifiedChanged)
    , leakStatus(this, &TorController::leakStatusChanged, LeakStatus::notTested())
    , dnsStatus(this, &TorController::dnsStatusChanged, DNSStatus::unknown())
    , isChecking(this, &TorController::isCheckingChanged)
    , latencyMs(this, &TorController::latencyMsChanged)
    , optimizeStatus(this, &TorController::optimizeStatusChanged)
    , isOptimizing(this, &TorController::isOptimizingChanged)
    , circuits(this, &TorController::circuitsChanged)
    , circuitError(this, &TorController::circuitErrorChanged)
    , transports(this, &TorController::transportsChanged)
    , transportDownload(this, &TorController::transportDownloadChanged)
    , passwordlessInstalled(this, &TorController::passwordlessInstalledChanged,
                            services.privileged.passwordlessInstalled())
    , startupError(this, &TorController::startupErrorChanged)
    , terminalError(this, &TorController::terminalErrorChanged)
    , m_services(services)
{
    loadSettings();
    locateTransports();
}

TorController::~TorController()
{
    endFixWaits();
    if (m_downloadWait)
        m_downloadWait->complete(false);
}

void TorController::loadSettings()
{
    m_services.settings.registerDefaults({
        {strictMode.key(), true}, // a new installation starts with the kill switch
        {allowLocalNetwork.key(), true},
        {exitCountry.key(), QString()},
        {customTorPath.key(), QString()},
        {terminalMode.key(), false},
        {bridgeChoice.key(), rawValue(BridgeChoice::off)},
        {customBridges.key(), QString()},
    });
    strictMode.load();
    allowLocalNetwork.load();
    exitCountry.load();
    customTorPath.load();
    terminalMode.load();
    bridgeChoice.load();
    customBridges.load();
    bypassApps.load();
    autoConnect.load();
    optimizeSpeed.load();
}

Verdict TorController::verdict() const
{
    const auto &rules = killSwitch();
    return Verdict::of({.phase = phase(),
                        .mode = activeMode(),
                        .killSwitch = rules ? std::optional(rules->state) : std::nullopt,
                        .isExposed = leakStatus().isExposed(),
                        .isDNSLeaking = dnsStatus().isLeak(),
                        .torVerified = torVerified(),
                        .detail = statusDetail()});
}

bool TorController::optionsLocked() const
{
    return phase() == ConnectionPhase::connecting || phase() == ConnectionPhase::connected
        || phase() == ConnectionPhase::disconnecting;
}

bool TorController::canDownloadTransports() const
{
    return !m_isDownloading && phase() != ConnectionPhase::connecting
        && phase() != ConnectionPhase::disconnecting;
}

QCoro::Task<void> TorController::locateTransports()
{
    const QPointer<TorController> self(this);
    const quint64 search = ++m_transportSearch;
    const auto found = co_await m_services.locateTransports();
    if (self)
        showTransports(found, search);
}

void TorController::showTransports(const PluggableTransports &found, quint64 search)
{
    if (search < m_shownSearch)
        return; // a search that began later has seen the newer files
    m_shownSearch = search;
    transports = found;
}

} // namespace veldmark
