#include "ui/ApplicationChoices.h"
#include "StandInSession.h"
#include "support/TestProgram.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace veldmark;

class ApplicationChoicesTest : public QObject {
    Q_OBJECT

    PlatformProfile profile = PlatformProfile::linux(Places::below(QStringLiteral("/nowhere")));

    static QStringList names(const ApplicationChoices &choices)
    {
        QStringList list;
        for (int row = 0; row < choices.rowCount(); ++row)
            list << choices.data(choices.index(row), ApplicationChoices::NameRole).toString();
        return list;
    }
    static int drawnPixels(const QImage &image)
    {
        int drawn = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                drawn += qAlpha(image.pixel(x, y)) > 100;
        return drawn;
    }

private Q_SLOTS:
    void listsThemByNameWithoutRegardToCase()
    {
        StandInSession session(profile);
        ApplicationChoices choices(session);
        QCOMPARE(choices.rowCount(), 0); // until a view asks for them
        choices.refresh();
        QCOMPARE(names(choices),
                 QStringList(
                     {QStringLiteral("bake"), QStringLiteral("Games"), QStringLiteral("Letters")}));
    }

    void aSearchLeavesThoseWithThatInTheirName()
    {
        StandInSession session(profile);
        ApplicationChoices choices(session);
        choices.refresh();
        choices.setSearch(QStringLiteral(" GAM "));
        QCOMPARE(names(choices), QStringList(QStringLiteral("Games")));
        choices.setSearch(QStringLiteral("zzz"));
        QCOMPARE(choices.rowCount(), 0);
        QVERIFY(choices.emptyText().contains(QStringLiteral("zzz")));
        choices.setSearch(QString());
        QCOMPARE(choices.rowCount(), 3);
    }

    void aRowIsChosenAndGivenUpAgain()
    {
        StandInSession session(profile);
        ApplicationChoices choices(session);
        choices.refresh();
        choices.setSearch(QStringLiteral("letters"));
        const QModelIndex row = choices.index(0);
        QCOMPARE(choices.data(row, ApplicationChoices::ChosenRole).toBool(), false);
        choices.toggle(0);
        QCOMPARE(session.now().choices.bypassApps,
                 QStringList(QStringLiteral("/usr/share/applications/letters.desktop")));
        QCOMPARE(choices.data(row, ApplicationChoices::ChosenRole).toBool(), true);
        choices.toggle(0);
        QVERIFY(session.now().choices.bypassApps.isEmpty());
        choices.toggle(7);
        choices.toggle(-1);
        QVERIFY(session.now().choices.bypassApps.isEmpty());
    }

    // The user may have chosen it in the sheet or over the command line.
    void whatIsChosenElsewhereIsToldToTheRows()
    {
        StandInSession session(profile);
        ApplicationChoices choices(session);
        QSignalSpy told(&choices, &QAbstractItemModel::dataChanged);
        session.addBypassApp(QStringLiteral("/usr/share/applications/games.desktop"));
        QCOMPARE(told.count(), 0); // there are no rows yet
        choices.refresh();
        session.addBypassApp(QStringLiteral("/usr/share/applications/letters.desktop"));
        QCOMPARE(told.count(), 1);
        QCOMPARE(told.at(0).at(0).toModelIndex().row(), 0);
        QCOMPARE(told.at(0).at(1).toModelIndex().row(), 2);
        QVERIFY(told.at(0).at(2).value<QList<int>>().contains(ApplicationChoices::ChosenRole));
    }

    void aPictureIsTakenFromItsFile()
    {
        QTemporaryDir folder;
        QImage red(64, 64, QImage::Format_RGB32);
        red.fill(Qt::red);
        const QString file = folder.filePath(QStringLiteral("an icon.png"));
        QVERIFY(red.save(file));
        ApplicationIcons icons;
        QSize size;
        const QImage image = icons.requestImage(QString::fromLatin1(QUrl::toPercentEncoding(file)),
                                                &size, QSize(28, 28));
        QCOMPARE(size, QSize(28, 28));
        QCOMPARE(image.pixelColor(14, 14), QColor(Qt::red));
    }

    void aPictureThatIsMissingOrDamagedLeavesNoHole()
    {
        QTemporaryDir folder;
        QFile broken(folder.filePath(QStringLiteral("broken.png")));
        QVERIFY(broken.open(QIODevice::WriteOnly));
        broken.write("no picture");
        broken.close();
        ApplicationIcons icons;
        for (const QString &icon : {QStringLiteral("no-such-icon-anywhere"),
                                    QStringLiteral("/no/such/file.png"), broken.fileName()}) {
            QSize size;
            QVERIFY2(drawnPixels(icons.requestImage(icon, &size, QSize(28, 28))) > 20,
                     qPrintable(icon));
        }
    }
};

VELDMARK_WINDOWED_TEST(ApplicationChoicesTest)
#include "ApplicationChoicesTest.moc"
