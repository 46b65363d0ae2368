#include "circuits/SeenStreams.h"

#include "base/ReplyWords.h"
#include "circuits/CircuitParser.h"

#include <optional>
#include <utility>

namespace veldmark {

namespace {

constexpr QStringView begin = u"650 STREAM ";

// Absent for any text but a number of Tor's.
std::optional<quint64> number(QStringView text)
{
    bool valid = false;
    const quint64 value = text.toULongLong(&valid);
    return valid && text.front().isDigit() ? std::optional(value) : std::nullopt;
}

} // namespace

void SeenStreams::take(QStringView line, const ApplicationAt &applicationAt)
{
    if (!line.startsWith(begin))
        return;
    QStringView rest = line.sliced(begin.size());
    const auto id = number(ReplyWords::next(rest));
    const QStringView status = ReplyWords::next(rest);
    const QStringView circuit = ReplyWords::next(rest);
    const QStringView target = ReplyWords::next(rest);
    if (!id || target.isEmpty())
        return;
    if (status == u"NEW" || status == u"NEWRESOLVE") {
        // The words before a SOCKS user name, which a program chooses, are Tor's own.
        if (ReplyWords::value(rest, u"PURPOSE") != QLatin1String("USER"))
            return;
        const QString source = ReplyWords::value(rest, u"SOURCE_ADDR").value_or(QString());
        m_closed.erase(*id);
        m_open[*id] = {CircuitParser::host(target), CircuitParser::host(source), {}, {}};
        if (m_open.size() > mostOpen)
            m_open.erase(m_open.begin());
    }
    const auto known = m_open.find(*id);
    if (known == m_open.end())
        return;
    Stream &stream = known->second;
    if (circuit != u"0")
        stream.circuitID = circuit.toString();
    if (stream.application.isEmpty())
        stream.application = applicationAt(stream.source);
    if (status != u"CLOSED")
        return;
    if (!stream.circuitID.isEmpty())
        m_closed.insert_or_assign(*id, std::move(stream));
    m_open.erase(known);
    if (m_closed.size() > mostClosed)
        m_closed.erase(m_closed.begin());
}

void SeenStreams::name(const ApplicationAt &applicationAt)
{
    for (Streams *streams : {&m_closed, &m_open}) {
        for (auto &[id, stream] : *streams) {
            if (stream.application.isEmpty())
                stream.application = applicationAt(stream.source);
        }
    }
}

const SeenStreams::Stream *SeenStreams::find(QStringView id) const
{
    const auto wanted = number(id);
    if (!wanted)
        return nullptr;
    for (const Streams *streams : {&m_open, &m_closed}) {
        if (const auto found = streams->find(*wanted); found != streams->end())
            return &found->second;
    }
    return nullptr;
}

void SeenStreams::visit(const std::function<void(const Stream &)> &visit) const
{
    for (const Streams *streams : {&m_closed, &m_open}) {
        for (const auto &[id, stream] : *streams)
            visit(stream);
    }
}

} // namespace veldmark
