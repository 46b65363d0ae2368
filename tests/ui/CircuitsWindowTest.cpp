#include "GoldenText.h"
#include "Scenes.h"
#include "Stage.h"
#include "circuits/GraphLayout.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QTest>

#include <algorithm>
#include <cmath>

using namespace veldmark;

// A user's actions in the picture of the circuits: pointing, clicking, following.
class CircuitsWindowTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Stage> stage;
    Snapshot session;
    QQuickItem *graph = nullptr;

    void show(int circuits)
    {
        session = Scenes::protectedSession();
        session.circuits = Scenes::circuits(circuits);
        stage->session.show(session);
        QVERIFY(stage->open(QStringLiteral("circuits/CircuitsWindow.qml"),
                            {{QStringLiteral("model"), QVariant::fromValue(&stage->circuits)}}));
        graph = stage->window()->findChild<QQuickItem *>(QStringLiteral("graph"));
        QVERIFY(graph);
        stage->picture();
    }
    // The layout's position of a relay or site, in window coordinates.
    QPoint placeOf(const QString &label) const
    {
        const CircuitGraph built = CircuitGraph::build(session.circuits);
        const GraphLayout layout(built, graph->size());
        for (const CircuitGraph::Node &node : built.nodes)
            if (node.label == label)
                return graph->mapToScene(layout.positions[node.id]).toPoint();
        return {};
    }
    void point(QPoint at)
    {
        QTest::mouseMove(stage->window(), at);
        stage->picture();
    }
    void click(const QString &label)
    {
        const QPoint at = placeOf(label);
        QVERIFY2(!at.isNull(), qPrintable(label));
        QTest::mouseClick(stage->window(), Qt::LeftButton, {}, at);
    }
    QString help() const { return graph->property("hoveredHelp").toString(); }
    bool shows(const QString &text) const
    {
        const auto items = stage->window()->findChildren<QQuickItem *>();
        return std::any_of(items.begin(), items.end(), [&text](const QQuickItem *item) {
            return item->isVisible() && item->inherits("QQuickText")
                && item->property("text").toString() == text;
        });
    }
    // The circuit's row in the list; null when it is far from the visible part.
    QQuickItem *rowOf(QQuickItem *list, const QString &id) const
    {
        const auto found = std::find_if(
            session.circuits.begin(), session.circuits.end(),
            [&id](const CircuitInfo &circuit) { return circuit.id == id; });
        QQuickItem *item = nullptr;
        QMetaObject::invokeMethod(list, "itemAtIndex", Q_RETURN_ARG(QQuickItem *, item),
                                  Q_ARG(int, static_cast<int>(found - session.circuits.begin())));
        return item;
    }
    bool standsOut() const { return graph->property("standingOut").toBool(); }

