#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;
using System = Workbench::System;

class ConnectFailureTest : public QObject {
    Q_OBJECT
private:
    static bool isNormal(const TorController &c)
    {
        return c.phase() == ConnectionPhase::disconnected && !c.activeMode() && !c.activeBridge()
            && !c.canCancel() && c.statusDetail() == u"Your traffic is not going through Tor"_s;
    }

    static bool isLeftSetUp(const TorController &c)
    {
        return c.phase() == ConnectionPhase::stale && !c.canCancel()
            && c.statusDetail() == u"Your network is still set up for Tor"_s;
    }

private Q_SLOTS:
    void withoutTorItSaysHowToGetIt_data()
    {
        QTest::addColumn<System>("system");
        QTest::addColumn<QByteArray>("osRelease");
        QTest::addColumn<QString>("message");
        QTest::newRow("macos")
            << System::macos << QByteArray()
            << u"Tor isn't installed. Install it with Homebrew (brew install tor) or set its location in Settings."_s;
        QTest::newRow("linux")
            << System::linux << QByteArray()
            << u"Tor isn't installed. Install it with your package manager or set its location in Settings."_s;
        QTest::newRow("debian")
            << System::linux << QByteArray("ID=debian\n")
            << u"Tor isn't installed. Install it with your package manager (sudo apt install tor tor-geoipdb) or "
               "set its location in Settings."_s;
    }

    void withoutTorItSaysHowToGetIt()
    {
        QFETCH(System, system);
        QFETCH(QByteArray, osRelease);
        QFETCH(QString, message);
        Workbench bench(system);
        bench.writeFile(bench.folder.filePath(u"etc/os-release"_s), osRelease);
        if (system == System::linux)
            bench.profile = PlatformProfile::linux(bench.profile.places);
        bench.removeTor();
        QVERIFY(!bench.connect());
        QCOMPARE(bench.controller().errorMessage().value(), message);
        QVERIFY(isNormal(bench.controller()));

        bench.writeMarker("proxy"); // the phase does not change
        bench.controller().detectStaleState();
        QVERIFY(!bench.connect());
        QCOMPARE(bench.controller().errorMessage().value(), message);
        QVERIFY(bench.controller().phase() == ConnectionPhase::stale);
        QVERIFY(bench.controller().activeMode() == RoutingMode::proxy);
        QVERIFY(bench.processes.calls.empty());
    }

    void rejectsExitCountry_data()
    {
        QTest::addColumn<QString>("code");
        QTest::newRow("capitals") << u"DE"_s;
        QTest::newRow("three letters") << u"deu"_s;
        QTest::newRow("one letter") << u"d"_s;
        QTest::newRow("digit") << u"d1"_s;
        QTest::newRow("line end") << u"de\n"_s;
        QTest::newRow("blank") << u" "_s;
        QTest::newRow("other script") << u"dе"_s; // a Cyrillic letter
        QTest::newRow("option") << u"--"_s;
    }

    void rejectsExitCountry()
    {
        QFETCH(QString, code);
        Workbench bench;
        bench.controller().exitCountry.set(code);
        QVERIFY(!bench.connect());
        QCOMPARE(bench.controller().errorMessage().value(), u"Invalid exit country."_s);
        QVERIFY(isNormal(bench.controller()));
        bench.writeMarker("strict");
        bench.controller().detectStaleState();
        QVERIFY(!bench.connect());
        QVERIFY(bench.controller().phase() == ConnectionPhase::stale);
        QCOMPARE(bench.searches, 1); // that of the start
        QVERIFY(bench.processes.calls.empty());
    }

    void bridgesThatCannotBeUsed_data()
    {
        QTest::addColumn<BridgeChoice>("choice");
        QTest::addColumn<QString>("custom");
        QTest::addColumn<QString>("message");
        QTest::newRow("none built in")
            << BridgeChoice::snowflake << QString()
            << u"Built-in Snowflake bridges come from Tor Browser. Click Download next to Bridges, install Tor "
               "Browser, or paste your own under Bridges → Custom…."_s;
        QTest::newRow("none of one's own") << BridgeChoice::custom << QString()
                                           << u"Add at least one bridge under Bridges → Custom…."_s;
        QTest::newRow("invalid")
            << BridgeChoice::custom << u"nonsense"_s
            << u"Some custom bridge lines aren't valid. Fix them under Bridges → Custom…."_s;
        QTest::newRow("no program")
            << BridgeChoice::custom
            << u"obfs4 192.0.2.1:443 0123456789ABCDEF0123456789ABCDEF01234567 cert=abc iat-mode=0"_s
            << u"These bridges need lyrebird, which comes with Tor Browser. Click Download next to Bridges to get it."_s;
    }

    void bridgesThatCannotBeUsed()
    {
        QFETCH(BridgeChoice, choice);
        QFETCH(QString, custom);
        Workbench bench;
        bench.controller().bridgeChoice.set(choice);
        bench.controller().customBridges.set(custom);
        QVERIFY(!bench.connect());
        QTEST(bench.controller().errorMessage().value().english(), "message");
        QVERIFY(isNormal(bench.controller()));
        QVERIFY(bench.processes.calls.empty());
        bench.writeMarker("strict");
        bench.controller().detectStaleState();
        QVERIFY(!bench.connect());
        QVERIFY(isLeftSetUp(bench.controller()));
        QTEST(bench.controller().errorMessage().value().english(), "message");
    }

