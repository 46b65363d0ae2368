#include "circuits/CircuitParser.h"

#include "base/ReplyWords.h"

#include <algorithm>
#include <iterator>

namespace veldmark::CircuitParser {

namespace {

constexpr std::size_t usualHops = 3;

// Tor's words. As constants, so that their lengths are not counted for each circuit.
constexpr QStringView built = u"BUILT";
constexpr QStringView oneHopTunnel = u"ONEHOP_TUNNEL";
constexpr QStringView internal = u"IS_INTERNAL";
constexpr QStringView linkedLeg = u"CONFLUX_LINKED";

// Cuts the next piece between any of the separators off `rest`, skipping empty ones; empty at the
// end. Most pieces are short: a call of QStringView::indexOf() for each would cost more.
template <char16_t... separators> QStringView nextPiece(QStringView &rest)
{
    const auto isSeparator = [](QChar c) { return ((c == separators) || ...); };
    const auto begin = std::find_if_not(rest.begin(), rest.end(), isSeparator);
    const auto end = std::find_if(begin, rest.end(), isSeparator);
    rest = QStringView(end, rest.end());
    return QStringView(begin, end);
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

// The text in upper case. Tor writes fingerprints so, and a look is cheaper than a conversion,
// which changes no character before "a".
QString upperCase(QStringView text)
{
    const bool isUpperCase = std::all_of(text.begin(), text.end(),
                                         [](QChar c) { return c < u'a'; });
    return isUpperCase ? text.toString() : text.toString().toUpper();
}

RelayInfo hop(QStringView element)
{
    if (element.startsWith(u'$'))
        element = element.sliced(1);
    QStringView names = element;
    const QStringView fingerprint = nextPiece<u'~', u'='>(names);
    const QStringView nickname = nextPiece<u'~', u'='>(names);
    RelayInfo relay;
    relay.fingerprint = upperCase(fingerprint.isEmpty() ? element : fingerprint);
    relay.nickname = nickname.isEmpty() ? relay.fingerprint.left(8) : nickname.toString();
    return relay;
}

void readBuildFlags(QStringView flags, CircuitInfo &circuit)
{
    while (!flags.isEmpty()) {
        const QStringView flag = nextPiece<u','>(flags);
        if (flag == oneHopTunnel)
            circuit.isOneHopTunnel = true;
        else if (flag == internal)
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
             word = ReplyWords::next(rest)) {
            const auto equals = std::find(word.begin(), word.end(), u'=');
            if (equals != word.end())
                take(QStringView(word.begin(), equals), QStringView(equals + 1, word.end()));
        }
    }

    void fill(CircuitInfo &circuit) const
    {
        if (const auto purpose = value(Purpose)) {
            // Two linked legs carry traffic to one exit; an unlinked one does not yet.
            circuit.purpose = *purpose == linkedLeg ? QStringLiteral("CONFLUX")
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
    static constexpr QStringView keys[] = {u"PURPOSE",    u"TIME_CREATED", u"BUILD_FLAGS",
                                           u"CONFLUX_ID", u"CONFLUX_RTT",  u"REND_QUERY",
                                           u"HS_STATE"};

    void take(QStringView key, QStringView value)
    {
        const auto known = std::find(std::begin(keys), std::end(keys), key);
        if (known == std::end(keys))
            return;
        std::optional<QStringView> &place = m_values[known - std::begin(keys)];
        if (!place)
            place = value;
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
    const QStringView id = nextPiece<u' '>(line);
    if (nextPiece<u' '>(line) != built)
        return std::nullopt;
    QStringView path = nextPiece<u' '>(line);
    if (!path.startsWith(u'$'))
        return std::nullopt;

    CircuitInfo circuit;
    circuit.hops.reserve(usualHops);
    for (QStringView element = nextPiece<u','>(path); !element.isEmpty();
         element = nextPiece<u','>(path))
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
    const QStringView id = nextPiece<u' '>(line);
    nextPiece<u' '>(line); // its status
    const QStringView circuitID = nextPiece<u' '>(line);
    const QStringView target = nextPiece<u' '>(line);
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
            piece = nextPiece<u' '>(rest);
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
        for (QStringView word = nextPiece<u' '>(rest); !word.isEmpty();
             word = nextPiece<u' '>(rest)) {
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
