#include "controller/TorController.h"

#include "terminal/TerminalIntegration.h"

namespace veldmark {

std::optional<QString> TorController::setTerminalMode(bool on)
{
    const auto problem = terminalMode.set(on);
    applyTerminalMode();
    return problem;
}

void TorController::applyTerminalMode()
{
    terminalError = std::nullopt;
    if (terminalMode()) {
        if (const auto installed = m_services.terminal.install(); !installed)
            terminalError = QStringLiteral("Couldn't set up terminal mode: ") + installed.error().description();
    }
    m_services.terminal.setActive(terminalMode() && phase() == ConnectionPhase::connected);
}

QString TorController::terminalHint() const
{
    return m_services.terminal.sshHint();
}

void TorController::removeTerminalIntegration()
{
    setTerminalMode(false);
    if (const auto removed = m_services.terminal.uninstall(); !removed)
        terminalError =
            QStringLiteral("Couldn't remove terminal integration: ") + removed.error().description();
}

} // namespace veldmark
