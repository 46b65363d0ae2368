#include "controller/PublishedState.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QJsonArray>
#include <QTest>
#include <QTranslator>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace veldmark;

namespace {

const QString own = u"192.0.2.1:443"_s;
const QString obfs4 = u"obfs4 192.0.2.2:443 cert=a iat-mode=0"_s;
const QString meek = u"meek_lite 192.0.2.3:80 url=https://a/"_s;
const QByteArray toOwn = "SETCONF UseBridges=1 Bridge=\"192.0.2.1:443\"";
const QByteArray toObfs4 = "SETCONF UseBridges=1 Bridge=\"obfs4 192.0.2.2:443 cert=a iat-mode=0\"";
const QByteArray toMeek = "SETCONF UseBridges=1 Bridge=\"meek_lite 192.0.2.3:80 url=https://a/\"";
const QByteArray silent = "PROGRESS=5 TAG=conn SUMMARY=\"Connecting to a relay\"";

QByteArray refusals(int count)
{
    return silent + " WARNING=\"Connection refused\" REASON=CONNECTREFUSED COUNT="
        + QByteArray::number(count) + " RECOMMENDATION=ignore";
}

class Shouting final : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return QString::fromUtf8(source).toUpper();
    }
};

} // namespace

// From a network in which Tor cannot connect to bridges, without another run of the helper.
class ClimbingTest : public QObject {
    Q_OBJECT
private:
    // A computer with bridges of its own, obfs4 and meek.
    static void provide(Workbench &bench, Climb climb)
    {
        const QString lyrebird = bench.folder.filePath(u"lyrebird"_s);
        bench.writeFile(lyrebird, {}, true);
        bench.transports.lyrebird = lyrebird;
        bench.transports.builtin = {{u"obfs4"_s, {obfs4}}, {u"meek_lite"_s, {meek}}};
        bench.restart();
        bench.controller().climb.set(climb);
        bench.controller().customBridges.set(own);
        for (const QByteArray &command : {toOwn, toObfs4, toMeek})
            bench.tor.reply(command, "250 OK\r\n");
        bench.setBootstrap(silent);
    }

    // Lets that many seconds pass, each with Tor's answer.
    static bool pass(Workbench &bench, int seconds)
    {
        for (int second = 0; second < seconds; ++second) {
            const int before = bench.commandCount(Workbench::bootstrapCommand);
            bench.clock.advance(1s);
            if (!until([&] {
                    return bench.controller().phase() != ConnectionPhase::connecting
                        || (bench.commandCount(Workbench::bootstrapCommand) > before
                            && bench.clock.sleepers() == 2); // and the watch over the rules
                }))
                return false;
        }
        return true;
    }

    static bool begins(Workbench &bench)
    {
        return bench.hears(Workbench::bootstrapCommand)
            && until([&] { return bench.clock.sleepers() == 2; });
    }

    static QCoro::Task<void> waitFor(ResumeOnce<bool> gate) { co_await gate; }

    // Ends the session's Tor. Another one can be started after that.
    static bool torDies(Workbench &bench)
    {
        bench.tor.stopListening();
        const bool isNoticed = until([&] {
            bench.clock.advance(2s);
            settle();
            return bench.controller().phase() == ConnectionPhase::stale;
        });
        bench.tor.listen();
        return isNoticed;
    }

