#include "system/PrivilegedRunner.h"

#include "system/HelperSentences.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>

namespace veldmark {

namespace {

const QString shell = QStringLiteral("/bin/bash");

std::optional<QByteArray> wholeContentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray content = file.readAll();
    if (file.error() != QFile::NoError)
        return std::nullopt;
    return content;
}

// The text from the helper's own line on, without sudo's lines when the shell reports an error of
// the helper. Earlier lines are warnings of sudo (an unknown host name), of the shell or of a
// library, and not the reason of a failure.
QString helpersWords(const QString &errors)
{
    static const QRegularExpression line(QStringLiteral("^ERROR: "),
                                         QRegularExpression::MultilineOption);
    if (const auto match = line.match(errors); match.hasMatch())
        return errors.sliced(match.capturedStart());
    QStringList lines = errors.split(u'\n');
    lines.removeIf([](const QString &said) { return said.startsWith(QLatin1String("sudo: ")); });
    const QString others = lines.join(u'\n');
    return others.trimmed().isEmpty() ? errors : others;
}

// The helper's statuses when only an administrator's approval is missing: of the same verb, and of
// a program.
constexpr int unapprovedStatus = 3;
constexpr int unapprovedProgramStatus = 4;

// The words of a run: those on its command line, which every user can read, and its standard input.
struct HelperWords {
    QStringList shown;
    std::optional<QByteArray> input;
};

// The options of a connect contain bridges, exit and the hashed password. Those of the other verbs
// are the subject of the administrator's approval, and stay where the dialog can show them.
HelperWords hidden(const QStringList &arguments)
{
    const QString verb = arguments.value(0);
    const auto fitsALine = [](const QString &word) { // the helper refuses words that do not fit
        return std::none_of(word.begin(), word.end(),
                            [](QChar c) { return c < u' ' || c == QChar(0x7f); });
    };
    if ((verb != QLatin1String("connect") && verb != QLatin1String("replace"))
        || arguments.size() < 2 || !std::all_of(arguments.begin(), arguments.end(), fitsALine))
        return {arguments, std::nullopt};
    const QString lines = arguments.mid(1).join(u'\n') + QLatin1String("\nend\n");
    return {{verb, QStringLiteral("-")}, lines.toUtf8()};
}

QCoro::Task<Result<ProcessResult, StartError>> start(ProcessRunner *runner, QString program,
                                                     QStringList before, HelperWords words)
{
    const QStringList all = before + words.shown;
    return words.input ? runner->runWithInput(program, all, *words.input)
                       : runner->run(program, all);
}

// The arguments for the dialog after the helper has refused `arguments` without an approval.
QStringList approvable(QStringList arguments)
{
    if (arguments.value(0) == QLatin1String("connect"))
        arguments[0] = QStringLiteral("replace");
    return arguments;
}

// `path` with its control characters and invisible ones spelled out, so that it shows as it is.
QString visible(const QString &path)
{
    QString shown;
    for (const char32_t c : path.toUcs4()) {
        if (QChar::isPrint(c))
            shown += QString::fromUcs4(&c, 1);
        else
            shown += QStringLiteral("\\u{%1}").arg(static_cast<uint>(c), 0, 16);
    }
    return shown;
}

QString valueOf(const QStringList &arguments, const char *option)
{
    return arguments.value(arguments.indexOf(QLatin1String(option)) + 1);
}

// The text of the dialog when the program sets it: osascript's, and the question on a terminal.
Text promptText(const PlatformProfile &profile, const QStringList &arguments)
{
    const QString verb = arguments.value(0);
    if (verb == QLatin1String("replace"))
        return Text::joined(
            {profile.promptText,
             Text::tr(
                 "Veldmark replaces the running strict session. The new session may protect you less.")});
    if (verb != QLatin1String("approve"))
        return profile.promptText;
    return Text::
        tr("Veldmark wants to run %1 as a part of Tor. No package of the system installed it. Its SHA-256 is %2.")
            .arg(visible(valueOf(arguments, "--program")), valueOf(arguments, "--sha256"));
}

HelperError failure(const QString &text)
{
    return HelperError::failed(PrivilegedRunner::cleanError(helpersWords(text)));
}

// Whether every line is sudo's own. sudo translates its messages, but not its name before them.
bool onlySudoSpoke(const QString &errors)
{
    const QStringList lines = errors.split(u'\n', Qt::SkipEmptyParts);
    return !lines.isEmpty() && std::all_of(lines.cbegin(), lines.cend(), [](const QString &line) {
        return line.startsWith(QLatin1String("sudo: "));
    });
}

// With -n sudo never asks: it reports that it needs a password or a terminal.
bool sudoRefused(const ProcessResult &result)
{
    if (helpersWords(result.stderr).startsWith(QLatin1String("ERROR: ")))
        return false; // the helper ran, whatever sudo warned of before
    return result.stderr.toLower().contains(QLatin1String("password"))
        || result.stderr.contains(QLatin1String("a terminal")) || onlySudoSpoke(result.stderr);
}

// Whether the helper itself, or the shell for it ("SCRIPT: line 7: …"), printed an error.
bool helperSpoke(const QString &errors, const QString &script)
{
    for (const QString &line : errors.split(u'\n')) {
        if (line.startsWith(QLatin1String("ERROR: ")) || line.startsWith(script + u':'))
            return true;
    }
    return false;
}

// pkexec passes on the helper's own status and uses 126 and 127 itself. A shell also uses these for
// a program that it cannot run. pkexec's texts, which are never translated, show which program
// reported the error.
HelperError policyKitError(const ProcessResult &result, const QString &script)
{
    if (helperSpoke(result.stderr, script))
        return failure(result.stderr);
    if (result.stderr.startsWith(QLatin1String("Error getting authority:"))) {
        return HelperError::failed(Text::tr(
            "Administrator access can't be asked for: polkit is not running on this system."));
    }
    if (result.status == 126)
        return HelperError::cancelled();
    if (result.status == 127) {
        const auto says = [&result](const char *text) {
            return result.stderr.contains(QLatin1String(text));
        };
        if (says("Error executing command as another user: No authentication agent found")
            || says("Error creating textual authentication agent:")
            || says("Error registering local authentication agent:")) {
            return HelperError::failed(Text::tr(
                "Administrator access can't be asked for: no PolicyKit authentication agent is "
                "running in this session."));
        }
        // pkexec's own agent asks on a terminal, but polkit then accepts the answer only from an
        // agent of the user.
        if (says("No session for cookie")) {
            return HelperError::failed(Text::tr(
                "The password could not be checked: polkit accepts no password from this terminal. Run the command with sudo."));
        }
        if (says("Error executing command as another user: Not authorized")
            || says("Error checking for authorization ")) {
            // polkit reports the same for a wrong password and for an agent that ended without an
            // answer.
            return HelperError::failed(Text::tr(
                "Administrator access was refused, or the agent that asks for the password gave no answer."));
        }
    }
    return failure(result.stderr);
}

} // namespace

