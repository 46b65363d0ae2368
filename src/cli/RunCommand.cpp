#include "cli/RunCommand.h"

#include <QPointer>

#include <csignal>

namespace veldmark {

RunCommand::RunCommand(const PlatformProfile &profile, bool connectNow, const QString &terminal)
    : m_question(terminal),
      m_real(profile),
      m_controller(m_real.controller()),
      m_watch(m_controller),
      m_restorer(m_controller),
      m_connectNow(connectNow),
      m_lines(m_controller)
{
    m_real.privileged().askWith([this](const Text &text) { return m_question.ask(text); });
    QObject::connect(&m_signals, &SignalWatcher::received, this, &RunCommand::onSignal);
    QObject::connect(&m_controller.phase, &Field::changed, this, [this] {
        m_restored |= m_controller.phase() == ConnectionPhase::disconnecting;
    });
    QObject::connect(&m_restorer, &NetworkRestorer::finished, this, &RunCommand::onRestored);
}

void RunCommand::start()
{
    auto server = InstanceServer::start(m_controller);
    if (!server) {
        m_lines.complain(server.error());
        finish(ExitStatus::alreadyRunning);
        return;
    }
    m_server = std::move(*server);
    begin();
}

QCoro::Task<void> RunCommand::begin()
{
    const QPointer<QObject> self(&m_lifetime);
    for (const Text &problem : m_controller.settingsProblems())
        m_lines.complain(problem);
    m_controller.detectStaleState();
    co_await m_controller.updatePrivilegedHelper();
    if (!self || m_restorer.isUnderWay() || m_restored)
        co_return;
    if (const auto problem = m_controller.startupError())
        m_lines.complain(*problem);
    if (m_connectNow)
        co_await m_controller.connect();
    else
        co_await m_controller.autoConnectIfEnabled();
    // a disconnect by another caller has ended the attempt
    if (!self || m_restorer.isUnderWay() || m_restored)
        co_return;
    const bool isRefused = m_controller.phase() == ConnectionPhase::disconnected
        || m_controller.otherSession();
    if (m_connectNow && isRefused) {
        m_lines.complain(m_controller.errorMessage().value_or(
            m_controller.otherSession() ? m_controller.statusDetail() : Text::tr("Cancelled.")));
        finish(ExitStatus::failed);
    } else if (m_controller.phase() == ConnectionPhase::disconnected) {
        m_lines.say(Text::tr("Ready. Connect with: veldmarkctl connect"));
    } else if (m_controller.phase() == ConnectionPhase::stale) {
        m_lines.showPhase(); // only the banner has the reason of a refused connect
    }
}

void RunCommand::onSignal(int number)
{
    m_mustEnd |= number != SIGINT;
    m_question.refuse();
    if (m_restorer.isUnderWay()) {
        m_lines.say(Text::tr("Still restoring your network, one moment…"));
        return;
    }
    if (m_controller.phase() == ConnectionPhase::connecting && !m_controller.canCancel())
        m_lines.say(Text::tr("Stopping as soon as Tor has been started…"));
    m_restorer.begin();
}

void RunCommand::onRestored(bool restored)
{
    if (restored) {
        finish(ExitStatus::done);
        return;
    }
    m_lines.complain(m_controller.errorMessage().value_or(Text::tr("Cancelled.")));
    if (m_mustEnd) {
        m_lines.complain(NetworkRestorer::notRestoredText(m_controller.profile()));
        finish(ExitStatus::failed);
        return;
    }
    m_lines.say(Text::tr("The network is still set up for Tor. Press Ctrl-C to try again."));
}

void RunCommand::finish(ExitStatus status)
{
    m_lines.finish();
    Q_EMIT finished(status);
}

} // namespace veldmark
