#include "app/Application.h"

#include "instance/InstanceClient.h"
#include "support/Computer.h"
#include "support/OtherSession.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QTest>
#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
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
        QVERIFY(until([&] { return computer.verbs().size() >= 3; }));
        // its tor is the user's own
        QCOMPARE(computer.verbs(),
                 QStringList({u"install-privileged"_s, u"approve"_s, u"connect"_s}));
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

    // The automatic connect leaves a leftover session alone, and the windows show it from the
    // start.
    void whatWasLeftOverIsNotReplaced()
    {
        Computer computer;
        computer.installOldHelper();
        computer.writeMarker();
        connectAtStart(computer.profile);
        Application program(computer.profile);
        QVERIFY(program.start(false, false));
        const auto *panel
            = program.windows().find(u"main"_s)->property("panelModel").value<QObject *>();
        QVERIFY(until([&] { return panel->property("powerLabel").toString() == u"Reconnect"_s; }));
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

    void aSecondStartShowsTheFirstOnesWindow()
    {
        Computer computer;
        Application first(computer.profile);
        QVERIFY(first.start(true, false));
        const auto client = InstanceClient::connectTo(computer.profile);
        QVERIFY(client);
        const auto told = client->run({{u"command"_s, u"raise"_s}},
                                      [](const QJsonObject &, const QJsonObject &) {});
        QVERIFY(until([&] {
            const QQuickWindow *main = first.windows().find(u"main"_s);
            return main && main->isVisible() && told.isReady();
        }));
    }

    void quitFromAWindowEndsIt()
    {
        Computer computer;
        Application program(computer.profile);
        QVERIFY(program.start(false, false));
        constexpr int notEnded = 99;
        QTimer::singleShot(30s, qApp, [] { QCoreApplication::exit(notEnded); });
        QTimer::singleShot(0, qApp, [&] {
            QMetaObject::invokeMethod(program.windows().find(u"main"_s), "quitWanted");
        });
        QCOMPARE(QCoreApplication::exec(), 0);
    }

    // While the network is set up, the question comes first.
    void quitDuringASessionAsks()
    {
        Computer computer;
        computer.writeMarker();
        Application program(computer.profile);
        QVERIFY(program.start(false, false));
        QMetaObject::invokeMethod(program.windows().find(u"main"_s), "quitWanted");
        QVERIFY(until([&] {
            const QWindowList windows = QGuiApplication::topLevelWindows();
            return std::any_of(windows.begin(), windows.end(), [](const QWindow *window) {
                return window->isVisible() && window->title() == u"Quit Veldmark"_s;
            });
        }));
        QVERIFY(computer.hasMarker());
    }
};

VELDMARK_WINDOWED_TEST(ApplicationTest)
#include "ApplicationTest.moc"
