#include "app/Application.h"

#include "StandInDesktop.h"
#include "instance/InstanceClient.h"
#include "support/Computer.h"
#include "support/OtherSession.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QApplication>
#include <QMessageBox>
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
    static bool showsMain(const Application &program)
    {
        const QQuickWindow *window = program.windows().find(u"main"_s);
        return window && window->isVisible();
    }
    // The visible question whether to quit; null without one.
    static QWindow *question()
    {
        for (QWindow *window : QGuiApplication::topLevelWindows()) {
            if (window->isVisible() && window->title() == u"Quit Veldmark"_s)
                return window;
        }
        return nullptr;
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
        QTimer limit;
        QObject::connect(&limit, &QTimer::timeout, qApp, [] { QCoreApplication::exit(notEnded); });
        limit.start(30s);
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

    // A Mac's login item has no words, such as --hidden.
    void aStartAtLoginShowsNoWindow_data()
    {
        QTest::addColumn<bool>("atLogin");
        QTest::newRow("by the user") << false;
        QTest::newRow("at login") << true;
    }
    void aStartAtLoginShowsNoWindow()
    {
        QFETCH(bool, atLogin);
        Computer computer;
        StandInDesktop desktop;
        Application program(computer.profile);
        QVERIFY(program.start(false, false));
        QVERIFY(desktop.launched);
        QVERIFY(!showsMain(program)); // the reason is not known yet
        desktop.tellLaunch(atLogin);
        QCOMPARE(showsMain(program), !atLogin);
    }

    void openedAgainItShowsItsWindow()
    {
        Computer computer;
        StandInDesktop desktop;
        Application program(computer.profile);
        QVERIFY(program.start(true, false));
        QVERIFY(!desktop.reopen()); // it has not been told yet why it was started
        QVERIFY(desktop.launched);
        desktop.tellLaunch(false);
        QVERIFY(!showsMain(program)); // a hidden start
        QVERIFY(desktop.reopen());
        QVERIFY(showsMain(program));
    }

    void itIsNotSlowedDownWhileConnected()
    {
        Computer computer;
        computer.fail("connect", "not now");
        StandInDesktop desktop;
        {
            Application program(computer.profile);
            QVERIFY(program.start(true, false));
            settle();
            QCOMPARE(desktop.awake, QList<bool>());
        }
        Application program(computer.profile);
        QVERIFY(program.start(true, true));
        QVERIFY(until([&] { return desktop.awake == QList<bool>({true, false}); }));
        QVERIFY(computer.verbs().contains(u"connect"_s));
    }

    void whatTheUserHasToKnowIsANoticeOfTheSystem()
    {
        Computer computer;
        StandInDesktop desktop;
        Application program(computer.profile);
        QVERIFY(program.start(false, false));
        desktop.tellLaunch(false);
        QVERIFY(showsMain(program));
        QCOMPARE(desktop.notices, QStringList());
        program.windows().find(u"main"_s)->close(); // there is no tray that would show it
        QVERIFY(
            until([&] { return desktop.notices == QStringList{u"Veldmark is still running"_s}; }));
    }

    void fromAMadeUpPlaceItSaysWhatToDoFirst()
    {
        Computer computer;
        StandInDesktop desktop;
        const auto said = [] {
            QStringList texts;
            for (QWidget *widget : QApplication::topLevelWidgets()) {
                if (const auto *box = qobject_cast<QMessageBox *>(widget))
                    texts += box->text();
            }
            return texts;
        };
        {
            Application program(computer.profile);
            QVERIFY(program.start(true, false));
            QCOMPARE(said(), QStringList());
        }
        desktop.misplaced = Text(u"Move it."_s);
        Application program(computer.profile);
        QVERIFY(program.start(true, false));
        QCOMPARE(said(), QStringList{u"Move it."_s});
        for (QWidget *widget : QApplication::topLevelWidgets())
            widget->close();
    }

    // At logout: an answer at once would be a refusal, which calls the logout off.
    void theSystemWaitsForTheUsersAnswer()
    {
        Computer computer;
        computer.writeMarker();
        StandInDesktop desktop;
        Application program(computer.profile);
        QVERIFY(program.start(true, false));
        desktop.askToEnd();
        QVERIFY(question());
        settle();
        QVERIFY(!desktop.ends);
        QVERIFY(QMetaObject::invokeMethod(question(), "cancelled"));
        QVERIFY(until([&] { return desktop.ends.has_value(); }));
        QCOMPARE(*desktop.ends, false);
        QVERIFY(computer.hasMarker());

        desktop.ends.reset();
        desktop.askToEnd();
        QVERIFY(question());
        computer.fail("disconnect", "not now");
        QVERIFY(QMetaObject::invokeMethod(question(), "disconnectWanted"));
        QVERIFY(until([&] { return desktop.ends.has_value(); }));
        QCOMPARE(*desktop.ends, false);
        QVERIFY(showsMain(program)); // with the reason

        desktop.ends.reset();
        computer.fail("disconnect", {});
        desktop.askToEnd();
        QVERIFY(QMetaObject::invokeMethod(question(), "disconnectWanted"));
        QVERIFY(until([&] { return desktop.ends.has_value(); }));
        QCOMPARE(*desktop.ends, true);
        QVERIFY(!computer.hasMarker());
    }

    void withoutASessionTheSystemMayEndItAtOnce()
    {
        Computer computer;
        StandInDesktop desktop;
        Application program(computer.profile);
        QVERIFY(program.start(true, false));
        desktop.askToEnd();
        QVERIFY(until([&] { return desktop.ends.has_value(); }));
        QCOMPARE(*desktop.ends, true);
        QVERIFY(!question());
    }
};

VELDMARK_WINDOWED_TEST(ApplicationTest)
#include "ApplicationTest.moc"