    static QStringList steps(const TorController &c)
    {
        QStringList lines;
        for (const LadderStep &step : c.ladder())
            lines << Ladder::line(step).english();
        return lines;
    }

private Q_SLOTS:
    void climbsRungByRungToTheOneThatWorks()
    {
        Workbench bench;
        provide(bench, Climb::always);
        TorController &c = bench.controller();
        const auto connecting = c.connect();
        QVERIFY(begins(bench));
        QVERIFY(pass(bench, 14));
        QCOMPARE(steps(c), QStringList());
        QVERIFY(pass(bench, 1));
        QCOMPARE(steps(c),
                 QStringList({u"Direct: No answer. (15 s)"_s, u"Your bridges: Being tried…"_s}));
        QCOMPARE(bench.commandCount(toOwn), 1);
        QVERIFY(c.activeBridge() == BridgeChoice::custom);
        QVERIFY(c.canCancel() && !c.climbOffer());
        bench.setBootstrap(refusals(1));
        QVERIFY(pass(bench, 4));
        QCOMPARE(bench.commandCount(toObfs4), 0);
        QVERIFY(pass(bench, 1));
        QCOMPARE(steps(c).mid(1),
                 QStringList({u"Your bridges: Refused, or out of reach. (5 s)"_s,
                              u"obfs4: Being tried…"_s}));
        QCOMPARE(bench.commandCount(toObfs4), 1);
        QVERIFY(c.activeBridge() == BridgeChoice::obfs4);
        bench.setBootstrap("PROGRESS=50 TAG=loading_descriptors SUMMARY=\"Loading\"");
        QVERIFY(pass(bench, 20)); // more than a silent bridge gets
        QCOMPARE(bench.commandCount(toMeek), 0);
        bench.setBootstrap("PROGRESS=100 TAG=done SUMMARY=\"Done\"");
        bench.clock.advance(1s);
        QVERIFY(Workbench::finished(connecting));
        QVERIFY(c.phase() == ConnectionPhase::connected);
        QVERIFY(c.activeBridge() == BridgeChoice::obfs4);
        QCOMPARE(steps(c).last(), u"obfs4: Tor has connected. (21 s)"_s);
        QCOMPARE(bench.helperRuns().size(), std::size_t(1));
        const QStringList words = bench.lastHelperRun(u"connect"_s);
        QCOMPARE(words.mid(words.indexOf(u"--reserve"_s)),
                 QStringList({u"--reserve"_s, own, u"--reserve"_s, obfs4, u"--reserve"_s, meek,
                              u"--pt-lyrebird"_s, *bench.transports.lyrebird}));
        bench.disconnect();
        QVERIFY(c.ladder().empty() && !c.activeBridge());
    }

    void aRefusalOfTheFormerBridgesIsNotTheNextOnes()
    {
        Workbench bench;
        provide(bench, Climb::always);
        bench.setBootstrap(refusals(3));
        const auto connecting = bench.controller().connect();
        QVERIFY(begins(bench));
        QVERIFY(pass(bench, 5));
        QCOMPARE(bench.commandCount(toOwn), 1);
        QVERIFY(pass(bench, 14)); // Tor still tells of the relay
        QCOMPARE(bench.commandCount(toObfs4), 0);
        QVERIFY(!bench.controller().bootstrapProblem());
        QVERIFY(pass(bench, 1));
        QCOMPARE(steps(bench.controller()).at(1), u"Your bridges: No answer. (15 s)"_s);
    }

    void aFewRefusalsAreNotTheNetworks()
    {
        Workbench bench;
        provide(bench, Climb::always);
        bench.setBootstrap(refusals(2));
        const auto connecting = bench.controller().connect();
        QVERIFY(begins(bench));
        QVERIFY(pass(bench, 14));
        QCOMPARE(bench.commandCount(toOwn), 0);
        bench.setBootstrap(refusals(3)); // of relays; the first bridges have two lines
        QVERIFY(pass(bench, 1));
        QCOMPARE(bench.commandCount(toOwn), 1);
        QCOMPARE(steps(bench.controller()).first(), u"Direct: Refused, or out of reach. (15 s)"_s);
        // Tor goes on counting: the third is of the relays, the fourth the first of the bridges'.
        bench.controller().customBridges.set(own);
        bench.setBootstrap(refusals(4));
        QVERIFY(pass(bench, 4));
        QCOMPARE(bench.commandCount(toObfs4), 0);
        QVERIFY(pass(bench, 1)); // the one bridge
        QCOMPARE(bench.commandCount(toObfs4), 1);
    }

