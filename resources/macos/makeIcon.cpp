// makeIcon DRAWING.svg ICON.icns: the application's icon for the Mac, the drawing in white on a
// rounded tile. Runs while the program is built. Exit status 1 with one line when a file cannot be
// read or written.

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSaveFile>
#include <QSvgRenderer>
#include <QTextStream>
#include <QtEndian>

#include <array>

namespace {

// An .icns file is a list of PNG pictures, each behind its kind. The kinds with "@2x" in their
// meaning (ic11 to ic14) are the same pictures for displays of twice the density.
struct Kind {
    const char *name;
    int pixels;
};
constexpr std::array<Kind, 10> kinds = {{{"icp4", 16},
                                         {"icp5", 32},
                                         {"ic07", 128},
                                         {"ic08", 256},
                                         {"ic09", 512},
                                         {"ic10", 1024},
                                         {"ic11", 32},
                                         {"ic12", 64},
                                         {"ic13", 256},
                                         {"ic14", 512}}};

// The tile and its margin as macOS draws its own: 824 of 1024 wide, a corner of 185.
QImage picture(QSvgRenderer &drawing, int pixels)
{
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixels / 1024.0, pixels / 1024.0);
    QLinearGradient shade(0, 100, 0, 924);
    shade.setColorAt(0, QColor(0x7a, 0x4f, 0xe0));
    shade.setColorAt(1, QColor(0x4a, 0x22, 0xa8));
    painter.setBrush(shade);
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(QRectF(100, 100, 824, 824), 185, 185);
    painter.end();

    QImage symbol(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    symbol.fill(Qt::transparent);
    QPainter symbolPainter(&symbol);
    symbolPainter.setRenderHint(QPainter::Antialiasing);
    const double scale = pixels / 1024.0;
    drawing.render(&symbolPainter, QRectF(232 * scale, 232 * scale, 560 * scale, 560 * scale));
    symbolPainter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    symbolPainter.fillRect(symbol.rect(), Qt::white);
    symbolPainter.end();

    QPainter together(&image);
    together.drawImage(0, 0, symbol);
    together.end();
    return image;
}

QByteArray numbered(qsizetype number)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(static_cast<quint32>(number), bytes.data());
    return bytes;
}

int fail(const QString &text)
{
    QTextStream(stderr) << "makeIcon: " << text << '\n';
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3)
        return fail(QStringLiteral("usage: makeIcon DRAWING.svg ICON.icns"));
    QSvgRenderer drawing;
    if (!drawing.load(QFile::decodeName(argv[1])))
        return fail(QStringLiteral("the drawing cannot be read"));

    QByteArray pictures;
    for (const Kind &kind : kinds) {
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        if (!picture(drawing, kind.pixels).save(&buffer, "PNG"))
            return fail(QStringLiteral("a picture cannot be made"));
        pictures += kind.name + numbered(png.size() + 8) + png;
    }
    QSaveFile file(QFile::decodeName(argv[2]));
    const QByteArray whole = "icns" + numbered(pictures.size() + 8) + pictures;
    if (!file.open(QIODevice::WriteOnly) || file.write(whole) != whole.size() || !file.commit())
        return fail(QStringLiteral("the icon cannot be written"));
    return 0;
}
