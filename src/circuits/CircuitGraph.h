#pragma once

#include "circuits/CircuitInfo.h"

namespace veldmark {

// The circuits as a graph, from left to right: this computer (column 0), entry, middle and exit
// relays (1 to 3), sites (4), and one path of edges per circuit.
//
// Every edge of a circuit with up to three hops leads to a higher column: a relay that is the
// middle of one circuit and the exit of another has a node in both columns. The second of two hops
// is the exit (column 3). A single hop is the entry, with its sites attached to it. With more than
// three hops, all between the first and the last are in column 2. A circuit without hops is left
// out.
struct CircuitGraph {
    enum class Kind { mac, relay, site, more };

    struct Node {
        QString id; // unique in the graph
        int column = 0;
        Kind kind = Kind::mac;
        std::optional<RelayInfo> relay; // of relay nodes
        QString label;                  // the relay's nickname, the site's name, "+2 more"
        QStringList circuitIDs;         // the circuits through this node, in order, each once
        friend bool operator==(const Node &, const Node &) = default;
    };

    struct Edge {
        QString id;   // "circuit|from|to"
        QString from; // node ids
        QString to;
        QString circuitID;
        friend bool operator==(const Edge &, const Edge &) = default;
    };

    // The number of sites shown per circuit; one `more` node stands for the rest.
    static constexpr qsizetype shownSites = 3;

    std::vector<Node> nodes; // in the order in which they first appear
    std::vector<Edge> edges;

    friend bool operator==(const CircuitGraph &, const CircuitGraph &) = default;

    // `computerLabel` is the system's word for the computer ("This Mac", "This computer").
    static CircuitGraph build(const std::vector<CircuitInfo> &circuits,
                              const QString &computerLabel = QStringLiteral("This Mac"));

    // The circuit to follow after a click on `node` while `followed` (may be empty) is followed:
    // the next circuit through the node, so that clicks on a shared node cycle. Nothing when no
    // circuit goes through it.
    static std::optional<QString> select(const Node &node, const QString &followed);
};

} // namespace veldmark
