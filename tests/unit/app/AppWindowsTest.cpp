#include "StandInSession.h"
#include "app/Windows.h"
#include "support/Workbench.h"

#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

namespace {

struct Shown {
    Workbench bench;
    StandInSession session{bench.profile};
    StandInLog log;
    std::unique_ptr<Windows> windows = std::make_unique<Windows>(session, log, *bench.settings);
};

} // namespace

// The program's own windows, as app/Windows makes them; tests/ui looks at what is in them.
class AppWindowsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void opensEveryWindowByItsName()
    {
        Shown shown;
        QSignalSpy failed(shown.windows.get(), &Windows::failed);
        for (const QString &name : {u"main"_s, u"circuits"_s, u"log"_s, u"settings"_s, u"chooser"_s}) {
            QVERIFY2(shown.windows->open(name), qPrintable(name));
            QVERIFY(shown.windows->find(name)->isVisible());
            QVERIFY(!shown.windows->find(name)->title().isEmpty());
        }
        QCOMPARE(failed.count(), 0);
        QVERIFY(!shown.windows->open(u"nothing"_s));
    }

    void aWindowThatCannotBeMadeIsToldAndNeverShownBlank()
    {
        Shown shown;
        QSignalSpy failed(shown.windows.get(), &Windows::failed);
        QVERIFY(!shown.windows->make(u"main/NoSuchWindow.qml"_s, {}));
        QCOMPARE(failed.count(), 1);
        QVERIFY(failed.at(0).at(0).toString().contains(u"NoSuchWindow.qml"_s));
        // A file that is there, but lacks what it requires.
        QVERIFY(!shown.windows->make(u"main/QuitDialog.qml"_s, {}));
        QCOMPARE(failed.count(), 2);
        QVERIFY(!failed.at(1).at(0).toString().isEmpty());
        for (const QWindow *window : QGuiApplication::topLevelWindows())
            QVERIFY(!window->isVisible());
    }

    void tellsWhenTheMainWindowIsClosedButNotWhenTheProgramEnds()
    {
        Shown shown;
        QSignalSpy closed(shown.windows.get(), &Windows::mainClosed);
        QVERIFY(shown.windows->open(u"main"_s));
        shown.windows->find(u"main"_s)->close();
        QCOMPARE(closed.count(), 1);
        QVERIFY(shown.windows->open(u"main"_s));
        int later = 0;
        QObject::connect(shown.windows.get(), &Windows::mainClosed, this, [&later] { ++later; });
        shown.windows.reset();
        QCOMPARE(later, 0);
    }

    void aWindowThatWasClosedGoesAndComesBackWhereItWas()
    {
        Shown shown;
        QVERIFY(shown.windows->open(u"log"_s));
        shown.windows->find(u"log"_s)->setGeometry(30, 40, 700, 450);
        const QPoint place = shown.windows->find(u"log"_s)->framePosition();
        shown.windows->find(u"log"_s)->close();
        QVERIFY(until([&] { return !shown.windows->find(u"log"_s); }));
        QVERIFY(shown.windows->open(u"log"_s));
        QCOMPARE(shown.windows->find(u"log"_s)->size(), QSize(700, 450));
        QCOMPARE(shown.windows->find(u"log"_s)->framePosition(), place);
    }

    void whatIsOpenWhenTheProgramEndsIsRememberedToo()
    {
        Shown shown;
        QVERIFY(shown.windows->open(u"settings"_s));
        shown.windows->find(u"settings"_s)->resize(900, 600);
        shown.windows.reset();
        QVERIFY(shown.bench.settings->string(u"windows/settings"_s).startsWith(u"900x600+"_s));
    }

    void theChooserStandsInForFilesWhereEntriesAreFiles()
    {
        Shown shown;
        QVERIFY(shown.windows->open(u"main"_s));
        QVERIFY(QMetaObject::invokeMethod(shown.windows->find(u"main"_s), "chooserWanted"));
        QVERIFY(shown.windows->find(u"chooser"_s));
        QVERIFY(shown.windows->find(u"chooser"_s)->isVisible());
    }
};

QTEST_MAIN(AppWindowsTest)
#include "AppWindowsTest.moc"
