#pragma once

#include "circuits/CircuitInfo.h"

#include <QStringView>

// Parses the text of Tor's control port into records. Pure functions without state; none fails. A
// malformed or unwanted line gives nothing. Lines come without their terminators.
namespace veldmark::CircuitParser {

// A stream and the circuit that carries it.
struct StreamInfo {
    QString id; // Tor's number
    QString circuitID;
    QString host; // name or address, without the port
    friend bool operator==(const StreamInfo &, const StreamInfo &) = default;
};

// Parses a line of "circuit-status": "ID BUILT $FP~NICK,$FP~NICK… KEY=VALUE…". Only built circuits
// with a path give a record. Its `sites` are empty, and its relays have neither address nor
// country. Values may be quoted; the first of two words with the same key counts.
std::optional<CircuitInfo> circuit(QStringView line);

// Parses a line of "stream-status": "ID STATUS CIRCUIT TARGET KEY=VALUE…". A stream without a
// circuit gives nothing.
std::optional<StreamInfo> stream(QStringView line);

// The host of "host:port" or "[address]:port"; a target without a port is returned unchanged.
QString host(QStringView target);

// The IPv4 address in the router line ("r …") of a "ns/id/FINGERPRINT" block.
std::optional<QString> ipFromNetworkStatus(const QStringList &lines);

// The address (no port, no brackets) of the bridge line that contains `fingerprint` as a separate
// word, in any letter case. Bridges have no network status.
std::optional<QString> ipOfBridge(QStringView fingerprint, const QStringList &bridgeLines);

// The country in a "ip-to-country/ADDRESS" block: two letters. Tor's "??" is no country.
std::optional<QString> country(const QStringList &lines);

// The flag for a two-letter code, as a pair of regional indicator symbols. Empty for any other
// text, so that a view shows its own word for an unknown country.
QString flag(QStringView countryCode);

// Parses "yyyy-MM-ddTHH:mm:ss" in UTC, optionally with a fraction, cut to milliseconds.
std::optional<QDateTime> timeFormatter(QStringView text);

} // namespace veldmark::CircuitParser
