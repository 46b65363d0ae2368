#include "base/OneLine.h"

#include "support/TestProgram.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

class OneLineTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void isOneLine()
    {
        QCOMPARE(inOneLine(u" two  words\n\tand\u2028more\n"_s), u"two words and more"_s);
    }

    void noCharacterSteersATerminal()
    {
        QCOMPARE(inOneLine(u"a\x1b[31m b\x07 \u202ec"_s), u"a?[31m b? ?c"_s);
    }

    void endsWithAnEllipsisWhereItIsCut()
    {
        QCOMPARE(inOneLine(QString(60, u'x')), QString(60, u'x'));
        QCOMPARE(inOneLine(QString(61, u'x')), QString(59, u'x') + u'…');
        QCOMPARE(inOneLine(u"abcd"_s, 3), u"ab…"_s);
    }

    void charactersOfTwoUnitsStayWhole()
    {
        QCOMPARE(inOneLine(u"é 😀"_s), u"é 😀"_s);
        QCOMPARE(inOneLine(u"😀😀😀😀"_s, 3), u"😀😀…"_s);
    }
};

VELDMARK_TEST(OneLineTest)
#include "OneLineTest.moc"
