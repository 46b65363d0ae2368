#include "control/ReplyFraming.h"
#include "support/TestProgram.h"

#include <QTest>

#include <random>

using namespace veldmark;

namespace {

// Everything that a stream yields: replies in order, and the error that ended it, if any.
struct Framed {
    std::vector<QStringList> replies;
    QString error;
    bool operator==(const Framed &) const = default;
};

// Frames `stream`, which is fed in pieces of the sizes from `nextSize`.
template <typename Sizes> Framed frame(const QByteArray &stream, Sizes nextSize)
{
    ReplyFraming framing;
    Framed framed;
    for (qsizetype at = 0; at < stream.size();) {
        const qsizetype size = std::min<qsizetype>(nextSize(), stream.size() - at);
        framing.feed(QByteArrayView(stream).sliced(at, size));
        at += size;
        for (;;) {
            const auto reply = framing.nextReply();
            if (!reply) {
                framed.error = reply.error().description().english();
                break;
            }
            if (!*reply)
                break;
            framed.replies.push_back(**reply);
        }
    }
    return framed;
}

Framed frameWhole(const QByteArray &stream)
{
    return frame(stream, [&stream] { return stream.size(); });
}

QStringList text(std::initializer_list<const char *> lines)
{
    QStringList list;
    for (const char *line : lines)
        list += QString::fromUtf8(line);
    return list;
}

std::vector<QByteArray> hostileStreams()
{
    return {
        "250 OK\r\n",
        "250-version=0.4.8\r\n250 OK\r\n250-a=1\r\n250 OK\r\n",
        "250+circuit-status=\r\n1 BUILT $AB~x\r\n250 OK\r\n..\r\n.\r\n250 OK\r\n552 no\r\n",
        "250-a=x\ny\rz\r\r\n250 OK\r\n",
        "\r\n\r\n2\r\n25\r\n250\r\n250 OK\r\n",
        "\n\n\r\n\r\r\n\r\n250 \r\n",
        QByteArray("250-\0\0=\0\r\n250 \0\r\n", 17),
        "250-name=\xff\xfe\xc3\r\n250 \xe2\x82\r\n",
        "\xef\xbb\xbf"
        "250 hidden\r\n250 OK\r\n",
        "250+a=\r\n.\r\n250+b=\r\n. \r\n .\r\n...\r\n.\r\n250 OK\r\n",
        "250+endless=\r\nbody\r\nbody\r\n250 OK\r\n",
        "no line end at all",
        "\xd0\xb0\xd0\xb1\xd0\xb2 \r\n250 OK\r\n",
        "xxx\r\nxxx+\r\nxxx \r\n.\r\nxxx \r\n",
    };
}

} // namespace

class ReplyFramingTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cutsRepliesAtTheirFinalLines_data()
    {
        QTest::addColumn<QByteArray>("stream");
        QTest::addColumn<QList<QStringList>>("replies");
        const auto row = [](const char *name, const QByteArray &stream,
                            QList<QStringList> replies) {
            QTest::newRow(name) << stream << replies;
        };
        row("one line", "250 OK\r\n", {text({"250 OK"})});
        row("nothing complete", "250 OK\r", {});
        row("mid-reply lines", "250-a=1\r\n250-b=2\r\n250 OK\r\n",
            {text({"250-a=1", "250-b=2", "250 OK"})});
        row("two replies", "250 OK\r\n552 no\r\n", {text({"250 OK"}), text({"552 no"})});
        row("bare line feed", "250-a\nb\r\n250 OK\r\n", {text({"250-a\nb", "250 OK"})});
        row("bare line feed after a blank", "250 a\nb\r\n", {text({"250 a\nb"})});
        row("bare carriage return", "250-a\rb\r\n250 OK\r\n", {text({"250-a\rb", "250 OK"})});
        row("line that starts with a line feed", "\n250 OK\r\n250 OK\r\n",
            {text({"\n250 OK", "250 OK"})});
        row("short lines", "\r\n25\r\n250\r\n250 OK\r\n", {text({"", "25", "250", "250 OK"})});
        row("fourth character alone", "250 \r\n", {text({"250 "})});
        row("data block", "250+k=\r\n250 OK\r\n5\r\n..x\r\n.\r\n250 OK\r\n",
            {text({"250+k=", "250 OK", "5", "..x", ".", "250 OK"})});
        row("dot outside a block", ".\r\n250 OK\r\n", {text({".", "250 OK"})});
        row("two blocks", "250+a=\r\n.\r\n250+b=\r\n.\r\n250 OK\r\n",
            {text({"250+a=", ".", "250+b=", ".", "250 OK"})});
        row("block without end", "250+a=\r\nb\r\n250 OK\r\n", {});
        row("plus inside a block", "250+a=\r\nxxx+\r\n.\r\n250 OK\r\n",
            {text({"250+a=", "xxx+", ".", "250 OK"})});
        row("no status code", "abc def\r\n", {text({"abc def"})});
        row("repaired", "250 \xff\r\n", {text({"250 \xef\xbf\xbd"})});
        row("mark before the code",
            "\xef\xbb\xbf"
            "250 x\r\n250 OK\r\n",
            {{QChar(QChar::ByteOrderMark) + QStringLiteral("250 x"), QStringLiteral("250 OK")}});
        row("letters of two bytes", "\xc3\xa4\xc3\xb6\xc3\xbc OK\r\n", {text({"äöü OK"})});
    }
    void cutsRepliesAtTheirFinalLines()
    {
        QFETCH(QByteArray, stream);
        QFETCH(QList<QStringList>, replies);
        const Framed framed = frameWhole(stream);
        QCOMPARE(QList<QStringList>(framed.replies.begin(), framed.replies.end()), replies);
        QCOMPARE(framed.error, QString());
        QCOMPARE(frame(stream, [] { return 1; }), framed);
    }

    void nulsArePartOfTheText()
    {
        const Framed framed = frameWhole(QByteArray("250 a\0b\r\n", 9));
        QCOMPARE(framed.replies.size(), 1u);
        QCOMPARE(framed.replies.front().front().size(), 7);
    }

    void everyDivisionIntoChunksGivesTheSame()
    {
        std::mt19937 random(20240229);
        const std::vector<QByteArray> streams = hostileStreams();
        std::size_t replies = 0;
        for (int round = 0; round < 400; ++round) {
            QByteArray stream;
            for (int i = 0; i < 6; ++i)
                stream += streams[random() % streams.size()];
            const Framed whole = frameWhole(stream);
            QCOMPARE(frame(stream, [] { return 1; }), whole);
            std::uniform_int_distribution<int> sizes(1, 1 + round % 40);
            QVERIFY(frame(stream, [&] { return sizes(random); }) == whole);
            replies += whole.replies.size();
        }
        QVERIFY(replies > 1000); // it did frame something
    }

    void linesAndRepliesCanBeTakenInTurn()
    {
        ReplyFraming framing;
        framing.feed("250 OK\r\n650 STREAM 1\r\n65");
        QCOMPARE(framing.nextReply().value().value(), text({"250 OK"}));
        QCOMPARE(framing.nextLine().value().value(), QStringLiteral("650 STREAM 1"));
        QVERIFY(!framing.nextLine().value());
        framing.feed("0\r\n");
        QCOMPARE(framing.nextLine().value().value(), QStringLiteral("650"));
    }

    void aLineMayBeAsLongAsTheLimitAndNoLonger_data()
    {
        QTest::addColumn<qsizetype>("length");
        QTest::addColumn<QByteArray>("end");
        QTest::addColumn<bool>("accepted");
        const qsizetype limit = ReplyFraming::largestLineBytes;
        QTest::newRow("at the limit") << limit << QByteArray("\r\n") << true;
        QTest::newRow("one more") << limit + 1 << QByteArray("\r\n") << false;
        QTest::newRow("carriage return as the last") << limit - 1 << QByteArray("\r\r\n") << true;
        QTest::newRow("carriage return too many") << limit << QByteArray("\r\r\n") << false;
        QTest::newRow("no end") << limit + 1 << QByteArray() << false;
    }
    void aLineMayBeAsLongAsTheLimitAndNoLonger()
    {
        QFETCH(qsizetype, length);
        QFETCH(QByteArray, end);
        QFETCH(bool, accepted);
        const QByteArray stream = "250 OK\r\n250 " + QByteArray(length - 4, 'x') + end
            + "250 OK\r\n";
        const Framed whole = frameWhole(stream);
        QCOMPARE(whole.replies.size(), accepted ? 3u : 1u);
        QCOMPARE(whole.error,
                 accepted
                     ? QString()
                     : QStringLiteral("Tor sent a line of more than 1 MiB on its control port."));
        QVERIFY(frame(stream, [] { return 1; }) == whole);
        QVERIFY(frame(stream, [] { return 65'536; }) == whole);
    }

    void anEndlessReplyEndsAtTheLimit_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("empty lines") << QByteArray("\r\n");
        QTest::newRow("ordinary lines") << QByteArray(198, 'x') + "\r\n";
        QTest::newRow("long lines") << QByteArray(1'000'000, 'x') + "\r\n";
    }
    void anEndlessReplyEndsAtTheLimit()
    {
        QFETCH(QByteArray, line);
        const qsizetype allowed = (ReplyFraming::largestReplyBytes - 8
                                   - ReplyFraming::lineOverheadBytes)
            / (line.size() + ReplyFraming::lineOverheadBytes);
        ReplyFraming framing;
        framing.feed("250+a=\r\n");
        for (qsizetype i = 0; i < allowed; ++i) {
            framing.feed(line);
            const auto reply = framing.nextReply();
            QVERIFY2(reply && !*reply, qPrintable(QString::number(i)));
        }
        framing.feed(line);
        QCOMPARE(framing.nextReply().error().description(),
                 QStringLiteral("Tor sent a reply of more than 64 MiB on its control port."));
        framing.feed(".\r\n250 OK\r\n"); // it stays failed
        QVERIFY(!framing.nextReply());
        QVERIFY(!framing.nextLine());
    }

    void theLimitIsForEachReplyAlone()
    {
        const QByteArray reply = "250-" + QByteArray(1'000'000, 'x') + "\r\n250 OK\r\n";
        ReplyFraming framing;
        for (int i = 0; i < 100; ++i) {
            framing.feed(reply);
            const auto lines = framing.nextReply();
            QVERIFY(lines && *lines);
        }
    }
};

VELDMARK_TEST(ReplyFramingTest)
#include "ReplyFramingTest.moc"
