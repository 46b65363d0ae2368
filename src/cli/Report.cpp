#include "cli/Report.h"

#include "base/ConnectionPhase.h"
#include "base/Text.h"
#include "bridges/Ladder.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMetaEnum>

#include <array>

namespace veldmark::Report {

namespace {

QString row(const Text &name, const Text &text)
{
    return QStringLiteral("\n  ") + (name.translated() + u' ').leftJustified(12)
        + text.translated();
}

QString text(const QJsonObject &state, const char *key)
{
    return state.value(QLatin1String(key)).toString();
}

bool isLadderShown(const QJsonObject &state)
{
    bool isKnown = false;
    const int phase = QMetaEnum::fromType<ConnectionPhase>().keyToValue(
        text(state, "phase").toLatin1().constData(), &isKnown);
    return isKnown && showsLadder(static_cast<ConnectionPhase>(phase));
}

// Whether the rules were seen in the kernel.
bool isClosed(const QJsonObject &state)
{
    const QString rules = text(state, "killSwitch");
    return text(state, "activeMode") == QLatin1String("strict")
        && (rules == QLatin1String("standing") || rules == QLatin1String("putBack"));
}

Text modeText(const QJsonObject &state)
{
    if (text(state, "activeMode") != QLatin1String("strict"))
        return Text::tr("proxy: apps that ignore the system proxy are not covered");
    // Rules in the kernel are no proof when a check has seen traffic leave.
    const bool isHeld = isClosed(state) && text(state, "level") != QLatin1String("danger");
    return isHeld ? Text::tr("strict: only Tor's traffic leaves") : Text::tr("strict");
}

Text killSwitchText(const QJsonObject &state)
{
    const QString word = text(state, "killSwitch");
    const QString since = QDateTime::fromString(text(state, "killSwitchSince"), Qt::ISODate)
                              .toLocalTime()
                              .toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    if (word == QLatin1String("standing"))
        return Text::tr("blocks traffic, since %1").arg(since);
    if (word == QLatin1String("putBack"))
        return Text::tr("blocks traffic; put back at %1 after another program had removed it")
            .arg(since);
    if (word == QLatin1String("open"))
        return Text::tr("NOT BLOCKING since %1: traffic may leave this computer directly")
            .arg(since);
    return Text::tr("isn't known to block traffic, since %1").arg(since);
}

Text exitText(const QJsonObject &state)
{
    const QString address = text(state, "exitIP");
    const QJsonValue verified = state.value(QStringLiteral("torVerified"));
    if (state.value(QStringLiteral("isChecking")).toBool())
        return Text::tr("checking…"); // the last result no longer counts
    if (verified.isNull())
        return Text::tr("not checked yet");
    if (address.isEmpty())
        return Text::tr("the check service didn't answer through Tor");
    return verified.toBool() ? Text::tr("%1, a Tor exit").arg(address)
                             : Text::tr("%1, NOT a Tor exit").arg(address);
}

Text directText(const QJsonObject &state)
{
    const QJsonValue leak = state.value(QStringLiteral("leakStatus"));
    if (leak.isObject())
        return Text::tr("open; it shows the address %1")
            .arg(leak.toObject().value(QStringLiteral("exposed")).toString());
    const QString word = leak.toString();
    // Only the kill switch blocks: in proxy mode a direct probe without an answer proves no
    // protection.
    if (word == QLatin1String("blocked") && isClosed(state))
        return Text::tr("blocked");
    if (word == QLatin1String("blocked"))
        return text(state, "activeMode") == QLatin1String("strict")
            ? Text::tr("no answer, but it isn't known whether the kill switch blocks it")
            : Text::tr("no answer, but proxy mode doesn't block it");
    if (word == QLatin1String("checking"))
        return Text::tr("checking…");
    if (word == QLatin1String("inconclusive"))
        return Text::tr("inconclusive");
    return Text::tr("not checked yet");
}

Text dnsText(const QJsonObject &state)
{
    const QJsonValue dns = state.value(QStringLiteral("dnsStatus"));
    if (dns.isObject()) {
        QStringList leaks;
        for (const QJsonValue &leak : dns.toObject().value(QStringLiteral("leak")).toArray())
            leaks << leak.toString();
        return Text::tr("can go around Tor via: %1").arg(leaks.join(QStringLiteral("; ")));
    }
    const QString word = dns.toString();
    if (word == QLatin1String("throughTor"))
        return Text::tr("a test lookup went through Tor");
    if (word == QLatin1String("checking"))
        return Text::tr("testing…");
    if (word == QLatin1String("unverified"))
        return Text::tr("settings point at Tor, but a test lookup couldn't be confirmed");
    return Text::tr("not tested yet");
}

QString hopText(const QJsonObject &hop)
{
    QStringList details;
    const QString country = text(hop, "country").toUpper();
    if (!country.isEmpty())
        details << country;
    if (const QString ip = text(hop, "ip"); !ip.isEmpty())
        details << ip;
    const QString name = text(hop, "nickname");
    return details.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, details.join(u' '));
}

// A step of the ladder, whose result is in the user's language.
Text stepText(const QJsonObject &step)
{
    const QJsonValue seconds = step.value(QStringLiteral("seconds"));
    return Ladder::line({bridgeChoiceFromRawValue(text(step, "rung")).value_or(BridgeChoice::off),
                         text(step, "result"),
                         seconds.isDouble() ? std::optional(seconds.toInt()) : std::nullopt});
}

} // namespace

