#include "circuits/CircuitTable.h"

#include "circuits/CircuitParser.h"

#include <QSet>

#include <algorithm>

namespace veldmark {

namespace {

// Internal circuits are Tor's own, except those to the onion services that the user visits.
bool carriesUserTraffic(const CircuitInfo &circuit)
{
    if (!circuit.onionService.isEmpty())
        return true;
    return !circuit.isOneHopTunnel && !circuit.isInternal
        && (circuit.purpose == u"GENERAL" || circuit.purpose == u"CONFLUX");
}

std::vector<CircuitInfo> keptCircuits(const QStringList &lines)
{
    std::vector<CircuitInfo> kept;
    QSet<QString> ids;
    for (const QString &line : lines) {
        std::optional<CircuitInfo> circuit = CircuitParser::circuit(line);
        if (!circuit || !carriesUserTraffic(*circuit) || ids.contains(circuit->id))
            continue;
        ids.insert(circuit->id);
        kept.push_back(std::move(*circuit));
    }
    return kept;
}

// The key of a shared list of sites: a whole conflux set, or a single circuit. Circuit numbers are
// digits without blanks, so the two kinds cannot collide.
QString sharingKey(const CircuitInfo &circuit)
{
    return circuit.confluxID.isEmpty() ? circuit.id : QStringLiteral("set ") + circuit.confluxID;
}

// An ordered list of sites without duplicates. A busy circuit may have thousands, hence the set.
struct Sites {
    SiteList list;
    QSet<QString> known;

    void add(const QString &site, const QString &application = {})
    {
        if (site.isEmpty())
            return;
        if (!known.contains(site)) {
            known.insert(site);
            list.names.append(site);
        }
        if (application.isEmpty())
            return;
        if (QStringList &askers = list.askers[site]; !askers.contains(application))
            askers.append(application);
    }
    void add(const SiteList &former)
    {
        for (const QString &site : former.names) {
            add(site);
            for (const QString &application : former.askers.value(site))
                add(site, application);
        }
    }
};

void joinSites(std::vector<CircuitInfo> &circuits, const QStringList &streamLines,
               SiteHistory &history, const SeenStreams &seen)
{
    QHash<QString, QString> keys; // circuit id → sharing key
    QHash<QString, Sites> sites;  // sharing key → sites
    for (const CircuitInfo &circuit : circuits) {
        const QString key = sharingKey(circuit);
        keys.insert(circuit.id, key);
        Sites &shared = sites[key];
        shared.add(circuit.onionService);
        shared.add(history.value(circuit.id));
    }
    for (const QString &line : streamLines) {
        const auto stream = CircuitParser::stream(line);
        if (!stream)
            continue;
        const auto key = keys.constFind(stream->circuitID);
        if (key == keys.constEnd())
            continue;
        if (const SeenStreams::Stream *known = seen.find(stream->id))
            sites[*key].add(known->site, known->application);
        else
            sites[*key].add(stream->host);
    }
    seen.visit([&keys, &sites](const SeenStreams::Stream &stream) {
        const auto key = keys.constFind(stream.circuitID);
        if (key != keys.constEnd())
            sites[*key].add(stream.site, stream.application);
    });
    history.clear();
    for (CircuitInfo &circuit : circuits) {
        const SiteList list = sites.value(keys.value(circuit.id)).list;
        circuit.sites = list.names;
        circuit.askers = list.askers;
        if (!circuit.sites.isEmpty())
            history.insert(circuit.id, list);
    }
}

bool isHexadecimal(const QString &text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar c) {
        return (c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'F');
    });
}

std::vector<RelayInfo> missingRelays(const std::vector<CircuitInfo> &circuits,
                                     const RelayCache &cache)
{
    std::vector<RelayInfo> missing;
    QSet<QString> seen;
    for (const CircuitInfo &circuit : circuits) {
        for (const RelayInfo &hop : circuit.hops) {
            if (cache.contains(hop.fingerprint) || seen.contains(hop.fingerprint)
                || !isHexadecimal(hop.fingerprint))
                continue;
            seen.insert(hop.fingerprint);
            missing.push_back(hop);
        }
    }
    return missing;
}

bool comesBefore(const CircuitInfo &left, const CircuitInfo &right)
{
    if (left.sites.isEmpty() != right.sites.isEmpty())
        return right.sites.isEmpty();
    if (!left.created || !right.created)
        return left.created && !right.created;
    return *left.created > *right.created;
}

} // namespace

CircuitTable CircuitTable::assemble(const QStringList &circuitLines, const QStringList &streamLines,
                                    SiteHistory &history, const RelayCache &cache,
                                    const SeenStreams &seen)
{
    CircuitTable table;
    table.circuits = keptCircuits(circuitLines);
    joinSites(table.circuits, streamLines, history, seen);
    fillRelays(table.circuits, cache);
    table.unresolved = missingRelays(table.circuits, cache);
    std::stable_sort(table.circuits.begin(), table.circuits.end(), comesBefore);
    return table;
}

void CircuitTable::fillRelays(std::vector<CircuitInfo> &circuits, const RelayCache &cache)
{
    for (CircuitInfo &circuit : circuits) {
        for (RelayInfo &hop : circuit.hops) {
            const auto known = cache.constFind(hop.fingerprint);
            if (known == cache.constEnd())
                continue;
            hop.ip = known->ip;
            hop.country = known->country;
        }
    }
}

} // namespace veldmark
