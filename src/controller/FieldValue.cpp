#include "controller/FieldValue.h"

#include "base/OneLine.h"
#include "bridges/PluggableTransports.h"
#include "checks/DNSStatus.h"
#include "checks/KillSwitch.h"
#include "checks/LeakStatus.h"
#include "circuits/CircuitInfo.h"
#include "system/SessionOwner.h"
#include "system/SettingsStore.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMetaEnum>

namespace veldmark {

namespace {

// The value of each word for a switch.
std::optional<bool> switchFrom(const QString &word)
{
    static const QStringList on = {QStringLiteral("true"), QStringLiteral("on"),
                                   QStringLiteral("yes"), QStringLiteral("1")};
    static const QStringList off = {QStringLiteral("false"), QStringLiteral("off"),
                                    QStringLiteral("no"), QStringLiteral("0")};
    if (on.contains(word))
        return true;
    return off.contains(word) ? std::optional(false) : std::nullopt;
}

} // namespace

QJsonValue json(const QString &value)
{
    return value;
}
QJsonValue json(const Text &value)
{
    return value.english();
}
QJsonValue json(bool value)
{
    return value;
}
QJsonValue json(qint64 value)
{
    return value;
}
QJsonValue json(double value)
{
    return value;
}
QJsonValue json(quint64 value)
{
    return static_cast<qint64>(value);
}
QJsonValue json(const QStringList &value)
{
    return QJsonArray::fromStringList(value);
}

QJsonValue json(const QList<Text> &value)
{
    QJsonArray texts;
    for (const Text &text : value)
        texts.append(text.english());
    return texts;
}

QJsonValue textJson(const QList<Text> &value)
{
    QJsonArray texts;
    for (const Text &text : value)
        texts.append(text.toJson());
    return texts.isEmpty() ? QJsonValue(QJsonValue::Null) : texts;
}

QJsonValue json(BridgeChoice value)
{
    return rawValue(value);
}
QJsonValue json(RoutingMode value)
{
    return rawValue(value);
}

QJsonValue json(const LeakStatus &value)
{
    if (value.kind() == LeakStatus::Kind::exposed)
        return QJsonObject{{value.name(), value.address()}};
    return value.name();
}

QJsonValue json(const DNSStatus &value)
{
    if (!value.isLeak())
        return value.name();
    QJsonArray resolvers;
    for (const Text &resolver : value.leaks())
        resolvers.append(resolver.english());
    return QJsonObject{{value.name(), resolvers}};
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

QJsonValue json(Climb value)
{
    return rawValue(value);
}

QJsonValue json(const std::vector<LadderStep> &value)
{
    QJsonArray steps;
    for (const LadderStep &step : value)
        steps.append(
            QJsonObject{{QStringLiteral("rung"), Ladder::rawName(step.rung)},
                        {QStringLiteral("result"), json(step.result)},
                        {QStringLiteral("seconds"),
                         step.seconds ? QJsonValue(*step.seconds) : QJsonValue(QJsonValue::Null)}});
    return steps;
}

QJsonValue textJson(const std::vector<LadderStep> &value)
{
    QJsonArray texts;
    for (const LadderStep &step : value)
        texts.append(step.result.toJson());
    return texts.isEmpty() ? QJsonValue(QJsonValue::Null) : texts;
}

QJsonValue json(const SessionOwner &value)
{
    return QJsonObject{{QStringLiteral("user"), value.userName()},
                       {QStringLiteral("process"), value.process}};
}

QJsonValue json(const KillSwitch &value)
{
    return value.name();
}

QJsonValue json(TrafficWatch::Stall value)
{
    return TrafficWatch::name(value);
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

bool readSetting(const SettingsStore &store, const QString &key, bool)
{
    return store.boolean(key);
}

QString readSetting(const SettingsStore &store, const QString &key, const QString &)
{
    return store.string(key);
}

QStringList readSetting(const SettingsStore &store, const QString &key, const QStringList &)
{
    return store.stringList(key);
}

BridgeChoice readSetting(const SettingsStore &store, const QString &key, BridgeChoice fallback)
{
    return bridgeChoiceFromRawValue(store.string(key)).value_or(fallback);
}

Climb readSetting(const SettingsStore &store, const QString &key, Climb fallback)
{
    return climbFromRawValue(store.string(key)).value_or(fallback);
}

void writeSetting(SettingsStore &store, const QString &key, bool value)
{
    store.setBoolean(key, value);
}

void writeSetting(SettingsStore &store, const QString &key, const QString &value)
{
    store.setString(key, value);
}

void writeSetting(SettingsStore &store, const QString &key, const QStringList &value)
{
    store.setStringList(key, value);
}

void writeSetting(SettingsStore &store, const QString &key, BridgeChoice value)
{
    store.setString(key, rawValue(value));
}

void writeSetting(SettingsStore &store, const QString &key, Climb value)
{
    store.setString(key, rawValue(value));
}

QVariant stored(bool value)
{
    return value;
}
QVariant stored(const QString &value)
{
    return value;
}
QVariant stored(const QStringList &value)
{
    return value;
}
QVariant stored(BridgeChoice value)
{
    return rawValue(value);
}

QVariant stored(Climb value)
{
    return rawValue(value);
}

Result<void, Text> parse(const QString &text, bool &value)
{
    const auto found = switchFrom(text.trimmed().toLower());
    if (!found)
        return Failure(Text::tr("\"%1\" is neither true nor false.").arg(inOneLine(text)));
    value = *found;
    return {};
}

Result<void, Text> parse(const QString &text, QString &value)
{
    value = text;
    return {};
}

Result<void, Text> parse(const QString &text, QStringList &value)
{
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    const QJsonArray array = document.array();
    const bool areStrings = std::all_of(array.begin(), array.end(),
                                        [](const QJsonValue &entry) { return entry.isString(); });
    if (!document.isArray() || !areStrings)
        return Failure(Text::tr("\"%1\" is not a JSON array of strings.").arg(inOneLine(text)));
    value.clear();
    for (const QJsonValue &entry : array)
        value << entry.toString();
    return {};
}

Result<void, Text> parse(const QString &text, BridgeChoice &value)
{
    const auto choice = bridgeChoiceFromRawValue(text);
    if (!choice)
        return Failure(
            Text::tr("\"%1\" is not a bridge choice: off, obfs4, snowflake, meek or custom.")
                .arg(inOneLine(text)));
    value = *choice;
    return {};
}

Result<void, Text> parse(const QString &text, Climb &value)
{
    const auto climb = climbFromRawValue(text);
    if (!climb)
        return Failure(Text::tr("\"%1\" is none of ask, always and never.").arg(inOneLine(text)));
    value = *climb;
    return {};
}

QStringList possibleValues(bool)
{
    return {QStringLiteral("true"), QStringLiteral("false")};
}
QStringList possibleValues(const QString &)
{
    return {};
}
QStringList possibleValues(const QStringList &)
{
    return {};
}

QStringList possibleValues(BridgeChoice)
{
    QStringList values;
    for (const BridgeChoice choice :
         {BridgeChoice::off, BridgeChoice::obfs4, BridgeChoice::snowflake, BridgeChoice::meek,
          BridgeChoice::custom})
        values << rawValue(choice);
    return values;
}

QStringList possibleValues(Climb)
{
    QStringList values;
    for (const Climb climb : allClimbs)
        values << rawValue(climb);
    return values;
}

} // namespace veldmark
