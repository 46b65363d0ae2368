#include "report/SupportReport.h"

#include "bridges/BridgeLines.h"
#include "report/KnownSecrets.h"
#include "report/Redactor.h"

#include <QJsonArray>

namespace veldmark {

namespace {

const QString notReadable = QStringLiteral("not readable without root");

// One line per value, so that no mark of JSON stands beside a secret.
void addValue(QStringList &lines, const QString &name, const QJsonValue &value)
{
    if (value.isArray()) {
        const QJsonArray all = value.toArray();
        for (const QJsonValue &one : all)
            addValue(lines, name, one);
        if (all.isEmpty())
            lines << name + QStringLiteral(": none");
    } else if (value.isObject()) {
        const QJsonObject all = value.toObject();
        for (auto one = all.begin(); one != all.end(); ++one)
            addValue(lines, name + u' ' + one.key(), one.value());
    } else if (value.isNull()) {
        lines << name + QStringLiteral(": none");
    } else {
        const QString text = value.toVariant().toString().simplified();
        lines << name + QStringLiteral(": ") + (text.isEmpty() ? QStringLiteral("empty") : text);
    }
}

QStringList customBridges(const QString &typed)
{
    const auto all = BridgeLines::parse(typed);
    QStringList lines;
    for (const QString &line : all.lines)
        lines << QStringLiteral("customBridges: %1 %2")
                     .arg(BridgeLines::transport(line).value_or(QStringLiteral("plain")), line);
    if (!all.invalid.isEmpty())
        lines << QStringLiteral("customBridges: %1 not valid").arg(all.invalid.size());
    return lines.isEmpty() ? QStringList{QStringLiteral("customBridges: none")} : lines;
}

QStringList settingLines(const ReportSources &from)
{
    QStringList lines;
    for (const QString &name : from.settings) {
        const QJsonValue value = from.state[name];
        if (name == QLatin1String("customBridges"))
            lines << customBridges(value.toString());
        else if (name == QLatin1String("bypassApps")) // their names identify the user
            lines << QStringLiteral("bypassApps: %1 of them").arg(value.toArray().size());
        else
            addValue(lines, name, value);
    }
    return lines;
}

QStringList sessionLines(const ReportSources &from)
{
    // The circuits have the sites that are being visited; the others have places of their own.
    static const QStringList left
        = QStringLiteral("circuits menuBarSymbol phaseChanges transports").split(u' ');
    QStringList lines = from.problems;
    for (auto field = from.state.begin(); field != from.state.end(); ++field) {
        if (!from.settings.contains(field.key()) && !left.contains(field.key()))
            addValue(lines, field.key(), field.value());
    }
    const QString circuits = QStringLiteral("circuits");
    lines << QStringLiteral("circuits: %1 of them").arg(from.state[circuits].toArray().size());
    const QJsonObject transports = from.state[QStringLiteral("transports")].toObject();
    for (auto one = transports.begin(); one != transports.end(); ++one) {
        if (one.key() != QLatin1String("builtin"))
            addValue(lines, QStringLiteral("transports ") + one.key(), one.value());
    }
    return lines;
}

QStringList phaseLines(const QJsonObject &state)
{
    QStringList lines;
    for (const QJsonValue &change : state[QStringLiteral("phaseChanges")].toArray())
        lines << change[QStringLiteral("at")].toString() + u' '
                + change[QStringLiteral("phase")].toString();
    return lines;
}

QStringList findingLines(const Findings &findings)
{
    QStringList lines;
    for (const Finding &finding : findings) {
        lines << QStringLiteral("%1 %2: %3")
                     .arg(levelName(finding.level), finding.name,
                          finding.text.english().simplified());
        if (!finding.command.isEmpty())
            lines << QStringLiteral("    ") + finding.command.simplified();
    }
    return lines;
}

QStringList logLines(const TorLog::Snapshot &log)
{
    if (log.kind() == TorLog::Snapshot::Kind::unreadable)
        return {QStringLiteral("not readable by this account")};
    QStringList lines;
    for (const TorLogLine &line : log.lines())
        lines << line.raw;
    return lines;
}

} // namespace

SupportReport SupportReport::of(const ReportSources &from, const KnownSecrets &known)
{
    SupportReport report;
    report.made = from.made.toUTC();
    Redactor redactor(known);
    const auto add = [&](const char *title, QStringList lines) {
        if (lines.size() > longestSection) {
            const auto gone = lines.size() - longestSection;
            lines = QStringList(lines.last(longestSection));
            lines.prepend(QStringLiteral("(%1 lines before these are left out)").arg(gone));
        }
        if (lines.isEmpty())
            lines << QStringLiteral("none");
        report.sections.push_back(
            {QLatin1String(title), redactor.redacted(lines.join(u'\n')).split(u'\n')});
    };
    add("Versions", from.versions);
    add("Settings", settingLines(from));
    add("Session", sessionLines(from));
    add("Phases, in UTC", phaseLines(from.state));
    add("Notes of the helper", from.notes);
    add("Journal of the helper", from.journal.value_or(QStringList{notReadable}));
    add("Rules", from.rules.value_or(notReadable).split(u'\n', Qt::SkipEmptyParts));
    add("Doctor", findingLines(from.findings));
    add("Tor's log", logLines(from.log));
    return report;
}

QString SupportReport::text() const
{
    QStringList lines{
        QStringLiteral("Veldmark report, %1").arg(made.toString(Qt::ISODate)),
        QString(),
        QStringLiteral(
            "Addresses, names, bridges, fingerprints, links, keys and paths in a home are"),
        QStringLiteral(
            "replaced. The same stand-in is the same value within this report. Addresses of"),
        QStringLiteral("this computer's loopback device, ports, times and countries stay."),
        QStringLiteral("Veldmark sends this to nobody.")};
    for (const Section &section : sections)
        lines << QString() << QStringLiteral("== %1 ==").arg(section.title) << section.lines;
    return lines.join(u'\n') + u'\n';
}

QJsonObject SupportReport::json() const
{
    QJsonArray all;
    for (const Section &section : sections)
        all.append(
            QJsonObject{{QStringLiteral("title"), section.title},
                        {QStringLiteral("lines"), QJsonArray::fromStringList(section.lines)}});
    return {{QStringLiteral("made"), made.toString(Qt::ISODate)},
            {QStringLiteral("sections"), all}};
}

} // namespace veldmark
