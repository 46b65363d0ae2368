#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QTest>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace veldmark;

namespace {
const QString zed = u"/usr/share/applications/a-zed.desktop"_s;
const QString alpha = u"/usr/share/applications/z-alpha.desktop"_s;

QStringList launchOf(const QString &path)
{
    return {u"launch"_s, u"--uid"_s, QString::number(getuid()), u"--app"_s, path};
}
} // namespace

class BypassAppsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void keepsTheListSortedByName()
    {
        Workbench bench;
        bench.applications.names = {{zed, u"Zed"_s}, {alpha, u"alpha"_s}};
        bench.controller().addBypassApp(zed);
        bench.controller().addBypassApp(alpha);
        QCOMPARE(bench.controller().bypassApps(), QStringList({alpha, zed}));
        bench.restart();
        QCOMPARE(bench.controller().bypassApps(), QStringList({alpha, zed}));
    }

    void equalNamesKeepTheirOrder()
    {
        Workbench bench;
        bench.applications.names = {{zed, u"Same"_s}, {alpha, u"same"_s}};
        bench.controller().addBypassApp(zed);
        bench.controller().addBypassApp(alpha);
        QCOMPARE(bench.controller().bypassApps(), QStringList({zed, alpha}));
    }

    void ignoresTheSamePathTwice()
    {
        Workbench bench;
        bench.controller().addBypassApp(zed);
        bench.controller().addBypassApp(zed);
        QCOMPARE(bench.controller().bypassApps(), QStringList({zed}));
    }

    void ignoresWhatIsNoApplicationHere_data()
    {
        QTest::addColumn<bool>("mac");
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("taken");
        QTest::newRow("linux entry") << false << u"/a/b.desktop"_s << true;
        QTest::newRow("linux program") << false << u"/usr/bin/b"_s << false;
        QTest::newRow("linux bundle") << false << u"/a/b.app"_s << false;
        QTest::newRow("mac bundle") << true << u"/Applications/B.app"_s << true;
        QTest::newRow("mac folder") << true << u"/Applications/B"_s << false;
        QTest::newRow("relative") << false << u"b.desktop"_s << false;
        QTest::newRow("empty") << false << QString() << false;
    }

    void ignoresWhatIsNoApplicationHere()
    {
        QFETCH(bool, mac);
        QFETCH(QString, path);
        QFETCH(bool, taken);
        Workbench bench(mac ? Workbench::System::macos : Workbench::System::linux);
        bench.controller().addBypassApp(path);
        QCOMPARE(bench.controller().bypassApps().contains(path), taken);
    }

    void removesEveryEqualEntry()
    {
        Workbench bench;
        bench.controller().bypassApps.set({zed, alpha, zed});
        bench.controller().removeBypassApp(zed);
        QCOMPARE(bench.controller().bypassApps(), QStringList({alpha}));
    }

    void launchesAtOnceWhenNothingRuns()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        QVERIFY(Workbench::finished(bench.controller().launchBypassed(zed)));
        QCOMPARE(bench.lastHelperRun(u"launch"_s), launchOf(zed));
        QVERIFY(!bench.controller().errorMessage());
    }

    void doesNothingInProxyModeOrDisconnected()
    {
        Workbench bench;
        QVERIFY(Workbench::finished(bench.controller().launchBypassed(zed)));
        bench.controller().strictMode.set(false);
        QVERIFY(bench.connect());
        bench.applications.copies = {{zed, {7}}};
        QVERIFY(Workbench::finished(bench.controller().launchBypassed(zed)));
        QCOMPARE(bench.helperRunCount(u"launch"_s), 0);
        QVERIFY(bench.applications.asked.empty());
    }

    void waitsUntilEveryCopyHasQuit()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        bench.applications.copies = {{zed, {7, 8}}};
        const auto launching = bench.controller().launchBypassed(
            u"/usr/share//applications/a-zed.desktop"_s);
        QCOMPARE(bench.applications.asked, std::vector<qint64>({7, 8}));
        bench.applications.ended = {7};
        bench.clock.advance(100ms);
        settle();
        QCOMPARE(bench.helperRunCount(u"launch"_s), 0);
        bench.applications.ended = {7, 8};
        bench.clock.advance(100ms);
        QVERIFY(Workbench::finished(launching));
        QCOMPARE(bench.helperRunCount(u"launch"_s), 1);
    }

    void goesAheadAfterSixSecondsWithACopyThatStays()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        bench.applications.copies = {{zed, {7}}};
        const auto launching = bench.controller().launchBypassed(zed);
        for (int check = 0; check < 59; ++check) {
            bench.clock.advance(100ms);
            settle();
        }
        QCOMPARE(bench.helperRunCount(u"launch"_s), 0);
        bench.clock.advance(100ms);
        QVERIFY(Workbench::finished(launching));
        QCOMPARE(bench.helperRunCount(u"launch"_s), 1);
    }

    void saysWhyItFailed()
    {
        Workbench bench;
        bench.applications.names = {{zed, u"Zed"_s}};
        QVERIFY(bench.connect());
        bench.failHelper(u"launch"_s, u"No."_s);
        QVERIFY(Workbench::finished(bench.controller().launchBypassed(zed)));
        QCOMPARE(bench.controller().errorMessage().value(),
                 u"Couldn't open Zed without Tor: No."_s);
    }

    void showsNothingWhenThePromptWasCancelled()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        bench.cancelPrompt(u"launch"_s);
        QVERIFY(Workbench::finished(bench.controller().launchBypassed(zed)));
        QCOMPARE(bench.helperRunCount(u"launch"_s), 1);
        QVERIFY(!bench.controller().errorMessage());
    }

    void aSecondPressWhileThePromptIsUpDoesNothing()
    {
        Workbench bench;
        TorController &c = bench.controller();
        bench.applications.names = {{zed, u"Zed"_s}};
        QVERIFY(bench.connect());
        bench.hold(u"launch"_s);
        const auto first = c.launchBypassed(zed);
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        auto second = c.launchBypassed(u"/usr/share//applications/a-zed.desktop"_s); // the same one
        QVERIFY(second.isReady());
        QVERIFY(!QCoro::waitFor(std::move(second)));
        QVERIFY(!c.errorMessage());
        QCOMPARE(bench.helperRunCount(u"launch"_s), 1);
        const auto other = c.launchBypassed(alpha); // another application is another request
        QVERIFY(until([&] { return bench.processes.held() == 2; }));
        bench.processes.hold = nullptr;
        bench.processes.release();
        QVERIFY(Workbench::finished(first) && Workbench::finished(other));
        QVERIFY(Workbench::finished(c.launchBypassed(zed))); // and again when it has finished
        QCOMPARE(bench.helperRunCount(u"launch"_s), 3);
    }

    void opensNothingWhenTheSessionEndsWhileACopyQuits()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        bench.applications.copies = {{zed, {7}}};
        const auto launching = c.launchBypassed(zed);
        bench.disconnect();
        bench.applications.ended = {7};
        bench.clock.advance(100ms);
        QVERIFY(Workbench::finished(launching));
        QCOMPARE(bench.helperRunCount(u"launch"_s), 0);
        QVERIFY(!c.errorMessage());
    }

    void opensNothingInALaterSession()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        bench.applications.copies = {{zed, {7}}};
        const auto launching = c.launchBypassed(zed);
        bench.disconnect();
        QVERIFY(bench.connect());
        QVERIFY(!launching.isReady()); // it waited all the while
        bench.applications.ended = {7};
        bench.clock.advance(100ms);
        QVERIFY(Workbench::finished(launching));
        QCOMPARE(bench.helperRunCount(u"launch"_s), 0);
        QVERIFY(Workbench::finished(c.launchBypassed(zed))); // which opens it
        QCOMPARE(bench.helperRunCount(u"launch"_s), 1);
    }

    void aLaterSessionDoesNotShowWhyItFailed()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        bench.hold(u"launch"_s);
        bench.failHelper(u"launch"_s, u"No."_s);
        const auto launching = c.launchBypassed(zed);
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        bench.disconnect();
        QVERIFY(bench.connect());
        bench.processes.hold = nullptr;
        bench.processes.release();
        QVERIFY(Workbench::finished(launching));
        QVERIFY(!c.errorMessage());
        QVERIFY(Workbench::finished(c.launchBypassed(zed)));
        QVERIFY(c.errorMessage()); // in its own session it is shown
    }
};

VELDMARK_TEST(BypassAppsTest)
#include "BypassAppsTest.moc"