    void ofSeveralBridgesEachMustRefuse()
    {
        Workbench bench;
        provide(bench, Climb::always);
        bench.controller().customBridges.set(own + u"\n192.0.2.1:444"_s);
        bench.tor.reply(toOwn + " Bridge=\"192.0.2.1:444\"", "250 OK\r\n");
        bench.setBootstrap(refusals(3));
        const auto connecting = bench.controller().connect();
        QVERIFY(begins(bench));
        QVERIFY(pass(bench, 5));
        QCOMPARE(steps(bench.controller()).size(), 2);
        bench.setBootstrap(refusals(4));
        QVERIFY(pass(bench, 10));
        QCOMPARE(bench.commandCount(toObfs4), 0);
        bench.setBootstrap(refusals(5));
        QVERIFY(pass(bench, 1));
        QCOMPARE(bench.commandCount(toObfs4), 1);
    }

    // Tor's progress stands still while it loads the list of relays, and its counter does not.
    void aSlowNetworkIsNotLeft()
    {
        Workbench bench;
        provide(bench, Climb::always);
        const QByteArray loading = "PROGRESS=30 TAG=loading_status SUMMARY=\"Loading\"";
        const auto connecting = bench.controller().connect();
        QVERIFY(begins(bench));
        bench.setBootstrap(loading, 1000);
        QVERIFY(pass(bench, 40));
        bench.setBootstrap(loading, 1000 + RungWatch::slowBytes);
        QVERIFY(pass(bench, 40));
        bench.setBootstrap(loading, 1000 + RungWatch::slowBytes * 2);
        QVERIFY(pass(bench, 45));
        QCOMPARE(bench.commandCount(toOwn), 0);
        QVERIFY(pass(bench, 1)); // 45 s after the last of it
        QCOMPARE(bench.commandCount(toOwn), 1);
    }

    // Tor's account then still reaches nothing but bridges.
    void aConfinedSessionIsNotLoosenedWithoutTheUsersWish()
    {
        for (const auto &[climb, kept] :
             {std::pair{Climb::ask, QStringList{own}}, {Climb::always, {own, meek}}}) {
            Workbench bench;
            provide(bench, climb);
            bench.controller().bridgeChoice.set(BridgeChoice::obfs4);
            const auto connecting = bench.controller().connect();
            QVERIFY(begins(bench));
            const QStringList words = bench.lastHelperRun(u"connect"_s);
            QStringList reserved;
            for (qsizetype at = 0; at < words.size(); ++at) {
                if (words[at] == u"--reserve")
                    reserved << words[at + 1];
            }
            QCOMPARE(reserved, kept);
        }
    }

    void asksBeforeTheFirstRungAlone()
    {
        Workbench bench;
        provide(bench, Climb::ask);
        TorController &c = bench.controller();
        QVERIFY(!c.takeOffer());
        const auto connecting = c.connect();
        QVERIFY(begins(bench));
        QVERIFY(pass(bench, 14));
        QVERIFY(!c.climbOffer() && !c.takeOffer());
        QVERIFY(pass(bench, 1));
        QCOMPARE(
            c.climbOffer().value(),
            u"Tor cannot connect in this network. Veldmark can try bridges: Your bridges, obfs4, meek."_s);
        QVERIFY(pass(bench, 60));
        QCOMPARE(bench.commandCount(toOwn), 0);
        QVERIFY(c.ladder().empty() && !c.activeBridge());
        QVERIFY(c.takeOffer());
        QVERIFY(!c.climbOffer());
        QVERIFY(pass(bench, 1));
        QCOMPARE(steps(c).first(), u"Direct: No answer. (76 s)"_s);
        QCOMPARE(bench.commandCount(toOwn), 1);
        QVERIFY(pass(bench, 15));
        QCOMPARE(bench.commandCount(toObfs4), 1); // without another question
    }

    void theOfferIsWithdrawn()
    {
        Workbench bench;
        provide(bench, Climb::ask);
        TorController &c = bench.controller();
        auto connecting = c.connect();
        QVERIFY(begins(bench));
        QVERIFY(pass(bench, 15));
        QVERIFY(c.climbOffer());
        bench.setBootstrap("PROGRESS=30 TAG=loading SUMMARY=\"Loading\""); // Tor gets on
        QVERIFY(pass(bench, 1));
        QVERIFY(!c.climbOffer());
        QVERIFY(pass(bench, 45)); // and stops again
        QVERIFY(c.climbOffer());
        bench.disconnect();
        QVERIFY(!c.climbOffer() && !c.takeOffer());
    }

