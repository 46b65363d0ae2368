#include "cli/ProgressLine.h"
#include "support/TestProgram.h"

#include <QTest>

using veldmark::ProgressLine;

class ProgressLineTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void writesAPlainLineForEachChange()
    {
        ProgressLine line(false, 80);
        QCOMPARE(line.update(0.05, QStringLiteral("Connecting to a relay")),
                 QStringLiteral("  5%  Connecting to a relay\n"));
        QCOMPARE(line.update(0.05, QStringLiteral("Connecting to a relay")), QString());
        QCOMPARE(line.update(1.0, QStringLiteral("Done")), QStringLiteral("100%  Done\n"));
        QCOMPARE(line.finish(), QString());
    }

    void redrawsOneLineOnATerminal()
    {
        ProgressLine line(true, 80);
        const QString first = line.update(0.5, QStringLiteral("Loading"));
        QVERIFY(first.startsWith(QStringLiteral("\r\x1b[K")));
        QVERIFY(!first.contains(u'\n'));
        QCOMPARE(first.count(QChar(0x2588)), 12);
        QCOMPARE(first.count(QChar(0x2591)), 12);
        QCOMPARE(line.finish(), QStringLiteral("\n"));
        QCOMPARE(line.finish(), QString());
    }

    void neverDrawsWiderThanTheTerminal()
    {
        for (const int columns : {1, 20, 34, 40, 80}) {
            ProgressLine line(true, columns);
            const QString text = line.update(7.5, QString(500, u'x')).mid(4);
            QVERIFY(text.size() <= std::max(columns, 34));
        }
    }

    void drawsTheSameAgainAfterSomethingElseWasSaid()
    {
        for (const bool terminal : {true, false}) {
            ProgressLine line(terminal, 80);
            const QString drawn = line.update(0.5, QStringLiteral("Loading"));
            QVERIFY(!drawn.isEmpty());
            QVERIFY(line.update(0.5, QStringLiteral("Loading")).isEmpty());
            line.finish();
            QCOMPARE(line.update(0.5, QStringLiteral("Loading")), drawn);
        }
    }
};

VELDMARK_TEST(ProgressLineTest)
#include "ProgressLineTest.moc"
