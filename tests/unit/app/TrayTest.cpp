#include "app/Tray.h"
#include "StandInSession.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

using namespace veldmark;

class TrayTest : public QObject {
    Q_OBJECT

    PlatformProfile profile = PlatformProfile::linux(Places::below(QStringLiteral("/nowhere")));

    static QMenu *menu(Tray &tray) { return tray.findChild<QSystemTrayIcon *>()->contextMenu(); }

    static Snapshot inPhase(ConnectionPhase phase)
    {
        Snapshot s;
        s.phase = phase;
        s.activeMode = RoutingMode::strict;
        s.torPath = QStringLiteral("/usr/bin/tor");
        return s;
    }

private Q_SLOTS:
    void everyStateHasAnIconOfItsOwnShape()
    {
        QHash<QString, QImage> shapes;
        for (const char *name : {"shield.slash", "shield.lefthalf.filled", "lock.shield.fill",
                                 "exclamationmark.shield"}) {
            const QImage image
                = Tray::icon(QString::fromLatin1(name), true).pixmap(QSize(22, 22), 1.0).toImage();
            QVERIFY(!image.isNull());
            bool drawn = false;
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x)
                    drawn = drawn || qAlpha(image.pixel(x, y)) > 128;
            QVERIFY2(drawn, name);
            for (const QImage &other : shapes)
                QVERIFY2(image != other, name);
            shapes.insert(QString::fromLatin1(name), image);
        }
    }

    void aSymbolThatIsMissingIsNotInvisible()
    {
        const QImage image = Tray::icon(QStringLiteral("no.such.symbol"), true)
                                 .pixmap(QSize(22, 22), 1.0)
                                 .toImage();
        int drawn = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                drawn += qAlpha(image.pixel(x, y)) > 128;
        QVERIFY(drawn > 10);
    }

    void inAMenuBarALeftClickOpensThePanelAlone()
    {
        StandInSession session(profile);
        Tray tray(session, Tray::Place::menuBar);
        QSignalSpy panel(&tray, &Tray::panelWanted);
        auto *icon = tray.findChild<QSystemTrayIcon *>();
        QVERIFY(!icon->contextMenu()); // it would open with the panel
        Q_EMIT icon->activated(QSystemTrayIcon::Trigger);
        QCOMPARE(panel.size(), 1);
        QVERIFY(!QApplication::activePopupWidget());
        Q_EMIT icon->activated(QSystemTrayIcon::Context);
        QCOMPARE(panel.size(), 1);
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu && !menu->actions().isEmpty());
        menu->close();
    }

    void inAMenuBarTheSystemColoursTheIcon()
    {
        StandInSession session(profile);
        Tray bar(session, Tray::Place::menuBar);
        Tray tray(session, Tray::Place::tray);
        QVERIFY(!tray.findChild<QSystemTrayIcon *>()->icon().isMask());
        const QIcon icon = bar.findChild<QSystemTrayIcon *>()->icon();
        QVERIFY(icon.isMask());
        const QImage image = icon.pixmap(QSize(18, 18), 1.0).toImage();
        int drawn = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) {
                drawn += qAlpha(image.pixel(x, y)) > 128;
                QCOMPARE(image.pixelColor(x, y).lightness(), 0); // only its shape counts
            }
        QVERIFY(drawn > 10);
    }

    void standsOutFromItsGround()
    {
        // The share of light pixels in the drawing; the rest is its edge.
        const auto light = [](bool onDark) {
            const QImage image = Tray::icon(QStringLiteral("lock.shield.fill"), onDark)
                                     .pixmap(QSize(64, 64), 1.0)
                                     .toImage();
            double sum = 0, count = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    if (qAlpha(image.pixel(x, y)) == 255) {
                        sum += image.pixelColor(x, y).lightness() > 128;
                        ++count;
                    }
                }
            }
            return count > 0 ? sum / count : -1;
        };
        QVERIFY(light(true) > 0.6);
        QVERIFY(light(false) >= 0 && light(false) < 0.4);
    }

    void itsEdgeStandsOutWhereItsColourDoesNot()
    {
        // A dark icon on a dark panel, and a light one on a light panel.
        for (const bool onDark : {false, true}) {
            for (const int pixels : {16, 22, 24}) {
                const QImage image = Tray::icon(QStringLiteral("lock.shield.fill"), onDark)
                                         .pixmap(QSize(pixels, pixels), 1.0)
                                         .toImage();
                QImage panel(image.size(), QImage::Format_RGB32);
                const int ground = onDark ? 245 : 20;
                panel.fill(QColor(ground, ground, ground));
                QPainter(&panel).drawImage(0, 0, image);
                int seen = 0;
                for (int y = 0; y < panel.height(); ++y)
                    for (int x = 0; x < panel.width(); ++x)
                        seen += qAbs(panel.pixelColor(x, y).lightness() - ground) > 120;
                QVERIFY2(seen > pixels, qPrintable(QString::number(seen)));
            }
        }
    }

    void itsTipAndMenuFollowTheSession()
    {
        StandInSession session(profile);
        Tray tray(session);
        auto *icon = tray.findChild<QSystemTrayIcon *>();
        QVERIFY(icon);
        session.show(inPhase(ConnectionPhase::disconnected));
        QCOMPARE(icon->toolTip(), QStringLiteral("Veldmark: Not Protected"));
        QAction *power = menu(tray)->actions().at(1);
        QCOMPARE(power->text(), QStringLiteral("Connect to Tor"));
        QVERIFY(power->isEnabled() && power->isVisible());
        power->trigger();
        QCOMPARE(session.asked, QStringList(QStringLiteral("connect")));

        Snapshot connected = inPhase(ConnectionPhase::connected);
        connected.torVerified = true;
        connected.killSwitch = KillSwitch{KillSwitch::State::standing, 0, {}};
        session.show(connected);
        QCOMPARE(icon->toolTip(), QStringLiteral("Veldmark: Protected"));
        menu(tray)->actions().at(1)->trigger();
        QCOMPARE(session.asked.last(), QStringLiteral("disconnect"));

        session.show(inPhase(ConnectionPhase::disconnecting));
        QVERIFY(!power->isVisible());
        session.show(inPhase(ConnectionPhase::stale));
        QCOMPARE(icon->toolTip(), QStringLiteral("Veldmark: Needs Attention"));
        Snapshot without = inPhase(ConnectionPhase::disconnected);
        without.torPath.reset();
        session.show(without);
        QVERIFY(!power->isEnabled());
    }

    void aClickWantsThePanelAndTheMenuTheRest()
    {
        StandInSession session(profile);
        Tray tray(session);
        QSignalSpy panel(&tray, &Tray::panelWanted), open(&tray, &Tray::openWanted),
            quit(&tray, &Tray::quitWanted);
        auto *icon = tray.findChild<QSystemTrayIcon *>();
        Q_EMIT icon->activated(QSystemTrayIcon::Trigger);
        QCOMPARE(panel.count(), 1);
        Q_EMIT icon->activated(QSystemTrayIcon::Context);
        QCOMPARE(panel.count(), 1);
        menu(tray)->actions().first()->trigger();
        menu(tray)->actions().last()->trigger();
        QCOMPARE(open.count(), 1);
        QCOMPARE(quit.count(), 1);
    }
};

VELDMARK_WINDOWED_TEST(TrayTest)
#include "TrayTest.moc"
