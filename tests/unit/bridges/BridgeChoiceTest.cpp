#include "bridges/BridgeChoice.h"
#include "support/TestProgram.h"

#include <QTest>

#include <unordered_set>

using namespace veldmark;

class BridgeChoiceTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void namesEachChoice_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<QString>("raw");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("keys");
        QTest::newRow("off") << 0 << "off"
                             << "Off" << QStringList();
        QTest::newRow("obfs4") << 1 << "obfs4"
                               << "obfs4" << QStringList{QStringLiteral("obfs4")};
        QTest::newRow("snowflake") << 2 << "snowflake"
                                   << "Snowflake" << QStringList{QStringLiteral("snowflake")};
        QTest::newRow("meek") << 3 << "meek"
                              << "meek"
                              << QStringList{QStringLiteral("meek_lite"), QStringLiteral("meek"),
                                             QStringLiteral("meek-azure")};
        QTest::newRow("custom") << 4 << "custom"
                                << "Custom" << QStringList();
    }

    void namesEachChoice()
    {
        QFETCH(int, position);
        QFETCH(QString, raw);
        QFETCH(QString, name);
        QFETCH(QStringList, keys);
        const BridgeChoice choice = allBridgeChoices.at(std::size_t(position));
        QCOMPARE(rawValue(choice), raw);
        QVERIFY(bridgeChoiceFromRawValue(raw) == choice);
        QCOMPARE(displayName(choice), name);
        QCOMPARE(builtinKeys(choice), keys);
    }

    void thereAreFiveAndTheyCanBeHashed()
    {
        QCOMPARE(allBridgeChoices.size(), 5u);
        const std::unordered_set<BridgeChoice> set(allBridgeChoices.begin(),
                                                   allBridgeChoices.end());
        QCOMPARE(set.size(), 5u);
    }

    void anyOtherWordIsNoChoice_data()
    {
        QTest::addColumn<QString>("raw");
        for (const char *raw :
             {"", "Off", "OBFS4", "obfs4 ", " off", "meek_lite", "webtunnel", "0"})
            QTest::newRow(qPrintable(QStringLiteral("<%1>").arg(QLatin1String(raw))))
                << QString::fromLatin1(raw);
    }

    void anyOtherWordIsNoChoice()
    {
        QFETCH(QString, raw);
        QVERIFY(!bridgeChoiceFromRawValue(raw));
    }
};

VELDMARK_TEST(BridgeChoiceTest)
#include "BridgeChoiceTest.moc"
