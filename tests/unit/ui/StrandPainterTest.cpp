#include "ui/StrandPainter.h"
#include "support/TestProgram.h"

#include <QPainter>
#include <QPainterPath>
#include <QTest>

#include <cmath>

using namespace veldmark;

namespace {

QImage paper(QSize size = {300, 200})
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

QImage strand(const Strand &what, double scale = 1, QSize size = {300, 200})
{
    QImage image = paper(size);
    StrandPainter(image, scale).draw(what);
    return image;
}

// The same curve, stroked by QPainter.
QImage stroked(const Strand &what)
{
    QImage image = paper();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const double reach = (what.to.x() - what.from.x()) / 2;
    QPainterPath path(what.from);
    path.cubicTo(what.from + QPointF(reach, what.bulge), what.to + QPointF(-reach, what.bulge),
                 what.to);
    if (what.edge > 0)
        painter.strokePath(
            path, QPen(what.edgeColor, what.width + 2 * what.edge, Qt::SolidLine, Qt::FlatCap));
    painter.strokePath(path, QPen(what.color, what.width, Qt::SolidLine, Qt::FlatCap));
    return image;
}

double ink(const QImage &image)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            sum += 255 - qGray(image.pixel(x, y));
    return sum / 255;
}

} // namespace

class StrandPainterTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void looksLikeAStrokedPath_data()
    {
        QTest::addColumn<QPointF>("to");
        QTest::addColumn<double>("bulge");
        QTest::addColumn<double>("width");
        QTest::addColumn<double>("edge");
        QTest::newRow("level") << QPointF(280, 100) << 0.0 << 1.6 << 0.0;
        QTest::newRow("down") << QPointF(280, 180) << 0.0 << 1.6 << 0.0;
        QTest::newRow("up, thick") << QPointF(280, 20) << 0.0 << 3.0 << 0.0;
        QTest::newRow("steep") << QPointF(80, 190) << 0.0 << 1.6 << 0.0;
        QTest::newRow("bowed") << QPointF(280, 120) << 30.0 << 1.6 << 0.0;
        QTest::newRow("with an edge") << QPointF(280, 180) << -7.0 << 1.6 << 0.7;
    }
    void looksLikeAStrokedPath()
    {
        QFETCH(QPointF, to);
        QFETCH(double, bulge);
        QFETCH(double, width);
        QFETCH(double, edge);
        const Strand one{{20, 100},        to, bulge, width, QColor(0x30, 0x30, 0x30), edge,
                         QColor(Qt::black)};
        const QImage ours = strand(one);
        const QImage theirs = stroked(one);
        QVERIFY(ink(theirs) > 50); // the comparison is not empty
        QVERIFY2(std::abs(ink(ours) / ink(theirs) - 1) < 0.05,
                 qPrintable(QStringLiteral("%1 of ink, not %2").arg(ink(ours)).arg(ink(theirs))));
        int far = 0;
        for (int y = 0; y < ours.height(); ++y)
            for (int x = 22; x < to.x() - 2; ++x) // the ends lie under nodes
                far += std::abs(qGray(ours.pixel(x, y)) - qGray(theirs.pixel(x, y))) > 64 ? 1 : 0;
        QVERIFY2(far < ink(theirs) * 0.02, qPrintable(QStringLiteral("%1 pixels differ").arg(far)));
    }

    void leavesOutWhatLiesOutside()
    {
        const QColor color(Qt::black);
        QCOMPARE(strand({{20, -90}, {280, -40}, 0, 3, color, 1, color}), paper());
        QCOMPARE(strand({{20, 260}, {280, 400}, 0, 3, color, 1, color}), paper());
        QCOMPARE(strand({{400, 10}, {600, 20}, 0, 3, color, 1, color}), paper());
        const QImage across = strand({{-100, -100}, {500, 400}, 0, 3, color, 1, color});
        QVERIFY(across != paper());
        QCOMPARE(across.pixel(0, 199), qRgb(255, 255, 255));
    }

    void drawsNothingThatDoesNotRunToTheRight()
    {
        QCOMPARE(strand({{100, 10}, {100, 190}, 0, 3, Qt::black, 0, {}}), paper());
        QCOMPARE(strand({{100, 10}, {50, 190}, 0, 3, Qt::black, 0, {}}), paper());
    }

    void countsTheAlphaOfItsColor()
    {
        QColor faint(Qt::black);
        faint.setAlphaF(0.25F);
        const QImage image = strand({{0, 100}, {300, 100}, 0, 6, faint, 0, {}});
        QVERIFY(std::abs(qGray(image.pixel(150, 100)) - 191) <= 2);
        QCOMPARE(qAlpha(image.pixel(150, 100)), 255);
    }

    void drawsInPixelsWhatIsGivenInPoints()
    {
        const Strand one{{20, 50}, {140, 50}, 0, 4, Qt::black, 0, {}};
        const QImage image = strand(one, 2);
        QCOMPARE(qGray(image.pixel(160, 100)), 0);
        QCOMPARE(qGray(image.pixel(160, 50)), 255);
        QVERIFY(std::abs(ink(image) - 4 * ink(strand(one))) < 4);
    }
};

VELDMARK_BARE_TEST(StrandPainterTest)
#include "StrandPainterTest.moc"
