#include "app/ControllerSession.h"

#include "app/LoginItem.h"
#include "controller/TorController.h"

#include <QFile>
#include <QPointer>

namespace veldmark {

namespace {

Phase phaseOf(ConnectionPhase phase)
{
    switch (phase) {
    case ConnectionPhase::disconnected:
        return Phase::disconnected;
    case ConnectionPhase::connecting:
        return Phase::connecting;
    case ConnectionPhase::connected:
        return Phase::connected;
    case ConnectionPhase::disconnecting:
        return Phase::disconnecting;
    case ConnectionPhase::stale:
        break;
    }
    return Phase::stale;
}

Leak leakOf(const LeakStatus &status)
{
    switch (status.kind()) {
    case LeakStatus::Kind::exposed:
        return {Leak::Kind::exposed, status.address()};
    case LeakStatus::Kind::notTested:
        return {Leak::Kind::notTested, {}};
    case LeakStatus::Kind::checking:
        return {Leak::Kind::checking, {}};
    case LeakStatus::Kind::blocked:
        return {Leak::Kind::blocked, {}};
    case LeakStatus::Kind::inconclusive:
        break;
    }
    return {Leak::Kind::inconclusive, {}};
}

Lookups lookupsOf(const DNSStatus &status)
{
    switch (status.kind()) {
    case DNSStatus::Kind::leak:
        return {Lookups::Kind::leak, status.leaks()};
    case DNSStatus::Kind::unknown:
        return {Lookups::Kind::unknown, {}};
    case DNSStatus::Kind::checking:
        return {Lookups::Kind::checking, {}};
    case DNSStatus::Kind::throughTor:
        return {Lookups::Kind::throughTor, {}};
    case DNSStatus::Kind::unverified:
        break;
    }
    return {Lookups::Kind::unverified, {}};
}

} // namespace

ControllerSession::ControllerSession(TorController &controller, SettingsStore &settings,
                                     RunningApplications &applications)
    : Session(controller.profile())
    , m_controller(controller)
    , m_settings(settings)
    , m_applications(applications)
    , m_examiner(controller.profile(), settings, m_processes)
{
    using C = TorController;
    for (const auto changed :
         {&C::strictModeChanged, &C::allowLocalNetworkChanged, &C::exitCountryChanged,
          &C::customTorPathChanged, &C::bridgeChoiceChanged, &C::customBridgesChanged,
          &C::bypassAppsChanged, &C::autoConnectChanged, &C::optimizeSpeedChanged,
          &C::terminalModeChanged, &C::phaseChanged, &C::activeModeChanged, &C::activeBridgeChanged,
          &C::bootstrapProgressChanged, &C::statusDetailChanged,
          &C::bootstrapProblemChanged, &C::canCancelChanged,
          &C::errorMessageChanged, &C::bytesReadChanged, &C::bytesWrittenChanged, &C::exitIPChanged,
          &C::torVerifiedChanged, &C::leakStatusChanged, &C::dnsStatusChanged, &C::isCheckingChanged,
          &C::latencyMsChanged, &C::optimizeStatusChanged, &C::isOptimizingChanged,
          &C::circuitsChanged, &C::circuitErrorChanged, &C::transportsChanged,
          &C::transportDownloadChanged, &C::passwordlessInstalledChanged, &C::startupErrorChanged,
          &C::terminalErrorChanged})
        QObject::connect(&controller, changed, this, &ControllerSession::schedule);
    QObject::connect(&controller, &C::rulesRemoved, this, &Session::rulesRemoved);
    read();
}

void ControllerSession::schedule()
{
    if (std::exchange(m_scheduled, true))
        return;
    QMetaObject::invokeMethod(this, &ControllerSession::read, Qt::QueuedConnection);
}

void ControllerSession::read()
{
    m_scheduled = false;
    const TorController &c = m_controller;
    Snapshot next;
    next.choices = {c.strictMode(),   c.allowLocalNetwork(), c.exitCountry(), c.customTorPath(),
                    c.bridgeChoice(), c.customBridges(),     c.bypassApps(),  c.autoConnect(),
                    c.optimizeSpeed(), c.terminalMode()};
    next.phase = phaseOf(c.phase());
    next.activeMode = c.activeMode();
    next.activeBridge = c.activeBridge();
    next.bootstrapProgress = c.bootstrapProgress();
    next.statusDetail = c.statusDetail();
    next.bootstrapProblem = c.bootstrapProblem();
    next.canCancel = c.canCancel();
    if (const auto problem = m_settings.problem())
        m_notice = problem;
    next.errorMessage = c.errorMessage() ? c.errorMessage() : m_notice;
    // What was found out about a session is not true of what is left of it.
    if (next.phase == Phase::connected) {
        next.bytesRead = c.bytesRead();
        next.bytesWritten = c.bytesWritten();
        next.exitIP = c.exitIP();
        next.torVerified = c.torVerified();
        next.leak = leakOf(c.leakStatus());
        next.lookups = lookupsOf(c.dnsStatus());
        next.isChecking = c.isChecking();
        next.latencyMs = c.latencyMs();
        next.optimizeStatus = c.optimizeStatus();
        next.isOptimizing = c.isOptimizing();
        next.circuits = c.circuits();
        next.circuitError = c.circuitError();
    }
    next.transports = c.transports();
    next.transportDownload = c.transportDownload();
    next.canDownloadTransports = c.canDownloadTransports();
    next.passwordlessInstalled = c.passwordlessInstalled();
    next.startupError = c.startupError();
    if (c.terminalMode() != std::exchange(m_terminalModeWasOn, c.terminalMode()))
        m_terminalHint = c.terminalMode() ? c.terminalHint() : QString();
    next.terminalError = c.terminalError();
    if (!next.terminalError && !m_terminalHint.isEmpty())
        next.terminalError = m_terminalHint;
    next.terminalInstalled = QFile::exists(c.profile().terminalDirectory);
    next.torPath = c.torPath();
    next.markerPresent = c.isSessionMarkerPresent();
    next.findings = m_findings;
    next.isExamining = m_isExamining;
    next.openAtLogin = LoginItem(c.profile()).isSet();
    m_now = std::move(next);
    Q_EMIT changed();
}

std::vector<ExitChoice> ControllerSession::exitChoices() const
{
    std::vector<ExitChoice> choices;
    for (const ExitCountry &country : ExitCountry::all())
        choices.push_back({country.code, country.name});
    return choices;
}

void ControllerSession::store(const Choices &choices)
{
    TorController &c = m_controller;
    const auto keep = [](auto &setting, const auto &value) {
        if (setting() != value)
            setting.set(value);
    };
    keep(c.strictMode, choices.strictMode);
    keep(c.allowLocalNetwork, choices.allowLocalNetwork);
    keep(c.exitCountry, choices.exitCountry);
    keep(c.customTorPath, choices.customTorPath);
    keep(c.bridgeChoice, choices.bridgeChoice);
    keep(c.customBridges, choices.customBridges);
    keep(c.bypassApps, choices.bypassApps);
    keep(c.autoConnect, choices.autoConnect);
    keep(c.optimizeSpeed, choices.optimizeSpeed);
    if (c.terminalMode() != choices.terminalMode)
        c.setTerminalMode(choices.terminalMode);
    schedule();
}

void ControllerSession::connectToTor()
{
    m_controller.connect();
}

void ControllerSession::disconnectFromTor()
{
    m_controller.detectStaleState(); // a marker that another process left counts as well
    m_controller.disconnect();
}

void ControllerSession::runChecks()
{
    m_controller.runChecks();
}

void ControllerSession::checkLookups()
{
    m_controller.checkDNS(true);
}

void ControllerSession::fixLookups()
{
    m_controller.fixDNS();
}

void ControllerSession::newIdentity()
{
    m_controller.newIdentity();
}

void ControllerSession::newCircuit(const QString &id)
{
    m_controller.newCircuit(id);
}

void ControllerSession::findFasterCircuits()
{
    m_controller.optimizeCircuits();
}

void ControllerSession::refreshCircuits()
{
    m_controller.refreshCircuits();
}

void ControllerSession::dismissError()
{
    m_notice.reset();
    m_controller.dismissError();
    schedule();
}

void ControllerSession::lookForTor()
{
    schedule(); // the next snapshot looks
}

void ControllerSession::examine()
{
    if (std::exchange(m_isExamining, true))
        return;
    schedule();
    look();
}

QCoro::Task<void> ControllerSession::look()
{
    const QPointer<ControllerSession> self(this);
    auto examining = m_examiner.examine();
    const Findings findings = co_await examining;
    if (!self)
        co_return;
    m_findings = findings;
    m_isExamining = false;
    schedule();
}

void ControllerSession::downloadTransports()
{
    m_controller.downloadTransports();
}

void ControllerSession::installPasswordless()
{
    m_controller.installPasswordless();
}

void ControllerSession::removePasswordless()
{
    m_controller.removePasswordless();
}

void ControllerSession::removeTerminalIntegration()
{
    m_controller.removeTerminalIntegration();
    schedule();
}

void ControllerSession::setOpenAtLogin(bool on)
{
    if (const auto done = LoginItem(profile()).set(on); !done)
        m_notice = QStringLiteral("Couldn't change the login-item setting: ") + done.error();
    schedule();
}

void ControllerSession::addBypassApp(const QString &application)
{
    m_controller.addBypassApp(application);
}

void ControllerSession::removeBypassApp(const QString &application)
{
    m_controller.removeBypassApp(application);
}

void ControllerSession::launchBypassed(const QString &path)
{
    m_controller.launchBypassed(path);
}

} // namespace veldmark
