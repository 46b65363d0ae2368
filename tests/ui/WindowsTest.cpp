#include "StagedWindows.h"

#include <QQmlComponent>
#include <QSet>
#include <QSignalSpy>
#include <QTest>

#include <cmath>

using namespace veldmark;

namespace {

double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const double bright = std::max(luminance(a), luminance(b));
    const double dim = std::min(luminance(a), luminance(b));
    return (bright + 0.05) / (dim + 0.05);
}

} // namespace

class WindowsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { settleAppearance(); }

    void coloursCanBeToldApart_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::newRow("light") << false;
        QTest::newRow("dark") << true;
    }
    void coloursCanBeToldApart()
    {
        QFETCH(bool, dark);
        Stage stage;
        stage.setDark(dark);
        QQmlComponent component(&stage.engine);
        component.setData(
            "import QtQml\nimport Veldmark\nQtObject { property QtObject theme: Theme }", QUrl());
        const std::unique_ptr<QObject> holder(component.create());
        QVERIFY2(holder, qPrintable(component.errorString()));
        auto *theme = holder->property("theme").value<QObject *>();
        QVERIFY(theme);
        const auto expect = [theme](const char *fore, const char *back, double least) {
            const QColor a = theme->property(fore).value<QColor>();
            const QColor b = theme->property(back).value<QColor>();
            QVERIFY2(a.isValid() && b.isValid(), fore);
            const QByteArray what = QByteArray(fore) + " on " + back + ": "
                + QByteArray::number(contrast(a, b));
            QVERIFY2(contrast(a, b) >= least, what.constData());
        };
        for (const char *ground : {"ground", "surface", "raised", "accentGround", "goodGround",
                                   "infoGround", "warningGround", "dangerGround"})
            for (const char *text : {"text", "quiet"})
                expect(text, ground, 4.5);
        for (const char *tone : {"accent", "good", "info", "warning", "danger"}) {
            expect(tone, "ground", 4.5);
            expect(tone, "surface", 4.5);
            expect(tone, (QByteArray(tone) + "Ground").constData(), 4.5);
            expect("onTone", tone, 4.5);
        }
        expect("accent", "raised", 3.0);
        expect("edge", "surface", 3.0);
        expect("edge", "raised", 3.0);
        expect("edge", "ground", 3.0);
    }

    void everyControlHasANameAndARole()
    {
        Stage stage;
        prepare(stage);
        int controls = 0;
        for (const Shown &shown : windows(stage)) {
            QVERIFY(stage.open(QLatin1String(shown.file), shown.properties));
            stage.picture();
            visit(stage.window()->contentItem(), [&](QQuickItem *item) {
                if (!item->inherits("QQuickAbstractButton") && !item->inherits("QQuickComboBox")
                    && !item->inherits("QQuickTextField"))
                    return;
                QAccessibleInterface *face = QAccessible::queryAccessibleInterface(item);
                const QByteArray what = QByteArray(shown.file) + " "
                    + item->metaObject()->className();
                QVERIFY2(face, what.constData());
                QVERIFY2(!face->text(QAccessible::Name).isEmpty(), what.constData());
                QVERIFY2(face->role() != QAccessible::NoRole && face->role() != QAccessible::Client,
                         what.constData());
                if (item->isEnabled())
                    QVERIFY2(item->property("activeFocusOnTab").toBool()
                                 || item->property("focusPolicy").toInt() & Qt::TabFocus,
                             what.constData());
                ++controls;
            });
        }
        QVERIFY(controls > 40); // the walk reaches them
    }

    void theKeyboardReachesEveryControl()
    {
        Stage stage;
        prepare(stage);
        for (const Shown &shown : windows(stage)) {
            QQuickWindow *window = stage.open(QLatin1String(shown.file), shown.properties);
            stage.picture();
            window->requestActivate();
            QVERIFY(QTest::qWaitForWindowActive(window));
            QSet<QQuickItem *> wanted;
            visit(window->contentItem(), [&](QQuickItem *item) {
                if ((item->inherits("QQuickAbstractButton") || item->inherits("QQuickComboBox")
                     || item->inherits("QQuickTextField"))
                    && item->isEnabled())
                    wanted << item;
            });
            for (qsizetype presses = wanted.size() * 3 + 10; presses > 0 && !wanted.isEmpty();
                 --presses) {
                QTest::keyClick(window, Qt::Key_Tab);
                wanted.remove(window->activeFocusItem());
            }
            for (QQuickItem *item : wanted)
                QVERIFY2(wanted.isEmpty(),
                         qPrintable(QStringLiteral("%1: %2 \"%3\"")
                                        .arg(QLatin1String(shown.file),
                                             QLatin1String(item->metaObject()->className()),
                                             item->property("text").toString())));
        }
    }

    void theKeyboardPressesThePowerButton()
    {
        Stage stage;
        stage.session.show(Scenes::panel().front().snapshot);
        QQuickWindow *window = stage.open(QStringLiteral("main/MainWindow.qml"),
                                          windows(stage).front().properties);
        window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(window));
        stage.picture();
        QTest::keyClick(window, Qt::Key_Space); // it has the focus from the start
        QCOMPARE(stage.session.asked, QStringList{QStringLiteral("connect")});
    }

    void aClickOnASwitchStoresAndFollowsTheSession()
    {
        Stage stage;
        stage.session.show(Scenes::panel().front().snapshot);
        QQuickWindow *window = stage.open(QStringLiteral("main/MainWindow.qml"),
                                          windows(stage).front().properties);
        stage.picture();
        QQuickItem *strict = nullptr;
        visit(window->contentItem(), [&](QQuickItem *item) {
            if (item->inherits("QQuickSwitch")
                && item->property("text") == QStringLiteral("Strict mode"))
                strict = item;
        });
        QVERIFY(strict);
        const auto click = [&] {
            const QPointF center = strict->mapToScene(
                QPointF(strict->width() / 2, strict->height() / 2));
            QTest::mouseClick(window, Qt::LeftButton, {}, center.toPoint());
        };
        click();
        QVERIFY(!stage.session.now().choices.strictMode);
        QVERIFY(!strict->property("checked").toBool());
        click();
        QVERIFY(stage.session.now().choices.strictMode);
        QVERIFY(strict->property("checked").toBool());
        Snapshot locked = Scenes::protectedSession();
        stage.session.show(locked);
        stage.picture();
        click();
        QVERIFY(stage.session.now().choices.strictMode);
    }

    void theButtonBesideAnErrorLooksAtTheComputer()
    {
        Stage stage;
        Snapshot failed = Scenes::panel().front().snapshot;
        failed.errorMessage = QStringLiteral("Tor closed the control connection.");
        failed.findings = Scenes::findings();
        stage.session.show(failed);
        QQuickWindow *window = stage.open(QStringLiteral("main/MainWindow.qml"),
                                          windows(stage).front().properties);
        stage.picture();
        const auto shown = [&](const QString &text) {
            QQuickItem *found = nullptr;
            for (QQuickItem *root : {window->contentItem(), window->contentItem()->parentItem()})
                if (root)
                    visit(root, [&](QQuickItem *item) {
                        found = item->property("text").toString() == text ? item : found;
                    });
            return found;
        };
        QVERIFY(!shown(QStringLiteral("Look Again")));
        QQuickItem *cause = shown(QStringLiteral("Find the Cause"));
        QVERIFY(cause);
        QTest::mouseClick(
            window, Qt::LeftButton, {},
            cause->mapToScene(QPointF(cause->width() / 4, cause->height() / 2)).toPoint());
        stage.picture();
        QCOMPARE(stage.session.asked, QStringList{QStringLiteral("examine")});
        QVERIFY(shown(QStringLiteral("Look Again")));
        QVERIFY(shown(QStringLiteral("sudo apt install nftables")));
    }

    void escapeInTheQuitDialogHarmsNothing()
    {
        Stage stage;
        QQuickWindow *window = stage.open(
            QStringLiteral("main/QuitDialog.qml"),
            {{QStringLiteral("strict"), true}, {QStringLiteral("busy"), false}});
        QSignalSpy cancelled(window, SIGNAL(cancelled()));
        QSignalSpy quit(window, SIGNAL(quitWanted()));
        QSignalSpy disconnect(window, SIGNAL(disconnectWanted()));
        window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(window));
        QTest::keyClick(window, Qt::Key_Escape);
        QCOMPARE(cancelled.count(), 1);
        QCOMPARE(quit.count() + disconnect.count(), 0);
        QTest::keyClick(window, Qt::Key_Return);
        QCOMPARE(disconnect.count(), 1); // the default
        window->close();                 // as the desktop does
        QCOMPARE(cancelled.count(), 2);
    }

    void theRingTurnsWhileItIsNotKnownHowLongItTakes()
    {
        Stage stage;
        Snapshot s = Scenes::protectedSession();
        s.phase = ConnectionPhase::disconnecting;
        s.bootstrapProgress = 1;
        stage.session.show(s);
        const Shown main = windows(stage).front();
        QQuickWindow *window = stage.open(QLatin1String(main.file), main.properties);
        QVERIFY(window);
        stage.picture();
        QQuickItem *ring = nullptr;
        visit(window->contentItem(), [&ring](QQuickItem *item) {
            if (item->property("turn").isValid())
                ring = item;
        });
        QVERIFY(ring);
        QVERIFY(ring->isVisible());
        const double value = ring->property("value").toDouble();
        QVERIFY2(value > 0 && value < 1, qPrintable(QString::number(value)));
        s = Scenes::protectedSession();
        stage.session.show(s);
        QTRY_COMPARE(ring->property("value").toDouble(), 1.0); // closed around the shield
    }
};

QTEST_MAIN(WindowsTest)
#include "WindowsTest.moc"
