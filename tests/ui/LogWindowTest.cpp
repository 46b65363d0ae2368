#include "Scenes.h"
#include "Stage.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QQuickItem>
#include <QTest>

#include <functional>

using namespace veldmark;

// The lines of the log for a reader: at the end until the reader scrolls up, selectable across
// lines, and unmoved while lines are added and dropped.
class LogWindowTest : public QObject {
    Q_OBJECT

    static constexpr int count = 3000;

    std::unique_ptr<Stage> stage;
    QList<TorLogLine> all;
    QQuickItem *lines = nullptr;

    void showFrom(int first, int number = count)
    {
        stage->log.show(LogFeed::State::lines, all.mid(first, number));
        stage->picture();
    }
    bool follows() const { return lines->property("follow").toBool(); }
    double contentY() const { return lines->property("contentY").toDouble(); }
    // The raw text of the line at a vertical position of the list.
    QString lineAt(double y) const
    {
        int row = -1;
        QMetaObject::invokeMethod(lines, "indexAt", Q_RETURN_ARG(int, row), Q_ARG(double, 10.0),
                                  Q_ARG(double, contentY() + y));
        return stage->lines.data(stage->lines.index(row), Qt::DisplayRole).toString();
    }
    QPoint inWindow(double x, double y) const { return lines->mapToScene(QPointF(x, y)).toPoint(); }
    QString lastLine() const { return lineAt(lines->height() - 4); }
    void scrollUp(int notches)
    {
        for (int i = 0; i < notches; ++i) {
            const QPointF at = inWindow(100, 100);
            QWheelEvent event(at, stage->window()->mapToGlobal(at), {}, {0, 120}, Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(stage->window(), &event);
        }
        stage->picture();
    }

private Q_SLOTS:
    void initTestCase()
    {
        QGuiApplication::setFont(QFont(QStringLiteral("Noto Sans")));
        QAccessible::setActive(true);
        all = Scenes::log(2 * count + 100);
    }

    void init()
    {
        stage = std::make_unique<Stage>();
        showNothing();
        QVERIFY(stage->open(QStringLiteral("log/LogWindow.qml"),
                            {{QStringLiteral("model"), QVariant::fromValue(&stage->lines)}}));
        lines = stage->window()->findChild<QQuickItem *>(QStringLiteral("lines"));
        QVERIFY(lines);
        showFrom(0);
    }
    void showNothing() { stage->log.show(LogFeed::State::empty); }

    void cleanup()
    {
        QCOMPARE(stage->warnings(), QStringList());
        stage.reset();
    }

    void staysAtTheEndWhileLinesArrive()
    {
        QVERIFY(follows());
        QCOMPARE(lastLine(), all[count - 1].raw);
        for (int i = 1; i <= 5; ++i) {
            showFrom(i);
            QCOMPARE(lastLine(), all[count - 1 + i].raw);
        }
    }

    void staysAtTheEndWhenTheWindowChangesItsSize()
    {
        for (const QSize size : {QSize(640, 420), QSize(1200, 800), QSize(700, 500)}) {
            stage->window()->resize(size);
            stage->picture();
            QCOMPARE(lastLine(), all[count - 1].raw);
        }
    }

    void yieldsToAReaderWhoScrollsUp()
    {
        scrollUp(10);
        QVERIFY(!follows());
        const QString read = lineAt(100);
        QVERIFY(!read.isEmpty());
        // Added and dropped lines do not move the reader's position.
        for (int i = 1; i <= 5; ++i) {
            showFrom(20 * i);
            QCOMPARE(lineAt(100), read);
        }
    }

    void followsAgainAtTheEnd()
    {
        scrollUp(3);
        QVERIFY(!follows());
        lines->forceActiveFocus();
        QTest::keyClick(stage->window(), Qt::Key_End);
        QVERIFY(follows());
        showFrom(7);
        QCOMPARE(lastLine(), all[count + 6].raw);
    }

    void copiesWhatIsDraggedOver()
    {
        const QString first = lineAt(60);
        const QString last = lineAt(160);
        QVERIFY(first != last);
        QTest::mousePress(stage->window(), Qt::LeftButton, {}, inWindow(200, 60));
        QTest::mouseMove(stage->window(), inWindow(240, 120));
        QTest::mouseMove(stage->window(), inWindow(240, 160));
        QTest::mouseRelease(stage->window(), Qt::LeftButton, {}, inWindow(240, 160));
        QTest::keyClick(stage->window(), Qt::Key_C, Qt::ControlModifier);
        const QStringList copied = QGuiApplication::clipboard()->text().split(u'\n');
        QVERIFY(copied.size() > 2);
        QCOMPARE(copied.first(), first);
        QCOMPARE(copied.last(), last);
    }

    void aPartOfALineIsSelectedAsText()
    {
        const QString line = lineAt(60);
        QTest::mousePress(stage->window(), Qt::LeftButton, {}, inWindow(200, 60));
        QTest::mouseMove(stage->window(), inWindow(230, 60));
        QTest::mouseMove(stage->window(), inWindow(290, 60));
        QTest::mouseRelease(stage->window(), Qt::LeftButton, {}, inWindow(290, 60));
        QTest::keyClick(stage->window(), Qt::Key_C, Qt::ControlModifier);
        const QString part = QGuiApplication::clipboard()->text();
        QVERIFY2(part.size() >= 3 && part.size() < line.size() && line.contains(part),
                 qPrintable(part));
        QTest::mouseDClick(stage->window(), Qt::LeftButton, {}, inWindow(200, 60));
        QTest::keyClick(stage->window(), Qt::Key_C, Qt::ControlModifier);
        const QString word = QGuiApplication::clipboard()->text();
        QVERIFY2(!word.trimmed().isEmpty() && !word.trimmed().contains(u' ') && line.contains(word),
                 qPrintable(word));
        // A click selects its line again, and so does the keyboard.
        QTest::mouseClick(stage->window(), Qt::LeftButton, {}, inWindow(200, 160));
        QTest::keyClick(stage->window(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), lineAt(160));
    }

    void theLevelIsTold()
    {
        showFrom(0, 7);
        QStringList names;
        const std::function<void(QQuickItem *)> look = [&](QQuickItem *item) {
            if (!item->isVisible())
                return; // used below
            if (auto *face = QAccessible::queryAccessibleInterface(item);
                face && face->role() == QAccessible::ListItem)
                names << face->text(QAccessible::Name).section(u' ', 0, 0) + u'|'
                        + face->text(QAccessible::Description);
            for (QQuickItem *child : item->childItems())
                look(child);
        };
        look(lines);
        names.sort();
        QCOMPARE(names,
                 QStringList({QStringLiteral("Error:|"), QStringLiteral("Nov|Notice"),
                              QStringLiteral("Nov|Notice"), QStringLiteral("Nov|Notice"),
                              QStringLiteral("Nov|Notice"), QStringLiteral("Warning:|"),
                              QStringLiteral("|Information")}));
    }

    void aNewWindowFiltersNothing()
    {
        stage->lines.setSearch(QStringLiteral("nowhere"));
        stage->lines.setProblemsOnly(true);
        QVERIFY(stage->log.running);
        stage->window()->close();
        QVERIFY(!stage->log.running); // nobody looks
        QVERIFY(stage->open(QStringLiteral("log/LogWindow.qml"),
                            {{QStringLiteral("model"), QVariant::fromValue(&stage->lines)}}));
        QVERIFY(stage->lines.search().isEmpty() && !stage->lines.problemsOnly());
        QCOMPARE(stage->lines.rowCount(), count);
    }

    void theSelectionStaysOnItsLines()
    {
        QTest::mouseClick(stage->window(), Qt::LeftButton, {}, inWindow(200, 60));
        const QString chosen = lineAt(60);
        showFrom(3);
        QTest::keyClick(stage->window(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), chosen);
        // A completely different list has no selection.
        stage->lines.setSearch(QStringLiteral("Bootstrapped"));
        stage->picture();
        QCOMPARE(lines->property("anchor").toInt(), -1);
    }

    void selectsEverythingByKeyboard()
    {
        lines->forceActiveFocus();
        QTest::keyClick(stage->window(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(stage->window(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text().count(u'\n'), count - 1);
    }

    void scrollsOnWhenASelectionIsDraggedOutOfIt()
    {
        scrollUp(20);
        const QString before = lineAt(4);
        QTest::mousePress(stage->window(), Qt::LeftButton, {}, inWindow(200, 60));
        QTest::mouseMove(stage->window(), inWindow(200, -20));
        QTRY_VERIFY(lineAt(4) != before);
        QTest::mouseRelease(stage->window(), Qt::LeftButton, {}, inWindow(200, -20));
        QVERIFY(!follows());
    }
};

QTEST_MAIN(LogWindowTest)
#include "LogWindowTest.moc"
