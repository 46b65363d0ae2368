#include "instance/Handlers.h"

#include "controller/PublishedState.h"
#include "controller/TorController.h"
#include "instance/JsonLines.h"

#include <algorithm>

namespace veldmark::Handlers {

namespace {

auto refusal(const Text &description)
{
    return Failure(InstanceError(description));
}

Text failure(const std::optional<Text> &told)
{
    return told.value_or(Text::tr("Cancelled."));
}

Text orCancelled(const Text &told)
{
    return told.isEmpty() ? Text::tr("Cancelled.") : told;
}

Text notNow(const TorController &controller)
{
    return Text::tr("Not now: %1").arg(controller.statusDetail());
}

bool hasCircuit(const TorController &controller, const QString &id)
{
    const auto &circuits = controller.circuits();
    return std::any_of(circuits.begin(), circuits.end(),
                       [&id](const CircuitInfo &circuit) { return circuit.id == id; });
}

Text connectFailure(const TorController &controller)
{
    const Text told = controller.otherSession()
        ? controller.errorMessage().value_or(controller.statusDetail())
        : failure(controller.errorMessage());
    const auto problem = controller.problemBehindError();
    return problem ? Text::joined({told, *problem}) : told;
}

} // namespace

QJsonObject stateMessage(const TorController &controller)
{
    return {{QStringLiteral("state"), publishedState(controller)},
            {QStringLiteral("texts"), publishedTexts(controller)}};
}

QCoro::Task<Outcome> status(Call call)
{
    call.lines->write(stateMessage(*call.controller));
    co_return {};
}

QCoro::Task<Outcome> watch(Call call)
{
    const auto lines = call.lines;
    for (bool isThere = true; isThere;) { // until the client's input has ended
        auto reading = lines->next();
        const auto object = co_await reading;
        isThere = object.has_value();
    }
    co_return {};
}

QCoro::Task<Outcome> raise(Call call)
{
    call.raise();
    co_return {};
}

QCoro::Task<Outcome> set(Call call)
{
    const QJsonValue key = call.request.value(QStringLiteral("key"));
    const QJsonValue value = call.request.value(QStringLiteral("value"));
    if (!key.isString() || !value.isString())
        co_return refusal(Text::tr("\"set\" needs a \"key\" and a \"value\", both strings."));
    const auto done = setSetting(*call.controller, key.toString(), value.toString());
    if (!done)
        co_return Failure(InstanceError(done.error().description(),
                                        done.error().kind() == SettingError::Kind::Refused));
    if (key.toString() == call.controller->terminalMode.name()) {
        // The client that switches terminal mode on is told what ssh lacks.
        const auto controller = call.controller;
        co_await controller->askTerminalHint();
        if (controller)
            call.lines->write(stateMessage(*controller));
    }
    co_return {};
}

QCoro::Task<Outcome> connect(Call call)
{
    const auto controller = call.controller;
    if (controller->phase() == ConnectionPhase::disconnecting)
        co_return refusal(notNow(*controller));
    if (locksOptions(controller->phase()))
        co_return refusal(
            Text::tr("Already connected or connecting; \"veldmarkctl status\" says more."));
    co_await controller->connect();
    if (controller && controller->phase() != ConnectionPhase::connected)
        co_return refusal(connectFailure(*controller));
    co_return {};
}

QCoro::Task<Outcome> climb(Call call)
{
    const auto taken = call.controller->takeOffer();
    if (!taken)
        co_return refusal(taken.error());
    co_return {};
}

QCoro::Task<Outcome> disconnect(Call call)
{
    const auto controller = call.controller;
    if (isChanging(controller->phase()) && !controller->canCancel())
        co_return refusal(notNow(*controller));
    const auto ended = co_await controller->restore();
    if (!ended)
        co_return refusal(orCancelled(ended.error()));
    co_return {};
}

QCoro::Task<Outcome> check(Call call)
{
    if (call.controller->isChecking())
        co_return refusal(Text::tr("A check is already running."));
    co_await call.controller->runChecks();
    co_return {};
}

QCoro::Task<Outcome> fixDNS(Call call)
{
    const auto controller = call.controller;
    co_await controller->fixDNS();
    if (controller && controller->failure())
        co_return refusal(*controller->failure());
    if (controller && controller->dnsStatus().isLeak())
        co_return refusal(Text::tr("Cancelled."));
    co_return {};
}

QCoro::Task<Outcome> circuits(Call call)
{
    const auto controller = call.controller;
    co_await controller->refreshCircuits();
    if (controller && controller->circuitError())
        co_return refusal(*controller->circuitError());
    co_return {};
}

QCoro::Task<Outcome> closeCircuit(Call call)
{
    const auto controller = call.controller;
    const QString id = call.request.value(QStringLiteral("id")).toString();
    co_await controller->refreshCircuits();
    if (!controller)
        co_return {};
    if (controller->circuitError())
        co_return refusal(*controller->circuitError());
    if (!hasCircuit(*controller, id))
        co_return refusal(Text::tr("There is no circuit \"%1\".").arg(id.left(40).simplified()));
    co_await controller->newCircuit(id);
    if (controller && hasCircuit(*controller, id))
        co_return refusal(Text::tr("Tor didn't close circuit %1.").arg(id));
    co_return {};
}

QCoro::Task<Outcome> newIdentity(Call call)
{
    const auto controller = call.controller;
    co_await controller->newIdentity();
    if (controller && controller->failure())
        co_return refusal(*controller->failure());
    co_return {};
}

QCoro::Task<Outcome> launch(Call call)
{
    const auto controller = call.controller;
    const QString path = call.request.value(QStringLiteral("app")).toString();
    if (!path.startsWith(u'/'))
        co_return refusal(Text::tr("\"launch\" needs an \"app\", an absolute path."));
    auto launching = controller->launchBypassed(path);
    const auto launched = co_await launching;
    if (controller && !launched && controller->phase() == ConnectionPhase::connected)
        co_return refusal(orCancelled(launched.error()));
    co_return {};
}

QCoro::Task<Outcome> downloadTransports(Call call)
{
    const auto controller = call.controller;
    // Checked first: the message of an earlier download, below, does not explain this refusal.
    if (isChanging(controller->phase()))
        co_return refusal(notNow(*controller));
    if (!controller->canDownloadTransports())
        co_return refusal(
            Text::tr("Not now: %1")
                .arg(controller->transportDownload().value_or(controller->statusDetail())));
    auto downloading = controller->downloadTransports();
    const bool isInstalled = co_await downloading;
    if (controller && !isInstalled)
        co_return refusal(failure(controller->transportDownload()));
    co_return {};
}

} // namespace veldmark::Handlers
