#pragma once

#include "base/ConnectionPhase.h"
#include "base/Result.h"
#include "base/RoutingMode.h"
#include "base/Text.h"
#include "bridges/BridgeChoice.h"
#include "bridges/Ladder.h"
#include "checks/TrafficWatch.h"

#include <QJsonValue>
#include <QStringList>
#include <QVariant>

#include <optional>
#include <vector>

// How the types of the controller's fields are written: as JSON, in the settings' file, and as the
// user's words.
namespace veldmark {

class DNSStatus;
class LeakStatus;
class SettingsStore;
struct CircuitInfo;
struct KillSwitch;
struct PluggableTransports;
struct SessionOwner;

// An enumeration is its case name as a string. A case with a payload is an object with that one key
// ({"exposed": "203.0.113.7"}, {"leak": ["…"]}). An absent optional is null.
QJsonValue json(const QString &value);
QJsonValue json(const Text &value); // English
QJsonValue json(bool value);
QJsonValue json(qint64 value);
QJsonValue json(quint64 value);
QJsonValue json(double value);
QJsonValue json(const QStringList &value);
QJsonValue json(const QList<Text> &value); // English
QJsonValue json(BridgeChoice value);
QJsonValue json(RoutingMode value);
QJsonValue json(ConnectionPhase value);
QJsonValue json(const DNSStatus &value);
QJsonValue json(const KillSwitch &value); // its state alone
QJsonValue json(const LeakStatus &value);
QJsonValue json(const SessionOwner &value);
QJsonValue json(TrafficWatch::Stall value);
QJsonValue json(const PluggableTransports &value);
QJsonValue json(const std::vector<CircuitInfo> &value);
QJsonValue json(Climb value);
// {"rung": "direct", "result": "…", "seconds": 15}; the result in English.
QJsonValue json(const std::vector<LadderStep> &value);

template <typename T> QJsonValue json(const std::optional<T> &value)
{
    return value ? json(*value) : QJsonValue(QJsonValue::Null);
}

// Like Text::toJson() for a text, a list of those for a list of texts, else null.
template <typename T> QJsonValue textJson(const T &)
{
    return QJsonValue::Null;
}
inline QJsonValue textJson(const Text &value)
{
    return value.toJson();
}
QJsonValue textJson(const QList<Text> &value);
QJsonValue textJson(const std::vector<LadderStep> &value); // the results
inline QJsonValue textJson(const std::optional<Text> &value)
{
    return value ? value->toJson() : QJsonValue(QJsonValue::Null);
}

// Reads settings. A stored value that is not valid for the type reads as `fallback`.
bool readSetting(const SettingsStore &store, const QString &key, bool fallback);
QString readSetting(const SettingsStore &store, const QString &key, const QString &fallback);
QStringList readSetting(const SettingsStore &store, const QString &key,
                        const QStringList &fallback);
BridgeChoice readSetting(const SettingsStore &store, const QString &key, BridgeChoice fallback);
Climb readSetting(const SettingsStore &store, const QString &key, Climb fallback);
void writeSetting(SettingsStore &store, const QString &key, bool value);
void writeSetting(SettingsStore &store, const QString &key, const QString &value);
void writeSetting(SettingsStore &store, const QString &key, const QStringList &value);
void writeSetting(SettingsStore &store, const QString &key, BridgeChoice value);
void writeSetting(SettingsStore &store, const QString &key, Climb value);

// The value as the store holds it.
QVariant stored(bool value);
QVariant stored(const QString &value);
QVariant stored(const QStringList &value);
QVariant stored(BridgeChoice value);
QVariant stored(Climb value);

// Parses the user's words: "true"/"false" (also on/off, yes/no, 1/0) for switches, a JSON array of
// strings for lists, the raw value for choices. The error is a sentence and leaves `value`
// unchanged.
Result<void, Text> parse(const QString &text, bool &value);
Result<void, Text> parse(const QString &text, QString &value);
Result<void, Text> parse(const QString &text, QStringList &value);
Result<void, Text> parse(const QString &text, BridgeChoice &value);
Result<void, Text> parse(const QString &text, Climb &value);

// All words that parse() accepts, one for each value; empty when there are too many.
QStringList possibleValues(bool);
QStringList possibleValues(const QString &);
QStringList possibleValues(const QStringList &);
QStringList possibleValues(BridgeChoice);
QStringList possibleValues(Climb);

} // namespace veldmark
