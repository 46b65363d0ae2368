#include "terminal/MarkedBlock.h"
#include "support/TestProgram.h"

#include <QElapsedTimer>
#include <QTest>

using namespace veldmark;
using MarkedBlock::InsertedBytes;
using MarkedBlock::Position;

namespace {
const QByteArray block = "# >>> veldmark >>>\nbody\n# <<< veldmark <<<\n";
} // namespace

class MarkedBlockTest : public QObject {
    Q_OBJECT

    static void texts()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("appended");
        QTest::addColumn<QByteArray>("prepended");
        QTest::newRow("empty") << QByteArray() << block << block;
        QTest::newRow("one line") << QByteArray("a\n") << "a\n\n" + block << block + "\na\n";
        QTest::newRow("without a final line break")
            << QByteArray("a") << "a\n\n" + block << block + "\na";
        QTest::newRow("CR LF") << QByteArray("a\r\nb\r\n") << "a\r\nb\r\n\n" + block
                               << block + "\na\r\nb\r\n";
        QTest::newRow("CR LF, none at the end")
            << QByteArray("a\r\nb") << "a\r\nb\n\n" + block << block + "\na\r\nb";
        QTest::newRow("line breaks only")
            << QByteArray("\n\n") << "\n\n\n" + block << block + "\n\n\n";
        QTest::newRow("a lone CR") << QByteArray("a\r") << "a\r\n\n" + block << block + "\na\r";
        QTest::newRow("no UTF-8") << QByteArray("\xff\xfe\0\x80", 4)
                                  << QByteArray("\xff\xfe\0\x80\n\n", 6) + block
                                  << block + QByteArray("\n\xff\xfe\0\x80", 5);
        for (const QByteArray &mention :
             {QByteArray("echo '# >>> veldmark >>>'"), QByteArray("# # >>> veldmark >>>"),
              QByteArray("  # >>> veldmark >>>"), QByteArray("# >>> veldmark >>> old"),
              QByteArray("# >>> veldmark >>>\rx"), QByteArray("# <<< veldmark <<<")})
            QTest::newRow("a marker that is none: " + mention.toPercentEncoding(" #<>'")) << mention
                    + '\n' << mention + "\n\n" + block << block + '\n' + mention + '\n';
    }

private Q_SLOTS:
    void addsTheBlock_data() { texts(); }
    void addsTheBlock()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, appended);
        QFETCH(QByteArray, prepended);
        QCOMPARE(MarkedBlock::added(text, "body", Position::atEnd).text, appended);
        QCOMPARE(MarkedBlock::added(text, "body", Position::atStart).text, prepended);
        QVERIFY(MarkedBlock::hasStart(appended));
        QVERIFY(!MarkedBlock::hasStart(text));
    }

    void givesTheTextBackByteForByte_data() { texts(); }
    void givesTheTextBackByteForByte()
    {
        QFETCH(QByteArray, text);
        for (const Position position : {Position::atEnd, Position::atStart}) {
            const auto once = MarkedBlock::added(text, "body", position);
            QCOMPARE(MarkedBlock::removed(once.text, position, once.inserted), text);
            QCOMPARE(MarkedBlock::added(once.text, "another", position).text, once.text);
        }
    }

    void leavesAloneWhatHasNoWholeBlock_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("no block") << QByteArray("a\n\nb\n\n");
        QTest::newRow("no end") << QByteArray("a\n\n# >>> veldmark >>>\nbody\nb\n");
        QTest::newRow("no start") << QByteArray("a\n\nbody\n# <<< veldmark <<<\nb\n");
        QTest::newRow("end before start")
            << QByteArray("# <<< veldmark <<<\n# >>> veldmark >>>\nb\n");
        QTest::newRow("end in a longer line")
            << QByteArray("# >>> veldmark >>>\nx # <<< veldmark <<<\n");
    }

    void leavesAloneWhatHasNoWholeBlock()
    {
        QFETCH(QByteArray, text);
        QCOMPARE(MarkedBlock::removed(text, Position::atEnd, {true, true}), text);
        QCOMPARE(MarkedBlock::removed(text, Position::atStart, {true, true}), text);
    }

    void removesWhereverTheBlockIs_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("left");
        QTest::addColumn<bool>("lineBreak");
        QTest::addColumn<bool>("emptyLine");
        const QByteArray crlf = QByteArray(block).replace("\n", "\r\n");
        QTest::newRow("nothing is ours")
            << "a\n\n" + block << QByteArray("a\n\n") << false << false;
        QTest::newRow("the empty line is ours")
            << "a\n\n" + block << QByteArray("a\n") << false << true;
        QTest::newRow("the line break too") << "a\n\n" + block << QByteArray("a") << true << true;
        // What another program has added since must not be joined to the user's last line.
        QTest::newRow("text follows") << "a\n\n" + block + "b\n"
                                      << QByteArray("a\nb\n") << true << true;
        QTest::newRow("the user has taken the empty line")
            << "a\n" + block << QByteArray("a\n") << true << true;
        QTest::newRow("no line break at the end")
            << "a\n\n" + block.chopped(1) << QByteArray("a\n") << false << true;
        QTest::newRow("all in CR LF since")
            << "a\r\n\r\n" + crlf << QByteArray("a\r\n") << false << true;
        QTest::newRow("all in CR LF, none before")
            << "a\r\n\r\n" + crlf << QByteArray("a") << true << true;
        QTest::newRow("CR at the very end")
            << "a\n\n" + block.chopped(1) + '\r' << QByteArray("a\n\r") << false << true;
        QTest::newRow("a start without end before it")
            << "# >>> veldmark >>>\nmine\n\n" + block << QByteArray("# >>> veldmark >>>\nmine\n")
            << false << true;
        QTest::newRow("only the first of two") << block + block << block << false << false;
        QTest::newRow("an empty line alone") << "\n" + block << QByteArray("\n") << true << true;
    }

    void removesWhereverTheBlockIs()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, left);
        QFETCH(bool, lineBreak);
        QFETCH(bool, emptyLine);
        QCOMPARE(MarkedBlock::removed(text, Position::atEnd, {lineBreak, emptyLine}), left);
    }

    void removesTheEmptyLineBelowABlockAtTheTop()
    {
        QCOMPARE(MarkedBlock::removed(block + "\na", Position::atStart, {false, true}),
                 QByteArray("a"));
        QCOMPARE(MarkedBlock::removed(block + "\n\na", Position::atStart, {false, true}),
                 QByteArray("\na"));
        QCOMPARE(MarkedBlock::removed(block + "\na", Position::atStart, {}), QByteArray("\na"));
        QCOMPARE(MarkedBlock::removed(block + "a", Position::atStart, {false, true}),
                 QByteArray("a"));
    }

    void tenMegabytesAreNothingSpecial()
    {
        QByteArray text;
        while (text.size() < 10'000'000)
            text += "# >>> veldmark >>> and more of it, line after line\n";
        QElapsedTimer timer;
        timer.start();
        const auto added = MarkedBlock::added(text, "body", Position::atEnd);
        QCOMPARE(added.text.size(), text.size() + 1 + block.size());
        QCOMPARE(MarkedBlock::removed(added.text, Position::atEnd, added.inserted), text);
        qInfo("10 MB: %lld ms", timer.elapsed());
    }
};

VELDMARK_TEST(MarkedBlockTest)
#include "MarkedBlockTest.moc"
