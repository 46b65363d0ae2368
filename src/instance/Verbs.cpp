#include "instance/Verbs.h"

#include "instance/Handlers.h"

#include <QRegularExpression>

#include <algorithm>

namespace veldmark {

namespace {

std::vector<Verb> makeTable()
{
    using Id = Verb::Id;
    const Verb::Option json{QStringLiteral("--json"), Text::tr("as JSON")};
    const QString disconnect = QStringLiteral("disconnect");
    const QString status = QStringLiteral("status");
    return {
        {.id = Id::run,
         .name = QStringLiteral("run"),
         .options = {{QStringLiteral("--connect"), Text::tr("connect at once")}},
         .help = Text::tr("run Veldmark here, in the foreground; Ctrl-C disconnects")},
        {.id = Id::status,
         .name = status,
         .options = {json, {QStringLiteral("--watch"), Text::tr("go on until Ctrl-C")}},
         .help = Text::tr("print the connection's state; --watch goes on until Ctrl-C"),
         .handler = Handlers::status},
        {.id = Id::connect,
         .name = QStringLiteral("connect"),
         .help = Text::tr("connect the running instance to Tor"),
         .streams = true,
         .handler = Handlers::connect},
        {.id = Id::climb,
         .name = QStringLiteral("climb"),
         .help = Text::tr(
             "try the bridges that are offered when Tor cannot connect, see \"status\""),
         .handler = Handlers::climb},
        {.id = Id::disconnect,
         .name = disconnect,
         .help = Text::tr("restore the network and stop Tor"),
         .streams = true,
         .meansShownSession = true,
         .handler = Handlers::disconnect},
        {.id = Id::restore,
         .name = QStringLiteral("restore"),
         .help = Text::tr("restore the network and stop Tor, also after a crash"),
         .command = disconnect},
        {.id = Id::check,
         .name = QStringLiteral("check"),
         .help = Text::tr("check the exit address, the direct path and DNS now"),
         .needsSession = true,
         .streams = true,
         .handler = Handlers::check},
        {.id = Id::fixDNS,
         .name = QStringLiteral("fix-dns"),
         .help = Text::tr("point the system's DNS settings at Tor again"),
         .needsSession = true,
         .streams = true,
         .handler = Handlers::fixDNS},
        {.id = Id::circuits,
         .name = QStringLiteral("circuits"),
         .options = {json},
         .help = Text::tr("Tor's circuits and the sites on them"),
         .needsSession = true,
         .streams = true,
         .handler = Handlers::circuits},
        {.id = Id::closeCircuit,
         .name = QStringLiteral("close-circuit"),
         .operands = {QStringLiteral("ID")},
         .help = Text::tr("close a circuit; its sites get a fresh path on their next request"),
         .missing = Text::tr(
             "close-circuit needs a circuit's number; \"veldmarkctl circuits\" shows them."),
         .needsSession = true,
         .streams = true,
         .printsNoState = true,
         .handler = Handlers::closeCircuit},
        {.id = Id::newIdentity,
         .name = QStringLiteral("new-identity"),
         .help = Text::tr("new circuits for everything"),
         .needsSession = true,
         .streams = true,
         .printsNoState = true,
         .handler = Handlers::newIdentity},
        {.id = Id::log,
         .name = QStringLiteral("log"),
         .options = {{QStringLiteral("--follow"), Text::tr("go on until Ctrl-C")},
                     {QStringLiteral("--problems"), Text::tr("warnings and errors only")}},
         .help = Text::tr("Tor's log; --problems shows warnings and errors only")},
        {.id = Id::bridges,
         .name = QStringLiteral("bridges"),
         .options = {json},
         .help = Text::tr("the bridge programs and built-in bridges that were found, and\n"
                          "which of your own bridge lines are not valid")},
        {.id = Id::addBridges,
         .name = QStringLiteral("add-bridges"),
         .operands = {QStringLiteral("FILE")},
         .help = Text::tr(
             "add the bridges in a text to your own: in bridge lines, a whole e-mail or\n"
             "a web page. FILE \"-\" is standard input"),
         .missing = Text::tr("add-bridges needs a file; \"-\" is standard input.")},
        {.id = Id::downloadTransports,
         .name = QStringLiteral("download-transports"),
         .help = Text::tr("fetch the Tor Project's bridge programs and built-in bridges"),
         .streams = true,
         .printsNoState = true,
         .handler = Handlers::downloadTransports},
        {.id = Id::apps,
         .name = QStringLiteral("apps"),
         .options = {json},
         .help = Text::tr(
             "the installed applications; * marks those in the setting \"bypassApps\"")},
        {.id = Id::launch,
         .name = QStringLiteral("launch"),
         .operands = {QStringLiteral("APP")},
         .help = Text::tr(
             "open an application without Tor, with your own address; needs strict mode.\n"
             "APP is a name from \"apps\", the file name of its desktop entry, or the path\n"
             "of an entry or a program. Running copies are asked to quit first"),
         .missing = Text::tr("launch needs an application; \"veldmarkctl apps\" lists them."),
         .needsSession = true,
         .streams = true,
         .printsNoState = true,
         .handler = Handlers::launch},
        {.id = Id::identities,
         .name = QStringLiteral("identities"),
         .options = {json},
         .help = Text::tr(
             "the applications that have circuits of their own, and the loopback address\n"
             "by which Tor distinguishes them")},
        {.id = Id::renew,
         .name = QStringLiteral("renew"),
         .operands = {QStringLiteral("APP")},
         .help = Text::tr(
             "new circuits for one application, from its next connection on; APP is as\n"
             "\"identities\" names it"),
         .missing = Text::tr("renew needs an application; \"veldmarkctl identities\" lists them.")},
        {.id = Id::runAs,
         .name = QStringLiteral("run-as"),
         .operands = {QStringLiteral("NAME")},
         .help = Text::tr(
             "run a program (after --) with circuits of its own; a later run with the same\n"
             "name in the same session has the same ones"),
         .missing = Text::tr(
             "run-as needs a name and a program: veldmarkctl run-as NAME -- PROGRAM."),
         .takesProgram = true},
        {.id = Id::doctor,
         .name = QStringLiteral("doctor"),
         .options = {json},
         .help = Text::tr(
             "check what a connect needs on this computer, what blocks it and how to fix\nit. Changes nothing; the exit status is 0 when a connect can work")},
        {.id = Id::report,
         .name = QStringLiteral("report"),
         .options = {json,
                     {QStringLiteral("--output"), Text::tr("write it into a new file too"),
                      QStringLiteral("FILE")}},
         .help = Text::tr(
             "a report for those who help you: settings, findings and log without addresses,\nnames, bridges and keys. Nothing sends it. Look through it before you give it\naway")},
        {.id = Id::get,
         .name = QStringLiteral("get"),
         .operands = {QStringLiteral("KEY")},
         .help = Text::tr("print a field of \"status --json\""),
         .command = status},
        {.id = Id::set,
         .name = QStringLiteral("set"),
         .operands = {QStringLiteral("KEY"), QStringLiteral("VALUE")},
         .help = Text::tr("change a setting; most of them only while not connected"),
         .printsNoState = true,
         .handler = Handlers::set},
        {.id = Id::help, .name = QStringLiteral("help")},
        {.id = Id::help, .name = QStringLiteral("--help")},
        {.id = Id::help, .name = QStringLiteral("-h")},
        {.id = Id::version, .name = QStringLiteral("--version")},
        {.id = Id::complete,
         .name = QStringLiteral("complete"),
         .operands = {QStringLiteral("WHAT"), QStringLiteral("OF")}},
        {.id = Id::watch,
         .name = QStringLiteral("watch"),
         .streams = true,
         .isOnlyForSocket = true,
         .handler = Handlers::watch},
        {.id = Id::raise,
         .name = QStringLiteral("raise"),
         .isOnlyForSocket = true,
         .handler = Handlers::raise},
    };
}

template <typename Matches> const Verb *firstVerb(Matches matches)
{
    const auto &all = verbs();
    const auto found = std::find_if(all.begin(), all.end(), matches);
    return found == all.end() ? nullptr : &*found;
}

} // namespace

QString Verb::summary() const
{
    static const QRegularExpression firstWords(
        QStringLiteral("^(.*?)(;|, (?:and|with|what)\\b|:|$)"));
    return firstWords.match(help.translated().replace(u'\n', u' ')).captured(1);
}

const std::vector<Verb> &verbs()
{
    static const std::vector<Verb> table = makeTable();
    return table;
}

const Verb &verbOf(Verb::Id id)
{
    return *firstVerb([id](const Verb &verb) { return verb.id == id; });
}

const Verb *verbTyped(const QString &name)
{
    return firstVerb(
        [&name](const Verb &verb) { return verb.name == name && !verb.isOnlyForSocket; });
}

const Verb *verbRequested(const QString &command)
{
    return firstVerb([&command](const Verb &verb) { return verb.name == command && verb.handler; });
}

} // namespace veldmark
