#include "cli/Arguments.h"

#include <QHash>

namespace veldmark {

namespace {

using Verb = Invocation::Verb;

struct VerbRule {
    Verb verb;
    int operands = 0; // KEY, VALUE, ID, or APP
    QStringList options = {};
};

const QHash<QString, VerbRule> &rules()
{
    static const QString json = QStringLiteral("--json");
    static const QHash<QString, VerbRule> table = {
        {QStringLiteral("run"), {Verb::run, 0, {QStringLiteral("--connect")}}},
        {QStringLiteral("status"), {Verb::status, 0, {json, QStringLiteral("--watch")}}},
        {QStringLiteral("connect"), {Verb::connect}},
        {QStringLiteral("disconnect"), {Verb::disconnect}},
        {QStringLiteral("restore"), {Verb::restore}},
        {QStringLiteral("check"), {Verb::check}},
        {QStringLiteral("fix-dns"), {Verb::fixDNS}},
        {QStringLiteral("close-circuit"), {Verb::closeCircuit, 1}},
        {QStringLiteral("circuits"), {Verb::circuits, 0, {json}}},
        {QStringLiteral("new-identity"), {Verb::newIdentity}},
        {QStringLiteral("log"), {Verb::log, 0, {QStringLiteral("--follow"), QStringLiteral("--problems")}}},
        {QStringLiteral("bridges"), {Verb::bridges, 0, {json}}},
        {QStringLiteral("download-transports"), {Verb::downloadTransports}},
        {QStringLiteral("apps"), {Verb::apps, 0, {json}}},
        {QStringLiteral("launch"), {Verb::launch, 1}},
        {QStringLiteral("doctor"), {Verb::doctor, 0, {json}}},
        {QStringLiteral("get"), {Verb::get, 1}},
        {QStringLiteral("set"), {Verb::set, 2}},
        {QStringLiteral("help"), {Verb::help}},
        {QStringLiteral("--help"), {Verb::help}},
        {QStringLiteral("-h"), {Verb::help}},
        {QStringLiteral("--version"), {Verb::version}},
    };
    return table;
}

// What a user typed, fit for one line of a message.
QString quoted(const QString &text)
{
    QString shown = text.left(60).simplified();
    for (QChar &c : shown) {
        if (!c.isPrint())
            c = u'?';
    }
    return u'"' + shown + u'"';
}

} // namespace

Result<Invocation, QString> parseArguments(const QStringList &arguments)
{
    if (arguments.isEmpty())
        return Failure(QStringLiteral("What should I do? \"veldmarkctl help\" lists the commands."));
    const auto rule = rules().constFind(arguments.first());
    if (rule == rules().constEnd())
        return Failure(QStringLiteral("Unknown command %1. \"veldmarkctl help\" lists the commands.")
                           .arg(quoted(arguments.first())));

    Invocation invocation;
    invocation.verb = rule->verb;
    QStringList operands;
    bool optionsEnded = false;
    for (const QString &argument : arguments.mid(1)) {
        // A value may begin with a dash; a key does not.
        const bool isOption = !optionsEnded && argument.startsWith(QLatin1String("--"))
            && !(rule->verb == Verb::set && operands.size() == 1);
        if (!isOption) {
            operands << argument;
            continue;
        }
        if (argument == QLatin1String("--")) {
            optionsEnded = true;
            continue;
        }
        if (!rule->options.contains(argument))
            return Failure(QStringLiteral("%1 has no option %2.").arg(arguments.first(), quoted(argument)));
        invocation.connectNow |= argument == QLatin1String("--connect");
        invocation.json |= argument == QLatin1String("--json");
        invocation.watch |= argument == QLatin1String("--watch");
        invocation.follow |= argument == QLatin1String("--follow");
        invocation.problems |= argument == QLatin1String("--problems");
    }
    if (operands.size() < rule->operands && rule->verb == Verb::closeCircuit)
        return Failure(QStringLiteral("close-circuit needs a circuit's number; \"veldmarkctl circuits\" shows them."));
    if (operands.size() < rule->operands && rule->verb == Verb::launch)
        return Failure(QStringLiteral("launch needs an application; \"veldmarkctl apps\" lists them."));
    if (operands.size() < rule->operands)
        return Failure(rule->operands == 1
                           ? QStringLiteral("%1 needs a key: veldmarkctl %1 KEY.").arg(arguments.first())
                           : QStringLiteral("%1 needs a key and a value: veldmarkctl %1 KEY VALUE.")
                                 .arg(arguments.first()));
    if (operands.size() > rule->operands)
        return Failure(QStringLiteral("%1 doesn't take %2.")
                           .arg(arguments.first(), quoted(operands.at(rule->operands))));
    invocation.key = operands.value(0);
    invocation.value = operands.value(1);
    return invocation;
}

QString usageText()
{
    return QStringLiteral(
        "usage: veldmarkctl COMMAND\n"
        "\n"
        "  run [--connect]           run Veldmark here, in the foreground; Ctrl-C disconnects\n"
        "  status [--json] [--watch] how things stand; --watch goes on until Ctrl-C\n"
        "  connect                   connect the running instance to Tor\n"
        "  disconnect                restore the network and stop Tor\n"
        "  restore                   the same, also for what a crash left behind\n"
        "  check                     check the exit address, the direct path and DNS now\n"
        "  fix-dns                   point the system's DNS settings at Tor again\n"
        "  circuits [--json]         Tor's circuits and the sites on them\n"
        "  close-circuit ID          close one; its sites get a fresh path on their next request\n"
        "  new-identity              new circuits for everything\n"
        "  log [--follow] [--problems]\n"
        "                            Tor's log; --problems shows warnings and errors only\n"
        "  bridges [--json]          the transport programs and built-in bridges that were found, and\n"
        "                            which of your own bridge lines are not valid\n"
        "  download-transports       fetch the Tor Project's transport programs and built-in bridges\n"
        "  apps [--json]             the installed applications; * marks those in the setting \"bypassApps\"\n"
        "  launch APP                open an application without Tor, with your own address; needs strict mode.\n"
        "                            APP is a name from \"apps\", the file name of its desktop entry, or the path\n"
        "                            of an entry or a program. Running copies are asked to quit first\n"
        "  doctor [--json]           look at this computer: what a connect needs, what is in its way, and what\n"
        "                            mends it. Changes nothing; ends with 0 when a connect can work\n"
        "  get KEY                   print a field of \"status --json\"\n"
        "  set KEY VALUE             change a setting; most of them only while not connected\n"
        "\n"
        "Exit status: 0 done, 1 failed (the reason is on standard error), 2 wrong usage,\n"
        "3 Veldmark is not running, 4 Veldmark is already running.\n");
}

} // namespace veldmark
