#include "ui/CircuitsModel.h"
#include "StandInSession.h"
#include "support/TestProgram.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace veldmark;

namespace {

CircuitInfo circuit(const char *id)
{
    CircuitInfo c;
    c.id = QString::fromLatin1(id);
    c.purpose = QStringLiteral("GENERAL");
    for (const char *name : {"first", "second", "third"})
        c.hops.push_back({QString::fromLatin1(name), QString::fromLatin1(name),
                          QStringLiteral("192.0.2.7"), QStringLiteral("de")});
    return c;
}

Snapshot connectedWith(std::vector<CircuitInfo> circuits)
{
    Snapshot s;
    s.phase = ConnectionPhase::connected;
    s.circuits = std::move(circuits);
    return s;
}

std::vector<CircuitInfo> circuits(const QString &ids)
{
    std::vector<CircuitInfo> list;
    for (const QString &id : ids.split(u' ', Qt::SkipEmptyParts))
        list.push_back(circuit(id.toLatin1().constData()));
    return list;
}

} // namespace

class CircuitsModelTest : public QObject {
    Q_OBJECT

    PlatformProfile profile = PlatformProfile::linux(Places::below(QStringLiteral("/nowhere")));

    static QStringList values(const CircuitsModel &model, const char *key)
    {
        QStringList list;
        for (const QVariant &step : model.steps())
            list << step.toMap().value(QString::fromLatin1(key)).toString();
        return list;
    }

private Q_SLOTS:
    void countsPaths()
    {
        StandInSession session(profile);
        const CircuitsModel model(session);
        QCOMPARE(model.subtitle(), QStringLiteral("Not connected"));
        session.show(connectedWith({circuit("1")}));
        QCOMPARE(model.subtitle(),
                 QStringLiteral("1 active path · click a relay or site to follow it"));
        session.show(connectedWith({circuit("1"), circuit("2")}));
        QCOMPARE(model.subtitle(),
                 QStringLiteral("2 active paths · click a relay or site to follow it"));
        session.show(connectedWith({}));
        QCOMPARE(model.subtitle(),
                 QStringLiteral("0 active paths · click a relay or site to follow it"));
    }

