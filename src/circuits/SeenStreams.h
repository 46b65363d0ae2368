#pragma once

#include <QString>
#include <QStringView>

#include <cstddef>
#include <functional>
#include <map>

namespace veldmark {

// The streams whose begin Tor's events (STREAM) have told of: the site that each was asked for, and
// the application that asked. Tor's list of streams has neither: it tells no source, and once a
// stream is connected, its site's address alone. Pure; a value. Tor's numbers of streams are never
// used again before Tor ends.
class SeenStreams {
public:
    struct Stream {
        QString site;        // the first target, without the port
        QString source;      // the address that it came from, without the port
        QString application; // empty as long as it is not known
        QString circuitID;   // the last one; empty before the first
    };
    // The application whose connections come from an address; empty when there is none.
    using ApplicationAt = std::function<QString(const QString &address)>;

    // The limits. Beyond them the oldest is forgotten. Closed streams are kept, since a short one
    // may begin and end between two looks at the circuits.
    static constexpr std::size_t mostOpen = 10'000;
    static constexpr std::size_t mostClosed = 2'000;

    // Takes a line that Tor has sent: "650 STREAM ID STATUS CIRCUIT TARGET KEY=VALUE…". Ignores any
    // other line, streams of Tor's own, and streams whose begin was not seen.
    void take(QStringView line, const ApplicationAt &applicationAt);
    // Looks again for the applications that are not known yet.
    void name(const ApplicationAt &applicationAt);

    // The stream with Tor's number; null when its begin was not seen.
    const Stream *find(QStringView id) const;
    // Calls `visit` for each stream: the closed ones first, and the older before the newer.
    void visit(const std::function<void(const Stream &)> &visit) const;
    std::size_t size() const { return m_open.size() + m_closed.size(); }

private:
    using Streams = std::map<quint64, Stream>; // by Tor's number, which grows

    Streams m_open;
    Streams m_closed;
};

} // namespace veldmark