QString bytes(double count)
{
    constexpr std::array units = {"B", "kB", "MB", "GB", "TB"};
    std::size_t unit = 0;
    while (count >= 1000 && unit + 1 < units.size()) {
        count /= 1000;
        ++unit;
    }
    return QStringLiteral("%1 %2")
        .arg(count, 0, 'f', unit == 0 ? 0 : 1)
        .arg(QLatin1String(units[unit]));
}

QString status(const QJsonObject &state)
{
    QString report = text(state, "title");
    report += QStringLiteral("\n  ") + text(state, "statusDetail");
    const QString phase = text(state, "phase");
    if (phase == QLatin1String("connected")) {
        report += row(Text::tr("Mode"), modeText(state));
        report += row(Text::tr("Exit"), exitText(state));
        if (const QJsonValue latency = state.value(QStringLiteral("latencyMs")); latency.isDouble())
            report += row(Text::tr("Latency"), Text::tr("%1 ms through Tor").arg(latency.toInt()));
        report += row(Text::tr("Direct path"), directText(state));
        report += row(Text::tr("DNS"), dnsText(state));
        report += row(Text::tr("Traffic"),
                      Text::tr("%1 received, %2 sent")
                          .arg(bytes(state.value(QStringLiteral("bytesRead")).toDouble()),
                               bytes(state.value(QStringLiteral("bytesWritten")).toDouble())));
        if (const QString bridge = text(state, "activeBridge"); !bridge.isEmpty())
            report += row(Text::tr("Bridges"), bridge);
        if (state.value(QStringLiteral("separated")) == QJsonValue(false))
            report += row(Text::tr("Circuits"),
                          Text::tr("Applications are not separated now: they share circuits."));
    } else if (phase == QLatin1String("connecting")) {
        report += row(Text::tr("Progress"),
                      QStringLiteral("%1%").arg(qRound(
                          state.value(QStringLiteral("bootstrapProgress")).toDouble() * 100)));
    } else if (phase == QLatin1String("stale")) {
        const bool isAnothers = state.value(QStringLiteral("otherSession")).isObject();
        report += row(Text::tr("What to do"),
                      isAnothers ? Text::tr("nothing; veldmarkctl restore would end that session")
                                 : Text(QStringLiteral("veldmarkctl restore")));
    }
    for (const QString &step : steps(state))
        report += row(Text::tr("Tried"), step);
    if (const QString offered = offer(state); !offered.isEmpty())
        report += row(Text::tr("Offer"), offered);
    if (!text(state, "killSwitch").isEmpty())
        report += row(Text::tr("Kill switch"), killSwitchText(state));
    const bool isTried = phase == QLatin1String("connecting") || phase == QLatin1String("stale");
    if (const QString problem = text(state, "bootstrapProblem"); isTried && !problem.isEmpty())
        report += row(Text::tr("Cause"), problem);
    if (const QString error = text(state, "errorMessage"); !error.isEmpty())
        report += row(Text::tr("Problem"), error);
    if (const QString told = terminal(state); !told.isEmpty())
        report += row(Text::tr("Terminal"), told);
    if (const QString problem = text(state, "startupError"); !problem.isEmpty())
        report += row(Text::tr("Settings"), problem);
    for (const QJsonValue &problem : state.value(QStringLiteral("settingsProblems")).toArray())
        report += row(Text::tr("Settings"), problem.toString());
    return report;
}

