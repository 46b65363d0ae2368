#include "cli/RunCommand.h"

#include "cli/Console.h"
#include "cli/Report.h"
#include "controller/PublishedState.h"

#include <QPointer>

#include <csignal>

namespace veldmark {

RunCommand::RunCommand(const PlatformProfile &profile, bool connectNow)
    : m_production(profile)
    , m_controller(m_production.controller())
    , m_watch(m_controller)
    , m_withdrawal(m_controller)
    , m_connectNow(connectNow)
    , m_progress(Console::isTerminal(), Console::width())
{
    QObject::connect(&m_signals, &SignalWatcher::received, this, &RunCommand::onSignal);
    for (const Field *field : std::initializer_list<const Field *>{&m_controller.bootstrapProgress, &m_controller.statusDetail})
        QObject::connect(field, &Field::changed, this, &RunCommand::showProgress, Qt::QueuedConnection);
    QObject::connect(&m_controller.bootstrapProblem, &Field::changed, this, &RunCommand::showProblem,
                     Qt::QueuedConnection);
    // Queued, like all of these: what is shown has been set as a whole.
    QObject::connect(&m_controller.phase, &Field::changed, this, &RunCommand::showPhase,
                     Qt::QueuedConnection);
    QObject::connect(&m_controller.isChecking, &Field::changed, this, &RunCommand::showPhase,
                     Qt::QueuedConnection);
    QObject::connect(&m_controller.killSwitch, &Field::changed, this, &RunCommand::showKillSwitch,
                     Qt::QueuedConnection);
    for (const Field *field : std::initializer_list<const Field *>{&m_controller.dnsStatus, &m_controller.leakStatus,
                                                                   &m_controller.torVerified, &m_controller.otherSession})
        QObject::connect(field, &Field::changed, this, &RunCommand::showVerdict, Qt::QueuedConnection);
    QObject::connect(&m_controller.phase, &Field::changed, this, [this] {
        m_restored |= m_controller.phase() == ConnectionPhase::disconnecting;
    });
    QObject::connect(&m_withdrawal, &Withdrawal::finished, this, &RunCommand::onWithdrawn);
}

void RunCommand::start()
{
    auto server = InstanceServer::start(m_controller);
    if (!server) {
        complain(server.error());
        finish(ExitStatus::alreadyRunning);
        return;
    }
    m_server = std::move(*server);
    begin();
}

QCoro::Task<void> RunCommand::begin()
{
    const QPointer<QObject> self(&m_lifetime);
    if (const auto problem = m_production.settings().problem())
        complain(*problem);
    m_controller.detectStaleState();
    co_await m_controller.updatePrivilegedHelper();
    if (!self || m_withdrawal.isUnderWay() || m_restored)
        co_return;
    if (const auto problem = m_controller.startupError())
        complain(*problem);
    if (m_connectNow)
        co_await m_controller.connect();
    else
        co_await m_controller.autoConnectIfEnabled();
    if (!self || m_withdrawal.isUnderWay() || m_restored) // somebody else has ended the attempt by a disconnect
        co_return;
    const bool isRefused = m_controller.phase() == ConnectionPhase::disconnected || m_controller.otherSession();
    if (m_connectNow && isRefused) {
        complain(m_controller.errorMessage().value_or(
            m_controller.otherSession() ? m_controller.statusDetail() : Text::tr("Cancelled.")));
        finish(ExitStatus::failed);
    } else if (m_controller.phase() == ConnectionPhase::disconnected) {
        say(Text::tr("Ready. Connect with: veldmarkctl connect"));
    } else if (m_controller.phase() == ConnectionPhase::stale && !m_connectNow) {
        showPhase();
    }
}

void RunCommand::onSignal(int number)
{
    m_mustEnd |= number != SIGINT;
    if (m_withdrawal.isUnderWay()) {
        say(Text::tr("Still restoring your network, one moment…"));
        return;
    }
    if (m_controller.phase() == ConnectionPhase::connecting && !m_controller.canCancel())
        say(Text::tr("Stopping as soon as Tor has been started…"));
    m_withdrawal.begin();
}

void RunCommand::onWithdrawn(bool restored)
{
    if (restored) {
        finish(ExitStatus::done);
        return;
    }
    complain(m_controller.errorMessage().value_or(Text::tr("Cancelled.")));
    if (m_mustEnd) {
        complain(Text::tr("The network is still set up for Tor. Restore it with: %1").arg(m_controller.profile().manualRestoreCommand));
        finish(ExitStatus::failed);
        return;
    }
    say(Text::tr("The network is still set up for Tor. Press Ctrl-C to try again."));
}

void RunCommand::finish(ExitStatus status)
{
    Console::draw(m_progress.finish());
    Q_EMIT finished(status);
}

void RunCommand::showProgress()
{
    if (m_controller.phase() == ConnectionPhase::connecting)
        Console::draw(m_progress.update(m_controller.bootstrapProgress(), m_controller.statusDetail().translated()));
}

void RunCommand::showProblem()
{
    if (m_controller.phase() == ConnectionPhase::connecting && m_controller.bootstrapProblem())
        say(*m_controller.bootstrapProblem());
}

void RunCommand::showPhase()
{
    const ConnectionPhase phase = m_controller.phase();
    if (phase == ConnectionPhase::connecting || m_controller.isChecking()) {
        if (phase == ConnectionPhase::connecting)
            m_lastPhase = phase;
        return; // the progress line speaks, or the answers are on their way
    }
    if (phase == ConnectionPhase::disconnecting) {
        if (std::exchange(m_lastPhase, phase) != phase) // checks that end with it come here as well
            say(m_controller.statusDetail());
        return;
    }
    if (phase == ConnectionPhase::connected && m_lastPhase == ConnectionPhase::connecting)
        Console::draw(m_progress.update(1.0, Text::tr("Done").translated()));
    m_lastPhase = phase;
    QString report = phase == ConnectionPhase::connected || phase == ConnectionPhase::stale
        ? Report::status(inUsersLanguage(publishedState(m_controller), publishedTexts(m_controller)))
        : verdictText();
    m_lastVerdict = verdictText();
    if (report == std::exchange(m_lastReport, report))
        return;
    say(report);
    if (phase == ConnectionPhase::connected)
        say(Text::tr("Press Ctrl-C to disconnect."));
}

// On a change of state alone: a program that removes the rules without pause is told once.
void RunCommand::showKillSwitch()
{
    const auto &rules = m_controller.killSwitch();
    const auto state = rules ? std::optional(rules->state) : std::nullopt;
    if (state == std::exchange(m_lastKillSwitch, state) || !state)
        return;
    if (m_controller.phase() == ConnectionPhase::connecting && *state == KillSwitch::State::open)
        complain(verdictText());
    else
        showPhase();
}

// What the checks find between the phases, and what becomes of another process's session.
void RunCommand::showVerdict()
{
    const ConnectionPhase phase = m_controller.phase();
    const bool isShown = phase == ConnectionPhase::connected || phase == ConnectionPhase::stale;
    if (isShown && m_lastPhase == phase && m_lastVerdict != verdictText())
        showPhase();
}

QString RunCommand::verdictText() const
{
    const Verdict verdict = m_controller.verdict();
    return QStringLiteral("%1: %2").arg(verdict.title.translated(), verdict.detail.translated());
}

void RunCommand::say(const Text &text)
{
    Console::draw(m_progress.finish());
    Console::print(text);
}

void RunCommand::complain(const Text &text)
{
    Console::draw(m_progress.finish());
    Console::printError(text);
}

} // namespace veldmark
