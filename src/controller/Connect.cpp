#include "controller/TorController.h"

#include "base/ExitCountry.h"
#include "base/ProgramFile.h"
#include "base/ResumeOnce.h"
#include "base/TorPassword.h"
#include "bridges/BridgePlan.h"
#include "checks/TimeLimit.h"
#include "controller/SettingRules.h"
#include "platform/PlatformProfile.h"
#include "system/OtherFirewalls.h"
#include "system/PrivilegedRunner.h"
#include "system/SignedBundle.h"

#include <QPointer>

#include <algorithm>

using namespace std::chrono_literals;

namespace veldmark {

namespace {

QString flag(bool on)
{
    return on ? QStringLiteral("1") : QStringLiteral("0");
}

// The bridges that the helper's words name.
QStringList linesIn(const QStringList &words)
{
    QStringList lines;
    for (qsizetype at = 0; at + 1 < words.size(); ++at) {
        if (words[at] == QLatin1String("--bridge"))
            lines << words[++at];
    }
    return lines;
}

QCoro::Task<std::optional<ConnectTime>> noAnswer()
{
    co_return std::nullopt;
}

// How long a connect waits for the first search for transports, for bridges in reserve alone.
constexpr auto searchPatience = 3s;

const QStringList programOptions = {QStringLiteral("--pt-lyrebird"),
                                    QStringLiteral("--pt-snowflake"),
                                    QStringLiteral("--pt-webtunnel")};

// `words` without programs that are named before them.
QStringList newWords(const QStringList &before, QStringList words)
{
    for (const QString &option : programOptions) {
        const qsizetype at = words.indexOf(option);
        if (at >= 0 && before.contains(option))
            words.remove(at, 2);
    }
    return words;
}

// The options that let root itself verify transport programs, which an administrator would
// otherwise have to approve. An outdated helper, installed for passwordless mode, does not know
// them.
QStringList bundleWords(const TorController::Services &services, const QStringList &words)
{
    if (!services.missingApprovals || services.privileged.privilegedHelperOutdated())
        return {};
    return SignedBundle::words(services.profile, services.missingApprovals(words));
}

} // namespace

std::optional<QString> TorController::torPath() const
{
    const QString custom = customTorPath().trimmed();
    if (SettingRules::torPathProblem(custom))
        return std::nullopt; // connect() refuses this path, so no other tor is used instead
    if (!custom.isEmpty() && isProgram(custom))
        return custom;
    for (const QString &candidate : m_services.profile.torCandidates) {
        if (isProgram(candidate))
            return candidate;
    }
    return std::nullopt;
}

QCoro::Task<Result<QStringList, Text>> TorController::bridgeArguments(Run attempt,
                                                                      BridgeRequest request)
{
    const QPointer<TorController> self(this);
    const BridgeProbe probe = m_services.bridgeProbe;
    const Text before = statusDetail();
    const BridgeTools tools{
        m_services.locateTransports,
        [self, attempt, probe](QString host, quint16 port, std::chrono::milliseconds limit) {
            // Without the controller the probe's own objects may be gone, too.
            return !attempt.isOver() ? probe(std::move(host), port, limit) : noAnswer();
        },
        [self, attempt](const Text &text) {
            if (!attempt.isOver())
                self->statusDetail = text;
        },
        m_services.locateWithoutAsking};
    const quint64 search = ++m_transportSearch;
    const BridgePlan plan = co_await planBridges(request, tools);
    if (attempt.isOver())
        co_return Failure(Text()); // the result is unused
    if (plan.transports)
        showTransports(*plan.transports, search);
    if (request.choice == BridgeChoice::off)
        m_pendingBridgeLines.clear();
    else if (plan.lines)
        m_pendingBridgeLines = *plan.lines;
    // The user and other clients see this status before the next one replaces it.
    if (statusDetail() != before) {
        co_await m_services.clock.sleep(0ms);
        if (attempt.isOver())
            co_return Failure(Text());
    }
    co_return plan.arguments.map_error(
        [](const BridgeError &error) { return error.description(); });
}

std::vector<ProgramApproval> TorController::unapproved(const QStringList &words) const
{
    return m_services.missingApprovals ? m_services.missingApprovals(words)
                                       : std::vector<ProgramApproval>();
}

std::vector<ProgramApproval> TorController::namedPrograms(const QStringList &words) const
{
    return m_services.namedPrograms ? m_services.namedPrograms(words)
                                    : std::vector<ProgramApproval>();
}

QCoro::Task<Result<void, HelperError>> TorController::approve(Run attempt,
                                                              std::vector<ProgramApproval> programs)
{
    for (const ProgramApproval &program : programs) {
        statusDetail = Text::tr("Waiting for an administrator to approve a program…");
        const QStringList asked = program.words();
        const auto helper = co_await m_services.privileged.runWithPrompt(asked);
        if (attempt.isOver())
            co_return Failure(HelperError::cancelled()); // the result is unused
        if (!helper)
            co_return Failure(helper.error());
    }
    co_return Result<void, HelperError>{};
}

void TorController::keepApproved(std::vector<Rung> &rungs, Reserve &reserve,
                                 const PluggableTransports &found) const
{
    const auto missing = unapproved(Ladder::words(rungs, found));
    reserve.bundle = SignedBundle::words(m_services.profile, missing);
    // Bridges in reserve are not worth a question.
    const auto isAsked = [this, &reserve](const ProgramApproval &program) {
        return reserve.bundle.isEmpty() || !SignedBundle::brings(m_services.profile, program);
    };
    if (std::any_of(missing.begin(), missing.end(), isAsked))
        std::erase_if(rungs, [this, &isAsked, &found](const Rung &rung) {
            const auto own = unapproved(Ladder::words({rung}, found));
            return std::any_of(own.begin(), own.end(), isAsked);
        });
    if (rungs.empty())
        reserve.bundle.clear();
}

bool TorController::isReserveOf(Climb wanted, const QString &custom) const
{
    return m_reserve.climb == wanted && m_reserve.customBridges == custom;
}

QCoro::Task<PluggableTransports> TorController::transportsForReserve(Run attempt)
{
    if (m_shownSearch != 0)
        co_return transports();
    // The first search is not over.
    const ResumeOnce<PluggableTransports> wait;
    completeAfter(&m_services.clock, searchPatience, wait, transports());
    searchForReserve(attempt, wait);
    const PluggableTransports found = co_await wait;
    co_return found;
}

QCoro::Task<void> TorController::searchForReserve(Run attempt, ResumeOnce<PluggableTransports> wait)
{
    const quint64 search = ++m_transportSearch;
    auto searching = m_services.locateWithoutAsking ? m_services.locateWithoutAsking()
                                                    : m_services.locateTransports();
    const PluggableTransports found = co_await searching;
    if (!attempt.isOver())
        showTransports(found, search);
    wait.complete(found);
}

QCoro::Task<TorController::Reserve> TorController::planReserve(Run attempt, BridgeRequest request)
{
    Reserve reserve;
    reserve.climb = climb();
    reserve.customBridges = request.customBridges;
    // An outdated helper, installed for passwordless mode, does not know the option.
    if (reserve.climb == Climb::never || m_services.privileged.privilegedHelperOutdated())
        co_return reserve;
    auto looking = transportsForReserve(attempt);
    const PluggableTransports found = co_await looking;
    if (attempt.isOver())
        co_return reserve;
    std::vector<Rung> rungs = Ladder::rungs(request.choice, m_pendingBridgeLines,
                                            request.customBridges, found);
    // A session that reaches nothing but its bridges stays so, unless the user wants to climb
    // whatever it takes.
    if (reserve.climb == Climb::ask && Ladder::isConfined(m_pendingBridgeLines))
        rungs = Ladder::confined(std::move(rungs));
    if (!rungs.empty())
        keepApproved(rungs, reserve, found);
    reserve.words = Ladder::words(rungs, found);
    reserve.rungs = std::move(rungs);
    co_return reserve;
}

QCoro::Task<Result<TorController::Reserve, HelperError>> TorController::runConnect(
    Run attempt, QStringList words, Reserve reserve)
{
    QStringList bundle = bundleWords(m_services, words);
    if (bundle.isEmpty())
        bundle = reserve.bundle;
    std::vector<ProgramApproval> programs = unapproved(words);
    if (!bundle.isEmpty()) // root verifies the bundle's programs itself
        std::erase_if(programs, [this](const ProgramApproval &program) {
            return SignedBundle::brings(m_services.profile, program);
        });
    for (bool isByName = false;;) {
        auto approving = approve(attempt, programs);
        const auto approved = co_await approving;
        if (attempt.isOver())
            co_return Failure(HelperError::cancelled()); // the result is unused
        if (!approved)
            co_return Failure(approved.error());
        statusDetail = Text::tr("Waiting for administrator approval…");
        const QStringList asked = words + newWords(words, reserve.words) + bundle;
        const auto helper = co_await m_services.privileged.runHelper(asked);
        if (attempt.isOver())
            co_return Failure(HelperError::cancelled()); // the result is unused
        if (helper)
            co_return reserve;
        if (helper.error().kind() != HelperError::Kind::UnapprovedProgram || isByName)
            co_return Failure(helper.error());
        // The helper refused an unapproved program, or one that root cannot read. Without the
        // bridges in reserve it may be asked for less.
        if (!reserve.words.isEmpty()) {
            reserve.rungs.clear();
            reserve.words.clear();
            bundle = bundleWords(m_services, words);
            programs.clear(); // they have been approved
            continue;
        }
        // With a bundle, root did not find the program in it: the administrator approves what is
        // missing. Without one, root has a copy that a newer bundle has replaced: the administrator
        // approves the programs by name.
        isByName = bundle.isEmpty();
        bundle.clear();
        programs = isByName ? namedPrograms(words) : unapproved(words);
        if (isByName && programs.empty())
            co_return Failure(helper.error());
    }
}

QCoro::Task<void> TorController::connect()
{
    if (phase() != ConnectionPhase::disconnected && phase() != ConnectionPhase::stale)
        co_return;
    lookAtSession();
    errorMessage = std::nullopt;
    if (const auto problem = SettingRules::torPathProblem(customTorPath())) {
        errorMessage = *problem;
        co_return;
    }
    // that session's user would not be told of its replacement
    if (const auto other = otherSession()) {
        errorMessage = other->isOwnUser()
            ? Text::tr(
                  "Another Veldmark of yours is connected (process %1). Disconnect it, or restore the "
                  "network, first.")
                  .arg(other->process)
            : Text::tr(
                  "%1 is connected with Veldmark (process %2). That session must be ended first.")
                  .arg(other->userName(), QString::number(other->process));
        co_return;
    }
    const auto tor = torPath();
    if (!tor) {
        errorMessage = m_services.profile.torMissingText;
        co_return;
    }
    if (!ExitCountry::isValid(exitCountry())) {
        errorMessage = Text::tr("Invalid exit country.");
        co_return;
    }

    const Run attempt = startAttempt();
    interruptDirectDownload();
    // The helper gets the settings as they are now; they may change during the awaits below.
    const bool strict = strictMode();
    const bool localNetwork = allowLocalNetwork();
    const bool separate = separateApps();
    const QString exit = exitCountry();
    // A left-over strict session still blocks traffic.
    const bool isBlocked = markedMode() == RoutingMode::strict;
    const BridgeRequest request{bridgeChoice(), customBridges(), optimizeSpeed(), isBlocked,
                                linesIn(m_sessionWords)};
    enterConnecting();

    const auto bridges = co_await bridgeArguments(attempt, request);
    if (attempt.isOver())
        co_return;
    if (!bridges) {
        failAttempt(bridges.error());
        co_return;
    }

    // A strict session that is resumed, for example after Tor has died, keeps its password. Another
    // password would make it another session, which needs an administrator's approval.
    if (!isBlocked || !m_controlPassword || m_controlHash.isEmpty()) {
        const TorPassword password = TorPassword::random();
        m_controlPassword = password.clear;
        m_controlHash = password.hash;
    }
    QStringList arguments = {QStringLiteral("connect"),
                             QStringLiteral("--tor"),
                             *tor,
                             QStringLiteral("--hash"),
                             m_controlHash,
                             QStringLiteral("--strict"),
                             flag(strict),
                             QStringLiteral("--lan"),
                             flag(localNetwork)};
    if (!m_services.profile.identitiesNote.isEmpty())
        arguments << QStringLiteral("--separate") << flag(separate);
    if (!exit.isEmpty())
        arguments << QStringLiteral("--exit") << exit;
    arguments += *bridges;
    // A session that is resumed keeps its bridges in reserve, too, also where others were found
    // meanwhile.
    Reserve reserve = m_reserve;
    if (!isBlocked || arguments != m_sessionWords || !isReserveOf(climb(), request.customBridges)) {
        auto planning = planReserve(attempt, request);
        reserve = co_await planning;
        if (attempt.isOver())
            co_return;
    }
    const bool isSame = arguments == m_sessionWords && reserve.words == m_reserve.words;
    // In passwordless mode the helper itself decides whether it needs approval.
    if (isBlocked && !isSame && !m_services.privileged.passwordlessInstalled())
        arguments[0] = QStringLiteral("replace");
    auto running = runConnect(attempt, arguments, std::move(reserve));
    const auto helper = co_await running;
    if (attempt.isOver())
        co_return;
    if (!helper) {
        failAtHelper(helper.error());
        co_return;
    }
    arguments[0] = QStringLiteral("connect");
    m_sessionWords = arguments;
    m_reserve = *helper;
    m_sessionMark = SessionMark::present(m_services.profile);

    activeMode = strict ? RoutingMode::strict : RoutingMode::proxy;
    activeBridge = request.choice == BridgeChoice::off ? std::nullopt
                                                       : std::optional(request.choice);
    m_activeBridgeLines = m_pendingBridgeLines;
    m_torStopped = false;
    // Changes since the helper began are told.
    m_knownKillSwitch = KillSwitch{KillSwitch::State::standing, 0, {}};
    startKillSwitchWatch();
    statusDetail = Text::tr("Starting Tor…");
    canCancel = true;
    const auto bootstrap = co_await waitForBootstrap(attempt);
    if (attempt.isOver())
        co_return;
    canCancel = false;
    if (!bootstrap) {
        failBootstrap(bootstrap.error());
        co_return;
    }

    bootstrapProblem = std::nullopt;
    lookAtKillSwitch();
    enterConnected();
    if (attempt.isOver())
        co_return; // an observer of `phase` has disconnected at once
    applyTerminalMode();
    m_network = {};
    m_network.addresses.haveMoved(m_services.ownAddresses());
    m_network.passed = OtherFirewalls::denying(m_services.profile);
    startMonitoring();
    co_await settleIn(attempt);
}

QCoro::Task<void> TorController::settleIn(Run attempt)
{
    m_isSettlingIn = true;
    co_await runChecks();
    if (attempt.isOver())
        co_return;
    if (phase() == ConnectionPhase::connected && optimizeSpeed()
        && (!latencyMs() || *latencyMs() >= slowPathMs))
        co_await optimizeCircuits();
    if (!attempt.isOver())
        m_isSettlingIn = false;
}

} // namespace veldmark
