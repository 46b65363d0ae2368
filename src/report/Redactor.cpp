#include "report/Redactor.h"

#include "bridges/BridgeLines.h"
#include "report/KnownSecrets.h"
#include "report/SecretPatterns.h"

#include <QUrl>

#include <algorithm>
#include <optional>

namespace veldmark {

namespace {

using Kind = StandIns::Kind;

constexpr auto withoutCase = QRegularExpression::CaseInsensitiveOption
    | QRegularExpression::UseUnicodePropertiesOption;

// Parts of patterns.
const QString dot = QStringLiteral(R"((?:\.|%2[Ee]|\[\.\]|\(\.\)|\x{3002}))");
const QString quad = QStringLiteral("(?:[0-9]{1,3}%1){3}[0-9]{1,3}").arg(dot);
const QString endpoint
    = QStringLiteral(R"((?:%1|\[[0-9a-f:.]+(?:%[^\]\s]+)?\]):[0-9]{1,5})").arg(quad);
const QString hex40 = QStringLiteral(R"(\$?(?<![0-9a-f])[0-9a-f]{40}(?![0-9a-f]))");
const QString argument = QStringLiteral(R"([\w-]+=[^\s"'<>]*)");
const QString transport = QStringLiteral(
    R"((?:obfs[2-5]|meek(?:_lite|-azure)?|snowflake|webtunnel|scramblesuit|conjure|dnstt|fte|vanilla))");

// Letters that a link writes as "%2F". Others than printable ASCII stay as they are.
QString withoutPercents(QString text)
{
    static const QRegularExpression letter(QStringLiteral("%([2-7][0-9A-Fa-f])"));
    for (qsizetype at = text.indexOf(letter); at >= 0; at = text.indexOf(letter, at + 1)) {
        const QChar c(text.mid(at + 1, 2).toUShort(nullptr, 16));
        if (c != QChar(0x7f))
            text.replace(at, 3, c);
    }
    return text;
}

// The text without what would hide a secret from the patterns: other ways to write the same
// letters, letters without a width, a terminal's colours, and the stand-ins' own characters.
QString plainText(QString text)
{
    text = withoutPercents(withoutPercents(text));
    static const QRegularExpression colours(QStringLiteral("\\x1b\\[[0-9;?]*[ -/]*[@-~]"));
    text.remove(colours);
    text.removeIf([](QChar c) {
        const auto category = c.category();
        return category == QChar::Other_Format
            || (category == QChar::Other_Control && c != u'\n' && c != u'\t');
    });
    text = text.normalized(QString::NormalizationForm_KC);
    for (QChar &c : text) {
        if (StandIns::isStandIn(c))
            c = QChar::ReplacementCharacter;
    }
    return text;
}

// Absent when a pattern fails on the text.
std::optional<QString> replaced(
    const QString &text, const QRegularExpression &pattern,
    const std::function<QString(const QRegularExpressionMatch &)> &replacement)
{
    QString result;
    qsizetype from = 0;
    while (from < text.size()) {
        const auto match = pattern.match(text, from);
        if (!match.isValid())
            return std::nullopt;
        if (!match.hasMatch())
            break;
        result += QStringView(text).mid(from, match.capturedStart() - from);
        result += replacement(match);
        from = std::max(match.capturedEnd(), from + 1);
    }
    return result += QStringView(text).mid(from);
}

} // namespace

Redactor::Redactor(const KnownSecrets &known)
{
    for (const QString &line : known.bridgeLines)
        knowBridge(plainText(line));
    if (known.home.size() > 1)
        knowPath(known.home, Kind::ownHome);
    for (const QString &home : known.homes)
        knowPath(home, Kind::home);
    for (const QString &path : known.paths)
        knowPath(path, Kind::path);
    for (const QString &name : known.names)
        knowName(plainText(name));
    std::stable_sort(
        m_known.begin(), m_known.end(),
        [](const KnownSecret &a, const KnownSecret &b) { return a.length > b.length; });
    addPatterns();
}

QString Redactor::redacted(const QString &text)
{
    QStringList lines = plainText(text).split(u'\n');
    for (QString &line : lines) {
        line = line.size() > longestLine
            ? QStringLiteral("(a line of %1 characters is left out)").arg(line.size())
            : redactedLine(line);
    }
    return m_standIns.expanded(lines.join(u'\n'));
}

QString Redactor::redactedLine(QString line) const
{
    const auto apply = [&line](const Rule &rule) {
        const auto next = replaced(line, rule.pattern, rule.replacement);
        line = next.value_or(QStringLiteral("(a line is left out)"));
        return next.has_value();
    };
    for (const KnownSecret &known : m_known) {
        if (!apply(known.rule))
            return line;
    }
    for (const Rule &rule : m_rules) {
        if (!apply(rule))
            return line;
    }
    return line;
}

void Redactor::know(const QString &value, QChar standIn, bool isWord)
{
    QString pattern = QRegularExpression::escape(value.simplified());
    pattern.replace(QStringLiteral("\\ "), QStringLiteral("\\s+"));
    if (isWord)
        pattern = QStringLiteral(R"((?<![\p{L}\p{N}])%1(?![\p{L}\p{N}]))").arg(pattern);
    m_known.push_back({value.size(),
                       {QRegularExpression(pattern, withoutCase),
                        [standIn](const QRegularExpressionMatch &) { return QString(standIn); }}});
}

void Redactor::extendLast(const QString &pattern)
{
    QRegularExpression &last = m_known.back().rule.pattern;
    last.setPattern(last.pattern() + pattern);
}

// The line, and each part of it by which a log may name the bridge.
void Redactor::knowBridge(const QString &line)
{
    const QString bridge = BridgeLines::normalised(line);
    if (bridge.isEmpty())
        return;
    const QChar standIn = m_standIns.of(Kind::bridge, bridge.toLower());
    if (bridge.size() > 6)
        know(bridge, standIn, false);
    static const QRegularExpression fingerprint(QStringLiteral("^\\$?[0-9A-Fa-f]{40}$"));
    static const QRegularExpression whole(QStringLiteral("^(?:%1)$").arg(transport), withoutCase);
    if (const auto address = BridgeLines::address(bridge)) {
        const auto number = SecretPatterns::ipv6(address->host);
        m_standIns.alias(Kind::address,
                         number ? number->value
                                : SecretPatterns::ipv4(address->host).value_or(address->host),
                         standIn);
    }
    for (const QString &word : bridge.split(u' ')) {
        if (fingerprint.match(word).hasMatch()) {
            m_standIns.alias(Kind::fingerprint, word.right(40).toLower(), standIn);
            continue;
        }
        const qsizetype sign = word.indexOf(u'=');
        const QString key = word.left(sign);
        if (sign < 0 || key == QLatin1String("iat-mode") || key.startsWith(QLatin1String("utls")))
            continue;
        // "fronts" and "ice" have lists.
        for (const QString &value : word.mid(sign + 1).split(u',')) {
            if (value.size() < 4)
                continue;
            know(value, standIn, false);
            extendLast(QStringLiteral(R"([^\s"'<>,]*)"));
            if (const QString host = QUrl(value).host(); host.size() >= 4)
                know(host, standIn, true);
        }
    }
}

void Redactor::knowName(const QString &name)
{
    static const QRegularExpression number(QStringLiteral("^[0-9]*$"));
    if (!KnownSecrets::isOrdinary(name) && !number.match(name).hasMatch())
        know(name, m_standIns.of(Kind::name, name.toLower()), true);
}

void Redactor::knowPath(const QString &path, Kind kind)
{
    const QString plain = plainText(path);
    if (plain.size() < 3)
        return;
    const QChar standIn = m_standIns.of(kind, plain);
    const QString encoded = QString::fromLatin1(QUrl::toPercentEncoding(path, "/"));
    for (const QString &form : {plain, encoded}) {
        know(form, standIn, false);
        extendLast(QStringLiteral(R"((?![\p{L}\p{N}_-]))")); // another name may begin like it
    }
}

void Redactor::add(const QString &pattern, Judge replacement)
{
    m_rules.push_back({QRegularExpression(pattern, withoutCase), std::move(replacement)});
}

void Redactor::add(const QString &pattern, Kind kind)
{
    add(pattern, [this, kind](const QRegularExpressionMatch &match) {
        return QString(m_standIns.of(kind, match.captured().toLower()));
    });
}

QString Redactor::bridgeOf(const QString &line)
{
    static const QRegularExpression host(QStringLiteral("(?:%1)").arg(endpoint), withoutCase);
    const QString bridge = BridgeLines::normalised(line).toLower();
    const auto address = BridgeLines::address(host.match(line).captured());
    const auto number = address ? SecretPatterns::ipv6(address->host) : std::nullopt;
    const auto value = number ? std::optional(number->value)
        : address             ? SecretPatterns::ipv4(address->host)
                              : std::nullopt;
    const QChar own = m_standIns.of(Kind::bridge, bridge);
    if (!value)
        return own;
    m_standIns.alias(Kind::address, *value, own);
    const QChar known = m_standIns.of(Kind::address, *value);
    return m_standIns.kindOf(known) == Kind::bridge ? known : own;
}

QString Redactor::tailOfHome(const QRegularExpressionMatch &match)
{
    const QString whole = match.captured();
    const QChar home = whole.front();
    const Kind kind = m_standIns.kindOf(home);
    if ((kind != Kind::ownHome && kind != Kind::home)
        || SecretPatterns::isOwnFile(whole.mid(1).section(u' ', 0, 0)))
        return whole;
    QString tail = whole.mid(2);
    const bool endsSentence = tail.endsWith(u'.');
    if (endsSentence)
        tail.chop(1);
    if (tail.isEmpty())
        return whole;
    return QString(home) + u'/' + m_standIns.of(Kind::path, home + tail)
        + (endsSentence ? QStringLiteral(".") : QString());
}

void Redactor::addPatterns()
{
    const auto standIn = [this](Kind kind, const QString &key) {
        return QString(m_standIns.of(kind, key));
    };

    // Bridge lines: a transport, or an address with a fingerprint or a bridge's arguments.
    const auto bridge = [this](const QRegularExpressionMatch &match) {
        return bridgeOf(match.captured());
    };
    add(QStringLiteral(R"((?:\bbridge\s+)?\b%1\s+%2(?:\s+%3)?(?:\s+%4)*)")
            .arg(transport, endpoint, hex40, argument),
        bridge);
    add(QStringLiteral(
            R"((?:\bbridge\s+)?%1(?:\s+%2(?:\s+%3)*|(?:\s+(?:cert|url|fronts?)=[^\s"'<>]*)(?:\s+%3)*))")
            .arg(endpoint, hex40, argument),
        bridge);

    // Paths in a home: the rest of the path. Without quotes nothing tells where a path with blanks
    // ends, so what follows goes with it.
    add(QStringLiteral(R"(/(?:var/)?(?:home|Users)/[^/\s"'<>:;,]+)"), Kind::home);
    add(QStringLiteral(R"(/(?:run/)?media/[^/\s"'<>:;,]+(?:/[^/\s"'<>:;,]+)?)"), Kind::path);
    add(QStringLiteral(R"((?<=")%1/[^"]*(?="))").arg(StandIns::characterClass()),
        [this](const QRegularExpressionMatch &match) { return tailOfHome(match); });
    add(QStringLiteral(R"((?<=')%1/[^']*(?='))").arg(StandIns::characterClass()),
        [this](const QRegularExpressionMatch &match) { return tailOfHome(match); });
    add(QStringLiteral(R"(%1/(?:(?!%1)(?:[^"'<>:;,]|(?<=\p{L})'(?=\p{L})))*(?<!\s))")
            .arg(StandIns::characterClass()),
        [this](const QRegularExpressionMatch &match) { return tailOfHome(match); });

    // Passwords and keys by the word before them.
    add(QStringLiteral(
            R"re(\b([\w-]*(?:password|passwd|passphrase|pwd|secret|token|cookie|cert|key|hash|psk|ssid|authenticator)["']?\s*[=:]\s*|(?:hashedcontrolpassword|\w*authenticator|(?-i:AUTHENTICATE))\s+)("[^"]*"|'[^']*'|[^\s,;]+))re"),
        [standIn](const QRegularExpressionMatch &match) {
            return match.captured(1) + standIn(Kind::secret, match.captured(2));
        });

    // Links and addresses of mail.
    add(QStringLiteral(R"(\b([a-z][a-z0-9+.-]*://)[^\s"'<>]+)"),
        [standIn](const QRegularExpressionMatch &match) {
            return match.captured(1) + standIn(Kind::link, match.captured());
        });
    add(QStringLiteral(
            R"([^\s@"'<>(),;:/=]+@([\p{L}\p{N}\x{E000}-\x{F8FF}](?:[\p{L}\p{N}\x{E000}-\x{F8FF}._-]*[\p{L}\p{N}\x{E000}-\x{F8FF}])?))"),
        [standIn](const QRegularExpressionMatch &match) {
            return SecretPatterns::isPublicAccount(match.captured())
                ? match.captured()
                : standIn(Kind::name, match.captured().toLower());
        });

    // Relays, with the nickname that Tor adds, and their nicknames alone.
    add(QStringLiteral(R"(\$?(?<![0-9a-f])([0-9a-f]{40})(?![0-9a-f])(?:[~=][A-Za-z0-9]{1,19})?)"),
        [standIn](const QRegularExpressionMatch &match) {
            return standIn(Kind::fingerprint, match.captured(1).toLower());
        });
    add(QStringLiteral(R"((?<![0-9a-f])(?:[0-9a-f]{4}[ :]){9}[0-9a-f]{4}(?![0-9a-f]))"),
        [standIn](const QRegularExpressionMatch &match) {
            return standIn(Kind::fingerprint, match.captured().remove(u' ').remove(u':').toLower());
        });
    add(QStringLiteral(
            R"(\b((?:bridge|router|relay|descriptor|guard|node|nickname|authority|family)\s+["'])([A-Za-z0-9]{1,19})(?=["']))"),
        [standIn](const QRegularExpressionMatch &match) {
            return match.captured(1) + standIn(Kind::name, match.captured(2).toLower());
        });

    add(QStringLiteral(R"((?<=\[)[A-Za-z0-9+/]{43}(?=\]))"), Kind::secret); // a relay's newer key

    // Network cards.
    const auto card = [standIn](const QRegularExpressionMatch &match) {
        static const QRegularExpression other(QStringLiteral("[^0-9a-f]"));
        return standIn(Kind::hardware, match.captured(1).toLower().remove(other));
    };
    add(QStringLiteral(
            R"((?<![0-9a-f:_-])((?:[0-9a-f]{2}[:_-]){5}[0-9a-f]{2})(?![0-9a-f]|[:_-][0-9a-f]))"),
        card);
    add(QStringLiteral(R"((?<![0-9a-f.])((?:[0-9a-f]{4}\.){2}[0-9a-f]{4})(?![0-9a-f.]))"), card);
    add(QStringLiteral(R"(\b(?:en|wl|ww)x([0-9a-f]{12})\b)"), card);

    // Names with dots, before the addresses that are in some of them.
    add(QStringLiteral(
            R"((?:[\p{L}\p{N}_][\p{L}\p{N}_-]{0,62}%1)+\p{L}(?:[\p{L}\p{N}-]{0,61}[\p{L}\p{N}]))")
            .arg(dot),
        [standIn](const QRegularExpressionMatch &match) {
            const QString name = match.captured();
            return SecretPatterns::isPublicName(name) ? name : standIn(Kind::name, name.toLower());
        });

    add(QStringLiteral(R"(\bxn--[\w-]+)"), Kind::name);

    // Addresses.
    add(QStringLiteral(
            R"((?<![0-9]\.)(?:[0-9a-f]{0,4}(?::|%3a)){2,}[0-9a-f.]*(?:%(?!3a)[\w.-]+)?(?:/[0-9]{1,3})?)"),
        [standIn](const QRegularExpressionMatch &match) {
            const auto address = SecretPatterns::ipv6(match.captured());
            return address
                ? standIn(Kind::address, address->value) + match.captured().mid(address->length)
                : match.captured();
        });
    const auto ipv4 = [standIn](const QRegularExpressionMatch &match) {
        const auto value = SecretPatterns::ipv4(match.captured());
        return value ? standIn(Kind::address, *value) : match.captured();
    };
    add(QStringLiteral(R"((?<![0-9])[0-9]{1,3}(?:\.[0-9]{1,3}){4,})"), Kind::address);
    add(QStringLiteral("(?<![0-9])0*%1(?![0-9])(?:/[0-9]{1,2})?").arg(quad), ipv4);
    add(QStringLiteral("(?<![0-9])[0-9]{1,3}(?:-[0-9]{1,3}){3,}(?![0-9])"), ipv4);

    // What a machine made.
    add(QStringLiteral(R"((?<![0-9a-f])[0-9a-f]{20,})"), Kind::secret);
    add(QStringLiteral(R"((?<![0-9a-f])[0-9a-f]{8}(?:-[0-9a-f]{4}){3}-[0-9a-f]{12})"),
        Kind::secret);
    add(QStringLiteral(R"((?<![0-9a-f])(?=[0-9]*[a-f])([0-9a-f]{12})(?![0-9a-f]))"), card);
    add(QStringLiteral(R"([A-Za-z0-9+/=_-]{16,})"),
        [standIn](const QRegularExpressionMatch &match) {
            return SecretPatterns::isRandom(match.captured())
                ? standIn(Kind::secret, match.captured())
                : match.captured();
        });
}

} // namespace veldmark
