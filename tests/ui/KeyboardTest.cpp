#include "Scenes.h"
#include "Stage.h"

#include <QDesktopServices>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QQuickItem>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cstdlib>
#include <functional>

using namespace veldmark;

// The windows by keyboard alone: the focus is visible, and each control has its effect.
class KeyboardTest : public QObject {
    Q_OBJECT

    static QVariantMap panel(Stage &stage)
    {
        return {{QStringLiteral("panelModel"), QVariant::fromValue(&stage.panel)},
                {QStringLiteral("optionsModel"), QVariant::fromValue(&stage.options)}};
    }
    template <typename Model> static QVariantMap with(Model *model)
    {
        return {{QStringLiteral("model"), QVariant::fromValue(model)}};
    }

    // The number of pixels in and closely around `place` that differ.
    static int difference(const QImage &a, const QImage &b, const QRectF &place)
    {
        const QRect look = place.adjusted(-8, -8, 8, 8).toAlignedRect().intersected(a.rect());
        int count = 0;
        for (int y = look.top(); y <= look.bottom(); ++y)
            for (int x = look.left(); x <= look.right(); ++x)
                count += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) > 24 ? 1 : 0;
        return count;
    }

    static QQuickItem *named(QQuickItem *item, const QString &text)
    {
        if (item->isVisible() && item->property("text").toString() == text
            && item->inherits("QQuickAbstractButton"))
            return item;
        for (QQuickItem *child : item->childItems())
            if (QQuickItem *found = named(child, text))
                return found;
        return nullptr;
    }

    static bool isShown(QQuickItem *item, const QString &text)
    {
        const QList<QQuickItem *> children = item->childItems();
        return item->isVisible()
            && (item->property("text").toString() == text
                || std::any_of(children.begin(), children.end(),
                               [&text](QQuickItem *child) { return isShown(child, text); }));
    }

    QStringList m_opened; // web pages

public Q_SLOTS:
    void openPage(const QUrl &url) { m_opened << url.toString(); }

