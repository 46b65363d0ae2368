#include "base/PrivateMemory.h"
#include "base/Resumption.h"
#include "base/UsersLanguage.h"
#include "cli/Commands.h"
#include "cli/CompleteCommand.h"
#include "cli/Console.h"
#include "cli/RunCommand.h"
#include "platform/PlatformProfile.h"

#include <QCoreApplication>
#include <QTimer>

using namespace veldmark;

namespace {

QCoro::Task<void> executeAndQuit(Invocation invocation, PlatformProfile profile)
{
    const ExitStatus status = co_await execute(invocation, profile);
    QCoreApplication::exit(static_cast<int>(status));
}

int perform(QCoreApplication &application, const Invocation &invocation)
{
    const PlatformProfile profile = PlatformProfile::current(Places::fromEnvironment());
    std::unique_ptr<RunCommand> run;
    if (invocation.verb == Verb::Id::run) {
        run = std::make_unique<RunCommand>(profile, invocation.connectNow);
        QObject::connect(
            run.get(), &RunCommand::finished, &application,
            [](ExitStatus status) { QCoreApplication::exit(static_cast<int>(status)); },
            Qt::QueuedConnection);
    }
    QTimer::singleShot(0, &application, [&run, &invocation, &profile] {
        if (run)
            run->start();
        else
            executeAndQuit(invocation, profile);
    });
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    keepMemoryPrivate();
    QCoreApplication application(argc, argv);
    application.setApplicationName(QStringLiteral("veldmarkctl"));
    application.setApplicationVersion(QStringLiteral(VELDMARK_VERSION));

    const UsersLanguage language;
    const auto invocation = parseArguments(application.arguments().mid(1));
    if (!invocation) {
        Console::printError(invocation.error());
        return static_cast<int>(ExitStatus::usage);
    }
    if (invocation->verb == Verb::Id::help) {
        Console::draw(usageText());
        return 0;
    }
    if (invocation->verb == Verb::Id::version) {
        Console::print(QStringLiteral("veldmarkctl ") + application.applicationVersion());
        return 0;
    }

    if (invocation->verb == Verb::Id::complete)
        return static_cast<int>(
            showCompletions(*invocation, PlatformProfile::current(Places::fromEnvironment())));

    return runToCoroutineEnds([&] { return perform(application, *invocation); });
}
