#include "controller/TorController.h"

#include "platform/PlatformProfile.h"
#include "system/PrivilegedRunner.h"

#include <QPointer>

namespace veldmark {

TorController::TorController(const Services &services, QObject *parent)
    : FieldOwner(services.settings, parent),
      m_services(services)
{
    passwordlessInstalled = services.privileged.passwordlessInstalled();
    readSettingsProblems();
    locateTransports();
    askTerminalHint();
}

TorController::~TorController()
{
    endWaits(m_fixWaiters);
    endWaits(m_restoreWaiters);
    if (m_downloadWait)
        m_downloadWait->complete(false);
}

void TorController::readSettingsProblems()
{
    QList<Text> problems = settingsProblems();
    while (const auto problem = store().problem())
        problems << *problem;
    settingsProblems = problems;
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
                        .detail = statusDetail(),
                        .stall = stall(),
                        .firewalls = denyingFirewalls()});
}

bool TorController::canDownloadTransports() const
{
    return !m_isDownloading && !isChanging(phase());
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
        return; // a search that began later has seen newer files
    m_shownSearch = search;
    transports = found;
}

} // namespace veldmark
