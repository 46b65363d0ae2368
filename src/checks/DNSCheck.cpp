#include "checks/DNSCheck.h"

#include <QSet>
#include <QUuid>

namespace veldmark::DNSCheck {

namespace {

// The text between the first "(" and the next ")": "15 (en0)" → "en0".
std::optional<QString> inParentheses(QStringView value)
{
    const qsizetype open = value.indexOf(u'(');
    const qsizetype close = open < 0 ? -1 : value.indexOf(u')', open);
    if (close < 0)
        return std::nullopt;
    return value.sliced(open + 1, close - open - 1).toString();
}

void readLine(QStringView key, QStringView value, DNSResolver &resolver)
{
    if (key.startsWith(u"nameserver"))
        resolver.nameservers.append(value.toString());
    else if (key == u"domain")
        resolver.domain = value.toString();
    else if (key == u"if_index")
        resolver.interface = inParentheses(value);
    else if (key == u"options")
        resolver.isMDNS = value.contains(u"mdns");
}

bool isLocalOrReverse(const QString &domain)
{
    return domain == u"local" || domain.endsWith(u"in-addr.arpa") || domain.endsWith(u"ip6.arpa");
}

} // namespace

const QStringList &torResolvers()
{
    static const QStringList addresses{QStringLiteral("127.0.0.1"), QStringLiteral("::1")};
    return addresses;
}

std::vector<DNSResolver> parse(QStringView text)
{
    std::vector<DNSResolver> resolvers;
    bool inResolver = false; // the parser is inside the last resolver of the list
    bool scoped = false;
    for (const QStringView untrimmed : text.tokenize(u'\n')) {
        const QStringView line = untrimmed.trimmed();
        if (line.startsWith(u"DNS configuration")) {
            inResolver = false;
            scoped = line.contains(u"scoped");
        } else if (line.startsWith(u"resolver #")) {
            inResolver = true;
            resolvers.emplace_back().scoped = scoped;
        } else if (const qsizetype colon = line.indexOf(u':'); inResolver && colon >= 0) {
            readLine(line.first(colon).trimmed(), line.sliced(colon + 1).trimmed(),
                     resolvers.back());
        }
    }
    return resolvers;
}

std::vector<DNSResolver> leaks(const std::vector<DNSResolver> &resolvers)
{
    std::vector<DNSResolver> leaking;
    QSet<QString> summaries;
    for (const DNSResolver &resolver : resolvers) {
        if (resolver.isMDNS || (resolver.domain && isLocalOrReverse(*resolver.domain)))
            continue;
        DNSResolver leak = resolver;
        leak.nameservers.removeIf(
            [](const QString &server) { return torResolvers().contains(server); });
        if (leak.nameservers.isEmpty() || summaries.contains(leak.summary()))
            continue;
        summaries.insert(leak.summary());
        leaking.push_back(std::move(leak));
    }
    return leaking;
}

DNSStatus statusAfter(const std::vector<DNSResolver> &leaks, bool isComplete,
                      const std::optional<DNSStatus> &live, bool liveVerified,
                      const DNSStatus &current)
{
    if (!leaks.empty()) {
        QList<Text> texts;
        for (const DNSResolver &leak : leaks)
            texts.append(leak.text());
        return DNSStatus::leak(texts);
    }
    if (!isComplete && current.isLeak())
        return current;
    if (live)
        return *live;
    if (liveVerified)
        return DNSStatus::throughTor();
    return current.isLeak() ? DNSStatus::unknown() : current;
}

Text stillLeakingText(const QList<Text> &resolvers, bool isBlocked)
{
    const Text text = isBlocked
        ? Text::tr(
            "Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still point around "
            "Tor: %1. Strict mode's firewall blocks them.")
        : Text::tr(
            "Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still point around Tor: %1.");
    return text.arg(Text::joined({resolvers.begin(), resolvers.end()}, QStringLiteral("; ")));
}

QString probeName()
{
    // The Tor Project's own domain: Tor's exit really looks up the name, and no third party learns
    // it.
    return QStringLiteral("veldmark-check-%1.torproject.org")
        .arg(QUuid::createUuid().toString(QUuid::WithoutBraces).left(16).toLower());
}

} // namespace veldmark::DNSCheck
