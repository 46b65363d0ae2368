#include "GoldenText.h"
#include "WindowScenes.h"

#include <QRegularExpression>

using namespace veldmark;

// Compares the texts and controls of every window except the panel with the reviewed ones: one file
// for each kind.
class GoldenTextsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { settleAppearance(); }

    void saysAndOffersWhatItDid_data()
    {
        QTest::addColumn<QString>("kind");
        QStringList kinds;
        for (const WindowScene &scene : windowScenes())
            kinds << scene.name.section(u'/', 0, 0).section(u' ', 0, 0);
        kinds.removeDuplicates();
        QVERIFY(kinds.size() >= 6);
        for (const QString &kind : kinds)
            QTest::newRow(qPrintable(kind)) << kind;
    }
    void saysAndOffersWhatItDid()
    {
        QFETCH(QString, kind);
        QString now;
        for (const WindowScene &scene : windowScenes()) {
            if (scene.name.section(u'/', 0, 0).section(u' ', 0, 0) != kind)
                continue;
            Stage stage;
            QVERIFY(scene.open(stage));
            // lists show all
            stage.window()->resize(stage.window()->width(),
                                   std::max(stage.window()->height(), 900));
            stage.picture();
            const QString text = described(stage);
            QVERIFY2(!text.isEmpty(), qPrintable(scene.name));
            // This system has neither.
            static const QRegularExpression foreign(
                QStringLiteral("\\b(Dock|brew|Homebrew|Finder|Mac|macOS)\\b"));
            QVERIFY2(!text.contains(foreign), qPrintable(scene.name + QStringLiteral(": ") + text));
            now += u'[' + scene.name + QStringLiteral("]\n") + text + u'\n';
        }
        expectGolden(QStringLiteral(GOLDEN_DIR "/%1.txt").arg(kind), now);
    }
};

QTEST_MAIN(GoldenTextsTest)
#include "GoldenTextsTest.moc"
