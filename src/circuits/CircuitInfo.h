#pragma once

#include <QDateTime>
#include <QHash>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>
#include <vector>

// The room of Tor's circuits: these records, CircuitParser, which makes them from Tor's replies,
// SeenStreams, which remembers who asked for a site, CircuitTable, which joins one refresh into a
// list, and CircuitGraph with GraphLayout, which lay the list out as a graph. Everything here is a
// value or a pure function; nothing connects to Tor.
namespace veldmark {

// One relay on a circuit's path.
struct RelayInfo {
    QString fingerprint;       // upper-case hexadecimal without "$"
    QString nickname;          // the first eight characters of the fingerprint when Tor gives none
    std::optional<QString> ip; // absent until resolved, and when Tor knows none
    std::optional<QString> country; // two letters as Tor writes them, lower case

    friend bool operator==(const RelayInfo &, const RelayInfo &) = default;

    // Keys are the field names; an absent field is null.
    QJsonObject toJson() const;
};

size_t qHash(const RelayInfo &relay, size_t seed = 0);

// One built circuit.
struct CircuitInfo {
    QString id; // Tor's circuit number, as text
    // the guard or bridge first, the exit last; never empty when parsed
    std::vector<RelayInfo> hops;
    QString purpose; // "GENERAL", "CONFLUX" for a linked leg of a conflux set, or Tor's own word
    std::optional<QDateTime> created; // UTC, milliseconds
    QStringList sites;                // host names and addresses seen on this circuit, each once
    // site → the applications that asked for it, each once. A site is left out while no application
    // is known for it.
    QHash<QString, QStringList> askers;

    // Further facts from Tor.
    QString confluxID; // equal for the legs of one conflux set; empty on other circuits
    std::optional<std::chrono::microseconds> roundTrip; // measured by Tor on conflux legs
    // The onion service that this user's circuit leads to, "….onion"; empty on other circuits. The
    // circuit's last relay is the rendezvous point, not an exit.
    QString onionService;
    bool isOneHopTunnel = false; // a directory fetch, not a path for the user's traffic
    bool isInternal = false;     // for Tor's own purposes; does not leave through an exit

    friend bool operator==(const CircuitInfo &, const CircuitInfo &) = default;

    // Keys id, hops, purpose, created (ISO 8601 in UTC with milliseconds, or null), sites. "rtt" in
    // microseconds only when Tor has measured it, "askedBy" only when an application is known.
    QJsonObject toJson() const;
};

size_t qHash(const CircuitInfo &circuit, size_t seed = 0);

} // namespace veldmark