    void neverClimbsWithoutTheUsersWish()
    {
        Workbench bench;
        provide(bench, Climb::never);
        TorController &c = bench.controller();
        const auto connecting = c.connect();
        QVERIFY(begins(bench));
        QVERIFY(pass(bench, 100));
        QVERIFY(!c.climbOffer() && c.ladder().empty());
        QVERIFY(!bench.lastHelperRun(u"connect"_s).contains(u"--reserve"_s));
        QVERIFY(!bench.lastHelperRun(u"connect"_s).contains(u"--pt-lyrebird"_s));
    }

    void whoHasChosenBridgesIsNeverWithout()
    {
        Workbench bench;
        provide(bench, Climb::always);
        TorController &c = bench.controller();
        c.bridgeChoice.set(BridgeChoice::obfs4);
        const auto connecting = c.connect();
        QVERIFY(begins(bench));
        QVERIFY(pass(bench, 15));
        QCOMPARE(steps(c),
                 QStringList({u"obfs4: No answer. (15 s)"_s, u"Your bridges: Being tried…"_s}));
        QVERIFY(pass(bench, 15));
        QCOMPARE(bench.commandCount(toMeek), 1);
        const QStringList words = bench.lastHelperRun(u"connect"_s);
        QCOMPARE(words.count(u"--bridge"_s), 1);
        QCOMPARE(words.count(u"--reserve"_s), 2);
        QCOMPARE(words.count(u"--pt-lyrebird"_s), 1);
    }

    void theStepsArePublished()
    {
        Workbench bench;
        provide(bench, Climb::always);
        const auto connecting = bench.controller().connect();
        QVERIFY(begins(bench));
        QVERIFY(pass(bench, 15));
        const QJsonObject state = publishedState(bench.controller());
        const QJsonObject direct{
            {u"rung"_s, u"direct"_s}, {u"result"_s, u"No answer."_s}, {u"seconds"_s, 15}};
        const QJsonObject present{{u"rung"_s, u"custom"_s},
                                  {u"result"_s, u"Being tried…"_s},
                                  {u"seconds"_s, QJsonValue::Null}};
        QCOMPARE(state[u"ladder"_s].toArray(), QJsonArray({direct, present}));
        Shouting shouting;
        QCoreApplication::installTranslator(&shouting);
        const QJsonArray shown
            = inUsersLanguage(state, publishedTexts(bench.controller()))[u"ladder"_s].toArray();
        QCoreApplication::removeTranslator(&shouting);
        QCOMPARE(shown[0][u"result"_s].toString(), u"NO ANSWER."_s);
        QCOMPARE(shown[0][u"rung"_s].toString(), u"direct"_s);
        QCOMPARE(shown[1][u"seconds"_s], QJsonValue(QJsonValue::Null));
    }

    void nothingHelpsWithinThreeMinutes()
    {
        Workbench bench;
        provide(bench, Climb::always);
        TorController &c = bench.controller();
        const auto connecting = c.connect();
        QVERIFY(begins(bench));
        QVERIFY(pass(bench, 15 + 15 + 15 + 24));
        QVERIFY(c.phase() == ConnectionPhase::connecting);
        bench.clock.advance(1s);
        QVERIFY(Workbench::finished(connecting));
        QVERIFY(c.phase() == ConnectionPhase::stale);
        QCOMPARE(
            c.errorMessage().value(),
            u"Tor cannot connect in this network. Tried: Direct, Your bridges, obfs4, meek. Your "
            "network is still pointed at Tor. Click Restore Network to undo."_s);
        QCOMPARE(steps(c).last(), u"meek: No answer. (25 s)"_s);
        QVERIFY(!c.canCancel());
        bench.disconnect();
        QVERIFY(c.phase() == ConnectionPhase::disconnected && c.ladder().empty());
    }