QString shellQuoted(const QString &word)
{
    QString quoted = word;
    quoted.replace(u'\'', QLatin1String("'\\''"));
    return u'\'' + quoted + u'\'';
}

QString appleScriptSource(const QStringList &words, const QString &promptText)
{
    QStringList quoted;
    for (const QString &word : words)
        quoted += shellQuoted(word);
    QString command = quoted.join(u' ');
    // Backslashes first, so that the backslashes added for the quotes are not doubled.
    QString text = promptText;
    for (QString *quotable : {&command, &text})
        quotable->replace(u'\\', QLatin1String("\\\\")).replace(u'"', QLatin1String("\\\""));
    return QLatin1String("do shell script \"") + command + QLatin1String("\" with prompt \"") + text
        + QLatin1String("\" with administrator privileges");
}

PrivilegedRunner::PrivilegedRunner(PlatformProfile profile, ProcessRunner &runner,
                                   uid_t effectiveUser)
    : m_data(
        std::make_shared<RunData>(RunData{std::move(profile), &runner, effectiveUser == 0, {}}))
{
}

PrivilegedRunner::~PrivilegedRunner()
{
    m_data->runner = nullptr;
    m_data->question = nullptr;
}

void PrivilegedRunner::askWith(Question question)
{
    m_data->question = std::move(question);
}

