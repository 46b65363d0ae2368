#include "cli/Commands.h"

#include "cli/ApplicationsCommand.h"
#include "cli/BridgesCommand.h"
#include "cli/ConnectLines.h"
#include "cli/Console.h"
#include "cli/DoctorCommand.h"
#include "cli/IdentitiesCommand.h"
#include "cli/LogCommand.h"
#include "cli/ProgressLine.h"
#include "cli/Report.h"
#include "cli/ReportCommand.h"
#include "controller/PublishedState.h"
#include "controller/RealController.h"
#include "instance/InstanceClient.h"
#include "instance/InstancePlace.h"
#include "platform/InstalledApplications.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <functional>
#include <map>
#include <memory>

#include <unistd.h>

namespace veldmark {

namespace {

const Text notRunning = Text::tr(
    "Veldmark isn't running. Start it with: veldmarkctl run --connect");

QString compact(const QJsonValue &value)
{
    return QString::fromUtf8(value.isArray()
                                 ? QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact)
                                 : QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact));
}

QJsonObject request(const Invocation &invocation)
{
    const Verb &asked = verbOf(invocation.watch ? Verb::Id::watch : invocation.verb);
    QJsonObject request{{QStringLiteral("command"), asked.requested()}};
    QStringList given = {invocation.key, invocation.value};
    for (const QString &operand : asked.operands)
        request.insert(operand.toLower(), given.takeFirst());
    return request;
}

// Looks up each name once.
std::function<QString(const QString &id)> applicationNames()
{
    const auto known = std::make_shared<QHash<QString, QString>>();
    return [known](const QString &id) {
        auto name = known->find(id);
        if (name == known->end())
            name = known->insert(id, applicationOfIdentity(id).name);
        return *name;
    };
}

// A program reads the state in English, the user in their own language.
QJsonObject forReader(const Invocation &invocation, const QJsonObject &state,
                      const QJsonObject &texts)
{
    const bool isForProgram = invocation.json || invocation.verb == Verb::Id::get;
    return isForProgram ? state : inUsersLanguage(state, texts);
}

// Prints one state in the command's format. False for an unknown key.
bool show(const Invocation &invocation, const QJsonObject &state)
{
    switch (invocation.verb) {
    case Verb::Id::circuits:
        Console::print(invocation.json ? compact(state.value(QStringLiteral("circuits")))
                                       : Report::circuits(state, applicationNames()));
        return true;
    case Verb::Id::get: {
        const QJsonValue value = state.value(invocation.key);
        if (value.isUndefined()) {
            Console::printError(Text::tr("There is no field \"%1\". Fields: %2.")
                                    .arg(invocation.key, state.keys().join(QStringLiteral(", "))));
            return false;
        }
        Console::print(Report::value(value));
        return true;
    }
    default:
        Console::print(invocation.json ? compact(state) : Report::status(state));
        return true;
    }
}

bool showsEveryState(const Invocation &invocation)
{
    return invocation.verb == Verb::Id::status && invocation.watch;
}

// Prints invalid bridge lines. The setting stores them unchanged; a connect refuses them.
void tellOfBridges(const Invocation &invocation)
{
    if (invocation.verb != Verb::Id::set || invocation.key != QLatin1String("customBridges"))
        return;
    for (const QString &problem : Report::bridgeProblems(invocation.value))
        Console::printError(problem);
}

// Prints a problem with terminal mode; the windows show it beside the switch.
void tellOfTerminal(const Invocation &invocation, const QJsonObject &state)
{
    if (invocation.verb != Verb::Id::set || invocation.key != QLatin1String("terminalMode"))
        return;
    if (const QString told = Report::terminal(state); !told.isEmpty())
        Console::print(told);
}

QCoro::Task<ExitStatus> askInstance(Invocation invocation, PlatformProfile profile,
                                    std::shared_ptr<InstanceClient> instance)
{
    const auto last = std::make_shared<QJsonObject>();
    const auto progress = std::make_shared<ProgressLine>(Console::isTerminal(), Console::width());
    const auto connecting = std::make_shared<ConnectLines>();
    const InstanceClient::OnState onState = [invocation, last, progress, connecting](
                                                const QJsonObject &sent, const QJsonObject &texts) {
        const QJsonObject state = forReader(invocation, sent, texts);
        *last = state;
        if (showsEveryState(invocation))
            show(invocation, state);
        else if (invocation.verb == Verb::Id::connect)
            connecting->show(state);
        else if (invocation.verb == Verb::Id::downloadTransports)
            Console::draw(
                progress->update(state.value(QStringLiteral("transportDownload")).toString()));
    };
    auto running = instance->run(request(invocation), onState);
    const auto answer = co_await running;
    connecting->finish();
    Console::draw(progress->finish());
    if (!answer) {
        Console::printError(answer.error().description());
        co_return answer.error().isUsage() ? ExitStatus::usage : ExitStatus::failed;
    }
    tellOfBridges(invocation);
    tellOfTerminal(invocation, *last);
    if (invocation.verb == Verb::Id::downloadTransports) {
        // The progress line shows it already, unless it was cut off there.
        const QString told = last->value(QStringLiteral("transportDownload")).toString();
        if (told.isEmpty() || (Console::isTerminal() && told.size() >= Console::width()))
            Console::print(downloadedText(profile, told));
    }
    if (showsEveryState(invocation) || verbOf(invocation.verb).printsNoState)
        co_return ExitStatus::done;
    co_return show(invocation, *last) ? ExitStatus::done : ExitStatus::usage;
}

void printSettingsProblems(const TorController &controller)
{
    for (const Text &problem : controller.settingsProblems())
        Console::printError(problem);
}

