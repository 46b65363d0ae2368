#include "app/QuitGuard.h"
#include "StandInSession.h"
#include "support/OtherSession.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

namespace {

struct Guarded {
    Workbench bench;
    StandInSession session{bench.profile};
    StandInLog log;
    Windows windows{session, log, *bench.settings};
    QuitGuard guard{bench.controller(), windows};
    QSignalSpy mayEnd{&guard, &QuitGuard::mayEnd};

    // The visible question; null without one.
    static QWindow *question()
    {
        for (QWindow *window : QGuiApplication::topLevelWindows()) {
            if (window->isVisible() && window->title() == u"Quit Veldmark"_s)
                return window;
        }
        return nullptr;
    }
    static bool answer(const char *signal) { return QMetaObject::invokeMethod(question(), signal); }
    bool mainIsShown() const
    {
        return windows.find(u"main"_s) && windows.find(u"main"_s)->isVisible();
    }
};

} // namespace

class QuitGuardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void endsAtOnceWithoutAMarker()
    {
        Guarded g;
        g.guard.quit();
        QCOMPARE(g.mayEnd.count(), 1);
        QVERIFY(!Guarded::question());
    }

    void endsAtOnceWhileConnectingBeforeTheHelperHasRun()
    {
        Guarded g;
        g.bench.hold(u"connect"_s);
        const auto connecting = g.bench.controller().connect();
        QVERIFY(until([&] { return g.bench.processes.held() == 1; }));
        g.guard.quit();
        QCOMPARE(g.mayEnd.count(), 1);
    }

    void endsAtOnceWhereTheSessionIsAnotherProcesss()
    {
        Guarded g;
        OtherSession other(g.bench.profile);
        g.guard.quit();
        QCOMPARE(g.mayEnd.count(), 1);
        QVERIFY(!Guarded::question());
        other.end();
        g.guard.quit();
        QVERIFY(Guarded::question()); // the session is a leftover now
    }

    void asksWhileTheNetworkIsSetUp_data()
    {
        QTest::addColumn<QByteArray>("marker");
        QTest::addColumn<QByteArray>("rules");
        QTest::addColumn<bool>("strict");
        QTest::newRow("strict") << QByteArray("strict\n") << QByteArray("standing") << true;
        // no watcher has seen the rules
        QTest::newRow("strict, after a restart of the computer")
            << QByteArray("strict\n") << QByteArray() << false;
        // the rules do not block, so the question must not promise the kill switch
        QTest::newRow("strict, with an open kill switch")
            << QByteArray("strict\n") << QByteArray("open") << false;
        QTest::newRow("proxy") << QByteArray("proxy\n") << QByteArray() << false;
        QTest::newRow("unknown") << QByteArray("perhaps\n") << QByteArray() << false;
    }
    void asksWhileTheNetworkIsSetUp()
    {
        QFETCH(QByteArray, marker);
        QFETCH(QByteArray, rules);
        QFETCH(bool, strict);
        Guarded g;
        g.bench.writeMarker(marker);
        if (!rules.isEmpty())
            g.bench.noteRules(rules.constData(), 1);
        g.bench.controller().detectStaleState();
        g.guard.quit();
        QCOMPARE(g.mayEnd.count(), 0);
        QVERIFY(Guarded::question());
        QCOMPARE(Guarded::question()->property("strict").toBool(), strict);
        g.bench.noteRules("open", 1); // while the question is shown
        g.bench.clock.advance(std::chrono::seconds(1));
        QVERIFY(!Guarded::question()->property("strict").toBool());
        g.guard.quit(); // one question is enough
        QVERIFY(Guarded::answer("cancelled"));
        QVERIFY(!Guarded::question());
        QCOMPARE(g.mayEnd.count(), 0);
        QVERIFY(g.bench.hasMarker());
    }

    void quitAnywayLeavesEverythingInPlace()
    {
        Guarded g;
        QVERIFY(g.bench.connect());
        g.guard.quit();
        QVERIFY(Guarded::answer("quitWanted"));
        QCOMPARE(g.mayEnd.count(), 1);
        QVERIFY(g.bench.hasMarker());
        QCOMPARE(g.bench.helperRunCount(u"disconnect"_s), 0);
    }

    void disconnectAndQuitRestoresFirst()
    {
        Guarded g;
        QVERIFY(g.bench.connect());
        g.bench.hold(u"disconnect"_s);
        g.guard.quit();
        QVERIFY(Guarded::answer("disconnectWanted"));
        QVERIFY(until([&] { return g.bench.processes.held() == 1; }));
        QVERIFY(Guarded::question()->property("busy").toBool());
        QCOMPARE(g.mayEnd.count(), 0);
        g.bench.processes.release();
        QVERIFY(until([&] { return g.mayEnd.count() == 1; }));
        QVERIFY(!g.bench.hasMarker());
        QVERIFY(!Guarded::question());
    }

    void aDismissedPromptLeavesItRunningAndConnected()
    {
        Guarded g;
        QVERIFY(g.bench.connect());
        g.bench.cancelPrompt(u"disconnect"_s);
        g.guard.quit();
        QVERIFY(Guarded::answer("disconnectWanted"));
        QVERIFY(until([&] { return !Guarded::question(); }));
        QVERIFY(g.bench.controller().phase() == ConnectionPhase::connected);
        QVERIFY(g.mainIsShown()); // its banner says why
        QCOMPARE(g.mayEnd.count(), 0);
    }

    void aCancelDuringTheDisconnectKeepsItRunning()
    {
        Guarded g;
        QVERIFY(g.bench.connect());
        g.bench.hold(u"disconnect"_s);
        g.guard.quit();
        QVERIFY(Guarded::answer("disconnectWanted"));
        QVERIFY(until([&] { return g.bench.processes.held() == 1; }));
        QVERIFY(Guarded::answer("cancelled"));
        g.bench.processes.release();
        QVERIFY(
            until([&] { return g.bench.controller().phase() == ConnectionPhase::disconnected; }));
        settle();
        QCOMPARE(g.mayEnd.count(), 0);
    }

    void disconnectAndQuitDuringADisconnectQuitsWhenItIsDone_data()
    {
        QTest::addColumn<bool>("restored");
        QTest::newRow("restored") << true;
        QTest::newRow("the prompt is dismissed") << false;
    }
    void disconnectAndQuitDuringADisconnectQuitsWhenItIsDone()
    {
        QFETCH(bool, restored);
        Guarded g;
        QVERIFY(g.bench.connect());
        g.bench.hold(u"disconnect"_s);
        if (!restored)
            g.bench.cancelPrompt(u"disconnect"_s);
        const auto disconnecting = g.bench.controller().disconnect();
        QVERIFY(until([&] { return g.bench.processes.held() == 1; }));
        g.guard.quit();
        QVERIFY(Guarded::answer("disconnectWanted"));
        settle();
        QVERIFY(Guarded::question()->property("busy").toBool());
        QVERIFY(!g.mainIsShown());
        QCOMPARE(g.mayEnd.count(), 0);
        g.bench.processes.release();
        QVERIFY(until([&] { return !Guarded::question(); }));
        QVERIFY(Workbench::finished(disconnecting));
        QCOMPARE(g.mayEnd.count(), restored ? 1 : 0);
        QCOMPARE(g.mainIsShown(), !restored); // its banner says why
        QCOMPARE(g.bench.helperRunCount(u"disconnect"_s), 1);
    }
};

VELDMARK_WINDOWED_TEST(QuitGuardTest)
#include "QuitGuardTest.moc"