bool PrivilegedRunner::RunData::passwordlessInstalled() const
{
    return QFile::exists(profile.installedHelper) && QFile::exists(profile.sudoersRule);
}

PrivilegedRunner::Outcome PrivilegedRunner::RunData::bundledHelper() const
{
    const QString path = profile.bundledHelper();
    if (path.isEmpty())
        return Failure(HelperError::missingHelper());
    return path;
}

bool PrivilegedRunner::passwordlessInstalled() const
{
    return m_data->passwordlessInstalled();
}

PrivilegedRunner::Outcome PrivilegedRunner::bundledHelper() const
{
    return m_data->bundledHelper();
}

bool PrivilegedRunner::RunData::privilegedHelperOutdated() const
{
    const Outcome shipped = bundledHelper();
    if (!passwordlessInstalled() || !shipped)
        return false;
    // Two unreadable files count as equal, a readable and an unreadable one as different.
    return wholeContentOf(*shipped) != wholeContentOf(profile.installedHelper);
}

bool PrivilegedRunner::privilegedHelperOutdated() const
{
    return m_data->privilegedHelperOutdated();
}

QCoro::Task<PrivilegedRunner::Outcome> PrivilegedRunner::runHelper(QStringList arguments)
{
    return run(m_data, arguments);
}

QCoro::Task<PrivilegedRunner::Outcome> PrivilegedRunner::runWithPrompt(
    QStringList arguments, std::optional<QString> script)
{
    return prompt(m_data, arguments, script);
}

QCoro::Task<PrivilegedRunner::Outcome> PrivilegedRunner::run(std::shared_ptr<const RunData> data,
                                                             QStringList arguments)
{
    const bool needsNobody = data->isRoot && data->profile.promptKind == PromptKind::PolicyKit;
    if (!needsNobody && data->passwordlessInstalled()) {
        const QStringList before{QStringLiteral("-n"), data->profile.installedHelper};
        // A copy of another version may not read its standard input.
        const HelperWords words = data->privilegedHelperOutdated()
            ? HelperWords{arguments, std::nullopt}
            : hidden(arguments);
        auto running = start(data->runner, data->profile.sudo, before, words);
        const auto run = co_await running;
        if (!run)
            co_return Failure(HelperError::notStarted(run.error()));
        if (run->status == 0)
            co_return run->stdout;
        const bool isHelpers = helpersWords(run->stderr).startsWith(QLatin1String("ERROR: "));
        if (isHelpers && run->status == unapprovedProgramStatus)
            co_return Failure(HelperError::unapprovedProgram(failure(run->stderr).description()));
        if (isHelpers && run->status == unapprovedStatus)
            arguments = approvable(arguments);
        else if (!sudoRefused(*run))
            co_return Failure(failure(run->stderr.isEmpty() ? run->stdout : run->stderr));
        if (!data->runner)
            co_return Failure(HelperError::cancelled());
    }
    const Outcome outcome = co_await prompt(data, arguments, std::nullopt);
    co_return outcome;
}

