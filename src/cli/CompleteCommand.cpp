#include "cli/CompleteCommand.h"

#include "cli/Console.h"
#include "controller/PublishedState.h"
#include "controller/RealController.h"

namespace veldmark {

namespace {

QString entry(const QString &word, const QString &help)
{
    return help.isEmpty() ? word : word + u':' + help;
}

QStringList commands()
{
    QStringList lines;
    for (const Verb &verb : verbs()) {
        if (!verb.help.isEmpty())
            lines << entry(verb.name, verb.summary());
    }
    return lines << entry(QStringLiteral("help"), Text::tr("list the commands").translated());
}

QStringList options(const QString &command)
{
    QStringList lines;
    if (const Verb *const verb = verbTyped(command)) {
        for (const Verb::Option &option : verb->options)
            lines << entry(option.name, option.help.translated());
    }
    return lines;
}

QStringList settings(const TorController &controller)
{
    QStringList lines;
    for (const Field *field : controller.fields()) {
        if (field->setting())
            lines << entry(field->name(), field->setting()->help.translated());
    }
    return lines;
}

QStringList values(const TorController &controller, const QString &name)
{
    const Field *const field = controller.fieldNamed(name);
    return field && field->setting() ? field->setting()->values : QStringList();
}

} // namespace

ExitStatus showCompletions(const Invocation &invocation, const PlatformProfile &profile)
{
    const QString what = invocation.key;
    QStringList lines;
    if (what == QLatin1String("commands"))
        lines = commands();
    else if (what == QLatin1String("options"))
        lines = options(invocation.value);
    else if (RealController real(profile); what == QLatin1String("fields"))
        lines = publishedState(real.controller()).keys();
    else if (what == QLatin1String("settings"))
        lines = settings(real.controller());
    else if (what == QLatin1String("values"))
        lines = values(real.controller(), invocation.value);
    for (const QString &line : lines)
        Console::print(line);
    return ExitStatus::done;
}

} // namespace veldmark
