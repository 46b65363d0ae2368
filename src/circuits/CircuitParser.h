#pragma once

#include "circuits/CircuitInfo.h"

#include <QStringView>

// Turns the text of Tor's control port into records. Pure functions: no state, nothing fails; a
// malformed or unwanted line gives nothing. Lines are given without their terminators.
namespace veldmark::CircuitParser {

// A stream and the circuit that carries it.
struct StreamInfo {
    QString circuitID;
    QString host; // name or address, without the port
    friend bool operator==(const StreamInfo &, const StreamInfo &) = default;
};

// A line of "circuit-status": "ID BUILT $FP~NICK,$FP~NICK… KEY=VALUE…". Only built circuits with a
// path give one; `sites` is left empty, and the relays have neither address nor country. Values may
// be quoted; of two words with one key the first counts.
std::optional<CircuitInfo> circuit(QStringView line);

// A line of "stream-status": "ID STATUS CIRCUIT TARGET KEY=VALUE…". A stream that is not attached
// to a circuit gives nothing.
std::optional<StreamInfo> stream(QStringView line);

// The host of "host:port" or "[address]:port"; a target without a port as it is.
QString host(QStringView target);

// The IPv4 address in the router line ("r …") of a "ns/id/FINGERPRINT" block.
std::optional<QString> ipFromNetworkStatus(const QStringList &lines);

// The address (no port, no brackets) of the bridge line that carries `fingerprint` as a word of
// its own, in any letter case. Bridges have no network status.
std::optional<QString> ipOfBridge(QStringView fingerprint, const QStringList &bridgeLines);

// The country in a "ip-to-country/ADDRESS" block: two letters. Tor's "??" is no country.
std::optional<QString> country(const QStringList &lines);

// The flag for a two-letter code, as a pair of regional indicator symbols. Empty for anything
// else, so that a view shows its own word for an unknown country.
QString flag(QStringView countryCode);

// "yyyy-MM-ddTHH:mm:ss" in UTC, optionally with a fraction, of which the milliseconds are kept.
std::optional<QDateTime> timeFormatter(QStringView text);

} // namespace veldmark::CircuitParser
