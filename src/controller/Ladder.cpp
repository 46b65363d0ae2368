#include "controller/TorController.h"

#include "control/ControlPort.h"
#include "log/TorLog.h"

#include <utility>

using namespace std::chrono_literals;

namespace veldmark {

namespace {

// From the first change on. With the first rung's patience that is three minutes.
constexpr auto ladderLimit = 165s;

Text resultOf(RungWatch::Sign sign)
{
    switch (sign) {
    case RungWatch::Sign::refused:
        return Text::tr("Refused, or out of reach.");
    case RungWatch::Sign::stalled:
        return Text::tr("Something answered, but Tor made no further progress.");
    case RungWatch::Sign::silent:
    case RungWatch::Sign::trying:
        break;
    }
    return Text::tr("No answer.");
}

} // namespace

void TorController::beginLadder()
{
    m_climbing.left = climb() == Climb::never ? std::vector<Rung>() : m_reserve.rungs;
    m_climbing.mayClimb = climb() == Climb::always;
    m_climbing.watch = RungWatch(Ladder::patience(m_activeBridgeLines), 0);
}

void TorController::endStep(const Text &result)
{
    std::vector<LadderStep> steps = ladder();
    if (steps.empty()) // the user's choice
        steps.push_back({activeBridge().value_or(BridgeChoice::off), {}, {}});
    const auto took = m_services.clock.now() - m_climbing.since.value_or(m_services.clock.now());
    steps.back().result = result;
    steps.back().seconds = static_cast<int>(
        std::chrono::duration_cast<std::chrono::seconds>(took).count());
    ladder = steps;
}

void TorController::endLadder()
{
    climbOffer = std::nullopt;
    if (m_climbing.began)
        endStep(Text::tr("Tor has connected."));
}

void TorController::failStep()
{
    if (m_climbing.began)
        endStep(resultOf(m_climbing.watch.hasAnswered() ? RungWatch::Sign::stalled
                                                        : RungWatch::Sign::silent));
}

Text TorController::nothingHelps() const
{
    std::vector<Text> names;
    for (const LadderStep &step : ladder())
        names.push_back(Ladder::name(step.rung));
    return Text::tr("Tor cannot connect in this network. Tried: %1.")
        .arg(Text::joined(names, QStringLiteral(", ")));
}

QCoro::Task<std::optional<Text>> TorController::followLadder(Run attempt, BootstrapStatus status,
                                                             QString report, qint64 received)
{
    Clock &clock = m_services.clock;
    const int earlier = m_climbing.failuresBefore <= status.failures ? m_climbing.failuresBefore
                                                                     : 0;
    const bool isRefused = status.isRefused
        && status.failures - earlier >= Ladder::refusals(m_activeBridgeLines);
    const auto sign = m_climbing.watch.look({status.progress, isRefused, received},
                                            clock.now()
                                                - m_climbing.freeSince.value_or(*m_climbing.since));
    const bool isLate = m_climbing.began && clock.now() - *m_climbing.began >= ladderLimit;
    const bool wasObstructed = std::exchange(m_climbing.isObstructed, false);
    if (wasObstructed || isLate || sign != RungWatch::Sign::trying)
        m_climbing.isObstructed = obstacle().has_value();
    // Bridges would not get past it either. Its time is not the rung's.
    if (wasObstructed || m_climbing.isObstructed) {
        m_climbing.freeSince = clock.now();
        m_climbing.watch = RungWatch(Ladder::patience(m_activeBridgeLines), status.progress);
        climbOffer = std::nullopt;
        co_return std::nullopt;
    }
    if (sign == RungWatch::Sign::trying && !(isLate && !m_climbing.watch.hasAnswered())) {
        climbOffer = std::nullopt;
        co_return std::nullopt;
    }
    if (m_climbing.left.empty() || isLate) {
        if (!m_climbing.began)
            co_return std::nullopt; // Tor goes on by itself
        endStep(resultOf(sign));
        co_return nothingHelps();
    }
    if (!m_climbing.mayClimb) {
        std::vector<Text> names;
        for (const Rung &rung : m_climbing.left)
            names.push_back(Ladder::name(rung.choice));
        climbOffer = Text::tr("Tor cannot connect in this network. Veldmark can try bridges: %1.")
                         .arg(Text::joined(names, QStringLiteral(", ")));
        co_return std::nullopt;
    }
    climbOffer = std::nullopt;
    endStep(resultOf(sign));
    if (!m_climbing.began)
        m_climbing.began = clock.now();
    const QString password = m_controlPassword.value_or(QString());
    while (!m_climbing.left.empty()) {
        const Rung rung = m_climbing.left.front();
        m_climbing.left.erase(m_climbing.left.begin());
        const auto formerSince = std::exchange(m_climbing.since, clock.now());
        std::vector<LadderStep> steps = ladder();
        steps.push_back({rung.choice, Text::tr("Being tried…"), {}});
        ladder = steps;
        const QStringList commands = {Ladder::command(rung.lines)};
        const auto replies = co_await m_services.controlPort.batch(commands, password);
        if (attempt.isOver())
            co_return std::nullopt;
        if (!replies) { // it is not known whether Tor has got it; the next look tells what is wrong
            m_climbing.left.insert(m_climbing.left.begin(), rung);
            m_climbing.since = formerSince;
            steps.pop_back();
            ladder = steps;
            co_return std::nullopt;
        }
        if (!replies->front()) {
            endStep(Text::tr("Tor did not accept these bridges."));
            continue;
        }
        activeBridge = rung.choice;
        m_activeBridgeLines = rung.lines;
        bootstrapProblem = std::nullopt;
        m_climbing.watch = RungWatch(Ladder::patience(rung.lines), status.progress);
        m_climbing.since = clock.now();
        m_climbing.freeSince = std::nullopt;
        m_climbing.reportBefore = report;
        m_climbing.failuresBefore = status.failures;
        m_climbing.logLines = TorLog(m_services.profile).read().lines().size();
        co_return std::nullopt;
    }
    co_return nothingHelps();
}

Result<void, Text> TorController::takeOffer()
{
    if (!climbOffer())
        return Failure(Text::tr("No bridges are offered now."));
    m_climbing.mayClimb = true; // at the next look
    climbOffer = std::nullopt;
    return {};
}

} // namespace veldmark
