#include "Scenes.h"
#include "Stage.h"

#include <QAccessible>
#include <QDir>
#include <QQmlComponent>
#include <QQuickItem>
#include <QRegularExpression>
#include <QSet>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

#include <cmath>
#include <functional>

using namespace veldmark;

namespace {

// Every text 40 per cent longer, as other languages make them.
class LongWords final : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        static const QString filler = QStringLiteral(" wordy enough for any language one can think of");
        const QString text = QString::fromUtf8(source);
        return text + filler.left(std::max<qsizetype>(2, text.size() * 2 / 5));
    }
};

double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const double bright = std::max(luminance(a), luminance(b));
    const double dim = std::min(luminance(a), luminance(b));
    return (bright + 0.05) / (dim + 0.05);
}

void visit(QQuickItem *item, const std::function<void(QQuickItem *)> &look)
{
    if (!item->isVisible() || item->opacity() <= 0)
        return;
    look(item);
    for (QQuickItem *child : item->childItems())
        visit(child, look);
}

// A line about a text or a control, or nothing: texts inside controls are the controls' own.
QString described(QQuickItem *item)
{
    const auto isControl = [](const QQuickItem *one) {
        return one->inherits("QQuickAbstractButton") || one->inherits("QQuickComboBox");
    };
    for (const QQuickItem *above = item->parentItem(); above; above = above->parentItem())
        if (isControl(above))
            return {};
    QString text = item->property("text").toString();
    if (!isControl(item)) {
        const bool isText = item->inherits("QQuickText") || item->inherits("QQuickTextEdit");
        return isText && !text.isEmpty() ? QStringLiteral("  ") + text.replace(u'\n', u'/') + u'\n' : QString();
    }
    if (item->inherits("QQuickComboBox"))
        text = item->property("name").toString() + QStringLiteral(": ") + item->property("displayText").toString();
    if (item->property("checkable").toBool() || item->inherits("QQuickSwitch"))
        text += item->property("checked").toBool() ? QStringLiteral(": on") : QStringLiteral(": off");
    return QStringLiteral("  (%1)%2\n").arg(text, item->isEnabled() ? QString() : QStringLiteral(" disabled"));
}

bool isClipped(QQuickItem *item)
{
    for (QQuickItem *at = item; at; at = at->parentItem())
        if (at->clip())
            return true;
    return false;
}

} // namespace

class WindowsTest : public QObject {
    Q_OBJECT

    struct Shown {
        const char *name;
        const char *file;
        QVariantMap properties;
    };

    std::vector<Shown> windows(Stage &stage) const
    {
        const auto model = [](auto *m) { return QVariantMap{{QStringLiteral("model"), QVariant::fromValue(m)}}; };
        const QVariantMap panel{{QStringLiteral("panelModel"), QVariant::fromValue(&stage.panel)},
                                {QStringLiteral("optionsModel"), QVariant::fromValue(&stage.options)}};
        std::vector<Shown> list{{"main", "main/MainWindow.qml", panel},
                                {"panel", "main/PanelPopup.qml", panel},
                                {"circuits", "circuits/CircuitsWindow.qml", model(&stage.circuits)},
                                {"log", "log/LogWindow.qml", model(&stage.lines)},
                                {"quit", "main/QuitDialog.qml",
                                 {{QStringLiteral("strict"), true}, {QStringLiteral("busy"), false}}}};
        for (int pane = 0; pane < 6; ++pane) {
            QVariantMap settings = model(&stage.settings);
            settings.insert(QStringLiteral("pane"), pane);
            list.push_back({"settings", "settings/SettingsWindow.qml", settings});
        }
        return list;
    }

    void prepare(Stage &stage) const
    {
        Snapshot snapshot = Scenes::protectedSession();
        snapshot.lookups = {Lookups::Kind::leak, {QStringLiteral("192.168.1.1 on eth0")}};
        snapshot.errorMessage = QStringLiteral("Tor closed the control connection.");
        stage.session.show(snapshot);
        stage.log.show(LogFeed::State::lines, Scenes::log(20));
    }

