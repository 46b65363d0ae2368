#include "cli/ReportCommand.h"

#include "base/ResumeOnce.h"
#include "cli/Console.h"
#include "controller/PublishedState.h"
#include "controller/RealController.h"
#include "instance/InstanceClient.h"
#include "report/ReportFile.h"
#include "report/ReportMaker.h"

#include <QJsonDocument>
#include <QTimer>

namespace veldmark {

namespace {

using namespace std::chrono_literals;

constexpr auto instanceLimit = 5s;

// The instance's state, or a sentence that says why it gave none.
using GivenState = Result<QJsonObject, Text>;

QCoro::Task<void> ask(std::shared_ptr<InstanceClient> instance, ResumeOnce<GivenState> answered)
{
    const auto last = std::make_shared<QJsonObject>();
    const InstanceClient::OnState onState = [last](const QJsonObject &state, const QJsonObject &) {
        *last = state;
    };
    const QJsonObject request{{QStringLiteral("command"), QStringLiteral("status")}};
    auto running = instance->run(request, onState);
    const auto ended = co_await running;
    answered.complete(ended ? GivenState(*last) : GivenState(Failure(ended.error().description())));
}

QCoro::Task<QJsonObject> ownState(std::shared_ptr<RealController> real)
{
    TorController &controller = real->controller();
    controller.detectStaleState();
    auto searching = controller.locateTransports();
    co_await searching;
    co_return publishedState(controller);
}

QCoro::Task<ReportMaker::PublishedFacts> givenBy(std::shared_ptr<InstanceClient> instance,
                                                 std::shared_ptr<RealController> real)
{
    ReportMaker::PublishedFacts given;
    given.settings = settingNames(real->controller());
    if (instance) {
        const ResumeOnce<GivenState> answered;
        QTimer limit;
        limit.setSingleShot(true);
        QObject::connect(&limit, &QTimer::timeout, &limit, [answered] {
            answered.complete(Failure(Text::tr("It doesn't answer.")));
        });
        limit.start(instanceLimit);
        ask(instance, answered);
        const GivenState answer = co_await answered;
        if (answer) {
            given.state = *answer;
            co_return given;
        }
        const Text reason = Text::tr("The running instance gave no state: %1").arg(answer.error());
        Console::printError(reason);
        given.problems << reason.english();
    }
    auto reading = ownState(real);
    given.state = co_await reading;
    co_return given;
}

} // namespace

QCoro::Task<ExitStatus> showReport(Invocation invocation, PlatformProfile profile)
{
    const auto real = std::make_shared<RealController>(profile);
    const auto instance = InstanceClient::connectTo(profile);
    auto asking = givenBy(instance, real);
    const ReportMaker::PublishedFacts given = co_await asking;

    ChildProcessRunner processes;
    ReportMaker maker(profile, real->settings(), processes);
    auto making = maker.make(given);
    const SupportReport report = co_await making;
    const QString text = invocation.json
        ? QString::fromUtf8(QJsonDocument(report.json()).toJson(QJsonDocument::Compact)) + u'\n'
        : report.text();
    Console::draw(text);
    if (invocation.output.isEmpty())
        co_return ExitStatus::done;
    // Not on standard output, which has the report alone.
    Console::printError(Text::tr("This report goes to %1.").arg(invocation.output));
    const auto saved = saveReport(invocation.output, text.toUtf8(), ExistingFile::refuse);
    if (!saved) {
        Console::printError(saved.error());
        co_return ExitStatus::failed;
    }
    co_return ExitStatus::done;
}

} // namespace veldmark
