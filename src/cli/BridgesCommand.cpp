#include "cli/BridgesCommand.h"

#include "base/OneLine.h"
#include "base/ResumeOnce.h"
#include "bridges/BridgeLines.h"
#include "bridges/BridgeText.h"
#include "bridges/ManagedProxy.h"
#include "bridges/PluggableTransports.h"
#include "bridges/TransportDownloader.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/ProgressLine.h"
#include "controller/RealController.h"
#include "instance/InstanceClient.h"
#include "instance/InstancePlace.h"
#include "system/SignalWatcher.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QThreadPool>

namespace veldmark {

namespace {

// All transports that a program of a bundle may serve.
QStringList knownTransports()
{
    return {QStringLiteral("obfs4"),     QStringLiteral("meek_lite"),
            QStringLiteral("webtunnel"), QStringLiteral("snowflake"),
            QStringLiteral("obfs3"),     QStringLiteral("scramblesuit")};
}

QJsonValue programFindings(const std::optional<QString> &path)
{
    if (!path)
        return QJsonValue::Null;
    return QJsonObject{{QStringLiteral("path"), *path},
                       {QStringLiteral("serves"),
                        QJsonArray::fromStringList(servedTransports(*path, knownTransports()))}};
}

QJsonObject customFindings(const QString &text)
{
    const ParsedBridgeLines parsed = BridgeLines::parse(text);
    QJsonArray invalid;
    for (qsizetype i = 0; i < parsed.invalid.size(); ++i)
        invalid.append(QJsonObject{
            {QStringLiteral("line"), parsed.invalidLineNumbers[static_cast<std::size_t>(i)]},
            {QStringLiteral("text"), parsed.invalid[i]}});
    QJsonArray surplus;
    for (const int number : parsed.surplusLineNumbers)
        surplus.append(number);
    return {{QStringLiteral("valid"), parsed.lines.size()},
            {QStringLiteral("invalid"), invalid},
            {QStringLiteral("surplus"), surplus}};
}

// Blocks for some seconds.
QJsonObject findings(const PlatformProfile &profile, const QString &customBridges)
{
    const std::optional<QString> version = TransportDownloader::installedVersion(profile);
    const PluggableTransports found = PluggableTransports::locate(profile, version);
    QJsonObject builtin;
    for (auto lines = found.builtin.cbegin(); lines != found.builtin.cend(); ++lines)
        builtin.insert(lines.key(), lines.value().size());
    const QJsonObject bundle = {
        {QStringLiteral("version"), version.value_or(QString())},
        {QStringLiteral("verification"),
         TransportDownloader::installedVerification(profile).value_or(QString())}};
    return {
        {QStringLiteral("programs"),
         QJsonObject{{QStringLiteral("lyrebird"), programFindings(found.lyrebird)},
                     {QStringLiteral("snowflake"), programFindings(found.snowflake)},
                     {QStringLiteral("webtunnel"), programFindings(found.webtunnel)}}},
        {QStringLiteral("builtin"), builtin},
        {QStringLiteral("source"), found.source},
        {QStringLiteral("bundle"), version ? QJsonValue(bundle) : QJsonValue::Null},
        {QStringLiteral("custom"), customFindings(customBridges)},
    };
}

QString row(const QString &name, const QString &text)
{
    return QStringLiteral("\n  %1%2").arg(name, -18).arg(text);
}

// The text of a file, or of standard input for "-"; as much of it as is searched.
Result<QString, Text> textOf(const QString &path)
{
    QFile file(path);
    const bool isOpen = path == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly)
                                                   : file.open(QIODevice::ReadOnly);
    const QByteArray bytes = isOpen ? file.read(BridgeText::longestText) : QByteArray();
    if (!isOpen || file.error() != QFileDevice::NoError)
        return Failure(Text::tr("%1 can't be read: %2").arg(path, file.errorString()));
    return QString::fromUtf8(bytes);
}

// "obfs4 192.0.2.1:443".
QString shortBridge(const QString &line)
{
    QStringList words = line.split(u' ');
    return words.mid(0, BridgeLines::transport(line) ? 2 : 1).join(u' ');
}

// The invalid lines of the user's own bridges, one text each.
QStringList problems(const QJsonObject &custom)
{
    QStringList lines;
    for (const QJsonValue &entry : custom.value(QStringLiteral("invalid")).toArray())
        lines << Text::tr("line %1 is not a bridge line: %2")
                     .arg(entry.toObject().value(QStringLiteral("line")).toInt(),
                          inOneLine(entry.toObject().value(QStringLiteral("text")).toString()))
                     .translated();
    const QJsonArray surplus = custom.value(QStringLiteral("surplus")).toArray();
    if (!surplus.isEmpty())
        lines << Text::tr("%1 too many, from line %2 on; at most %3 can be used")
                     .arg(surplus.size(), surplus.first().toInt(), BridgeLines::mostLines)
                     .translated();
    return lines;
}

// The user's own bridges as the running instance has them: it may have been unable to save them.
// Without one, as the file has them.
QCoro::Task<QString> ownBridges(PlatformProfile profile)
{
    const QString key = QStringLiteral("customBridges");
    const QString saved = SettingsStore(profile).string(key);
    const auto instance = InstanceClient::connectTo(profile);
    if (!instance)
        co_return saved;
    const auto state = std::make_shared<QJsonObject>();
    const QJsonObject request{{QStringLiteral("command"), verbOf(Verb::Id::status).requested()}};
    const InstanceClient::OnState onState = [state](const QJsonObject &sent, const QJsonObject &) {
        *state = sent;
    };
    auto asking = instance->run(request, onState);
    co_await asking;
    co_return state->value(key).toString(saved);
}

} // namespace

