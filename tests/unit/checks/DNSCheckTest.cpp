#include "checks/DNSCheck.h"

#include "support/ManualClock.h"
#include "support/TestProgram.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QTranslator>

#include <atomic>
#include <future>
#include <memory>

#if defined(__linux__)
#include <malloc.h>
#endif

using namespace veldmark;
using namespace std::chrono_literals;

namespace {

// A language with another order of words.
class OtherWords final : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        if (qstrcmp(source, "%1 on %2") == 0)
            return QStringLiteral("%2: %1");
        return qstrcmp(source, "%1 for *.%2") == 0 ? QStringLiteral("*.%2: %1") : QString();
    }
};

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

QStringList summaries(const std::vector<DNSResolver> &resolvers)
{
    QStringList list;
    for (const DNSResolver &resolver : resolvers)
        list.append(resolver.summary());
    return list;
}

// As the program prints on a Mac with Wi-Fi and a VPN.
const char *const wifiAndVPN = R"(DNS configuration

resolver #1
  search domain[0] : fritz.box
  nameserver[0] : 192.168.178.1
  nameserver[1] : fd00::1
  if_index : 15 (en0)
  flags    : Request A records, Request AAAA records
  reach    : 0x00020002 (Reachable,Directly Reachable Address)

resolver #2
  domain   : corp.example
  nameserver[0] : 10.8.0.1
  nameserver[1] : 127.0.0.1
  if_index : 22 (utun3)
  flags    : Supplemental, Request A records
  reach    : 0x00000003 (Reachable,Transient Connection)
  order    : 101200

resolver #3
  domain   : local
  options  : mdns
  timeout  : 5
  flags    : Request A records, Request AAAA records
  reach    : 0x00000000 (Not Reachable)
  order    : 300000

resolver #4
  domain   : 254.169.in-addr.arpa
  options  : mdns
  timeout  : 5
  order    : 300200

resolver #5
  domain   : 8.e.f.ip6.arpa
  nameserver[0] : 192.168.178.1

DNS configuration (for scoped queries)

resolver #1
  search domain[0] : fritz.box
  nameserver[0] : 192.168.178.1
  nameserver[1] : fd00::1
  if_index : 15 (en0)
  flags    : Scoped, Request A records, Request AAAA records
  reach    : 0x00020002 (Reachable,Directly Reachable Address)

resolver #2
  nameserver[0] : 10.8.0.1
  if_index : 22 (utun3)
  flags    : Scoped, Request A records
)";

QCoro::Task<void> keepLookup(QCoro::Task<bool> task, std::shared_ptr<std::optional<bool>> kept)
{
    const bool result = co_await task;
    *kept = result;
}

QCoro::Task<void> keepStatus(QCoro::Task<DNSStatus> task,
                             std::shared_ptr<std::optional<DNSStatus>> kept)
{
    const DNSStatus result = co_await task;
    *kept = result;
}

QCoro::Task<std::optional<QStringList>> captured(std::optional<QStringList> hosts)
{
    co_return hosts;
}

QCoro::Task<bool> failed()
{
    co_return false;
}

} // namespace

class DNSCheckTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void readsBothSectionsInOrder()
    {
        const auto resolvers = DNSCheck::parse(text(wifiAndVPN));
        QCOMPARE(resolvers.size(), 7u);
        QCOMPARE(resolvers[0],
                 (DNSResolver{std::nullopt,
                              {text("192.168.178.1"), text("fd00::1")},
                              text("en0"),
                              false,
                              false}));
        QCOMPARE(resolvers[1].domain, text("corp.example"));
        QCOMPARE(resolvers[1].nameservers, (QStringList{text("10.8.0.1"), text("127.0.0.1")}));
        QVERIFY(resolvers[2].isMDNS && resolvers[2].nameservers.isEmpty());
        QVERIFY(!resolvers[4].scoped && !resolvers[4].isMDNS);
        QVERIFY(resolvers[5].scoped && resolvers[6].scoped);
        QVERIFY(!resolvers[6].domain);
    }

    void findsTheLeaksOfAnOrdinaryMac()
    {
        QCOMPARE(
            summaries(DNSCheck::leaks(DNSCheck::parse(text(wifiAndVPN)))),
            (QStringList{text("192.168.178.1, fd00::1 on en0"),
                         text("10.8.0.1 for *.corp.example on utun3"), text("10.8.0.1 on utun3")}));
    }

    void readsOddLines_data()
    {
        QTest::addColumn<QString>("body"); // of one resolver
        QTest::addColumn<QString>("summary");
        const auto row = [](const char *name, const char *body, const char *summary) {
            QTest::newRow(name) << text(body) << text(summary);
        };
        row("no interface in parentheses", "nameserver[0] : 1.2.3.4\nif_index : 4", "1.2.3.4");
        row("closing before opening", "nameserver[0] : 1.2.3.4\nif_index : ) (en0", "1.2.3.4");
        row("nested parentheses", "nameserver[0] : 1.2.3.4\nif_index : 4 ((en0))",
            "1.2.3.4 on (en0");
        row("no blanks", "nameserver[0]:1.2.3.4\nif_index:4(en0)", "1.2.3.4 on en0");
        row("tabs and carriage returns", "\tnameserver[0]\t:\t1.2.3.4\r\n if_index : 4 (en0)\r",
            "1.2.3.4 on en0");
        row("address with colons", "nameserver[0] : fe80::1%en0", "fe80::1%en0");
        row("search domains only", "search domain[0] : a.example", "");
        row("a key that begins like domain", "domainname : x\nnameserver[0] : 1.2.3.4", "1.2.3.4");
        row("line without a colon", "nameserver[0] 9.9.9.9\nnameserver[1] : 1.2.3.4", "1.2.3.4");
        row("many servers",
            "nameserver[0] : 1.1.1.1\nnameserver[1] : 2.2.2.2\nnameserver[10] : 3.3.3.3\ndomain : d",
            "1.1.1.1, 2.2.2.2, 3.3.3.3 for *.d");
    }
    void readsOddLines()
    {
        QFETCH(QString, body);
        QFETCH(QString, summary);
        const auto resolvers = DNSCheck::parse(text("DNS configuration\n\nresolver #1\n") + body);
        QCOMPARE(summaries(resolvers), QStringList{summary});
    }

    void linesBeforeTheFirstResolverAreIgnored()
    {
        QVERIFY(DNSCheck::parse(QString()).empty());
        QVERIFY(DNSCheck::parse(text("No DNS configuration available\nnameserver[0] : 1.2.3.4\n"))
                    .empty());
        QVERIFY(DNSCheck::parse(text("DNS configuration\nnameserver[0] : 1.2.3.4\n")).empty());
        // A new section ends a resolver.
        const auto resolvers = DNSCheck::parse(text(
            "resolver #1\nnameserver[0] : 1.1.1.1\nDNS configuration\nnameserver[1] : 2.2.2.2\n"));
        QCOMPARE(summaries(resolvers), QStringList{text("1.1.1.1")});
    }

    void findsLeaks_data()
    {
        QTest::addColumn<QString>("configuration");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *name, const char *configuration,
                            const QStringList &expected) {
            QTest::newRow(name) << text(configuration) << expected;
        };
        row("Tor's addresses only", "resolver #1\nnameserver[0] : 127.0.0.1\nnameserver[1] : ::1\n",
            {});
        row("default resolver", "resolver #1\nnameserver[0] : 192.168.1.1\nif_index : 15 (en0)\n",
            {text("192.168.1.1 on en0")});
        row("local names by mDNS",
            "resolver #2\ndomain : local\noptions : mdns\nnameserver[0] : 1.2.3.4\n", {});
        row("mDNS for another domain",
            "resolver #2\ndomain : x\noptions : mdns\nnameserver[0] : 1.2.3.4\n", {});
        row("local without mDNS", "resolver #2\ndomain : local\nnameserver[0] : 1.2.3.4\n", {});
        row("below local", "resolver #2\ndomain : a.local\nnameserver[0] : 1.2.3.4\n",
            {text("1.2.3.4 for *.a.local")});
        row("reverse lookups",
            "resolver #3\ndomain : 168.192.in-addr.arpa\nnameserver[0] : 1.2.3.4\n"
            "resolver #4\ndomain : 8.e.f.ip6.arpa\nnameserver[0] : 1.2.3.4\n",
            {});
        row("Tor's address is dropped",
            "resolver #1\ndomain : corp\nnameserver[0] : 127.0.0.1\n"
            "nameserver[1] : 10.8.0.1\nif_index : 9 (utun2)\n",
            {text("10.8.0.1 for *.corp on utun2")});
        row("both sections",
            "DNS configuration\nresolver #1\nnameserver[0] : 1.2.3.4\nif_index : 4 (en0)\n"
            "DNS configuration (for scoped queries)\nresolver #1\nnameserver[0] : 1.2.3.4\nif_index : 4 (en0)\n",
            {text("1.2.3.4 on en0")});
        row("scoped only",
            "DNS configuration (for scoped queries)\nresolver #1\nnameserver[0] : 1.2.3.4\n",
            {text("1.2.3.4")});
        row("search domains only", "resolver #1\nsearch domain[0] : a.example\n", {});
        row("another loopback address", "resolver #1\nnameserver[0] : 127.0.0.53\n",
            {text("127.0.0.53")});
        row("nothing", "", {});
    }
    void findsLeaks()
    {
        QFETCH(QString, configuration);
        QFETCH(QStringList, expected);
        QCOMPARE(summaries(DNSCheck::leaks(DNSCheck::parse(configuration))), expected);
    }

    void aLeakKeepsItsResolversOtherFields()
    {
        const DNSResolver resolver{
            text("corp"), {text("::1"), text("10.8.0.1")}, text("tun0"), true, false};
        const auto leaks = DNSCheck::leaks({resolver});
        QCOMPARE(leaks.size(), 1u);
        QCOMPARE(leaks[0],
                 (DNSResolver{text("corp"), {text("10.8.0.1")}, text("tun0"), true, false}));
    }

    void resolversCompareAndHashOverAllFields()
    {
        const DNSResolver original{text("d"), {text("1.2.3.4")}, text("en0"), false, false};
        std::vector<DNSResolver> variants(6, original);
        variants[1].domain.reset();
        variants[2].nameservers.append(text("x"));
        variants[3].interface.reset();
        variants[4].scoped = true;
        variants[5].isMDNS = true;
        QCOMPARE(QSet<DNSResolver>(variants.begin(), variants.end()).size(), 6);
        QCOMPARE((DNSResolver{text("corp.example"),
                              {text("10.0.0.53"), text("10.0.0.54")},
                              text("utun3"),
                              false,
                              false})
                     .summary(),
                 text("10.0.0.53, 10.0.0.54 for *.corp.example on utun3"));
    }

    void aResolverIsATextForEachLanguage()
    {
        OtherWords language;
        QCoreApplication::installTranslator(&language);
        const DNSResolver resolver{text("corp"), {text("10.0.0.53")}, text("utun3")};
        QCOMPARE(resolver.text().translated(), text("utun3: *.corp: 10.0.0.53"));
        QCOMPARE(resolver.summary(), text("10.0.0.53 for *.corp on utun3"));
        QVERIFY(DNSStatus::leak({resolver.text()})
                    .text()
                    .translated()
                    .endsWith(resolver.text().translated()));
        QVERIFY(DNSCheck::stillLeakingText({resolver.text()}, false)
                    .translated()
                    .contains(resolver.text().translated()));
        DNSResolver everywhere;
        everywhere.nameservers = {text("10.0.0.53")};
        QVERIFY(everywhere.text().isWords()); // addresses alone
    }

    void randomTextIsReadWithoutHarm()
    {
        QRandomGenerator random(3);
        const QStringList pieces{text("DNS configuration"),
                                 text("(for scoped queries)"),
                                 text("resolver #"),
                                 text("nameserver[0]"),
                                 text(":"),
                                 text("if_index"),
                                 text("("),
                                 text(")"),
                                 text("\n"),
                                 text(" "),
                                 text("\r"),
                                 text("options"),
                                 text("mdns"),
                                 text("domain"),
                                 text("é"),
                                 QString(QChar(0xD800)),
                                 QString(QChar(0))};
        for (int round = 0; round < 5000; ++round) {
            QString input;
            for (int i = random.bounded(60); i > 0; --i)
                input += pieces[random.bounded(static_cast<int>(pieces.size()))];
            for (const DNSResolver &leak : DNSCheck::leaks(DNSCheck::parse(input)))
                QVERIFY(!leak.nameservers.isEmpty());
        }
    }

    void theStatusFollowsTheCheck()
    {
        const std::vector<DNSResolver> none;
        const std::vector<DNSResolver> two{{std::nullopt, {text("1.1.1.1")}, {}, false, false},
                                           {text("d"), {text("2.2.2.2")}, {}, false, false}};
        const DNSStatus leak = DNSStatus::leak({text("1.1.1.1"), text("2.2.2.2 for *.d")});
        const DNSStatus oldLeak = DNSStatus::leak({text("9.9.9.9")});
        const std::optional<DNSStatus> noLive;
        const auto through = std::optional(DNSStatus::throughTor());
        const auto unverified = std::optional(DNSStatus::unverified());
        const struct {
            const std::vector<DNSResolver> &leaks;
            const std::optional<DNSStatus> &live;
            bool liveVerified;
            DNSStatus current;
            DNSStatus expected;
        } cases[] = {
            {two, noLive, false, DNSStatus::unknown(), leak},
            {two, through, true, DNSStatus::checking(), leak},
            {none, through, true, DNSStatus::checking(), DNSStatus::throughTor()},
            {none, unverified, false, DNSStatus::checking(), DNSStatus::unverified()},
            {none, unverified, true, DNSStatus::throughTor(), DNSStatus::unverified()},
            {none, through, true, oldLeak, DNSStatus::throughTor()},
            {none, noLive, true, DNSStatus::unknown(), DNSStatus::throughTor()},
            {none, noLive, true, oldLeak, DNSStatus::throughTor()},
            {none, noLive, false, oldLeak, DNSStatus::unknown()},
            {none, noLive, false, DNSStatus::unknown(), DNSStatus::unknown()},
            {none, noLive, false, DNSStatus::unverified(), DNSStatus::unverified()},
            {none, noLive, false, DNSStatus::checking(), DNSStatus::checking()},
        };
        int row = 0;
        for (const auto &c : cases) {
            const DNSStatus status = DNSCheck::statusAfter(c.leaks, true, c.live, c.liveVerified,
                                                           c.current);
            QVERIFY2(
                status == c.expected,
                qPrintable(QStringLiteral("row %1: %2").arg(row).arg(status.text().english())));
            ++row;
        }
    }

    void aLeakStaysWhileNotAllOfTheSettingsAreKnown()
    {
        const auto through = std::optional(DNSStatus::throughTor());
        const DNSStatus old = DNSStatus::leak({text("192.0.2.53")});
        const std::vector<DNSResolver> none;
        QVERIFY(DNSCheck::statusAfter(none, true, through, true, old) == DNSStatus::throughTor());
        QVERIFY(DNSCheck::statusAfter(none, false, through, true, old) == old);
        QVERIFY(DNSCheck::statusAfter(none, false, std::nullopt, true, old) == old);
        QVERIFY(DNSCheck::statusAfter(none, false, through, true, DNSStatus::checking())
                == DNSStatus::throughTor());
    }

    void statusesHaveTheirTexts()
    {
        QCOMPARE(DNSStatus().text(), text("DNS: not tested yet."));
        QCOMPARE(DNSStatus::checking().text(), text("DNS: testing\u2026"));
        QCOMPARE(DNSStatus::throughTor().text(), text("DNS: a test lookup went through Tor."));
        QCOMPARE(DNSStatus::unverified().text(),
                 text("DNS: settings point at Tor, but a test lookup couldn't be confirmed."));
        QCOMPARE(DNSStatus::leak({text("a"), text("b")}).text(),
                 text("DNS can go around Tor via: a; b"));
        QCOMPARE(
            DNSCheck::stillLeakingText({text("a")}, false),
            text(
                "Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still point around Tor: a."));
        QCOMPARE(
            DNSCheck::stillLeakingText({text("a"), text("%2 b")}, true),
            text("Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still "
                 "point around Tor: a; %2 b. Strict mode's firewall blocks them."));
        QVERIFY(DNSStatus::leak({text("a")}) != DNSStatus::leak({text("a"), text("a")}));
        QVERIFY(DNSStatus::leak({text("a")}) == DNSStatus::leak({text("a")}));
        for (const DNSStatus &status :
             {DNSStatus::unknown(), DNSStatus::checking(), DNSStatus::throughTor(),
              DNSStatus::unverified(), DNSStatus::leak({})})
            QVERIFY(!status.name().isEmpty());
    }

    void probeNamesAreFreshNamesBelowARealDomain()
    {
        const QRegularExpression shape(
            text("^veldmark-check-[0-9a-f]{8}-[0-9a-f]{4}-[0-9a-f]{2}\\.torproject\\.org$"));
        QSet<QString> names;
        for (int i = 0; i < 100; ++i) {
            const QString name = DNSCheck::probeName();
            QVERIFY2(shape.match(name).hasMatch(), qPrintable(name));
            names.insert(name);
        }
        QCOMPARE(names.size(), 100);
    }

    void looksUpThroughTheSystem()
    {
        ManualClock clock;
        const auto found = std::make_shared<std::optional<bool>>();
        keepLookup(DNSCheck::lookup(clock, text("localhost"), 5s), found);
        QTRY_VERIFY(found->has_value());
        QVERIFY(**found);

        // A label of more than 63 characters fails without any server.
        const auto impossible = std::make_shared<std::optional<bool>>();
        keepLookup(DNSCheck::lookup(clock, QString(70, u'a') + text(".invalid."), 5s), impossible);
        QTRY_VERIFY(impossible->has_value());
        QVERIFY(!**impossible);

        QVERIFY(!DNSCheck::resolveBySystem(QByteArray("localhost\0x", 11)));
    }

    void aLookupKeepsNoMemory()
    {
#if defined(__linux__)
        const auto inUseAfter = [](int lookups) {
            for (int i = 0; i < lookups; ++i) {
                if (!DNSCheck::resolveBySystem("127.0.0.1"))
                    qFatal("the system cannot read an address");
            }
            return ::mallinfo2().uordblks;
        };
        const std::size_t before = inUseAfter(10);
        QVERIFY(inUseAfter(1000) < before + 16'384);
#else
        QSKIP("Only glibc tells how much memory is in use.");
#endif
    }

    void aLookupThatHangsIsGivenUpAndItsLateAnswerIgnored()
    {
        ManualClock clock;
        const auto release = std::make_shared<std::promise<void>>();
        const auto done = std::make_shared<std::atomic<bool>>(false);
        const std::shared_future<void> released = release->get_future().share();
        const auto resolve = [released, done](const QByteArray &host) {
            released.wait();
            *done = true;
            return host == "slow.example";
        };
        const auto found = std::make_shared<std::optional<bool>>();
        keepLookup(DNSCheck::lookup(clock, text("slow.example"), 5s, resolve), found);
        clock.advance(4999ms);
        QVERIFY(!found->has_value());
        clock.advance(1ms);
        QTRY_VERIFY(found->has_value());
        QVERIFY(!**found);
        release->set_value();
        QTRY_VERIFY(*done);
        QCoreApplication::processEvents();
        QVERIFY(!**found);
    }

    void whatTorSawDecidesTheLiveTest_data()
    {
        QTest::addColumn<bool>("captures");
        QTest::addColumn<QString>("seen"); // NAME stands for the name asked for
        QTest::addColumn<bool>("through");
        QTest::newRow("the name") << true << text("NAME") << true;
        QTest::newRow("among others, twice") << true << text("other.example NAME NAME") << true;
        QTest::newRow("in other letters") << true << text("UPPER") << false;
        QTest::newRow("another name") << true << text("other.example") << false;
        QTest::newRow("with something before it") << true << text("x.NAME") << false;
        QTest::newRow("nothing") << true << QString() << false;
        QTest::newRow("no capture") << false << QString() << false;
    }
    void whatTorSawDecidesTheLiveTest()
    {
        QFETCH(bool, captures);
        QFETCH(QString, seen);
        QFETCH(bool, through);
        std::chrono::milliseconds capturedFor{};
        std::chrono::milliseconds lookupLimit{};
        QString asked;
        const DNSCheck::Lookup lookup = [&](const QString &host, std::chrono::milliseconds limit) {
            asked = host;
            lookupLimit = limit;
            return failed();
        };
        const DNSCheck::CaptureResolves capture =
            [&](std::chrono::milliseconds duration,
                const std::function<QCoro::Task<void>()> &work) {
                capturedFor = duration;
                if (!captures)
                    return captured(std::nullopt);
                work();
                QString names = seen;
                names.replace(text("NAME"), asked).replace(text("UPPER"), asked.toUpper());
                return captured(names.split(u' ', Qt::SkipEmptyParts));
            };
        const auto status = std::make_shared<std::optional<DNSStatus>>();
        keepStatus(DNSCheck::liveTest(capture, lookup), status);
        QTRY_VERIFY(status->has_value());
        QVERIFY(**status == (through ? DNSStatus::throughTor() : DNSStatus::unverified()));
        QCOMPARE(capturedFor, 6000ms);
        if (captures) {
            QCOMPARE(lookupLimit, 5000ms);
            QVERIFY(asked.startsWith(text("veldmark-check-")));
        }
    }
};

VELDMARK_TEST(DNSCheckTest)
#include "DNSCheckTest.moc"
