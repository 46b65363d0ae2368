#pragma once

#include "circuits/CircuitInfo.h"

namespace veldmark {

// Circuit id → the sites seen on it since it was first listed, so that a circuit keeps its sites
// after their streams have closed.
using SiteHistory = QHash<QString, QStringList>;
// Fingerprint → what is known about the relay. Only `ip` and `country` are read from it.
using RelayCache = QHash<QString, RelayInfo>;

// One refresh of the circuit list, joined from Tor's two status blocks.
struct CircuitTable {
    // Circuits for the user's traffic, each id once: of purpose "GENERAL" or "CONFLUX", without
    // one-hop directory fetches and Tor's internal ones; and those to the onion services that the
    // user visits. Circuits with a site come first, then the newer before the older; a circuit
    // without a creation time counts as oldest. Equals keep Tor's order.
    std::vector<CircuitInfo> circuits;
    // Relays of these circuits that the cache did not have, each once, in the order of the paths.
    // A relay whose fingerprint is not hexadecimal is left out: it cannot be asked for.
    std::vector<RelayInfo> unresolved;

    // `circuitLines` and `streamLines` are the data blocks "circuit-status" and "stream-status".
    // Drops from `history` what belongs to circuits that are gone, and adds the sites seen now. The
    // legs of one conflux set share their sites: Tor names only one leg as a stream's circuit.
    static CircuitTable assemble(const QStringList &circuitLines, const QStringList &streamLines,
                                 SiteHistory &history, const RelayCache &cache);

    // Gives every hop that `cache` knows its address and country.
    static void fillRelays(std::vector<CircuitInfo> &circuits, const RelayCache &cache);
};

} // namespace veldmark
