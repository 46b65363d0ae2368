#include "controller/PublishedState.h"

#include "controller/SettingRules.h"
#include "controller/TorController.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QMetaEnum>

namespace veldmark {

namespace {

QJsonValue json(const QString &value) { return value; }
QJsonValue json(bool value) { return value; }
QJsonValue json(qint64 value) { return value; }
QJsonValue json(double value) { return value; }
QJsonValue json(quint64 value) { return static_cast<qint64>(value); }
QJsonValue json(const QStringList &value) { return QJsonArray::fromStringList(value); }
QJsonValue json(BridgeChoice value) { return rawValue(value); }
QJsonValue json(RoutingMode value) { return rawValue(value); }

QJsonValue json(const LeakStatus &value)
{
    if (value.kind() == LeakStatus::Kind::exposed)
        return QJsonObject{{value.name(), value.address()}};
    return value.name();
}

QJsonValue json(const DNSStatus &value)
{
    if (value.isLeak())
        return QJsonObject{{value.name(), json(value.leaks())}};
    return value.name();
}

QJsonValue json(ConnectionPhase value)
{
    return QString::fromLatin1(
        QMetaEnum::fromType<ConnectionPhase>().valueToKey(static_cast<int>(value)));
}

QJsonValue json(const std::vector<CircuitInfo> &value)
{
    QJsonArray array;
    for (const CircuitInfo &circuit : value)
        array.append(circuit.toJson());
    return array;
}

QJsonValue json(const SessionOwner &value)
{
    return QJsonObject{{QStringLiteral("user"), value.userName()}, {QStringLiteral("process"), value.process}};
}

template <typename T>
QJsonValue json(const std::optional<T> &value)
{
    return value ? json(*value) : QJsonValue(QJsonValue::Null);
}

QJsonValue json(const PluggableTransports &value)
{
    QJsonObject builtin;
    for (auto it = value.builtin.cbegin(); it != value.builtin.cend(); ++it)
        builtin.insert(it.key(), json(it.value()));
    return QJsonObject{{QStringLiteral("lyrebird"), json(value.lyrebird)},
                       {QStringLiteral("snowflake"), json(value.snowflake)},
                       {QStringLiteral("webtunnel"), json(value.webtunnel)},
                       {QStringLiteral("builtin"), builtin},
                       {QStringLiteral("source"), value.source}};
}

using SettingRules::shown;

auto refusal(const QString &description)
{
    return Failure(SettingError(SettingError::Kind::Refused, description));
}

Result<bool, SettingError> parseSwitch(const QString &text)
{
    const QString word = text.trimmed().toLower();
    static const QStringList on = {QStringLiteral("true"), QStringLiteral("on"),
                                   QStringLiteral("yes"), QStringLiteral("1")};
    static const QStringList off = {QStringLiteral("false"), QStringLiteral("off"),
                                    QStringLiteral("no"), QStringLiteral("0")};
    if (on.contains(word))
        return true;
    if (off.contains(word))
        return false;
    return refusal(QStringLiteral("\"%1\" is neither true nor false.").arg(shown(text)));
}

Result<QStringList, SettingError> parseList(const QString &text)
{
    const auto failure = refusal(QStringLiteral("\"%1\" is no JSON array of strings.").arg(shown(text)));
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    if (!document.isArray())
        return failure;
    QStringList list;
    for (const QJsonValue &entry : document.array()) {
        if (!entry.isString())
            return failure;
        list << entry.toString();
    }
    return list;
}

// What a setting's `set` returned, as this file's functions give it.
Result<void, SettingError> saved(const std::optional<QString> &problem)
{
    if (problem)
        return Failure(SettingError(SettingError::Kind::NotDone, *problem));
    return {};
}

} // namespace

QJsonObject publishedState(const TorController &c)
{
    const Verdict verdict = c.verdict();
    // While they are taken down, nobody looks.
    const auto rules = c.phase() == ConnectionPhase::disconnecting ? std::nullopt : c.killSwitch();
    return {
        {QStringLiteral("strictMode"), json(c.strictMode())},
        {QStringLiteral("allowLocalNetwork"), json(c.allowLocalNetwork())},
        {QStringLiteral("exitCountry"), json(c.exitCountry())},
        {QStringLiteral("customTorPath"), json(c.customTorPath())},
        {QStringLiteral("bridgeChoice"), json(c.bridgeChoice())},
        {QStringLiteral("customBridges"), json(c.customBridges())},
        {QStringLiteral("bypassApps"), json(c.bypassApps())},
        {QStringLiteral("autoConnect"), json(c.autoConnect())},
        {QStringLiteral("optimizeSpeed"), json(c.optimizeSpeed())},
        {QStringLiteral("latencyMs"), json(c.latencyMs())},
        {QStringLiteral("optimizeStatus"), json(c.optimizeStatus())},
        {QStringLiteral("isOptimizing"), json(c.isOptimizing())},
        {QStringLiteral("transports"), json(c.transports())},
        {QStringLiteral("activeBridge"), json(c.activeBridge())},
        {QStringLiteral("terminalMode"), json(c.terminalMode())},
        {QStringLiteral("phase"), json(c.phase())},
        {QStringLiteral("activeMode"), json(c.activeMode())},
        {QStringLiteral("bootstrapProgress"), json(c.bootstrapProgress())},
        {QStringLiteral("statusDetail"), verdict.detail}, // a known danger comes before what is going on
        {QStringLiteral("bootstrapProblem"), json(c.bootstrapProblem())},
        {QStringLiteral("killSwitch"), rules ? QJsonValue(rules->name()) : QJsonValue(QJsonValue::Null)},
        {QStringLiteral("killSwitchSince"),
         rules ? QJsonValue(rules->since.toString(Qt::ISODate)) : QJsonValue(QJsonValue::Null)},
        {QStringLiteral("exitIP"), json(c.exitIP())},
        {QStringLiteral("torVerified"), json(c.torVerified())},
        {QStringLiteral("leakStatus"), json(c.leakStatus())},
        {QStringLiteral("bytesRead"), json(c.bytesRead())},
        {QStringLiteral("bytesWritten"), json(c.bytesWritten())},
        {QStringLiteral("isChecking"), json(c.isChecking())},
        {QStringLiteral("otherSession"), json(c.otherSession())},
        {QStringLiteral("canCancel"), json(c.canCancel())},
        {QStringLiteral("errorMessage"), json(c.errorMessage())},
        {QStringLiteral("dnsStatus"), json(c.dnsStatus())},
        {QStringLiteral("passwordlessInstalled"), json(c.passwordlessInstalled())},
        {QStringLiteral("startupError"), json(c.startupError())},
        {QStringLiteral("circuits"), json(c.circuits())},
        {QStringLiteral("circuitError"), json(c.circuitError())},
        {QStringLiteral("transportDownload"), json(c.transportDownload())},
        {QStringLiteral("terminalError"), json(c.terminalError())},
        {QStringLiteral("title"), verdict.title},
        {QStringLiteral("menuBarSymbol"), verdict.symbol},
        {QStringLiteral("level"), verdict.levelName()},
    };
}

QStringList settingNames()
{
    return {QStringLiteral("strictMode"), QStringLiteral("allowLocalNetwork"),
            QStringLiteral("exitCountry"), QStringLiteral("customTorPath"),
            QStringLiteral("bridgeChoice"), QStringLiteral("customBridges"),
            QStringLiteral("bypassApps"), QStringLiteral("autoConnect"),
            QStringLiteral("optimizeSpeed"), QStringLiteral("terminalMode")};
}

Result<void, SettingError> setSetting(TorController &c, const QString &name, const QString &text)
{
    Setting<bool> *const switches[] = {&c.strictMode, &c.allowLocalNetwork, &c.autoConnect,
                                       &c.optimizeSpeed};
    for (Setting<bool> *setting : switches) {
        if (setting->key() == name)
            return parseSwitch(text).and_then([&c, setting](bool on) { return SettingRules::change(c, *setting, on); });
    }
    if (name == c.terminalMode.key())
        return parseSwitch(text).and_then([&c](bool on) {
            const auto problem = c.setTerminalMode(on);
            return saved(problem ? problem : c.terminalError());
        });
    for (Setting<QString> *const setting : {&c.exitCountry, &c.customTorPath, &c.customBridges}) {
        if (setting->key() == name)
            return SettingRules::change(c, *setting, text);
    }
    if (name == c.bridgeChoice.key()) {
        const auto choice = bridgeChoiceFromRawValue(text);
        if (!choice)
            return refusal(QStringLiteral("\"%1\" is no bridge choice: off, obfs4, snowflake, meek "
                                          "or custom.").arg(shown(text)));
        return SettingRules::change(c, c.bridgeChoice, *choice);
    }
    if (name == c.bypassApps.key())
        return parseList(text).and_then(
            [&c](const QStringList &apps) { return SettingRules::change(c, c.bypassApps, apps); });
    return refusal(QStringLiteral("There is no setting \"%1\". Settings: %2.")
                       .arg(shown(name), settingNames().join(QStringLiteral(", "))));
}

} // namespace veldmark
