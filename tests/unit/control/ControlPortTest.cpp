#include "control/ControlPort.h"

#include "support/FakeTor.h"
#include "support/ManualClock.h"
#include "support/TestProgram.h"

#include <QTest>

#include <memory>

using namespace std::chrono_literals;
using namespace veldmark;
using Kind = ControlPortError::Kind;

namespace {

QStringList text(std::initializer_list<const char *> lines)
{
    QStringList list;
    for (const char *line : lines)
        list += QString::fromUtf8(line);
    return list;
}

const QString version = QStringLiteral("version");

// What the work during a capture saw and did.
struct Work {
    bool started = false;
    bool stopped = false;
    ResumeOnce<std::monostate> goOn;
};

QCoro::Task<void> emitEvents(FakeTor *tor, QByteArray events, std::shared_ptr<Work> work,
                             StopToken stop)
{
    work->started = true;
    if (!events.isEmpty())
        tor->sendEvent(events);
    const auto goOn = work->goOn;
    co_await goOn;
    work->stopped = stop.stop_requested();
}

ControlPort::Work workThatSends(FakeTor &tor, const QByteArray &events, std::shared_ptr<Work> work)
{
    return [&tor, events, work](StopToken stop) { return emitEvents(&tor, events, work, stop); };
}

} // namespace

class ControlPortTest : public QObject {
    Q_OBJECT
private:
    // A control port to a fake Tor; its time is moved by hand.
    struct Asking {
        FakeTor tor;
        ManualClock clock;
        ControlPort port{clock, tor.port()};
    };

private Q_SLOTS:
    void asksForSeveralKeysOnOneConnection()
    {
        Asking a;
        a.tor.reply("GETINFO traffic/read traffic/written",
                    "250-traffic/read=1234\r\n250-traffic/written=567\r\n250 OK\r\n");
        const auto values = QCoro::waitFor(
            a.port.getInfo(text({"traffic/read", "traffic/written"}), a.tor.password()));
        QCOMPARE(values.value(),
                 ControlPort::Values({{QStringLiteral("traffic/read"), QStringLiteral("1234")},
                                      {QStringLiteral("traffic/written"), QStringLiteral("567")}}));
        QCOMPARE(a.tor.connectionCount(), 1);
        QTRY_COMPARE(a.tor.openConnections(), 0);
    }

    void aSignalSucceedsOrIsTorsRefusal()
    {
        Asking a;
        QVERIFY(QCoro::waitFor(a.port.signal(QStringLiteral("NEWNYM"), a.tor.password())));
        QCOMPARE(a.tor.commands().last(), QStringLiteral("SIGNAL NEWNYM"));
        a.tor.reply("SIGNAL NEWNYM", "552 Unrecognized signal code \"NEWNYM\"\r\n");
        const auto refused = QCoro::waitFor(
            a.port.signal(QStringLiteral("NEWNYM"), a.tor.password()));
        QCOMPARE(refused.error().description(),
                 QStringLiteral("Tor replied: 552 Unrecognized signal code \"NEWNYM\""));
        QTRY_COMPARE(a.tor.openConnections(), 0);
    }

    void aBatchKeepsARefusalsPlace()
    {
        Asking a;
        a.tor.reply("A", "250-a=1\r\n250 OK\r\n");
        a.tor.reply("C", "250 OK\r\n");
        const auto replies
            = QCoro::waitFor(a.port.batch(text({"A", "B", "C"}), a.tor.password())).value();
        QCOMPARE(replies.size(), 3u);
        QCOMPARE(replies[0].value(), text({"250-a=1", "250 OK"}));
        QVERIFY(!replies[1]);
        QCOMPARE(replies[2].value(), text({"250 OK"}));
        QCOMPARE(a.tor.connectionCount(), 1);
        QTRY_COMPARE(a.tor.openConnections(), 0);
    }

    void anEmptyBatchIsEmpty()
    {
        Asking a;
        QCOMPARE(QCoro::waitFor(a.port.batch({}, a.tor.password())).value().size(), 0u);
        QTRY_COMPARE(a.tor.openConnections(), 0);
    }

    void aBatchEndsWithTheConnection()
    {
        Asking a;
        a.tor.reply("A", "250 OK\r\n");
        a.tor.closeAfter("B");
        const auto replies = QCoro::waitFor(a.port.batch(text({"A", "B", "C"}), a.tor.password()));
        QCOMPARE(replies.error(), ControlPortError::closed());
        QVERIFY(!a.tor.commands().contains(QStringLiteral("C")));
    }

