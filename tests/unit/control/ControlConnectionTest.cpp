#include "control/ControlConnection.h"

#include "support/FakeTor.h"
#include "support/ManualClock.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QNetworkProxy>
#include <QScopeGuard>
#include <QTest>

using namespace std::chrono_literals;
using namespace veldmark;
using Kind = ControlPortError::Kind;

namespace {

// An authenticated connection to a fake Tor of its own.
struct Opened {
    FakeTor tor;
    ControlConnection connection{tor.port()};
    Opened()
    {
        if (!QCoro::waitFor(connection.open(tor.password())))
            qFatal("the fake Tor cannot be reached");
    }
};

Result<QStringList, ControlPortError> ask(ControlConnection &connection, const char *command)
{
    return QCoro::waitFor(connection.command(QString::fromUtf8(command)));
}

QStringList text(std::initializer_list<const char *> lines)
{
    QStringList list;
    for (const char *line : lines)
        list += QString::fromUtf8(line);
    return list;
}

} // namespace

class ControlConnectionTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void errorsAreDescribedInSentences()
    {
        QCOMPARE(ControlPortError::notConnected().description(),
                 QStringLiteral("Not connected to Tor's control port."));
        QCOMPARE(ControlPortError::closed().description(),
                 QStringLiteral("Tor closed the control connection."));
        QCOMPARE(ControlPortError::tor(QStringLiteral("552 Unrecognized key")).description(),
                 QStringLiteral("Tor replied: 552 Unrecognized key"));
        QCOMPARE(ControlPortError::timedOut().description(),
                 QStringLiteral("Tor didn't answer on its control port in time."));
        QCOMPARE(ControlPortError::network(QStringLiteral("x")).description(), QStringLiteral("x"));
    }

    void authenticatesWithThePasswordInQuotes()
    {
        Opened opened;
        QCOMPARE(opened.tor.commands(), text({"AUTHENTICATE \"secret\""}));
    }

    void aWrongPasswordIsTorsLine()
    {
        FakeTor tor;
        ControlConnection connection(tor.port());
        const auto result = QCoro::waitFor(connection.open(QStringLiteral("wrong")));
        QCOMPARE(result.error().kind(), Kind::Tor);
        QVERIFY(result.error().description().english().startsWith(
            QStringLiteral("Tor replied: 515 Authentication failed")));
        QVERIFY(result.error().line().startsWith(QStringLiteral("515 ")));
    }

    void aRefusedConnectionIsTheSystemsError()
    {
        FakeTor tor;
        tor.stopListening();
        ControlConnection connection(tor.port());
        const auto result = QCoro::waitFor(connection.open(tor.password()));
        QCOMPARE(result.error().kind(), Kind::Network);
        QCOMPARE(result.error().description(), QStringLiteral("Connection refused"));
    }

    void withoutAConnectionNothingCanBeSent()
    {
        ControlConnection connection(1);
        QCOMPARE(ask(connection, "GETINFO version").error(), ControlPortError::notConnected());
        QCOMPARE(QCoro::waitFor(connection.receive()).error(), ControlPortError::notConnected());
        QCOMPARE(QCoro::waitFor(connection.send("x")).error(), ControlPortError::notConnected());
        Opened opened;
        opened.connection.close();
        QCOMPARE(ask(opened.connection, "GETINFO version").error(),
                 ControlPortError::notConnected());
        QTRY_COMPARE(opened.tor.openConnections(), 0);
    }

    void anySuccessCodeIsSuccess_data()
    {
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<bool>("success");
        QTest::newRow("250") << QByteArray("250 OK\r\n") << true;
        QTest::newRow("251") << QByteArray("251 Operation was unnecessary\r\n") << true;
        QTest::newRow("2 alone") << QByteArray("2xx yes\r\n") << true;
        QTest::newRow("552") << QByteArray("552 Unrecognized key \"x\"\r\n") << false;
        QTest::newRow("success then refusal") << QByteArray("250-a=1\r\n552 no\r\n") << false;
        QTest::newRow("an event") << QByteArray("650 STREAM 1\r\n") << false;
    }
    void anySuccessCodeIsSuccess()
    {
        QFETCH(QByteArray, reply);
        QFETCH(bool, success);
        Opened opened;
        opened.tor.reply("X", reply);
        const auto result = ask(opened.connection, "X");
        QCOMPARE(result.has_value(), success);
        const QString last
            = QString::fromUtf8(reply).trimmed().split(QStringLiteral("\r\n")).last();
        if (success)
            QCOMPARE(result->last(), last);
        else
            QCOMPARE(result.error(), ControlPortError::tor(last));
    }

    void theConnectionStaysUsableAfterARefusal()
    {
        Opened opened;
        opened.tor.reply("A", "250 OK\r\n");
        QVERIFY(!ask(opened.connection, "B"));
        QCOMPARE(ask(opened.connection, "A").value(), text({"250 OK"}));
    }

    void aReplyInSingleBytesIsTheSame()
    {
        Opened opened;
        opened.tor.setDribbling(true);
        opened.tor.reply("X", "250+k=\r\n250 OK\r\n..\r\n.\r\n250 Ende gut \xc3\xbc\r\n");
        QCOMPARE(ask(opened.connection, "X").value(),
                 text({"250+k=", "250 OK", "..", ".", "250 Ende gut ü"}));
    }

    void bytesAfterTheFinalLineAreTheNextReply()
    {
        Opened opened;
        opened.tor.reply("A", "250 first\r\n250 sec");
        opened.tor.reply("B", "ond\r\n");
        QCOMPARE(ask(opened.connection, "A").value(), text({"250 first"}));
        QCOMPARE(ask(opened.connection, "B").value(), text({"250 second"}));
    }

    void megabytesArriveWhole()
    {
        QByteArray body;
        for (int i = 0; i < 60'000; ++i)
            body += "line " + QByteArray::number(i) + " of some length, to fill the socket\r\n";
        Opened opened;
        opened.tor.reply("X", "250+k=\r\n" + body + ".\r\n250 OK\r\n");
        opened.tor.closeAfter("X"); // data from before the end are not lost
        const auto lines = ask(opened.connection, "X");
        QCOMPARE(lines->size(), 60'003);
        QVERIFY(lines->at(60'000).startsWith(QStringLiteral("line 59999 ")));
    }

    void aConnectionThatTorClosesIsClosed_data()
    {
        QTest::addColumn<QByteArray>("partial");
        QTest::newRow("before a byte") << QByteArray("");
        QTest::newRow("within a line") << QByteArray("250-a");
        QTest::newRow("within a reply") << QByteArray("250-a=1\r\n");
        QTest::newRow("within a block") << QByteArray("250+a=\r\n1\r\n250 OK\r\n");
    }
    void aConnectionThatTorClosesIsClosed()
    {
        QFETCH(QByteArray, partial);
        Opened opened;
        if (!partial.isEmpty())
            opened.tor.reply("X", partial);
        opened.tor.closeAfter("X");
        QCOMPARE(ask(opened.connection, "X").error(), ControlPortError::closed());
        QCOMPARE(ask(opened.connection, "X").error(), ControlPortError::closed());
    }

    void closingWhileAReplyIsAwaitedEndsTheWait()
    {
        Opened opened;
        opened.tor.ignore("X");
        auto task = opened.connection.command(QStringLiteral("X"));
        QTRY_COMPARE(opened.tor.commands().size(), 2);
        QVERIFY(!task.isReady());
        opened.connection.close();
        QTRY_VERIFY(task.isReady());
        QCOMPARE(QCoro::waitFor(std::move(task)).error(), ControlPortError::closed());
    }

    void closingBeforeItIsReadyIsClosed()
    {
        FakeTor tor;
        ControlConnection connection(tor.port());
        auto task = connection.open(tor.password());
        QVERIFY(!task.isReady());
        connection.close();
        QTRY_VERIFY(task.isReady());
        QCOMPARE(QCoro::waitFor(std::move(task)).error(), ControlPortError::closed());
    }

    void theReasonOfAnAbortIsTheError()
    {
        Opened opened;
        opened.tor.ignore("X");
        auto task = opened.connection.command(QStringLiteral("X"));
        opened.connection.abort(ControlPortError::timedOut());
        opened.connection.abort(ControlPortError::closed()); // the first error counts
        QTRY_VERIFY(task.isReady());
        QCOMPARE(QCoro::waitFor(std::move(task)).error(), ControlPortError::timedOut());
        QCOMPARE(ask(opened.connection, "X").error(), ControlPortError::timedOut());
    }

    // The connection is ready and then lost before the waiting task runs again. The task must be
    // resumed only once.
    void aConnectionLostRightAfterItWasReadyResumesTheOpenerOnce()
    {
        for (int round = 0; round < 50; ++round) {
            FakeTor tor;
            tor.reply("AUTHENTICATE \"secret\"", "250 OK\r\n");
            tor.closeAfter("AUTHENTICATE \"secret\"");
            ControlConnection connection(tor.port());
            const auto opened = QCoro::waitFor(connection.open(tor.password()));
            QVERIFY(opened);
            QCOMPARE(ask(connection, "X").error(), ControlPortError::closed());
        }
    }

    void commandsOfMoreThanOneLineAreNeverSent_data()
    {
        QTest::addColumn<QString>("command");
        QTest::newRow("line feed") << QStringLiteral("GETINFO a\nSIGNAL HALT");
        QTest::newRow("both") << QStringLiteral("GETINFO a\r\nSIGNAL HALT");
        QTest::newRow("carriage return") << QStringLiteral("GETINFO a\rSIGNAL HALT");
        QTest::newRow("nul") << QStringLiteral("GETINFO a") + QChar(u'\0');
    }
    void commandsOfMoreThanOneLineAreNeverSent()
    {
        QFETCH(QString, command);
        Opened opened;
        const auto result = QCoro::waitFor(opened.connection.command(command));
        QCOMPARE(result.error().kind(), Kind::Malformed);
        ControlConnection other(opened.tor.port());
        QCOMPARE(QCoro::waitFor(other.open(command)).error().kind(), Kind::Malformed);
        opened.tor.reply("GETINFO a", "250 OK\r\n");
        QVERIFY(ask(opened.connection, "GETINFO a")); // sent after it, and separately
        QCOMPARE(opened.tor.commands(), text({"AUTHENTICATE \"secret\"", "GETINFO a"}));
        QCOMPARE(opened.tor.connectionCount(), 1);
    }

    void aLineWithoutEndFailsAtTheLimit()
    {
        Opened opened;
        opened.tor.reply("X", "250 " + QByteArray(2 * ReplyFraming::largestLineBytes, 'x'));
        QCOMPARE(ask(opened.connection, "X").error().kind(), Kind::Malformed);
    }

    void collectsEveryLineWithoutFraming()
    {
        ManualClock clock;
        Opened opened;
        opened.tor.reply("SETEVENTS STREAM", "250 OK\r\n650 early\r\n");
        QVERIFY(ask(opened.connection, "SETEVENTS STREAM"));
        auto task = opened.connection.collectEvents(&clock, 5s);
        opened.tor.sendEvent("650 one\r\n250 OK\r\n65");
        opened.tor.sendEvent("0 two\r\nanything\r\nunfin");
        QVERIFY(!task.isReady());
        opened.tor.hangUp(); // all sent data arrive before the end
        QTRY_VERIFY(task.isReady());
        QCOMPARE(QCoro::waitFor(std::move(task)),
                 text({"650 early", "650 one", "250 OK", "650 two", "anything"}));
    }

    void aCaptureEndsWhenItsTimeIsUp()
    {
        ManualClock clock;
        Opened opened;
        QVERIFY(ask(opened.connection, "SETEVENTS STREAM"));
        auto task = opened.connection.collectEvents(&clock, 5s);
        clock.advance(4999ms);
        QVERIFY(!task.isReady());
        QVERIFY(opened.connection.isOpen());
        clock.advance(1ms);
        QTRY_VERIFY(task.isReady());
        QCOMPARE(QCoro::waitFor(std::move(task)), QStringList());
        QVERIFY(!opened.connection.isOpen());
        QTRY_COMPARE(opened.tor.openConnections(), 0);
    }

    void noTimeAtAllGivesWhatIsBuffered()
    {
        ManualClock clock;
        Opened opened;
        opened.tor.reply("SETEVENTS STREAM", "250 OK\r\n650 early\r\n");
        QVERIFY(ask(opened.connection, "SETEVENTS STREAM"));
        auto task = opened.connection.collectEvents(&clock, 0s);
        clock.advance(0s);
        QTRY_VERIFY(task.isReady());
        QCOMPARE(QCoro::waitFor(std::move(task)), text({"650 early"}));
        ControlConnection never(1);
        QCOMPARE(QCoro::waitFor(never.collectEvents(&clock, 5s)), QStringList());
    }

    void theWatchOverACaptureThatEndedDoesNothing()
    {
        ManualClock clock;
        Opened opened;
        QVERIFY(ask(opened.connection, "SETEVENTS STREAM"));
        auto task = opened.connection.collectEvents(&clock, 5s);
        opened.tor.disconnectAll();
        QTRY_VERIFY(task.isReady());
        const auto failure = ask(opened.connection, "X").error();
        clock.advance(10s);
        QCOMPARE(ask(opened.connection, "X").error(), failure);
    }

    void goesPastTheProgramsProxy()
    {
        FakeTor tor;
        const auto restore = qScopeGuard(
            [] { QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy); });
        QNetworkProxy::setApplicationProxy(
            QNetworkProxy(QNetworkProxy::Socks5Proxy, QStringLiteral("127.0.0.1"), tor.port()));
        // Qt never uses a proxy for "localhost" and its addresses. This is another address that
        // leads there.
        const QHostAddress here(QStringLiteral("0.0.0.0"));
        QTcpSocket ordinary;
        ordinary.connectToHost(here, tor.port());
        QTRY_VERIFY(tor.connectionCount() == 1);
        // it would speak SOCKS to a server that is none
        QVERIFY(ordinary.state() != QAbstractSocket::ConnectedState);
        ControlConnection connection(tor.port(), here);
        QVERIFY(QCoro::waitFor(connection.open(tor.password())));
    }

    void aCaptureHoldsNoMoreThanItsLimit()
    {
        ManualClock clock;
        Opened opened;
        QVERIFY(ask(opened.connection, "SETEVENTS STREAM"));
        const auto task = opened.connection.collectEvents(&clock, 5s);
        // Short lines: each takes more memory than its bytes.
        const QByteArray lines = QByteArray("650\r\n").repeated(10'000);
        const qsizetype needed = ReplyFraming::largestReplyBytes
            / (3 + ReplyFraming::lineOverheadBytes);
        qsizetype sent = 0;
        for (; sent <= needed + 20'000 && !task.isReady(); sent += 10'000) {
            opened.tor.sendEvent(lines);
            QCoreApplication::processEvents();
        }
        QTRY_VERIFY(task.isReady()); // by the limit: no time has passed, and Tor has not closed the
                                     // connection
        QVERIFY(!opened.connection.isOpen());
    }

    void takesAtMost65536BytesAtOnce()
    {
        Opened opened;
        opened.tor.reply("X", QByteArray(300'000, 'x'));
        QVERIFY(QCoro::waitFor(opened.connection.send("X\r\n")));
        qsizetype received = 0;
        bool wasFull = false;
        while (received < 300'000) {
            QTest::qWait(20); // more than that is there by now
            const auto chunk = QCoro::waitFor(opened.connection.receive());
            QVERIFY(chunk);
            QVERIFY2(chunk->size() <= 65'536, qPrintable(QString::number(chunk->size())));
            wasFull = wasFull || chunk->size() == 65'536;
            received += chunk->size();
        }
        QVERIFY(wasFull);
        QCOMPARE(received, qsizetype(300'000));
    }
};

VELDMARK_TEST(ControlConnectionTest)
#include "ControlConnectionTest.moc"