private Q_SLOTS:
    void initTestCase()
    {
        QLocale::setDefault(QLocale(QLocale::English));
        QGuiApplication::setFont(QFont(QStringLiteral("Noto Sans")));
    }

    void theFocusCanBeSeen_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<bool>("dark");
        for (const char *file :
             {"main/MainWindow.qml", "main/QuitDialog.qml", "circuits/CircuitsWindow.qml",
              "log/LogWindow.qml", "settings/SettingsWindow.qml", "chooser/ChooserWindow.qml",
              "report/ReportWindow.qml"})
            for (const bool dark : {false, true})
                QTest::addRow("%s %s", file, dark ? "dark" : "light")
                    << QString::fromLatin1(file) << dark;
    }
    void theFocusCanBeSeen()
    {
        QFETCH(QString, file);
        QFETCH(bool, dark);
        Stage stage;
        stage.setDark(dark);
        Snapshot snapshot; // the panel without locks
        snapshot.torPath = QStringLiteral("/usr/bin/tor");
        if (file != QLatin1String("main/MainWindow.qml"))
            snapshot = Scenes::protectedSession();
        snapshot.report = Scenes::report();
        stage.session.show(snapshot);
        stage.log.show(LogFeed::State::lines, Scenes::log(20));
        QVariantMap properties = panel(stage);
        if (file.startsWith(QLatin1String("circuits")))
            properties = with(&stage.circuits);
        else if (file.startsWith(QLatin1String("log")))
            properties = with(&stage.lines);
        else if (file.startsWith(QLatin1String("settings")))
            properties = with(&stage.settings);
        else if (file.startsWith(QLatin1String("report")))
            properties = with(&stage.report);
        else if (file.startsWith(QLatin1String("chooser")))
            properties = with(&stage.choices);
        else if (file.endsWith(QLatin1String("QuitDialog.qml")))
            properties = {{QStringLiteral("strict"), true}, {QStringLiteral("busy"), false}};
        QQuickWindow *window = stage.open(file, properties);
        QVERIFY(window);
        window->resize(std::max(window->width(), 400), 900); // the window must not scroll between
                                                             // two pictures
        window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(window));

        int stops = 0;
        QQuickItem *first = nullptr;
        QTest::keyClick(window, Qt::Key_Tab);
        QImage before = stage.picture();
        for (int press = 0; press < 60; ++press) {
            QTest::keyClick(window, Qt::Key_Tab);
            QQuickItem *focused = window->activeFocusItem();
            const QImage now = stage.picture();
            QVERIFY(focused);
            if (focused == first)
                break;
            if (!first)
                first = focused;
            const QRectF place = focused->mapRectToScene(
                QRectF(0, 0, focused->width(), focused->height()));
            QVERIFY2(difference(before, now, place) >= 20,
                     qPrintable(QStringLiteral("%1 \"%2\"")
                                    .arg(QLatin1String(focused->metaObject()->className()),
                                         focused->property("text").toString())));
            before = now;
            ++stops;
        }
        QVERIFY2(stops >= 2, qPrintable(QString::number(stops))); // the focus moves
    }

    void theSameKeysCloseAndQuitInEveryWindow_data()
    {
        QTest::addColumn<QString>("file");
        for (const char *file :
             {"main/MainWindow.qml", "main/PanelPopup.qml", "main/QuitDialog.qml",
              "circuits/CircuitsWindow.qml", "log/LogWindow.qml", "settings/SettingsWindow.qml",
              "chooser/ChooserWindow.qml", "report/ReportWindow.qml"})
            QTest::newRow(file) << QString::fromLatin1(file);
    }
    void theSameKeysCloseAndQuitInEveryWindow()
    {
        QFETCH(QString, file);
        Stage stage;
        stage.session.show(Scenes::protectedSession());
        const bool isQuestion = file.endsWith(QLatin1String("QuitDialog.qml"));
        const auto open = [&] {
            QVariantMap properties = panel(stage);
            if (file.startsWith(QLatin1String("circuits")))
                properties = with(&stage.circuits);
            else if (file.startsWith(QLatin1String("log")))
                properties = with(&stage.lines);
            else if (file.startsWith(QLatin1String("settings")))
                properties = with(&stage.settings);
            else if (file.startsWith(QLatin1String("report")))
                properties = with(&stage.report);
            else if (file.startsWith(QLatin1String("chooser")))
                properties = with(&stage.choices);
            else if (isQuestion)
                properties = {{QStringLiteral("strict"), true}, {QStringLiteral("busy"), false}};
            QQuickWindow *window = stage.open(file, properties);
            window->requestActivate();
            return QTest::qWaitForWindowActive(window) ? window : nullptr;
        };
        for (const QKeySequence &keys :
             {QKeySequence(Qt::CTRL | Qt::Key_W), QKeySequence(Qt::Key_Escape)}) {
            QQuickWindow *window = open();
            QVERIFY(window);
            QSignalSpy closed(window,
                              isQuestion ? SIGNAL(cancelled()) : SIGNAL(visibleChanged(bool)));
            QTest::keySequence(window, keys);
            QVERIFY2(QTest::qWaitFor([&] { return closed.count() == 1; }),
                     qPrintable(keys.toString()));
        }
        if (isQuestion)
            return; // Ctrl+Q in another window opens this question
        QQuickWindow *window = open();
        QSignalSpy quit(window, SIGNAL(quitWanted()));
        QTest::keySequence(window, QKeySequence(Qt::CTRL | Qt::Key_Q));
        QCOMPARE(quit.count(), 1);
        QVERIFY(window->isVisible());
    }

    void escapeClosesWhatIsInTheWindowFirst()
    {
        Stage stage;
        Snapshot snapshot;
        snapshot.torPath = QStringLiteral("/usr/bin/tor");
        stage.session.show(snapshot);
        QQuickWindow *window = stage.open(QStringLiteral("main/MainWindow.qml"), panel(stage));
        window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(window));
        stage.picture();
        for (const char *name : {"applications", "bridges", "doctor"}) {
            auto *sheet = window->findChild<QObject *>(QLatin1String(name));
            QVERIFY(QMetaObject::invokeMethod(sheet, "open"));
            QVERIFY2(QTest::qWaitFor([&] { return sheet->property("opened").toBool(); }), name);
            QVERIFY2(!window->findChild<QQuickItem *>(QStringLiteral("panel"))
                          ->property("escapes")
                          .toBool(),
                     name);
            QTest::keyClick(window, Qt::Key_Escape);
            QVERIFY2(QTest::qWaitFor([&] { return !sheet->property("visible").toBool(); }), name);
            QVERIFY2(window->isVisible(), name);
        }

        QList<QQuickItem *> lists;
        const std::function<void(QQuickItem *)> look = [&](QQuickItem *item) {
            if (item->inherits("QQuickComboBox"))
                lists << item;
            for (QQuickItem *child : item->childItems())
                look(child);
        };
        look(window->contentItem());
        QCOMPARE(lists.size(), 2); // the exit's country and the bridges
        for (QQuickItem *list : lists) {
            auto *popup = list->property("popup").value<QObject *>();
            list->forceActiveFocus(Qt::TabFocusReason);
            QTest::keyClick(window, Qt::Key_Space);
            QVERIFY(QTest::qWaitFor([&] { return popup->property("opened").toBool(); }));
            QTest::keyClick(window, Qt::Key_Escape);
            QVERIFY(QTest::qWaitFor([&] { return !popup->property("visible").toBool(); }));
            QVERIFY(window->isVisible());
        }
        QTest::keyClick(window, Qt::Key_Escape);
        QVERIFY(QTest::qWaitFor([&] { return !window->isVisible(); }));

        stage.log.show(LogFeed::State::lines, Scenes::log(20));
        window = stage.open(QStringLiteral("log/LogWindow.qml"), with(&stage.lines));
        window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(window));
        QTest::keySequence(window, QKeySequence(Qt::CTRL | Qt::Key_F));
        QTest::keyClick(window, Qt::Key_T);
        QCOMPARE(stage.lines.search(), QStringLiteral("t"));
        QTest::keyClick(window, Qt::Key_Escape);
        QCOMPARE(stage.lines.search(), QString());
        QVERIFY(window->isVisible());
        QTest::keyClick(window, Qt::Key_Escape);
        QVERIFY(QTest::qWaitFor([&] { return !window->isVisible(); }));
    }

    void aChoiceThatIsNotMadeLeavesTheOneThatWas()
    {
        Stage stage;
        stage.session.show(Snapshot());
        QVariantMap tor = with(&stage.settings);
        tor.insert(QStringLiteral("pane"), 1);
        QQuickWindow *window = stage.open(QStringLiteral("settings/SettingsWindow.qml"), tor);
        stage.picture();
        QSignalSpy wanted(window, SIGNAL(torChooserWanted()));
        QQuickItem *automatic = named(window->contentItem(), QStringLiteral("Automatic"));
        QQuickItem *custom = named(window->contentItem(), QStringLiteral("Custom location"));
        const auto click = [window](const QQuickItem *item) {
            QTest::mouseClick(
                window, Qt::LeftButton, {},
                item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint());
        };
        click(custom); // and then Cancel
        QCOMPARE(wanted.count(), 1);
        QVERIFY(automatic->property("checked").toBool());
        QVERIFY(!custom->property("checked").toBool());
        stage.settings.chooseTor(QUrl::fromLocalFile(QStringLiteral("/opt/tor")));
        QVERIFY(!automatic->property("checked").toBool());
        QVERIFY(custom->property("checked").toBool());
        click(automatic);
        QVERIFY(automatic->property("checked").toBool());
        QVERIFY(!custom->property("checked").toBool());
    }

    void ownBridgesAreStoredBySaveAlone()
    {
        Stage stage;
        Snapshot snapshot;
        snapshot.torPath = QStringLiteral("/usr/bin/tor");
        snapshot.choices.bridgeChoice = BridgeChoice::custom;
        stage.session.show(snapshot);
        QQuickWindow *window = stage.open(QStringLiteral("main/MainWindow.qml"), panel(stage));
        window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(window));
        stage.picture();
        auto *sheet = window->findChild<QObject *>(QStringLiteral("bridges"));
        QVERIFY(sheet);
        const auto isOpen = [sheet] { return sheet->property("opened").toBool(); };
        const auto type = [&](const QString &line) {
            QVERIFY(QMetaObject::invokeMethod(sheet, "open"));
            QVERIFY(QTest::qWaitFor(isOpen));
            auto *editor = window->activeFocusItem();
            QVERIFY(editor && editor->inherits("QQuickTextArea"));
            editor->setProperty("text", line);
        };
        const auto leave = [&](const QString &button) {
            auto *content = sheet->property("contentItem").value<QQuickItem *>();
            QVERIFY(content);
            QQuickItem *item = named(content->parentItem(), button);
            QVERIFY2(item, qPrintable(button));
            QVERIFY(QMetaObject::invokeMethod(item, "clicked"));
            QVERIFY(QTest::qWaitFor([&] { return !sheet->property("visible").toBool(); }));
        };
        const auto stored = [&stage] { return stage.session.now().choices.customBridges; };
        type(QStringLiteral("192.0.2.1:443"));
        leave(QStringLiteral("Save"));
        QCOMPARE(stored(), QStringLiteral("192.0.2.1:443"));
        type(QStringLiteral("192.0.2.2:443"));
        leave(QStringLiteral("Cancel"));
        QCOMPARE(stored(), QStringLiteral("192.0.2.1:443"));
        type(QStringLiteral("192.0.2.3:443"));
        QTest::keyClick(window, Qt::Key_Escape);
        QVERIFY(QTest::qWaitFor([&] { return !sheet->property("visible").toBool(); }));
        QCOMPARE(stored(), QStringLiteral("192.0.2.1:443"));
        QVERIFY(QMetaObject::invokeMethod(sheet, "open"));
        QVERIFY(QTest::qWaitFor(isOpen));
        QCOMPARE(window->activeFocusItem()->property("text").toString(),
                 QStringLiteral("192.0.2.1:443"));
    }

    void aPastedOrDroppedTextGivesItsBridges()
    {
        Stage stage;
        QQuickWindow *window = stage.open(QStringLiteral("main/MainWindow.qml"), panel(stage));
        window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(window));
        stage.picture();
        auto *sheet = window->findChild<QObject *>(QStringLiteral("bridges"));
        QVERIFY(sheet && QMetaObject::invokeMethod(sheet, "open"));
        QVERIFY(QTest::qWaitFor([sheet] { return sheet->property("opened").toBool(); }));
        QQuickItem *editor = window->activeFocusItem();
        QVERIFY(editor && editor->inherits("QQuickTextArea"));
        auto *content = sheet->property("contentItem").value<QQuickItem *>();
        QVERIFY(content);
        const auto button = [content] {
            return named(content, QStringLiteral("Keep Only the Bridges"));
        };
        const auto typed = [editor] { return editor->property("text").toString(); };
        editor->setProperty("text", QStringLiteral("192.0.2.1:443"));
        QVERIFY(!button());
        const QString bridge = QStringLiteral("obfs4 192.0.2.1:443 cert=abc iat-mode=0");
        editor->setProperty("text", QStringLiteral("Hello,\n> Bridge %1\n> Bye").arg(bridge));
        QVERIFY(button());
        QVERIFY(QMetaObject::invokeMethod(button(), "clicked"));
        QCOMPARE(typed(), bridge);
        QVERIFY(!button());
        QCOMPARE(window->activeFocusItem(), editor);

        QTemporaryDir folder;
        const auto drop = [window, editor](const QMimeData &data) {
            const QPointF place = editor->mapToScene(QPointF(5, 5));
            QDragEnterEvent enter(place.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, {});
            QCoreApplication::sendEvent(window, &enter);
            QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, {});
            QCoreApplication::sendEvent(window, &event);
        };
        const auto dropped = [&](const QByteArray &bytes) {
            QFile file(folder.filePath(QStringLiteral("mail.eml")));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(bytes);
            file.close();
            QMimeData data;
            data.setUrls({QUrl::fromLocalFile(file.fileName())});
            drop(data);
        };
        dropped("Your bridge:\r\n192.0.2.7:9001\r\nBye\r\n");
        QCOMPARE(typed(), bridge + QStringLiteral("\n192.0.2.7:9001"));
        const QString none = QStringLiteral("There is no bridge in this file.");
        QVERIFY(!isShown(content, none));
        dropped("Nothing here\n");
        QCOMPARE(typed(), bridge + QStringLiteral("\n192.0.2.7:9001"));
        QTRY_VERIFY(isShown(content, none));
        QMimeData words;
        words.setText(QStringLiteral("pasted"));
        drop(words);
        QCOMPARE(typed(), bridge + QStringLiteral("\n192.0.2.7:9001\npasted"));
        QVERIFY(!isShown(content, none));
    }

    void theApplicationsSheetOpensWithoutAnEarlierError()
    {
        Stage stage;
        Snapshot snapshot;
        snapshot.torPath = QStringLiteral("/usr/bin/tor");
        stage.session.show(snapshot);
        QQuickWindow *window = stage.open(QStringLiteral("main/MainWindow.qml"), panel(stage));
        auto *sheet = window->findChild<QObject *>(QStringLiteral("applications"));
        QVERIFY(sheet);
        Q_EMIT stage.session.launchFailed(QStringLiteral("It could not be opened."));
        QCOMPARE(stage.options.launchError(), QStringLiteral("It could not be opened."));
        QVERIFY(QMetaObject::invokeMethod(sheet, "open"));
        QTRY_COMPARE(stage.options.launchError(), QString());
    }

    void theRecoveryPaneLooksAgainWhenItOpens()
    {
        Stage stage;
        stage.session.show(Snapshot());
        QQuickWindow *window = stage.open(QStringLiteral("settings/SettingsWindow.qml"),
                                          with(&stage.settings));
        QCOMPARE(stage.session.asked, QStringList());
        for (const int pane : {4, 3}) {
            window->setProperty("pane", pane);
            QCOMPARE(stage.session.asked, QStringList(QStringLiteral("lookAgain")));
            stage.session.asked.clear();
        }
    }

    void anApplicationIsChosenByKeyboard()
    {
        Stage stage;
        stage.session.show(Snapshot());
        QQuickWindow *window = stage.open(QStringLiteral("chooser/ChooserWindow.qml"),
                                          with(&stage.choices));
        QVERIFY(window);
        window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(window));
        stage.picture();
        // the search has the focus from the start
        for (const Qt::Key key : {Qt::Key_L, Qt::Key_E, Qt::Key_T})
            QTest::keyClick(window, key);
        stage.picture();
        QCOMPARE(stage.choices.search().toLower(), QStringLiteral("let"));
        QCOMPARE(stage.choices.rowCount(), 1);
        QTest::keyClick(window, Qt::Key_Down);
        QTest::keyClick(window, Qt::Key_Space);
        QCOMPARE(stage.session.now().choices.bypassApps,
                 QStringList(QStringLiteral("/usr/share/applications/letters.desktop")));
        QTest::keyClick(window, Qt::Key_Return);
        QVERIFY(stage.session.now().choices.bypassApps.isEmpty());
        QTest::keyClick(window, Qt::Key_Escape);
        QVERIFY(QTest::qWaitFor([&] { return !window->isVisible(); }));
    }

    void aboutLinksToAHomePageOnlyWhereThereIsOne()
    {
        Stage stage;
        stage.session.show(Snapshot());
        QVariantMap about = with(&stage.settings);
        about.insert(QStringLiteral("pane"), 5);
        const auto link = [&] {
            QQuickWindow *window = stage.open(QStringLiteral("settings/SettingsWindow.qml"), about);
            stage.picture();
            return named(window->contentItem(), QStringLiteral("Veldmark"));
        };
        QVERIFY(stage.profile.homePage.isEmpty()); // so far
        QVERIFY(!link());
        stage.profile.homePage = QStringLiteral("https://veldmark.example/");
        QQuickItem *shown = link();
        QVERIFY(shown);
        QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "openPage");
        shown->forceActiveFocus(Qt::TabFocusReason);
        QTest::keyClick(stage.window(), Qt::Key_Space);
        QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
        QCOMPARE(m_opened, QStringList(stage.profile.homePage));
    }

    void theLookUpsOfAnEndedSessionAreNotShown()
    {
        Stage stage;
        Snapshot snapshot = Scenes::protectedSession();
        snapshot.dns = DNSStatus::leak({QStringLiteral("192.168.1.1 on eth0")});
        stage.session.show(snapshot);
        QQuickWindow *window = stage.open(QStringLiteral("main/MainWindow.qml"), panel(stage));
        QVERIFY(window);
        stage.picture();
        QVERIFY(named(window->contentItem(), QStringLiteral("Fix DNS")));
        QVERIFY(named(window->contentItem(), QStringLiteral("Leak Test")));
        snapshot.phase = ConnectionPhase::stale;
        stage.session.show(snapshot);
        stage.picture();
        QVERIFY(!named(window->contentItem(), QStringLiteral("Fix DNS")));
        QVERIFY(!named(window->contentItem(), QStringLiteral("Leak Test")));
        QVERIFY(named(window->contentItem(), QStringLiteral("Restore Network")));
    }
};

QTEST_MAIN(KeyboardTest)
#include "KeyboardTest.moc"
