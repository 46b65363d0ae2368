#include "Scenes.h"
#include "StandInSession.h"
#include "app/Windows.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>
#include <QtQml>

#include <algorithm>
#include <cstddef>

#if defined(__SANITIZE_ADDRESS__)
// From the sanitizer's run time; g++ has no header that declares it.
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

// The memory that this process uses.
struct Taken {
    qint64 heapBytes = 0; // in use
    qsizetype descriptors = 0;
    qsizetype threads = 0;
};

Taken taken()
{
    const auto entries = [](const QString &folder) {
        return QDir(folder)
            .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
            .size();
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

// The threads that read QML files, one for each engine.
qsizetype engineThreads()
{
    qsizetype found = 0;
    for (const QString &thread : QDir(u"/proc/self/task"_s).entryList(QDir::Dirs)) {
        QFile name(u"/proc/self/task/"_s + thread + u"/comm"_s);
        if (name.open(QIODevice::ReadOnly) && name.readAll().startsWith("QQmlThread"))
            ++found;
    }
    return found;
}

} // namespace

// The program's windows as app/Windows makes them. tests/ui tests their content.
class AppWindowsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void opensEveryWindowByItsName()
    {
        Shown shown;
        QSignalSpy failed(shown.windows.get(), &Windows::failed);
        for (const QString &name :
             {u"main"_s, u"circuits"_s, u"log"_s, u"settings"_s, u"chooser"_s, u"report"_s}) {
            QVERIFY2(shown.windows->open(name), qPrintable(name));
            QVERIFY(shown.windows->find(name)->isVisible());
            QVERIFY(!shown.windows->find(name)->title().isEmpty());
        }
        QCOMPARE(failed.count(), 0);
        QVERIFY(!shown.windows->open(u"nothing"_s));
    }

    // A program that starts hidden needs no QML.
    void theFirstWindowBringsTheEngine()
    {
#ifndef Q_OS_LINUX
        QSKIP("/proc names the threads");
#endif
        QVERIFY(until([] { return engineThreads() == 0; })); // those of former tests have ended
        Shown shown;
        QCOMPARE(engineThreads(), 0);
        QVERIFY(shown.windows->open(u"main"_s));
        QCOMPARE(engineThreads(), 1);
        QVERIFY(shown.windows->open(u"log"_s));
        QCOMPARE(engineThreads(), 1);
    }

    void theSettingsOpenTheReport()
    {
        Shown shown;
        QVERIFY(shown.windows->open(u"settings"_s));
        QVERIFY(!shown.windows->find(u"report"_s));
        QMetaObject::invokeMethod(shown.windows->find(u"settings"_s), "windowWanted",
                                  Q_ARG(QString, u"report"_s));
        QVERIFY(shown.windows->find(u"report"_s));
        QVERIFY(shown.windows->find(u"report"_s)->isVisible());
        QCOMPARE(shown.session.asked.count(u"makeReport"_s), 1);
    }

    void theReportIsSavedInTheFileThatTheUserChooses()
    {
        Shown shown;
        QVERIFY(shown.windows->open(u"report"_s));
        QMetaObject::invokeMethod(shown.windows->find(u"report"_s), "saveWanted");
        QFileDialog *dialog = nullptr;
        QVERIFY(until([&dialog] {
            for (QWidget *widget : QApplication::topLevelWidgets()) {
                if (widget->isVisible() && qobject_cast<QFileDialog *>(widget))
                    dialog = qobject_cast<QFileDialog *>(widget);
            }
            return dialog != nullptr;
        }));
        QCOMPARE(dialog->windowTitle(), u"Save the report"_s);
        QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptSave);
        Q_EMIT dialog->filesSelected({u"/nowhere/report.txt"_s});
        QVERIFY(shown.session.asked.contains(u"saveReport /nowhere/report.txt"_s));
        dialog->close();
    }

    void aWindowThatCannotBeMadeIsToldAndNeverShownBlank()
    {
        Shown shown;
        QSignalSpy failed(shown.windows.get(), &Windows::failed);
        QVERIFY(!shown.windows->make(u"main/NoSuchWindow.qml"_s, {}));
        QCOMPARE(failed.count(), 1);
        QVERIFY(failed.at(0).at(0).toString().contains(u"NoSuchWindow.qml"_s));
        // The file exists, but a required property is missing.
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

    void theyHaveTheirSizesFromTheStart()
    {
        Shown shown;
        for (const auto &[name, size] : {std::pair(u"circuits"_s, QSize(1000, 640)),
                                         {u"log"_s, QSize(900, 540)},
                                         {u"settings"_s, QSize(760, 540)},
                                         {u"chooser"_s, QSize(460, 560)}}) {
            QVERIFY(shown.windows->open(name));
            QCOMPARE(shown.windows->find(name)->size(), size);
        }
        QVERIFY(shown.windows->open(u"main"_s));
        QCOMPARE(shown.windows->find(u"main"_s)->width(), 400);
    }

    void theMainWindowIsAsTallAsItsContentUntilItsUserSaysHowTall()
    {
        Shown shown;
        Snapshot small;
        small.torPath = u"/usr/bin/tor"_s;
        shown.session.show(small);
        QVERIFY(shown.windows->open(u"main"_s));
        QQuickWindow *main = shown.windows->find(u"main"_s);
        main->grabWindow();
        settle();
        const int before = main->height();
        small.errorMessage = u"Tor didn't finish connecting within 5 minutes."_s;
        shown.session.show(small);
        main->grabWindow();
        settle();
        QVERIFY2(main->height() > before, qPrintable(QString::number(before))); // the banner's
                                                                                // height
        const int content = main->height();
        main->resize(main->width(), before); // the window manager repeats an earlier height
        settle();
        small.errorMessage.reset();
        shown.session.show(small);
        main->grabWindow();
        settle();
        small.errorMessage = u"Tor stopped running"_s;
        shown.session.show(small);
        main->grabWindow();
        settle();
        QCOMPARE(main->height(), content);
        main->resize(main->width(), 512);
        settle();
        small.errorMessage.reset();
        shown.session.show(small);
        main->grabWindow();
        settle();
        QCOMPARE(main->height(), 512);
        QVERIFY(content != 512);
        main->close();
        shown.windows.reset();
        shown.windows = std::make_unique<Windows>(shown.session, shown.log, *shown.bench.settings);
        QVERIFY(shown.windows->open(u"main"_s));
        QCOMPARE(shown.windows->find(u"main"_s)->height(), 512);
    }

    void aFilterDoesNotOutliveItsWindow()
    {
        Shown shown;
        shown.log.show(LogFeed::State::lines, Scenes::log(20));
        for (const auto &[name, shownRows] : {std::pair(u"log"_s, 20), {u"chooser"_s, 3}}) {
            QVERIFY(shown.windows->open(name));
            settle(); // QML learns late that a window is visible
            const auto *rows
                = shown.windows->find(name)->property("model").value<QAbstractItemModel *>();
            QCOMPARE(rows->rowCount(), shownRows);
            shown.windows->find(name)->property("model").value<QObject *>()->setProperty("search",
                                                                                         u"zzz"_s);
            QCOMPARE(rows->rowCount(), 0);
            shown.windows->find(name)->close();
            QVERIFY(until([&] { return !shown.windows->find(name); }));
            QVERIFY(shown.windows->open(name));
            settle();
            QCOMPARE(rows->rowCount(), shownRows);
        }
    }

    void everyWindowCanAskToQuit()
    {
        Shown shown;
        QSignalSpy quit(shown.windows.get(), &Windows::quitWanted);
        int windows = 0;
        for (const QString &name :
             {u"main"_s, u"circuits"_s, u"log"_s, u"settings"_s, u"chooser"_s}) {
            QVERIFY(shown.windows->open(name));
            QVERIFY(QMetaObject::invokeMethod(shown.windows->find(name), "quitWanted"));
            QCOMPARE(quit.count(), ++windows);
        }
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
                if (QQuickWindow *window = shown.windows->find(name);
                    !window || window->grabWindow().isNull())
                    return false;
            }
            for (const QString &name : names)
                shown.windows->find(name)->close();
            return until([&] {
                return std::none_of(names.begin(), names.end(),
                                    [&](const QString &name) { return shown.windows->find(name); });
            });
        };
        const auto rounds = [&](int count) {
            bool isGood = true;
            for (int i = 0; i < count; ++i)
                isGood = isGood && round();
            return isGood;
        };
        constexpr int measured = 20;
        constexpr qint64 limitBytes = measured * 1024; // a window that leaks in each round takes
                                                       // far more
        // The garbage collector frees the windows' scripts about once in sixty rounds.
        const auto tidied = [&] {
            qmlEngine(shown.windows->find(u"main"_s))->collectGarbage();
            settle();
            return taken();
        };
        QVERIFY(rounds(10)); // Qt Quick's own caches
        const Taken before = tidied();
        QVERIFY(rounds(measured));
        const Taken after = tidied();
        QCOMPARE(after.descriptors, before.descriptors);
        QCOMPARE(after.threads, before.threads);
        QVERIFY2(after.heapBytes - before.heapBytes < limitBytes,
                 qPrintable(QString::number(after.heapBytes - before.heapBytes)));

        // The measurement would notice one small window that is kept in each round.
        const auto make = [&shown] {
            return shown.windows->make(u"main/QuitDialog.qml"_s,
                                       {{u"strict"_s, true}, {u"busy"_s, false}});
        };
        const auto first = make(); // brings the component itself, and frees what others had cached
        const qint64 withOne = tidied().heapBytes;
        const auto kept = make();
        QVERIFY(first && kept);
        const qint64 one = tidied().heapBytes - withOne;
        QVERIFY2(one > limitBytes / measured, qPrintable(QString::number(one)));
        qInfo("%lld bytes in %d rounds", static_cast<long long>(after.heapBytes - before.heapBytes),
              measured);
    }

    void transportsAreLookedForWhereTheyAreShown()
    {
        Shown shown;
        const auto looked = [&shown] {
            return shown.session.asked.removeAll(u"lookForTransports"_s);
        };
        QVERIFY(shown.windows->open(u"circuits"_s));
        QCOMPARE(looked(), 0);
        QVERIFY(shown.windows->open(u"main"_s));
        QCOMPARE(looked(), 1);
        shown.windows->togglePanel(QRect(0, 0, 10, 10));
        QCOMPARE(looked(), 1);
        shown.windows->togglePanel(QRect(0, 0, 10, 10));
        QCOMPARE(looked(), 0);
        QVERIFY(shown.windows->open(u"settings"_s));
        QCOMPARE(looked(), 0); // another pane is shown
        shown.windows->find(u"settings"_s)->setProperty("pane", 2);
        QCOMPARE(looked(), 1);
    }

    void circuitsAreReadAsLongAsTheirWindowIsOpen()
    {
        Shown shown;
        Snapshot connected;
        connected.phase = ConnectionPhase::connected;
        const auto read = [&shown] { return shown.session.asked.removeAll(u"refreshCircuits"_s); };
        QVERIFY(shown.windows->open(u"circuits"_s)); // before the session
        settle();                                    // QML learns late that a window is visible
        QCOMPARE(read(), 0);
        shown.session.show(connected);
        QCOMPARE(read(), 1);
        shown.windows->find(u"circuits"_s)->close();
        QVERIFY(until([&] { return !shown.windows->find(u"circuits"_s); }));
        shown.session.show(Snapshot());
        shown.session.show(connected);
        QCOMPARE(read(), 0);
        QVERIFY(shown.windows->open(u"circuits"_s));
        settle();
        QCOMPARE(read(), 1);
        shown.windows->find(u"circuits"_s)->showMinimized();
        settle();
        shown.session.show(Snapshot());
        shown.session.show(connected);
        QCOMPARE(read(), 0);
        shown.windows->find(u"circuits"_s)->showNormal();
        settle();
        QCOMPARE(read(), 1);
    }

    void thePanelAtTheTrayLeadsWhereTheWindowLeads()
    {
        Shown shown;
        QSignalSpy quit(shown.windows.get(), &Windows::quitWanted);
        shown.windows->togglePanel(QRect(0, 0, 10, 10));
        QQuickWindow *panel = shown.windows->find(u"panel"_s);
        QVERIFY(panel && panel->isVisible());
        QCOMPARE(panel->width(), 380);
        QVERIFY(QMetaObject::invokeMethod(panel, "windowWanted", Q_ARG(QString, u"log"_s)));
        QVERIFY(shown.windows->find(u"log"_s)->isVisible());
        QVERIFY(QMetaObject::invokeMethod(panel, "chooserWanted"));
        QVERIFY(shown.windows->find(u"chooser"_s)->isVisible());
        QVERIFY(QMetaObject::invokeMethod(panel, "quitWanted"));
        QCOMPARE(quit.count(), 1);
        shown.windows->find(u"log"_s)->requestActivate(); // another window is used
        QVERIFY(until([&] { return !panel->isVisible(); }));
    }

    // Without a bus the questions are Qt's own dialogues.
    void aFileIsChosenForTorAndEntriesForApplications()
    {
        Shown shown;
        const auto answer = [](const QString &title, const QString &file) {
            for (QWidget *widget : QApplication::topLevelWidgets()) {
                auto *dialog = qobject_cast<QFileDialog *>(widget);
                if (!dialog || !dialog->isVisible() || dialog->windowTitle() != title)
                    continue;
                Q_EMIT dialog->filesSelected({file});
                dialog->close();
                return true;
            }
            return false;
        };
        QVERIFY(shown.windows->open(u"settings"_s));
        QVERIFY(QMetaObject::invokeMethod(shown.windows->find(u"settings"_s), "torChooserWanted"));
        QVERIFY(until([&] { return answer(u"Select the tor executable"_s, u"/opt/tor"_s); }));
        QCOMPARE(shown.session.now().choices.customTorPath, u"/opt/tor"_s);
        QVERIFY(shown.windows->open(u"chooser"_s));
        QVERIFY(QMetaObject::invokeMethod(shown.windows->find(u"chooser"_s), "fileWanted"));
        const QString entry = u"/usr/share/applications/own.desktop"_s;
        QVERIFY(until(
            [&] { return answer(u"Choose apps that may skip Tor in strict mode"_s, entry); }));
        QCOMPARE(shown.session.now().choices.bypassApps, QStringList(entry));
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
