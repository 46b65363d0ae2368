// Circuit and stream lines, as a table and as a picture. The lines of streams follow an empty line,
// and after another one Tor's events about streams.
#include "fuzz/Require.h"

#include "circuits/CircuitGraph.h"
#include "circuits/CircuitTable.h"
#include "circuits/GraphLayout.h"

using namespace veldmark;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = textOf(data, size);
    const QStringList blocks = text.split(QStringLiteral("\n\n"));
    const QStringList circuitLines = blocks.constFirst().split(u'\n');
    const QStringList streamLines = blocks.value(1).split(u'\n');

    SeenStreams seen;
    for (const QString &event : blocks.value(2).split(u'\n'))
        seen.take(event, [](const QString &address) { return address; });
    SiteHistory history;
    const RelayCache cache;
    const CircuitTable table = CircuitTable::assemble(circuitLines, streamLines, history, cache,
                                                      seen);
    REQUIRE(table.circuits.size() <= static_cast<std::size_t>(circuitLines.size()));
    QSet<QString> ids;
    for (const CircuitInfo &circuit : table.circuits) {
        REQUIRE(!ids.contains(circuit.id) && !circuit.hops.empty());
        ids.insert(circuit.id);
        REQUIRE(QSet<QString>(circuit.sites.begin(), circuit.sites.end()).size()
                == circuit.sites.size());
        for (auto asker = circuit.askers.begin(); asker != circuit.askers.end(); ++asker)
            REQUIRE(circuit.sites.contains(asker.key()) && !asker->isEmpty());
        circuit.toJson();
    }
    for (auto known = history.keyBegin(); known != history.keyEnd(); ++known)
        REQUIRE(ids.contains(*known));
    for (const RelayInfo &relay : table.unresolved)
        REQUIRE(isPrintableWord(relay.fingerprint)); // it becomes a part of a command
    // Another refresh with the same lines changes nothing.
    REQUIRE(CircuitTable::assemble(circuitLines, streamLines, history, cache, seen).circuits
            == table.circuits);

    const CircuitGraph graph = CircuitGraph::build(table.circuits);
    const GraphLayout layout(graph, QSizeF(800, 400));
    QHash<QString, int> columns;
    for (const CircuitGraph::Node &node : graph.nodes) {
        REQUIRE(!columns.contains(node.id));
        columns.insert(node.id, node.column);
        const QPointF place = layout.positions.value(node.id, QPointF(-1, -1));
        REQUIRE(place.x() >= 0 && place.x() <= 800 && place.y() >= 0 && place.y() <= 400);
    }
    for (const CircuitGraph::Edge &edge : graph.edges) {
        REQUIRE(columns.contains(edge.from) && columns.contains(edge.to));
        REQUIRE(columns.value(edge.from) <= columns.value(edge.to) && edge.from != edge.to);
    }
    return 0;
}
