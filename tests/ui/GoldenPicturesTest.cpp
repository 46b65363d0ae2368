#include "GoldenText.h"
#include "StagedWindows.h"

#include <QDir>
#include <QTest>

#include <cmath>

using namespace veldmark;

// Compares every state of the panel with its reviewed picture. VELDMARK_WRITE_GOLDEN=1 rewrites the
// files.
class GoldenPicturesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { settleAppearance(); }

    // Every text of every scene, and the controls that can be pressed, as a readable file.
    void saysAndOffersWhatItDid()
    {
        Stage stage;
        QString now;
        for (const Scenes::Scene &scene : Scenes::panel()) {
            stage.panel.traffic()->clear();
            stage.session.show(scene.snapshot);
            QVERIFY(stage.open(QStringLiteral("main/MainWindow.qml"),
                               windows(stage).front().properties));
            stage.picture();
            now += u'[' + scene.name + QStringLiteral("]\n");
            now += described(stage);
            now += u'\n';
        }
        expectGolden(QStringLiteral(GOLDEN_DIR "/panel.txt"), now);
    }

    void looksAsItDid_data()
    {
        QTest::addColumn<QString>("scene");
        QTest::addColumn<bool>("dark");
        for (const Scenes::Scene &scene : Scenes::panel())
            for (const bool dark : {false, true})
                QTest::addRow("%s-%s", qPrintable(scene.name), dark ? "dark" : "light")
                    << scene.name << dark;
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
        QVERIFY(
            stage.open(QStringLiteral("main/MainWindow.qml"), windows(stage).front().properties));
        stage.window()->resize(380, 700);
        const QImage now = stage.picture()
                               .convertToFormat(QImage::Format_RGB32)
                               .scaled(190, 350, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        const QString file = QStringLiteral(GOLDEN_DIR "/%1-%2.png")
                                 .arg(scene,
                                      dark ? QStringLiteral("dark") : QStringLiteral("light"));
        if (qEnvironmentVariableIsSet("VELDMARK_WRITE_GOLDEN")) {
            QDir().mkpath(QStringLiteral(GOLDEN_DIR));
            QVERIFY(now.convertToFormat(QImage::Format_RGB888).save(file));
            return;
        }
        const QImage before = QImage(file).convertToFormat(QImage::Format_RGB32);
        QVERIFY2(!before.isNull(), qPrintable(file));
        QCOMPARE(now.size(), before.size());
        // Half-size pictures tolerate another font rasteriser, but show a moved or recoloured part.
        constexpr int sameColor = 40;
        int different = 0;
        for (int y = 0; y < now.height(); ++y) {
            for (int x = 0; x < now.width(); ++x) {
                const QRgb a = now.pixel(x, y), b = before.pixel(x, y);
                if (std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b))
                        + std::abs(qBlue(a) - qBlue(b))
                    > sameColor)
                    ++different;
            }
        }
        const double share = 100.0 * different / (now.width() * now.height());
        if (share > 2.0)
            now.save(QDir::temp().filePath(QStringLiteral("veldmark-now-%1.png").arg(scene)));
        QVERIFY2(share <= 2.0,
                 qPrintable(QStringLiteral("%1 % of the picture differs").arg(share)));
    }
};

QTEST_MAIN(GoldenPicturesTest)
#include "GoldenPicturesTest.moc"
