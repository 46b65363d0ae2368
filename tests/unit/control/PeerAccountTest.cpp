#include "control/PeerAccount.h"

#include "control/ControlPort.h"
#include "support/FakeTor.h"
#include "support/ManualClock.h"
#include "support/TestProgram.h"

#include <QTcpServer>
#include <QTest>

#include <unistd.h>

using namespace std::chrono_literals;
using namespace veldmark;
using Kind = PeerAccount::Kind;

class PeerAccountTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void readsTheKernelsTable_data()
    {
        QTest::addColumn<int>("own");
        QTest::addColumn<PeerAccount>("peer");
        QTest::newRow("accepted") << 0xC001 << PeerAccount{Kind::Accepted, 117};
        QTest::newRow("of root") << 0xC002 << PeerAccount{Kind::Accepted, 0};
        QTest::newRow("not yet accepted") << 0xC003 << PeerAccount{Kind::Waiting, 0};
        QTest::newRow("none") << 0xC004 << PeerAccount{};
        QTest::newRow("our own end alone") << 0xC005 << PeerAccount{};
        QTest::newRow("to another address") << 0xC006 << PeerAccount{};
        QTest::newRow("cut short") << 0xC007 << PeerAccount{};
    }

    void readsTheKernelsTable()
    {
        const QByteArray table
            = "  sl  local_address rem_address   st tx_queue rx_queue tr tm->when retrnsmt   uid  timeout inode\n"
              "   0: 0100007F:235B 00000000:0000 0A 00000000:00000000 00:00000000 00000000   117        0 34851 1 0 100 0 0 10 0\n"
              "   1: 0100007F:235B 0100007F:C001 01 00000000:00000000 00:00000000 00000000   117        0 35001 1 0 20 4 30 10 -1\n"
              "   2: 0100007F:235B 0100007F:C002 01 00000000:00000000 00:00000000 00000000     0        0 35002 1 0 20 4 30 10 -1\n"
              "   3: 0100007F:235B 0100007F:C003 01 00000000:00000000 00:00000000 00000000     0        0 0 1 0 20 4 30 10 -1\n"
              "   4: 0100007F:C005 0100007F:235B 01 00000000:00000000 00:00000000 00000000   117        0 35003 1 0 20 4 30 10 -1\n"
              "   5: 0200007F:235B 0100007F:C006 01 00000000:00000000 00:00000000 00000000   117        0 35004 1 0 20 4 30 10 -1\n"
              "   6: 0100007F:235B 0100007F:C007 01 00000000:00000000 00:";
#ifdef __BYTE_ORDER__
        if (__BYTE_ORDER__ != __ORDER_LITTLE_ENDIAN__)
            QSKIP("the table is a little-endian machine's");
#endif
        QFETCH(int, own);
        QTEST(PeerAccount::in(table, 9051, static_cast<quint16>(own)), "peer");
    }

    void thePasswordGoesToTorsAccountAlone()
    {
        ManualClock clock;
        FakeTor tor;
        tor.reply("GETINFO version", "250-version=0.4.8\r\n250 OK\r\n");
        const auto ask = [&clock, &tor](ControlPort::TorUser user) {
            ControlPort port(clock, tor.port(), std::move(user));
            return QCoro::waitFor(port.getInfo({QStringLiteral("version")}, tor.password()));
        };
        const auto us = ask([] { return std::optional(::geteuid()); });
        QVERIFY2(us, us ? "" : qPrintable(us.error().description().english()));
        const auto heard = tor.commands().size();
        QVERIFY(heard > 0);
        for (const std::optional<uid_t> other :
             {std::optional<uid_t>(::geteuid() + 1), std::optional<uid_t>()}) {
            const auto stranger = ask([other] { return other; });
            QVERIFY(!stranger);
            QCOMPARE(stranger.error().kind(), ControlPortError::Kind::Stranger);
            QCOMPARE(stranger.error().description(),
                     QStringLiteral("A program other than Tor listens on Tor's control port."));
        }
        QCOMPARE(tor.commands().size(), heard);
    }

    // Before a process accepts the connection, its account is unknown.
    void nothingIsSaidBeforeTheConnectionIsAccepted()
    {
        ManualClock clock;
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        server.pauseAccepting();
        ControlPort port(clock, server.serverPort(), [] { return std::optional(::geteuid()); });
        auto asked = port.getInfo({QStringLiteral("version")}, QStringLiteral("secret"), 5s);
        QTest::qWait(100);
        QVERIFY(!asked.isReady());
        clock.advance(5s);
        QTRY_VERIFY(asked.isReady());
        QCOMPARE(QCoro::waitFor(std::move(asked)).error().kind(), ControlPortError::Kind::TimedOut);
        server.resumeAccepting();
        QTRY_VERIFY(server.hasPendingConnections());
        QCOMPARE(server.nextPendingConnection()->readAll(), QByteArray());
    }
};

VELDMARK_TEST(PeerAccountTest)
#include "PeerAccountTest.moc"