    // Each rung answers, and Tor stops at once: the slowest failure.
    void aLadderThatAnswersWithoutEndEndsToo()
    {
        Workbench bench;
        provide(bench, Climb::always);
        TorController &c = bench.controller();
        const auto connecting = c.connect();
        QVERIFY(begins(bench));
        int progress = 14;
        int seconds = 0;
        for (; c.phase() == ConnectionPhase::connecting && seconds < 400; ++seconds) {
            const std::size_t rung = c.ladder().size();
            QVERIFY(pass(bench, 1));
            if (c.ladder().size() != rung)
                bench.setBootstrap("PROGRESS=" + QByteArray::number(++progress) + " TAG=x");
        }
        QVERIFY(c.phase() == ConnectionPhase::stale);
        QVERIFY2(seconds > 15 + 30 && seconds <= 180, qPrintable(QString::number(seconds)));
        QVERIFY(steps(c).last().startsWith(
            u"meek: Something answered, but Tor made no further progress."_s));
    }

    void bridgesThatTorRefusesArePassedOver()
    {
        Workbench bench;
        provide(bench, Climb::always);
        bench.tor.reply(toOwn, "513 Unacceptable option value\r\n");
        TorController &c = bench.controller();
        const auto connecting = c.connect();
        QVERIFY(begins(bench));
        QVERIFY(pass(bench, 15));
        QCOMPARE(steps(c).mid(1),
                 QStringList({u"Your bridges: Tor did not accept these bridges. (0 s)"_s,
                              u"obfs4: Being tried…"_s}));
        QVERIFY(c.activeBridge() == BridgeChoice::obfs4);
    }

    void cancelWorksInEachRung()
    {
        for (const int seconds : {3, 20, 35, 50}) {
            Workbench bench;
            provide(bench, Climb::always);
            TorController &c = bench.controller();
            const auto connecting = c.connect();
            QVERIFY(begins(bench));
            QVERIFY(pass(bench, seconds));
            QVERIFY(c.canCancel());
            bench.disconnect();
            QVERIFY(c.phase() == ConnectionPhase::disconnected && c.ladder().empty());
            const qsizetype asked = bench.tor.commands().size();
            bench.clock.advance(60s);
            settle();
            QCOMPARE(bench.tor.commands().size(), asked);
            QVERIFY(Workbench::finished(connecting));
        }
    }

    void cancelWorksWhileTorIsTold()
    {
        Workbench bench;
        provide(bench, Climb::always);
        TorController &c = bench.controller();
        const auto connecting = c.connect();
        QVERIFY(begins(bench));
        QVERIFY(pass(bench, 14));
        bench.tor.ignore(toOwn);
        bench.clock.advance(1s);
        QVERIFY(bench.hears(toOwn));
        bench.disconnect();
        bench.tor.answerIgnored();
        QVERIFY(Workbench::finished(connecting));
        QVERIFY(c.phase() == ConnectionPhase::disconnected && !c.activeBridge());
        QVERIFY(c.ladder().empty());
    }

    void bridgesAreNotOfferedAgainstWhatTheyCannotPass()
    {
        Workbench bench;
        provide(bench, Climb::always);
        bench.route = std::nullopt;
        const auto connecting = bench.controller().connect();
        QVERIFY(begins(bench));
        QVERIFY(pass(bench, 40));
        QVERIFY(bench.controller().ladder().empty());
        bench.route = NetworkRoute{u"eth0"_s, false};
        QVERIFY(pass(bench, 1 + 14)); // the direct way has its time from now on
        QCOMPARE(bench.commandCount(toOwn), 0);
        QVERIFY(pass(bench, 1));
        QCOMPARE(bench.commandCount(toOwn), 1);
    }

    void aControlPortThatFailsIsNoRefusal()
    {
        Workbench bench;
        provide(bench, Climb::always);
        bench.tor.reply(toOwn, {});
        bench.tor.closeAfter(toOwn);
        TorController &c = bench.controller();
        const auto connecting = c.connect();
        QVERIFY(begins(bench));
        QVERIFY(pass(bench, 15));
        QCOMPARE(bench.commandCount(toOwn), 1);
        QCOMPARE(steps(c), QStringList({u"Direct: No answer. (15 s)"_s}));
        QVERIFY(!c.activeBridge());
        QVERIFY(pass(bench, 1)); // again, since Tor still answers otherwise
        QCOMPARE(bench.commandCount(toOwn), 2);
        QCOMPARE(bench.commandCount(toObfs4), 0);
    }