QStringList Report::bridgeProblems(const QString &text)
{
    return problems(customFindings(text));
}

QString Report::bridges(const QJsonObject &all)
{
    const QJsonObject programs = all.value(QStringLiteral("programs")).toObject();
    QString report = Text::tr("Programs").translated();
    const std::pair<QString, QString> names[] = {
        {QStringLiteral("lyrebird"), QStringLiteral("lyrebird")},
        {QStringLiteral("snowflake"), QStringLiteral("snowflake-client")},
        {QStringLiteral("webtunnel"), QStringLiteral("webtunnel-client")}};
    for (const auto &[key, name] : names) {
        const QJsonObject program = programs.value(key).toObject();
        if (program.isEmpty()) {
            report += row(name, Text::tr("not found").translated());
            continue;
        }
        QStringList serves;
        for (const QJsonValue &transport : program.value(QStringLiteral("serves")).toArray())
            serves << transport.toString();
        report += row(name, program.value(QStringLiteral("path")).toString());
        report += row(QString(),
                      (serves.isEmpty()
                           ? Text::tr("doesn't say which transports it serves")
                           : Text::tr("serves %1").arg(serves.join(QStringLiteral(", "))))
                          .translated());
    }

    const QString source = all.value(QStringLiteral("source")).toString();
    report += u'\n'
        + (source.isEmpty() ? Text::tr("Built-in bridges")
                            : Text::tr("Built-in bridges, from %1").arg(source))
              .translated();
    const QJsonObject builtin = all.value(QStringLiteral("builtin")).toObject();
    for (auto count = builtin.begin(); count != builtin.end(); ++count)
        report += row(inOneLine(count.key()), QString::number(count.value().toInt()));
    if (builtin.isEmpty())
        report += QStringLiteral("\n  ")
            + Text::tr("none; get some with: veldmarkctl download-transports").translated();

    const QJsonObject bundle = all.value(QStringLiteral("bundle")).toObject();
    const bool isSigned = bundle.value(QStringLiteral("verification")).toString() == u"signature";
    report += QStringLiteral("\nTor Expert Bundle\n  ");
    const Text verification = isSigned ? Text::tr("signature verified")
                                       : Text::tr("signature not verified");
    report += bundle.isEmpty() ? Text::tr("not downloaded").translated()
                               : QStringLiteral("%1, %2").arg(
                                   inOneLine(bundle.value(QStringLiteral("version")).toString()),
                                   verification.translated());

    const QJsonObject custom = all.value(QStringLiteral("custom")).toObject();
    report += u'\n' + Text::tr("Your own bridges").translated() + QStringLiteral("\n  ")
        + Text::tr("%1 valid").arg(custom.value(QStringLiteral("valid")).toInt()).translated();
    for (const QString &problem : problems(custom))
        report += QStringLiteral("\n  ") + problem;
    return report;
}