    void failuresToConnectAreUnchanged()
    {
        Asking a;
        QCOMPARE(QCoro::waitFor(a.port.getInfo({version}, QStringLiteral("wrong"))).error().kind(),
                 Kind::Tor);
        QTRY_COMPARE(a.tor.openConnections(), 0);
        a.tor.stopListening();
        const auto refused = QCoro::waitFor(a.port.getInfo({version}, a.tor.password()));
        QCOMPARE(refused.error().description(), QStringLiteral("Connection refused"));
        a.tor.listen();
        a.tor.reply("GETINFO version", "250-version=1\r\n250 OK\r\n");
        QVERIFY(QCoro::waitFor(a.port.getInfo({version}, a.tor.password())));
    }

    void smuggledCommandsAreRefusedBeforeConnecting()
    {
        Asking a;
        const QString bad = QStringLiteral("x\r\nSIGNAL HALT");
        const QString password = a.tor.password();
        const auto isRefused = [](const auto &result) {
            return !result && result.error().kind() == Kind::Malformed;
        };
        QVERIFY(isRefused(QCoro::waitFor(a.port.getInfo({version, bad}, password))));
        QVERIFY(isRefused(QCoro::waitFor(a.port.getInfo({version}, bad))));
        QVERIFY(isRefused(QCoro::waitFor(a.port.signal(bad, password))));
        QVERIFY(isRefused(QCoro::waitFor(a.port.batch({version, bad}, password))));
        QVERIFY(isRefused(QCoro::waitFor(a.port.batch({version}, bad))));
        QVERIFY(isRefused(QCoro::waitFor(a.port.captureResolves(bad, 1s, {}))));
        // the next does connect
        QVERIFY(QCoro::waitFor(a.port.signal(QStringLiteral("NEWNYM"), password)));
        QCOMPARE(a.tor.connectionCount(), 1);
        QCOMPARE(a.tor.commands().size(), 2);
    }

