#include "app/Application.h"

#include "support/Computer.h"
#include "support/OtherSession.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

// The start of the desktop application with the real processes that it starts. It never reaches
// Tor.
class ApplicationTest : public QObject {
    Q_OBJECT
private:
    static void connectAtStart(const PlatformProfile &profile)
    {
        Computer::write(profile.settingsFile, "[General]\nautoConnect=true\n");
    }

private Q_SLOTS:
    void theHelperIsRenewedBeforeItIsUsed_data()
    {
        QTest::addColumn<bool>("bySetting");
        QTest::newRow("told to connect") << false;
        QTest::newRow("the user's setting") << true;
    }

    void theHelperIsRenewedBeforeItIsUsed()
    {
        QFETCH(bool, bySetting);
        Computer computer;
        computer.installOldHelper();
        if (bySetting)
            connectAtStart(computer.profile);
        Application program(computer.profile);
        QVERIFY(program.start(true, !bySetting));
        QVERIFY(until([&] { return computer.verbs().size() >= 2; }));
        QCOMPARE(computer.verbs(), QStringList({u"install-privileged"_s, u"connect"_s}));
    }

    void withoutBeingToldItOnlyRenews()
    {
        Computer computer;
        computer.installOldHelper();
        Application program(computer.profile);
        QVERIFY(program.start(true, false));
        QVERIFY(until([&] { return !computer.verbs().isEmpty(); }));
        settle();
        QCOMPARE(computer.verbs(), QStringList{u"install-privileged"_s});
    }

    // A leftover session is found before the automatic connect.
    void whatWasLeftOverIsNotReplaced()
    {
        Computer computer;
        computer.installOldHelper();
        computer.writeMarker();
        connectAtStart(computer.profile);
        Application program(computer.profile);
        QVERIFY(program.start(true, false));
        QVERIFY(until([&] { return !computer.verbs().isEmpty(); }));
        settle();
        QCOMPARE(computer.verbs(), QStringList{u"install-privileged"_s});
        QVERIFY(computer.hasMarker());
    }

    void thereIsOne()
    {
        Computer computer;
        Application first(computer.profile);
        QVERIFY(first.start(true, false));
        Application second(computer.profile);
        const auto refused = second.start(true, true);
        QVERIFY(!refused);
        QVERIFY2(refused.error().english().startsWith(u"Veldmark is already running"_s),
                 qPrintable(refused.error().english()));
        settle();
        QVERIFY(computer.verbs().isEmpty());
    }
};

VELDMARK_WINDOWED_TEST(ApplicationTest)
#include "ApplicationTest.moc"