    void noStepGoesOnAfterTheConnect()
    {
        Workbench bench;
        provide(bench, Climb::always);
        TorController &c = bench.controller();
        const auto connecting = c.connect();
        QVERIFY(begins(bench));
        QVERIFY(pass(bench, 20));
        QCOMPARE(steps(c).size(), 2);
        bench.cancelPrompt(u"disconnect"_s);
        bench.disconnect();
        QVERIFY(c.phase() == ConnectionPhase::stale);
        QCOMPARE(steps(c), QStringList({u"Direct: No answer. (15 s)"_s}));
    }

    void troubleOfAFormerProgramIsNotThePresentOnes()
    {
        Workbench bench;
        provide(bench, Climb::always);
        TorController &c = bench.controller();
        c.bridgeChoice.set(BridgeChoice::obfs4);
        bench.writeFile(bench.profile.runDirectory + u"/notices.log"_s,
                        "Nov 21 00:55:29.000 [warn] Managed proxy \"/x/lyrebird\" having PID 12 "
                        "terminated with status code 1\n");
        const auto connecting = c.connect();
        QVERIFY(begins(bench));
        QVERIFY(pass(bench, 1));
        QVERIFY(c.bootstrapProblem());
        QVERIFY(pass(bench, 30)); // past the user's own bridges to meek
        QCOMPARE(bench.commandCount(toMeek), 1);
        QVERIFY(!c.bootstrapProblem());
    }

    void programsThatNeedAnApprovalAreNotInReserve()
    {
        Workbench bench;
        provide(bench, Climb::always);
        const QString lyrebird = *bench.transports.lyrebird;
        bench.missingApprovals = [lyrebird](const QStringList &words) {
            return words.contains(lyrebird)
                ? std::vector<ProgramApproval>{{lyrebird, u"lyrebird"_s, u"0"_s}}
                : std::vector<ProgramApproval>();
        };
        const auto connecting = bench.controller().connect();
        QVERIFY(begins(bench));
        const QStringList words = bench.lastHelperRun(u"connect"_s);
        QCOMPARE(words.mid(words.indexOf(u"--reserve"_s)), QStringList({u"--reserve"_s, own}));
        QCOMPARE(bench.helperRuns().size(), std::size_t(1));
    }

    void aHelperThatRefusesTheReserveGetsTheConnectWithout()
    {
        Workbench bench;
        provide(bench, Climb::always);
        const auto work = bench.processes.answer;
        bench.processes.answer = [work](const ScriptedRunner::Call &call) {
            if (call.arguments.contains(u"--reserve"_s))
                return Result<ProcessResult, StartError>(ProcessResult{
                    4, {}, u"ERROR: An administrator password is needed to approve /x.\n"_s});
            return work(call);
        };
        bench.setBootstrap("PROGRESS=100 TAG=done SUMMARY=\"Done\"");
        QVERIFY(bench.connect());
        QVERIFY(!bench.lastHelperRun(u"connect"_s).contains(u"--reserve"_s));
        QVERIFY(bench.controller().ladder().empty());
    }

    void aSessionThatIsResumedKeepsItsReserve()
    {
        Workbench bench;
        provide(bench, Climb::ask);
        TorController &c = bench.controller();
        bench.setBootstrap("PROGRESS=100 TAG=done SUMMARY=\"Done\"");
        QVERIFY(bench.connect());
        const QStringList words = bench.lastHelperRun(u"connect"_s);
        QVERIFY(torDies(bench));
        bench.transports.builtin.clear(); // and a search finds something else
        const auto searching = c.locateTransports();
        QVERIFY(Workbench::finished(searching));
        QVERIFY(bench.connect());
        // Anything else would be another session, which needs an administrator.
        QCOMPARE(bench.helperRunCount(u"replace"_s), 0);
        QCOMPARE(bench.lastHelperRun(u"connect"_s), words);
    }

