#include "cli/ApplicationsCommand.h"

#include "base/OneLine.h"
#include "cli/Console.h"
#include "platform/PlatformProfile.h"
#include "platform/RunningApplications.h"
#include "system/SettingsStore.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace veldmark {

namespace {

const QString pathKey = QStringLiteral("path");
const QString nameKey = QStringLiteral("name");
const QString bypassedKey = QStringLiteral("bypassed");
const QString installedKey = QStringLiteral("installed");

QJsonObject finding(const QString &path, const QString &name, bool isChosen, bool isInstalled)
{
    return {{pathKey, path}, {nameKey, name}, {bypassedKey, isChosen}, {installedKey, isInstalled}};
}

bool isNamed(const InstalledApplication &application, const QString &wanted)
{
    const QFileInfo file(application.path);
    return application.name.compare(wanted, Qt::CaseInsensitive) == 0 || file.fileName() == wanted
        || file.completeBaseName() == wanted;
}

} // namespace

QJsonArray applicationFindings(const std::vector<InstalledApplication> &installed,
                               const QStringList &chosen,
                               const std::function<QString(const QString &path)> &nameOf)
{
    QJsonArray findings;
    QStringList missing = chosen;
    missing.removeDuplicates();
    for (const InstalledApplication &application : installed) {
        findings.append(
            finding(application.path, application.name, chosen.contains(application.path), true));
        missing.removeAll(application.path);
    }
    for (const QString &path : std::as_const(missing))
        findings.append(finding(path, nameOf(path), true, false));
    return findings;
}

QString Report::applications(const QJsonArray &findings)
{
    if (findings.isEmpty())
        return Text::tr("No applications are installed.").translated();
    qsizetype width = 0;
    for (const QJsonValue &entry : findings)
        width = std::max(width, inOneLine(entry[nameKey].toString()).size());
    QStringList lines;
    for (const QJsonValue &entry : findings)
        lines << QStringLiteral("%1 %2  %3%4")
                     .arg(entry[bypassedKey].toBool() ? QStringLiteral("*") : QStringLiteral(" "),
                          inOneLine(entry[nameKey].toString()).leftJustified(width),
                          entry[pathKey].toString(),
                          entry[installedKey].toBool()
                              ? QString()
                              : QStringLiteral("  ") + Text::tr("(not in the menu)").translated());
    return lines.join(u'\n');
}

Result<QString, Text> applicationPath(const QString &wanted,
                                      const std::vector<InstalledApplication> &installed)
{
    if (wanted.contains(u'/')) {
        const QFileInfo file(wanted);
        if (!file.isFile())
            return Failure(Text::tr("There is no file \"%1\".").arg(inOneLine(wanted)));
        return file.absoluteFilePath();
    }
    QStringList found;
    for (const InstalledApplication &application : installed) {
        if (isNamed(application, wanted))
            found << application.path;
    }
    if (found.isEmpty())
        return Failure(Text::tr("There is no application \"%1\"; \"veldmarkctl apps\" lists them.")
                           .arg(inOneLine(wanted)));
    if (found.size() > 1)
        return Failure(Text::tr("\"%1\" may be any of: %2. Give the path.")
                           .arg(inOneLine(wanted), found.join(QStringLiteral(", "))));
    return found.first();
}

Result<QString, Text> applicationPath(const QString &wanted)
{
    return applicationPath(wanted,
                           wanted.contains(u'/') ? std::vector<InstalledApplication>()
                                                 : installedApplications());
}

QCoro::Task<ExitStatus> showApplications(Invocation invocation, PlatformProfile profile)
{
    SettingsStore settings(profile);
    if (const auto problem = settings.problem())
        Console::printError(*problem);
    const auto applications = runningApplications();
    const QJsonArray findings = applicationFindings(
        installedApplications(), settings.stringList(QStringLiteral("bypassApps")),
        [&applications](const QString &path) { return applications->displayName(path); });
    Console::print(invocation.json
                       ? QString::fromUtf8(QJsonDocument(findings).toJson(QJsonDocument::Compact))
                       : Report::applications(findings));
    co_return ExitStatus::done;
}

} // namespace veldmark
