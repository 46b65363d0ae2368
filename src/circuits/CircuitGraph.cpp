#include "circuits/CircuitGraph.h"

#include <algorithm>

namespace veldmark {

namespace {

// Builds one graph; finds existing nodes by their key.
class GraphBuilder {
public:
    explicit GraphBuilder(const QString &computerLabel)
    {
        m_graph.nodes.push_back(
            {QStringLiteral("mac"), 0, CircuitGraph::Kind::mac, std::nullopt, computerLabel, {}});
    }

    void add(const CircuitInfo &circuit)
    {
        if (circuit.hops.empty())
            return;
        m_circuitID = circuit.id;
        m_firstEdge = m_graph.edges.size();
        size_t previous = visit(0);
        for (size_t i = 0; i < circuit.hops.size(); ++i) {
            const int column = i == 0 ? 1 : i + 1 == circuit.hops.size() ? 3 : 2;
            const size_t node = visit(relayNode(circuit.hops[i], column));
            connect(previous, node);
            previous = node;
        }
        const qsizetype shown = std::min(circuit.sites.size(), CircuitGraph::shownSites);
        for (qsizetype i = 0; i < shown; ++i)
            connect(previous, visit(siteNode(circuit.sites[i])));
        if (circuit.sites.size() > shown)
            connect(previous, visit(moreNode(circuit.sites.size() - shown)));
    }

    CircuitGraph take() { return std::move(m_graph); }

private:
    // Fingerprints are upper case; lower-case letters in every other id prevent collisions.
    size_t relayNode(const RelayInfo &relay, int column)
    {
        auto &byColumn = m_relays[column - 1];
        const auto known = byColumn.constFind(relay.fingerprint);
        if (known != byColumn.constEnd())
            return *known;
        bool elsewhere = false;
        for (const auto &others : m_relays)
            elsewhere = elsewhere || others.contains(relay.fingerprint);
        const QString id = elsewhere ? relay.fingerprint + QStringLiteral("-column%1").arg(column)
                                     : relay.fingerprint;
        byColumn.insert(relay.fingerprint, m_graph.nodes.size());
        return append({id, column, CircuitGraph::Kind::relay, relay, relay.nickname, {}});
    }

    size_t siteNode(const QString &site)
    {
        const auto known = m_sites.constFind(site);
        if (known != m_sites.constEnd())
            return *known;
        m_sites.insert(site, m_graph.nodes.size());
        return append(
            {QStringLiteral("site-") + site, 4, CircuitGraph::Kind::site, std::nullopt, site, {}});
    }

    size_t moreNode(qsizetype hidden)
    {
        return append({QStringLiteral("more-") + m_circuitID,
                       4,
                       CircuitGraph::Kind::more,
                       std::nullopt,
                       QStringLiteral("+%1 more").arg(hidden),
                       {}});
    }

    size_t append(CircuitGraph::Node node)
    {
        m_graph.nodes.push_back(std::move(node));
        return m_graph.nodes.size() - 1;
    }

    size_t visit(size_t index)
    {
        QStringList &ids = m_graph.nodes[index].circuitIDs;
        if (ids.isEmpty() || ids.constLast() != m_circuitID)
            ids.append(m_circuitID);
        return index;
    }

    // A path that returns to a relay has each link only once, and none from a node to itself.
    void connect(size_t from, size_t to)
    {
        if (from == to)
            return;
        const QString &fromID = m_graph.nodes[from].id;
        const QString &toID = m_graph.nodes[to].id;
        for (size_t i = m_firstEdge; i < m_graph.edges.size(); ++i) {
            if (m_graph.edges[i].from == fromID && m_graph.edges[i].to == toID)
                return;
        }
        m_graph.edges.push_back(
            {m_circuitID + u'|' + fromID + u'|' + toID, fromID, toID, m_circuitID});
    }

    CircuitGraph m_graph;
    QHash<QString, size_t> m_relays[3]; // by column
    QHash<QString, size_t> m_sites;
    QString m_circuitID;
    size_t m_firstEdge = 0; // of the circuit being added
};

} // namespace

CircuitGraph CircuitGraph::build(const std::vector<CircuitInfo> &circuits,
                                 const QString &computerLabel)
{
    GraphBuilder builder(computerLabel);
    for (const CircuitInfo &circuit : circuits)
        builder.add(circuit);
    return builder.take();
}

std::optional<QString> CircuitGraph::select(const Node &node, const QString &followed)
{
    if (node.circuitIDs.isEmpty())
        return std::nullopt;
    const qsizetype position = node.circuitIDs.indexOf(followed);
    return node.circuitIDs[(position + 1) % node.circuitIDs.size()];
}

} // namespace veldmark