    void anAnswerThatDoesNotComeIsTimedOut_data()
    {
        QTest::addColumn<QByteArray>("command");
        QTest::addColumn<QByteArray>("partial");
        QTest::newRow("authentication") << QByteArray("AUTHENTICATE \"secret\"") << QByteArray();
        QTest::newRow("a reply") << QByteArray("GETINFO version") << QByteArray();
        QTest::newRow("the end of a reply")
            << QByteArray("GETINFO version") << QByteArray("250-version=1\r\n250");
        QTest::newRow("the end of a block")
            << QByteArray("GETINFO version") << QByteArray("250+version=\r\n1\r\n250 OK\r\n");
    }
    void anAnswerThatDoesNotComeIsTimedOut()
    {
        QFETCH(QByteArray, command);
        QFETCH(QByteArray, partial);
        Asking a;
        if (partial.isEmpty())
            a.tor.ignore(command);
        else
            a.tor.reply(command, partial);
        auto task = a.port.getInfo({version}, a.tor.password());
        QTRY_VERIFY(a.tor.commands().contains(QString::fromUtf8(command)));
        a.clock.advance(19'999ms);
        QVERIFY(!task.isReady());
        a.clock.advance(1ms);
        QTRY_VERIFY(task.isReady());
        QCOMPARE(QCoro::waitFor(std::move(task)).error(), ControlPortError::timedOut());
        QTRY_COMPARE(a.tor.openConnections(), 0);
    }

    void theLimitCanBeSetForACall()
    {
        Asking a;
        a.tor.setSilent(true);
        auto task = a.port.signal(QStringLiteral("NEWNYM"), a.tor.password(), 3s);
        QTRY_COMPARE(a.tor.commands().size(), 1);
        a.clock.advance(3s);
        QTRY_VERIFY(task.isReady());
        QCOMPARE(QCoro::waitFor(std::move(task)).error().kind(), Kind::TimedOut);
    }

    void garbageIsAnErrorOrATimeOut_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("nuls") << QByteArray(100'000, '\0');
        QTest::newRow("endless line") << QByteArray(3'000'000, 'x');
        QTest::newRow("http") << QByteArray("HTTP/1.1 400 Bad Request\r\nServer: x\r\n\r\n");
        QTest::newRow("tls") << QByteArray("\x15\x03\x01\x00\x02\x02\x16", 7);
    }
    void garbageIsAnErrorOrATimeOut()
    {
        QFETCH(QByteArray, bytes);
        Asking a;
        a.tor.reply("AUTHENTICATE \"secret\"", bytes);
        auto task = a.port.getInfo({version}, a.tor.password());
        QTRY_COMPARE(a.tor.commands().size(), 1);
        a.clock.advance(20s);
        QTRY_VERIFY(task.isReady());
        QVERIFY(!QCoro::waitFor(std::move(task)));
        QTRY_COMPARE(a.tor.openConnections(), 0);
    }

    void operationsRunAtOnce()
    {
        Asking a;
        a.tor.ignore("SIGNAL SLOW");
        a.tor.reply("GETINFO version", "250-version=1\r\n250 OK\r\n");
        auto slow = a.port.signal(QStringLiteral("SLOW"), a.tor.password());
        QTRY_VERIFY(a.tor.commands().contains(QStringLiteral("SIGNAL SLOW")));
        QVERIFY(QCoro::waitFor(a.port.getInfo({version}, a.tor.password())));
        QVERIFY(!slow.isReady());
        QCOMPARE(a.tor.openConnections() >= 1, true);
        a.tor.disconnectAll();
        QTRY_VERIFY(slow.isReady());
    }

    void capturesTheNamesThatTheWorkAsksFor()
    {
        Asking a;
        const auto work = std::make_shared<Work>();
        auto task = a.port.captureResolves(
            a.tor.password(), 5s,
            workThatSends(a.tor,
                          "650 STREAM 1 NEWRESOLVE 0 One.example:0 PURPOSE=DNS_REQUEST\r\n"
                          "650 STREAM 2 NEW 0 web.example:443 PURPOSE=USER\r\n"
                          "650 STREAM 1 SUCCEEDED 5 One.example:0 PURPOSE=DNS_REQUEST\r\n",
                          work));
        QTRY_VERIFY(work->started);
        QVERIFY(!task.isReady());
        a.tor.hangUp();
        QTRY_VERIFY(task.isReady());
        QCOMPARE(QCoro::waitFor(std::move(task)).value(), text({"one.example", "one.example"}));
        QCOMPARE(a.tor.commands().last(), QStringLiteral("SETEVENTS STREAM"));
        QVERIFY(!work->stopped);
        work->goOn.complete({});
        QTRY_VERIFY(work->stopped); // it had been asked to
    }

    void aCaptureEndsWithItsTimeAndHasNoOtherLimit()
    {
        Asking a;
        const auto work = std::make_shared<Work>();
        auto task = a.port.captureResolves(a.tor.password(), 60s, workThatSends(a.tor, {}, work),
                                           2s);
        QTRY_VERIFY(work->started);
        a.clock.advance(59'999ms); // far beyond the limit
        QVERIFY(!task.isReady());
        QCOMPARE(a.tor.openConnections(), 1);
        a.clock.advance(1ms);
        QTRY_VERIFY(task.isReady());
        QCOMPARE(QCoro::waitFor(std::move(task)).value(), QStringList());
        QTRY_COMPARE(a.tor.openConnections(), 0);
        work->goOn.complete({});
        QTRY_VERIFY(work->stopped);
    }

    void aCaptureThatCannotBeginFailsAndDoesNoWork_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<Kind>("kind");
        QTest::newRow("refused") << QByteArray("552 Unrecognized event\r\n") << Kind::Tor;
        QTest::newRow("silent") << QByteArray() << Kind::TimedOut;
    }
    void aCaptureThatCannotBeginFailsAndDoesNoWork()
    {
        QFETCH(QByteArray, answer);
        QFETCH(Kind, kind);
        Asking a;
        if (answer.isEmpty())
            a.tor.ignore("SETEVENTS STREAM");
        else
            a.tor.reply("SETEVENTS STREAM", answer);
        const auto work = std::make_shared<Work>();
        auto task = a.port.captureResolves(a.tor.password(), 5s, workThatSends(a.tor, {}, work));
        QTRY_VERIFY(a.tor.commands().contains(QStringLiteral("SETEVENTS STREAM")));
        a.clock.advance(20s);
        QTRY_VERIFY(task.isReady());
        QCOMPARE(QCoro::waitFor(std::move(task)).error().kind(), kind);
        QVERIFY(!work->started);
        work->goOn.complete({});
    }

    void hearsEventsAsTheyComeUntilItIsEnough()
    {
        Asking a;
        QStringList heard;
        const ControlPort::Hearer hear = [&heard](const QString &line) {
            heard << line;
            return line != QLatin1String("650 STREAM enough");
        };
        auto hearing = a.port.hearStreams(a.tor.password(), hear, 2s);
        QTRY_VERIFY(a.tor.commands().contains(QStringLiteral("SETEVENTS STREAM")));
        a.tor.sendEvent("650 STREAM 1 NEW 0 a:1\r\n650 STREAM 1 SENT");
        QTRY_COMPARE(heard, text({"650 STREAM 1 NEW 0 a:1"}));
        a.clock.advance(24h); // its limit is for the beginning
        QVERIFY(!hearing.isReady());
        a.tor.sendEvent("CONNECT 5 a:1\r\n");
        QTRY_COMPARE(heard.size(), 2);
        QCOMPARE(heard.constLast(), QStringLiteral("650 STREAM 1 SENTCONNECT 5 a:1"));
        a.tor.sendEvent("650 STREAM enough\r\n650 STREAM more\r\n");
        QTRY_VERIFY(hearing.isReady());
        QVERIFY(QCoro::waitFor(std::move(hearing)));
        QCOMPARE(heard.size(), 3);
        QTRY_COMPARE(a.tor.openConnections(), 0);
    }

    void hearingEndsWithItsConnection_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<Kind>("kind");
        QTest::newRow("Tor ends it") << QByteArray("250 OK\r\n") << Kind::Closed;
        QTest::newRow("Tor refuses") << QByteArray("552 Unrecognized event\r\n") << Kind::Tor;
        QTest::newRow("Tor is silent") << QByteArray() << Kind::TimedOut;
    }
    void hearingEndsWithItsConnection()
    {
        QFETCH(QByteArray, answer);
        QFETCH(Kind, kind);
        Asking a;
        if (answer.isEmpty())
            a.tor.ignore("SETEVENTS STREAM");
        else
            a.tor.reply("SETEVENTS STREAM", answer);
        int heard = 0;
        const ControlPort::Hearer hear = [&heard](const QString &) { return ++heard > 0; };
        auto hearing = a.port.hearStreams(a.tor.password(), hear, 2s);
        QTRY_VERIFY(a.tor.commands().contains(QStringLiteral("SETEVENTS STREAM")));
        if (kind == Kind::Closed) {
            a.tor.sendEvent("650 STREAM 1\r\n650 STREAM half");
            QTRY_COMPARE(heard, 1);
            a.tor.hangUp();
        }
        if (kind == Kind::TimedOut)
            a.clock.advance(2s);
        QTRY_VERIFY(hearing.isReady());
        QCOMPARE(QCoro::waitFor(std::move(hearing)).error().kind(), kind);
        QCOMPARE(heard, kind == Kind::Closed ? 1 : 0);
        QTRY_COMPARE(a.tor.openConnections(), 0);
    }

