#include "report/SecretPatterns.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <array>

#include <arpa/inet.h>

namespace veldmark::SecretPatterns {

namespace {

// The networks that the kill switch and other firewalls name.
bool isCommonNetwork(const QString &network)
{
    static const QStringList common
        = QStringLiteral("10.0.0.0/8 100.64.0.0/10 169.254.0.0/16 172.16.0.0/12 192.168.0.0/16 "
                         "224.0.0.0/4 240.0.0.0/4 fe80::/10 fc00::/7 ff00::/8")
              .split(u' ');
    return common.contains(network.toLower());
}

// The address in its shortest form; absent when it is none.
std::optional<QString> parsed(const QString &text)
{
    in6_addr address{};
    if (::inet_pton(AF_INET6, text.toLatin1().constData(), &address) != 1)
        return std::nullopt;
    std::array<char, INET6_ADDRSTRLEN> shortest{};
    const void *start = &address;
    int family = AF_INET6;
    if (IN6_IS_ADDR_V4MAPPED(&address)) {
        start = &address.s6_addr[12];
        family = AF_INET;
    }
    ::inet_ntop(family, start, shortest.data(), shortest.size());
    return QString::fromLatin1(shortest.data());
}

} // namespace

std::optional<QString> ipv4(const QString &candidate)
{
    static const QRegularExpression dot(QStringLiteral(R"(%2[Ee]|\[\.\]|\(\.\)|\x{3002}|-)"));
    QString plain = candidate;
    plain.replace(dot, QStringLiteral("."));
    if (isCommonNetwork(plain))
        return std::nullopt;
    QStringList numbers = plain.section(u'/', 0, 0).split(u'.');
    for (QString &number : numbers)
        number = QString::number(number.toUInt());
    const QString value = numbers.join(u'.');
    const bool isOfNoHost = plain.startsWith(QLatin1String("0."))
        || value == QLatin1String("255.255.255.255");
    return isOfNoHost || numbers.constFirst() == QLatin1String("127") ? std::nullopt
                                                                      : std::optional(value);
}

std::optional<Address> ipv6(const QString &candidate)
{
    static const QRegularExpression colon(QStringLiteral("%3[Aa]"));
    static const QRegularExpression clock(
        QStringLiteral(R"(^\d{1,2}:\d{2}(?::\d{2})?(?:\.\d*)?:?$)"));
    static const QRegularExpression groups(QStringLiteral("[0-9A-Fa-f]{3,4}"));
    if (clock.match(candidate).hasMatch() || isCommonNetwork(candidate))
        return std::nullopt;
    // The zone follows a "%" that is no colon.
    QString plain = candidate;
    plain.replace(colon, QStringLiteral(":"));
    const QString bare = plain.section(u'%', 0, 0).section(u'/', 0, 0);
    for (qsizetype cut = bare.size(); cut > 1; --cut) {
        if (const auto value = parsed(bare.left(cut))) {
            if (*value == QLatin1String("::") || *value == QLatin1String("::1")
                || value->startsWith(QLatin1String("127.")))
                return std::nullopt;
            return Address{*value,
                           cut == bare.size() || plain != candidate ? candidate.size() : cut};
        }
        if (bare[cut - 1] != u'.' && bare[cut - 1] != u':')
            break; // only a sentence's end may follow an address
    }
    // A part of an address, or one that is written in an odd way.
    if (bare.count(u':') >= 3 || groups.match(bare).hasMatch())
        return Address{bare.toLower(), candidate.size()};
    return std::nullopt;
}

bool isPublicName(const QString &name)
{
    static const QStringList names
        = QStringLiteral("org.veldmark.helper veldmark-helper.sh torproject.org www.torproject.org "
                         "check.torproject.org dist.torproject.org nftables.conf resolv.conf "
                         "veldmark.conf notices.log start.out launcher.out")
              .split(u' ');
    // No top-level domain has one of these names.
    static const QStringList endings
        = QStringLiteral("conf desktop ini json log scope service slice socket target timer txt")
              .split(u' ');
    return names.contains(name.toLower())
        || (name.count(u'.') == 1 && endings.contains(name.section(u'.', 1)));
}

bool isPublicAccount(const QString &account)
{
    static const QRegularExpression unit(QStringLiteral("^(?:tor@default|user@[0-9]+)\\.service$"));
    static const QStringList hosts{QStringLiteral("torproject.org")};
    return unit.match(account).hasMatch() || hosts.contains(account.section(u'@', 1).toLower());
}

bool isOwnFile(const QString &tail)
{
    for (const char *folder :
         {"/.config/veldmark", "/.local/share/veldmark", "/.veldmark", "/.ssh/config", "/.bashrc",
          "/.zshrc", "/.bash_profile", "/.profile", "/.config/autostart/veldmark.desktop"}) {
        const QLatin1String own(folder);
        if (tail == own || (tail.startsWith(own) && tail[own.size()] == u'/'))
            return true;
    }
    return false;
}

bool isRandom(const QString &word)
{
    static const QRegularExpression separator(QStringLiteral("[/=_-]"));
    const auto isMixed = [](const QString &text, qsizetype mixed, qsizetype plain) {
        const auto digits = std::count_if(text.cbegin(), text.cend(),
                                          [](QChar c) { return c.isDigit(); });
        const bool hasUpper = std::any_of(text.cbegin(), text.cend(),
                                          [](QChar c) { return c.isUpper(); });
        const bool hasLower = std::any_of(text.cbegin(), text.cend(),
                                          [](QChar c) { return c.isLower(); });
        if (digits == 0 || !(hasUpper || hasLower))
            return false;
        return (hasUpper && hasLower && text.size() >= mixed)
            || (digits >= 2 && text.size() >= plain);
    };
    if (word.contains(u'+') || (word.size() >= 40 && !word.startsWith(u'/')))
        return isMixed(word, 20, 20);
    const QStringList parts = word.split(separator);
    return std::any_of(parts.cbegin(), parts.cend(),
                       [&isMixed](const QString &part) { return isMixed(part, 10, 16); });
}

} // namespace veldmark::SecretPatterns
