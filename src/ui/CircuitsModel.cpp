#include "ui/CircuitsModel.h"

#include "circuits/CircuitPalette.h"
#include "ui/SessionTexts.h"

#include <QLocale>

#include <algorithm>

namespace veldmark {

namespace {

QString countryName(const RelayInfo &relay)
{
    return relay.country ? relay.country->toUpper() : QString();
}

QString relayDetail(const RelayInfo &relay)
{
    QStringList parts;
    if (relay.country)
        parts << countryName(relay);
    parts << relay.ip.value_or(CircuitsModel::tr("Unknown"));
    return parts.join(QStringLiteral(" · "));
}

QString milliseconds(std::chrono::microseconds time)
{
    return QLocale().toString(static_cast<qlonglong>((time.count() + 500) / 1000)) + QStringLiteral("\u00a0ms");
}

QVariantMap step(const QString &symbol, const QString &country, const QString &role,
                 const QString &title, const QString &detail, bool last)
{
    return {{QStringLiteral("symbol"), symbol}, {QStringLiteral("country"), country},
            {QStringLiteral("role"), role},     {QStringLiteral("title"), title},
            {QStringLiteral("detail"), detail}, {QStringLiteral("last"), last}};
}

} // namespace

CircuitsModel::CircuitsModel(Session &session, QObject *parent)
    : QAbstractListModel(parent), m_session(session), m_shown(session.now().circuits)
{
    QObject::connect(&session, &Session::changed, this, &CircuitsModel::update);
}

QString CircuitsModel::computer() const
{
    return SessionTexts::translated(m_session.profile().computer);
}

void CircuitsModel::update()
{
    if (m_shown != circuits()) {
        beginResetModel();
        m_shown = circuits();
        endResetModel();
    }
    Q_EMIT changed();
}

int CircuitsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

QVariant CircuitsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const CircuitInfo &circuit = m_shown[static_cast<size_t>(index.row())];
    switch (role) {
    case IdRole:
        return circuit.id;
    case TitleRole:
    case Qt::DisplayRole:
        return tr("Circuit %1").arg(circuit.id);
    case DetailRole: {
        QStringList names;
        for (const RelayInfo &hop : circuit.hops)
            names << (hop.country ? countryName(hop) : hop.nickname);
        QString text = names.join(QStringLiteral(" → "));
        if (circuit.roundTrip)
            text += QStringLiteral("  ·  ") + milliseconds(*circuit.roundTrip);
        return text;
    }
    case ColorRole:
        return paletteColor(static_cast<size_t>(index.row()));
    case FollowedRole:
        return circuit.id == m_followed;
    default:
        return {};
    }
}

QHash<int, QByteArray> CircuitsModel::roleNames() const
{
    return {{IdRole, "circuitId"}, {TitleRole, "title"}, {DetailRole, "detail"},
            {ColorRole, "tint"}, {FollowedRole, "isFollowed"}};
}

QString CircuitsModel::subtitle() const
{
    if (!connected())
        return tr("Not connected");
    const auto count = static_cast<int>(circuits().size());
    const QString paths = count == 1 ? tr("1 active path") : tr("%1 active paths").arg(count);
    return paths + tr(" · click a relay or site to follow it");
}

QString CircuitsModel::optimizeText() const
{
    return SessionTexts::translated(m_session.now().optimizeStatus.value_or(QString()));
}

const CircuitInfo *CircuitsModel::followedCircuit() const
{
    const auto found = std::find_if(circuits().begin(), circuits().end(),
                                    [this](const CircuitInfo &c) { return c.id == m_followed; });
    return found == circuits().end() ? nullptr : &*found;
}

QString CircuitsModel::followed() const
{
    return followedCircuit() ? m_followed : QString();
}

int CircuitsModel::followedRow() const
{
    const CircuitInfo *circuit = followedCircuit();
    return circuit ? static_cast<int>(circuit - circuits().data()) : -1;
}

void CircuitsModel::follow(const QString &id)
{
    if (id == m_followed)
        return;
    m_followed = id;
    if (!m_shown.empty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {FollowedRole});
    Q_EMIT changed();
}

QString CircuitsModel::purpose() const
{
    const CircuitInfo *circuit = followedCircuit();
    if (!circuit)
        return {};
    QStringList facts;
    if (circuit->roundTrip)
        facts << tr("Round trip: %1").arg(milliseconds(*circuit->roundTrip));
    if (circuit->purpose == QLatin1String("CONFLUX"))
        facts << tr("One of several linked legs to the same exit");
    return facts.join(u'\n');
}

QVariantList CircuitsModel::steps() const
{
    const CircuitInfo *circuit = followedCircuit();
    if (!circuit)
        return {};
    QVariantList path{step(QStringLiteral("laptopcomputer"), {}, {}, computer(),
                           tr("Only the entry sees your IP"), false)};
    const bool throughBridge = m_session.now().activeBridge
        && *m_session.now().activeBridge != BridgeChoice::off;
    const size_t hops = circuit->hops.size();
    for (size_t i = 0; i < hops; ++i) {
        const RelayInfo &hop = circuit->hops[i];
        QString role = tr("Middle");
        if (i == 0)
            role = throughBridge ? tr("Bridge") : tr("Entry");
        else if (i + 1 == hops)
            role = tr("Exit");
        path << step({}, hop.country.value_or(QString()), role, hop.nickname, relayDetail(hop),
                     i + 1 == hops && circuit->sites.isEmpty());
    }
    if (!circuit->sites.isEmpty()) {
        const qsizetype shown = CircuitGraph::shownSites;
        QString sites = circuit->sites.mid(0, shown).join(QStringLiteral(", "));
        if (circuit->sites.size() > shown)
            sites += tr(", +%1 more").arg(circuit->sites.size() - shown);
        path << step(QStringLiteral("globe"), {}, {}, tr("Sites"), sites, true);
    }
    return path;
}

QColor CircuitsModel::paletteColor(std::size_t index)
{
    const CircuitPalette::Color c = CircuitPalette::color(index);
    return QColor::fromRgbF(static_cast<float>(c.red), static_cast<float>(c.green),
                            static_cast<float>(c.blue));
}

} // namespace veldmark