    void destroyingThePortEndsItsOperations()
    {
        FakeTor tor;
        auto clock = std::make_unique<ManualClock>();
        auto port = std::make_unique<ControlPort>(*clock, tor.port());
        tor.ignore("SIGNAL SLOW");
        auto signal = port->signal(QStringLiteral("SLOW"), tor.password());
        const auto work = std::make_shared<Work>();
        auto capture = port->captureResolves(tor.password(), 5s, workThatSends(tor, {}, work));
        const ControlPort::Hearer hear = [](const QString &) { return true; };
        auto hearing = port->hearStreams(tor.password(), hear);
        QTRY_VERIFY(work->started && tor.commands().contains(QStringLiteral("SIGNAL SLOW"))
                    && tor.commands().count(QStringLiteral("SETEVENTS STREAM")) == 2);
        port.reset();
        clock.reset();
        QTRY_VERIFY(signal.isReady() && capture.isReady() && hearing.isReady());
        QCOMPARE(QCoro::waitFor(std::move(hearing)).error(), ControlPortError::closed());
        QCOMPARE(QCoro::waitFor(std::move(signal)).error(), ControlPortError::closed());
        QVERIFY(QCoro::waitFor(std::move(capture)).value().isEmpty());
        QTRY_COMPARE(tor.openConnections(), 0);
        work->goOn.complete({});
        QTRY_VERIFY(work->stopped);
    }

    // The port is destroyed when the reply to the subscription has arrived and the task is not yet
    // resumed.
    void destroyingThePortAtAnyMomentIsSafe()
    {
        int withWork = 0;
        for (int turns = 0; turns < 60; ++turns) {
            FakeTor tor;
            auto clock = std::make_unique<ManualClock>();
            auto port = std::make_unique<ControlPort>(*clock, tor.port());
            const auto work = std::make_shared<Work>();
            auto capture = port->captureResolves(tor.password(), 5s, workThatSends(tor, {}, work));
            for (int i = 0; i < turns; ++i)
                QCoreApplication::processEvents();
            withWork += work->started;
            port.reset();
            clock.reset();
            QTRY_VERIFY(capture.isReady());
            work->goOn.complete({});
            QTRY_VERIFY(!work->started || work->stopped);
        }
        QVERIFY(withWork < 60);
    }

    void aCallerThatNoLongerWaitsHurtsNothing()
    {
        Asking a;
        {
            auto dropped = a.port.signal(QStringLiteral("NEWNYM"), a.tor.password());
        }
        QTRY_COMPARE(a.tor.commands().size(), 2);
        QTRY_COMPARE(a.tor.openConnections(), 0);
    }
};

VELDMARK_TEST(ControlPortTest)
#include "ControlPortTest.moc"
