#include "GoldenText.h"
#include "WindowScenes.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QSignalSpy>

using namespace veldmark;

namespace {

QString textOf(const QQuickItem *item)
{
    return item->inherits("QQuickComboBox") ? item->property("name").toString()
                                            : item->property("text").toString();
}

// The controls that can be pressed, in their order in the window.
QList<QQuickItem *> controls(QQuickWindow *window)
{
    QList<QQuickItem *> found;
    visit(window->contentItem(), [&found](QQuickItem *item) {
        if ((item->inherits("QQuickAbstractButton") || item->inherits("QQuickComboBox"))
            && item->isEnabled())
            found << item;
    });
    // Controls behind a sheet can't be pressed.
    for (const char *name : {"applications", "bridges", "doctor"}) {
        const auto *sheet = window->findChild<QObject *>(QLatin1String(name));
        if (!sheet || !sheet->property("opened").toBool())
            continue;
        const auto *content = sheet->property("contentItem").value<QQuickItem *>();
        found.removeIf([content](const QQuickItem *item) { return !content->isAncestorOf(item); });
    }
    return found;
}

QString choicesOf(const Choices &c)
{
    return QStringLiteral(
               "strict %1, local %2, country %3, tor %4, bridges %5, lines %6, apps %7, auto %8, speed %9, terminal %10, separate %11, climb %12")
        .arg(c.strictMode)
        .arg(c.allowLocalNetwork)
        .arg(c.exitCountry, c.customTorPath, rawValue(c.bridgeChoice))
        .arg(c.customBridges.size())
        .arg(c.bypassApps.join(u' '))
        .arg(c.autoConnect)
        .arg(c.optimizeSpeed)
        .arg(c.terminalMode)
        .arg(c.separateApps)
        .arg(rawValue(c.climb));
}

// The state that a button may change, one line per part.
QStringList stateOf(Stage &stage)
{
    QQuickWindow *window = stage.window();
    QStringList state;
    for (const QString &part : choicesOf(stage.session.now().choices).split(QStringLiteral(", ")))
        state << part;
    state << QStringLiteral("error %1")
                 .arg(stage.session.now().errorMessage.value_or(QString()).english().left(20))
          << QStringLiteral("open at login %1").arg(stage.session.now().openAtLogin.value_or(false))
          << QStringLiteral("shown %1").arg(window->isVisible())
          << QStringLiteral("pane %1").arg(window->property("pane").toString())
          << QStringLiteral("followed %1").arg(stage.circuits.followed())
          << QStringLiteral("problems only %1").arg(stage.lines.problemsOnly())
          << QStringLiteral("log files %1").arg(stage.lines.revealProblem())
          << QStringLiteral("clipboard %1")
                 .arg(QGuiApplication::clipboard()->text().section(u'\n', 0, 0));
    if (const auto *lines = window->findChild<QQuickItem *>(QStringLiteral("lines")))
        state << QStringLiteral("follow %1").arg(lines->property("follow").toBool());
    if (const auto *editor = window->findChild<QQuickItem *>(QStringLiteral("bridgeEditor")))
        state << QStringLiteral("typed %1").arg(editor->property("text").toString().size());
    for (const char *name : {"applications", "bridges", "doctor"})
        if (const auto *sheet = window->findChild<QObject *>(QLatin1String(name)))
            state << QStringLiteral("sheet %1 %2")
                         .arg(QLatin1String(name))
                         .arg(sheet->property("visible").toBool());
    return state;
}

} // namespace

// Presses every button of every window once and compares the effects with the reviewed file.
class ButtonsTest : public QObject {
    Q_OBJECT

