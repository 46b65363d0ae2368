#include "app/WindowPlaces.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

class WindowPlacesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void movesAPlaceOntoAScreen_data()
    {
        QTest::addColumn<QList<QRect>>("screens");
        QTest::addColumn<QRect>("place");
        QTest::addColumn<QRect>("within");
        const QRect left(0, 0, 1920, 1040), right(1920, 0, 1280, 1024);
        QTest::newRow("it fits") << QList<QRect>{left} << QRect(100, 100, 800, 600)
                                 << QRect(100, 100, 800, 600);
        QTest::newRow("on the second screen")
            << QList<QRect>{left, right} << QRect(2000, 10, 800, 600) << QRect(2000, 10, 800, 600);
        QTest::newRow("that screen has gone")
            << QList<QRect>{left} << QRect(2000, 10, 800, 600) << QRect(1120, 10, 800, 600);
        QTest::newRow("above and left")
            << QList<QRect>{left} << QRect(-900, -50, 800, 600) << QRect(0, 0, 800, 600);
        QTest::newRow("below") << QList<QRect>{left} << QRect(0, 1030, 800, 600)
                               << QRect(0, 440, 800, 600);
        QTest::newRow("too large") << QList<QRect>{right} << QRect(0, 0, 3000, 2000) << right;
        QTest::newRow("between two")
            << QList<QRect>{left, right} << QRect(1900, 0, 400, 300) << QRect(1920, 0, 400, 300);
        QTest::newRow("nowhere near") << QList<QRect>{right, left} << QRect(9000, 9000, 400, 300)
                                      << QRect(2800, 724, 400, 300);
        QTest::newRow("no screen at all")
            << QList<QRect>() << QRect(5, 5, 400, 300) << QRect(5, 5, 400, 300);
    }
    void movesAPlaceOntoAScreen()
    {
        QFETCH(QList<QRect>, screens);
        QFETCH(QRect, place);
        QFETCH(QRect, within);
        QCOMPARE(WindowPlaces::within(screens, place), within);
    }

    void readsWhatItWrites()
    {
        for (const QRect &place : {QRect(1, 2, 640, 420), QRect(-1280, -7, 1000, 640)})
            QCOMPARE(WindowPlaces::parse(WindowPlaces::text(place)), std::optional(place));
    }

    void takesNothingElse()
    {
        for (const char *text : {"", "640x420", "640x420+1", "640x420+1+2+3", "0x0+1+2",
                                 "999999x420+1+2", "640x420+a+b", "640x420+1+2\n", "-640x420+1+2"})
            QVERIFY2(!WindowPlaces::parse(QString::fromLatin1(text)), text);
    }

    void aWindowComesBackWhereItWas()
    {
        Workbench bench;
        {
            WindowPlaces places(*bench.settings);
            QQuickWindow window;
            places.remember(u"log"_s, &window); // nothing is known yet
            window.resize(500, 300);
            window.setFramePosition(QPoint(40, 60));
            window.show();
            places.keep(u"log"_s, &window);
        }
        bench.restart();
        WindowPlaces places(*bench.settings);
        QQuickWindow window;
        places.remember(u"log"_s, &window);
        QCOMPARE(window.size(), QSize(500, 300));
        QCOMPARE(window.framePosition(), QPoint(40, 60));
        QQuickWindow other;
        other.resize(320, 200);
        places.remember(u"circuits"_s, &other);
        QCOMPARE(other.size(), QSize(320, 200));
    }

    void aHeightThatItsContentDecidesIsNotTakenOver()
    {
        Workbench bench;
        bench.settings->setString(u"windows/main"_s, u"380x700+10+20"_s);
        WindowPlaces places(*bench.settings);
        QQuickWindow window;
        window.resize(400, 500);
        places.remember(u"main"_s, &window, WindowPlaces::Height::ownedByContent);
        QCOMPARE(window.size(), QSize(380, 500));
        QCOMPARE(window.framePosition(), QPoint(10, 20));
    }

    void aHeightThatItsUserGaveIsKeptAllTheSame()
    {
        Workbench bench;
        WindowPlaces places(*bench.settings);
        constexpr auto height = WindowPlaces::Height::ownedByContent;
        QQuickWindow window;
        window.resize(400, 500);
        window.show();
        places.keep(u"main"_s, &window, height);
        QCOMPARE(bench.settings->string(u"windows/mainHeight"_s), QString());
        window.setProperty("chosenHeight", 520);
        places.keep(u"main"_s, &window, height);
        QQuickWindow next;
        next.resize(400, 500);
        places.remember(u"main"_s, &next, height);
        QCOMPARE(next.property("chosenHeight").toInt(), 520);
    }

    void aPlaceThatIsNoLongerOnAScreenIsBroughtBack()
    {
        Workbench bench;
        bench.settings->setString(u"windows/log"_s, u"500x300+90000+-9000"_s);
        WindowPlaces places(*bench.settings);
        QQuickWindow window;
        places.remember(u"log"_s, &window);
        const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
        QVERIFY(room.contains(QRect(window.framePosition(), window.size())));
    }

    void aDamagedEntryIsNoPlace()
    {
        Workbench bench;
        bench.settings->setString(u"windows/log"_s, u"everywhere"_s);
        WindowPlaces places(*bench.settings);
        QQuickWindow window;
        window.resize(320, 200);
        places.remember(u"log"_s, &window);
        QCOMPARE(window.size(), QSize(320, 200));
    }

    void aMaximisedWindowKeepsItsOldPlace()
    {
        Workbench bench;
        bench.settings->setString(u"windows/log"_s, u"500x300+1+2"_s);
        WindowPlaces places(*bench.settings);
        QQuickWindow window;
        places.remember(u"log"_s, &window);
        window.showMaximized();
        places.keep(u"log"_s, &window);
        QCOMPARE(bench.settings->string(u"windows/log"_s), u"500x300+1+2"_s);
    }
};

VELDMARK_WINDOWED_TEST(WindowPlacesTest)
#include "WindowPlacesTest.moc"
