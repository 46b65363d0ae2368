#include "bridges/Ladder.h"
#include "support/TestProgram.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace veldmark;
using Sign = RungWatch::Sign;

class LadderTest : public QObject {
    Q_OBJECT
private:
    QTemporaryDir m_folder;
    PluggableTransports m_found;

    QString program(const QString &name)
    {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly)
            || !file.setPermissions(QFile::ReadOwner | QFile::ExeOwner))
            qFatal("no program");
        return file.fileName();
    }

    static QString obfs4(int number)
    {
        return u"obfs4 192.0.2.%1:443 cert=a iat-mode=0"_s.arg(number);
    }

    QStringList names(BridgeChoice first, const QStringList &used = {},
                      const QString &custom = {}) const
    {
        QStringList found;
        for (const Rung &rung : Ladder::rungs(first, used, custom, m_found))
            found << Ladder::rawName(rung.choice);
        return found;
    }

private Q_SLOTS:
    void init()
    {
        m_found = {};
        m_found.lyrebird = program(u"lyrebird"_s);
        m_found.snowflake = program(u"snowflake-client"_s);
        m_found.builtin = {{u"obfs4"_s, {obfs4(1), obfs4(2)}},
                           {u"snowflake"_s, {u"snowflake 192.0.2.3:80 url=https://a/"_s}},
                           {u"meek_lite"_s, {u"meek_lite 192.0.2.4:80 url=https://a/"_s}}};
    }

    void theOrder()
    {
        const QString own = u"192.0.2.9:443\nwebtunnel 192.0.2.8:443 url=https://a/"_s;
        QCOMPARE(names(BridgeChoice::off, {}, own),
                 QStringList({u"custom"_s, u"obfs4"_s, u"snowflake"_s, u"meek"_s}));
        QCOMPARE(names(BridgeChoice::off), QStringList({u"obfs4"_s, u"snowflake"_s, u"meek"_s}));
        // Who has chosen bridges is never seen without.
        QCOMPARE(names(BridgeChoice::custom, own.split(u'\n'), own),
                 QStringList({u"obfs4"_s, u"snowflake"_s, u"meek"_s}));
        QCOMPARE(names(BridgeChoice::snowflake, {}, own),
                 QStringList({u"custom"_s, u"obfs4"_s, u"meek"_s}));
    }

    void onlyWhatIsThere()
    {
        m_found.snowflake = std::nullopt;
        QCOMPARE(names(BridgeChoice::off), QStringList({u"obfs4"_s, u"meek"_s}));
        m_found.builtin.remove(u"meek_lite"_s);
        QCOMPARE(names(BridgeChoice::off), QStringList({u"obfs4"_s}));
        QFile::remove(*m_found.lyrebird); // it was there when the computer was searched
        QCOMPARE(names(BridgeChoice::off), QStringList());
        // Bridges without a program need none; of the others no line is usable.
        const auto rungs = Ladder::rungs(
            BridgeChoice::off, {}, u"nonsense\n"_s + obfs4(1) + u"\n192.0.2.9:443"_s, m_found);
        QVERIFY((rungs == std::vector<Rung>{{BridgeChoice::custom, {u"192.0.2.9:443"_s}}}));
        m_found = {};
        QCOMPARE(names(BridgeChoice::off), QStringList());
    }

    void noLineIsTriedTwice()
    {
        const auto rungs = Ladder::rungs(BridgeChoice::off, {}, obfs4(1), m_found);
        QCOMPARE(rungs.at(0).lines, QStringList(obfs4(1)));
        QCOMPARE(rungs.at(1).lines, QStringList(obfs4(2)));
        QCOMPARE(names(BridgeChoice::obfs4, {obfs4(1), obfs4(2)}, obfs4(1)),
                 QStringList({u"snowflake"_s, u"meek"_s}));
    }

    void atMostTenTogetherAndAHundredInAll()
    {
        QStringList own;
        for (int number = 1; number <= 100; ++number)
            own << obfs4(number);
        const QString typed = own.join(u'\n');
        QCOMPARE(Ladder::rungs(BridgeChoice::off, {}, typed, m_found).at(0).lines, own.first(10));
        QCOMPARE(names(BridgeChoice::custom, own, typed), QStringList());
        const QStringList used = own.first(98);
        const auto rungs = Ladder::rungs(BridgeChoice::custom, used, typed, m_found);
        QCOMPARE(rungs.size(), std::size_t(2)); // snowflake and meek have a line each
        QVERIFY(rungs.at(0).choice == BridgeChoice::snowflake);
    }

    void aCommandIsNeverTooLongForTheFilter()
    {
        const auto longLine = [](int number) {
            return u"192.0.2.%1:443 "_s.arg(number) + QString(4000, u'a');
        };
        QStringList own;
        for (int number = 1; number <= 9; ++number)
            own << longLine(number);
        const auto rungs = Ladder::rungs(BridgeChoice::off, {}, own.join(u'\n'), m_found);
        QCOMPARE(rungs.at(0).lines, own.first(4));
        QVERIFY(Ladder::command(rungs.at(0).lines).size() <= 16384);
    }

    void theWords()
    {
        const auto rungs = Ladder::rungs(BridgeChoice::off, {}, {}, m_found);
        QCOMPARE(Ladder::words(rungs, m_found),
                 QStringList({u"--reserve"_s, obfs4(1), u"--reserve"_s, obfs4(2), u"--reserve"_s,
                              u"snowflake 192.0.2.3:80 url=https://a/"_s, u"--reserve"_s,
                              u"meek_lite 192.0.2.4:80 url=https://a/"_s, u"--pt-lyrebird"_s,
                              *m_found.lyrebird, u"--pt-snowflake"_s, *m_found.snowflake}));
        QCOMPARE(Ladder::words({}, m_found), QStringList());
        QCOMPARE(Ladder::command({obfs4(1), u"192.0.2.9:443"_s}),
                 u"SETCONF UseBridges=1 Bridge=\"obfs4 192.0.2.1:443 cert=a iat-mode=0\" "
                 "Bridge=\"192.0.2.9:443\""_s);
    }

    void patienceFollowsTheTransport()
    {
        QCOMPARE(Ladder::patience({}), 15s);
        QCOMPARE(Ladder::patience({obfs4(1), u"192.0.2.9:443"_s}), 15s);
        QCOMPARE(Ladder::patience({u"meek_lite 192.0.2.4:80 url=https://a/"_s}), 25s);
        QCOMPARE(Ladder::patience({obfs4(1), u"snowflake 192.0.2.3:80"_s}), 30s);
    }

    void theStepInOneLine()
    {
        QCOMPARE(Ladder::line({BridgeChoice::off, u"No answer."_s, 15}).english(),
                 u"Direct: No answer. (15 s)"_s);
        QCOMPARE(Ladder::line({BridgeChoice::snowflake, u"Being tried…"_s, {}}).english(),
                 u"Snowflake: Being tried…"_s);
    }

    void silenceIsGivenUpInTime()
    {
        RungWatch watch(15s, 0);
        QVERIFY(watch.look({5, false, 0}, 0s) == Sign::trying);
        QVERIFY(watch.look({10, false, 0}, 14s) == Sign::trying);
        // A connection that is no relay's is not an answer, whatever it sends.
        QVERIFY(watch.look({14, false, 1 << 20}, 15s) == Sign::silent);
        QVERIFY(!watch.hasAnswered());
    }

    void aRefusalIsGivenUpSooner()
    {
        RungWatch watch(15s, 0);
        QVERIFY(watch.look({5, true, 0}, 4s) == Sign::trying);  // another relay may answer
        QVERIFY(watch.look({10, true, 0}, 6s) == Sign::trying); // it gets on
        QVERIFY(watch.look({10, true, 0}, 10s) == Sign::trying);
        QVERIFY(watch.look({10, true, 0}, 11s) == Sign::refused);
        QVERIFY(watch.look({15, true, 0}, 12s) == Sign::trying);
    }

    void anAnswerGivesTimeAsLongAsTorGetsOn()
    {
        RungWatch watch(15s, 0);
        QVERIFY(watch.look({15, false, 0}, 10s) == Sign::trying);
        QVERIFY(watch.look({15, false, 0}, 39s) == Sign::trying);
        QVERIFY(watch.look({30, false, 0}, 39s) == Sign::trying);
        QVERIFY(watch.look({30, false, 0}, 83s) == Sign::trying);
        QVERIFY(watch.look({30, false, 0}, 84s) == Sign::stalled);
        QVERIFY(watch.hasAnswered());
    }

    void aSlowNetworkThatWorksGetsOn()
    {
        constexpr qint64 slow = RungWatch::slowBytes;
        RungWatch watch(15s, 0);
        QVERIFY(watch.look({30, false, 1000}, 10s) == Sign::trying);
        QVERIFY(watch.look({30, false, 1000 + slow - 1}, 50s) == Sign::trying);
        QVERIFY(watch.look({30, false, 1000 + slow}, 54s) == Sign::trying);
        QVERIFY(watch.look({30, false, 1000 + slow * 2}, 98s) == Sign::trying);
        // Less than that does not load the list of relays.
        QVERIFY(watch.look({30, false, 1000 + slow * 3 - 1}, 142s) == Sign::trying);
        QVERIFY(watch.look({30, false, 1000 + slow * 3 - 1}, 143s) == Sign::stalled);
    }

    void progressFromAnEarlierRungIsNoAnswer()
    {
        RungWatch watch(15s, 30);
        // Its handshake is not to be seen, so it has longer.
        QVERIFY(watch.look({30, true, 1 << 20}, 29s) == Sign::trying);
        QVERIFY(!watch.hasAnswered());
        QVERIFY(watch.look({30, false, 1 << 20}, 30s) == Sign::silent);
        QVERIFY(watch.look({30, true, 1 << 20}, 30s) == Sign::refused);
        QVERIFY(watch.look({45, false, 1 << 20}, 31s) == Sign::trying && watch.hasAnswered());
    }

    void whatComesInShowsAnAnswerThatProgressDoesNot()
    {
        constexpr qint64 answer = RungWatch::answerBytes;
        RungWatch watch(15s, 30);
        QVERIFY(watch.look({30, false, 5000}, 0s) == Sign::trying);
        QVERIFY(watch.look({30, false, 5000 + answer - 1}, 28s) == Sign::trying);
        QVERIFY(!watch.hasAnswered());
        QVERIFY(watch.look({30, false, 5000 + answer}, 29s) == Sign::trying);
        QVERIFY(watch.hasAnswered());
        QVERIFY(watch.look({30, false, 5000 + answer * 2}, 73s) == Sign::trying);
        QVERIFY(watch.look({30, false, 5000 + answer * 2}, 74s) == Sign::stalled);
    }

    void oneRefusalOfSeveralSaysNothing()
    {
        for (const auto &[many, refusals] : {std::pair{0, 3}, {1, 1}, {2, 2}, {3, 3}, {4, 3}})
            QCOMPARE(Ladder::refusals(QStringList(many, u"192.0.2.1:443"_s)), refusals);
    }

    void bridgesThatAreReachedByTheirAddressConfine()
    {
        const QString plain = u"192.0.2.9:443"_s;
        const QString meek = u"meek_lite 192.0.2.4:80 url=https://a/"_s;
        QVERIFY(Ladder::isConfined({plain}));
        QVERIFY(
            Ladder::isConfined({obfs4(1), u"obfs3 192.0.2.5:1"_s, u"scramblesuit 192.0.2.6:1"_s}));
        QVERIFY(!Ladder::isConfined({}));
        QVERIFY(!Ladder::isConfined({obfs4(1), meek}));
        for (const char *front : {"snowflake", "meek_lite", "webtunnel"})
            QVERIFY(!Ladder::isConfined({QString::fromLatin1(front) + u" 192.0.2.3:80"_s}));
        const std::vector<Rung> rungs = {{BridgeChoice::custom, {plain, meek}},
                                         {BridgeChoice::obfs4, {obfs4(1)}},
                                         {BridgeChoice::meek, {meek}}};
        QVERIFY(Ladder::confined(rungs) == std::vector<Rung>({rungs[1]}));
    }

    void portsThatNoneHasAreLeftOut()
    {
        QCOMPARE(names(BridgeChoice::obfs4, {}, u"192.0.2.9:0\n192.0.2.9:70000"_s),
                 QStringList({u"snowflake"_s, u"meek"_s}));
        QCOMPARE(names(BridgeChoice::obfs4, {}, u"192.0.2.9:0\n192.0.2.9:65535"_s),
                 QStringList({u"custom"_s, u"snowflake"_s, u"meek"_s}));
    }

    void theChoicesWords()
    {
        for (const Climb climb : allClimbs)
            QVERIFY(climbFromRawValue(rawValue(climb)) == climb);
        for (const char *other : {"", "Ask", "ask ", "yes"})
            QVERIFY(!climbFromRawValue(QString::fromLatin1(other)));
    }
};

VELDMARK_TEST(LadderTest)
#include "LadderTest.moc"
