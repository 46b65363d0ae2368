#include "StandInSession.h"
#include "app/Windows.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QDir>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>
#include <QtQml>

#include <algorithm>
#include <cstddef>

#if defined(__SANITIZE_ADDRESS__)
// Of the sanitizer's run time; g++ brings no header that declares it.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#elif defined(Q_OS_LINUX)
#include <malloc.h>
#endif

using namespace Qt::StringLiterals;
using namespace veldmark;

namespace {

struct Shown {
    Workbench bench;
    StandInSession session{bench.profile};
    StandInLog log;
    std::unique_ptr<Windows> windows = std::make_unique<Windows>(session, log, *bench.settings);
};

// What this process has taken.
struct Taken {
    qint64 heapBytes = 0; // in use
    qsizetype descriptors = 0;
    qsizetype threads = 0;
};

Taken taken()
{
    const auto entries = [](const QString &folder) {
        return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
    };
    Taken now{0, entries(u"/proc/self/fd"_s), entries(u"/proc/self/task"_s)};
#if defined(__SANITIZE_ADDRESS__)
    now.heapBytes = static_cast<qint64>(__sanitizer_get_current_allocated_bytes());
#elif defined(Q_OS_LINUX)
    const struct mallinfo2 heap = mallinfo2();
    now.heapBytes = static_cast<qint64>(heap.uordblks + heap.hblkhd);
#endif
    return now;
}

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

    void openingAndClosingThemTakesNothingForGood()
    {
#ifndef Q_OS_LINUX
        QSKIP("reads /proc and glibc's figures");
#endif
        Shown shown;
        QVERIFY(shown.windows->open(u"main"_s));
        const QStringList names = {u"circuits"_s, u"log"_s, u"settings"_s, u"chooser"_s};
        const auto round = [&] {
            for (const QString &name : names) {
                shown.windows->open(name);
                if (QQuickWindow *window = shown.windows->find(name); !window || window->grabWindow().isNull())
                    return false;
            }
            for (const QString &name : names)
                shown.windows->find(name)->close();
            return until([&] {
                return std::none_of(names.begin(), names.end(), [&](const QString &name) { return shown.windows->find(name); });
            });
        };
        const auto rounds = [&](int count) {
            bool isGood = true;
            for (int i = 0; i < count; ++i)
                isGood = isGood && round();
            return isGood;
        };
        constexpr int measured = 20;
        constexpr qint64 limitBytes = measured * 1024; // a window kept in each round takes far more
        // What the windows' scripts leave goes when it is collected, once in some sixty rounds.
        const auto tidied = [&] {
            qmlEngine(shown.windows->find(u"main"_s))->collectGarbage();
            settle();
            return taken();
        };
        QVERIFY(rounds(10)); // what Qt Quick keeps for the next time
        const Taken before = tidied();
        QVERIFY(rounds(measured));
        const Taken after = tidied();
        QCOMPARE(after.descriptors, before.descriptors);
        QCOMPARE(after.threads, before.threads);
        QVERIFY2(after.heapBytes - before.heapBytes < limitBytes, qPrintable(QString::number(after.heapBytes - before.heapBytes)));

        // That it would be seen: one small window kept in each round.
        const auto kept = shown.windows->make(u"main/QuitDialog.qml"_s, {{u"strict"_s, true}, {u"busy"_s, false}});
        QVERIFY(kept);
        QVERIFY(tidied().heapBytes - after.heapBytes > limitBytes / measured);
        qInfo("%lld bytes in %d rounds", static_cast<long long>(after.heapBytes - before.heapBytes), measured);
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

VELDMARK_WINDOWED_TEST(AppWindowsTest)
#include "AppWindowsTest.moc"
