#include "cli/Arguments.h"

#include "base/OneLine.h"

#include <algorithm>

namespace veldmark {

namespace {

QString quoted(const QString &text)
{
    return u'"' + inOneLine(text) + u'"';
}

Text missing(const Verb &verb)
{
    if (!verb.missing.isEmpty())
        return verb.missing;
    return verb.operands.size() == 1
        ? Text::tr("%1 needs a key: veldmarkctl %1 KEY.").arg(verb.name)
        : Text::tr("%1 needs a key and a value: veldmarkctl %1 KEY VALUE.").arg(verb.name);
}

// The command's part of the usage text.
QString usageOf(const Verb &verb)
{
    constexpr int column = 28;
    QString line = QStringLiteral("  ") + verb.name;
    for (const QString &operand : verb.operands)
        line += u' ' + operand;
    if (verb.takesProgram)
        line += QStringLiteral(" -- PROGRAM");
    for (const Verb::Option &option : verb.options)
        line += QStringLiteral(" [%1]").arg(
            option.value.isEmpty() ? option.name : option.name + u' ' + option.value);
    const QString margin(column, u' ');
    line = line.size() < column ? line.leftJustified(column) : line + u'\n' + margin;
    return line + verb.help.translated().replace(u'\n', u'\n' + margin) + u'\n';
}

} // namespace

Result<Invocation, Text> parseArguments(const QStringList &arguments)
{
    if (arguments.isEmpty())
        return Failure(Text::tr("A command is missing. \"veldmarkctl help\" lists the commands."));
    const Verb *const verb = verbTyped(arguments.first());
    if (!verb)
        return Failure(Text::tr("Unknown command %1. \"veldmarkctl help\" lists the commands.")
                           .arg(quoted(arguments.first())));

    Invocation invocation;
    invocation.verb = verb->id;
    QStringList operands;
    bool optionsEnded = false;
    for (qsizetype at = 1; at < arguments.size(); ++at) {
        const QString &argument = arguments[at];
        // A value may begin with a dash; a key does not.
        const bool isOption = !optionsEnded && argument.startsWith(QLatin1String("--"))
            && !(verb->id == Verb::Id::set && operands.size() == 1);
        if (!isOption) {
            operands << argument;
            continue;
        }
        if (argument == QLatin1String("--")) {
            optionsEnded = true;
            continue;
        }
        const auto option = std::find_if(
            verb->options.begin(), verb->options.end(),
            [&argument](const Verb::Option &known) { return known.name == argument; });
        if (option == verb->options.end())
            return Failure(
                Text::tr("%1 has no option %2.").arg(arguments.first(), quoted(argument)));
        if (!option->value.isEmpty()) {
            invocation.output = arguments.value(++at);
            if (invocation.output.isEmpty())
                return Failure(Text::tr("%1 needs the name of a file.").arg(option->name));
            continue;
        }
        invocation.connectNow |= argument == QLatin1String("--connect");
        invocation.json |= argument == QLatin1String("--json");
        invocation.watch |= argument == QLatin1String("--watch");
        invocation.follow |= argument == QLatin1String("--follow");
        invocation.problems |= argument == QLatin1String("--problems");
    }
    if (operands.size() < verb->operands.size() && verb->id != Verb::Id::complete)
        return Failure(missing(*verb));
    if (verb->takesProgram) {
        invocation.program = operands.mid(verb->operands.size());
        operands = operands.mid(0, verb->operands.size());
        if (invocation.program.isEmpty())
            return Failure(missing(*verb));
    }
    if (operands.size() > verb->operands.size())
        return Failure(Text::tr("%1 doesn't take %2.")
                           .arg(arguments.first(), quoted(operands.at(verb->operands.size()))));
    invocation.key = operands.value(0);
    invocation.value = operands.value(1);
    return invocation;
}

QString usageText()
{
    QString text = Text::tr("usage: veldmarkctl COMMAND").translated() + QStringLiteral("\n\n");
    for (const Verb &verb : verbs()) {
        if (!verb.help.isEmpty())
            text += usageOf(verb);
    }
    return text + u'\n'
        + Text::tr(
              "Exit status: 0 done, 1 failed (the reason is on standard error), 2 wrong usage,\n"
              "3 Veldmark is not running, 4 Veldmark is already running.")
              .translated()
        + u'\n';
}

} // namespace veldmark
