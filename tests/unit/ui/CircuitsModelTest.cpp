#include "StandInSession.h"
#include "ui/CircuitsModel.h"
#include "support/TestProgram.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace veldmark;

namespace {

CircuitInfo circuit(const char *id)
{
    CircuitInfo c;
    c.id = QString::fromLatin1(id);
    c.purpose = QStringLiteral("GENERAL");
    for (const char *name : {"first", "second", "third"})
        c.hops.push_back({QString::fromLatin1(name), QString::fromLatin1(name), QStringLiteral("192.0.2.7"),
                          QStringLiteral("de")});
    return c;
}

Snapshot connectedWith(std::vector<CircuitInfo> circuits)
{
    Snapshot s;
    s.phase = Phase::connected;
    s.circuits = std::move(circuits);
    return s;
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
        QCOMPARE(model.subtitle(), QStringLiteral("1 active path · click a relay or site to follow it"));
        session.show(connectedWith({circuit("1"), circuit("2")}));
        QCOMPARE(model.subtitle(), QStringLiteral("2 active paths · click a relay or site to follow it"));
        session.show(connectedWith({}));
        QCOMPARE(model.subtitle(), QStringLiteral("0 active paths · click a relay or site to follow it"));
    }

    void followsACircuitWhileItExists()
    {
        StandInSession session(profile);
        CircuitsModel model(session);
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
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

    void tellsTheRoundTripWhereTorDoes()
    {
        StandInSession session(profile);
        CircuitsModel model(session);
        CircuitInfo leg = circuit("3");
        leg.purpose = QStringLiteral("CONFLUX");
        leg.roundTrip = std::chrono::microseconds(182'600);
        session.show(connectedWith({circuit("1"), leg}));
        QVERIFY(!model.data(model.index(0), CircuitsModel::DetailRole).toString().contains(QLatin1String("ms")));
        QVERIFY(model.data(model.index(1), CircuitsModel::DetailRole).toString().endsWith(QStringLiteral("183\u00a0ms")));
        model.follow(QStringLiteral("1"));
        QCOMPARE(model.followedRow(), 0);
        QCOMPARE(model.purpose(), QString());
        model.follow(QStringLiteral("3"));
        QCOMPARE(model.followedRow(), 1);
        QCOMPARE(model.purpose(), QStringLiteral("Round trip: 183\u00a0ms\nOne of several linked legs to the same exit"));
        model.follow({});
        QCOMPARE(model.followedRow(), -1);
    }

    void showsThePathAsSteps()
    {
        StandInSession session(profile);
        CircuitsModel model(session);
        CircuitInfo c = circuit("7");
        c.sites = {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("d"), QStringLiteral("e")};
        Snapshot s = connectedWith({c});
        session.show(s);
        model.follow(QStringLiteral("7"));
        QCOMPARE(values(model, "role"), QStringList({QString(), QStringLiteral("Entry"), QStringLiteral("Middle"),
                                                     QStringLiteral("Exit"), QString()}));
        QCOMPARE(values(model, "title").constFirst(), QStringLiteral("This computer"));
        QCOMPARE(values(model, "detail").constFirst(), QStringLiteral("Only the entry sees your IP"));
        QCOMPARE(values(model, "detail").constLast(), QStringLiteral("a, b, c, +2 more"));
        s.activeBridge = BridgeChoice::obfs4;
        session.show(s);
        QCOMPARE(values(model, "role").at(1), QStringLiteral("Bridge"));
    }
};

VELDMARK_WINDOWED_TEST(CircuitsModelTest)
#include "CircuitsModelTest.moc"
