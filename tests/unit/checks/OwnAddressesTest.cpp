#include "checks/OwnAddresses.h"
#include "support/TestProgram.h"

#include <QNetworkInterface>
#include <QTest>

using namespace veldmark;

namespace {

const QHostAddress home(QStringLiteral("192.168.77.2"));
const QHostAddress cafe(QStringLiteral("10.0.0.7"));
const QHostAddress tunnel(QStringLiteral("10.8.0.2"));

} // namespace

class OwnAddressesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatStaysHasNotMoved()
    {
        OwnAddresses addresses;
        for (int look = 0; look < 3; ++look)
            QVERIFY(!addresses.haveMoved({home}));
    }

    void anotherAddressIsToldOnce()
    {
        OwnAddresses addresses;
        addresses.haveMoved({home});
        QVERIFY(addresses.haveMoved({cafe}));
        QVERIFY(!addresses.haveMoved({cafe}));
    }

    void aNetworkThatGoesIsToldWhenThereIsOneAgain()
    {
        OwnAddresses addresses;
        addresses.haveMoved({home});
        QVERIFY(!addresses.haveMoved({}));
        QVERIFY(!addresses.haveMoved({}));
        QVERIFY(addresses.haveMoved({home})); // connections from before the gap may be dead
        QVERIFY(!addresses.haveMoved({home}));
    }

    void oneMoreAddressHarmsNoConnection()
    {
        OwnAddresses addresses;
        addresses.haveMoved({home});
        QVERIFY(!addresses.haveMoved({home, tunnel}));
        QVERIFY(addresses.haveMoved({home}));
    }

    void loopbackIsNone()
    {
        for (const QHostAddress &address : OwnAddresses::present())
            QVERIFY2(!address.isLoopback() && !address.isLinkLocal(),
                     qPrintable(address.toString()));
    }

    void everyOtherAddressIsOne()
    {
        for (const QHostAddress &address : QNetworkInterface::allAddresses()) {
            if (!address.isLoopback() && !address.isLinkLocal())
                QVERIFY2(OwnAddresses::present().contains(address), qPrintable(address.toString()));
        }
    }
};

VELDMARK_BARE_TEST(OwnAddressesTest)
#include "OwnAddressesTest.moc"
