#include "circuits/CircuitGraph.h"
#include "circuits/CircuitPalette.h"
#include "circuits/GraphLayout.h"
#include "support/TestProgram.h"

#include <QSet>
#include <QTest>

using namespace veldmark;
using Kind = CircuitGraph::Kind;

namespace {
QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

// "A B C" → a circuit through these relays.
CircuitInfo circuit(const char *id, const char *path, const char *sites = "")
{
    CircuitInfo info;
    info.id = text(id);
    for (const QString &relay : text(path).split(u' ', Qt::SkipEmptyParts))
        info.hops.push_back({relay, QStringLiteral("nick") + relay, {}, {}});
    info.sites = text(sites).split(u' ', Qt::SkipEmptyParts);
    return info;
}

QStringList nodes(const CircuitGraph &graph, int column)
{
    QStringList ids;
    for (const CircuitGraph::Node &node : graph.nodes) {
        if (node.column == column)
            ids.append(node.id);
    }
    return ids;
}

const CircuitGraph::Node &node(const CircuitGraph &graph, const char *id)
{
    for (const CircuitGraph::Node &candidate : graph.nodes) {
        if (candidate.id == text(id))
            return candidate;
    }
    qFatal("no node %s", id);
}

QStringList edges(const CircuitGraph &graph)
{
    QStringList ids;
    for (const CircuitGraph::Edge &edge : graph.edges)
        ids.append(edge.id);
    return ids;
}
} // namespace

class CircuitGraphTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void withoutCircuitsOnlyTheComputerIsShown()
    {
        const CircuitGraph graph = CircuitGraph::build({});
        QCOMPARE(graph.nodes.size(), 1u);
        QCOMPARE(graph.nodes.front().kind, Kind::mac);
        QCOMPARE(graph.nodes.front().label, text("This Mac"));
        QVERIFY(graph.edges.empty());
        const GraphLayout layout(graph, {1000, 400});
        QCOMPARE(layout.positions.value(graph.nodes.front().id),
                 QPointF(70, 46 + (400 - 64) / 2.0));
    }

    void theComputersNameIsGivenByTheCaller()
    {
        QCOMPARE(CircuitGraph::build({}, text("This computer")).nodes.front().label,
                 text("This computer"));
    }

    void oneCircuitRunsFromLeftToRight()
    {
        const CircuitGraph graph = CircuitGraph::build(
            {circuit("7", "A B C", "x.example y.example")});
        QCOMPARE(nodes(graph, 1), QStringList{text("A")});
        QCOMPARE(nodes(graph, 2), QStringList{text("B")});
        QCOMPARE(nodes(graph, 3), QStringList{text("C")});
        QCOMPARE(nodes(graph, 4), (QStringList{text("site-x.example"), text("site-y.example")}));
        QCOMPARE(edges(graph),
                 (QStringList{text("7|mac|A"), text("7|A|B"), text("7|B|C"),
                              text("7|C|site-x.example"), text("7|C|site-y.example")}));
        QCOMPARE(graph.edges[1].from, text("A"));
        QCOMPARE(graph.edges[1].to, text("B"));
        QCOMPARE(graph.edges[1].circuitID, text("7"));
        QCOMPARE(node(graph, "B").label, text("nickB"));
        QCOMPARE(node(graph, "B").relay->fingerprint, text("B"));
        QCOMPARE(node(graph, "site-x.example").label, text("x.example"));
        QVERIFY(!node(graph, "site-x.example").relay);
    }

    void sharedRelaysAndSitesAreOneNode()
    {
        const CircuitGraph graph = CircuitGraph::build(
            {circuit("1", "A B C", "s"), circuit("2", "A D C", "s"), circuit("3", "A B C")});
        QCOMPARE(node(graph, "A").circuitIDs.join(u' '), text("1 2 3"));
        QCOMPARE(node(graph, "mac").circuitIDs.join(u' '), text("1 2 3"));
        QCOMPARE(node(graph, "B").circuitIDs.join(u' '), text("1 3"));
        QCOMPARE(node(graph, "site-s").circuitIDs.join(u' '), text("1 2"));
        QCOMPARE(edges(graph).filter(text("|A|B")).join(u' '), text("1|A|B 3|A|B"));
    }

    void fromTheFourthSiteOnTheRestIsCounted_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("column");
        QTest::newRow("none") << 0 << QString();
        QTest::newRow("three") << 3 << text("s0 s1 s2");
        QTest::newRow("four") << 4 << text("s0 s1 s2 +1 more");
        QTest::newRow("five") << 5 << text("s0 s1 s2 +2 more");
    }
    void fromTheFourthSiteOnTheRestIsCounted()
    {
        QFETCH(int, count);
        QFETCH(QString, column);
        CircuitInfo info = circuit("7", "A B C");
        for (int i = 0; i < count; ++i)
            info.sites.append(QStringLiteral("s%1").arg(i));
        const CircuitGraph graph = CircuitGraph::build({info});
        QStringList labels;
        for (const CircuitGraph::Node &n : graph.nodes) {
            if (n.column == 4)
                labels.append(n.label);
        }
        QCOMPARE(labels.join(u' '), column);
        if (count > 3) {
            QCOMPARE(node(graph, "more-7").kind, Kind::more);
            QCOMPARE(node(graph, "more-7").circuitIDs, QStringList{text("7")});
            QVERIFY(edges(graph).contains(text("7|C|more-7")));
        }
    }

    void aRelayInTwoRolesStandsInBothColumns()
    {
        const CircuitGraph graph = CircuitGraph::build(
            {circuit("1", "A B C"), circuit("2", "A C B")});
        QCOMPARE(nodes(graph, 2), (QStringList{text("B"), text("C-column2")}));
        QCOMPARE(nodes(graph, 3), (QStringList{text("C"), text("B-column3")}));
        QCOMPARE(edges(graph).mid(3).join(u' '),
                 text("2|mac|A 2|A|C-column2 2|C-column2|B-column3"));
    }

    void otherThanThreeHopsFindTheirPlace()
    {
        const CircuitGraph none = CircuitGraph::build({circuit("1", "", "s")});
        QCOMPARE(none.nodes.size(), 1u);
        QVERIFY(none.nodes.front().circuitIDs.isEmpty());

        const CircuitGraph one = CircuitGraph::build({circuit("1", "A", "s")});
        QCOMPARE(nodes(one, 1), QStringList{text("A")});
        QCOMPARE(edges(one).join(u' '), text("1|mac|A 1|A|site-s"));

        const CircuitGraph two = CircuitGraph::build({circuit("1", "A B")});
        QCOMPARE(nodes(two, 1), QStringList{text("A")});
        QCOMPARE(nodes(two, 3), QStringList{text("B")});

        const CircuitGraph five = CircuitGraph::build({circuit("1", "A B C D E")});
        QCOMPARE(nodes(five, 2), (QStringList{text("B"), text("C"), text("D")}));
        QCOMPARE(nodes(five, 3), QStringList{text("E")});
        QCOMPARE(edges(five).size(), 5);
    }

    void aPathThatRepeatsARelayHasNoLoopsAndNoDoubleEdges()
    {
        const CircuitGraph graph = CircuitGraph::build({circuit("1", "A B B C B C A", "s s")});
        QSet<QString> unique;
        for (const CircuitGraph::Edge &edge : graph.edges) {
            QVERIFY(edge.from != edge.to);
            QVERIFY2(!unique.contains(edge.id), qPrintable(edge.id));
            unique.insert(edge.id);
        }
        for (const CircuitGraph::Node &n : graph.nodes)
            QCOMPARE(n.circuitIDs.size(), 1);
    }

    void idsStayUniqueWhateverSitesAreCalled()
    {
        const CircuitGraph graph = CircuitGraph::build(
            {circuit("1", "A B C", "mac A more-1 x y"),
             circuit("2", "A-COLUMN2 A C", "A-column2 site-A")});
        QSet<QString> unique;
        for (const CircuitGraph::Node &n : graph.nodes)
            unique.insert(n.id);
        QCOMPARE(static_cast<size_t>(unique.size()), graph.nodes.size());
    }

    void layoutFollowsTheColumnRules()
    {
        std::vector<CircuitInfo> circuits;
        for (int i = 0; i < 20; ++i)
            circuits.push_back(circuit(qPrintable(QString::number(i)),
                                       qPrintable(QStringLiteral("A B%1 C").arg(i))));
        const CircuitGraph graph = CircuitGraph::build(circuits);
        const GraphLayout layout(graph, {1000, 400});
        QCOMPARE(layout.positions.size(), static_cast<qsizetype>(graph.nodes.size()));
        QCOMPARE(layout.positions.value(text("A")), QPointF(285, 46 + (400.0 - 64 - 64) / 2 + 32));
        QCOMPARE(layout.positions.value(text("C")), QPointF(715, 46 + (400.0 - 64 - 64) / 2 + 32));
        for (int i = 0; i < 20; ++i) {
            const QPointF position = layout.positions.value(QStringLiteral("B%1").arg(i));
            QCOMPARE(position.x(), 500.0);
            QCOMPARE(position.y(), 46 + 16.8 / 2 + 16.8 * i);
        }
        const GraphLayout sites(CircuitGraph::build({circuit("1", "A B C", "s t")}), {1000, 400});
        QCOMPARE(sites.positions.value(text("site-s")), QPointF(895, 46 + (336 - 128) / 2.0 + 32));
        QCOMPARE(sites.positions.value(text("site-t")), QPointF(895, 46 + (336 - 128) / 2.0 + 96));
    }

    void aTinyAreaStillPlacesEveryNodeBelowTheMargin()
    {
        const CircuitGraph graph = CircuitGraph::build({circuit("1", "A B C", "s t")});
        for (const QSizeF size : {QSizeF(0, 0), QSizeF(100, 30), QSizeF(-5, -5)}) {
            const GraphLayout layout(graph, size);
            QCOMPARE(layout.positions.size(), static_cast<qsizetype>(graph.nodes.size()));
            for (const QPointF position : layout.positions)
                QVERIFY(position.y() >= 46 && qIsFinite(position.x()));
        }
    }

    void aThousandCircuitsKeepIdsUniqueAndEverythingPlaced()
    {
        std::vector<CircuitInfo> circuits;
        for (int i = 0; i < 1000; ++i)
            circuits.push_back(
                circuit(qPrintable(QString::number(i)),
                        qPrintable(QStringLiteral("G%1 M%2 E%3").arg(i % 3).arg(i).arg(i % 40)),
                        "a b c d"));
        const CircuitGraph graph = CircuitGraph::build(circuits);
        QSet<QString> unique;
        for (const CircuitGraph::Edge &edge : graph.edges)
            unique.insert(edge.id);
        QCOMPARE(unique.size(), 7000);
        QCOMPARE(graph.edges.size(), 7000u);
        QCOMPARE(graph.nodes.size(), 1u + 3 + 1000 + 40 + 3 + 1000);
        QCOMPARE(GraphLayout(graph, {1200, 800}).positions.size(),
                 static_cast<qsizetype>(graph.nodes.size()));
    }

    void clicksOnASharedNodeGoRoundItsCircuits()
    {
        const CircuitGraph graph = CircuitGraph::build(
            {circuit("1", "A B C"), circuit("2", "A D E")});
        const CircuitGraph::Node &entry = node(graph, "A");
        QCOMPARE(CircuitGraph::select(entry, QString()), text("1"));
        QCOMPARE(CircuitGraph::select(entry, text("1")), text("2"));
        QCOMPARE(CircuitGraph::select(entry, text("2")), text("1"));
        QCOMPARE(CircuitGraph::select(entry, text("gone")), text("1"));
        QCOMPARE(CircuitGraph::select(node(graph, "D"), text("2")), text("2"));
        QVERIFY(!CircuitGraph::select(CircuitGraph::build({}).nodes.front(), text("1")));
    }

    void theNinthCircuitHasTheFirstColourAgain()
    {
        QCOMPARE(CircuitPalette::colors.size(), 8u);
        QVERIFY(CircuitPalette::color(8) == CircuitPalette::color(0));
        QVERIFY(CircuitPalette::color(7) == (CircuitPalette::Color{0.86, 0.52, 0.96}));
        QVERIFY(CircuitPalette::color(1) == (CircuitPalette::Color{0.25, 0.80, 0.86}));
    }
};

VELDMARK_BARE_TEST(CircuitGraphTest)
#include "CircuitGraphTest.moc"
