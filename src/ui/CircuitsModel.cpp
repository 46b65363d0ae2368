#include "ui/CircuitsModel.h"

#include "circuits/CircuitPalette.h"
#include "ui/ApplicationChoices.h"
#include "ui/Wording.h"

#include <QLocale>
#include <QSet>

#include <algorithm>
#include <utility>

using namespace std::chrono_literals;

namespace veldmark {

namespace {

constexpr auto refreshInterval = 3s; // while the list is seen

QString milliseconds(std::chrono::microseconds time)
{
    return QLocale().toString(static_cast<qlonglong>((time.count() + 500) / 1000))
        + QStringLiteral("\u00a0ms");
}

QVariantMap step(const QString &symbol, const QString &country, const QString &role,
                 const QString &title, const QString &detail, const QColor &tint, bool last,
                 const QString &picture = {})
{
    return {{QStringLiteral("symbol"), symbol}, {QStringLiteral("country"), country},
            {QStringLiteral("role"), role},     {QStringLiteral("title"), title},
            {QStringLiteral("detail"), detail}, {QStringLiteral("tint"), tint},
            {QStringLiteral("last"), last},     {QStringLiteral("picture"), picture}};
}

auto rowOf(std::vector<CircuitInfo> &rows, std::size_t from, const QString &id)
{
    return std::find_if(rows.begin() + static_cast<std::ptrdiff_t>(from), rows.end(),
                        [&id](const CircuitInfo &circuit) { return circuit.id == id; });
}

} // namespace

CircuitsModel::CircuitsModel(Session &session, QObject *parent)
    : QAbstractListModel(parent),
      m_session(session),
      m_shown(session.now().circuits)
{
    m_wasConnected = connected();
    m_wasOptimizing = optimizing();
    m_ticks.setInterval(refreshInterval);
    QObject::connect(&m_ticks, &QTimer::timeout, this, &CircuitsModel::refresh);
    QObject::connect(&session, &Session::changed, this, &CircuitsModel::update);
}

QString CircuitsModel::computer() const
{
    return m_session.profile().computer.translated();
}

void CircuitsModel::setSeen(bool seen)
{
    if (m_seen == seen)
        return;
    m_seen = seen;
    if (seen) {
        m_applications.clear();
        m_ticks.start();
        refresh();
    } else {
        m_ticks.stop();
    }
    Q_EMIT changed();
}

void CircuitsModel::refresh()
{
    if (connected())
        m_session.refreshCircuits();
}

void CircuitsModel::update()
{
    if (!connected())
        m_followed.clear(); // the number means another circuit in the next session
    const bool begins = !std::exchange(m_wasConnected, connected()) && connected();
    const bool isOptimized = std::exchange(m_wasOptimizing, optimizing()) && !optimizing();
    showRows();
    Q_EMIT changed();
    if (m_seen && (begins || isOptimized))
        refresh();
}

// Changes the rows one by one into the session's circuits. A reset would lose the scroll position
// and the row with the keyboard focus.
void CircuitsModel::showRows()
{
    const std::vector<CircuitInfo> &next = circuits();
    if (m_shown == next)
        return;
    QSet<QString> kept;
    for (const CircuitInfo &circuit : next)
        kept.insert(circuit.id);
    const auto remove = [this](std::size_t row) {
        beginRemoveRows({}, static_cast<int>(row), static_cast<int>(row));
        m_shown.erase(m_shown.begin() + static_cast<std::ptrdiff_t>(row));
        endRemoveRows();
    };
    for (std::size_t row = m_shown.size(); row-- > 0;)
        if (!kept.contains(m_shown[row].id))
            remove(row);
    for (std::size_t row = 0; row < next.size(); ++row) {
        const int to = static_cast<int>(row);
        const auto place = m_shown.begin() + static_cast<std::ptrdiff_t>(row);
        const auto found = rowOf(m_shown, row, next[row].id);
        if (found == m_shown.end()) {
            beginInsertRows({}, to, to);
            m_shown.insert(place, next[row]);
            endInsertRows();
        } else if (found != place) {
            const int from = static_cast<int>(found - m_shown.begin());
            beginMoveRows({}, from, from, {}, to);
            std::rotate(place, found, found + 1);
            endMoveRows();
        }
        m_shown[row] = next[row];
    }
    while (m_shown.size() > next.size())
        remove(m_shown.size() - 1);
    if (!m_shown.empty()) // a row's colour depends on its position
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

QString CircuitsModel::placeOf(const RelayInfo &relay)
{
    const QString country = relay.country ? relay.country->toUpper() : tr("Unknown");
    if (!relay.country && !relay.ip)
        return country;
    return country + QStringLiteral(" · ") + relay.ip.value_or(tr("Unknown"));
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
            names << (hop.country ? hop.country->toUpper() : hop.nickname);
        QString text = names.join(QStringLiteral(" → "));
        if (circuit.roundTrip)
            text += QStringLiteral("  ·  ") + milliseconds(*circuit.roundTrip);
        QStringList asking;
        for (const QString &site : circuit.sites) {
            for (const QString &id : circuit.askers.value(site)) {
                if (const QString name = application(id).name; !asking.contains(name))
                    asking << name;
            }
        }
        if (!asking.isEmpty())
            text += QStringLiteral("  ·  ") + asking.join(QStringLiteral(", "));
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
    return {{IdRole, "circuitId"},
            {TitleRole, "title"},
            {DetailRole, "detail"},
            {ColorRole, "tint"},
            {FollowedRole, "isFollowed"}};
}

QString CircuitsModel::subtitle() const
{
    if (!connected())
        return tr("Not connected");
    const auto count = static_cast<int>(circuits().size());
    const QString paths = count == 1 ? tr("1 active path") : tr("%n active paths", nullptr, count);
    return paths + tr(" · click a relay or site to follow it");
}

QString CircuitsModel::error() const
{
    return shown(m_session.now().circuitError);
}

QString CircuitsModel::optimizeText() const
{
    return shown(m_session.now().optimizeStatus);
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
    if (!circuit->onionService.isEmpty())
        facts << tr("Leads to an onion service. The last relay is the meeting point.");
    if (circuit->purpose == QLatin1String("CONFLUX"))
        facts << tr("One of several linked legs to the same exit");
    return facts.join(u'\n');
}

QVariantList CircuitsModel::steps() const
{
    const CircuitInfo *circuit = followedCircuit();
    if (!circuit)
        return {};
    const QColor tint = paletteColor(static_cast<size_t>(circuit - circuits().data()));
    QVariantList path{step(QStringLiteral("laptopcomputer"), {}, {}, computer(),
                           tr("Only the entry sees your IP"), tint, false)};
    const bool throughBridge = m_session.now().activeBridge
        && *m_session.now().activeBridge != BridgeChoice::off;
    const size_t hops = circuit->hops.size();
    for (size_t i = 0; i < hops; ++i) {
        const RelayInfo &hop = circuit->hops[i];
        QString role = tr("Middle");
        if (i == 0)
            role = throughBridge ? tr("Bridge") : tr("Entry");
        else if (i + 1 == hops)
            role = circuit->onionService.isEmpty() ? tr("Exit") : tr("Meeting point");
        path << step({}, hop.country.value_or(QString()), role, hop.nickname, placeOf(hop), tint,
                     i + 1 == hops && circuit->sites.isEmpty());
    }
    addSites(path, *circuit, tint);
    return path;
}

void CircuitsModel::addSites(QVariantList &path, const CircuitInfo &circuit,
                             const QColor &tint) const
{
    std::vector<QStringList> askers; // in the order of their first sites
    QHash<QStringList, QStringList> sites;
    for (const QString &site : circuit.sites) {
        const QStringList asking = circuit.askers.value(site);
        if (!sites.contains(asking))
            askers.push_back(asking);
        sites[asking] << site;
    }
    for (const QStringList &asking : askers) {
        const QStringList all = sites.value(asking);
        const qsizetype shown = CircuitGraph::shownSites;
        QString names = all.mid(0, shown).join(QStringLiteral(", "));
        if (all.size() > shown)
            names += tr(", +%1 more").arg(all.size() - shown);
        const QString icon = asking.size() == 1 ? application(asking.constFirst()).icon : QString();
        path << step(QStringLiteral("globe"), {}, askedBy(asking), tr("Sites"), names, tint,
                     asking == askers.back(), ApplicationIcons::url(icon));
    }
}

const InstalledApplication &CircuitsModel::application(const QString &id) const
{
    auto known = m_applications.find(id);
    if (known == m_applications.end())
        known = m_applications.insert(id, m_session.applicationOfIdentity(id));
    return *known;
}

QString CircuitsModel::askedBy(const QStringList &applications) const
{
    QStringList names;
    for (const QString &id : applications)
        names << application(id).name;
    return names.isEmpty() ? QString()
                           : tr("Asked for by %1").arg(names.join(QStringLiteral(", ")));
}

QColor CircuitsModel::paletteColor(std::size_t index)
{
    const CircuitPalette::Color c = CircuitPalette::color(index);
    return QColor::fromRgbF(static_cast<float>(c.red), static_cast<float>(c.green),
                            static_cast<float>(c.blue));
}

} // namespace veldmark
