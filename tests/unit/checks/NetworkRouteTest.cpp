#include "checks/NetworkRoute.h"
#include "support/TestProgram.h"

#include <QProcess>
#include <QTest>

#ifdef Q_OS_LINUX
#include <sched.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;
using namespace veldmark;

namespace {

bool run(const QString &words)
{
    QStringList list = QProcess::splitCommand(words);
    const QString program = list.takeFirst();
    return QProcess::execute(program, list) == 0;
}

} // namespace

// Runs in a network namespace of its own.
class NetworkRouteTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
#ifdef Q_OS_LINUX
        if (::geteuid() != 0 || ::unshare(CLONE_NEWNET) != 0)
            QSKIP("needs root and network namespaces");
#else
        QSKIP("needs network namespaces");
#endif
        QVERIFY(run(u"ip link set lo up"_s));
    }

    void thereIsNoneToBeginWith()
    {
        QVERIFY(!NetworkRoute::present());
    }

    void aNeighbourIsNoWayOut()
    {
        QVERIFY(run(u"ip link add eth7 type veth peer name other"_s)
                && run(u"ip link set eth7 up"_s) && run(u"ip link set other up"_s));
        QVERIFY(run(u"ip address add 10.7.0.2/24 dev eth7"_s));
        QVERIFY(!NetworkRoute::present());
    }

    void aDefaultRouteIsOne()
    {
        QVERIFY(run(u"ip route add default via 10.7.0.1"_s));
        const auto route = NetworkRoute::present();
        QVERIFY(route);
        QCOMPARE(route->device, u"eth7"_s);
        QVERIFY(!route->isVPN);
    }

    void aTunnelThatTakesItIsAVPN() // by a rule of its own, as wg-quick does it
    {
        if (!run(u"ip tuntap add dev wg7 mode tun"_s))
            QSKIP("this kernel has no tun devices");
        QVERIFY(run(u"ip link set wg7 up"_s) && run(u"ip address add 10.8.0.2/32 dev wg7"_s));
        QVERIFY(run(u"ip route add default dev wg7 table 777"_s)
                && run(u"ip rule add not fwmark 0x9 table 777"_s));
        const auto route = NetworkRoute::present();
        QVERIFY(route);
        QCOMPARE(route->device, u"wg7"_s);
        QVERIFY(route->isVPN);
        QVERIFY(run(u"ip rule del not fwmark 0x9 table 777"_s));
        QCOMPARE(NetworkRoute::present()->device, u"eth7"_s);
    }

    void aRouteThatRefusesIsNone()
    {
        QVERIFY(run(u"ip route del default"_s) && run(u"ip route add unreachable default"_s));
        QVERIFY(!NetworkRoute::present());
    }

    void overIPv6AsWell()
    {
        QVERIFY(run(u"ip -6 address add 2001:db8:7::2/64 dev eth7 nodad"_s)
                && run(u"ip -6 route add default via 2001:db8:7::1"_s));
        const auto route = NetworkRoute::present();
        QVERIFY(route);
        QCOMPARE(route->device, u"eth7"_s);
    }
};

VELDMARK_TEST(NetworkRouteTest)
#include "NetworkRouteTest.moc"
