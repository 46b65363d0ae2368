#include "ui/Amount.h"
#include "support/TestProgram.h"

#include <QLocale>
#include <QTest>

using namespace veldmark;

class AmountTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English)); }

    void choosesTheLargestUnitThatHoldsOne_data()
    {
        QTest::addColumn<quint64>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("nothing") << quint64(0) << QStringLiteral("0\u00a0B");
        QTest::newRow("below a kilobyte") << quint64(999) << QStringLiteral("999\u00a0B");
        QTest::newRow("a kilobyte") << quint64(1000) << QStringLiteral("1.0\u00a0kB");
        QTest::newRow("megabytes") << quint64(48'213'004) << QStringLiteral("48.2\u00a0MB");
        QTest::newRow("gigabytes") << quint64(1'500'000'000) << QStringLiteral("1.5\u00a0GB");
        QTest::newRow("beyond the last unit")
            << quint64(7'000'000'000'000'000) << QStringLiteral("7,000.0\u00a0TB");
    }
    void choosesTheLargestUnitThatHoldsOne()
    {
        QFETCH(quint64, bytes);
        QTEST(Amount::text(bytes, Amount::unitFor(bytes)), "text");
    }

    void writesASmallAmountInAGivenUnit()
    {
        QCOMPARE(Amount::text(3'100, Amount::Unit::megabytes), QStringLiteral("0.0\u00a0MB"));
    }
};

VELDMARK_WINDOWED_TEST(AmountTest)
#include "AmountTest.moc"