    void followsACircuitWhileItExists()
    {
        StandInSession session(profile);
        CircuitsModel model(session);
        QAbstractItemModelTester tester(&model,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        session.show(connectedWith({circuit("1"), circuit("2")}));
        model.follow(QStringLiteral("2"));
        QCOMPARE(model.followed(), QStringLiteral("2"));
        QVERIFY(model.data(model.index(1), CircuitsModel::FollowedRole).toBool());
        model.newCircuit();
        QCOMPARE(session.asked, QStringList{QStringLiteral("newCircuit 2")});
        session.show(connectedWith({circuit("1")}));
        QCOMPARE(model.followed(), QString());
        QVERIFY(model.steps().isEmpty());
    }

    // The rows' appearance depends on it.
    void whatIsFollowedIsToldToTheRows()
    {
        StandInSession session(profile);
        CircuitsModel model(session);
        session.show(connectedWith(circuits(QStringLiteral("1 2 3"))));
        QSignalSpy told(&model, &QAbstractItemModel::dataChanged);
        model.follow(QStringLiteral("2"));
        QCOMPARE(told.count(), 1);
        QVERIFY(told.at(0).at(0).toModelIndex().row() <= 1
                && told.at(0).at(1).toModelIndex().row() >= 1);
        QVERIFY(told.at(0).at(2).value<QList<int>>().contains(CircuitsModel::FollowedRole));
        model.follow(QStringLiteral("2"));
        QCOMPARE(told.count(), 1);
    }

    void whatIsFollowedEndsWithTheSession()
    {
        StandInSession session(profile);
        CircuitsModel model(session);
        session.show(connectedWith(circuits(QStringLiteral("11 12"))));
        model.follow(QStringLiteral("12"));
        session.show(connectedWith(circuits(QStringLiteral("12 13"))));
        QCOMPARE(model.followed(), QStringLiteral("12")); // the session goes on
        Snapshot s;
        s.phase = ConnectionPhase::disconnecting;
        session.show(s);
        session.show(connectedWith(circuits(QStringLiteral("12"))));
        QCOMPARE(model.followed(), QString());
        QVERIFY(!model.data(model.index(0), CircuitsModel::FollowedRole).toBool());
    }

    void rowsComeGoAndMoveOneByOne_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::newRow("first ones") << QString() << QStringLiteral("1 2 3");
        QTest::newRow("a newer one") << QStringLiteral("1 2 3") << QStringLiteral("4 1 2 3");
        QTest::newRow("a closed one") << QStringLiteral("1 2 3") << QStringLiteral("1 3");
        QTest::newRow("one gets a site") << QStringLiteral("1 2 3") << QStringLiteral("3 1 2");
        QTest::newRow("all at once")
            << QStringLiteral("1 2 3 4 5 6") << QStringLiteral("9 6 2 8 4 7");
        QTest::newRow("turned round") << QStringLiteral("1 2 3 4") << QStringLiteral("4 3 2 1");
        QTest::newRow("others") << QStringLiteral("1 2 3") << QStringLiteral("4 5");
        QTest::newRow("none") << QStringLiteral("1 2 3") << QString();
    }
    void rowsComeGoAndMoveOneByOne()
    {
        QFETCH(QString, before);
        QFETCH(QString, after);
        StandInSession session(profile);
        CircuitsModel model(session);
        QAbstractItemModelTester tester(&model,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        session.show(connectedWith(circuits(before)));
        QList<std::pair<QPersistentModelIndex, QString>> rows;
        for (int row = 0; row < model.rowCount(); ++row)
            rows.append(
                {model.index(row), model.data(model.index(row), CircuitsModel::IdRole).toString()});
        QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
        QSignalSpy told(&model, &QAbstractItemModel::dataChanged);
        session.show(connectedWith(circuits(after)));
        QStringList shown;
        for (int row = 0; row < model.rowCount(); ++row) {
            shown << model.data(model.index(row), CircuitsModel::IdRole).toString();
            QCOMPARE(model.data(model.index(row), CircuitsModel::ColorRole).value<QColor>(),
                     CircuitsModel::paletteColor(static_cast<std::size_t>(row)));
        }
        QCOMPARE(shown.join(u' '), after);
        QCOMPARE(resets.count(), 0);
        for (const auto &[index, id] : rows) { // a remaining row is the same row
            QCOMPARE(index.isValid(), shown.contains(id));
            if (index.isValid())
                QCOMPARE(model.data(index, CircuitsModel::IdRole).toString(), id);
        }
        QCOMPARE(told.count(), after.isEmpty() ? 0 : 1); // the colours
        session.show(connectedWith(circuits(after)));
        QCOMPARE(told.count(), after.isEmpty() ? 0 : 1);
    }

    void readsTheCircuitsWhileAWindowShowsThem()
    {
        StandInSession session(profile);
        CircuitsModel model(session);
        auto *ticks = model.findChild<QTimer *>();
        QVERIFY(ticks && ticks->interval() >= 1000 && ticks->interval() <= 5000);
        const auto read = [&session] {
            return session.asked.count(QStringLiteral("refreshCircuits"));
        };
        session.show(connectedWith({}));
        QCOMPARE(read(), 0);
        QVERIFY(!ticks->isActive());
        model.setSeen(true);
        QCOMPARE(read(), 1);
        QVERIFY(ticks->isActive());
        ticks->start(0); // as if the interval had passed
        QVERIFY(QTest::qWaitFor([&] { return read() > 1; }));
        Snapshot s = connectedWith({});
        s.isOptimizing = true;
        session.show(s);
        const auto before = read();
        s.isOptimizing = false;
        session.show(s);
        QCOMPARE(read(), before + 1); // the paths have changed
        session.show(s);
        QCOMPARE(read(), before + 1);
        session.show(Snapshot());
        QCOMPARE(read(), before + 1);
        session.show(connectedWith({})); // a window that was open before the session
        QCOMPARE(read(), before + 2);
        model.setSeen(false);
        QVERIFY(!ticks->isActive());
        session.show(Snapshot());
        session.show(connectedWith({}));
        QCOMPARE(read(), before + 2);
    }

    void whatIsNotKnownIsSaid()
    {
        const auto place = [](std::optional<QString> ip, std::optional<QString> country) {
            return CircuitsModel::placeOf({QStringLiteral("A"), QStringLiteral("a"), ip, country});
        };
        QCOMPARE(place(QStringLiteral("192.0.2.7"), QStringLiteral("de")),
                 QStringLiteral("DE · 192.0.2.7"));
        QCOMPARE(place(QStringLiteral("192.0.2.7"), {}), QStringLiteral("Unknown · 192.0.2.7"));
        QCOMPARE(place({}, QStringLiteral("de")), QStringLiteral("DE · Unknown"));
        QCOMPARE(place({}, {}), QStringLiteral("Unknown"));
    }

    void theWayToAnOnionServiceHasNoExit()
    {
        StandInSession session(profile);
        CircuitsModel model(session);
        CircuitInfo onion = circuit("8");
        onion.purpose = QStringLiteral("HS_CLIENT_REND");
        onion.onionService = QStringLiteral("abc.onion");
        onion.sites = {onion.onionService};
        session.show(connectedWith({onion}));
        model.follow(QStringLiteral("8"));
        QVERIFY(!values(model, "role").contains(QStringLiteral("Exit")));
        QCOMPARE(values(model, "role").at(3), QStringLiteral("Meeting point"));
        QCOMPARE(values(model, "detail").constLast(), QStringLiteral("abc.onion"));
        QVERIFY(model.purpose().contains(QStringLiteral("onion service")));
    }

    void tellsTheRoundTripWhereTorDoes()
    {
        StandInSession session(profile);
        CircuitsModel model(session);
        CircuitInfo leg = circuit("3");
        leg.purpose = QStringLiteral("CONFLUX");
        leg.roundTrip = std::chrono::microseconds(182'600);
        session.show(connectedWith({circuit("1"), leg}));
        QVERIFY(!model.data(model.index(0), CircuitsModel::DetailRole)
                     .toString()
                     .contains(QLatin1String("ms")));
        QVERIFY(model.data(model.index(1), CircuitsModel::DetailRole)
                    .toString()
                    .endsWith(QStringLiteral("183\u00a0ms")));
        model.follow(QStringLiteral("1"));
        QCOMPARE(model.followedRow(), 0);
        QCOMPARE(model.purpose(), QString());
        model.follow(QStringLiteral("3"));
        QCOMPARE(model.followedRow(), 1);
        QCOMPARE(
            model.purpose(),
            QStringLiteral("Round trip: 183\u00a0ms\nOne of several linked legs to the same exit"));
        model.follow({});
        QCOMPARE(model.followedRow(), -1);
    }

    void showsThePathAsSteps()
    {
        StandInSession session(profile);
        CircuitsModel model(session);
        CircuitInfo c = circuit("7");
        c.sites = {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"),
                   QStringLiteral("d"), QStringLiteral("e")};
        Snapshot s = connectedWith({c});
        session.show(s);
        model.follow(QStringLiteral("7"));
        QCOMPARE(values(model, "role"),
                 QStringList({QString(), QStringLiteral("Entry"), QStringLiteral("Middle"),
                              QStringLiteral("Exit"), QString()}));
        QCOMPARE(values(model, "title").constFirst(), QStringLiteral("This computer"));
        QCOMPARE(values(model, "detail").constFirst(),
                 QStringLiteral("Only the entry sees your IP"));
        QCOMPARE(values(model, "detail").constLast(), QStringLiteral("a, b, c, +2 more"));
        for (const QVariant &step : model.steps())
            QCOMPARE(step.toMap().value(QStringLiteral("tint")).value<QColor>(),
                     CircuitsModel::paletteColor(0));
        s.activeBridge = BridgeChoice::obfs4;
        session.show(s);
        QCOMPARE(values(model, "role").at(1), QStringLiteral("Bridge"));
    }

    void eachApplicationsSitesAreAStep()
    {
        StandInSession session(profile);
        CircuitsModel model(session);
        CircuitInfo c = circuit("7");
        c.roundTrip = std::chrono::milliseconds(20);
        for (const char *site : {"a", "192.0.2.1", "b", "c", "d", "e"})
            c.sites << QString::fromLatin1(site);
        for (const char *site : {"a", "b", "c", "d"})
            c.askers.insert(QString::fromLatin1(site), {QStringLiteral("games")});
        c.askers.insert(QStringLiteral("e"), {QStringLiteral("as:bank"), QStringLiteral("games")});
        session.show(connectedWith({c, circuit("8")}));
        QCOMPARE(model.data(model.index(0), CircuitsModel::DetailRole).toString(),
                 QStringLiteral("DE → DE → DE  ·  20\u00a0ms  ·  Games, as:bank"));
        QCOMPARE(model.data(model.index(1), CircuitsModel::DetailRole).toString(),
                 QStringLiteral("DE → DE → DE"));
        model.follow(QStringLiteral("7"));
        QCOMPARE(values(model, "role").mid(4),
                 QStringList({QStringLiteral("Asked for by Games"), QString(),
                              QStringLiteral("Asked for by as:bank, Games")}));
        QCOMPARE(values(model, "detail").mid(4),
                 QStringList({QStringLiteral("a, b, c, +1 more"), QStringLiteral("192.0.2.1"),
                              QStringLiteral("e")}));
        QCOMPARE(values(model, "picture").mid(3),
                 QStringList({QString(), QStringLiteral("image://application/no-such-icon"),
                              QString(), QString()}));
        QCOMPARE(values(model, "last").mid(3).join(u' '), QStringLiteral("false false false true"));
        QCOMPARE(session.lookedUp.count(QStringLiteral("games")), 1); // a file each time
        model.setSeen(true); // meanwhile it may have been installed
        model.steps();
        QCOMPARE(session.lookedUp.count(QStringLiteral("games")), 2);
    }
};

VELDMARK_WINDOWED_TEST(CircuitsModelTest)
#include "CircuitsModelTest.moc"
