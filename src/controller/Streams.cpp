#include "controller/TorController.h"

#include "control/ControlPort.h"
#include "platform/PlatformProfile.h"
#include "system/Identities.h"

#include <QFile>
#include <QHostAddress>

using namespace std::chrono_literals;

namespace veldmark {

namespace {

// The list of identities is written at most this often, so a new one may come as late.
constexpr auto listInterval = 100ms;

// Whether an application may have the address. Accounts and programs without an identity have
// others, which the list of identities never has.
bool isOfAnApplication(const QString &address)
{
    const quint32 number = QHostAddress(address).toIPv4Address();
    return number >= 0x7f410000 && number <= 0x7f7fffff; // 127.65.0.0 to 127.127.255.255
}

} // namespace

// The connection stays open as long as the session, since a stream tells its source only when it
// begins. Without identities every stream has the same source, and there is no such connection.
void TorController::listenToStreams()
{
    if (m_isHearing || phase() != ConnectionPhase::connected || !m_controlPassword
        || !QFile::exists(m_services.profile.identitiesNote))
        return;
    m_isHearing = true;
    hearStreams(next(&TorController::m_hearing));
}

QCoro::Task<void> TorController::hearStreams(Run run)
{
    const std::function<bool(const QString &)> hear = [this, run](const QString &line) {
        if (run.isOver())
            return false;
        m_streams.take(line, [this](const QString &address) { return applicationAt(address); });
        return true;
    };
    auto hearing = m_services.controlPort.hearStreams(*m_controlPassword, hear);
    co_await hearing;
    if (!run.isOver())
        m_isHearing = false; // the monitor tries again
}

QString TorController::applicationAt(const QString &address)
{
    if (!isOfAnApplication(address))
        return {};
    const auto now = m_services.clock.now();
    if (!m_applications.contains(address) && (!m_listRead || now - *m_listRead >= listInterval))
        readApplications();
    return m_applications.value(address);
}

void TorController::readApplications()
{
    m_listRead = m_services.clock.now();
    const auto identities = Identities::read(m_services.profile, 1);
    if (!identities || !identities->standing)
        return; // what was known stays right: no address is used again
    m_applications.clear();
    for (const Identities::Identity &identity : identities->all)
        m_applications.insert(identity.address,
                              identity.isMine() ? identity.application : QString());
}

void TorController::nameStreams()
{
    if (m_streams.size() == 0)
        return;
    readApplications();
    m_streams.name([this](const QString &address) { return m_applications.value(address); });
}

} // namespace veldmark
