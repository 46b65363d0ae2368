#include "support/Workbench.h"

#include "controlfilter/CommandFilter.h"
#include "support/NameLookups.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <algorithm>
#include <cstdio>

using namespace std::chrono_literals;

namespace veldmark {

namespace {

constexpr uid_t ordinaryUser = 1000; // never root: the prompt is "shown"

PlatformProfile profileBelow(const QString &folder, Workbench::System system)
{
    const Places places = Places::below(folder);
    if (system == Workbench::System::linux)
        return PlatformProfile::linux(places);
    PlatformProfile profile = PlatformProfile::macos(places);
    // not this computer's store
    profile.settingsFile = places.configHome + QStringLiteral("/settings.conf");
    return profile;
}

// The words of a command line in which every word is in single quotes.
QStringList unquoted(QString line)
{
    line.replace(QLatin1String("\\\""), QLatin1String("\""))
        .replace(QLatin1String("\\\\"), QLatin1String("\\"));
    QStringList words;
    QString word;
    bool quoted = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        if (line[i] == u'\'')
            quoted = !quoted;
        else if (!quoted && line[i] == u'\\' && i + 1 < line.size())
            word += line[++i];
        else if (!quoted && line[i] == u' ')
            words << std::exchange(word, QString());
        else
            word += line[i];
    }
    return words << word;
}

// Behind the filter before Tor's control port, Tor would get none of those that it refuses. The
// filter knows the bridges in reserve of each of the helper's runs.
void failForFilteredCommands(const QStringList &commands,
                             const std::vector<QStringList> &helperRuns)
{
#ifndef Q_OS_MACOS
    CommandFilter::Reserve reserve;
    for (const QStringList &words : helperRuns) {
        for (qsizetype i = 0; i + 1 < words.size(); ++i) {
            if (words[i] == QLatin1String("--reserve"))
                reserve.push_back(words[i + 1].toStdString());
        }
    }
    for (const QString &command : commands) {
        if (CommandFilter::judge(command.toStdString(), reserve) != CommandFilter::Verdict::passes)
            QTest::qFail(qPrintable(QStringLiteral("The filter refuses: ") + command), __FILE__,
                         __LINE__);
    }
#else
    Q_UNUSED(commands)
    Q_UNUSED(helperRuns)
#endif
}

QCoro::Task<std::optional<ConnectTime>> noAnswer()
{
    co_return std::nullopt;
}

QCoro::Task<TransportDownloader::Outcome> installed()
{
    co_return InstalledBundle{QStringLiteral("14.0.4"), true};
}

QCoro::Task<PluggableTransports> answered(PluggableTransports transports,
                                          std::function<QCoro::Task<void>()> before)
{
    if (before)
        co_await before();
    co_return transports;
}

} // namespace