QJsonObject stateForReader(const Invocation &invocation, const TorController &controller)
{
    return forReader(invocation, publishedState(controller), publishedTexts(controller));
}

// The commands below are executed without a running instance, with a controller of their own.
QCoro::Task<ExitStatus> setHere(Invocation invocation, std::shared_ptr<RealController> real)
{
    TorController &controller = real->controller();
    printSettingsProblems(controller);
    const auto set = setSetting(controller, invocation.key, invocation.value);
    if (!set) {
        Console::printError(set.error().description());
        co_return set.error().kind() == SettingError::Kind::Refused ? ExitStatus::usage
                                                                    : ExitStatus::failed;
    }
    tellOfBridges(invocation);
    if (invocation.key == controller.terminalMode.name() && controller.terminalMode()) {
        co_await controller.askTerminalHint();
        tellOfTerminal(invocation, stateForReader(invocation, controller));
    }
    co_return ExitStatus::done;
}

QCoro::Task<ExitStatus> restoreHere(Invocation invocation, std::shared_ptr<RealController> real)
{
    TorController &controller = real->controller();
    printSettingsProblems(controller);
    const auto lock = lockInstance(controller.profile()); // no other process starts meanwhile
    if (!lock) {
        Console::printError(lock.error());
        co_return ExitStatus::alreadyRunning;
    }
    const auto ended = co_await controller.restore();
    if (!ended) {
        Console::printError(ended.error().isEmpty() ? Text::tr("Cancelled.") : ended.error());
        co_return ExitStatus::failed;
    }
    show(invocation, stateForReader(invocation, controller));
    co_return ExitStatus::done;
}

QCoro::Task<ExitStatus> showHere(Invocation invocation, std::shared_ptr<RealController> real)
{
    TorController &controller = real->controller();
    if (invocation.verb != Verb::Id::status || invocation.json) // the report has them too
        printSettingsProblems(controller);
    controller.detectStaleState();
    const auto asking = controller.askTerminalHint();
    co_await controller.locateTransports();
    co_await asking;
    co_return show(invocation, stateForReader(invocation, controller)) ? ExitStatus::done
                                                                       : ExitStatus::usage;
}

// For root: no approval is needed, and the helper itself checks that a strict session is in force,
// whichever user owns it. So it also works where no password prompt is possible: `sudo veldmarkctl
// launch …`.
QCoro::Task<ExitStatus> launchHere(Invocation invocation, std::shared_ptr<RealController> real)
{
    const QStringList arguments = {QStringLiteral("launch"), QStringLiteral("--uid"),
                                   QString::number(SessionOwner::callerOfHelper()),
                                   QStringLiteral("--app"), invocation.key};
    const auto launched = co_await real->privileged().runHelper(arguments);
    if (!launched)
        Console::printError(launched.error().description());
    co_return launched ? ExitStatus::done : ExitStatus::failed;
}

QCoro::Task<ExitStatus> refuse(Text reason = notRunning, ExitStatus status = ExitStatus::notRunning)
{
    Console::printError(reason);
    co_return status;
}

using Command = QCoro::Task<ExitStatus> (*)(Invocation, PlatformProfile);
using CommandHere = QCoro::Task<ExitStatus> (*)(Invocation, std::shared_ptr<RealController>);

template <CommandHere command>
QCoro::Task<ExitStatus> here(Invocation invocation, PlatformProfile profile)
{
    return command(invocation, std::make_shared<RealController>(profile));
}

// What veldmarkctl does by itself, whether an instance runs or not.
const std::map<Verb::Id, Command> &ownCommands()
{
    static const std::map<Verb::Id, Command> table{
        {Verb::Id::log, showLog},
        {Verb::Id::bridges, showBridges},
        {Verb::Id::addBridges, addBridges},
        {Verb::Id::doctor, showDoctor},
        {Verb::Id::report, showReport},
        {Verb::Id::apps, showApplications},
        {Verb::Id::identities, showIdentities},
        {Verb::Id::renew, renewIdentity},
        {Verb::Id::runAs, runAs},
    };
    return table;
}

// What it does where no instance runs.
const std::map<Verb::Id, Command> &commandsWithoutInstance()
{
    static const std::map<Verb::Id, Command> table{
        {Verb::Id::status,
         [](Invocation invocation, PlatformProfile profile) {
             return invocation.watch ? refuse() : here<showHere>(invocation, profile);
         }},
        {Verb::Id::get, here<showHere>},
        {Verb::Id::set, here<setHere>},
        {Verb::Id::disconnect, here<restoreHere>},
        {Verb::Id::restore, here<restoreHere>},
        {Verb::Id::downloadTransports,
         [](Invocation, PlatformProfile profile) { return downloadTransportsHere(profile); }},
        {Verb::Id::launch,
         [](Invocation invocation, PlatformProfile profile) {
             return geteuid() == 0 ? here<launchHere>(invocation, profile) : refuse();
         }},
    };
    return table;
}

} // namespace

QCoro::Task<ExitStatus> execute(Invocation invocation, PlatformProfile profile)
{
    const auto &own = ownCommands();
    if (const auto command = own.find(invocation.verb); command != own.end())
        return command->second(invocation, profile);
    if (invocation.verb == Verb::Id::launch) {
        const auto path = applicationPath(invocation.key);
        if (!path)
            return refuse(path.error(), ExitStatus::usage);
        invocation.key = *path;
    }
    if (const auto instance = InstanceClient::connectTo(profile))
        return askInstance(invocation, profile, instance);
    const auto &alone = commandsWithoutInstance();
    const auto command = alone.find(invocation.verb);
    return command == alone.end() ? refuse() : command->second(invocation, profile);
}

} // namespace veldmark
