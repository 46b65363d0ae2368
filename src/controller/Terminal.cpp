#include "controller/TorController.h"

#include "terminal/TerminalIntegration.h"

#include <QPointer>

namespace veldmark {

std::optional<Text> TorController::setTerminalMode(bool on)
{
    const auto problem = terminalMode.set(on);
    applyTerminalMode();
    return problem;
}

void TorController::applyTerminalMode()
{
    const TerminalIntegration &terminal = m_services.terminal;
    terminalError = std::nullopt;
    const Run run = next(&TorController::m_terminalRun);
    if (terminalMode()) {
        // Finding what ssh can use starts programs. The shells do not wait for that.
        const bool isKnown = terminal.knowsSocksCommand();
        showTerminalProblem(isKnown ? terminal.install() : terminal.installForShells());
        if (!isKnown && !terminalError())
            installForSsh(run);
    }
    askTerminalHint();
    setShellsActive(terminalMode() && phase() == ConnectionPhase::connected);
}

// Another process of the same user decides for its own session whether the shells follow it, even
// when this process does not show that session.
void TorController::setShellsActive(bool on)
{
    const auto other = SessionOwner::ofAnotherProcess(m_services.profile);
    if (!other || !other->isOwnUser())
        m_services.terminal.setActive(on);
}

void TorController::showTerminalProblem(const Result<void, TerminalError> &installed)
{
    if (!installed)
        terminalError
            = Text::tr("Couldn't set up terminal mode: %1").arg(installed.error().description());
}

QCoro::Task<void> TorController::installForSsh(Run run)
{
    auto asking = m_services.terminal.askForSocksCommand();
    co_await asking;
    if (run.isOver() || !m_services.terminal.knowsSocksCommand())
        co_return;
    showTerminalProblem(m_services.terminal.install());
}

QCoro::Task<void> TorController::askTerminalHint()
{
    // No Run: the hint follows from the present setting alone, so a call that waited for long may
    // show it.
    const QPointer<TorController> self(this);
    if (terminalMode()) {
        auto asking = m_services.terminal.askForSocksCommand();
        co_await asking;
        if (!self || (terminalMode() && !m_services.terminal.knowsSocksCommand()))
            co_return;
    }
    const Text hint = terminalMode() ? m_services.terminal.sshHint() : Text();
    terminalHint = hint.isEmpty() ? std::nullopt : std::optional(hint);
}

bool TorController::isTerminalInstalled() const
{
    return m_services.terminal.isInstalled();
}

bool TorController::isTerminalUsedBySsh() const
{
    return m_services.terminal.isUsedBySsh();
}

void TorController::removeTerminalIntegration()
{
    setTerminalMode(false);
    if (const auto removed = m_services.terminal.uninstall(); !removed)
        terminalError = Text::tr("Couldn't remove terminal integration: %1")
                            .arg(removed.error().description());
}

} // namespace veldmark
