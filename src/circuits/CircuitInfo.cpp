#include "circuits/CircuitInfo.h"

#include <QJsonArray>

namespace veldmark {

namespace {
QJsonValue orNull(const std::optional<QString> &text)
{
    return text ? QJsonValue(*text) : QJsonValue(QJsonValue::Null);
}
} // namespace

QJsonObject RelayInfo::toJson() const
{
    return {{QStringLiteral("fingerprint"), fingerprint},
            {QStringLiteral("nickname"), nickname},
            {QStringLiteral("ip"), orNull(ip)},
            {QStringLiteral("country"), orNull(country)}};
}

size_t qHash(const RelayInfo &relay, size_t seed)
{
    // An absent text must not equal an empty one, hence has_value() as well.
    return qHashMulti(seed, relay.fingerprint, relay.nickname, relay.ip.has_value(),
                      relay.ip.value_or(QString()), relay.country.has_value(),
                      relay.country.value_or(QString()));
}

QJsonObject CircuitInfo::toJson() const
{
    QJsonArray path;
    for (const RelayInfo &hop : hops)
        path.append(hop.toJson());
    QJsonObject object{
        {QStringLiteral("id"), id},
        {QStringLiteral("hops"), path},
        {QStringLiteral("purpose"), purpose},
        {QStringLiteral("created"),
         created ? QJsonValue(created->toUTC().toString(Qt::ISODateWithMs))
                 : QJsonValue(QJsonValue::Null)},
        {QStringLiteral("sites"), QJsonArray::fromStringList(sites)},
    };
    if (roundTrip)
        object.insert(QStringLiteral("rtt"), static_cast<qint64>(roundTrip->count()));
    QJsonObject askedBy;
    for (auto asker = askers.begin(); asker != askers.end(); ++asker)
        askedBy.insert(asker.key(), QJsonArray::fromStringList(asker.value()));
    if (!askedBy.isEmpty())
        object.insert(QStringLiteral("askedBy"), askedBy);
    return object;
}

size_t qHash(const CircuitInfo &circuit, size_t seed)
{
    return qHashMulti(seed, circuit.id, qHashRange(circuit.hops.begin(), circuit.hops.end()),
                      circuit.purpose, circuit.created.has_value(),
                      circuit.created ? circuit.created->toMSecsSinceEpoch() : 0, circuit.sites,
                      circuit.askers, circuit.confluxID, circuit.roundTrip.has_value(),
                      circuit.roundTrip ? circuit.roundTrip->count() : 0, circuit.onionService,
                      circuit.isOneHopTunnel, circuit.isInternal);
}

} // namespace veldmark
