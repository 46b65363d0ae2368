#include "StagedWindows.h"

#include <QDir>
#include <QTest>

#include <cmath>

using namespace veldmark;

namespace {

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

} // namespace

// Every state of the panel as it was when somebody last looked at it. VELDMARK_WRITE_GOLDEN=1 writes it anew.
class GoldenPicturesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { settleAppearance(); }

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

QTEST_MAIN(GoldenPicturesTest)
#include "GoldenPicturesTest.moc"
