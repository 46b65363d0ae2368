#include "instance/JsonLines.h"

#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QLocalServer>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

class JsonLinesTest : public QObject {
    Q_OBJECT
private:
    // A connection: our end, and the other one as a plain socket.
    struct Pair {
        QTemporaryDir folder;
        QLocalServer server;
        QLocalSocket other;
        std::shared_ptr<JsonLines> lines;

        Pair()
        {
            server.listen(folder.filePath(u"socket"_s));
            other.connectToServer(server.fullServerName());
            until([this] { return server.hasPendingConnections(); });
            lines = JsonLines::over(server.nextPendingConnection());
        }
        // Nothing when there is no answer, too.
        std::optional<QJsonObject> next()
        {
            const auto task = lines->next();
            std::optional<QJsonObject> object;
            bool done = false;
            take(&task, &object, &done);
            return until([&done] { return done; }) ? object : std::nullopt;
        }
        static QCoro::Task<void> take(const QCoro::Task<std::optional<QJsonObject>> *task,
                                      std::optional<QJsonObject> *object, bool *done)
        {
            const std::optional<QJsonObject> result = co_await *task;
            *object = result;
            *done = true;
        }
    };

private Q_SLOTS:
    void givesObjectsInTheirOrderHoweverTheyCome()
    {
        Pair pair;
        pair.other.write("{\"n\":1}\n{\"n\"");
        QCOMPARE(pair.next()->value(u"n"_s), QJsonValue(1));
        pair.other.write(":2}\r\n{}\n");
        QCOMPARE(pair.next()->value(u"n"_s), QJsonValue(2));
        QVERIFY(pair.next()->isEmpty());
    }

    void losesNothingOfAFlood_data()
    {
        QTest::addColumn<bool>("closes");
        QTest::newRow("the other end stays") << false;
        QTest::newRow("the other end goes") << true;
    }

    void losesNothingOfAFlood()
    {
        QFETCH(bool, closes);
        constexpr int count = 20000; // more than all buffers in between can hold
        Pair pair;
        for (int n = 0; n < count; ++n)
            pair.other.write("{\"n\":" + QByteArray::number(n)
                             + ",\"text\":\"xxxxxxxxxxxxxxxxxxxx\"}\n");
        if (closes)
            pair.other.disconnectFromServer();
        settle();
        QVERIFY(pair.other.bytesToWrite() > 0); // it waits in the socket, not in this program's
                                                // memory
        for (int n = 0; n < count; ++n)
            QCOMPARE(pair.next().value_or(QJsonObject()).value(u"n"_s), QJsonValue(n));
        if (closes)
            QVERIFY(!pair.next());
    }

    void endsWith_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("no JSON") << QByteArray("hello\n");
        QTest::newRow("an array") << QByteArray("[]\n");
        QTest::newRow("a number") << QByteArray("5\n");
        QTest::newRow("an empty line") << QByteArray("\n");
        QTest::newRow("two objects") << QByteArray("{}{}\n");
        QTest::newRow("bytes that are no text") << QByteArray("\xff\xfe\x00\x80\n", 5);
        QTest::newRow("deep nesting") << QByteArray(100000, '[') + '\n';
        QTest::newRow("an endless line")
            << QByteArray(JsonLines::lineLimitBytes + 1024 * 1024, 'x');
    }

    void endsWith()
    {
        QFETCH(QByteArray, bytes);
        Pair pair;
        pair.other.write("{\"n\":1}\n" + bytes);
        QVERIFY(pair.next());
        QVERIFY(!pair.next());
        pair.other.write("{\"n\":2}\n"); // later lines are not read
        QVERIFY(!pair.next());
        QVERIFY(pair.lines->isOpen()); // an answer can still be given
    }

    void anUnfinishedLineIsNoObject()
    {
        Pair pair;
        pair.other.write("{\"n\":1}");
        pair.other.disconnectFromServer();
        QVERIFY(!pair.next());
    }

    void whatWasWrittenGoesOutBeforeTheEnd()
    {
        Pair pair;
        pair.other.setReadBufferSize(1024);
        const QString text(3'000'000, u'x');
        pair.lines->write({{u"text"_s, text}});
        QVERIFY(pair.lines->hasUnsent());
        const auto finishing = pair.lines->finish();
        pair.lines.reset(); // only the wait holds it
        QVERIFY(!finishing.isReady());
        QByteArray received;
        QVERIFY(until([&] {
            received += pair.other.readAll();
            return pair.other.state() == QLocalSocket::UnconnectedState;
        }));
        QVERIFY(received.endsWith("\"}\n"));
        QVERIFY(received.size() > text.size());
        QVERIFY(Workbench::finished(finishing));
    }

    void mayGoInTheMiddleOfALine()
    {
        Pair pair;
        pair.other.write("{\"n\":1}\n{\"n\":2}\n{\"text\":\"" + QByteArray(1000, 'x'));
        QVERIFY(pair.next());
        settle();
        pair.lines.reset(); // its socket emits "disconnected", and no slot may run
        QVERIFY(until([&] { return pair.other.state() == QLocalSocket::UnconnectedState; }));
    }

    void abortEndsEveryWait()
    {
        Pair pair;
        const auto waiting = pair.lines->next();
        pair.lines->abort();
        QVERIFY(until([&] { return waiting.isReady(); }));
        QVERIFY(!pair.next());
        pair.lines->write({});
        QVERIFY(!pair.lines->isOpen());
        const auto finishing = pair.lines->finish();
        QVERIFY(finishing.isReady());
    }
};

VELDMARK_TEST(JsonLinesTest)
#include "JsonLinesTest.moc"
