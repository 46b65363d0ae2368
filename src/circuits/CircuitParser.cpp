#include "circuits/CircuitParser.h"

#include "base/ReplyWords.h"

#include <algorithm>
#include <iterator>

namespace veldmark::CircuitParser {

namespace {

// Cuts the next piece off `rest`, skipping empty ones; empty at the end.
QStringView nextPiece(QStringView &rest, char16_t separator)
{
    while (!rest.isEmpty() && rest.front() == separator)
        rest = rest.sliced(1);
    const qsizetype end = rest.indexOf(separator);
    const QStringView piece = end < 0 ? rest : rest.first(end);
    rest = rest.sliced(piece.size());
    return piece;
}

bool isAsciiLetter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

// The `count` digits at `from`, or -1. The caller has checked the length.
int digits(QStringView text, qsizetype from, qsizetype count)
{
    int value = 0;
    for (const QChar c : text.sliced(from, count)) {
        if (!isDigit(c))
            return -1;
        value = value * 10 + (c.unicode() - u'0');
    }
    return value;
}

RelayInfo hop(QStringView element)
{
    if (element.startsWith(u'$'))
        element = element.sliced(1);
    QStringView pieces[2];
    qsizetype count = 0;
    for (qsizetype from = 0; from < element.size() && count < 2;) {
        qsizetype end = from;
        while (end < element.size() && element[end] != u'~' && element[end] != u'=')
            ++end;
        if (end > from)
            pieces[count++] = element.sliced(from, end - from);
        from = end + 1;
    }
    RelayInfo relay;
    relay.fingerprint = (count > 0 ? pieces[0] : element).toString().toUpper();
    relay.nickname = count > 1 ? pieces[1].toString() : relay.fingerprint.left(8);
    return relay;
}

void readBuildFlags(QStringView flags, CircuitInfo &circuit)
{
    while (!flags.isEmpty()) {
        const QStringView flag = nextPiece(flags, u',');
        if (flag == u"ONEHOP_TUNNEL")
            circuit.isOneHopTunnel = true;
        else if (flag == u"IS_INTERNAL")
            circuit.isInternal = true;
    }
}

// The values after the path. The first of two words with the same key counts: a SOCKS user name,
// which a program chooses, comes after Tor's own words.
class Fields {
public:
    void read(QStringView rest)
    {
        for (QStringView word = ReplyWords::next(rest); !word.isEmpty();
             word = ReplyWords::next(rest))
            for (std::size_t key = 0; key < std::size(keys); ++key)
                take(key, word);
    }

    void fill(CircuitInfo &circuit) const
    {
        if (const auto purpose = value(Purpose)) {
            // Two linked legs carry traffic to one exit; an unlinked one does not yet.
            circuit.purpose = *purpose == u"CONFLUX_LINKED" ? QStringLiteral("CONFLUX")
                                                            : purpose->toString();
        }
        if (const auto time = value(Created))
            circuit.created = timeFormatter(*time);
        if (const auto flags = value(Flags))
            readBuildFlags(*flags, circuit);
        circuit.confluxID = value(ConfluxID).value_or(QStringView()).toString();
        bool valid = false;
        const qlonglong microseconds = value(RoundTrip).value_or(QStringView()).toLongLong(&valid);
        if (valid && microseconds >= 0)
            circuit.roundTrip = std::chrono::microseconds(microseconds);
        const QStringView service = value(Service).value_or(QStringView());
        if (!service.isEmpty() && circuit.purpose == u"HS_CLIENT_REND"
            && value(ServiceState) == QStringView(u"HSCR_JOINED"))
            circuit.onionService = service.toString() + QStringLiteral(".onion");
    }

private:
    enum Key { Purpose, Created, Flags, ConfluxID, RoundTrip, Service, ServiceState };
    static constexpr QStringView keys[] = {u"PURPOSE=",    u"TIME_CREATED=", u"BUILD_FLAGS=",
                                           u"CONFLUX_ID=", u"CONFLUX_RTT=",  u"REND_QUERY=",
                                           u"HS_STATE="};

    void take(std::size_t key, QStringView word)
    {
        if (!m_values[key] && word.startsWith(keys[key]))
            m_values[key] = word.sliced(keys[key].size());
    }
    std::optional<QStringView> value(Key key) const { return m_values[key]; }

