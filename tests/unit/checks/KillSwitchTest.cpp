#include "checks/KillSwitch.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;
using State = KillSwitch::State;

class KillSwitchTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void readsWhatTheWatcherWrites_data()
    {
        QTest::addColumn<QByteArray>("note");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("blocks");
        QTest::newRow("standing") << QByteArray("standing 0 1800000000\n") << u"standing"_s << true;
        QTest::newRow("restored") << QByteArray("restored 3 1800000000\n") << u"putBack"_s << true;
        QTest::newRow("open") << QByteArray("open 3 1800000000\n") << u"open"_s << false;
    }

    void readsWhatTheWatcherWrites()
    {
        QFETCH(QByteArray, note);
        const auto found = KillSwitch::parse(note);
        QVERIFY(found);
        QTEST(found->name(), "name");
        QTEST(found->blocks(), "blocks");
        QCOMPARE(found->missed, note.startsWith("standing") ? 0 : 3);
        QCOMPARE(found->since, QDateTime(QDate(2027, 1, 15), QTime(8, 0), Qt::UTC));
    }

    void believesNothingElse_data()
    {
        QTest::addColumn<QByteArray>("note");
        for (const char *note :
             {"", "\n", "standing", "standing 0", "standing 0 x", "standing x 1", "standing -1 1",
              "standing 0 -1", "standing 0 1 2", "Standing 0 1", "restored 1", "putBack 1 1",
              "unknown 0 1", "standing  0 1", "standing 0 99999999999999999999"})
            QTest::newRow(qPrintable(QString::fromLatin1(note).simplified())) << QByteArray(note);
    }

    void believesNothingElse()
    {
        QFETCH(QByteArray, note);
        QVERIFY(!KillSwitch::parse(note));
    }

    void whatNobodyHasSeenBlocksNothing()
    {
        QVERIFY(!KillSwitch().blocks());
        QCOMPARE(KillSwitch().name(), u"unknown"_s);
    }
};

VELDMARK_TEST(KillSwitchTest)
#include "KillSwitchTest.moc"
