#include "cli/DoctorCommand.h"

#include "cli/Console.h"
#include "doctor/Examiner.h"
#include "platform/PlatformProfile.h"
#include "system/ChildProcessRunner.h"
#include "system/SettingsStore.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace veldmark {

QJsonObject doctorFindings(const Findings &findings)
{
    QJsonArray list;
    for (const Finding &finding : findings)
        list.append(
            QJsonObject{{QStringLiteral("name"), finding.name},
                        {QStringLiteral("level"), levelName(finding.level)},
                        {QStringLiteral("text"), finding.text.english()},
                        {QStringLiteral("command"),
                         finding.command.isEmpty() ? QJsonValue() : QJsonValue(finding.command)}});
    const auto can = canConnect(findings);
    return {{QStringLiteral("canConnect"), can ? QJsonValue(*can) : QJsonValue()},
            {QStringLiteral("findings"), list}};
}

namespace {

Text levelWord(Finding::Level level)
{
    switch (level) {
    case Finding::Level::good:
        return Text::tr("good");
    case Finding::Level::note:
        return Text::tr("note");
    case Finding::Level::unknown:
        return Text::tr("unknown");
    case Finding::Level::problem:
        break;
    }
    return Text::tr("problem");
}

} // namespace

QString Report::doctor(const Findings &findings)
{
    constexpr qsizetype column = 9;
    QStringList lines;
    for (const Finding &finding : findings) {
        lines << levelWord(finding.level).translated().leftJustified(column)
                + finding.text.translated();
        if (!finding.command.isEmpty())
            lines << QString(column, u' ') + finding.command;
    }
    const auto can = canConnect(findings);
    lines << (!can       ? Text::tr("It isn't known whether a connect can work.")
                  : *can ? Text::tr("A connect can work.")
                         : Text::tr("A connect can't work yet."))
                 .translated();
    return lines.join(u'\n');
}

QCoro::Task<ExitStatus> showDoctor(Invocation invocation, PlatformProfile profile)
{
    SettingsStore settings(profile);
    if (const auto problem = settings.problem())
        Console::printError(*problem);
    ChildProcessRunner processes;
    Examiner examiner(profile, settings, processes);
    auto examining = examiner.examine();
    const Findings findings = co_await examining;
    Console::print(invocation.json ? QString::fromUtf8(
                       QJsonDocument(doctorFindings(findings)).toJson(QJsonDocument::Compact))
                                   : Report::doctor(findings));
    const auto can = canConnect(findings);
    if (can == true)
        co_return ExitStatus::done;
    if (can == false)
        Console::printError(Text::tr("A connect can't work until each \"problem\" is fixed."));
    for (const Finding &finding : findings)
        if (!can && finding.mayBlock)
            Console::printError(finding.text);
    co_return ExitStatus::failed;
}

} // namespace veldmark