    // What the user has changed meanwhile counts.
    void aSessionThatIsResumedObeysTheSettings()
    {
        const std::array<std::function<void(TorController &)>, 2> changes = {
            [](TorController &c) { c.climb.set(Climb::never); },
            [](TorController &c) { c.customBridges.set(u"192.0.2.77:443"_s); },
        };
        for (const auto &change : changes) {
            Workbench bench;
            provide(bench, Climb::ask);
            TorController &c = bench.controller();
            c.strictMode.set(true);
            bench.setBootstrap("PROGRESS=100 TAG=done SUMMARY=\"Done\"");
            QVERIFY(bench.connect());
            QVERIFY(bench.lastHelperRun(u"connect"_s).contains(own));
            QVERIFY(torDies(bench));
            change(c);
            QVERIFY(bench.connect());
            QCOMPARE(bench.helperRunCount(u"replace"_s), 1);
            QVERIFY(!bench.lastHelperRun(u"replace"_s).contains(own));
        }
    }

    // Another attempt of that kind asks root for the same, not for a change.
    void aConnectThatFailedLeavesTheSessionsReserve()
    {
        Workbench bench;
        provide(bench, Climb::ask);
        TorController &c = bench.controller();
        c.strictMode.set(true);
        bench.setBootstrap("PROGRESS=100 TAG=done SUMMARY=\"Done\"");
        QVERIFY(bench.connect());
        const QStringList words = bench.lastHelperRun(u"connect"_s);
        QVERIFY(torDies(bench));
        c.climb.set(Climb::never);
        bench.cancelPrompt(u"connect"_s);
        QVERIFY(!bench.connect());
        QCOMPARE(bench.helperRunCount(u"replace"_s), 1);
        bench.letHelperWork();
        c.climb.set(Climb::ask);
        QVERIFY(bench.connect());
        QCOMPARE(bench.helperRunCount(u"replace"_s), 1);
        QCOMPARE(bench.lastHelperRun(u"connect"_s), words);
    }

    // Its bridges are those that the session began with, not those that it climbed to.
    void aSessionThatHasClimbedIsResumedAsItBegan()
    {
        Workbench bench;
        provide(bench, Climb::always);
        bench.transports.builtin[u"obfs4"_s] = {obfs4, u"obfs4 192.0.2.5:443 cert=a iat-mode=0"_s};
        const auto searching = bench.controller().locateTransports();
        QVERIFY(Workbench::finished(searching));
        TorController &c = bench.controller();
        c.strictMode.set(true);
        c.optimizeSpeed.set(true);
        c.bridgeChoice.set(BridgeChoice::obfs4);
        const auto connecting = c.connect();
        QVERIFY(bench.hears(Workbench::bootstrapCommand));
        bench.clock.advance(3s); // the end of the speed test's time
        QVERIFY(begins(bench));
        const QStringList words = bench.lastHelperRun(u"connect"_s);
        QVERIFY(pass(bench, 15));
        QCOMPARE(bench.commandCount(toOwn), 1);
        bench.setBootstrap("PROGRESS=100 TAG=done SUMMARY=\"Done\"");
        bench.clock.advance(1s);
        QVERIFY(Workbench::finished(connecting));
        QVERIFY(c.activeBridge() == BridgeChoice::custom);
        QVERIFY(torDies(bench));
        QVERIFY(bench.connect());
        QCOMPARE(bench.helperRunCount(u"replace"_s), 0);
        QCOMPARE(bench.lastHelperRun(u"connect"_s), words);
    }

    // The first search reads the user's home.
    void aSearchThatHangsDoesNotHoldUpTheConnect()
    {
        Workbench bench;
        const ResumeOnce<bool> gate;
        bench.beforeSearchAnswer = [gate] { return waitFor(gate); };
        provide(bench, Climb::ask);
        const auto connecting = bench.controller().connect();
        settle();
        QVERIFY(bench.helperRuns().empty());
        bench.clock.advance(3s);
        QVERIFY(bench.hears(Workbench::bootstrapCommand));
        const QStringList words = bench.lastHelperRun(u"connect"_s);
        QCOMPARE(words.mid(words.indexOf(u"--reserve"_s)), QStringList({u"--reserve"_s, own}));
    }
};

VELDMARK_TEST(ClimbingTest)
#include "ClimbingTest.moc"