    void aDismissedPromptIsNoError_data() { Workbench::bothSystems(); }
    void aDismissedPromptIsNoError()
    {
        QFETCH(System, system);
        Workbench bench(system);
        bench.cancelPrompt(u"connect"_s);
        QVERIFY(!bench.connect());
        QVERIFY(isNormal(bench.controller()));
        QVERIFY(!bench.controller().errorMessage());
        QVERIFY(bench.tor.commands().isEmpty());

        bench.writeMarker("strict");
        bench.controller().detectStaleState();
        QVERIFY(!bench.connect());
        QVERIFY(isLeftSetUp(bench.controller()));
        QVERIFY(bench.controller().activeMode() == RoutingMode::strict);
        QVERIFY(!bench.controller().errorMessage());
    }

    void aFailedHelper_data() { Workbench::bothSystems(); }
    void aFailedHelper()
    {
        QFETCH(System, system);
        Workbench bench(system);
        bench.failHelper(u"connect"_s, u"Tor could not be started."_s);
        QVERIFY(!bench.connect());
        QVERIFY(isNormal(bench.controller()));
        QCOMPARE(bench.controller().errorMessage().value(), u"Tor could not be started."_s);
        bench.letHelperWork();
        QVERIFY(bench.connect());
        QVERIFY(!bench.controller().errorMessage()); // the earlier error has gone
    }

    // The helper has changed the network and then failed, or an earlier run had changed it.
    void whatTheMarkerSaysHolds_data()
    {
        QTest::addColumn<QByteArray>("before"); // the marker's content when connecting begins
        QTest::addColumn<QByteArray>("after");
        QTest::addColumn<QString>("mode"); // the mode of the remaining session
        QTest::newRow("nothing before") << QByteArray() << QByteArray("strict\n") << u"strict"_s;
        QTest::newRow("unchanged")
            << QByteArray("strict\n") << QByteArray("strict\n") << u"strict"_s;
        QTest::newRow("changed") << QByteArray("strict\n") << QByteArray("proxy\n") << u"proxy"_s;
        QTest::newRow("other word") << QByteArray("strict\n") << QByteArray("?") << QString();
        QTest::newRow("gone") << QByteArray("strict\n") << QByteArray() << QString();
    }

    void whatTheMarkerSaysHolds()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        QFETCH(QString, mode);
        Workbench bench;
        TorController &c = bench.controller();
        if (!before.isEmpty())
            bench.writeMarker(before);
        c.detectStaleState();
        const auto helper = bench.processes.answer;
        bench.failHelper(u"connect"_s, u"Half done."_s);
        bench.processes.answer = [&](const ScriptedRunner::Call &call) {
            if (call.executable == bench.profile.promptProgram) {
                bench.removeMarker();
                if (!after.isEmpty())
                    bench.writeMarker(after);
            }
            return helper(call);
        };
        QVERIFY(!bench.connect());
        QCOMPARE(c.errorMessage().value(), u"Half done."_s);
        QVERIFY(after.isEmpty() ? isNormal(c) : isLeftSetUp(c));
        QVERIFY(c.activeMode() == routingModeFromRawValue(mode));
    }

    void aMissingHelperSaysSo()
    {
        Workbench bench;
        QVERIFY(QFile::remove(bench.profile.helperCandidates.constFirst()));
        QVERIFY(!bench.connect());
        QVERIFY(isNormal(bench.controller()));
        QCOMPARE(bench.controller().errorMessage().value(),
                 u"The helper is missing. Reinstall Veldmark."_s);
    }

    void afterAFailureTerminalsGoTheNormalWay()
    {
        Workbench bench;
        bench.controller().setTerminalMode(true);
        bench.writeMarker("strict");
        bench.writeFile(bench.profile.terminalDirectory + u"/active"_s);
        bench.controller().detectStaleState();
        bench.failHelper(u"connect"_s, u"no"_s);
        bench.removeMarker();
        QVERIFY(!bench.connect());
        QVERIFY(isNormal(bench.controller()));
        QVERIFY(!QFile::exists(bench.profile.terminalDirectory + u"/active"_s));
    }

    void aRelativePlaceOfTorIsRefused()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect()); // another tor exists
        bench.disconnect();
        c.customTorPath.set(u" bin/tor"_s); // an older version may have stored it
        QVERIFY(Workbench::finished(c.connect()));
        QVERIFY(c.phase() == ConnectionPhase::disconnected);
        QCOMPARE(
            c.errorMessage().value(),
            u"\"bin/tor\" is not a location of Tor. Give an absolute path, such as /usr/bin/tor."_s);
        QCOMPARE(bench.helperRunCount(u"connect"_s), 1);
        QVERIFY(!c.torPath()); // the settings must not show a tor as found that a connect refuses
    }
};

VELDMARK_TEST(ConnectFailureTest)
#include "ConnectFailureTest.moc"