    // Nothing is cut off, and nothing sticks out of its window.
    void expectWhole(Stage &stage, const QString &where)
    {
        const double width = stage.window()->width();
        visit(stage.window()->contentItem(), [&](QQuickItem *item) {
            const QString text = item->property("text").toString();
            if (!item->inherits("QQuickText") || text.isEmpty())
                return;
            const bool elides = item->property("elide").toInt() != Qt::ElideNone;
            const QRectF place = item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
            const QString what = where + QStringLiteral(": ") + text;
            if (!elides) {
                QVERIFY2(!item->property("truncated").toBool(), qPrintable(what));
                QVERIFY2(item->property("contentWidth").toDouble() <= item->width() + 1, qPrintable(what));
            }
            QVERIFY2(place.left() >= -1 && place.right() <= width + 1, qPrintable(what));
            if (!isClipped(item))
                QVERIFY2(place.bottom() <= stage.window()->height() + 1, qPrintable(what));
        });
    }

private Q_SLOTS:
    void initTestCase()
    {
        QLocale::setDefault(QLocale(QLocale::English));
        QGuiApplication::setFont(QFont(QStringLiteral("Noto Sans")));
        QAccessible::setActive(true);
    }

    void everyWindowLoadsWithoutWarnings()
    {
        Stage stage;
        prepare(stage);
        for (const bool dark : {false, true}) {
            stage.setDark(dark);
            for (const Shown &shown : windows(stage)) {
                QVERIFY2(stage.open(QLatin1String(shown.file), shown.properties), shown.file);
                QVERIFY(!stage.picture().isNull());
            }
        }
        QCOMPARE(stage.warnings(), QStringList());
    }