QCoro::Task<PrivilegedRunner::Outcome> PrivilegedRunner::prompt(std::shared_ptr<const RunData> data,
                                                                QStringList arguments,
                                                                std::optional<QString> script)
{
    if (!script) {
        const Outcome shipped = data->bundledHelper();
        if (!shipped)
            co_return shipped;
        script = *shipped;
    }
    if (data->profile.promptKind == PromptKind::AppleScript) {
        const QStringList words = QStringList{shell, *script} + arguments;
        const QStringList source = {
            QStringLiteral("-e"),
            appleScriptSource(words, promptText(data->profile, arguments).translated())};
        const auto run = co_await data->runner->run(data->profile.promptProgram, source);
        if (!run)
            co_return Failure(HelperError::notStarted(run.error()));
        if (run->status == 0)
            co_return run->stdout;
        // The error number that osascript reports for a dismissed dialog.
        if (run->stderr.contains(QLatin1String("(-128)")))
            co_return Failure(HelperError::cancelled());
        co_return Failure(failure(run->stderr));
    }
    const QString helper = *script;
    const auto allowed = co_await askRoot(data, arguments);
    if (!allowed)
        co_return Failure(allowed.error());
    const Outcome outcome = co_await runAsRoot(data, helper, arguments);
    const QStringList more = approvable(arguments);
    if (outcome || outcome.error().kind() != HelperError::Kind::Unapproved || more == arguments
        || !data->runner)
        co_return outcome;
    // The first dialog did not say that a strict session would be weakened; this one does.
    const Outcome approved = co_await runAsRoot(data, helper, more);
    co_return approved;
}

QCoro::Task<Result<void, HelperError>> PrivilegedRunner::askRoot(
    std::shared_ptr<const RunData> data, QStringList arguments)
{
    if (!data->isRoot || arguments.value(0) != QLatin1String("approve"))
        co_return Result<void, HelperError>{};
    const Text program = visible(valueOf(arguments, "--program"));
    Answer answer = Answer::nobodyThere;
    if (data->question) {
        auto asking = data->question(promptText(data->profile, arguments));
        answer = co_await asking;
    }
    if (!data->runner)
        co_return Failure(HelperError::cancelled());
    if (answer == Answer::no)
        co_return Failure(HelperError::failed(Text::tr("%1 was not approved.").arg(program)));
    if (answer == Answer::nobodyThere)
        co_return Failure(HelperError::failed(
            Text::tr(
                "%1 is not a program of the system, so an administrator has to approve it, but this command has no terminal to ask on. Run \"sudo veldmarkctl run --connect\" in a terminal.")
                .arg(program)));
    co_return Result<void, HelperError>{};
}

QCoro::Task<PrivilegedRunner::Outcome> PrivilegedRunner::runAsRoot(
    std::shared_ptr<const RunData> data, QString script, QStringList arguments)
{
    // pkexec gets the script itself and no shell: the installed policy's actions, whose texts the
    // dialog shows, match that path and the verb after it.
    const QString program = data->isRoot ? shell : data->profile.promptProgram;
    const QStringList before{script};
    const HelperWords words = hidden(arguments);
    auto running = start(data->runner, program, before, words);
    const auto run = co_await running;
    if (!run)
        co_return Failure(HelperError::notStarted(run.error()));
    if (run->status == 0)
        co_return run->stdout;
    const HelperError error = data->isRoot ? failure(run->stderr) : policyKitError(*run, script);
    if (run->status == unapprovedStatus && error.kind() == HelperError::Kind::Failed)
        co_return Failure(HelperError::unapproved(error.description()));
    if (run->status == unapprovedProgramStatus && error.kind() == HelperError::Kind::Failed)
        co_return Failure(HelperError::unapprovedProgram(error.description()));
    co_return Failure(error);
}

Text PrivilegedRunner::cleanError(const QString &text)
{
    QString message = text.trimmed();
    static const QString heading = QStringLiteral("execution error: ");
    if (const qsizetype at = message.indexOf(heading); at >= 0)
        message.remove(0, at + heading.size());
    static const QRegularExpression number(QStringLiteral(" \\(-?\\d+\\)$"));
    if (const auto match = number.match(message); match.hasMatch())
        message.remove(match.capturedStart(), match.capturedLength());
    static const QString mark = QStringLiteral("ERROR: ");
    if (message.startsWith(mark))
        message.remove(0, mark.size());
    return message.isEmpty() ? Text::tr("The helper failed without an error message.")
                             : HelperSentences::recognised(message);
}

} // namespace veldmark
