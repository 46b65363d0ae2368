#include "checks/LeakStatus.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace veldmark;
using namespace std::chrono_literals;

namespace {
const ProbeResult silent = Failure(
    ProbeError{ProbeError::Kind::timedOut, QStringLiteral("x"), false});
const ProbeResult unusable = Failure(
    ProbeError{ProbeError::Kind::certificate, QStringLiteral("x"), true});
const ProbeResult exitAddress = IPCheck{true, QStringLiteral("203.0.113.10")};
const ProbeResult ownAddress = IPCheck{false, QStringLiteral("192.0.2.8")};
const auto proxy = std::optional(RoutingMode::proxy);
const auto strict = std::optional(RoutingMode::strict);
const std::optional<RoutingMode> none;
} // namespace

class LeakStatusTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void theDirectPathDecidesTheVerdict()
    {
        const struct {
            const char *name;
            ProbeResult tor;
            ProbeResult direct;
            std::optional<RoutingMode> mode;
            LeakStatus expected;
        } cases[] = {
            {"strict, nothing direct", exitAddress, silent, strict, LeakStatus::blocked()},
            {"proxy, nothing direct", exitAddress, silent, proxy, LeakStatus::blocked()},
            {"no mode, nothing direct", exitAddress, silent, none, LeakStatus::blocked()},
            {"Tor's address is no known exit", ownAddress, silent, strict, LeakStatus::blocked()},
            {"neither answers", silent, silent, strict, LeakStatus::inconclusive()},
            {"neither answers, proxy", silent, silent, proxy, LeakStatus::inconclusive()},
            {"direct answers, strict", exitAddress, ownAddress, strict,
             LeakStatus::exposed(QStringLiteral("192.0.2.8"))},
            {"direct answers, proxy", exitAddress, ownAddress, proxy,
             LeakStatus::exposed(QStringLiteral("192.0.2.8"))},
            {"only direct answers", silent, ownAddress, none,
             LeakStatus::exposed(QStringLiteral("192.0.2.8"))},
            {"direct through an exit, strict", exitAddress, exitAddress, strict,
             LeakStatus::blocked()},
            {"direct through an exit, strict, no Tor answer", silent, exitAddress, strict,
             LeakStatus::blocked()},
            {"direct through an exit, proxy", exitAddress, exitAddress, proxy,
             LeakStatus::inconclusive()},
            {"direct through an exit, no mode", exitAddress, exitAddress, none,
             LeakStatus::inconclusive()},
            {"a portal answers on the direct path", exitAddress, unusable, strict,
             LeakStatus::inconclusive()},
            {"the service is broken for both", unusable, unusable, proxy,
             LeakStatus::inconclusive()},
        };
        for (const auto &c : cases) {
            const NetworkVerdict verdict = NetworkVerdict::of(c.tor, 100ms, c.direct, c.mode);
            QVERIFY2(verdict.leakStatus == c.expected, c.name);
            QCOMPARE(verdict.leakStatus.name(), c.expected.name());
        }
    }

    void torsProbeGivesAddressSealAndTime()
    {
        NetworkVerdict verdict = NetworkVerdict::of(exitAddress, 1234ms, silent, strict);
        QCOMPARE(verdict.latencyMs, std::optional<qint64>(1234));
        QCOMPARE(verdict.exitIP, QStringLiteral("203.0.113.10"));
        QVERIFY(verdict.torVerified);

        verdict = NetworkVerdict::of(ownAddress, 5ms, silent, strict);
        QCOMPARE(verdict.exitIP, QStringLiteral("192.0.2.8"));
        QVERIFY(!verdict.torVerified);

        verdict = NetworkVerdict::of(silent, 30000ms, ownAddress, strict);
        QVERIFY(!verdict.latencyMs);
        QVERIFY(!verdict.exitIP);
        QVERIFY(!verdict.torVerified);
    }

    void statusesCompareWithTheirAddress()
    {
        QVERIFY(LeakStatus() == LeakStatus::notTested());
        QVERIFY(LeakStatus::exposed(QStringLiteral("a"))
                != LeakStatus::exposed(QStringLiteral("b")));
        QVERIFY(LeakStatus::checking() != LeakStatus::blocked());
        QCOMPARE(LeakStatus::exposed(QStringLiteral("a")).address(), QStringLiteral("a"));
        QCOMPARE(LeakStatus::notTested().name(), QStringLiteral("notTested"));
        QCOMPARE(LeakStatus::checking().name(), QStringLiteral("checking"));
    }

    void routingModesHaveTheirWords()
    {
        QCOMPARE(rawValue(RoutingMode::proxy), QStringLiteral("proxy"));
        QCOMPARE(rawValue(RoutingMode::strict), QStringLiteral("strict"));
        QVERIFY(routingModeFromRawValue(u"proxy") == RoutingMode::proxy);
        QVERIFY(routingModeFromRawValue(u"strict") == RoutingMode::strict);
        QVERIFY(!routingModeFromRawValue(u"Strict"));
        QVERIFY(!routingModeFromRawValue(u""));
    }
};

VELDMARK_BARE_TEST(LeakStatusTest)
#include "LeakStatusTest.moc"
