#pragma once

#include "circuits/CircuitInfo.h"
#include "circuits/SeenStreams.h"

namespace veldmark {

// The sites seen on a circuit, and who asked for them (CircuitInfo::askers).
struct SiteList {
    QStringList names;
    QHash<QString, QStringList> askers;
};
// Circuit id → the sites seen on it since it was first listed. A circuit keeps its sites after
// their streams have closed.
using SiteHistory = QHash<QString, SiteList>;
// Fingerprint → known facts about the relay. Only `ip` and `country` are used.
using RelayCache = QHash<QString, RelayInfo>;

// One refresh of the circuit list, made from Tor's two status blocks.
struct CircuitTable {
    // Circuits for the user's traffic, each id once: those of purpose "GENERAL" or "CONFLUX"
    // without one-hop directory fetches and Tor's internal circuits, and those to the onion
    // services that the user visits. Circuits with a site come first, then newer before older; a
    // circuit without a creation time counts as oldest. Equal circuits keep Tor's order.
    std::vector<CircuitInfo> circuits;
    // Relays of these circuits that the cache lacks, each once, in the order of the paths. A relay
    // whose fingerprint is not hexadecimal is left out, because Tor cannot be queried for it.
    std::vector<RelayInfo> unresolved;

    // `circuitLines` and `streamLines` are the data blocks "circuit-status" and "stream-status".
    // Removes closed circuits from `history` and adds the sites seen now. The legs of one conflux
    // set share their sites: Tor names only one leg as a stream's circuit. A stream in `seen`
    // counts with the site that it was asked for and with its application, also when it is closed.
    static CircuitTable assemble(const QStringList &circuitLines, const QStringList &streamLines,
                                 SiteHistory &history, const RelayCache &cache,
                                 const SeenStreams &seen = {});

    // Fills in the address and country of every hop that `cache` knows.
    static void fillRelays(std::vector<CircuitInfo> &circuits, const RelayCache &cache);
};

} // namespace veldmark