    void everySceneFitsThePanel_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<bool>("longWords");
        for (const int width : {360, 400, 420}) {
            QTest::addRow("%d wide", width) << width << false;
            QTest::addRow("%d wide, long words", width) << width << true;
        }
    }
    void everySceneFitsThePanel()
    {
        QFETCH(int, width);
        QFETCH(bool, longWords);
        LongWords translator;
        if (longWords)
            QCoreApplication::installTranslator(&translator);
        Stage stage;
        for (const Scenes::Scene &scene : Scenes::panel()) {
            stage.session.show(scene.snapshot);
            QVERIFY(stage.open(QStringLiteral("main/MainWindow.qml"), windows(stage).front().properties));
            stage.window()->resize(width, 768);
            stage.picture();
            expectWhole(stage, scene.name);
        }
    }

    void everyWindowHoldsLongWordsAtItsSmallest()
    {
        LongWords translator;
        QCoreApplication::installTranslator(&translator);
        Stage stage;
        prepare(stage);
        for (const Shown &shown : windows(stage)) {
            QVERIFY(stage.open(QLatin1String(shown.file), shown.properties));
            stage.window()->resize(std::max(360, stage.window()->minimumWidth()),
                                   std::max(420, stage.window()->minimumHeight()));
            stage.picture();
            expectWhole(stage, QLatin1String(shown.file));
        }
    }

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
        component.setData("import QtQml\nimport Veldmark\nQtObject { property QtObject theme: Theme }", QUrl());
        const std::unique_ptr<QObject> holder(component.create());
        QVERIFY2(holder, qPrintable(component.errorString()));
        auto *theme = holder->property("theme").value<QObject *>();
        QVERIFY(theme);
        const auto expect = [theme](const char *fore, const char *back, double least) {
            const QColor a = theme->property(fore).value<QColor>();
            const QColor b = theme->property(back).value<QColor>();
            QVERIFY2(a.isValid() && b.isValid(), fore);
            const QByteArray what = QByteArray(fore) + " on " + back + ": " + QByteArray::number(contrast(a, b));
            QVERIFY2(contrast(a, b) >= least, what.constData());
        };
        for (const char *ground : {"ground", "surface", "raised", "accentGround", "goodGround", "infoGround",
                                   "warningGround", "dangerGround"})
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
                const QByteArray what = QByteArray(shown.file) + " " + item->metaObject()->className();
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
        QVERIFY(controls > 40); // the walk does reach them
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
                     || item->inherits("QQuickTextField")) && item->isEnabled())
                    wanted << item;
            });
            for (qsizetype presses = wanted.size() * 3 + 10; presses > 0 && !wanted.isEmpty(); --presses) {
                QTest::keyClick(window, Qt::Key_Tab);
                wanted.remove(window->activeFocusItem());
            }
            for (QQuickItem *item : wanted)
                QVERIFY2(wanted.isEmpty(), qPrintable(QStringLiteral("%1: %2 \"%3\"").arg(
                    QLatin1String(shown.file), QLatin1String(item->metaObject()->className()),
                    item->property("text").toString())));
        }
    }

    void theKeyboardPressesThePowerButton()
    {
        Stage stage;
        stage.session.show(Scenes::panel().front().snapshot);
        QQuickWindow *window = stage.open(QStringLiteral("main/MainWindow.qml"), windows(stage).front().properties);
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
        QQuickWindow *window = stage.open(QStringLiteral("main/MainWindow.qml"), windows(stage).front().properties);
        stage.picture();
        QQuickItem *strict = nullptr;
        visit(window->contentItem(), [&](QQuickItem *item) {
            if (item->inherits("QQuickSwitch") && item->property("text") == QStringLiteral("Strict mode"))
                strict = item;
        });
        QVERIFY(strict);
        const auto click = [&] {
            const QPointF center = strict->mapToScene(QPointF(strict->width() / 2, strict->height() / 2));
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

    void escapeInTheQuitDialogHarmsNothing()
    {
        Stage stage;
        QQuickWindow *window = stage.open(QStringLiteral("main/QuitDialog.qml"),
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
    }

    // Every text of every scene, and what can be pressed, as a file that can be read and compared.
    void saysAndOffersWhatItDid()
    {
        Stage stage;
        QString now;
        for (const Scenes::Scene &scene : Scenes::panel()) {
            stage.panel.traffic()->clear();
            stage.session.show(scene.snapshot);
            QVERIFY(stage.open(QStringLiteral("main/MainWindow.qml"), windows(stage).front().properties));
            stage.picture();
            now += u'[' + scene.name + QStringLiteral("]\n");
            visit(stage.window()->contentItem(), [&](QQuickItem *item) { now += described(item); });
            now += u'\n';
        }
        QFile file(QStringLiteral(GOLDEN_DIR "/panel.txt"));
        if (qEnvironmentVariableIsSet("VELDMARK_WRITE_GOLDEN")) {
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(now.toUtf8());
            return;
        }
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QStringList before = QString::fromUtf8(file.readAll()).split(u'\n');
        const QStringList lines = now.split(u'\n');
        QString scene;
        for (qsizetype i = 0; i < std::max(before.size(), lines.size()); ++i) {
            if (lines.value(i).startsWith(u'['))
                scene = lines[i];
            QVERIFY2(before.value(i) == lines.value(i),
                     qPrintable(scene + QStringLiteral(": was \"%1\", is \"%2\"").arg(before.value(i), lines.value(i))));
        }
    }

    void looksAsItDid_data()
    {
        QTest::addColumn<QString>("scene");
        QTest::addColumn<bool>("dark");
        for (const Scenes::Scene &scene : Scenes::panel())
            for (const bool dark : {false, true})
                QTest::addRow("%s-%s", qPrintable(scene.name), dark ? "dark" : "light") << scene.name << dark;
    }
    void looksAsItDid()
    {
        QFETCH(QString, scene);
        QFETCH(bool, dark);
        Stage stage;
        stage.setDark(dark);
        for (const Scenes::Scene &one : Scenes::panel())
            if (one.name == scene)
                stage.session.show(one.snapshot);
        stage.panel.traffic()->clear();
        QVERIFY(stage.open(QStringLiteral("main/MainWindow.qml"), windows(stage).front().properties));
        stage.window()->resize(380, 700);
        const QImage now = stage.picture().convertToFormat(QImage::Format_RGB32)
                               .scaled(190, 350, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        const QString file = QStringLiteral(GOLDEN_DIR "/%1-%2.png").arg(scene, dark ? QStringLiteral("dark") : QStringLiteral("light"));
        if (qEnvironmentVariableIsSet("VELDMARK_WRITE_GOLDEN")) {
            QDir().mkpath(QStringLiteral(GOLDEN_DIR));
            QVERIFY(now.convertToFormat(QImage::Format_RGB888).save(file));
            return;
        }
        const QImage before = QImage(file).convertToFormat(QImage::Format_RGB32);
        QVERIFY2(!before.isNull(), qPrintable(file));
        QCOMPARE(now.size(), before.size());
        // Half-size pictures forgive another font rasteriser; a moved or recoloured part they don't.
        constexpr int sameColor = 40;
        int different = 0;
        for (int y = 0; y < now.height(); ++y) {
            for (int x = 0; x < now.width(); ++x) {
                const QRgb a = now.pixel(x, y), b = before.pixel(x, y);
                if (std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b)) > sameColor)
                    ++different;
            }
        }
        const double share = 100.0 * different / (now.width() * now.height());
        if (share > 2.0)
            now.save(QDir::temp().filePath(QStringLiteral("veldmark-now-%1.png").arg(scene)));
        QVERIFY2(share <= 2.0, qPrintable(QStringLiteral("%1 % of the picture differs").arg(share)));
    }
};

QTEST_MAIN(WindowsTest)
#include "WindowsTest.moc"
