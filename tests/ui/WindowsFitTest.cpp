#include "StagedWindows.h"

#include <QDir>
#include <QTest>
#include <QTranslator>

#include <algorithm>
#include <cmath>
#include <optional>
#include <tuple>

using namespace veldmark;

namespace {

// Makes every text 40 per cent longer, as in other languages.
class LongWords final : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        static const QString filler = QStringLiteral(
            " wordy enough for any language one can think of");
        const QString text = QString::fromUtf8(source);
        return text + filler.left(std::max<qsizetype>(2, text.size() * 2 / 5));
    }
};

bool isClipped(QQuickItem *item)
{
    for (QQuickItem *at = item; at; at = at->parentItem())
        if (at->clip())
            return true;
    return false;
}

// Text that is read from the left in every language.
bool isReadFromTheLeft(QQuickItem *item)
{
    for (QQuickItem *at = item; at; at = at->parentItem())
        for (const char *name : {"LogLines_", "CopyField_", "CircuitGraphView"})
            if (QByteArray(at->metaObject()->className()).contains(name))
                return true;
    return false;
}

struct Placed {
    QString text;
    QRectF place;
};

// The places of all texts, in the window's coordinates.
QList<Placed> texts(QQuickWindow *window)
{
    QList<Placed> found;
    visit(window->contentItem(), [&found](QQuickItem *item) {
        // invisible marks
        const QString text
            = item->property("text").toString().remove(QChar(0x2066)).remove(QChar(0x2069));
        if (item->inherits("QQuickText") && !text.isEmpty() && !isReadFromTheLeft(item))
            found.append({text, item->mapRectToScene(QRectF(0, 0, item->width(), item->height()))});
    });
    std::sort(found.begin(), found.end(), [](const Placed &a, const Placed &b) {
        return std::tuple(a.text, a.place.top(), a.place.height())
            < std::tuple(b.text, b.place.top(), b.place.height());
    });
    return found;
}

// During its lifetime windows are laid out for a right-to-left language.
class FromTheRight {
public:
    FromTheRight() { QGuiApplication::setLayoutDirection(Qt::RightToLeft); }
    ~FromTheRight() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }
    FromTheRight(const FromTheRight &) = delete;
    FromTheRight &operator=(const FromTheRight &) = delete;
};

} // namespace

// Every window loads, and its texts fit, at every permitted size and at other scales of the screen.
class WindowsFitTest : public QObject {
    Q_OBJECT

    // Nothing is cut off or outside its window.
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
                QVERIFY2(item->property("contentWidth").toDouble() <= item->width() + 1,
                         qPrintable(what));
            }
            QVERIFY2(place.left() >= -1 && place.right() <= width + 1, qPrintable(what));
            if (!isClipped(item))
                QVERIFY2(place.bottom() <= stage.window()->height() + 1, qPrintable(what));
        });
    }

private Q_SLOTS:
    void initTestCase() { settleAppearance(); }

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
            QVERIFY(stage.open(QStringLiteral("main/MainWindow.qml"),
                               windows(stage).front().properties));
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

    void everyWindowIsMirroredForReadersFromTheRight()
    {
        Stage stage;
        prepare(stage);
        for (const Shown &shown : windows(stage)) {
            QVERIFY(stage.open(QLatin1String(shown.file), shown.properties));
            stage.picture();
            const double width = stage.window()->width();
            const QList<Placed> usual = texts(stage.window());
            QVERIFY2(usual.size() > 2, shown.name);
            const FromTheRight direction;
            QVERIFY(stage.open(QLatin1String(shown.file), shown.properties));
            stage.picture();
            const QList<Placed> mirrored = texts(stage.window());
            QCOMPARE(mirrored.size(), usual.size());
            for (int i = 0; i < usual.size(); ++i) {
                const QString what = QStringLiteral(
                                         "%1: \"%2\" from %3 to %4, mirrored from %5 to %6 of %7")
                                         .arg(QLatin1String(shown.name), usual[i].text)
                                         .arg(usual[i].place.left())
                                         .arg(usual[i].place.right())
                                         .arg(mirrored[i].place.left())
                                         .arg(mirrored[i].place.right())
                                         .arg(width);
                QVERIFY2(mirrored[i].text == usual[i].text, qPrintable(what));
                QVERIFY2(std::abs(mirrored[i].place.left() - (width - usual[i].place.right())) <= 2,
                         qPrintable(what));
            }
        }
    }

    void everyWindowHoldsEveryLanguage_data()
    {
        QTest::addColumn<QString>("file");
        const QFileInfoList files
            = QDir(QStringLiteral(":/i18n")).entryInfoList({QStringLiteral("*.qm")});
        QVERIFY(!files.isEmpty());
        for (const QFileInfo &file : files)
            QTest::newRow(qPrintable(file.baseName())) << file.filePath();
    }
    void everyWindowHoldsEveryLanguage()
    {
        QFETCH(QString, file);
        QTranslator translator;
        QVERIFY(translator.load(file));
        QCoreApplication::installTranslator(&translator);
        std::optional<FromTheRight> direction;
        if (QLocale(translator.language()).textDirection() == Qt::RightToLeft)
            direction.emplace();
        Stage stage;
        for (const Scenes::Scene &scene : Scenes::panel()) {
            stage.session.show(scene.snapshot);
            QVERIFY(stage.open(QStringLiteral("main/MainWindow.qml"),
                               windows(stage).front().properties));
            stage.window()->resize(360, 768);
            stage.picture();
            expectWhole(stage, scene.name);
        }
        prepare(stage);
        for (const Shown &shown : windows(stage)) {
            QVERIFY(stage.open(QLatin1String(shown.file), shown.properties));
            stage.window()->resize(std::max(360, stage.window()->minimumWidth()),
                                   std::max(420, stage.window()->minimumHeight()));
            stage.picture();
            expectWhole(stage, QLatin1String(shown.file));
        }
    }

    void aCountTakesTheLanguagesForm()
    {
        QTranslator russian;
        QVERIFY(russian.load(QStringLiteral(":/i18n/veldmark_ru.qm")));
        QCoreApplication::installTranslator(&russian);
        Stage stage;
        Snapshot session = Scenes::protectedSession();
        for (const auto &[count, words] : {std::pair{1, "1 активный путь ·"},
                                           {2, "2 активных пути ·"},
                                           {5, "5 активных путей ·"},
                                           {21, "21 активный путь ·"}}) {
            session.circuits = Scenes::circuits(count);
            stage.session.show(session);
            QVERIFY2(stage.circuits.subtitle().startsWith(QString::fromUtf8(words)),
                     qPrintable(stage.circuits.subtitle()));
        }
    }
};

QTEST_MAIN(WindowsFitTest)
#include "WindowsFitTest.moc"
