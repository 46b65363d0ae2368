#include "controller/TorController.h"

#include "base/Clock.h"
#include "circuits/CircuitParser.h"
#include "control/ControlPort.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace veldmark {

namespace {

constexpr int optimizeAttempts = 4;
constexpr auto newCircuitsSettle = 10s;

const QString newCircuitsSignal = QStringLiteral("NEWNYM");
const QString circuitKey = QStringLiteral("circuit-status");
const QString streamKey = QStringLiteral("stream-status");

QString getInfoCommand(const QString &key)
{
    return QStringLiteral("GETINFO ") + key;
}

// A circuit id of Tor's has only digits. Anything else must not reach the control port.
bool isCircuitID(const QString &id)
{
    return !id.isEmpty()
        && std::all_of(id.cbegin(), id.cend(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

} // namespace

QCoro::Task<void> TorController::refreshCircuits()
{
    if (phase() != ConnectionPhase::connected || !m_controlPassword)
        co_return;
    const Run attempt = current(&TorController::m_attempt);
    const quint64 reading = ++m_circuitReading;
    const QString password = *m_controlPassword;
    const QStringList commands = {getInfoCommand(circuitKey), getInfoCommand(streamKey)};
    const auto replies = co_await m_services.controlPort.batch(commands, password);
    if (attempt.isOver() || reading < m_readCircuits)
        co_return; // a later request has already been answered
    m_readCircuits = reading;
    if (!replies) {
        circuitError = Text::tr("Couldn't read circuits: %1").arg(replies.error().description());
        co_return;
    }
    const auto block = [&replies](std::size_t index, const QString &key) {
        const auto &lines = replies->at(index);
        return lines ? ControlPort::dataBlock(key, *lines) : QStringList();
    };
    nameStreams();
    CircuitTable table = CircuitTable::assemble(block(0, circuitKey), block(1, streamKey),
                                                m_siteHistory, m_relayCache, m_streams);
    if (!table.unresolved.empty()) {
        const Resolution found = co_await resolveRelays(table.unresolved, attempt);
        if (attempt.isOver())
            co_return;
        RelayCache known = m_relayCache;
        for (const RelayInfo &relay : found.relays)
            known.insert(relay.fingerprint, relay);
        CircuitTable::fillRelays(table.circuits, known);
        if (found.isComplete)
            m_relayCache = known;
    }
    if (reading < m_shownCircuits)
        co_return;
    m_shownCircuits = reading;
    circuitError = std::nullopt;
    circuits = table.circuits;
}

QCoro::Task<TorController::Resolution> TorController::resolveRelays(std::vector<RelayInfo> relays,
                                                                    Run attempt)
{
    const QString password = *m_controlPassword;
    const QStringList bridgeLines = m_activeBridgeLines;

    QStringList commands;
    for (const RelayInfo &relay : relays)
        commands << getInfoCommand(QStringLiteral("ns/id/") + relay.fingerprint);
    const auto statuses = co_await m_services.controlPort.batch(commands, password);
    if (attempt.isOver() || !statuses)
        co_return Resolution{};
    QStringList addresses;
    for (std::size_t i = 0; i < relays.size(); ++i) {
        RelayInfo &relay = relays[i];
        if (const auto &lines = statuses->at(i))
            relay.ip = CircuitParser::ipFromNetworkStatus(
                ControlPort::dataBlock(QStringLiteral("ns/id/") + relay.fingerprint, *lines));
        if (!relay.ip) // a bridge has no network status
            relay.ip = CircuitParser::ipOfBridge(relay.fingerprint, bridgeLines);
        if (relay.ip && !addresses.contains(*relay.ip))
            addresses << *relay.ip;
    }

    commands.clear();
    for (const QString &address : addresses)
        commands << getInfoCommand(QStringLiteral("ip-to-country/") + address);
    const auto countries = co_await m_services.controlPort.batch(commands, password);
    if (!countries)
        co_return Resolution{relays, false};
    for (RelayInfo &relay : relays) {
        if (!relay.ip)
            continue;
        const auto &lines = countries->at(static_cast<std::size_t>(addresses.indexOf(*relay.ip)));
        if (lines)
            relay.country = CircuitParser::country(
                ControlPort::dataBlock(QStringLiteral("ip-to-country/") + *relay.ip, *lines));
    }
    co_return Resolution{relays, true};
}

QCoro::Task<void> TorController::newIdentity()
{
    if (phase() != ConnectionPhase::connected || !m_controlPassword)
        co_return;
    const Run attempt = current(&TorController::m_attempt);
    errorMessage = std::nullopt;
    forgetExit(); // without an answer, too: Tor may have taken new circuits
    auto asking = m_services.controlPort.signal(newCircuitsSignal, *m_controlPassword);
    const auto done = co_await asking;
    if (attempt.isOver())
        co_return;
    if (!done)
        errorMessage
            = Text::tr("Couldn't request a new identity: %1").arg(done.error().description());
    checkExit();
}

QCoro::Task<void> TorController::newCircuit(QString id)
{
    if (phase() != ConnectionPhase::connected || !m_controlPassword || !isCircuitID(id))
        co_return;
    const Run attempt = current(&TorController::m_attempt);
    const QString password = *m_controlPassword;
    const QStringList commands = {QStringLiteral("CLOSECIRCUIT ") + id};
    co_await m_services.controlPort.batch(commands, password);
    if (!attempt.isOver())
        co_await refreshCircuits();
}

QCoro::Task<void> TorController::optimizeCircuits()
{
    if (phase() != ConnectionPhase::connected || !m_controlPassword || isOptimizing())
        co_return;
    const Run attempt = current(&TorController::m_attempt);
    isOptimizing = true;
    for (int round = 1; round <= optimizeAttempts; ++round) {
        optimizeStatus = Text::tr("Testing speed (%1 of %2)…").arg(round).arg(optimizeAttempts);
        const quint64 identity = m_identity;
        const TimedProbe timed = co_await timedViaTor();
        if (attempt.isOver())
            co_return; // the next attempt has cleared the fields that this one set
        if ((timed.answer || round == optimizeAttempts) && identity == m_identity)
            showExit(timed); // no answer to the last attempt is a result, too
        const qint64 elapsedMs = timed.elapsed.count();
        if (timed.answer && elapsedMs < slowPathMs)
            break;
        optimizeStatus = timed.answer
            ? Text::tr("Slow path (%1 ms), finding a faster one…").arg(elapsedMs)
            : Text::tr("Path not responding, finding another…");
        if (round == optimizeAttempts)
            break;
        forgetExit();
        auto asking = m_services.controlPort.signal(newCircuitsSignal, *m_controlPassword);
        co_await asking;
        if (attempt.isOver())
            co_return;
        co_await m_services.clock.sleep(newCircuitsSettle);
        if (attempt.isOver())
            co_return;
    }
    optimizeStatus = std::nullopt;
    isOptimizing = false;
}

} // namespace veldmark
