#include "controller/PublishedState.h"
#include "support/ListeningSocket.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace veldmark;
using State = KillSwitch::State;

namespace {

const QString openText
    = u"Another program removed Veldmark's firewall rules and they could not be put back. Traffic "
      "may leave this computer directly. Disconnect and connect again."_s;
const QString backText
    = u"Another program removed Veldmark's firewall rules; they are back in place."_s;
const QString blockedDeath
    = u"Tor stopped running. The kill switch is still blocking traffic, so nothing leaked. Reconnect, "
      "or Restore Network to go back online."_s;
const QString openDeath
    = u"Tor stopped running, and the kill switch doesn't block traffic: another program removed its rules. Traffic may leave this computer directly. Reconnect, or Restore Network."_s;

void killTor(Workbench &bench)
{
    bench.tor.stopListening();
    for (int tick = 0; tick < 3; ++tick)
        QVERIFY(bench.tick());
    QVERIFY(bench.controller().phase() == ConnectionPhase::stale);
}

State stateOf(const TorController &c)
{
    return c.killSwitch() ? c.killSwitch()->state : State::unknown;
}

} // namespace

// The watcher's notes about the rules, and the messages during a session and without one.
class KillSwitchWatchTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void standsOnceConnected_data() { Workbench::bothSystems(); }
    void standsOnceConnected()
    {
        QFETCH(Workbench::System, system);
        Workbench bench(system);
        TorController &c = bench.controller();
        QVERIFY(!c.killSwitch());
        QVERIFY(bench.connect());
        QVERIFY(c.killSwitch() && c.killSwitch()->state == State::standing);
        QCOMPARE(c.title(), u"Protected"_s);
        bench.disconnect();
        QVERIFY(!c.killSwitch());
    }

    // The same watch looks at the identities.
    void saysWhetherApplicationsAreSeparated()
    {
        Workbench bench;
        TorController &c = bench.controller();
        const auto published = [&c] { return publishedState(c).value(u"separated"_s); };
        QVERIFY(published().isNull());
        QVERIFY(bench.connect());
        QCOMPARE(published(), QJsonValue(false)); // the program was not started
        bench.writeFile(bench.profile.identitiesNote, "identities 1\nstanding\nend 1\n");
        {
            const ListeningSocket program(bench.profile.identitiesSocket);
            QVERIFY(bench.tick());
            QCOMPARE(published(), QJsonValue(true));
            bench.writeFile(bench.profile.identitiesNote); // it is being written
            QVERIFY(bench.tick());
            QCOMPARE(published(), QJsonValue(true));
            bench.writeFile(bench.profile.identitiesNote, "identities 2\nlost\nend 2\n");
            QVERIFY(bench.tick());
            QCOMPARE(published(), QJsonValue(false));
            bench.writeFile(bench.profile.identitiesNote, "identities 3\nstanding\nend 3\n");
            bench.disconnect();
            QVERIFY(published().isNull() && !c.separated());
            QVERIFY(bench.connect());
            QCOMPARE(published(), QJsonValue(true)); // at once
        }
        QVERIFY(bench.tick()); // it has ended
        QCOMPARE(published(), QJsonValue(false));
        bench.disconnect();
        c.separateApps.set(false);
        QVERIFY(bench.connect());
        QVERIFY(published().isNull());
    }

    void aSystemThatCannotSeparateThemSaysNothing()
    {
        Workbench bench(Workbench::System::macos);
        QVERIFY(bench.connect());
        QVERIFY(bench.tick());
        QVERIFY(!bench.controller().separated());
    }

    void proxyModeHasNoneAndShowsNoLeftoverNote()
    {
        Workbench bench;
        TorController &c = bench.controller();
        c.strictMode.set(false);
        QVERIFY(bench.connect());
        bench.noteRules("open", 7); // left by a strict session
        for (int tick = 0; tick < 3; ++tick)
            QVERIFY(bench.tick());
        QVERIFY(!c.killSwitch() && !c.errorMessage());
        QCOMPARE(c.title(), u"Proxy Active"_s);
    }

    void aNoteOfAnEarlierSessionIsNotTold_data()
    {
        QTest::addColumn<QByteArray>("word");
        QTest::addColumn<QString>("title");
        QTest::newRow("restored") << QByteArray("restored") << u"Needs Attention"_s;
        QTest::newRow("open, which is so now") << QByteArray("open") << u"Kill Switch Failed"_s;
    }

    void aNoteOfAnEarlierSessionIsNotTold()
    {
        QFETCH(QByteArray, word);
        Workbench bench;
        TorController &c = bench.controller();
        bench.writeMarker("strict\n");
        bench.noteRules(word, 2);
        c.detectStaleState();
        QTEST(c.title().english(), "title");
        QVERIFY(!c.errorMessage());
        QVERIFY(bench.tick());
        QVERIFY(!c.errorMessage());
        QVERIFY(bench.connect()); // with a new watcher, which counts from zero
        QVERIFY(!c.errorMessage());
        QCOMPARE(c.title(), u"Protected"_s);
    }

    // Two programs that look at one session say the same of it, whenever each began to look.
    void whoLooksLaterSaysTheSame_data()
    {
        QTest::addColumn<QByteArray>("word");
        QTest::newRow("it was open") << QByteArray("open");
        QTest::newRow("it stood") << QByteArray("standing");
    }

    void whoLooksLaterSaysTheSame()
    {
        QFETCH(QByteArray, word);
        Workbench bench;
        QVERIFY(bench.connect());
        bench.noteRules(word, 2, 1'700'000'000);
        QVERIFY(bench.tick());
        bench.killWatcher();
        for (int tick = 0; tick < 3; ++tick)
            QVERIFY(bench.tick());
        const KillSwitch first = bench.controller().killSwitch().value();
        QVERIFY(first.state == (word == "open" ? State::open : State::unknown));
        QVERIFY(first.since.secsTo(QDateTime::currentDateTimeUtc()) >= 59); // not only just now
        bench.restart();
        bench.controller().detectStaleState();
        const KillSwitch second = bench.controller().killSwitch().value();
        QVERIFY(second.state == first.state);
        QCOMPARE(second.since, first.since);
    }

    void aNoteFromBeforeARestartTellsNothing()
    {
        Workbench bench;
        TorController &c = bench.controller();
        bench.writeMarker("strict\n");
        bench.noteRules("standing");
        bench.killWatcher();
        c.detectStaleState();
        QVERIFY(c.killSwitch() && c.killSwitch()->state == State::unknown);
        QCOMPARE(c.title(), u"Needs Attention"_s);
    }

    void whatBecomesOfTheRulesIsToldOnce()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        QVERIFY(bench.tick());
        QVERIFY(!c.errorMessage());
        bench.noteRules("restored", 1);
        QVERIFY(bench.tick());
        QCOMPARE(c.errorMessage().value(), backText);
        QCOMPARE(c.title(), u"Protected"_s);
        c.dismissError();
        QVERIFY(bench.tick());
        QVERIFY(!c.errorMessage());
        QSignalSpy changes(&c.killSwitch, &Field::changed);
        bench.noteRules("open", 2);
        QVERIFY(bench.tick());
        QCOMPARE(c.errorMessage().value(), openText);
        QCOMPARE(c.title(), u"Kill Switch Failed"_s);
        QCOMPARE(c.verdict().detail, u"Traffic may leave this computer directly"_s);
        QVERIFY(c.leakStatus() == LeakStatus::notTested()); // "blocked" no longer holds
        c.dismissError();
        for (int tick = 0; tick < 5; ++tick) // the watcher tries repeatedly
            QVERIFY(bench.tick());
        QCOMPARE(changes.count(), 1);
        QVERIFY(!c.errorMessage());
        QCOMPARE(c.title(), u"Kill Switch Failed"_s); // which can't be dismissed
        bench.noteRules("restored", 2);
        QVERIFY(bench.tick());
        QCOMPARE(c.errorMessage().value(), backText);
        QCOMPARE(c.title(), u"Protected"_s);
    }

    void aSecondRemovalIsToldAsWell()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        bench.noteRules("restored", 1, 1'800'000'000);
        QVERIFY(bench.tick());
        c.dismissError();
        bench.noteRules("restored", 2, 1'800'000'100);
        QVERIFY(bench.tick());
        QCOMPARE(c.errorMessage().value(), backText);
    }

    void aSecondSessionTellsTheSameAgain()
    {
        Workbench bench;
        TorController &c = bench.controller();
        for (int session = 0; session < 2; ++session) {
            QVERIFY(bench.connect());
            QVERIFY(!c.errorMessage());
            bench.noteRules("restored", 1); // the very same note
            QVERIFY(bench.tick());
            QCOMPARE(c.errorMessage().value(), backText);
            bench.disconnect();
            QVERIFY(!c.errorMessage());
        }
    }

    // A known event of the previous session is news in the next one.
    void whatASecondSessionFindsAsItWasIsToldAgain_data()
    {
        QTest::addColumn<QByteArray>("word");
        QTest::addColumn<QString>("told");
        QTest::newRow("open") << QByteArray("open") << openText;
        QTest::newRow("put back") << QByteArray("restored") << backText;
        QTest::newRow("nobody tells") << QByteArray() << QString();
    }

    void whatASecondSessionFindsAsItWasIsToldAgain()
    {
        QFETCH(QByteArray, word);
        QFETCH(QString, told);
        Workbench bench;
        TorController &c = bench.controller();
        const auto find = [&bench, word] {
            bench.noteRules(word.isEmpty() ? "standing" : word, 1); // the very same note
            if (word.isEmpty())
                bench.killWatcher();
        };
        bench.writeMarker("strict\n");
        find();
        c.detectStaleState();
        const auto before = c.killSwitch();
        QVERIFY(before && !c.errorMessage()); // of an earlier session: no news
        const auto answer = bench.processes.answer;
        bench.processes.answer = [answer, find](const ScriptedRunner::Call &call) {
            const auto done = answer(call);
            find(); // as soon as the helper is done
            return done;
        };
        QVERIFY(bench.connect());
        QVERIFY(c.killSwitch() == before);
        QVERIFY2(c.errorMessage(), "there is no message");
        const QString text = c.errorMessage()->english();
        QVERIFY2(told.isEmpty() ? text.contains(u"has stopped reporting"_s) : text == told,
                 qPrintable(text));
    }

    void torsEndOfAnEarlierSessionIsNoWordOnTheNext()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        killTor(bench);
        QVERIFY(c.hasTorStopped());
        bench.tor.listen();
        QVERIFY(bench.connect());
        QVERIFY(!c.hasTorStopped() && !c.errorMessage());
        bench.noteRules("open", 3);
        QVERIFY(bench.tick());
        QCOMPARE(c.errorMessage().value(), openText);
    }

    void whatHappensWhileTorStartsIsToldToo()
    {
        Workbench bench;
        TorController &c = bench.controller();
        bench.setBootstrap("PROGRESS=5 SUMMARY=\"Connecting\"");
        const auto connecting = c.connect();
        QVERIFY(bench.hears(Workbench::bootstrapCommand));
        QVERIFY(until([&] { return bench.clock.sleepers() == 2; }));
        QCOMPARE(c.title(), u"Connecting…"_s);
        bench.noteRules("open", 1);
        bench.clock.advance(2s);
        QVERIFY(c.phase() == ConnectionPhase::connecting);
        QCOMPARE(c.title(), u"Kill Switch Failed"_s);
        QCOMPARE(c.errorMessage().value(), openText);
        bench.disconnect();
    }

    void asksAgainAtACheck()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        bench.noteRules("open", 1);
        const auto checking = c.runChecks();
        QVERIFY(Workbench::finished(checking));
        QCOMPARE(c.title(), u"Kill Switch Failed"_s);
        // there was no answer, but not because of a rule
        QVERIFY(c.leakStatus() != LeakStatus::blocked());
    }

    void aWatcherThatTellsNoMoreIsNotBelievedForLong()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        QVERIFY(bench.tick());
        bench.killWatcher();
        bench.clock.advance(1s);
        // the note looks recent, as after the computer's sleep
        QVERIFY(c.killSwitch()->state == State::standing);
        bench.clock.advance(1s);
        QVERIFY(c.killSwitch()->state == State::unknown);
        QCOMPARE(c.title(), u"Needs Attention"_s);
        QVERIFY(c.errorMessage().value().english().contains(u"has stopped reporting"_s));
        QVERIFY(c.leakStatus() == LeakStatus::notTested());
        bench.noteRules("standing", 0, 1'800'000'900); // started again by "Fix DNS"
        QVERIFY(bench.tick());
        QCOMPARE(c.title(), u"Protected"_s);
        QVERIFY(!c.errorMessage());
    }

    void aSessionThatAnotherProcessTurnedOrEndedIsNeverCalledProtected()
    {
        for (const bool isEnded : {false, true}) {
            Workbench bench;
            TorController &c = bench.controller();
            QVERIFY(bench.connect());
            QCOMPARE(c.title(), u"Protected"_s);
            if (isEnded) // and another program still answers at Tor's port
                bench.removeMarker();
            else
                bench.writeMarker("proxy\n");
            bench.clock.advance(1s);
            QCOMPARE(c.title(), u"Kill Switch Failed"_s);
            QVERIFY(c.leakStatus() == LeakStatus::notTested());
        }
        Workbench bench;
        TorController &c = bench.controller();
        c.strictMode.set(false);
        QVERIFY(bench.connect());
        QCOMPARE(c.title(), u"Proxy Active"_s);
        bench.removeMarker();
        bench.clock.advance(1s);
        QVERIFY(c.phase() == ConnectionPhase::disconnected);
        QCOMPARE(c.title(), u"Not Protected"_s);
    }

    void whatWasOpenStaysSoUntilItIsSeenClosed()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        bench.noteRules("open", 1);
        QVERIFY(bench.tick());
        bench.killWatcher();
        for (int tick = 0; tick < 10; ++tick)
            QVERIFY(bench.tick());
        QCOMPARE(c.title(), u"Kill Switch Failed"_s);
    }

    void aNoteOfTheFutureOrOfNonsenseIsNotBelieved()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        bench.writeFile(bench.profile.killSwitchNote, "all is well\n");
        for (int tick = 0; tick < 5; ++tick)
            QVERIFY(bench.tick());
        QVERIFY(c.killSwitch()->state == State::unknown);
    }

    void torsDeathIsToldWithTheTruth_data()
    {
        QTest::addColumn<QByteArray>("word");
        QTest::addColumn<bool>("claimsBlocking");
        QTest::addColumn<QString>("title");
        QTest::newRow("standing") << QByteArray("standing") << true << u"Needs Attention"_s;
        QTest::newRow("restored") << QByteArray("restored") << false << u"Needs Attention"_s;
        QTest::newRow("open") << QByteArray("open") << false << u"Kill Switch Failed"_s;
        QTest::newRow("no word") << QByteArray() << false << u"Needs Attention"_s;
    }

    void torsDeathIsToldWithTheTruth()
    {
        QFETCH(QByteArray, word);
        QFETCH(bool, claimsBlocking);
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        if (word.isEmpty())
            bench.killWatcher();
        else
            bench.noteRules(word, 1);
        for (int tick = 0; tick < 5; ++tick)
            QVERIFY(bench.tick());
        killTor(bench);
        QTEST(c.title().english(), "title");
        QCOMPARE(c.errorMessage().value() == blockedDeath, claimsBlocking);
        QVERIFY(claimsBlocking
                || !c.errorMessage().value().english().contains(u"nothing leaked"_s));
        QVERIFY(c.errorMessage().value().english().startsWith(u"Tor stopped running"_s));
        QCOMPARE(c.statusDetail(), u"Tor stopped running"_s);
    }

    void whatIsSaidAfterTorsDeathIsCorrected()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        killTor(bench);
        QCOMPARE(c.errorMessage().value(), blockedDeath);
        bench.noteRules("open", 1);
        bench.clock.advance(2s);
        QCOMPARE(c.errorMessage().value(), openDeath);
        QCOMPARE(c.title(), u"Kill Switch Failed"_s);
        c.dismissError();
        bench.clock.advance(2s);
        QVERIFY(!c.errorMessage());
        bench.noteRules("restored", 1);
        bench.clock.advance(2s);
        QVERIFY(c.errorMessage().value().english().contains(u"blocking traffic again"_s));
        QCOMPARE(c.title(), u"Needs Attention"_s);
        bench.killWatcher();
        bench.clock.advance(10s);
        QVERIFY(c.errorMessage().value().english().contains(u"isn't known"_s));
        bench.tor.listen();
        QVERIFY(bench.connect()); // the next session has a note of its own
        QVERIFY(!c.errorMessage());
        bench.noteRules("restored", 1);
        QVERIFY(bench.tick());
        QCOMPARE(c.errorMessage().value(), backText);
    }

    void whatHappensAtThePromptForARestoreIsToldWhenItIsDismissed()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        killTor(bench);
        bench.cancelPrompt(u"disconnect"_s);
        bench.disconnect();
        QCOMPARE(c.errorMessage().value(), blockedDeath); // still true
        bench.hold(u"disconnect"_s);
        const auto restoring = c.disconnect();
        bench.noteRules("open", 1);
        bench.processes.hold = nullptr;
        bench.processes.release();
        QVERIFY(Workbench::finished(restoring));
        QVERIFY(c.phase() == ConnectionPhase::stale);
        QCOMPARE(c.title(), u"Kill Switch Failed"_s);
        QCOMPARE(c.errorMessage().value(), openDeath);
    }

    void aNetworkThatAnotherProcessRestoresIsNoLongerStale()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        killTor(bench);
        bench.removeMarker();
        bench.clock.advance(2s);
        QVERIFY(c.phase() == ConnectionPhase::disconnected);
        QVERIFY(!c.killSwitch() && !c.errorMessage());
        QCOMPARE(c.title(), u"Not Protected"_s);
    }

    void aMarkerThatIsGoneIsNoKillSwitch()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        bench.removeMarker();
        QVERIFY(bench.tick());
        QVERIFY(stateOf(c) == State::open);
        QCOMPARE(c.title(), u"Kill Switch Failed"_s);
    }

    void disconnectingIsNoAlarm()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        QStringList titles;
        QObject::connect(&c.killSwitch, &Field::changed, [&] { titles << c.title().english(); });
        bench.hold(u"disconnect"_s);
        const auto disconnecting = c.disconnect();
        bench.noteRules("open", 1);
        bench.removeMarker();
        bench.clock.advance(10s);
        QCOMPARE(c.title(), u"Disconnecting…"_s);
        for (const QString &name : {u"killSwitch"_s, u"killSwitchSince"_s})
            QVERIFY(publishedState(c).value(name).isNull()); // the disconnect removes them, and no
                                                             // watcher looks
        bench.processes.hold = nullptr;
        bench.processes.release();
        QVERIFY(Workbench::finished(disconnecting));
        QVERIFY(!titles.contains(u"Kill Switch Failed"_s));
        QVERIFY(!c.errorMessage());
    }

    void aCheckWhoseBeginningDisconnectsIsNoAlarm_data()
    {
        QTest::addColumn<bool>("disconnects");
        QTest::newRow("it stays connected") << false;
        QTest::newRow("it disconnects") << true;
    }

    void aCheckWhoseBeginningDisconnectsIsNoAlarm()
    {
        QFETCH(bool, disconnects);
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        bench.hold(u"disconnect"_s);
        std::optional<decltype(c.disconnect())> disconnecting;
        QObject::connect(&c.isChecking, &Field::changed, [&] {
            if (!c.isChecking())
                return;
            bench.noteRules("open", 1);
            if (disconnects)
                disconnecting = c.disconnect();
        });
        const auto checking = c.runChecks();
        QCOMPARE(c.title(), disconnects ? u"Disconnecting…"_s : u"Kill Switch Failed"_s);
        QCOMPARE(c.errorMessage().has_value(), !disconnects);
        bench.processes.hold = nullptr;
        bench.processes.release();
        QVERIFY(Workbench::finished(checking));
        QVERIFY(!disconnecting || Workbench::finished(*disconnecting));
    }

    void isWatchedAgainAfterARefusedDisconnect()
    {
        Workbench bench;
        TorController &c = bench.controller();
        QVERIFY(bench.connect());
        bench.cancelPrompt(u"disconnect"_s);
        bench.disconnect();
        QVERIFY(c.phase() == ConnectionPhase::connected);
        QCOMPARE(c.title(), u"Protected"_s);
        bench.noteRules("open", 1);
        QVERIFY(bench.tick());
        QCOMPARE(c.title(), u"Kill Switch Failed"_s);
    }

    void anExposureIsNotForgottenWhileItIsTestedAgain()
    {
        Workbench bench;
        TorController &c = bench.controller();
        bench.probe.directAnswer = IPCheck{false, u"198.51.100.7"_s};
        QVERIFY(bench.connect());
        QCOMPARE(c.title(), u"Needs Attention"_s);
        bench.probe.beforeTorAnswer = [&bench] { return bench.clock.sleep(1s); };
        const auto checking = c.runChecks();
        QCOMPARE(c.leakStatus().name(), u"checking"_s);
        QCOMPARE(c.title(), u"Needs Attention"_s);
        bench.probe.directAnswer = ScriptedProbe::nothing();
        bench.clock.advance(1s);
        QVERIFY(Workbench::finished(checking));
    }

    void whatLeakedBeforeTorsDeathIsNotDenied_data()
    {
        QTest::addColumn<bool>("exposed");
        QTest::newRow("the user's address") << true;
        QTest::newRow("lookups") << false;
    }

    void whatLeakedBeforeTorsDeathIsNotDenied()
    {
        QFETCH(bool, exposed);
        Workbench bench;
        TorController &c = bench.controller();
        DNSResolver leaking;
        leaking.nameservers = {u"192.168.1.1"_s};
        if (exposed)
            bench.probe.directAnswer = IPCheck{false, u"198.51.100.7"_s};
        else
            bench.resolvers.answer = {leaking};
        QVERIFY(bench.connect());
        QVERIFY(c.title() != u"Protected"_s);
        killTor(bench);
        QVERIFY2(!c.errorMessage().value().english().contains(u"nothing leaked"_s),
                 qPrintable(c.errorMessage().value().english()));
    }
};

VELDMARK_TEST(KillSwitchWatchTest)
#include "KillSwitchWatchTest.moc"