private Q_SLOTS:
    void init()
    {
        QGuiApplication::setFont(QFont(QStringLiteral("Noto Sans")));
        stage = std::make_unique<Stage>();
    }
    void cleanup()
    {
        QCOMPARE(stage->warnings(), QStringList());
        stage.reset();
    }

    void clicksOnASharedRelayGoRoundItsCircuits()
    {
        show(6);
        QStringList through;
        for (const CircuitInfo &circuit : session.circuits)
            if (circuit.hops.front().nickname == session.circuits[0].hops.front().nickname)
                through << circuit.id;
        QVERIFY(through.size() > 1);
        for (qsizetype i = 0; i <= through.size(); ++i) {
            click(session.circuits[0].hops.front().nickname);
            QCOMPARE(stage->circuits.followed(), through[i % through.size()]);
        }
        click(QStringLiteral("This Mac")); // the computer itself: the default label of the graph
        QCOMPARE(stage->circuits.followed(), QString());
    }

    void circuitsUnderThePointerStandOut()
    {
        show(30);
        const QImage before = stage->picture();
        const RelayInfo &relay = session.circuits[20].hops[1];
        point(placeOf(relay.nickname));
        QVERIFY(standsOut());
        QCOMPARE(graph->property("emphasis").toDouble(), 1.0); // at once: the stage has no motion
        QVERIFY(help().startsWith(relay.nickname));
        QVERIFY(help().contains(*relay.ip));
        QVERIFY(stage->picture() != before);
        point(graph->mapToScene(QPointF(graph->width() * 0.6, 4)).toPoint());
        QVERIFY(!standsOut());
        QCOMPARE(help(), QString());
        QCOMPARE(graph->property("emphasis").toDouble(), 0.0);
        QCOMPARE(stage->picture(), before);
    }

    void aSiteUnderThePointerNamesTheApplicationsThatAsked()
    {
        show(3);
        const QString site = QStringLiteral("www.example.org");
        point(placeOf(site));
        QCOMPARE(help(), site + QStringLiteral("\nUsed by 2 circuits"));
        session.circuits[0].askers.insert(site, {QStringLiteral("games")});
        session.circuits[2].askers.insert(site,
                                          {QStringLiteral("as:bank"), QStringLiteral("games")});
        stage->session.show(session);
        stage->picture();
        point(placeOf(site));
        QCOMPARE(help(),
                 site + QStringLiteral("\nAsked for by Games, as:bank\nUsed by 2 circuits"));
    }

    void whatIsFollowedKeepsStandingOut()
    {
        show(30);
        stage->circuits.follow(QStringLiteral("15"));
        const QImage followed = stage->picture();
        QVERIFY(standsOut());
        point(placeOf(session.circuits[20].hops[1].nickname));
        point(graph->mapToScene(QPointF(graph->width() * 0.6, 4)).toPoint());
        QCOMPARE(stage->picture(), followed);
        // Its circuit is closed, so no circuit is followed any more.
        std::erase_if(session.circuits,
                      [](const CircuitInfo &circuit) { return circuit.id == QLatin1String("15"); });
        stage->session.show(session);
        QVERIFY(!standsOut());
    }

    void theFollowedRowComesIntoView()
    {
        show(30);
        const QString last = session.circuits.back().id;
        stage->circuits.follow(last);
        stage->picture();
        auto *list = stage->window()->findChild<QQuickItem *>(QStringLiteral("list"));
        QVERIFY(list);
        QTRY_VERIFY(list->property("contentY").toDouble() > 500);
        QQuickItem *item = nullptr;
        QMetaObject::invokeMethod(list, "itemAtIndex", Q_RETURN_ARG(QQuickItem *, item),
                                  Q_ARG(int, 29));
        QVERIFY(item);
        const QRectF place = item->mapRectToItem(list, QRectF(0, 0, item->width(), item->height()));
        QVERIFY(place.top() >= -1 && place.bottom() <= list->height() + 1);
    }

    void anErrorIsSaidWhereTheGraphWouldBe()
    {
        session = Scenes::protectedSession();
        session.circuits.clear();
        session.circuitError = QStringLiteral("Tor closed the control connection.");
        stage->session.show(session);
        QVERIFY(stage->open(QStringLiteral("circuits/CircuitsWindow.qml"),
                            {{QStringLiteral("model"), QVariant::fromValue(&stage->circuits)}}));
        stage->picture();
        QVERIFY(shows(session.circuitError->english()));
    }

    void aSecondClickOnARowFollowsNothing()
    {
        show(5);
        auto *list = stage->window()->findChild<QQuickItem *>(QStringLiteral("list"));
        QVERIFY(list);
        const QString id = session.circuits.front().id;
        const auto press = [&] {
            QQuickItem *row = rowOf(list, id);
            QVERIFY(row);
            QTest::mouseClick(
                stage->window(), Qt::LeftButton, {},
                row->mapToScene(QPointF(row->width() / 2, row->height() / 2)).toPoint());
            stage->picture();
        };
        press();
        QCOMPARE(stage->circuits.followed(), id);
        press();
        QCOMPARE(stage->circuits.followed(), QString());
    }

    void aRefreshTakesNobodysPlace()
    {
        show(30);
        stage->circuits.follow(session.circuits.front().id);
        stage->picture();
        auto *list = stage->window()->findChild<QQuickItem *>(QStringLiteral("list"));
        QVERIFY(list);
        list->setProperty("contentY", 600.0);
        stage->picture();
        int middle = -1;
        QMetaObject::invokeMethod(list, "indexAt", Q_RETURN_ARG(int, middle), Q_ARG(double, 10.0),
                                  Q_ARG(double, 600.0 + list->height() / 2));
        QVERIFY(middle > 5);
        const QString reading = session.circuits[static_cast<std::size_t>(middle)].id;
        QQuickItem *row = rowOf(list, reading);
        QVERIFY(row);
        row->forceActiveFocus(Qt::TabFocusReason);
        QVERIFY(row->hasActiveFocus());
        const double before = row->mapToItem(list, QPointF()).y();

        CircuitInfo newer = session.circuits.front();
        newer.id = QStringLiteral("900");
        session.circuits.insert(session.circuits.begin(), newer);
        std::erase_if(session.circuits,
                      [](const CircuitInfo &circuit) { return circuit.id == QLatin1String("13"); });
        stage->session.show(session);
        stage->picture();
        QCOMPARE(rowOf(list, reading), row);
        QVERIFY(row->hasActiveFocus());
        QVERIFY2(qAbs(row->mapToItem(list, QPointF()).y() - before) <= row->height(),
                 "the list has moved");
        QCOMPARE(stage->circuits.followed(), session.circuits[1].id);
    }

    void theCircuitsAreReadWhileTheWindowIsOpen()
    {
        QVERIFY(!stage->circuits.seen());
        show(3);
        QVERIFY(stage->circuits.seen());
        QVERIFY(stage->session.asked.contains(QStringLiteral("refreshCircuits")));
        stage->window()->hide();
        QTRY_VERIFY(!stage->circuits.seen());
        stage->window()->show();
        QTRY_VERIFY(stage->circuits.seen());
    }

    void allFiveColumnsHaveTheirGuide()
    {
        show(1);
        session.circuits.front().sites.clear();
        stage->session.show(session); // the last column is empty
        const QImage picture = stage->picture();
        const double scale = stage->window()->effectiveDevicePixelRatio();
        const auto at = [&](double x) {
            const QPointF place = graph->mapToScene(QPointF(x, graph->height() - 20)) * scale;
            return picture.pixelColor(place.toPoint());
        };
        const QColor ground = at(graph->width() * 0.6);
        for (int column = 0; column < GraphLayout::columns; ++column) {
            const double x = std::round(GraphLayout::columnAt(column, graph->width()));
            QVERIFY2(at(x) != ground, qPrintable(QString::number(column)));
        }
    }

    void thePathsAreStillCountedWhileFasterOnesAreLookedFor()
    {
        show(3);
        QVERIFY(shows(stage->circuits.subtitle()));
        session.isOptimizing = true;
        session.optimizeStatus = QStringLiteral("Testing speed (1 of 4)…");
        stage->session.show(session);
        stage->picture();
        QVERIFY(stage->circuits.subtitle().startsWith(QLatin1String("3 active paths")));
        QVERIFY(shows(stage->circuits.subtitle()));
        QVERIFY(shows(session.optimizeStatus->english()));
    }

    void whatIsNotKnownOfARelayIsCalledUnknown()
    {
        show(1);
        session.circuits.front().hops[1].country.reset();
        session.circuits.front().hops[1].ip.reset();
        stage->session.show(session);
        stage->picture();
        point(placeOf(session.circuits.front().hops[1].nickname));
        QVERIFY2(help().contains(QStringLiteral("\nUnknown\n")), qPrintable(help()));
    }

    void thePathIsDrawnInItsCircuitsColour()
    {
        show(6);
        QList<QColor> colours;
        for (const int place : {0, 1}) {
            stage->circuits.follow(session.circuits[static_cast<std::size_t>(place)].id);
            stage->picture();
            const QColor own = stage->circuits
                                   .data(stage->circuits.index(place), CircuitsModel::ColorRole)
                                   .value<QColor>();
            int lines = 0;
            visit(stage->window()->contentItem(), [&](QQuickItem *item) {
                const QQuickItem *step = item->parentItem() ? item->parentItem()->parentItem()
                                                            : nullptr;
                if (!step || !QByteArray(step->metaObject()->className()).startsWith("PathStep")
                    || item->width() != 4)
                    return;
                ++lines;
                QCOMPARE(item->property("color").value<QColor>(), own);
            });
            QVERIFY(lines >= 3); // between the computer, the relays and the sites
            colours << own;
        }
        QVERIFY(colours.first() != colours.last());
    }
};

QTEST_MAIN(CircuitsWindowTest)
#include "CircuitsWindowTest.moc"