bool until(const std::function<bool()> &condition)
{
    QDeadlineTimer limit(10s);
    while (!condition()) {
        if (limit.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 2);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

void settle()
{
    for (int round = 0; round < 50; ++round) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void Workbench::bothSystems()
{
    QTest::addColumn<System>("system");
    QTest::newRow("linux") << System::linux;
    QTest::newRow("macos") << System::macos;
}

Workbench::Workbench(System system)
    : profile(profileBelow(folder.path(), system)),
      terminal(profile, QStringLiteral("https://check.example/api/ip")),
      installTransports([](bool, TransportDownloader::Progress) { return installed(); }),
      bridgeProbe([](QString, quint16, std::chrono::milliseconds) { return noAnswer(); })
{
    NameLookups::clear();
    QObject::connect(&m_watcher, &QTimer::timeout, &m_watcher, [this] { setNoteAge(0s); });
    writeFile(profile.torCandidates.constFirst(), {}, true);
    writeFile(profile.helperCandidates.constFirst(), "the helper", true);
    QDir().mkpath(profile.places.home);
    processes.answer = [this](const ScriptedRunner::Call &call) { return run(call); };
    setBootstrap("PROGRESS=100 TAG=done SUMMARY=\"Done\"");
    setCounters("1000", "200");
    tor.reply("SETEVENTS STREAM", "552 Unrecognized event \"STREAM\"\r\n");
    restart();
}

// Destroys the controller first, then resumes the waiting coroutines while all their objects exist.
Workbench::~Workbench()
{
    end();
    processes.hold = nullptr;
    processes.release();
    controlPort.reset();
    settle();
    clock.advance(24h);
    socketClock.advance(24h);
    settle();
    failForFilteredCommands(tor.commands(), helperRuns());
}

void Workbench::restart()
{
    m_controller.reset();
    controlPort = std::make_unique<ControlPort>(socketClock, tor.port());
    privileged = std::make_unique<PrivilegedRunner>(profile, processes, ordinaryUser);
    settings = std::make_unique<SettingsStore>(profile);
    const decltype(installTransports) install = [this](bool throughTor,
                                                       TransportDownloader::Progress progress) {
        return installTransports(throughTor, std::move(progress));
    };
    m_controller = std::make_unique<TorController>(TorController::Services{
        .profile = profile,
        .settings = *settings,
        .clock = clock,
        .processes = processes,
        .privileged = *privileged,
        .controlPort = *controlPort,
        .probe = probe,
        .resolvers = resolvers,
        .terminal = terminal,
        .applications = applications,
        .locateTransports =
            [this] {
                ++searches;
                return answered(transports, beforeSearchAnswer);
            },
        .bridgeProbe =
            [this](QString host, quint16 port, std::chrono::milliseconds limit) {
                return bridgeProbe(std::move(host), port, limit);
            },
        .installTransports = withoutDownloader ? nullptr : install,
        .cancelTransports =
            [this] {
                if (cancelTransports)
                    cancelTransports();
            },
        .ownAddresses = [this] { return ownAddresses; },
        .route = [this] { return route; },
        .missingApprovals =
            [this](const QStringList &words) {
                return missingApprovals ? missingApprovals(words) : std::vector<ProgramApproval>();
            },
        .namedPrograms =
            [this](const QStringList &words) {
                return namedPrograms ? namedPrograms(words) : std::vector<ProgramApproval>();
            },
    });
    settle();
}

bool Workbench::connect()
{
    const auto connecting = m_controller->connect();
    return finished(connecting) && m_controller->phase() == ConnectionPhase::connected;
}

void Workbench::disconnect()
{
    const auto disconnecting = m_controller->disconnect();
    finished(disconnecting);
}

bool Workbench::tick()
{
    // The monitor and the watch over the rules start a new sleep; loops of earlier sessions wake
    // only to end.
    const auto goal = clock.totalSlept() + 2 * 2s;
    clock.advance(2s);
    return until([this, goal] {
        return clock.totalSlept() >= goal || m_controller->phase() != ConnectionPhase::connected;
    });
}

QStringList Workbench::helperArguments(const ScriptedRunner::Call &call) const
{
    if (call.executable == profile.sudo)
        return call.arguments.mid(2); // -n, script
    if (call.executable != profile.promptProgram)
        return {};
    if (profile.promptKind == PromptKind::PolicyKit)
        return call.arguments.mid(1); // script
    const QString source = call.arguments.value(1);
    const QString before = QStringLiteral("do shell script \"");
    const qsizetype end = source.indexOf(QLatin1String("\" with prompt \""));
    return unquoted(source.mid(before.size(), end - before.size())).mid(2);
}

std::vector<QStringList> Workbench::helperRuns() const
{
    std::vector<QStringList> runs;
    for (const auto &call : processes.calls) {
        if (const QStringList arguments = helperArguments(call); !arguments.isEmpty())
            runs.push_back(arguments);
    }
    return runs;
}

QStringList Workbench::lastHelperRun(const QString &verb) const
{
    const auto runs = helperRuns();
    const auto run = std::find_if(
        runs.rbegin(), runs.rend(),
        [&verb](const QStringList &arguments) { return arguments.constFirst() == verb; });
    return run == runs.rend() ? QStringList() : *run;
}

int Workbench::helperRunCount(const QString &verb) const
{
    const auto runs = helperRuns();
    return static_cast<int>(
        std::count_if(runs.begin(), runs.end(), [&verb](const QStringList &arguments) {
            return arguments.constFirst() == verb;
        }));
}

ProcessResult Workbench::refusal(const QString &message) const
{
    return profile.promptKind == PromptKind::PolicyKit
        ? ProcessResult{1, {}, QStringLiteral("ERROR: %1\n").arg(message)}
        : ProcessResult{
            1, {}, QStringLiteral("0:99: execution error: ERROR: %1 (1)\n").arg(message)};
}

void Workbench::failHelper(const QString &verb, const QString &message)
{
    m_refusals[verb] = refusal(message);
}

void Workbench::cancelPrompt(const QString &verb)
{
    m_refusals[verb] = profile.promptKind == PromptKind::PolicyKit
        ? ProcessResult{126,
                        {},
                        QStringLiteral(
                            "Error executing command as another user: Request dismissed\n")}
        : ProcessResult{1, {}, QStringLiteral("0:99: execution error: User canceled. (-128)\n")};
}

void Workbench::hold(const QString &verb)
{
    processes.hold = [this, verb](const ScriptedRunner::Call &call) {
        const QString asked = helperArguments(call).value(0);
        return call.arguments.contains(verb) || asked == verb
            || (asked == QLatin1String("replace") && verb == QLatin1String("connect"));
    };
}

Result<ProcessResult, StartError> Workbench::run(const ScriptedRunner::Call &call)
{
    const QStringList arguments = helperArguments(call);
    const QString verb = arguments.value(0);
    const QString meant = verb == QLatin1String("replace") ? QStringLiteral("connect") : verb;
    if (const auto refused = m_refusals.find(meant); refused != m_refusals.end())
        return refused->second;
    if (verb == QLatin1String("connect") || verb == QLatin1String("replace")) {
        tor.setHash(arguments.at(arguments.indexOf(QStringLiteral("--hash")) + 1));
        const bool strict = arguments.at(arguments.indexOf(QStringLiteral("--strict")) + 1)
            == QLatin1String("1");
        writeMarker(strict ? "strict\n" : "proxy\n");
        QFile::remove(profile.killSwitchNote);
        if (strict)
            noteRules("standing");
    } else if (verb == QLatin1String("disconnect")) {
        removeMarker();
        QFile::remove(profile.killSwitchNote);
    }
    return ProcessResult{};
}

void Workbench::noteRules(const QByteArray &word, int missed, qint64 since)
{
    writeFile(profile.killSwitchNote,
              word + ' ' + QByteArray::number(missed) + ' ' + QByteArray::number(since) + '\n');
    m_watcher.start(200ms);
}

void Workbench::setNoteAge(std::chrono::seconds age)
{
    QFile note(profile.killSwitchNote);
    if (note.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        note.setFileTime(QDateTime::currentDateTimeUtc().addSecs(-age.count()),
                         QFileDevice::FileModificationTime);
}

void Workbench::killWatcher()
{
    m_watcher.stop();
    setNoteAge(60s);
}

void Workbench::writeMarker(const QByteArray &content)
{
    writeFile(profile.sessionMarker, content);
}

void Workbench::renewMarker() const
{
    QFile marker(profile.sessionMarker);
    if (!marker.open(QIODevice::ReadOnly))
        qFatal("no session");
    const QString anew = profile.sessionMarker + QStringLiteral(".new");
    writeFile(anew, marker.readAll());
    if (std::rename(QFile::encodeName(anew).constData(),
                    QFile::encodeName(profile.sessionMarker).constData())
        != 0)
        qFatal("the marker cannot be renewed");
}

void Workbench::removeMarker()
{
    QFile::remove(profile.sessionMarker);
}

bool Workbench::hasMarker() const
{
    return QFile::exists(profile.sessionMarker);
}

void Workbench::writeFile(const QString &path, const QByteArray &content, bool executable) const
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("Workbench: %s", qPrintable(file.errorString()));
    if (executable)
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void Workbench::removeTor() const
{
    for (const QString &path : profile.torCandidates)
        QFile::remove(path);
}

void Workbench::setBootstrap(const QByteArray &fields, qint64 received)
{
    tor.reply(bootstrapCommand,
              "250-status/bootstrap-phase=NOTICE BOOTSTRAP " + fields
                  + "\r\n250-traffic/read=" + QByteArray::number(received) + "\r\n250 OK\r\n");
}

void Workbench::setCounters(const QByteArray &read, const QByteArray &written)
{
    tor.reply(countersCommand,
              "250-traffic/read=" + read + "\r\n250-traffic/written=" + written
                  + "\r\n250-status/circuit-established=" + (hasCircuit ? "1" : "0")
                  + "\r\n250 OK\r\n");
}

QByteArray Workbench::block(const QByteArray &key, const QByteArrayList &lines)
{
    QByteArray bytes = "250+" + key + "=\r\n";
    for (const QByteArray &line : lines)
        bytes += line + "\r\n";
    return bytes + ".\r\n250 OK\r\n";
}

int Workbench::commandCount(const char *command) const
{
    return static_cast<int>(tor.commands().count(QString::fromUtf8(command)));
}

bool Workbench::hears(const char *command, int times)
{
    return until([this, command, times] { return commandCount(command) >= times; });
}

} // namespace veldmark