QStringList steps(const QJsonObject &state)
{
    QStringList lines;
    if (isLadderShown(state)) {
        for (const QJsonValue &step : state.value(QStringLiteral("ladder")).toArray())
            lines << stepText(step.toObject()).translated();
    }
    return lines;
}

QString offer(const QJsonObject &state)
{
    const QString offered = text(state, "climbOffer");
    if (offered.isEmpty() || !isLadderShown(state))
        return {};
    return Text::joined(
               {offered, Text::tr("Try them with: %1").arg(QStringLiteral("veldmarkctl climb"))})
        .translated();
}

QString terminal(const QJsonObject &state)
{
    const QString error = text(state, "terminalError");
    return error.isEmpty() ? text(state, "terminalHint") : error;
}

namespace {

// "NAME: site, site" for each application, the sites of an unknown one without a name.
QStringList sitesByApplication(const QJsonObject &circuit,
                               const std::function<QString(const QString &id)> &nameOf)
{
    const QJsonObject askedBy = circuit.value(QStringLiteral("askedBy")).toObject();
    QStringList applications; // in the order of their first sites
    QHash<QString, QStringList> sites;
    for (const QJsonValue &site : circuit.value(QStringLiteral("sites")).toArray()) {
        QStringList names;
        for (const QJsonValue &id : askedBy.value(site.toString()).toArray())
            names << (nameOf ? nameOf(id.toString()) : id.toString());
        const QString application = names.join(QStringLiteral(", "));
        if (!sites.contains(application))
            applications << application;
        sites[application] << site.toString();
    }
    QStringList lines;
    for (const QString &application : std::as_const(applications))
        lines << (application.isEmpty() ? QString() : application + QStringLiteral(": "))
                + sites.value(application).join(QStringLiteral(", "));
    return lines;
}

} // namespace

QString circuits(const QJsonObject &state, const std::function<QString(const QString &id)> &nameOf)
{
    const QJsonArray list = state.value(QStringLiteral("circuits")).toArray();
    if (list.isEmpty())
        return Text::tr("No circuits yet.").translated();
    QStringList lines;
    for (const QJsonValue &entry : list) {
        const QJsonObject circuit = entry.toObject();
        QStringList path;
        for (const QJsonValue &hop : circuit.value(QStringLiteral("hops")).toArray())
            path << hopText(hop.toObject());
        // Tor's word for a circuit to an onion service is long.
        const QString purpose = text(circuit, "purpose");
        lines << QStringLiteral("%1  %2  %3")
                     .arg(text(circuit, "id"), 4)
                     .arg(purpose == QLatin1String("HS_CLIENT_REND") ? QStringLiteral("ONION")
                                                                     : purpose,
                          -8)
                     .arg(path.join(QStringLiteral(" → ")));
        for (const QString &sites : sitesByApplication(circuit, nameOf))
            lines << QStringLiteral("                → ") + sites;
    }
    return lines.join(u'\n');
}

QString value(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::String:
        return value.toString();
    case QJsonValue::Bool:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QJsonValue::Double:
        return value.toVariant().toString();
    case QJsonValue::Array:
        return QString::fromUtf8(QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact));
    case QJsonValue::Object:
        return QString::fromUtf8(QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact));
    default:
        return {};
    }
}

} // namespace veldmark::Report