QCoro::Task<ExitStatus> showBridges(Invocation invocation, PlatformProfile profile)
{
    SettingsStore settings(profile);
    if (const auto problem = settings.problem())
        Console::printError(*problem);
    const QString custom = settings.string(QStringLiteral("customBridges"));
    const ResumeOnce<QJsonObject> gathered;
    QThreadPool::globalInstance()->start(
        [gathered, profile, custom] { gathered.complete(findings(profile, custom)); });
    const QJsonObject all = co_await gathered;
    Console::print(invocation.json
                       ? QString::fromUtf8(QJsonDocument(all).toJson(QJsonDocument::Compact))
                       : Report::bridges(all));
    const QJsonObject own = all.value(QStringLiteral("custom")).toObject();
    const bool allValid = own.value(QStringLiteral("invalid")).toArray().isEmpty()
        && own.value(QStringLiteral("surplus")).toArray().isEmpty();
    co_return allValid ? ExitStatus::done : ExitStatus::failed;
}

QCoro::Task<ExitStatus> addBridges(Invocation invocation, PlatformProfile profile)
{
    const auto text = textOf(invocation.key);
    if (!text) {
        Console::printError(text.error());
        co_return ExitStatus::failed;
    }
    const QStringList found = BridgeText::found(*text);
    if (found.isEmpty()) {
        Console::printError(Text::tr("There is no bridge in %1.").arg(invocation.key));
        co_return ExitStatus::failed;
    }
    auto reading = ownBridges(profile);
    QString own = co_await reading;
    const ParsedBridgeLines stored = BridgeLines::parse(own);
    QStringList added;
    QStringList told;
    for (const QString &line : found) {
        const bool isNew = !stored.lines.contains(line);
        if (isNew)
            added << line;
        told << (isNew ? Text::tr("added: %1") : Text::tr("already there: %1"))
                    .arg(shortBridge(line))
                    .translated();
    }
    if (stored.lines.size() + added.size() > BridgeLines::mostLines) {
        Console::printError(BridgeLines::tooManyText());
        co_return ExitStatus::failed;
    }
    if (!added.isEmpty()) {
        if (!own.isEmpty() && !own.endsWith(u'\n'))
            own += u'\n';
        Invocation setting;
        setting.verb = Verb::Id::set;
        setting.key = QStringLiteral("customBridges");
        setting.value = own + added.join(u'\n');
        auto storing = execute(setting, profile);
        const ExitStatus ended = co_await storing;
        if (ended != ExitStatus::done)
            co_return ended;
    }
    for (const QString &line : told)
        Console::print(line);
    co_return ExitStatus::done;
}

QString downloadedText(const PlatformProfile &profile, const QString &told)
{
    return told.isEmpty()
        ? Text::tr("Installed Tor Expert Bundle %1, signature verified.")
              .arg(TransportDownloader::installedVersion(profile).value_or(QString()))
              .translated()
        : told;
}

QCoro::Task<ExitStatus> downloadTransportsHere(PlatformProfile profile)
{
    const auto lock = lockInstance(profile); // no connect meanwhile: the download bypasses Tor
    if (!lock) {
        Console::printError(lock.error());
        co_return ExitStatus::alreadyRunning;
    }
    const auto real = std::make_shared<RealController>(profile);
    TorController &controller = real->controller();
    controller.detectStaleState();
    const SignalWatcher signalWatcher;
    QObject::connect(&signalWatcher, &SignalWatcher::received, &controller,
                     [raw = real.get()] { raw->downloader().cancel(); });
    const auto line = std::make_shared<ProgressLine>(Console::isTerminal(), Console::width());
    QObject::connect(
        &controller.transportDownload, &Field::changed, &controller, [&controller, line] {
            if (!controller.canDownloadTransports()) // the final message is not progress
                Console::draw(
                    line->update(controller.transportDownload().value_or(Text()).translated()));
        });
    auto downloading = controller.downloadTransports();
    const bool isInstalled = co_await downloading;
    Console::draw(line->finish());
    if (!isInstalled) {
        Console::printError(controller.transportDownload().value_or(Text::tr("Cancelled.")));
        co_return ExitStatus::failed;
    }
    Console::print(
        downloadedText(profile, controller.transportDownload().value_or(Text()).translated()));
    co_return ExitStatus::done;
}

} // namespace veldmark
