#include "base/ReplyWords.h"
#include "support/TestProgram.h"

#include "support/TestProgram.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

class ReplyWordsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cutsALineIntoItsWords_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QStringList>("words");
        QTest::newRow("none") << u"   "_s << QStringList();
        QTest::newRow("plain") << u" 7  BUILT A=1 "_s << QStringList{u"7"_s, u"BUILT"_s, u"A=1"_s};
        QTest::newRow("quoted") << u"A=\"x B=2 y\" C=3"_s
                                << QStringList{u"A=\"x B=2 y\""_s, u"C=3"_s};
        QTest::newRow("escaped mark")
            << u"A=\"x \\\" y\" C=3"_s << QStringList{u"A=\"x \\\" y\""_s, u"C=3"_s};
        QTest::newRow("escaped escape")
            << u"A=\"x\\\\\" C=3"_s << QStringList{u"A=\"x\\\\\""_s, u"C=3"_s};
        QTest::newRow("not closed") << u"A=\"x B=2"_s << QStringList{u"A=\"x B=2"_s};
        QTest::newRow("a mark elsewhere")
            << u"a\"b c\"d A=x\"y z"_s << QStringList{u"a\"b"_s, u"c\"d"_s, u"A=x\"y"_s, u"z"_s};
        QTest::newRow("a word behind the mark")
            << u"A=\"x y\"z B"_s << QStringList{u"A=\"x y\"z"_s, u"B"_s};
        QTest::newRow("mark at the end") << u"A=\""_s << QStringList{u"A=\""_s};
    }
    void cutsALineIntoItsWords()
    {
        QFETCH(QString, line);
        QStringList words;
        QStringView rest = line;
        for (QStringView word = ReplyWords::next(rest); !word.isEmpty();
             word = ReplyWords::next(rest))
            words << word.toString();
        QTEST(words, "words");
    }

    void findsAValueByItsKey_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("value"); // null: absent
        QTest::newRow("absent") << u"A=1 BKEY=2 KEYS=3 KEY"_s << QString();
        QTest::newRow("plain") << u"A=1 KEY=2"_s << u"2"_s;
        QTest::newRow("the first counts") << u"KEY=1 KEY=2"_s << u"1"_s;
        QTest::newRow("not in another's string") << u"A=\"x KEY=1 y\" KEY=2"_s << u"2"_s;
        QTest::newRow("only in another's string") << u"A=\"x KEY=1 y\""_s << QString();
        QTest::newRow("quoted") << u"KEY=\"a b\" B=1"_s << u"a b"_s;
        QTest::newRow("escapes") << u"KEY=\"a\\\"b\\\\c\\nd\\te\\rf\\101\\7g\\'\""_s
                                 << u"a\"b\\c\nd\te\rfA\ag'"_s;
        QTest::newRow("empty string") << u"KEY=\"\""_s << u""_s;
        QTest::newRow("empty") << u"KEY= B=1"_s << u""_s;
        QTest::newRow("not closed") << u"KEY=\"a b"_s << QString();
        QTest::newRow("ends in an escape") << u"KEY=\"a\\"_s << QString();
    }
    void findsAValueByItsKey()
    {
        QFETCH(QString, line);
        const auto found = ReplyWords::value(line, u"KEY");
        QFETCH(QString, value);
        QCOMPARE(found.has_value(), !value.isNull());
        QCOMPARE(found.value_or(QString()), value);
    }
};

VELDMARK_BARE_TEST(ReplyWordsTest)
#include "ReplyWordsTest.moc"
