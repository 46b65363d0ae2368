#include "app/ControllerSession.h"

#include "app/Activation.h"
#include "app/LoginItem.h"
#include "controller/PublishedState.h"
#include "controller/SettingRules.h"
#include "controller/TorController.h"
#include "report/ReportFile.h"

#include <QPointer>

#include <utility>

namespace veldmark {

ControllerSession::ControllerSession(TorController &controller, SettingsStore &settings,
                                     RunningApplications &applications)
    : Session(controller.profile()),
      m_controller(controller),
      m_applications(applications),
      m_examiner(controller.profile(), settings, m_processes),
      m_reporter(controller.profile(), settings, m_processes)
{
    for (const Field *field : controller.fields())
        QObject::connect(field, &Field::changed, this, &ControllerSession::schedule);
    // The circuits tell the exit's country. It is needed even while no window shows them.
    QObject::connect(&controller.exitIP, &Field::changed, this, [this] {
        if (m_controller.exitIP())
            refreshCircuits();
    });
    for (const Field *field : std::initializer_list<const Field *>{
             &controller.terminalMode, &controller.terminalError, &controller.phase})
        QObject::connect(field, &Field::changed, this, [this] { m_terminalIsKnown = false; });
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
    m_controller.readSettingsProblems(); // includes what the windows' places failed to store
    m_scheduled = false;
    const TorController &c = m_controller;
    Snapshot next;
    next.choices = {.strictMode = c.strictMode(),
                    .allowLocalNetwork = c.allowLocalNetwork(),
                    .exitCountry = c.exitCountry(),
                    .customTorPath = c.customTorPath(),
                    .bridgeChoice = c.bridgeChoice(),
                    .customBridges = c.customBridges(),
                    .bypassApps = c.bypassApps(),
                    .autoConnect = c.autoConnect(),
                    .optimizeSpeed = c.optimizeSpeed(),
                    .terminalMode = c.terminalMode(),
                    .separateApps = c.separateApps(),
                    .climb = c.climb()};
    next.phase = c.phase();
    next.activeMode = c.activeMode();
    next.activeBridge = c.activeBridge();
    next.bootstrapProgress = c.bootstrapProgress();
    next.statusDetail = c.statusDetail();
    next.bootstrapProblem = next.phase == ConnectionPhase::connecting ? c.bootstrapProblem()
                                                                      : c.problemBehindError();
    next.ladder = c.ladder();
    next.climbOffer = c.climbOffer();
    next.isAnothers = c.otherSession().has_value();
    if (std::exchange(m_sessionMark, c.sessionMark()) != c.sessionMark())
        ++m_session;
    next.session = m_session;
    next.hasTorStopped = c.hasTorStopped();
    next.canCancel = c.canCancel();
    next.errorMessage = c.errorMessage();
    if (!next.errorMessage && !c.settingsProblems().isEmpty())
        next.errorMessage = c.settingsProblems().constFirst();
    next.killSwitch = c.killSwitch();
    next.bytesRead = c.bytesRead.in(next.phase);
    next.bytesWritten = c.bytesWritten.in(next.phase);
    next.exitIP = c.exitIP.in(next.phase);
    next.torVerified = c.torVerified.in(next.phase);
    next.stall = c.stall.in(next.phase);
    next.firewalls = c.denyingFirewalls.in(next.phase);
    next.leak = c.leakStatus.in(next.phase);
    next.dns = c.dnsStatus.in(next.phase);
    next.isChecking = c.isChecking.in(next.phase);
    next.separated = c.separated.in(next.phase);
    next.latencyMs = c.latencyMs.in(next.phase);
    next.optimizeStatus = c.optimizeStatus.in(next.phase);
    next.isOptimizing = c.isOptimizing.in(next.phase);
    next.circuits = c.circuits.in(next.phase);
    next.circuitError = c.circuitError.in(next.phase);
    next.transports = c.transports();
    next.transportDownload = c.transportDownload();
    next.canDownloadTransports = c.canDownloadTransports();
    next.bundleVersion = TransportDownloader::installedVersion(c.profile()).value_or(QString());
    next.isBundleSigned = TransportDownloader::installedVerification(c.profile())
        == QLatin1String("signature");
    next.canVerifyDownloads = TransportDownloader::gpgPath(c.profile()).has_value();
    next.passwordlessInstalled = c.passwordlessInstalled();
    next.startupError = c.startupError();
    followTerminalMode();
    next.terminalError = c.terminalError();
    if (!next.terminalError)
        next.terminalError = c.terminalHint();
    next.terminalInstalled = m_terminalInstalled;
    next.terminalForSsh = m_terminalForSsh;
    next.torPath = c.torPath();
    next.isTorRefused = SettingRules::torPathProblem(c.customTorPath()).has_value();
    next.markerPresent = c.isSessionMarkerPresent();
    next.findings = m_findings;
    next.isExamining = m_isExamining;
    next.report = m_report;
    next.isReporting = m_isReporting;
    next.reportSaved = m_reportSaved;
    next.reportProblem = m_reportProblem;
    next.openAtLogin = LoginItem(c.profile()).isSet();
    m_now = std::move(next);
    Q_EMIT changed();
}

void ControllerSession::followTerminalMode()
{
    const bool isOn = m_controller.terminalMode();
    if (isOn != std::exchange(m_terminalModeWasOn, isOn) && isOn)
        lookOnceSshIsKnown();
    if (!std::exchange(m_terminalIsKnown, true)) {
        m_terminalInstalled = m_controller.isTerminalInstalled();
        m_terminalForSsh = m_terminalInstalled && m_controller.isTerminalUsedBySsh();
    }
}

QCoro::Task<void> ControllerSession::lookOnceSshIsKnown()
{
    const QPointer<ControllerSession> self(this);
    co_await m_controller.askTerminalHint();
    if (self)
        lookAgain(); // the integration with ssh is installed by now
}

std::vector<ExitCountry> ControllerSession::exitChoices() const
{
    return ExitCountry::all();
}

void ControllerSession::store(const Choices &choices)
{
    TorController &c = m_controller;
    const auto keep = [&c](auto &setting, const auto &value) {
        if (setting() == value)
            return;
        const auto kept = SettingRules::change(c, setting, value);
        if (!kept && kept.error().kind() == SettingError::Kind::Refused)
            c.showProblem(kept.error().description());
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
    keep(c.terminalMode, choices.terminalMode);
    keep(c.separateApps, choices.separateApps);
    keep(c.climb, choices.climb);
    schedule();
}

void ControllerSession::connectToTor()
{
    m_controller.connect();
}

// An offer that is gone shows in the next snapshot.
void ControllerSession::takeOffer()
{
    (void)m_controller.takeOffer();
}

void ControllerSession::disconnectFromTor()
{
    m_controller.restore();
}

void ControllerSession::runChecks()
{
    m_controller.runChecks();
}

void ControllerSession::checkDNS()
{
    m_controller.checkDNS(true);
}

void ControllerSession::fixDNS()
{
    m_controller.fixDNS();
}

void ControllerSession::newIdentity()
{
    takeNewIdentity();
}

QCoro::Task<void> ControllerSession::takeNewIdentity()
{
    const QPointer<ControllerSession> self(this);
    auto asking = m_controller.newIdentity();
    co_await asking;
    if (self)
        refreshCircuits();
}

void ControllerSession::newCircuit(const QString &id)
{
    m_controller.newCircuit(id);
}

void ControllerSession::optimizeCircuits()
{
    m_controller.optimizeCircuits();
}

void ControllerSession::refreshCircuits()
{
    m_circuitsWanted = true;
    if (!m_isReadingCircuits)
        readCircuits();
}

// One reading at a time, so that requests do not pile up on a Tor that does not answer.
QCoro::Task<void> ControllerSession::readCircuits()
{
    const QPointer<ControllerSession> self(this);
    m_isReadingCircuits = true;
    while (std::exchange(m_circuitsWanted, false)) {
        auto reading = m_controller.refreshCircuits();
        co_await reading;
        if (!self)
            co_return;
    }
    m_isReadingCircuits = false;
}

void ControllerSession::dismissError()
{
    // Dismisses only the message that the user has seen. The next message is shown afterwards.
    if (m_controller.errorMessage() && m_controller.errorMessage() == m_now.errorMessage)
        m_controller.dismissError();
    else if (!m_controller.settingsProblems().isEmpty()
             && m_controller.settingsProblems().constFirst() == m_now.errorMessage)
        m_controller.dismissSettingsProblem();
    schedule();
}

void ControllerSession::lookAgain()
{
    m_terminalIsKnown = false;
    schedule(); // the next snapshot reads the files
}

void ControllerSession::lookForTransports()
{
    m_controller.locateTransports();
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

void ControllerSession::makeReport()
{
    if (std::exchange(m_isReporting, true))
        return;
    m_report.clear();
    m_reportSaved.reset();
    m_reportProblem.reset();
    schedule();
    report();
}

QCoro::Task<void> ControllerSession::report()
{
    const QPointer<ControllerSession> self(this);
    const ReportMaker::PublishedFacts given{publishedState(m_controller),
                                            settingNames(m_controller)};
    auto making = m_reporter.make(given);
    const SupportReport made = co_await making;
    if (!self)
        co_return;
    m_report = made.text();
    m_isReporting = false;
    schedule();
}

void ControllerSession::saveReport(const QString &file)
{
    if (m_report.isEmpty())
        return;
    const auto saved = veldmark::saveReport(file, m_report.toUtf8(), ExistingFile::replace);
    m_reportSaved = saved ? std::optional(file) : std::nullopt;
    m_reportProblem = saved ? std::nullopt : std::optional(saved.error());
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
    lookAgain();
}

void ControllerSession::setOpenAtLogin(bool on)
{
    const auto advice = on ? misplaced() : std::nullopt;
    const auto done = advice ? Result<void, Text>(Failure(*advice)) : LoginItem(profile()).set(on);
    if (!done)
        m_controller.showProblem(
            Text::tr("Couldn't change the login-item setting: %1").arg(done.error()));
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

void ControllerSession::launchBypassed(const QString &application)
{
    if (!m_controller.isLaunching(application)) // a second press is none
        launch(application);
}

QCoro::Task<void> ControllerSession::launch(QString application)
{
    const QPointer<ControllerSession> self(this);
    const auto launched = co_await m_controller.launchBypassed(application);
    if (self && !launched && !launched.error().isEmpty())
        Q_EMIT launchFailed(launched.error().translated());
}

} // namespace veldmark