    QStringList opened; // web pages

public Q_SLOTS:
    void openPage(const QUrl &url) { opened << url.toString(); }

private:
    // Presses the control at an index of the list; returns the effect.
    QString press(Stage &stage, qsizetype place)
    {
        QQuickWindow *window = stage.window();
        QQuickItem *item = controls(window).at(place);
        std::vector<std::unique_ptr<QSignalSpy>> spies;
        const QMetaObject *own = window->metaObject();
        for (int i = QQuickWindow::staticMetaObject.methodCount(); i < own->methodCount(); ++i)
            if (own->method(i).methodType() == QMetaMethod::Signal
                && own->method(i).name().endsWith("anted"))
                spies.push_back(std::make_unique<QSignalSpy>(window, own->method(i)));
        spies.push_back(std::make_unique<QSignalSpy>(
            window, QMetaMethod::fromSignal(&QWindow::visibleChanged)));
        if (own->indexOfSignal("cancelled()") >= 0)
            spies.push_back(std::make_unique<QSignalSpy>(window, SIGNAL(cancelled())));
        const QStringList before = stateOf(stage);
        stage.session.asked.clear();
        opened.clear();
        if (item->inherits("QQuickComboBox")) {
            item->forceActiveFocus();
            const bool isLast = item->property("currentIndex").toInt()
                == item->property("count").toInt() - 1;
            QTest::keyClick(window, isLast ? Qt::Key_Up : Qt::Key_Down);
        } else {
            for (QQuickItem *above = item->parentItem(); above; above = above->parentItem())
                // its lower part may be scrolled out of view
                if (above->inherits("QQuickFlickable")) {
                    const double end = item->mapToItem(above, QPointF(0, item->height())).y()
                        - above->height();
                    if (end > 0)
                        above->setProperty("contentY",
                                           above->property("contentY").toDouble() + end);
                }
            const QPointF center = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
            QTest::mouseClick(window, Qt::LeftButton, {}, center.toPoint());
        }
        stage.picture();
        QStringList came;
        for (const QString &asked : stage.session.asked)
            came << QStringLiteral("asks ") + asked;
        for (const QString &page : opened)
            came << QStringLiteral("opens ") + page;
        for (const auto &spy : spies)
            for (const QList<QVariant> &call : *spy)
                if (!spy->signal().startsWith("visibleChanged"))
                    came << QStringLiteral("tells ")
                            + QString::fromLatin1(spy->signal()).section(u'(', 0, 0)
                            + (call.isEmpty() ? QString() : u' ' + call.first().toString());
        const QStringList after = stateOf(stage);
        for (qsizetype i = 0; i < before.size(); ++i)
            if (after.value(i) != before.at(i))
                came << after.value(i);
        return came.join(QStringLiteral("; "));
    }

private Q_SLOTS:
    void initTestCase()
    {
        settleAppearance();
        QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "openPage");
    }

    void cleanupTestCase() { QDesktopServices::unsetUrlHandler(QStringLiteral("https")); }

    void doWhatTheyDid_data()
    {
        QTest::addColumn<QString>("kind");
        QStringList kinds;
        for (const WindowScene &scene : everyScene())
            kinds << kindOf(scene.name);
        kinds.removeDuplicates();
        QVERIFY(kinds.size() >= 10);
        for (const QString &kind : kinds)
            QTest::newRow(qPrintable(kind)) << kind;
    }
    void doWhatTheyDid()
    {
        QFETCH(QString, kind);
        std::vector<WindowScene> scenes = everyScene();
        std::erase_if(scenes,
                      [&kind](const WindowScene &scene) { return kindOf(scene.name) != kind; });
        QString now;
        // a button that was pressed in an earlier state of the kind is not pressed again
        QSet<QString> pressed;
        for (const WindowScene &scene : scenes) {
            QString lines;
            QStringList texts;
            {
                Stage stage;
                QVERIFY(openTall(scene, stage));
                for (QQuickItem *item : controls(stage.window()))
                    texts << textOf(item);
            }
            for (qsizetype place = 0; place < texts.size(); ++place) {
                const QString text = texts.at(place);
                // equal words in another pane of the settings are another button
                const QString button = scene.name.section(u'/', 0, 0) + u' ' + text;
                if (pressed.contains(button))
                    continue;
                pressed << button;
                Stage stage;
                QGuiApplication::clipboard()->clear();
                QVERIFY(openTall(scene, stage));
                const QString came = press(stage, place);
                QVERIFY2(
                    !came.isEmpty() || isChosenAlready(text, scene.name),
                    qPrintable(scene.name + QStringLiteral(": nothing comes of \"%1\"").arg(text)));
                lines += QStringLiteral("  (%1) %2\n").arg(text, came);
            }
            if (!lines.isEmpty())
                now += u'[' + scene.name + QStringLiteral("]\n") + lines + u'\n';
        }
        expectGolden(QStringLiteral(GOLDEN_DIR "/buttons-%1.txt").arg(kind), now);
    }

private:
    static bool openTall(const WindowScene &scene, Stage &stage)
    {
        // so that the log's files can't be shown
        stage.profile.runDirectory = QStringLiteral("/nowhere");
        if (!scene.open(stage))
            return false;
        // nothing is scrolled out of view
        stage.window()->resize(std::max(stage.window()->width(), 400), 1700);
        stage.picture();
        return true;
    }
    static std::vector<WindowScene> everyScene()
    {
        std::vector<WindowScene> scenes;
        for (const Scenes::Scene &scene : Scenes::panel())
            scenes.push_back(
                {QStringLiteral("panel/") + scene.name, [session = scene.snapshot](Stage &stage) {
                     stage.session.show(session);
                     return stage.open(QStringLiteral("main/MainWindow.qml"),
                                       panelProperties(stage));
                 }});
        const auto openPopup = [](Stage &stage) {
            stage.session.show(Scenes::protectedSession());
            return stage.open(QStringLiteral("main/PanelPopup.qml"), panelProperties(stage));
        };
        scenes.push_back({QStringLiteral("popup"), openPopup});
        scenes.push_back({QStringLiteral("popup/applications"), [openPopup](Stage &stage) {
                              QQuickWindow *window = openPopup(stage);
                              openSheet(window, "applications");
                              return window;
                          }});
        for (const WindowScene &scene : windowScenes())
            scenes.push_back(scene);
        return scenes;
    }
    // The kind of a scene, "panel-stale", "circuits", "settings": one file for each.
    static QString kindOf(const QString &scene)
    {
        const QString window = scene.section(u'/', 0, 0).section(u' ', 0, 0);
        return window == QLatin1String("panel")
            ? QStringLiteral("panel-") + scene.section(u'/', 1).section(u'-', 0, 1)
            : window;
    }
    // The current tab or choice: pressing it changes nothing.
    static bool isChosenAlready(const QString &text, const QString &scene)
    {
        return scene.startsWith(QStringLiteral("settings ") + text.toLower())
            || text == QStringLiteral("Automatic");
    }
};

QTEST_MAIN(ButtonsTest)
#include "ButtonsTest.moc"
