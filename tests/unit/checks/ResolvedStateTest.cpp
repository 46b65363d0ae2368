#include "checks/ResolvedState.h"

#include "checks/DNSCheck.h"
#include "support/TestProgram.h"

#include <QTest>

#include <sys/socket.h>

using namespace veldmark;

namespace {
QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

ResolvedServer ipv4(const char *hex, int link = 0, quint16 port = 0)
{
    return {link, AF_INET, QByteArray::fromHex(hex), port, {}};
}

ResolvedServer ipv6(const char *hex, int link = 0, quint16 port = 0)
{
    return {link, AF_INET6, QByteArray::fromHex(hex), port, {}};
}

const char *const loopback6 = "00000000000000000000000000000001";

QString summaries(const std::vector<DNSResolver> &resolvers)
{
    QStringList list;
    for (const DNSResolver &resolver : resolvers)
        list.append(resolver.summary());
    return list.join(text("; "));
}
} // namespace

// The states are answers of systemd-resolved 252, with servers set by resolvectl.
class ResolvedStateTest : public QObject {
    Q_OBJECT

    // A desktop with an Ethernet link and a VPN for two domains.
    static ResolvedState desktop()
    {
        ResolvedState state;
        state.servers = {ipv4("0affff35"), ipv4("c0a84d01", 3),
                         ipv6("fe800000000000000000000000000001", 3), ipv4("0a080001", 2),
                         ipv4("0a080003", 2, 5353)};
        state.fallbackServers = {ipv4("01010101"), ipv6("26064700470000000000000000001111")};
        state.links = {{text("tun7"),
                        {ipv4("0a080001"), ipv4("0a080003", 0, 5353)},
                        {{text("corp.example"), false}, {text("internal.example"), true}},
                        false,
                        true},
                       {text("eth7"),
                        {ipv4("c0a84d01"), ipv6("fe800000000000000000000000000001")},
                        {},
                        true,
                        true}};
        return state;
    }

private Q_SLOTS:
    void writesServersAsText_data()
    {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("expected");
        QTest::newRow("IPv4") << ipv4("c0a80101").text() << text("192.168.1.1");
        QTest::newRow("usual port") << ipv4("c0a80101", 0, 53).text() << text("192.168.1.1");
        QTest::newRow("unusual port")
            << ipv4("c0a80101", 0, 5353).text() << text("192.168.1.1:5353");
        QTest::newRow("IPv6") << ipv6("20010db8000000000000000000000053").text()
                              << text("2001:db8::53");
        QTest::newRow("IPv6 with port") << ipv6("20010db8000000000000000000000053", 0, 853).text()
                                        << text("[2001:db8::53]:853");
        QTest::newRow("Tor's port") << ipv4("7f000001", 0, 293).text() << text("127.0.0.1");
        QTest::newRow("Tor's port, IPv6") << ipv6(loopback6, 0, 293).text() << text("::1");
        QTest::newRow("Tor's port elsewhere")
            << ipv4("0a000001", 0, 293).text() << text("10.0.0.1:293");
        QTest::newRow("another program on the loopback")
            << ipv4("7f000001", 0, 5353).text() << text("127.0.0.1:5353");
        QTest::newRow("too short") << ipv4("7f0000").text() << QString();
        QTest::newRow("wrong family")
            << ResolvedServer{0, AF_INET, QByteArray(16, 'x'), 0, {}}.text() << QString();
        QTest::newRow("unknown family")
            << ResolvedServer{0, 99, QByteArray(4, 'x'), 0, {}}.text() << QString();
    }
    void writesServersAsText()
    {
        QFETCH(QString, written);
        QFETCH(QString, expected);
        QCOMPARE(written, expected);
    }

    void namesTheSystemsAndTheLinksServers()
    {
        QCOMPARE(summaries(desktop().resolvers()),
                 text("10.255.255.53; "
                      "10.8.0.1, 10.8.0.3:5353 for *.corp.example on tun7; "
                      "10.8.0.1, 10.8.0.3:5353 for *.internal.example on tun7; "
                      "192.168.77.1, fe80::1 on eth7"));
    }

    void aLinkWithTheRootDomainServesEveryName()
    {
        ResolvedState state = desktop();
        state.links[0].domains.push_back({text("."), true});
        QVERIFY(summaries(state.resolvers()).contains(text("10.8.0.1, 10.8.0.3:5353 on tun7")));
    }

    void aLinkThatGetsNoNamesIsLeftOut()
    {
        ResolvedState state = desktop();
        state.links[0].domains.clear(); // no default route either
        state.links[1].isActive = false;
        QCOMPARE(summaries(state.resolvers()), text("10.255.255.53"));
    }

    // The daemon shows a loopback server of a link under the loopback's own index.
    void linksThatPointAtTorAreNoLeak()
    {
        ResolvedState state;
        state.servers = {ipv4("7f000001", 1), ipv6(loopback6, 1), ipv4("7f000001", 1, 293)};
        state.links = {{text("eth7"),
                        {ipv4("7f000001"), ipv6(loopback6), ipv4("7f000001", 0, 293)},
                        {{text("."), true}},
                        true,
                        true}};
        QCOMPARE(summaries(state.resolvers()), text("127.0.0.1, ::1 on eth7"));
        QVERIFY(DNSCheck::leaks(state.resolvers()).empty());
    }

    void theSystemsServersAreSeenWhateverTheirIndex()
    {
        ResolvedState state;
        state.servers = {ipv4("7f000001", 1, 5353), ipv6("fe800000000000000000000000000009", 7)};
        QCOMPARE(summaries(state.resolvers()), text("127.0.0.1:5353, fe80::9"));
    }

    void fallbackServersCountOnlyWithoutAnyOther()
    {
        ResolvedState state = desktop();
        state.servers.clear();
        state.links.clear();
        QCOMPARE(summaries(state.resolvers()), text("1.1.1.1, 2606:4700:4700::1111"));
        state.fallbackServers.clear();
        QVERIFY(state.resolvers().empty());
    }

    void propertiesOfOddTypesAreAsIfUnset()
    {
        const QVariantMap odd{{text("DNS"), 5},
                              {text("DNSEx"), text("x")},
                              {text("Domains"), true},
                              {text("FallbackDNSEx"), QVariant()}};
        const ResolvedState state = ResolvedState::fromProperties(odd);
        QVERIFY(state.servers.empty() && state.fallbackServers.empty());
        const ResolvedLink link = ResolvedLink::fromProperties(text("eth0"), odd);
        QVERIFY(link.servers.empty() && link.domains.empty());
        QVERIFY(link.isDefaultRoute && link.isActive);
    }
};

VELDMARK_BARE_TEST(ResolvedStateTest)
#include "ResolvedStateTest.moc"