    std::optional<QStringView> m_values[std::size(keys)];
};

bool isIPv4(QStringView text)
{
    int parts = 0;
    while (!text.isEmpty() && parts < 4) {
        const qsizetype dot = text.indexOf(u'.');
        const QStringView part = dot < 0 ? text : text.first(dot);
        if (part.isEmpty() || part.size() > 3 || (part.size() > 1 && part.front() == u'0'))
            return false; // some parsers read a leading zero as octal
        const int value = digits(part, 0, part.size());
        if (value < 0 || value > 255)
            return false;
        ++parts;
        if (dot < 0)
            return parts == 4;
        text = text.sliced(dot + 1);
    }
    return false;
}

// The address part of "ADDRESS:PORT" or "[ADDRESS]:PORT"; empty for any other word, such as a
// transport's name or an argument.
QString addressBeforePort(QStringView word)
{
    const qsizetype colon = word.lastIndexOf(u':');
    if (colon <= 0 || colon + 1 == word.size() || word.contains(u'='))
        return {};
    const QStringView port = word.sliced(colon + 1);
    if (!std::all_of(port.begin(), port.end(), isDigit))
        return {};
    const QStringView address = word.first(colon);
    if (address.startsWith(u'['))
        return address.endsWith(u']') ? address.sliced(1, address.size() - 2).toString()
                                      : QString();
    return address.contains(u':') ? QString() : address.toString();
}

} // namespace

std::optional<CircuitInfo> circuit(QStringView line)
{
    const QStringView id = nextPiece(line, u' ');
    if (nextPiece(line, u' ') != u"BUILT")
        return std::nullopt;
    QStringView path = nextPiece(line, u' ');
    if (!path.startsWith(u'$'))
        return std::nullopt;

    CircuitInfo circuit;
    circuit.hops.reserve(static_cast<size_t>(path.count(u',')) + 1);
    for (QStringView element = nextPiece(path, u','); !element.isEmpty();
         element = nextPiece(path, u','))
        circuit.hops.push_back(hop(element));
    if (circuit.hops.empty())
        return std::nullopt;

    circuit.id = id.toString();
    circuit.purpose = QStringLiteral("GENERAL");
    Fields fields;
    fields.read(line);
    fields.fill(circuit);
    return circuit;
}

std::optional<StreamInfo> stream(QStringView line)
{
    const QStringView id = nextPiece(line, u' ');
    nextPiece(line, u' '); // its status
    const QStringView circuitID = nextPiece(line, u' ');
    const QStringView target = nextPiece(line, u' ');
    if (target.isEmpty() || circuitID == u"0")
        return std::nullopt;
    return StreamInfo{id.toString(), circuitID.toString(), host(target)};
}

QString host(QStringView target)
{
    if (target.startsWith(u'[')) {
        const qsizetype close = target.indexOf(u']');
        if (close > 0)
            return target.sliced(1, close - 1).toString();
    }
    const qsizetype colon = target.lastIndexOf(u':');
    return (colon < 0 ? target : target.first(colon)).toString();
}

std::optional<QString> ipFromNetworkStatus(const QStringList &lines)
{
    for (const QString &line : lines) {
        if (!line.startsWith(u"r "))
            continue;
        QStringView rest = line;
        QStringView piece;
        for (int i = 0; i < 7; ++i)
            piece = nextPiece(rest, u' ');
        // The address goes into the next command to Tor, so no other text may pass.
        return isIPv4(piece) ? std::optional(piece.toString()) : std::nullopt;
    }
    return std::nullopt;
}

std::optional<QString> ipOfBridge(QStringView fingerprint, const QStringList &bridgeLines)
{
    if (fingerprint.isEmpty())
        return std::nullopt;
    for (const QString &line : bridgeLines) {
        QStringView rest = line;
        QString address;
        bool found = false;
        for (QStringView word = nextPiece(rest, u' '); !word.isEmpty();
             word = nextPiece(rest, u' ')) {
            const QStringView name = word.startsWith(u'$') ? word.sliced(1) : word;
            if (name.compare(fingerprint, Qt::CaseInsensitive) == 0)
                found = true;
            else if (address.isEmpty())
                address = addressBeforePort(word);
        }
        if (found)
            return address.isEmpty() ? std::nullopt : std::optional(address);
    }
    return std::nullopt;
}

std::optional<QString> country(const QStringList &lines)
{
    if (lines.isEmpty())
        return std::nullopt;
    const QString code = lines.constFirst().trimmed();
    if (code.size() != 2 || !std::all_of(code.begin(), code.end(), isAsciiLetter))
        return std::nullopt;
    return code;
}

QString flag(QStringView countryCode)
{
    if (countryCode.size() != 2
        || !std::all_of(countryCode.begin(), countryCode.end(), isAsciiLetter))
        return {};
    constexpr char32_t regionalIndicatorA = 0x1F1E6;
    char32_t symbols[2];
    for (qsizetype i = 0; i < 2; ++i)
        symbols[i] = regionalIndicatorA + countryCode[i].toUpper().unicode() - u'A';
    return QString::fromUcs4(symbols, 2);
}

std::optional<QDateTime> timeFormatter(QStringView text)
{
    constexpr qsizetype wholeSeconds = 19; // yyyy-MM-ddTHH:mm:ss
    if (text.size() < wholeSeconds || text[4] != u'-' || text[7] != u'-' || text[10] != u'T'
        || text[13] != u':' || text[16] != u':')
        return std::nullopt;
    int milliseconds = 0;
    if (text.size() > wholeSeconds) {
        const QStringView fraction = text.sliced(wholeSeconds + 1);
        if (text[wholeSeconds] != u'.' || fraction.isEmpty()
            || !std::all_of(fraction.begin(), fraction.end(), isDigit))
            return std::nullopt;
        int unit = 100;
        for (const QChar c : fraction.first(std::min<qsizetype>(fraction.size(), 3))) {
            milliseconds += unit * (c.unicode() - u'0');
            unit /= 10;
        }
    }
    // -1, from a text that is not a number, makes the date or time invalid; but the year -1 exists.
    const int year = digits(text, 0, 4);
    const QDate date(year, digits(text, 5, 2), digits(text, 8, 2));
    const QTime time(digits(text, 11, 2), digits(text, 14, 2), digits(text, 17, 2), milliseconds);
    if (year < 1 || !date.isValid() || !time.isValid())
        return std::nullopt;
    return QDateTime(date, time, Qt::UTC);
}

} // namespace veldmark::CircuitParser
